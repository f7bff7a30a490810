#include <hrm_api/hrm_api_compression.h>

#include <logging/ax_herm_logger.h>

#include "hrm_api/hrm_api_deflate_engines.h"

#define ZLIB_CONST
#include <zlib.h>

#include <algorithm>
#include <atomic>
#include <limits>
#include <mutex>
#include <stdexcept>

namespace hrm {
namespace {

// zlib counts its input and output in 32 bits; larger buffers go through in pieces.
uInt zlibCount(size_t count)
{
    return static_cast<uInt>(std::min<size_t>(count, std::numeric_limits<uInt>::max()));
}

// The input not yet handed to zlib.
struct Input
{
    const char* data;
    size_t remaining;

    // Hands zlib the next piece once it has used up the previous one.
    void feed(z_stream& stream)
    {
        if (stream.avail_in != 0 || remaining == 0)
            return;
        const uInt piece = zlibCount(remaining);
        stream.next_in = reinterpret_cast<const Bytef*>(data);
        stream.avail_in = piece;
        data += piece;
        remaining -= piece;
    }
};

std::atomic<size_t> decompressedSizeLimit{Compressor::defaultDecompressedSizeLimit};
// A mutex rather than an atomic: an atomic of the struct would need libatomic with clang.
std::mutex compressionMutex;
Compression compression;

// Points zlib's output at up to `chunk` bytes of `out` after `total`, staying within the
// vector's capacity while it has any left; a full vector grows by at least `chunk` and at
// least doubles, but never beyond `limit` bytes. Returns the room given.
uInt giveRoom(z_stream& stream, std::vector<char>& out, size_t total, size_t chunk, size_t limit)
{
    if (out.capacity() == total)
        out.reserve(std::min(std::max(2 * total, total + chunk), limit));
    const size_t room = std::min(chunk, out.capacity() - total);
    out.resize(total + room);
    stream.next_out = reinterpret_cast<Bytef*>(out.data() + total);
    stream.avail_out = zlibCount(room);
    return stream.avail_out;
}

class Deflater
{
public:
    explicit Deflater(int level)
    {
        // Window bits 15 + 16: a 32 KiB window with the gzip wrapper.
        if (deflateInit2(&m_stream, level, Z_DEFLATED, 15 + 16, 8, Z_DEFAULT_STRATEGY) != Z_OK)
            throw std::runtime_error("deflate init failed");
    }
    ~Deflater() { deflateEnd(&m_stream); }
    Deflater(const Deflater&) = delete;
    Deflater& operator=(const Deflater&) = delete;

    void run(std::vector<char>& out, const char* data, size_t size)
    {
        const size_t chunk = size / 2 + 1024;
        Input input{data, size};
        size_t total = 0;
        out.clear();
        for (;;) {
            const uInt room = giveRoom(m_stream, out, total, chunk, std::numeric_limits<size_t>::max());
            input.feed(m_stream);
            const bool last = input.remaining == 0;
            deflate(&m_stream, last ? Z_FINISH : Z_NO_FLUSH);
            total += room - m_stream.avail_out;
            // Finishing stops short of the room only once the stream is complete.
            if (last && m_stream.avail_out != 0)
                break;
        }
        out.resize(total);
    }

private:
    z_stream m_stream{};
};

class Inflater
{
public:
    Inflater()
    {
        // Window bits 15 + 32: a 32 KiB window, zlib or gzip header detected.
        if (inflateInit2(&m_stream, 15 + 32) != Z_OK)
            throw std::runtime_error("inflate init failed");
    }
    ~Inflater() { inflateEnd(&m_stream); }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;

