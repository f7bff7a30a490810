// HermetorInfo::readObject on arbitrary text (the fuzz bytes as UTF-8). An info document that
// reads writes itself without failing and reads back into an equal object.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_hermetor_info.h>

#include <sstream>

using namespace hrm;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    HermetorInfo info;
    std::wistringstream in(fuzz::wideText(data, size));
    if (!fuzz::decodes([&] { info.readObject(in); }))
        return 0;

    std::wostringstream out;
    info.writeObject(out);
    HermetorInfo again;
    std::wistringstream back(out.str());
    again.readObject(back);
    fuzz::check(again == info, "a written info document reads back to an equal object");
    return 0;
}
