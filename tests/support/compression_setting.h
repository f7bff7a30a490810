#pragma once

#include <hrm_api/hrm_api_compression.h>

namespace hrm::test {

// Sets the library-wide compression for one scope.
struct CompressionSetting
{
    explicit CompressionSetting(Compression compression) { Compressor::setCompression(compression); }
    ~CompressionSetting() { Compressor::setCompression(Compression{}); }
    CompressionSetting(const CompressionSetting&) = delete;
    CompressionSetting& operator=(const CompressionSetting&) = delete;
};

} // namespace hrm::test
