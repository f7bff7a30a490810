#include <hrm_api/hrm_api_json_binary.h>

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <tuple>

namespace hrm {
namespace {

using Bytes = std::vector<char>;

Bytes bytes(std::initializer_list<int> values)
{
    Bytes result;
    for (const int value : values)
        result.push_back(static_cast<char>(value));
    return result;
}

// A tag and an 8-byte length, followed by `rest`.
Bytes head(int tag, uint64_t length, std::initializer_list<int> rest = {})
{
    Bytes result{static_cast<char>(tag)};
    for (int k = 0; k < 8; ++k)
        result.push_back(static_cast<char>(length >> (8 * k)));
    for (const int value : rest)
        result.push_back(static_cast<char>(value));
    return result;
}

Bytes encoded(const JsonValue& value)
{
    Bytes out;
    JsonBinaryIO::encode(value, out);
    return out;
}

std::wstring wide(const JsonValue& value)
{
    return std::wstring(value.GetString(), value.GetStringLength());
}

Bytes readBinaryFile(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(file), {});
}

// Decodes all of `data`, failing the test if bytes are left over.
JsonDocument decoded(const Bytes& data)
{
    JsonDocument document;
    EXPECT_EQ(JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator()), data.size());
    return document;
}

template <typename Exception>
void expectFailure(const Bytes& data, const std::string& message)
{
    JsonDocument document;
    try {
        JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator());
        ADD_FAILURE() << "expected \"" << message << "\"";
    } catch (const Exception& error) {
        EXPECT_EQ(error.what(), message);
    }
}

Bytes nestedArrays(size_t depth)
{
    Bytes data;
    for (size_t i = 0; i < depth; ++i) {
        const Bytes array = head(4, 9 * (depth - 1 - i));
        data.insert(data.end(), array.begin(), array.end());
    }
    return data;
}

TEST(JsonBinaryIO, GoldenVectorsInBothDirections)
{
    const std::filesystem::path folder = std::filesystem::path(HRM_TEST_GOLDEN_DIR) / "binary";
    size_t cases = 0;
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
        if (entry.path().extension() != ".json")
            continue;
        SCOPED_TRACE(entry.path().filename().string());
        ++cases;
        std::ifstream textFile(entry.path());
        const std::string text((std::istreambuf_iterator<char>(textFile)), {});
        JsonDocument source;
        JsonTextIO::fromString(toWide(text), source);
        ASSERT_FALSE(source.HasParseError());
        const Bytes golden = readBinaryFile(std::filesystem::path(entry.path()).replace_extension(".bin"));

        EXPECT_EQ(encoded(source), golden);
        EXPECT_EQ(encoded(decoded(golden)), golden);

        // Encoding appends; the patched lengths must not depend on where the value starts.
        Bytes appended = bytes({'x', 'y'});
        JsonBinaryIO::encode(source, appended);
        EXPECT_EQ(Bytes(appended.begin() + 2, appended.end()), golden);

        // Every cut short of the end is a truncation, never a value.
        for (size_t size = 0; size < golden.size(); ++size) {
            JsonDocument partial;
            EXPECT_THROW(JsonBinaryIO::decode(golden.data(), size, partial, partial.GetAllocator()),
                         std::length_error) << "size " << size;
        }
    }
    EXPECT_GE(cases, 12u);
}

TEST(JsonBinaryIO, NumberKindsAndScalarsSurviveTheRoundTrip)
{
    JsonDocument source(rapidjson::kArrayType);
    auto& a = source.GetAllocator();
    JsonValue storedAsUint64;
    storedAsUint64.SetUint64(5); // still an int by its value
    source.PushBack(storedAsUint64, a).PushBack(5.0, a).PushBack(-1, a).PushBack(2147483648u, a);
    source.PushBack(std::numeric_limits<int64_t>::min(), a).PushBack(std::numeric_limits<uint64_t>::max(), a);
    source.PushBack(-0.0, a).PushBack(std::numeric_limits<double>::denorm_min(), a);
    source.PushBack(JsonValue(), a).PushBack(false, a).PushBack(true, a);

    const auto kinds = [](const JsonValue& v) {
        return std::make_tuple(v.GetType(), v.IsInt(), v.IsUint(), v.IsInt64(), v.IsUint64(), v.IsDouble());
    };
    const JsonDocument copy = decoded(encoded(source));
    ASSERT_EQ(copy.Size(), source.Size());
    for (rapidjson::SizeType i = 0; i < source.Size(); ++i) {
        EXPECT_EQ(kinds(copy[i]), kinds(source[i])) << i;
        EXPECT_TRUE(copy[i] == source[i]) << i;
    }
    EXPECT_TRUE(std::signbit(copy[6].GetDouble()));
}

