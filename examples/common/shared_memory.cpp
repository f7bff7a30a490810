#include "shared_memory.h"

#include <hrm_api/hrm_api_json.h>

#include <filesystem>

namespace frame {

std::size_t sharedMemorySize(const std::wstring& name)
{
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(std::filesystem::path("/dev/shm") / hrm::toUtf8(name), error);
    return error ? 0 : static_cast<std::size_t>(size);
}

} // namespace frame
