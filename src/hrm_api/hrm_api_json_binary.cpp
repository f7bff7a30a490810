#include <hrm_api/hrm_api_json_binary.h>

#include <logging/ax_herm_logger.h>

#include <algorithm>
#include <atomic>
#include <cstring>
#include <istream>
#include <limits>
#include <ostream>
#include <stdexcept>
#include <utility>
#include <vector>

namespace hrm {
namespace {

enum Tag : uint8_t
{
    TagNull = 0,
    TagFalse = 1,
    TagTrue = 2,
    TagObject = 3,
    TagArray = 4,
    TagString = 5,
    TagInt32 = 6,
    TagUint32 = 7,
    TagInt64 = 8,
    TagUint64 = 9,
    TagDouble = 10,
};

#if defined(__BYTE_ORDER__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr bool hostIsLittleEndian = false;
#else
constexpr bool hostIsLittleEndian = true;
#endif

// Where wchar_t is 16 bits wide strings are UTF-16 already and travel unchanged.
constexpr bool wideIsUtf16 = sizeof(wchar_t) == 2;

constexpr size_t lengthFieldSize = sizeof(uint64_t);

template <typename T>
void storeLittleEndian(char* at, T number)
{
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, &number, sizeof(T));
    if constexpr (!hostIsLittleEndian)
        std::reverse(bytes, bytes + sizeof(T));
    std::memcpy(at, bytes, sizeof(T));
}

template <typename T>
T loadLittleEndian(const char* at)
{
    unsigned char bytes[sizeof(T)];
    std::memcpy(bytes, at, sizeof(T));
    if constexpr (!hostIsLittleEndian)
        std::reverse(bytes, bytes + sizeof(T));
    T number;
    std::memcpy(&number, bytes, sizeof(T));
    return number;
}

bool isSurrogate(uint16_t unit) { return (unit & 0xF800u) == 0xD800u; }
bool isHighSurrogate(uint32_t unit) { return unit - 0xD800u < 0x400u; }
bool isLowSurrogate(uint32_t unit) { return unit - 0xDC00u < 0x400u; }

// The size of the encoding of `value`, exact as long as every character is one UTF-16 unit.
size_t expectedSize(const JsonValue& value)
{
    switch (value.GetType()) {
    case rapidjson::kObjectType: {
        size_t size = 1 + lengthFieldSize;
        for (auto member = value.MemberBegin(); member != value.MemberEnd(); ++member)
            size += expectedSize(member->name) + expectedSize(member->value);
        return size;
    }
    case rapidjson::kArrayType: {
        size_t size = 1 + lengthFieldSize;
        for (auto element = value.Begin(); element != value.End(); ++element)
            size += expectedSize(*element);
        return size;
    }
    case rapidjson::kStringType:
        return 1 + lengthFieldSize + 2 * size_t(value.GetStringLength());
    case rapidjson::kNumberType:
        return value.IsInt() || value.IsUint() ? 5 : 9;
    default:
        return 1;
    }
}

// Writes into a byte vector sized once from expectedSize(); characters that need two UTF-16
// units make it grow. The vector is cut to the bytes written when the encoder is done.
class Encoder
{
public:
    explicit Encoder(std::vector<char>& out) : m_out(out), m_size(out.size()) {}
    ~Encoder() { m_out.resize(m_size); }
    Encoder(const Encoder&) = delete;
    Encoder& operator=(const Encoder&) = delete;

    void encode(const JsonValue& value)
    {
        m_out.resize(m_size + expectedSize(value));
        this->value(value);
    }

private:
    void value(const JsonValue& value)
    {
        switch (value.GetType()) {
        case rapidjson::kNullType:
            tag(TagNull);
            break;
        case rapidjson::kFalseType:
            tag(TagFalse);
            break;
        case rapidjson::kTrueType:
            tag(TagTrue);
            break;
        case rapidjson::kObjectType: {
            const size_t body = open(TagObject);
            for (auto member = value.MemberBegin(); member != value.MemberEnd(); ++member) {
                string(member->name);
                this->value(member->value);
            }
            close(body);
            break;
        }
        case rapidjson::kArrayType: {
            const size_t body = open(TagArray);
            for (auto element = value.Begin(); element != value.End(); ++element)
                this->value(*element);
            close(body);
            break;
        }
        case rapidjson::kStringType:
            string(value);
            break;
        case rapidjson::kNumberType:
            number(value);
            break;
        }
    }

    // Makes room for `count` more bytes and returns where they go.
    char* room(size_t count)
    {
        if (m_out.size() - m_size < count)
            m_out.resize(std::max(m_size + count, m_out.size() * 2 + 256));
        return m_out.data() + m_size;
    }

    void tag(Tag tag) { *room(1) = static_cast<char>(tag); ++m_size; }

