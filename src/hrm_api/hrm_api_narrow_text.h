#pragma once

// Narrow text for names the system resolves (shared-memory objects), inside the library.

#include <string>

namespace hrm {

// Sets `narrow` to `text` in the library's narrow encoding (toNarrow), converted without any
// "best fit" look-alike (on Windows a fullwidth solidus would otherwise become '/'), and
// answers whether the conversion is exact: whether the narrow text reads back as `text`.
bool toNarrowExactly(const std::wstring& text, std::string& narrow);

} // namespace hrm
