// Command::readObject on arbitrary text (the fuzz bytes as UTF-8). A command that reads writes
// itself without failing, and what it writes reads back into a command that writes the same
// document (doubles within a few units in the last place).

#include "fuzz_support.h"

#include <hrm_api/hrm_api_command.h>

#include <sstream>

using namespace hrm;

namespace {

std::wstring written(const Command& command)
{
    std::wostringstream out;
    command.writeObject(out);
    return out.str();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    Command command;
    std::wistringstream in(fuzz::wideText(data, size));
    if (!fuzz::decodes([&] { command.readObject(in); }))
        return 0;

    const std::wstring text = written(command);
    Command again;
    std::wistringstream back(text);
    again.readObject(back);
    fuzz::check(fuzz::sameJsonText(written(again), text), "a written command reads back to the same document");
    return 0;
}
