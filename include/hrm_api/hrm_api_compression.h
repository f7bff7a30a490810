#pragma once

/// @file
/// gzip compression through zlib or a faster deflate engine (Base64 text for binary payloads is in
/// hrm_api_base64.h).

#include <hrm_api/hrm_api_base64.h>
#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

/// The implementations of deflate that can write the library's gzip streams. zlib is always
/// there; the others are built in when the library was built with them
/// (Compressor::isAvailable). All of them write a standard gzip stream that zlib reads.
enum class HRM_API_TYPE DeflateEngine
{
    zlib,       ///< levels 0 to 9; -1 is 6
    libdeflate, ///< levels 0 to 12; -1 is 6
    igzip,      ///< Intel ISA-L: levels 0 to 3; -1 is 1
};

/// How to compress: an engine and its level (-1: the engine's default level).
struct Compression
{
    DeflateEngine engine = DeflateEngine::zlib; ///< The engine that writes the gzip stream.
    int level = -1; ///< The engine's level; -1 is its default.

    /// Whether both name the same engine and level.
    friend bool operator==(const Compression& a, const Compression& b)
    {
        return a.engine == b.engine && a.level == b.level;
    }
    friend bool operator!=(const Compression& a, const Compression& b) { return !(a == b); }
};

/// Compresses and decompresses gzip and zlib streams, with zlib or a faster engine built in.
class HRM_API Compressor
{
public:
    /// The largest payloads of real models stay well below it (README, "Hostile input").
    static constexpr size_t defaultDecompressedSizeLimit = size_t(512) << 20; ///< 512 MiB

    /// The library-wide limit on the size of decompressed data: what decompress() allows when
    /// the caller names no limit. The exchange-object loader holds a shared-memory payload to
    /// it both before (raw) and after decompression. defaultDecompressedSizeLimit until
    /// changed; it may be changed at any time from any thread and applies to the operations
    /// that start afterwards.
    static void setDecompressedSizeLimit(size_t bytes);
    /// The library-wide limit on decompressed data (see setDecompressedSizeLimit).
    static size_t decompressedSizeLimit();

    /// The library-wide compression: what the exchange-object writer compresses with.
    /// Compression{} (zlib at its default level) until changed; it may be changed at any time
    /// from any thread and applies to the operations that start afterwards. Throws what
    /// compress() would throw for the setting, and then keeps the previous one.
    static void setCompression(Compression compression);
    /// The library-wide compression (see setCompression).
    static Compression compression();

    /// Whether the library was built with `engine` (zlib always).
    static bool isAvailable(DeflateEngine engine);

    /// True for at least 3 bytes starting with a zlib header (78 01/5E/9C/DA) or the gzip magic.
    static bool isCompressed(const char* data, size_t size);

    /// Replaces `out` with the gzip stream of the input at zlib `level` (-1 default, 0..9).
    /// Throws std::runtime_error("deflate init failed") for a level zlib refuses.
    static void compress(std::vector<char>& out, const char* data, size_t size, int level);
    /// The same into a std::string.
    static void compress(std::string& out, const char* data, size_t size, int level);
    /// The same with any engine; Compression{DeflateEngine::zlib, level} is the form above.
    /// Throws std::invalid_argument("Compressor: deflate engine not available") for an engine
    /// the library was built without, and std::runtime_error("deflate init failed") for a
    /// level the engine refuses.
    static void compress(std::vector<char>& out, const char* data, size_t size, Compression compression);
    /// The same into a std::string.
    static void compress(std::string& out, const char* data, size_t size, Compression compression);

    /// Replaces `out` with the inflated bytes of a gzip or zlib stream. A stream cut short
    /// gives the bytes inflated so far; an empty input gives an empty result. Corrupt data
    /// throws std::runtime_error with zlib's message ("inflate init failed" when zlib cannot
    /// start). Output beyond `maxSize` bytes throws std::length_error("Compressor: decompressed
    /// data exceeds the size limit") before more than `maxSize` + 1 bytes are allocated for
    /// it. `out` is unspecified after an exception.
    /// A whole, well-formed stream within the limit is inflated by libdeflate when it is built
    /// in (the faster inflater); everything else is left to zlib, so that the result, the limit
    /// and the messages are the same either way.
    static void decompress(std::vector<char>& out, const char* data, size_t size,
                           size_t maxSize = decompressedSizeLimit());
    /// The same into a std::string.
    static void decompress(std::string& out, const char* data, size_t size,
                           size_t maxSize = decompressedSizeLimit());
};

} // namespace hrm