    template <typename T>
    void tagged(Tag tag, T number)
    {
        char* at = room(1 + sizeof(T));
        *at = static_cast<char>(tag);
        storeLittleEndian(at + 1, number);
        m_size += 1 + sizeof(T);
    }

    // Writes the tag and a placeholder for the body length; returns where the body starts.
    size_t open(Tag tag)
    {
        char* at = room(1 + lengthFieldSize);
        *at = static_cast<char>(tag);
        m_size += 1 + lengthFieldSize;
        return m_size;
    }

    void close(size_t body)
    {
        storeLittleEndian<uint64_t>(m_out.data() + body - lengthFieldSize, m_size - body);
    }

    void number(const JsonValue& value)
    {
        if (value.IsInt())
            tagged(TagInt32, static_cast<int32_t>(value.GetInt()));
        else if (value.IsUint())
            tagged(TagUint32, static_cast<uint32_t>(value.GetUint()));
        else if (value.IsInt64())
            tagged(TagInt64, static_cast<int64_t>(value.GetInt64()));
        else if (value.IsUint64())
            tagged(TagUint64, static_cast<uint64_t>(value.GetUint64()));
        else if (value.IsDouble())
            tagged(TagDouble, value.GetDouble());
        else
            throw std::invalid_argument("JsonBinaryIO: Unknown number type");
    }

    void string(const JsonValue& value)
    {
        const wchar_t* text = value.GetString();
        const size_t length = value.GetStringLength();
        const size_t start = m_size;
        const size_t units = start + 1 + lengthFieldSize;
        char* at = room(1 + lengthFieldSize + 2 * length);
        *at = static_cast<char>(TagString);
        size_t count = 0;
        if constexpr (wideIsUtf16 && hostIsLittleEndian) {
            std::memcpy(at + 1 + lengthFieldSize, text, length * 2);
            count = length;
        } else {
            count = oneUnitPrefix(text, length, at + 1 + lengthFieldSize);
            if (count < length) {
                // Characters beyond U+FFFF ahead: room for two units each from here on.
                m_size = units + 2 * count;
                room(4 * (length - count));
                count += toUtf16(text + count, length - count, m_out.data() + m_size);
            }
        }
        storeLittleEndian<uint64_t>(m_out.data() + start + 1, count);
        m_size = units + 2 * count;
    }

    // Writes the leading characters that are one UTF-16 unit each; returns how many.
    static size_t oneUnitPrefix(const wchar_t* text, size_t length, char* out)
    {
        constexpr size_t block = 16;
        size_t i = 0;
        for (; i + block <= length; i += block) {
            uint32_t any = 0;
            for (size_t k = 0; k < block; ++k)
                any |= static_cast<uint32_t>(text[i + k]);
            if (any > 0xFFFF)
                break;
            for (size_t k = 0; k < block; ++k)
                storeLittleEndian(out + 2 * (i + k), static_cast<uint16_t>(text[i + k]));
        }
        for (; i < length; ++i) {
            const auto point = static_cast<uint32_t>(text[i]);
            if (point > 0xFFFF)
                break;
            storeLittleEndian(out + 2 * i, static_cast<uint16_t>(point));
        }
        return i;
    }

    // Code points to UTF-16LE units; returns the units written. A value that is no code point
    // at all (above U+10FFFF) becomes U+FFFD.
    static size_t toUtf16(const wchar_t* text, size_t length, char* out)
    {
        char* const start = out;
        for (size_t i = 0; i < length; ++i) {
            uint32_t point = static_cast<uint32_t>(text[i]);
            if (point < 0x10000) {
                storeLittleEndian(out, static_cast<uint16_t>(point));
                out += 2;
            } else if (point <= 0x10FFFF) {
                point -= 0x10000;
                storeLittleEndian(out, static_cast<uint16_t>(0xD800 + (point >> 10)));
                storeLittleEndian(out + 2, static_cast<uint16_t>(0xDC00 + (point & 0x3FF)));
                out += 4;
            } else {
                storeLittleEndian(out, static_cast<uint16_t>(0xFFFD));
                out += 2;
            }
        }
        return static_cast<size_t>(out - start) / 2;
    }

    std::vector<char>& m_out;
    size_t m_size;
};

// Reads from a byte span without recursion and hands the values to a document builder (the
// SAX side of a JsonDocument, as RapidJSON's own parser does): open containers wait on an
// explicit stack whose height is the nesting depth, their children on the builder's stack
// until the container ends. Each container then gets storage for exactly its members or
// elements, taken in one piece from the allocator, rather than room for 16 that grows by
// half when full; the decoded document is the same, in a third less memory for typical data.
//
// What decoding allocates is counted against a budget: each value takes a JsonValue in its
// container's storage, each string its characters and a terminator, and the builder's stack,
// which holds the values of the open containers and grows by half when full, up to one and a
// half times its highest need. Past the budget decoding stops, so that data which costs the
// peer a byte a value (a null) cannot make the reader allocate forty times its size unbounded.
class Decoder
{
public:
    Decoder(const char* data, size_t size, size_t budget)
        : m_begin(data), m_at(data), m_end(data + size), m_budget(budget)
    {
    }

