// Compressor::decompress on arbitrary bytes, with a small output limit so that a bomb costs
// no more than the limit. Whichever engine inflates, the result is what zlib alone makes of
// the bytes: the same bytes, or the same message (except for a few malformed block headers
// that libdeflate takes, whose bytes must then carry their checksums). Whatever decompresses
// compresses, with every engine built in, to a stream that decompresses to the same bytes,
// and the byte-string form agrees with the vector form.

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
    static std::vector<char> room(sizeLimit + 1); // kept: filling a new one costs more than the rest
    z_stream stream{};
    if (inflateInit2(&stream, 15 + 32) != Z_OK)
        return {{}, "inflate init failed"};
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(data));
    stream.avail_in = static_cast<uInt>(size);
    stream.next_out = reinterpret_cast<Bytef*>(room.data());
    stream.avail_out = static_cast<uInt>(room.size());
    const int result = inflate(&stream, Z_FINISH);
    std::vector<char> out(room.begin(), room.begin() + static_cast<std::ptrdiff_t>(stream.total_out));
    std::string error;
    if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
        error = stream.msg ? stream.msg : zError(result);
    else if (out.size() > sizeLimit)
        error = "Compressor: decompressed data exceeds the size limit";
    inflateEnd(&stream);
    return {error.empty() ? out : std::vector<char>(), error};
}

// Whether the input carries the checksums of `bytes`: a gzip trailer (CRC-32 and size) or the
// Adler-32 of a zlib stream. libdeflate inflates a few malformed block headers that zlib
// refuses, but only into bytes whose checksums hold.
bool vouchedFor(const std::vector<char>& bytes, const char* data, size_t size)
{
    const auto* begin = reinterpret_cast<const Bytef*>(bytes.data());
    const auto length = static_cast<uInt>(bytes.size());
    const uLong crc = crc32(0, begin, length);
    const uLong adler = adler32(1, begin, length);
    const auto byte = [](uLong value, int shift) { return static_cast<char>((value >> shift) & 0xFF); };
    const std::string gzipTrailer{byte(crc, 0),    byte(crc, 8),     byte(crc, 16),    byte(crc, 24),
                                  byte(length, 0), byte(length, 8), byte(length, 16), byte(length, 24)};
    const std::string zlibTrailer{byte(adler, 24), byte(adler, 16), byte(adler, 8), byte(adler, 0)};
    const std::string input(data, size);
    return input.find(gzipTrailer) != std::string::npos || input.find(zlibTrailer) != std::string::npos;
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
    const bool takenByLibdeflate = error.empty() && !expectedError.empty();
    fuzz::check(error == expectedError || takenByLibdeflate, "the same message as zlib alone");
    if (!error.empty())
        return 0;
    if (takenByLibdeflate)
        fuzz::check(!inflated.empty() && vouchedFor(inflated, bytes, size), "bytes zlib refuses carry their checksums");
    else
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
