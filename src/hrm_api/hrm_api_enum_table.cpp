#include "hrm_api/hrm_api_enum_table.h"

namespace hrm {
namespace {

// Walks a wide string as UTF-16 code units.
class Utf16Units
{
public:
    explicit Utf16Units(std::wstring_view text) : m_text(text) {}

    bool atEnd() const { return m_index == m_text.size() && m_pendingLow == 0; }

    uint32_t next()
    {
        if (m_pendingLow != 0) {
            const uint32_t low = m_pendingLow;
            m_pendingLow = 0;
            return low;
        }
        const auto unit = static_cast<uint32_t>(m_text[m_index++]);
        if (unit < 0x10000)
            return unit;
        const uint32_t offset = unit - 0x10000;
        m_pendingLow = 0xDC00 + (offset & 0x3FF);
        return 0xD800 + (offset >> 10);
    }

private:
    std::wstring_view m_text;
    size_t m_index = 0;
    uint32_t m_pendingLow = 0;
};

} // namespace

bool Utf16Less::operator()(std::wstring_view a, std::wstring_view b) const
{
    if constexpr (sizeof(wchar_t) == 2) {
        return a < b; // wchar_t is already an unsigned 16-bit code unit
    } else {
        Utf16Units left(a), right(b);
        while (!left.atEnd() && !right.atEnd()) {
            const uint32_t l = left.next(), r = right.next();
            if (l != r)
                return l < r;
        }
        return left.atEnd() && !right.atEnd();
    }
}

} // namespace hrm
