// The binary JSON decoder on arbitrary bytes. Whatever decodes re-encodes to bytes that decode
// to the same value, number kinds and double bits included; those bytes are the decoder's
// fixed point; and the stream adapter agrees with the buffer decoder.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_json_binary.h>

#include <sstream>
#include <vector>

using namespace hrm;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto* bytes = reinterpret_cast<const char*>(data);
    JsonDocument decoded;
    size_t consumed = 0;
    const bool decodes = fuzz::decodes([&] { consumed = JsonBinaryIO::decode(bytes, size, decoded, decoded.GetAllocator()); });

    JsonDocument streamed;
    std::istringstream in(std::string(bytes, size));
    const bool streamDecodes = fuzz::decodes([&] { JsonBinaryIO::read(in, streamed, streamed.GetAllocator()); });
    fuzz::check(decodes == streamDecodes, "the stream adapter succeeds exactly when the buffer decoder does");
    if (!decodes)
        return 0;
    fuzz::check(consumed <= size, "the decoder consumes no more than it was given");
    fuzz::check(fuzz::sameJson(decoded, streamed), "the stream adapter decodes the same value");
    fuzz::check(consumed == size || static_cast<size_t>(in.tellg()) == consumed,
                "the stream is left just after the value");

    std::vector<char> encoded;
    JsonBinaryIO::encode(decoded, encoded);
    JsonDocument again;
    const size_t length = JsonBinaryIO::decode(encoded.data(), encoded.size(), again, again.GetAllocator());
    fuzz::check(length == encoded.size(), "a re-encoded value decodes from all of its bytes");
    fuzz::check(fuzz::sameJson(decoded, again), "a re-encoded value decodes to the same value");

    std::vector<char> reencoded;
    JsonBinaryIO::encode(again, reencoded);
    fuzz::check(reencoded == encoded, "a re-encoded value encodes to the same bytes again");
    return 0;
}
