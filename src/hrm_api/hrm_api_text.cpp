#include <hrm_api/hrm_api_text.h>

#include "hrm_api/hrm_api_narrow_text.h"

#include <type_traits>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace hrm {

#if defined(_WIN32)

namespace {

std::string narrowed(const std::wstring& text, UINT codePage, DWORD flags)
{
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(codePage, flags, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(codePage, flags, text.data(), size, result.data(), length, nullptr, nullptr);
    return result;
}

std::wstring widened(const std::string& text, UINT codePage)
{
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(codePage, 0, text.data(), size, nullptr, 0);
    std::wstring result(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(codePage, 0, text.data(), size, result.data(), length);
    return result;
}

} // namespace

std::string toNarrow(const std::wstring& text)
{
    return narrowed(text, CP_ACP, 0);
}

bool toNarrowExactly(const std::wstring& text, std::string& narrow)
{
    // UTF-8 as the active code page has no best fit and refuses the flag.
    narrow = narrowed(text, CP_ACP, GetACP() == CP_UTF8 ? 0 : WC_NO_BEST_FIT_CHARS);
    return toWide(narrow) == text;
}

std::wstring toWide(const std::string& text)
{
    return widened(text, CP_ACP);
}

std::string toUtf8(const std::wstring& text)
{
    return narrowed(text, CP_UTF8, 0);
}

std::wstring fromUtf8(const std::string& text)
{
    return widened(text, CP_UTF8);
}

#else

std::string toNarrow(const std::wstring& text)
{
    std::string result;
    result.reserve(text.size());
    for (const wchar_t ch : text) {
        const auto cp = static_cast<unsigned long>(static_cast<std::make_unsigned_t<wchar_t>>(ch));
        if (cp < 0x80) {
            result += static_cast<char>(cp);
        } else if (cp < 0x800) {
            result += static_cast<char>(0xC0 | (cp >> 6));
            result += static_cast<char>(0x80 | (cp & 0x3F));
        } else if (cp < 0x10000 && (cp < 0xD800 || cp > 0xDFFF)) {
            result += static_cast<char>(0xE0 | (cp >> 12));
            result += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
            result += static_cast<char>(0x80 | (cp & 0x3F));
        } else if (cp >= 0x10000 && cp <= 0x10FFFF) {
            result += static_cast<char>(0xF0 | (cp >> 18));
            result += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
            result += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
            result += static_cast<char>(0x80 | (cp & 0x3F));
        } else {
            result += '?'; // a lone surrogate or no code point at all
        }
    }
    return result;
}

bool toNarrowExactly(const std::wstring& text, std::string& narrow)
{
    narrow = toNarrow(text); // UTF-8 has no best fit
    return toWide(narrow) == text;
}

std::wstring toWide(const std::string& text)
{
    constexpr wchar_t replacement = 0xFFFD;
    std::wstring result;
    result.reserve(text.size());
    size_t i = 0;
    while (i < text.size()) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const size_t length = lead < 0x80 ? 1 : (lead >> 5) == 0x6 ? 2 : (lead >> 4) == 0xE ? 3 : (lead >> 3) == 0x1E ? 4 : 0;
        if (length == 0 || i + length > text.size()) {
            result += replacement;
            ++i;
            continue;
        }
        unsigned long cp = length == 1 ? lead : lead & (0x7F >> length);
        bool valid = true;
        for (size_t k = 1; k < length; ++k) {
            const auto next = static_cast<unsigned char>(text[i + k]);
            valid = valid && (next & 0xC0) == 0x80;
            cp = (cp << 6) | (next & 0x3F);
        }
        static constexpr unsigned long smallest[] = {0, 0, 0x80, 0x800, 0x10000};
        valid = valid && cp >= smallest[length] && cp <= 0x10FFFF && (cp < 0xD800 || cp > 0xDFFF);
        result += valid ? static_cast<wchar_t>(cp) : replacement;
        i += valid ? length : 1;
    }
    return result;
}

std::string toUtf8(const std::wstring& text)
{
    return toNarrow(text);
}

std::wstring fromUtf8(const std::string& text)
{
    return toWide(text);
}

#endif

} // namespace hrm
