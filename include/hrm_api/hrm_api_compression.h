#pragma once

// gzip compression through zlib, and Base64 text for binary payloads.

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <string>
#include <vector>

namespace hrm {

class HRM_API Compressor
{
public:
    // True for at least 3 bytes starting with a zlib header (78 01/5E/9C/DA) or the gzip magic.
    static bool isCompressed(const char* data, size_t size);

    // Replaces `out` with the gzip stream of the input at zlib `level` (-1 default, 0..9).
    static void compress(std::vector<char>& out, const char* data, size_t size, int level);
    static void compress(std::string& out, const char* data, size_t size, int level);

    // Replaces `out` with the inflated bytes of a gzip or zlib stream.
    static void decompress(std::vector<char>& out, const char* data, size_t size);
    static void decompress(std::string& out, const char* data, size_t size);
};

} // namespace hrm
