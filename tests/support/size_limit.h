#pragma once

#include <hrm_api/hrm_api_compression.h>

#include <cstddef>

namespace hrm::test {

// Sets the library-wide decompressed-size limit for one scope.
struct SizeLimit
{
    explicit SizeLimit(size_t bytes) { Compressor::setDecompressedSizeLimit(bytes); }
    ~SizeLimit() { Compressor::setDecompressedSizeLimit(Compressor::defaultDecompressedSizeLimit); }
    SizeLimit(const SizeLimit&) = delete;
    SizeLimit& operator=(const SizeLimit&) = delete;
};

} // namespace hrm::test
