// Result::readObject on arbitrary text (the fuzz bytes as UTF-8). A result that reads writes
// itself and reads back to the same code, message and flag.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_exchange_object.h>

#include <sstream>

using namespace hrm;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Result result;
    std::wistringstream in(fuzz::wideText(data, size));
    if (!fuzz::decodes([&] { result.readObject(in); }))
        return 0;

    std::wostringstream out;
    result.writeObject(out);
    Result again;
    std::wistringstream back(out.str());
    again.readObject(back);
    fuzz::check(again.code() == result.code() && again.message() == result.message()
                    && again.isFinished() == result.isFinished(),
                "a written result reads back to the same result");
    return 0;
}
