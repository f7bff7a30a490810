#include <hrm_api/hrm_api_json.h>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <istream>
#include <ostream>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace hrm {
namespace {

using TextBuffer = rapidjson::GenericStringBuffer<JsonEncoding>;
using CompactWriter = rapidjson::Writer<TextBuffer, JsonEncoding, JsonEncoding>;
using PrettyWriter = rapidjson::PrettyWriter<TextBuffer, JsonEncoding, JsonEncoding>;

void writeText(TextBuffer& buffer, const JsonValue& document, bool pretty)
{
    bool written = false;
    if (pretty) {
        PrettyWriter writer(buffer);
        writer.SetIndent(' ', 2);
        writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
        written = document.Accept(writer);
    } else {
        CompactWriter writer(buffer);
        written = document.Accept(writer);
    }
    if (!written)
        throw std::runtime_error("Cannot write object into json document");
}

// The offset of the first '[' or '{' that opens a container deeper than the bound, or npos.
// Brackets inside strings do not count. For text that parses, the count is the real nesting
// depth; text the count stops early is incomplete at that point, so parsing it fails.
size_t firstTooDeep(const std::wstring& text, size_t bound)
{
    size_t depth = 0;
    bool inString = false;
    for (size_t i = 0; i < text.size() && text[i] != L'\0'; ++i) {
        const wchar_t ch = text[i];
        if (inString) {
            if (ch == L'\\')
                ++i; // the escaped character cannot end the string
            else if (ch == L'"')
                inString = false;
        } else if (ch == L'"') {
            inString = true;
        } else if (ch == L'[' || ch == L'{') {
            if (++depth > bound)
                return i;
        } else if ((ch == L']' || ch == L'}') && depth > 0) {
            --depth;
        }
    }
    return std::wstring::npos;
}

bool holdsInfinity(const JsonValue& value)
{
    if (value.IsArray())
        return std::any_of(value.Begin(), value.End(), holdsInfinity);
    if (value.IsObject())
        return std::any_of(value.MemberBegin(), value.MemberEnd(),
                           [](const JsonValue::Member& member) { return holdsInfinity(member.value); });
    return value.IsDouble() && !std::isfinite(value.GetDouble());
}

// Stops a parse at the first number that it reads as infinite.
struct FiniteNumbers : rapidjson::BaseReaderHandler<JsonEncoding, FiniteNumbers>
{
    bool Double(double number) { return std::isfinite(number); }
};

// The offset of the first number in `text` that RapidJSON reads as infinite, or npos.
size_t firstInfiniteNumber(const std::wstring& text)
{
    rapidjson::GenericReader<JsonEncoding, JsonEncoding> reader;
    rapidjson::GenericStringStream<JsonEncoding> stream(text.c_str());
    FiniteNumbers handler;
    const rapidjson::ParseResult result = reader.Parse<rapidjson::kParseIterativeFlag>(stream, handler);
    return result.Code() == rapidjson::kParseErrorTermination ? result.Offset() : std::wstring::npos;
}

// GenericStringBuffer::GetSize() counts bytes, not characters.
size_t lengthOf(const TextBuffer& buffer)
{
    return buffer.GetSize() / sizeof(TextBuffer::Ch);
}

} // namespace

std::wostream& JsonTextIO::write(std::wostream& out, const JsonValue& document, bool pretty)
{
    TextBuffer buffer;
    writeText(buffer, document, pretty);
    out.write(buffer.GetString(), static_cast<std::streamsize>(lengthOf(buffer)));
    return out;
}

std::wstring JsonTextIO::toString(const JsonValue& document, bool pretty)
{
    TextBuffer buffer;
    writeText(buffer, document, pretty);
    return std::wstring(buffer.GetString(), lengthOf(buffer));
}

void JsonTextIO::writeToFile(const JsonValue& document, const std::wstring& path)
{
    const std::string text = toNarrow(toString(document, true));
    std::ofstream file(toNarrow(path), std::ios::out | std::ios::trunc);
    file.write(text.data(), static_cast<std::streamsize>(text.size()));
    file.close();
}

void JsonTextIO::writeToFile(const IJsonObject& object, const std::wstring& path)
{
    JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    writeToFile(document, path);
}

std::wistream& JsonTextIO::read(std::wistream& in, JsonDocument& document)
{
    std::wstring text;
    if (in.good()) {
        wchar_t chunk[4096];
        std::streamsize count = 0;
        while ((count = in.rdbuf()->sgetn(chunk, sizeof chunk / sizeof chunk[0])) > 0)
            text.append(chunk, static_cast<size_t>(count));
    }
    in.setstate(std::ios::eofbit);
    fromString(text, document);
    return in;
}

void JsonTextIO::fromString(const std::wstring& text, JsonDocument& document)
{
    // Iterative parsing gives the results of the default (recursive) parse without using the
    // call stack for nesting. Like a stream parse, it stops at the first NUL character.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag;
    const size_t tooDeep = firstTooDeep(text, maxNestingDepth);
    if (tooDeep != std::wstring::npos) {
        document.Parse<flags>(text.substr(0, tooDeep).c_str());
        return;
    }
    document.Parse<flags>(text.c_str());
    if (!document.HasParseError() && holdsInfinity(document)) {
        // RapidJSON takes some numbers beyond the range of a double (5e308, 18e307) for
        // infinity, which JSON cannot express. In their place a number that it refuses as too
        // big (1e400) gives the document that error, at the same offset.
        document.Parse<flags>((text.substr(0, firstInfiniteNumber(text)) + L"1e400").c_str());
    }
}

#if defined(_WIN32)

std::string toNarrow(const std::wstring& text)
{
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    const int length = WideCharToMultiByte(CP_ACP, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(length), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.data(), size, result.data(), length, nullptr, nullptr);
    return result;
}

std::wstring toWide(const std::string& text)
{
    if (text.empty())
        return {};
    const int size = static_cast<int>(text.size());
    const int length = MultiByteToWideChar(CP_ACP, 0, text.data(), size, nullptr, 0);
    std::wstring result(static_cast<size_t>(length), L'\0');
    MultiByteToWideChar(CP_ACP, 0, text.data(), size, result.data(), length);
    return result;
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

#endif

} // namespace hrm