    size_t offset() const { return static_cast<size_t>(m_at - m_begin); }

    // The generator that JsonDocument::Populate calls.
    bool operator()(JsonDocument& builder)
    {
        value(builder);
        while (!m_open.empty()) {
            Container& top = m_open.back();
            if (offset() >= top.end) {
                m_onStack -= top.object ? 2 * size_t(top.count) : top.count;
                if (top.object)
                    builder.EndObject(top.count);
                else
                    builder.EndArray(top.count);
                m_open.pop_back();
                continue;
            }
            if (top.count == JsonBinaryIO::maxContainerSize)
                throw std::length_error("JsonBinaryIO: Container too large");
            ++top.count;
            if (top.object) {
                if (tag() != TagString)
                    throw std::invalid_argument("JsonBinaryIO: Member name is not a string");
                const auto [text, length] = string();
                count(stringCost(length));
                builder.Key(text, length, true);
            }
            value(builder); // may open a container: `top` is not used after this
        }
        return true;
    }

private:
    struct Container
    {
        size_t end; // offset from the start of the data; SIZE_MAX when beyond the data
        rapidjson::SizeType count;
        bool object;
    };

    static size_t stringCost(size_t length) { return (length + 1) * sizeof(wchar_t); }

    // Counts one more value for the builder, with `bytes` of its own beside its JsonValue.
    void count(size_t bytes)
    {
        m_stored += sizeof(JsonValue) + bytes;
        m_highestOnStack = std::max(m_highestOnStack, ++m_onStack);
        const size_t stack = m_highestOnStack * sizeof(JsonValue) / 2 * 3;
        if (m_stored > m_budget || stack > m_budget - m_stored)
            throw std::length_error("JsonBinaryIO: Memory budget exceeded");
    }

    size_t remaining() const { return static_cast<size_t>(m_end - m_at); }

    // Reads one value; a container is left open on the stack for operator() to fill.
    void value(JsonDocument& builder)
    {
        const uint8_t tag = this->tag();
        if (tag != TagString)
            count(0);
        switch (tag) {
        case TagNull:
            builder.Null();
            break;
        case TagFalse:
            builder.Bool(false);
            break;
        case TagTrue:
            builder.Bool(true);
            break;
        case TagObject:
            open(true);
            builder.StartObject();
            break;
        case TagArray:
            open(false);
            builder.StartArray();
            break;
        case TagString: {
            const auto [text, length] = string();
            count(stringCost(length));
            builder.String(text, length, true);
            break;
        }
        case TagInt32:
            builder.Int(number<int32_t>());
            break;
        case TagUint32:
            builder.Uint(number<uint32_t>());
            break;
        case TagInt64:
            builder.Int64(number<int64_t>());
            break;
        case TagUint64:
            builder.Uint64(number<uint64_t>());
            break;
        case TagDouble:
            builder.Double(number<double>());
            break;
        }
    }

    uint8_t tag()
    {
        if (m_at == m_end)
            throw std::length_error("JsonBinaryIO: Failed to parse all bytes of type");
        const auto tag = static_cast<uint8_t>(*m_at++);
        if (tag > TagDouble)
            throw std::invalid_argument("JsonBinaryIO: Unknown value type");
        return tag;
    }

    template <typename T>
    T number()
    {
        if (remaining() < sizeof(T))
            throw std::length_error("JsonBinaryIO: Failed to read all the number of bytes");
        const T number = loadLittleEndian<T>(m_at);
        m_at += sizeof(T);
        return number;
    }

    void open(bool object)
    {
        if (m_open.size() == JsonBinaryIO::maxNestingDepth)
            throw std::invalid_argument("JsonBinaryIO: Nesting too deep");
        const uint64_t length = number<uint64_t>();
        const size_t end = length > remaining() ? std::numeric_limits<size_t>::max() : offset() + length;
        m_open.push_back({end, 0, object});
    }

    // Reads a string's length and units; returns its wide characters, valid until the next
    // string is read.
    std::pair<const wchar_t*, rapidjson::SizeType> string()
    {
        const uint64_t length = number<uint64_t>();
        if (length > remaining() / 2)
            throw std::length_error("JsonBinaryIO: Failed to read all the bytes of string");
        const auto units = static_cast<size_t>(length);
        const char* const data = m_at;
        m_at += units * 2;
        if constexpr (wideIsUtf16 && hostIsLittleEndian) {
            // The units are the string; RapidJSON copies them with memcpy, so their alignment
            // does not matter.
            return {reinterpret_cast<const wchar_t*>(data), stringSize(units)};
        } else {
            if (m_text.size() <= units)
                m_text.resize(units + 1); // never empty: RapidJSON refuses a null text
            return {m_text.data(), stringSize(fromUtf16(data, units, m_text.data()))};
        }
    }

