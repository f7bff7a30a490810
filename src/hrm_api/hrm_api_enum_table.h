#pragma once

// The one mechanism behind every enumeration's string form. An enumeration declares its
// (value, word) pairs once, in a source file:
//
//   HRM_ENUM_STRINGS(EAcisHealType,
//       {{EAcisHealType::Unknown, L"unknown"}, {EAcisHealType::None, L"none"}, ...})
//
// which also defines enumToString / enumFromString for it; the enumeration's header declares
// them with HRM_DECLARE_ENUM_STRINGS(E). Tables built by a rule
// specialise EnumNames<E> by hand (pairs() may return any range of (value, word) pairs) and
// then use HRM_ENUM_INSTANTIATE(E).

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace hrm {

// Orders wide strings by their UTF-16 code units compared as unsigned numbers, whatever the
// width of wchar_t (on Linux a code point above U+FFFF sorts as its surrogate pair would).
struct HRM_API Utf16Less
{
    bool operator()(const std::wstring& a, const std::wstring& b) const;
};

template <class E>
struct EnumNames; // specialised per enumeration: static const auto& pairs();

template <class E>
class EnumTable
{
public:
    static const std::wstring& toString(E value)
    {
        const auto& map = byValue();
        const auto it = map.find(static_cast<int32_t>(value));
        return it != map.end() ? it->second : map.begin()->second;
    }

    static E fromString(const std::wstring& text)
    {
        const auto& map = byString();
        const auto it = map.find(text);
        return static_cast<E>(it != map.end() ? it->second : map.begin()->second);
    }

private:
    // Each map is built on first use; where a table repeats a key, its first pair wins.
    static const std::map<int32_t, std::wstring>& byValue()
    {
        static const auto map = [] {
            std::map<int32_t, std::wstring> result;
            for (const auto& [value, text] : EnumNames<E>::pairs())
                result.emplace(static_cast<int32_t>(value), text);
            return result;
        }();
        return map;
    }

    static const std::map<std::wstring, int32_t, Utf16Less>& byString()
    {
        static const auto map = [] {
            std::map<std::wstring, int32_t, Utf16Less> result;
            for (const auto& [value, text] : EnumNames<E>::pairs())
                result.emplace(text, static_cast<int32_t>(value));
            return result;
        }();
        return map;
    }
};

} // namespace hrm

#define HRM_ENUM_INSTANTIATE(E)                                                  \
    template <>                                                                  \
    HRM_API const std::wstring& enumToString<E>(E value)                         \
    {                                                                            \
        return EnumTable<E>::toString(value);                                    \
    }                                                                            \
    template <>                                                                  \
    HRM_API E enumFromString<E>(const std::wstring& text)                        \
    {                                                                            \
        return EnumTable<E>::fromString(text);                                   \
    }

// Use inside namespace hrm.
#define HRM_ENUM_STRINGS(E, ...)                                           \
    template <>                                                            \
    struct EnumNames<E>                                                    \
    {                                                                      \
        static const auto& pairs()                                         \
        {                                                                  \
            static const std::pair<E, const wchar_t*> table[] = __VA_ARGS__; \
            return table;                                                  \
        }                                                                  \
    };                                                                     \
    HRM_ENUM_INSTANTIATE(E)
