// Compressor::decompress on arbitrary bytes, with a small output limit so that a bomb costs
// no more than the limit. Whichever engine inflates, the result is what zlib alone makes of
// the bytes: the same bytes, or the same message. Whatever decompresses compresses, with every
// engine built in, to a stream that decompresses to the same bytes, and the byte-string form
// agrees with the vector form.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_compression.h>

#include <zlib.h>

#include <string>
#include <utility>
#include <vector>

using namespace hrm;

namespace {

constexpr size_t sizeLimit = size_t(1) << 20;

// What zlib alone makes of the input, inflating it in one call with room for one byte beyond
// the limit: the bytes, or the message of the exception the library throws.
std::pair<std::vector<char>, std::string> zlibAlone(const char* data, size_t size)
{
    if (size == 0)
        return {};
    std::vector<char> out(sizeLimit + 1);
    z_stream stream{};
    if (inflateInit2(&stream, 15 + 32) != Z_OK)
        return {{}, "inflate init failed"};
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data));
    stream.avail_in = static_cast<uInt>(size);
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    const int result = inflate(&stream, Z_FINISH);
    out.resize(stream.total_out);
    std::string error;
    if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
        error = stream.msg ? stream.msg : zError(result);
    else if (out.size() > sizeLimit)
        error = "Compressor: decompressed data exceeds the size limit";
    inflateEnd(&stream);
    return {error.empty() ? out : std::vector<char>(), error};
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto* bytes = reinterpret_cast<const char*>(data);
    const auto [expected, expectedError] = zlibAlone(bytes, size);
    std::vector<char> inflated;
    std::string error;
    try {
        Compressor::decompress(inflated, bytes, size, sizeLimit);
    } catch (const std::runtime_error& failure) {
        error = failure.what();
    } catch (const std::length_error& failure) {
        error = failure.what();
    }
    fuzz::check(error == expectedError, "the same message as zlib alone");
    if (!error.empty())
        return 0;
    fuzz::check(inflated == expected, "the same bytes as zlib alone");

    std::string text;
    Compressor::decompress(text, bytes, size, sizeLimit);
    fuzz::check(text == std::string(inflated.begin(), inflated.end()), "both forms give the same bytes");

    for (const Compression compression :
         {Compression{}, Compression{DeflateEngine::libdeflate, 1}, Compression{DeflateEngine::igzip, 1}}) {
        if (!Compressor::isAvailable(compression.engine))
            continue;
        std::vector<char> deflated;
        Compressor::compress(deflated, inflated.data(), inflated.size(), compression);
        fuzz::check(Compressor::isCompressed(deflated.data(), deflated.size()), "compressed data is recognised as such");
        std::vector<char> back;
        Compressor::decompress(back, deflated.data(), deflated.size(), sizeLimit);
        fuzz::check(back == inflated, "compressed data decompresses to the same bytes");
    }
    return 0;
}
