#pragma once

#include <hrm_api/hrm_api_export.h>

#include <exception>
#include <string>

namespace mp {

/// An exception built from a wide message; what() answers it in the library's narrow
/// encoding (hrm::toNarrow).
class HRM_API Exception : public std::exception
{
public:
    /// An exception with `message`.
    explicit Exception(const std::wstring& message);
    /// The message in the library's narrow encoding.
    const char* what() const noexcept override;
    /// The message as it was given.
    const std::wstring& message() const noexcept { return m_message; }

private:
    std::wstring m_message;
    std::string m_narrow;
};

/// Every failure of the shared-memory layer.
class HRM_API SharedMemoryException : public Exception
{
public:
    /// An exception with a message.
    using Exception::Exception;
};

} // namespace mp
