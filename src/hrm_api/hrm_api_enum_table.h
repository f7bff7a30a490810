#pragma once

// The one mechanism behind every enumeration's string form. An enumeration declares its
// (value, word) pairs once, in a source file, one line per value:
//
//   HRM_ENUM_STRINGS(EAcisHealType,
//       {EAcisHealType::Unknown, L"unknown"},
//       {EAcisHealType::None, L"none"},
//       ...)
//
// which also defines enumToString / enumFromString for it; the enumeration's header declares
// them with HRM_DECLARE_ENUM_STRINGS(E). A word missing from the table reads as the value of
// the table's alphabetically first word; a table that reads such words as one fixed value
// says so with HRM_ENUM_STRINGS_UNKNOWN_AS(E, E::Unknown, pairs...). Tables built by a rule
// specialise EnumNames<E> by hand (pairs() may return any range of (value, word) pairs,
// unknownWord() the fixed value or nothing) and then use HRM_ENUM_INSTANTIATE(E).

#include <hrm_api/hrm_api_enum.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace hrm {

// Orders wide strings by their UTF-16 code units compared as unsigned numbers, whatever the
// width of wchar_t (on Linux a code point above U+FFFF sorts as its surrogate pair would).
struct HRM_API Utf16Less
{
    bool operator()(std::wstring_view a, std::wstring_view b) const;
};

template <class E>
struct EnumNames; // specialised per enumeration: pairs() and unknownWord()

template <class E>
class EnumTable
{
public:
    // The word of `value`; a value missing from the table gives the word of its smallest value.
    static const std::wstring& toString(E value)
    {
        const auto& byValue = tables().byValue;
        const auto it = std::lower_bound(byValue.begin(), byValue.end(), static_cast<int32_t>(value),
                                         [](const auto& entry, int32_t key) { return entry.first < key; });
        return it != byValue.end() && it->first == static_cast<int32_t>(value) ? it->second : byValue.front().second;
    }

    // The value of the word in [text, text + length), compared exactly, without allocating; a
    // word missing from the table gives the table's rule for unknown words.
    static E fromString(const wchar_t* text, size_t length)
    {
        const Tables& t = tables();
        const std::wstring_view word(text, length);
        const auto it = std::lower_bound(t.byWord.begin(), t.byWord.end(), word,
                                         [](const auto& entry, std::wstring_view key) { return Utf16Less()(entry.first, key); });
        return static_cast<E>(it != t.byWord.end() && it->first == word ? it->second : t.unknownWord);
    }
    static E fromString(const std::wstring& text) { return fromString(text.data(), text.size()); }

private:
    struct Tables
    {
        std::vector<std::pair<int32_t, std::wstring>> byValue;   // ascending values
        std::vector<std::pair<std::wstring_view, int32_t>> byWord; // ascending words, viewing the pairs' own
        int32_t unknownWord = 0;
    };

    // Built on first use. Where a table repeats a value or a word, its first pair wins.
    static const Tables& tables()
    {
        static const Tables built = [] {
            Tables t;
            for (const auto& [value, word] : EnumNames<E>::pairs())
                t.byValue.emplace_back(static_cast<int32_t>(value), word);
            std::stable_sort(t.byValue.begin(), t.byValue.end(),
                             [](const auto& a, const auto& b) { return a.first < b.first; });
            std::vector<std::pair<std::wstring_view, int32_t>> words;
            for (const auto& [value, word] : EnumNames<E>::pairs())
                words.emplace_back(std::wstring_view(word), static_cast<int32_t>(value));
            t.byValue.erase(std::unique(t.byValue.begin(), t.byValue.end(),
                                        [](const auto& a, const auto& b) { return a.first == b.first; }),
                            t.byValue.end());
            t.byWord = keepFirstOfEachWord(std::move(words));
            const std::optional<E> fixed = EnumNames<E>::unknownWord();
            t.unknownWord = fixed ? static_cast<int32_t>(*fixed) : t.byWord.front().second;
            return t;
        }();
        return built;
    }

    static std::vector<std::pair<std::wstring_view, int32_t>> keepFirstOfEachWord(
        std::vector<std::pair<std::wstring_view, int32_t>> words)
    {
        std::stable_sort(words.begin(), words.end(), [](const auto& a, const auto& b) { return Utf16Less()(a.first, b.first); });
        words.erase(std::unique(words.begin(), words.end(), [](const auto& a, const auto& b) { return a.first == b.first; }),
                    words.end());
        return words;
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
    }                                                                            \
    template <>                                                                  \
    HRM_API E enumFromWord<E>(const wchar_t* text, std::size_t length)           \
    {                                                                            \
        return EnumTable<E>::fromString(text, length);                           \
    }

// Use inside namespace hrm. The pairs are string literals, so the words live as long as the library.
#define HRM_ENUM_STRINGS_UNKNOWN_AS(E, unknown, ...)                      \
    template <>                                                            \
    struct EnumNames<E>                                                    \
    {                                                                      \
        static const auto& pairs()                                         \
        {                                                                  \
            static const std::pair<E, const wchar_t*> table[] = {__VA_ARGS__}; \
            return table;                                                  \
        }                                                                  \
        static std::optional<E> unknownWord() { return unknown; }          \
    };                                                                     \
    HRM_ENUM_INSTANTIATE(E)

#define HRM_ENUM_STRINGS(E, ...) HRM_ENUM_STRINGS_UNKNOWN_AS(E, std::nullopt, __VA_ARGS__)
