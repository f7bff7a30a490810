#pragma once

#include <string>

namespace hrm {

// Whether `name` has the form of the shared-memory names the library makes: a canonical UUID,
// 36 characters of lowercase hexadecimal digits in 8-4-4-4-12 groups. Readers open and remove
// no other names, so that a peer cannot point them at someone else's object; such a name also
// means the same object on every platform (Windows would take "ABC" and "abc" for one).
inline bool isBufferName(const std::wstring& name)
{
    if (name.size() != 36)
        return false;
    for (size_t i = 0; i < name.size(); ++i) {
        const wchar_t ch = name[i];
        const bool hyphen = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphen ? ch != L'-' : !((ch >= L'0' && ch <= L'9') || (ch >= L'a' && ch <= L'f')))
            return false;
    }
    return true;
}

} // namespace hrm
