#pragma once

// The JSON document types of the library, the IJsonObject contract and JSON text I/O.

#include <hrm_api/hrm_api_export.h>

#include <cwchar>
#include <iosfwd>
#include <stdexcept>
#include <string>

#ifndef RAPIDJSON_HAS_STDSTRING
#define RAPIDJSON_HAS_STDSTRING 1
#endif
#if defined(HRM_JSON_CHECKED) && !defined(RAPIDJSON_ASSERT)
// Checked builds (the test build) turn RapidJSON's assertions into exceptions, so that a
// Get...() without its Is...() check fails loudly instead of compiling away.
#define RAPIDJSON_ASSERT(x) \
    ((x) ? (void)0 : throw std::logic_error("RapidJSON assertion failed: " #x))
#endif

#include <rapidjson/document.h>
#include <rapidjson/encodings.h>

namespace hrm {

class MemberAccess; // the library's member layer

// Wide text in memory is the platform's native wide text: UTF-16 code units where wchar_t
// has 16 bits (Windows), Unicode code points where it has 32 (Linux).
#if WCHAR_MAX <= 0xFFFF
using JsonEncoding = rapidjson::UTF16<wchar_t>;
#else
using JsonEncoding = rapidjson::UTF32<wchar_t>;
#endif

using JsonAllocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;
using JsonDocument = rapidjson::GenericDocument<JsonEncoding, JsonAllocator, rapidjson::CrtAllocator>;
using JsonValue = rapidjson::GenericValue<JsonEncoding, JsonAllocator>;

// A class that converts itself to and from a JSON value.
class HRM_API IJsonObject
{
public:
    virtual ~IJsonObject() = default;
    // Fills this object from `value`; members that are missing or mistyped keep their values.
    virtual void readObject(const JsonValue& value) = 0;
    // Makes `value` describe this object, allocating from the owning document's allocator.
    virtual void writeObject(JsonValue& value, JsonAllocator& allocator) const = 0;

protected:
    IJsonObject() = default;
    IJsonObject(const IJsonObject&) = default;
    IJsonObject& operator=(const IJsonObject&) = default;
};

// Declares, inside a class, the list of its JSON members that the library's sources define once
// for both directions (reading and writing), and opens it to the member layer.
#define HRM_MEMBER_LIST                                                          \
    template <class Members>                                                     \
    void members(Members& m);                                                    \
    friend class ::hrm::MemberAccess

// Writes and reads whole JSON documents as wide text.
class HRM_API JsonTextIO
{
public:
    // Text nested deeper than this is refused while parsing (the top-level container is at
    // depth 1), so that the recursive consumers of a parsed document (the writer, copies,
    // comparisons) never meet more levels than the call stack holds.
    static constexpr size_t maxNestingDepth = 512;

    // Writes `document` at the stream's position, pretty (2-space indent, arrays on one line)
    // or compact. Throws std::runtime_error("Cannot write object into json document") when
    // the document holds a value JSON cannot express (a NaN or infinite number); nothing
    // reaches the stream in that case.
    static std::wostream& write(std::wostream& out, const JsonValue& document, bool pretty);

    // Writes `document` in the pretty form to the file `path`, replacing it. The text and the
    // path are converted to the narrow encoding (toNarrow). A file that cannot be opened or
    // written is not reported.
    static void writeToFile(const JsonValue& document, const std::wstring& path);
    static void writeToFile(const IJsonObject& object, const std::wstring& path);

    // Parses one JSON text from the rest of `in`. A parse error does not throw: the document
    // keeps RapidJSON's error code and offset (HasParseError, GetParseError, GetErrorOffset).
    // Text nested deeper than maxNestingDepth is a parse error too: the text is taken to end
    // just before the first container past the bound, so the error is RapidJSON's for text
    // cut short there (usually kParseErrorValueInvalid) at that container's offset, unless
    // the text has a syntax error before it. A number beyond the range of a double, which
    // RapidJSON's default parse would read as infinity (5e308), is a parse error as well:
    // kParseErrorNumberTooBig at the number. A NUL character is not white space: a NUL after
    // the value, like any other text there, is kParseErrorDocumentRootNotSingular at the NUL.
    // Numbers are read exactly (each is the double nearest to it), so a double written by
    // write() reads back with the same bits. Parsing itself never recurses.
    static std::wistream& read(std::wistream& in, JsonDocument& document);

    // The same operations on a wide string, for callers that already hold the text.
    static std::wstring toString(const JsonValue& document, bool pretty);
    static void fromString(const std::wstring& text, JsonDocument& document);
};

// The library's narrow encoding: the active ANSI code page on Windows, UTF-8 elsewhere.
// Characters the narrow encoding cannot represent become the platform's default character
// ('?' for UTF-8 output of a lone surrogate or an invalid code point).
HRM_API std::string toNarrow(const std::wstring& text);
HRM_API std::wstring toWide(const std::string& text);

// UTF-8 on every platform, for text that leaves the process as bytes (files, standard
// streams, glTF names). What UTF-8 cannot hold (a lone surrogate) becomes a replacement
// character ('?', or U+FFFD on Windows); each invalid byte of UTF-8 input becomes U+FFFD.
HRM_API std::string toUtf8(const std::wstring& text);
HRM_API std::wstring fromUtf8(const std::string& text);

} // namespace hrm