TEST(JsonBinaryIO, StringsTravelAsUtf16CodeUnits)
{
    JsonDocument document;
    const auto roundTrip = [&](const std::wstring& text) {
        JsonValue value(text.data(), static_cast<rapidjson::SizeType>(text.size()), document.GetAllocator());
        const Bytes data = encoded(value);
        const JsonDocument copy = decoded(data);
        EXPECT_EQ(wide(copy), text);
        return Bytes(data.begin() + 9, data.end());
    };
    // Lone and reversed surrogates travel as themselves, each one unit.
    EXPECT_EQ(roundTrip(std::wstring{wchar_t(0xD800), L'A'}), bytes({0x00, 0xD8, 0x41, 0x00}));
    EXPECT_EQ(roundTrip(std::wstring{wchar_t(0xDC00), wchar_t(0xD800)}), bytes({0x00, 0xDC, 0x00, 0xD8}));
    // Characters beyond U+FFFF after a long run of ordinary ones.
    const std::wstring longText = std::wstring(40, L'a') + L"\U0001F600" + std::wstring(20, L'b');
    EXPECT_EQ(roundTrip(longText).size(), 2u * 62);
    // A string with an embedded NUL keeps its length.
    EXPECT_EQ(roundTrip(std::wstring(L"a\0b", 3)), bytes({0x61, 0x00, 0x00, 0x00, 0x62, 0x00}));

    // A high surrogate at the very end of the data is not joined with anything.
    EXPECT_EQ(wide(decoded(head(5, 1, {0x3D, 0xD8}))), std::wstring(1, wchar_t(0xD83D)));

    // A valid pair is one character where wide strings hold code points.
    EXPECT_EQ(wide(decoded(head(5, 2, {0x3D, 0xD8, 0x00, 0xDE}))), L"\U0001F600");

    if constexpr (sizeof(wchar_t) == 4) {
        // Not a code point at all: written as the replacement character.
        const std::wstring invalid(1, wchar_t(0x110000));
        EXPECT_EQ(encoded(JsonValue(invalid.c_str(), document.GetAllocator())), head(5, 1, {0xFD, 0xFF}));
    }
}

TEST(JsonBinaryIO, FailuresNameTheirCause)
{
    expectFailure<std::length_error>({}, "JsonBinaryIO: Failed to parse all bytes of type");
    expectFailure<std::invalid_argument>(bytes({0x0B}), "JsonBinaryIO: Unknown value type");
    expectFailure<std::length_error>(bytes({6, 1, 2}), "JsonBinaryIO: Failed to read all the number of bytes");
    expectFailure<std::length_error>(bytes({10, 0, 0, 0, 0, 0, 0, 0}), "JsonBinaryIO: Failed to read all the number of bytes");
    expectFailure<std::length_error>(bytes({3, 0, 0, 0}), "JsonBinaryIO: Failed to read all the number of bytes");
    expectFailure<std::length_error>(head(5, 2, {0x61, 0, 0x62}), "JsonBinaryIO: Failed to read all the bytes of string");

    // Lengths the data cannot hold fail before anything is allocated for them; twice the
    // length must not wrap around to something small.
    Bytes hostile = head(5, uint64_t(1) << 62);
    hostile.resize(20, 'x');
    expectFailure<std::length_error>(hostile, "JsonBinaryIO: Failed to read all the bytes of string");
    expectFailure<std::length_error>(head(5, (uint64_t(1) << 63) + 1, {0x61, 0}),
                                     "JsonBinaryIO: Failed to read all the bytes of string");
    expectFailure<std::length_error>(head(4, ~uint64_t(0), {6, 1, 0, 0, 0}), "JsonBinaryIO: Failed to parse all bytes of type");

    // Member names must be strings.
    expectFailure<std::invalid_argument>(head(3, 6, {0, 2}), "JsonBinaryIO: Member name is not a string");

    // A failure deep inside leaves the target as it was.
    JsonDocument target;
    JsonTextIO::fromString(L"{\"kept\":[1]}", target);
    const Bytes before = encoded(target);
    const Bytes truncated = head(4, 15, {6, 1, 0, 0, 0, 4, 5, 0, 0, 0, 0, 0, 0, 0, 6, 2});
    EXPECT_THROW(JsonBinaryIO::decode(truncated.data(), truncated.size(), target, target.GetAllocator()),
                 std::length_error);
    EXPECT_EQ(encoded(target), before);
}

