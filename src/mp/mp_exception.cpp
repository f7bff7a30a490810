#include <mp/mp_exception.h>

#include <hrm_api/hrm_api_text.h>

namespace mp {

Exception::Exception(const std::wstring& message) : m_message(message), m_narrow(hrm::toNarrow(message)) {}

const char* Exception::what() const noexcept
{
    return m_narrow.c_str();
}

} // namespace mp
