#include <hrm_api/hrm_api_json.h>

#include "support/read_text.h"
#include "support/temp_dir.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <random>
#include <sstream>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace hrm {
namespace {

using test::parse;

std::wstring write(const JsonValue& document, bool pretty)
{
    std::wostringstream out;
    JsonTextIO::write(out, document, pretty);
    return out.str();
}

std::string readFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(file), {});
}

TEST(JsonTextIO, PrettyAndCompactForms)
{
    const JsonDocument document = parse(L"{\"a\":[1,2],\"b\":{\"c\":true}}");
    EXPECT_EQ(write(document, false), L"{\"a\":[1,2],\"b\":{\"c\":true}}");
    EXPECT_EQ(write(document, true), L"{\n  \"a\": [1, 2],\n  \"b\": {\n    \"c\": true\n  }\n}");

    // Arrays stay on one line even when they hold objects; empty containers stay closed.
    const JsonDocument nested = parse(L"{\"l\":[{\"x\":1},[]],\"e\":{}}");
    EXPECT_EQ(write(nested, true), L"{\n  \"l\": [{\n      \"x\": 1\n    }, []],\n  \"e\": {}\n}");

    EXPECT_EQ(write(JsonDocument(), true), L"null");
}

TEST(JsonTextIO, NumbersAndStringsAsTheWriterProducesThem)
{
    JsonDocument document(rapidjson::kArrayType);
    auto& a = document.GetAllocator();
    document.PushBack(1.0, a).PushBack(0.1, a).PushBack(-1e300, a).PushBack(5e-324, a);
    document.PushBack(-1, a).PushBack(std::numeric_limits<uint64_t>::max(), a);
    document.PushBack(JsonValue(L"q\"b\\s/\x01\n\x7f\x00e9\x4e2d", a), a);
    EXPECT_EQ(write(document, false),
              L"[1.0,0.1,-1e300,5e-324,-1,18446744073709551615,\"q\\\"b\\\\s/\\u0001\\n\x7f\x00e9\x4e2d\"]");
}

TEST(JsonTextIO, WriterFailureLeavesTheStreamUntouched)
{
    JsonDocument document(rapidjson::kObjectType);
    document.AddMember(L"ok", 1, document.GetAllocator());
    document.AddMember(L"bad", std::nan(""), document.GetAllocator());
    std::wostringstream out;
    out << L"before";
    try {
        JsonTextIO::write(out, document, true);
        FAIL() << "expected an exception";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Cannot write object into json document");
    }
    EXPECT_EQ(out.str(), L"before");
}

TEST(JsonTextIO, ParseErrorsAreLeftInTheDocument)
{
    JsonDocument document;
    std::wistringstream empty(L"");
    JsonTextIO::read(empty, document);
    EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorDocumentEmpty);

    std::wistringstream trailing(L"{} x");
    JsonTextIO::read(trailing, document);
    EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorDocumentRootNotSingular);
    EXPECT_EQ(document.GetErrorOffset(), 3u);

    for (const wchar_t* bad : {L"[1,]", L"{\"a\":NaN}", L"// c\n{}", L"[1 2]"}) {
        std::wistringstream in(bad);
        JsonTextIO::read(in, document);
        EXPECT_TRUE(document.HasParseError()) << bad;
    }

    std::wistringstream good(L" \n{\"k\":[1.5,\"\\ud83d\\ude00\"]}  \n");
    JsonTextIO::read(good, document);
    ASSERT_FALSE(document.HasParseError());
    EXPECT_TRUE(document[L"k"][0].IsDouble());
    EXPECT_EQ(write(document, false), write(parse(L"{\"k\":[1.5,\"\U0001F600\"]}"), false));
}

TEST(JsonTextIO, ANulAfterTheValueIsNotWhiteSpace)
{
    using namespace std::string_literals;
    for (const auto& [text, offset] : {std::pair(L"{\"code\":\"ok\"}\0{not json"s, 13u), std::pair(L"123\0garbage ]]]"s, 3u),
                                       std::pair(L"[1] \0"s, 4u), std::pair(L"[1]\0[[[[[[[[[[[[[[[[[["s, 3u)}) {
        JsonDocument document;
        std::wistringstream in(text);
        JsonTextIO::read(in, document);
        EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorDocumentRootNotSingular) << offset;
        EXPECT_EQ(document.GetErrorOffset(), offset);
    }
    // A NUL inside the value or before it stays an error of its own.
    for (const std::wstring& text : {L"[1,\0]"s, L"\0{}"s, L"\"a\0\""s}) {
        JsonDocument document;
        JsonTextIO::fromString(text, document);
        EXPECT_TRUE(document.HasParseError());
    }
}