TEST(JsonBinaryIO, ContainersEndWhereTheirLengthIsReached)
{
    // [1, 2]: the first element that reaches the end of the body closes the array.
    Bytes data = head(4, 10, {6, 1, 0, 0, 0, 6, 2, 0, 0, 0, 6, 3, 0, 0, 0});
    const auto decodeWithLength = [&](uint8_t length, size_t consumed, size_t elements) {
        data[1] = static_cast<char>(length);
        JsonDocument document;
        EXPECT_EQ(JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator()), consumed);
        EXPECT_EQ(document.Size(), elements);
        EXPECT_EQ(document.Capacity(), elements); // sized exactly, not grown
    };
    decodeWithLength(10, 19, 2);
    decodeWithLength(5, 14, 1); // ends just after the first element
    decodeWithLength(6, 19, 2); // one byte into the second element: it is read whole
    decodeWithLength(11, 24, 3); // beyond the body: the next value becomes an element
}

TEST(JsonBinaryIO, NestingIsBounded)
{
    const size_t limit = JsonBinaryIO::maxNestingDepth;
    const JsonDocument deepest = decoded(nestedArrays(limit));
    EXPECT_EQ(encoded(deepest), nestedArrays(limit));

    expectFailure<std::invalid_argument>(nestedArrays(limit + 1), "JsonBinaryIO: Nesting too deep");
    expectFailure<std::invalid_argument>(nestedArrays(100000), "JsonBinaryIO: Nesting too deep");

    // Objects count as well: {"": {"": ...}}.
    Bytes objects;
    for (size_t i = 0; i <= limit; ++i) {
        const Bytes object = head(3, ~uint64_t(0), {5, 0, 0, 0, 0, 0, 0, 0, 0});
        objects.insert(objects.end(), object.begin(), object.end());
    }
    expectFailure<std::invalid_argument>(objects, "JsonBinaryIO: Nesting too deep");
}

// An array of `count` nulls, a byte each.
Bytes nulls(size_t count)
{
    Bytes data = head(4, count);
    data.resize(data.size() + count, '\0');
    return data;
}

TEST(JsonBinaryIO, DecodingKeepsToAMemoryBudget)
{
    const auto decodes = [](const Bytes& data, size_t budget) {
        JsonDocument document;
        try {
            JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator(), budget);
            return true;
        } catch (const std::length_error& error) {
            EXPECT_STREQ(error.what(), "JsonBinaryIO: Memory budget exceeded");
            return false;
        }
    };
    // A null costs the peer a byte, and the reader a value in its array and one on the
    // builder's stack, which grows by half when full: 40 bytes.
    const size_t count = size_t(1) << 20;
    EXPECT_FALSE(decodes(nulls(count), 36 * count));
    EXPECT_TRUE(decodes(nulls(count), 44 * count));
    // A string costs its characters.
    Bytes text = head(5, count);
    text.resize(text.size() + 2 * count, 'a');
    EXPECT_FALSE(decodes(text, count * sizeof(wchar_t)));
    EXPECT_TRUE(decodes(text, count * sizeof(wchar_t) + 1024));

    // Without a budget of its own, decoding keeps to the library's, the stream form too.
    EXPECT_EQ(JsonBinaryIO::memoryBudget(), size_t(1) << 30);
    JsonBinaryIO::setMemoryBudget(36 * count);
    JsonDocument document;
    const Bytes data = nulls(count);
    EXPECT_THROW(JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator()), std::length_error);
    std::istringstream stream(std::string(data.begin(), data.end()));
    EXPECT_THROW(JsonBinaryIO::read(stream, document, document.GetAllocator()), std::length_error);
    JsonBinaryIO::setMemoryBudget(JsonBinaryIO::defaultMemoryBudget);
}

TEST(JsonBinaryIO, StreamFormsMatchTheBufferForms)
{
    JsonDocument first;
    JsonTextIO::fromString(L"{\"a\":[1,2.5,\"x\"],\"b\":{}}", first);
    JsonDocument second;
    JsonTextIO::fromString(L"[true,null]", second);

    std::stringstream stream;
    stream << "lead";
    JsonBinaryIO::write(stream, first);
    JsonBinaryIO::write(stream, second);
    Bytes expected = bytes({'l', 'e', 'a', 'd'});
    JsonBinaryIO::encode(first, expected);
    JsonBinaryIO::encode(second, expected);
    const std::string written = stream.str();
    EXPECT_EQ(Bytes(written.begin(), written.end()), expected);

    // Values back to back are read one by one from wherever the get position stands.
    stream.seekg(4);
    JsonDocument one, two, three;
    JsonBinaryIO::read(stream, one, one.GetAllocator());
    EXPECT_EQ(static_cast<size_t>(stream.tellg()), 4 + encoded(first).size());
    JsonBinaryIO::read(stream, two, two.GetAllocator());
    EXPECT_EQ(encoded(one), encoded(first));
    EXPECT_EQ(encoded(two), encoded(second));
    EXPECT_THROW(JsonBinaryIO::read(stream, three, three.GetAllocator()), std::length_error);
}

} // namespace
} // namespace hrm
