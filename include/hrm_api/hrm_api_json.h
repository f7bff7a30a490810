#pragma once

/// @file
/// The JSON document types of the library, the IJsonObject contract and JSON text I/O.

#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_text.h> // toNarrow, toWide: writeToFile writes narrow text

#include <cwchar>
#include <iosfwd>
#include <stdexcept>
#include <string>

// RapidJSON's templates are compiled into the library and into every program that uses it, so
// both must see the same settings. The hrm_api::hrm_api CMake target defines them for its
// consumers before any header; a program built otherwise gets them here, or a clear error when
// RapidJSON came first with other settings.
#if !defined(RAPIDJSON_HAS_STDSTRING)
#define RAPIDJSON_HAS_STDSTRING 1
#elif RAPIDJSON_HAS_STDSTRING != 1
#error "hrm_api needs RAPIDJSON_HAS_STDSTRING=1 wherever RapidJSON is included: link the hrm_api::hrm_api target, or define it for the whole program"
#endif
#if defined(HRM_JSON_CHECKED)
// The library's test build turns RapidJSON's assertions into exceptions, so that a Get...()
// without its Is...() check fails a test instead of compiling away. Only the build tree sets it.
#if defined(RAPIDJSON_VERSION_STRING)
#error "HRM_JSON_CHECKED: include an hrm_api header before any RapidJSON header, so that RapidJSON sees the throwing assertion"
#endif
#define RAPIDJSON_ASSERT(x) \
    ((x) ? (void)0 : throw std::logic_error("RapidJSON assertion failed: " #x))
#endif

#include <rapidjson/document.h>
#include <rapidjson/encodings.h>

namespace hrm {

class MemberAccess; ///< the library's member layer

/// Wide text in memory is the platform's native wide text: UTF-16 code units where wchar_t
/// has 16 bits (Windows), Unicode code points where it has 32 (Linux).
#if WCHAR_MAX <= 0xFFFF
using JsonEncoding = rapidjson::UTF16<wchar_t>;
#else
using JsonEncoding = rapidjson::UTF32<wchar_t>;
#endif

/// The allocator of every JSON document's values and strings (a memory pool).
using JsonAllocator = rapidjson::MemoryPoolAllocator<rapidjson::CrtAllocator>;
/// A whole JSON document: the root value and the pool that owns its values.
using JsonDocument = rapidjson::GenericDocument<JsonEncoding, JsonAllocator, rapidjson::CrtAllocator>;
/// A JSON value whose memory belongs to a document's pool.
using JsonValue = rapidjson::GenericValue<JsonEncoding, JsonAllocator>;

/// A class that converts itself to and from a JSON value.
class HRM_API IJsonObject
{
public:
    virtual ~IJsonObject() = default;
    /// Fills this object from `value`; members that are missing or mistyped keep their values.
    virtual void readObject(const JsonValue& value) = 0;
    /// Makes `value` describe this object, allocating from the owning document's allocator.
    virtual void writeObject(JsonValue& value, JsonAllocator& allocator) const = 0;

protected:
    IJsonObject() = default;
    /// Copying is for the derived classes.
    IJsonObject(const IJsonObject&) = default;
    /// Copying is for the derived classes.
    IJsonObject& operator=(const IJsonObject&) = default;
};

/// Declares, inside a class, the list of its JSON members that the library's sources define once
/// for both directions (reading and writing), and opens it to the member layer.
#define HRM_MEMBER_LIST                                                          \
    template <class Members>                                                     \
    void members(Members& m);                                                    \
    friend class ::hrm::MemberAccess

/// Writes and reads whole JSON documents as wide text.
class HRM_API JsonTextIO
{
public:
    /// Text nested deeper than this is refused while parsing (the top-level container is at
    /// depth 1), so that the recursive consumers of a parsed document (the writer, copies,
    /// comparisons) never meet more levels than the call stack holds.
    static constexpr size_t maxNestingDepth = 512;

    /// Writes `document` at the stream's position, pretty (2-space indent, arrays on one line)
    /// or compact. Throws std::runtime_error("Cannot write object into json document") when
    /// the document holds a value JSON cannot express (a NaN or infinite number); nothing
    /// reaches the stream in that case.
    static std::wostream& write(std::wostream& out, const JsonValue& document, bool pretty);

    /// Writes `document` in the pretty form to the file `path`, replacing it. The text and the
    /// path are converted to the narrow encoding (toNarrow). A file that cannot be opened or
    /// written is not reported.
    static void writeToFile(const JsonValue& document, const std::wstring& path);
    /// The same for the JSON of `object`.
    static void writeToFile(const IJsonObject& object, const std::wstring& path);

    /// Parses one JSON text from the rest of `in`. A parse error does not throw: the document
    /// keeps RapidJSON's error code and offset (HasParseError, GetParseError, GetErrorOffset).
    /// Text nested deeper than maxNestingDepth is a parse error too: the text is taken to end
    /// just before the first container past the bound, so the error is RapidJSON's for text
    /// cut short there (usually kParseErrorValueInvalid) at that container's offset, unless
    /// the text has a syntax error before it. A number beyond the range of a double, which
    /// RapidJSON's default parse would read as infinity (5e308), is a parse error as well:
    /// kParseErrorNumberTooBig at the number. A NUL character is not white space: a NUL after
    /// the value, like any other text there, is kParseErrorDocumentRootNotSingular at the NUL.
    /// Numbers are read exactly (each is the double nearest to it), so a double written by
    /// write() reads back with the same bits. Parsing itself never recurses.
    static std::wistream& read(std::wistream& in, JsonDocument& document);

    /// The same operations on a wide string, for callers that already hold the text.
    static std::wstring toString(const JsonValue& document, bool pretty);
    /// The same as read() on a wide string.
    static void fromString(const std::wstring& text, JsonDocument& document);
};

} // namespace hrm
