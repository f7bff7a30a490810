// Compressor::decompress on arbitrary bytes, with a small output limit so that a bomb costs
// no more than the limit. Whatever decompresses compresses to a stream that decompresses to
// the same bytes, and the byte-string form agrees with the vector form.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_compression.h>

#include <string>
#include <vector>

using namespace hrm;

namespace {
constexpr size_t sizeLimit = size_t(1) << 20;
}

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto* bytes = reinterpret_cast<const char*>(data);
    std::vector<char> inflated;
    if (!fuzz::decodes([&] { Compressor::decompress(inflated, bytes, size, sizeLimit); }))
        return 0;
    fuzz::check(inflated.size() <= sizeLimit, "the output stays within the limit");

    std::string text;
    Compressor::decompress(text, bytes, size, sizeLimit);
    fuzz::check(text == std::string(inflated.begin(), inflated.end()), "both forms give the same bytes");

    std::vector<char> deflated;
    Compressor::compress(deflated, inflated.data(), inflated.size(), -1);
    fuzz::check(Compressor::isCompressed(deflated.data(), deflated.size()), "compressed data is recognised as such");
    std::vector<char> back;
    Compressor::decompress(back, deflated.data(), deflated.size(), sizeLimit);
    fuzz::check(back == inflated, "compressed data decompresses to the same bytes");
    return 0;
}
