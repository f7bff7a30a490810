#pragma once

#include <filesystem>
#include <string>

namespace hrm::test {

// A fresh folder under the system's temporary folder, unique to this process and object
// (CTest runs tests in parallel processes), removed with everything in it on destruction.
class TempDir
{
public:
    explicit TempDir(const std::string& name);
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    std::filesystem::path operator/(const std::string& child) const { return m_path / child; }

private:
    std::filesystem::path m_path;
};

} // namespace hrm::test