TEST(JsonTextIO, EveryFiniteDoubleReadsBackWithTheSameBits)
{
    std::mt19937_64 random(20240610);
    size_t changed = 0;
    std::wstring first;
    for (int round = 0; round < 10; ++round) {
        JsonDocument written(rapidjson::kArrayType);
        while (written.Size() < 100000) {
            const uint64_t bits = random();
            double number = 0;
            std::memcpy(&number, &bits, sizeof number);
            if (std::isfinite(number))
                written.PushBack(number, written.GetAllocator());
        }
        const JsonDocument read = parse(JsonTextIO::toString(written, false));
        ASSERT_EQ(read.Size(), written.Size());
        for (rapidjson::SizeType i = 0; i < written.Size(); ++i) {
            const double expected = written[i].GetDouble();
            const double actual = read[i].IsDouble() ? read[i].GetDouble() : std::nan("");
            if (std::memcmp(&expected, &actual, sizeof expected) != 0 && changed++ == 0)
                first = JsonTextIO::toString(written[i], false);
        }
    }
    EXPECT_EQ(changed, 0u) << "first changed: " << toNarrow(first);
}

TEST(JsonTextIO, NumbersBeyondADoubleAreParseErrors)
{
    // RapidJSON's own check refuses 1e400 but reads these as infinity, which no writer takes.
    for (const auto& [text, offset] : {std::pair(L"[1, 5e308]", 4u), std::pair(L"{\"a\":-18e307}", 5u),
                                       std::pair(L"[\"5e308\", 50.21e308]", 10u), std::pair(L"1e400", 0u)}) {
        JsonDocument document;
        JsonTextIO::fromString(text, document);
        EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorNumberTooBig) << text;
        EXPECT_EQ(document.GetErrorOffset(), offset) << text;
    }
    const JsonDocument largest = parse(L"[1e308, -1.5e308, 4.9e-324, 1e-400]");
    EXPECT_EQ(write(largest, false), L"[1e308,-1.5e308,5e-324,0.0]");
}

TEST(JsonTextIO, NestingIsBounded)
{
    const size_t limit = JsonTextIO::maxNestingDepth;
    // Arrays and objects in turn: [{"k":[{"k":...}]}]
    const auto opening = [](size_t depth) {
        std::wstring text;
        for (size_t i = 0; i < depth; ++i)
            text += i % 2 ? L"{\"k\":" : L"[";
        return text;
    };
    const auto nested = [&](size_t depth, const std::wstring& inner = L"0") {
        std::wstring text = opening(depth) + inner;
        for (size_t i = depth; i-- > 0;)
            text += i % 2 ? L"}" : L"]";
        return text;
    };

    // The deepest text accepted goes through the (recursive) writer and back.
    const std::wstring deepest = nested(limit);
    EXPECT_EQ(write(parse(deepest), false), deepest);

    // One level more, or a million, is a parse error at the first container too deep; the
    // document stays null, so writing or destroying it is safe.
    for (const size_t depth : {limit + 1, size_t(1000000)}) {
        JsonDocument document;
        JsonTextIO::fromString(nested(depth), document);
        EXPECT_EQ(document.GetParseError(), rapidjson::kParseErrorValueInvalid) << depth;
        EXPECT_EQ(document.GetErrorOffset(), opening(limit).size());
        EXPECT_EQ(write(document, false), L"null");
    }

    // Brackets in strings, escaped quotes included, are text, not nesting; a syntax error
    // before the bound is reported as itself.
    const std::wstring brackets(100000, L'[');
    EXPECT_FALSE(parse(nested(limit, L"\"\\\"" + brackets + L"\"")).HasParseError());
    JsonDocument broken;
    JsonTextIO::fromString(L"[1 " + nested(limit + 1), broken);
    EXPECT_EQ(broken.GetParseError(), rapidjson::kParseErrorArrayMissCommaOrSquareBracket);
    EXPECT_EQ(broken.GetErrorOffset(), 3u);
}

