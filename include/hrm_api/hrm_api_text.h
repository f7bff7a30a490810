#pragma once

/// @file
/// Conversions between the library's wide text and its narrow encoding.

#include <hrm_api/hrm_api_export.h>

#include <string>

namespace hrm {

/// Converts wide text to the library's narrow encoding: the active ANSI code page on Windows,
/// UTF-8 elsewhere. Characters the narrow encoding cannot represent become the platform's
/// default character ('?' for UTF-8 output of a lone surrogate or an invalid code point).
HRM_API std::string toNarrow(const std::wstring& text);
/// Converts text in the library's narrow encoding to wide text. Bytes that are not valid UTF-8
/// become U+FFFD (Linux); Windows converts as MultiByteToWideChar does.
HRM_API std::wstring toWide(const std::string& text);

/// Converts wide text to UTF-8 on every platform, for text that leaves the process as bytes
/// (files, standard streams, glTF names). What UTF-8 cannot hold (a lone surrogate) becomes a
/// replacement character ('?', or U+FFFD on Windows).
HRM_API std::string toUtf8(const std::wstring& text);
/// Converts UTF-8 to wide text on every platform; each invalid byte becomes U+FFFD.
HRM_API std::wstring fromUtf8(const std::string& text);

} // namespace hrm
