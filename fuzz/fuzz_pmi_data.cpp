// ExcPMIData::readObject on arbitrary JSON text (the fuzz bytes as UTF-8), the lenient readers of
// every PMI class below it. Whatever reads writes itself, and what it writes reads back into an
// equal object.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>

using namespace hrm;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    JsonDocument document;
    JsonTextIO::fromString(fuzz::wideText(data, size), document);
    if (document.HasParseError())
        return 0;
    ExcPMIData pmi;
    pmi.readObject(document);

    JsonDocument written;
    pmi.writeObject(written, written.GetAllocator());
    ExcPMIData again;
    again.readObject(written);
    fuzz::check(again == pmi, "written PMI data reads back to an equal object");
    return 0;
}
