#include <hrm_api/hrm_api_json.h>

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <fstream>
#include <istream>
#include <ostream>

namespace hrm {
namespace {

using TextBuffer = rapidjson::GenericStringBuffer<JsonEncoding>;
using TextStream = rapidjson::GenericStringStream<JsonEncoding>;
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

// Iterative parsing gives the results of the default (recursive) parse without using the call
// stack for nesting.
constexpr unsigned parseFlags = rapidjson::kParseIterativeFlag;

// The decimal order of magnitude of a (valid JSON) number that is not zero: n for a number in
// [10^n, 10^(n+1)), within a few units for exponents in the billions.
long long orderOfMagnitude(const std::string& number)
{
    const auto digit = [&](size_t i) { return i < number.size() && number[i] >= '0' && number[i] <= '9'; };
    size_t i = number[0] == '-' ? 1 : 0;
    long long integerDigits = 0;
    for (; digit(i); ++i)
        integerDigits += integerDigits > 0 || number[i] != '0';
    long long leadingZeros = 0;
    if (i < number.size() && number[i] == '.') {
        for (++i; digit(i) && number[i] == '0'; ++i)
            ++leadingZeros;
        while (digit(i))
            ++i;
    }
    long long exponent = 0;
    if (i < number.size()) { // 'e' or 'E'
        const bool negative = number[++i] == '-';
        for (i += number[i] == '-' || number[i] == '+'; digit(i); ++i)
            exponent = std::min(exponent * 10 + (number[i] - '0'), 1000000000LL);
        exponent = negative ? -exponent : exponent;
    }
    return (integerDigits > 0 ? integerDigits - 1 : -leadingZeros - 1) + exponent;
}

// Hands RapidJSON's events on to a document, reading every double itself from its text, so
// that it is the double nearest to the text and a double written as text reads back with the
// same bits. RapidJSON's default parse is a unit in the last place off for about one double in
// six, and the full-precision parse of the RapidJSON version we build on (1.1.0) reads out of
// bounds for some numbers (63.01262705713586618471e-333) and gives garbage for others (5e308
// reads as -8.7e-309). A number beyond the range of a double stops the parse.
class Builder
{
public:
    using Ch = JsonEncoding::Ch;
    using SizeType = rapidjson::SizeType;

    Builder(JsonDocument& document, const wchar_t* text, const TextStream& stream)
        : m_document(document), m_text(text), m_stream(stream)
    {
    }

    // The offset of the number beyond the range of a double that stopped the parse, or npos.
    size_t tooBig() const { return m_tooBig; }

    // RapidJSON has checked the number's syntax and not yet moved the stream past it (it
    // parses from a copy of the stream), so the number starts at the stream's position.
    bool Double(double approximation)
    {
        const size_t start = m_stream.Tell();
        size_t end = start;
        while (isNumberCharacter(m_text[end]))
            ++end;
        if (end == start)
            return m_document.Double(approximation); // not where the number was expected
        m_number.resize(end - start); // ASCII, copied in place: no allocation once the string has room
        std::transform(m_text + start, m_text + end, m_number.begin(), [](wchar_t ch) { return static_cast<char>(ch); });
        double number = 0;
        if (std::from_chars(m_number.data(), m_number.data() + m_number.size(), number).ec == std::errc())
            return m_document.Double(number);
        if (orderOfMagnitude(m_number) < 0) // too small for a double: zero, as in the default parse
            return m_document.Double(m_number[0] == '-' ? -0.0 : 0.0);
        m_tooBig = start;
        return false;
    }

    bool Null() { return m_document.Null(); }
    bool Bool(bool flag) { return m_document.Bool(flag); }
    bool Int(int number) { return m_document.Int(number); }
    bool Uint(unsigned number) { return m_document.Uint(number); }
    bool Int64(int64_t number) { return m_document.Int64(number); }
    bool Uint64(uint64_t number) { return m_document.Uint64(number); }
    bool RawNumber(const Ch* text, SizeType length, bool copy) { return m_document.RawNumber(text, length, copy); }
    bool String(const Ch* text, SizeType length, bool copy) { return m_document.String(text, length, copy); }
    bool StartObject() { return m_document.StartObject(); }
    bool Key(const Ch* text, SizeType length, bool copy) { return m_document.Key(text, length, copy); }
    bool EndObject(SizeType members) { return m_document.EndObject(members); }
    bool StartArray() { return m_document.StartArray(); }
    bool EndArray(SizeType elements) { return m_document.EndArray(elements); }

private:
    static bool isNumberCharacter(wchar_t ch)
    {
        return (ch >= L'0' && ch <= L'9') || ch == L'.' || ch == L'e' || ch == L'E' || ch == L'-' || ch == L'+';
    }

    JsonDocument& m_document;
    const wchar_t* const m_text;
    const TextStream& m_stream;
    std::string m_number;
    size_t m_tooBig = std::wstring::npos;
};

// Parses `text` into `document` through a Builder. A parse error leaves the document as it was
// (without the error); `tooBig` is then the offset of a number beyond the range of a double,
// if that was the error, or npos.
rapidjson::ParseResult parseInto(const wchar_t* text, JsonDocument& document, size_t& tooBig)
{
    if (document.HasParseError())
        document.Parse<parseFlags>(L"null"); // clears the error of an earlier parse; nothing else does
    TextStream stream(text);
    rapidjson::GenericReader<JsonEncoding, JsonEncoding> reader;
    rapidjson::ParseResult result;
    Builder builder(document, text, stream);
    auto generate = [&](JsonDocument&) {
        result = reader.Parse<parseFlags>(stream, builder);
        return !result.IsError();
    };
    document.Populate(generate);
    tooBig = builder.tooBig();
    return result;
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
    // RapidJSON takes the first NUL for the end of the text. A NUL is not white space, and no
    // JSON text holds one: in its place a visible character that no JSON value can take in
    // gives the text its error (text after the value, at the NUL, when the value is complete).
    const size_t nul = text.find(L'\0');
    const std::wstring cut = nul == std::wstring::npos ? std::wstring() : text.substr(0, nul) + L"x";
    const std::wstring& parsed = nul == std::wstring::npos ? text : cut;

    const size_t tooDeep = firstTooDeep(parsed, maxNestingDepth);
    if (tooDeep != std::wstring::npos) {
        document.Parse<parseFlags>(parsed.substr(0, tooDeep).c_str());
        return;
    }
    size_t tooBig = std::wstring::npos;
    if (!parseInto(parsed.c_str(), document, tooBig).IsError())
        return;
    // The document takes its parse error from a parse of its own (RapidJSON offers no other
    // way). In place of a number beyond the range of a double, one that RapidJSON refuses as
    // too big (1e400) gives it that error at the same offset.
    if (tooBig != std::wstring::npos)
        document.Parse<parseFlags>((parsed.substr(0, tooBig) + L"1e400").c_str());
    else
        document.Parse<parseFlags>(parsed.c_str());
}

} // namespace hrm
