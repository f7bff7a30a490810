#pragma once

// What the example programs tell about shared memory.

#include <cstddef>
#include <string>

namespace frame {

// The size in bytes of the named shared-memory object (POSIX keeps them under /dev/shm), or 0
// when it cannot be told (no such object).
std::size_t sharedMemorySize(const std::wstring& name);

} // namespace frame