TEST(JsonTextIO, WriteToFile)
{
    const test::TempDir dir("json_text");
    const auto path = dir / "doc.json";

    JsonDocument document = parse(L"{\"name\":\"caf\x00e9\",\"n\":[1,2]}");
    JsonTextIO::writeToFile(document, path.wstring());
#if defined(_WIN32)
    EXPECT_EQ(readFile(path), toNarrow(L"{\r\n  \"name\": \"caf\x00e9\",\r\n  \"n\": [1, 2]\r\n}"));
#else
    EXPECT_EQ(readFile(path), "{\n  \"name\": \"caf\xc3\xa9\",\n  \"n\": [1, 2]\n}");
#endif

    // A second write replaces the file; an object writes itself into a fresh document.
    struct Flag : IJsonObject
    {
        void readObject(const JsonValue&) override {}
        void writeObject(JsonValue& value, JsonAllocator&) const override { value.SetBool(true); }
    };
    JsonTextIO::writeToFile(Flag(), path.wstring());
    EXPECT_EQ(readFile(path), "true");

    // The path goes through the same narrow encoding as the text.
    JsonTextIO::writeToFile(Flag(), dir.path().wstring() + L"/caf\x00e9.json");
    EXPECT_EQ(readFile(dir.path() / std::filesystem::u8path("caf\xc3\xa9.json")), "true");

    // A directory that does not exist: no exception, nothing created.
    const auto missing = dir / "no_such_dir" / "doc.json";
    EXPECT_NO_THROW(JsonTextIO::writeToFile(document, missing.wstring()));
    EXPECT_FALSE(std::filesystem::exists(missing.parent_path()));
}

TEST(NarrowText, Utf8)
{
#if defined(_WIN32)
    GTEST_SKIP() << "the narrow encoding on Windows is the active ANSI code page";
#else
    EXPECT_EQ(toNarrow(L"a\x00e9\x4e2d\U0001F600"), "a\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80");
    EXPECT_EQ(toNarrow(std::wstring(1, static_cast<wchar_t>(0xD800))), "?");
    EXPECT_EQ(toWide("a\xc3\xa9\xe4\xb8\xad\xf0\x9f\x98\x80"), L"a\x00e9\x4e2d\U0001F600");
    // Broken sequences become U+FFFD without swallowing what follows.
    EXPECT_EQ(toWide("\xc3" "a\xff\xe4\xb8"), L"\xfffd" L"a\xfffd\xfffd\xfffd");
    EXPECT_EQ(toWide("\xc0\x80"), L"\xfffd\xfffd"); // overlong
    EXPECT_EQ(toNarrow(L""), "");
    EXPECT_EQ(toWide(""), L"");
#endif
}

TEST(NarrowText, AnsiCodePage)
{
#if !defined(_WIN32)
    GTEST_SKIP() << "the narrow encoding outside Windows is UTF-8";
#else
    if (GetACP() != 1252)
        GTEST_SKIP() << "the expected bytes are those of code page 1252, the active one is " << GetACP();
    EXPECT_EQ(toNarrow(L"caf\x00e9 \x20ac"), "caf\xe9 \x80");
    EXPECT_EQ(toWide("caf\xe9 \x80"), L"caf\x00e9 \x20ac");
    EXPECT_EQ(toNarrow(L"a\x4e2d"), "a?"); // not in the code page
    EXPECT_EQ(toNarrow(L""), "");
    EXPECT_EQ(toWide(""), L"");
#endif
}

// UTF-8 whatever the narrow encoding is: characters beyond the code page and beyond 16 bits
// survive both ways, and bad bytes read as U+FFFD.
TEST(NarrowText, Utf8OnEveryPlatform)
{
    EXPECT_EQ(toUtf8(L"caf\x00e9 \x4e2d \U0001F600"), "caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9F\x98\x80");
    EXPECT_EQ(fromUtf8("caf\xC3\xA9 \xE4\xB8\xAD \xF0\x9F\x98\x80"), L"caf\x00e9 \x4e2d \U0001F600");
    EXPECT_EQ(fromUtf8("a\xFF"), L"a\xFFFD");
    EXPECT_EQ(toUtf8(L""), "");
}

} // namespace
} // namespace hrm
