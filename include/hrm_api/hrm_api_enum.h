#pragma once

/// @file
/// String forms of enumerations. Every enumeration that crosses the wire travels as a word.
///
/// enumToString: the word of a value; a value missing from the enumeration's table gives the
/// word of the table's smallest value. enumFromString: the value of a word, compared exactly;
/// a word missing from the table gives the value of the table's alphabetically first word
/// (ordered by UTF-16 code units), unless the enumeration names a value of its own for unknown
/// words (the result codes, command types and interfaces do: their unknown value). Neither
/// throws nor logs. The returned string lives as long
/// as the library is loaded.

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <string>

namespace hrm {

template <class E>
/// The word `value` travels as (see above for unknown values).
HRM_API const std::wstring& enumToString(E value);

template <class E>
/// The value the word `text` stands for (see above for unknown words).
HRM_API E enumFromString(const std::wstring& text);

/// enumFromString of the `length` characters at `text`, without making a string.
template <class E>
HRM_API E enumFromWord(const wchar_t* text, std::size_t length);

} // namespace hrm

/// Declares that enumeration E has a string table (defined in one of the library's sources).
/// Use at namespace scope after the enumeration's definition.
#define HRM_DECLARE_ENUM_STRINGS(E)                                              \
    template <>                                                                  \
    HRM_API const std::wstring& hrm::enumToString<E>(E value);                   \
    template <>                                                                  \
    HRM_API E hrm::enumFromString<E>(const std::wstring& text);                  \
    template <>                                                                  \
    HRM_API E hrm::enumFromWord<E>(const wchar_t* text, std::size_t length);