    void run(std::vector<char>& out, const char* data, size_t size, size_t maxSize)
    {
        const size_t chunk = 2 * size;
        // Room for one byte beyond the limit at most (maxSize + 1 without wrapping round):
        // enough to tell that the limit is passed.
        const size_t roomLimit = std::max(maxSize, maxSize + 1);
        Input input{data, size};
        size_t total = 0;
        out.clear();
        // One spare byte: the round that completes the stream must leave room unused.
        out.reserve(std::min(expectedSize(data, size), maxSize) + 1);
        for (;;) {
            const uInt room = giveRoom(m_stream, out, total, chunk, roomLimit);
            input.feed(m_stream);
            const int result = inflate(&m_stream, input.remaining == 0 ? Z_FINISH : Z_NO_FLUSH);
            // A buffer error with room left is a stream cut short: keep what came out.
            if (result != Z_OK && result != Z_STREAM_END && result != Z_BUF_ERROR)
                throw std::runtime_error(m_stream.msg ? m_stream.msg : zError(result));
            total += room - m_stream.avail_out;
            if (total > maxSize)
                throw std::length_error("Compressor: decompressed data exceeds the size limit");
            if (result == Z_STREAM_END || (m_stream.avail_out != 0 && input.remaining == 0))
                break;
        }
        out.resize(total);
    }

private:
    // The size a gzip stream announces in its trailer (modulo 2^32), believed only up to a
    // small multiple of the input: the trailer is data like any other, and room is reserved
    // for it before a byte is inflated. Payloads compress about 8 to 1, so they are sized in one
    // step; larger ratios grow the output as it comes. 0 for other streams.
    static size_t expectedSize(const char* data, size_t size)
    {
        if (size < 18 || static_cast<unsigned char>(data[0]) != 0x1F || static_cast<unsigned char>(data[1]) != 0x8B)
            return 0;
        return std::min(deflate_engines::announcedSize(data, size), size * deflate_engines::trustedRatio);
    }

    z_stream m_stream{};
};

} // namespace

void Compressor::setDecompressedSizeLimit(size_t bytes)
{
    hrm::decompressedSizeLimit = bytes;
}

size_t Compressor::decompressedSizeLimit()
{
    return hrm::decompressedSizeLimit;
}

void Compressor::setCompression(Compression compression)
{
    deflate_engines::check(compression);
    const std::lock_guard<std::mutex> lock(compressionMutex);
    hrm::compression = compression;
}

Compression Compressor::compression()
{
    const std::lock_guard<std::mutex> lock(compressionMutex);
    return hrm::compression;
}

bool Compressor::isAvailable(DeflateEngine engine)
{
    return deflate_engines::isBuiltIn(engine);
}

bool Compressor::isCompressed(const char* data, size_t size)
{
    if (data == nullptr || size < 3)
        return false;
    const auto first = static_cast<unsigned char>(data[0]);
    const auto second = static_cast<unsigned char>(data[1]);
    const bool zlib = first == 0x78 && (second == 0x01 || second == 0x5E || second == 0x9C || second == 0xDA);
    const bool gzip = first == 0x1F && second == 0x8B;
    return zlib || gzip;
}

void Compressor::compress(std::vector<char>& out, const char* data, size_t size, int level)
{
    HRM_TRACE();
    Deflater(level).run(out, data, size);
}

void Compressor::compress(std::string& out, const char* data, size_t size, int level)
{
    HRM_TRACE();
    std::vector<char> bytes;
    Deflater(level).run(bytes, data, size);
    out.assign(bytes.data(), bytes.size());
}

void Compressor::compress(std::vector<char>& out, const char* data, size_t size, Compression compression)
{
    HRM_TRACE();
    if (compression.engine == DeflateEngine::zlib)
        Deflater(compression.level).run(out, data, size);
    else
        deflate_engines::compress(compression, out, data, size);
}

void Compressor::compress(std::string& out, const char* data, size_t size, Compression compression)
{
    HRM_TRACE();
    std::vector<char> bytes;
    compress(bytes, data, size, compression);
    out.assign(bytes.data(), bytes.size());
}

void Compressor::decompress(std::vector<char>& out, const char* data, size_t size, size_t maxSize)
{
    HRM_TRACE();
    if (size == 0)
        out.clear();
    else if (!deflate_engines::inflate(out, data, size, maxSize))
        Inflater().run(out, data, size, maxSize);
}

void Compressor::decompress(std::string& out, const char* data, size_t size, size_t maxSize)
{
    HRM_TRACE();
    std::vector<char> bytes;
    if (size != 0 && !deflate_engines::inflate(bytes, data, size, maxSize))
        Inflater().run(bytes, data, size, maxSize);
    out.assign(bytes.data(), bytes.size());
}

} // namespace hrm