    static rapidjson::SizeType stringSize(size_t length)
    {
        if (length > std::numeric_limits<rapidjson::SizeType>::max())
            throw std::length_error("JsonBinaryIO: String too long");
        return static_cast<rapidjson::SizeType>(length);
    }

    // UTF-16LE units to wide characters: a valid surrogate pair becomes one code point where
    // wchar_t holds code points; a lone surrogate stays as it is. Returns the characters written.
    static size_t fromUtf16(const char* units, size_t count, wchar_t* out)
    {
        if (!widen(units, count, out) || wideIsUtf16)
            return count;
        size_t written = 0;
        for (size_t i = 0; i < count; ++i) {
            const uint32_t unit = loadLittleEndian<uint16_t>(units + 2 * i);
            const uint32_t next = i + 1 < count ? loadLittleEndian<uint16_t>(units + 2 * (i + 1)) : 0;
            if (isHighSurrogate(unit) && isLowSurrogate(next)) {
                out[written++] = static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (next - 0xDC00));
                ++i;
            } else {
                out[written++] = static_cast<wchar_t>(unit);
            }
        }
        return written;
    }

    // One character per unit, in a loop the compiler vectorises; returns whether any unit was
    // a surrogate (rare, and then the caller starts over).
    static bool widen(const char* units, size_t count, wchar_t* out)
    {
        uint16_t surrogates = 0;
        for (size_t i = 0; i < count; ++i) {
            const uint16_t unit = loadLittleEndian<uint16_t>(units + 2 * i);
            surrogates |= static_cast<uint16_t>(isSurrogate(unit));
            out[i] = static_cast<wchar_t>(unit);
        }
        return surrogates != 0;
    }

    const char* const m_begin;
    const char* m_at;
    const char* const m_end;
    std::vector<Container> m_open;
    std::vector<wchar_t> m_text;
    const size_t m_budget;
    size_t m_stored = 0;         // values in their containers, and the characters of strings
    size_t m_onStack = 0;        // values on the builder's stack
    size_t m_highestOnStack = 0;
};

std::atomic<size_t> memoryBudget{JsonBinaryIO::defaultMemoryBudget};

// Decodes into `value` only once the whole value has been read: a failure leaves it as it was.
size_t decodeInto(const char* data, size_t size, JsonValue& value, JsonAllocator& allocator, size_t budget)
{
    Decoder decoder(data, size, budget);
    JsonDocument builder(&allocator);
    builder.Populate(decoder);
    value.Swap(builder);
    return decoder.offset();
}

// Everything the stream can deliver without blocking.
std::vector<char> availableBytes(std::istream& in)
{
    std::vector<char> bytes;
    std::streambuf& buffer = *in.rdbuf();
    for (std::streamsize count = buffer.in_avail(); count > 0; count = buffer.in_avail()) {
        const size_t at = bytes.size();
        bytes.resize(at + static_cast<size_t>(count));
        bytes.resize(at + static_cast<size_t>(buffer.sgetn(bytes.data() + at, count)));
    }
    return bytes;
}

} // namespace

void JsonBinaryIO::encode(const JsonValue& value, std::vector<char>& out)
{
    HRM_TRACE();
    Encoder(out).encode(value);
}

void JsonBinaryIO::setMemoryBudget(size_t bytes)
{
    hrm::memoryBudget = bytes;
}

size_t JsonBinaryIO::memoryBudget()
{
    return hrm::memoryBudget;
}

size_t JsonBinaryIO::decode(const char* data, size_t size, JsonValue& value, JsonAllocator& allocator,
                            size_t budget)
{
    HRM_TRACE();
    return decodeInto(data, size, value, allocator, budget);
}

std::ostream& JsonBinaryIO::write(std::ostream& out, const JsonValue& value)
{
    HRM_TRACE();
    std::vector<char> bytes;
    Encoder(bytes).encode(value);
    return out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::istream& JsonBinaryIO::read(std::istream& in, JsonValue& value, JsonAllocator& allocator)
{
    HRM_TRACE();
    const std::istream::pos_type start = in.tellg(); // -1 when the stream has failed
    const std::vector<char> bytes = start == std::istream::pos_type(-1) ? std::vector<char>() : availableBytes(in);
    const size_t consumed = decodeInto(bytes.data(), bytes.size(), value, allocator, memoryBudget());
    if (consumed < bytes.size())
        in.seekg(start + static_cast<std::streamoff>(consumed));
    return in;
}

} // namespace hrm
