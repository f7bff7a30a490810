#include "support/temp_dir.h"

#include <atomic>

#if defined(_WIN32)
#include <process.h>
#else
#include <unistd.h>
#endif

namespace hrm::test {
namespace {

long processId()
{
#if defined(_WIN32)
    return _getpid();
#else
    return static_cast<long>(getpid());
#endif
}

} // namespace

TempDir::TempDir(const std::string& name)
{
    static std::atomic<int> counter{0};
    m_path = std::filesystem::temp_directory_path() /
             ("hrm_api_" + name + "_" + std::to_string(processId()) + "_" + std::to_string(counter++));
    std::filesystem::remove_all(m_path);
    std::filesystem::create_directories(m_path);
}

TempDir::~TempDir()
{
    std::error_code ignored;
    std::filesystem::remove_all(m_path, ignored);
}

} // namespace hrm::test
