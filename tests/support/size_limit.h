#pragma once

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_json_binary.h>

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

// Sets the library-wide memory budget of binary decoding for one scope.
struct MemoryBudget
{
    explicit MemoryBudget(size_t bytes) { JsonBinaryIO::setMemoryBudget(bytes); }
    ~MemoryBudget() { JsonBinaryIO::setMemoryBudget(JsonBinaryIO::defaultMemoryBudget); }
    MemoryBudget(const MemoryBudget&) = delete;
    MemoryBudget& operator=(const MemoryBudget&) = delete;
};

} // namespace hrm::test
