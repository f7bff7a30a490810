#pragma once

// gzip compression through zlib (Base64 text for binary payloads is in hrm_api_base64.h).

#include <hrm_api/hrm_api_base64.h>
#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

class HRM_API Compressor
{
public:
    static constexpr size_t defaultDecompressedSizeLimit = size_t(4) << 30; // 4 GiB

    // The library-wide limit on the size of decompressed data: what decompress() allows when
    // the caller names no limit. The exchange-object loader holds a shared-memory payload to
    // it both before (raw) and after decompression. defaultDecompressedSizeLimit until
    // changed; it may be changed at any time from any thread and applies to the operations
    // that start afterwards.
    static void setDecompressedSizeLimit(size_t bytes);
    static size_t decompressedSizeLimit();

    // True for at least 3 bytes starting with a zlib header (78 01/5E/9C/DA) or the gzip magic.
    static bool isCompressed(const char* data, size_t size);

    // Replaces `out` with the gzip stream of the input at zlib `level` (-1 default, 0..9).
    // Throws std::runtime_error("deflate init failed") for a level zlib refuses.
    static void compress(std::vector<char>& out, const char* data, size_t size, int level);
    static void compress(std::string& out, const char* data, size_t size, int level);

    // Replaces `out` with the inflated bytes of a gzip or zlib stream. A stream cut short
    // gives the bytes inflated so far; an empty input gives an empty result. Corrupt data
    // throws std::runtime_error with zlib's message ("inflate init failed" when zlib cannot
    // start). Output beyond `maxSize` bytes throws std::length_error("Compressor: decompressed
    // data exceeds the size limit") before more than `maxSize` + 1 bytes are allocated for
    // it. `out` is unspecified after an exception.
    static void decompress(std::vector<char>& out, const char* data, size_t size,
                           size_t maxSize = decompressedSizeLimit());
    static void decompress(std::string& out, const char* data, size_t size,
                           size_t maxSize = decompressedSizeLimit());
};

} // namespace hrm
