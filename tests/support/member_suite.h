#pragma once

// The checks every data class passes, instantiated in one line per class. A class takes part
// by describing a sample of itself:
//
//   template <>
//   struct MemberCase<ExcProgress> : MemberCaseDefaults
//   {
//       static ExcProgress sample();          // every member away from its default
//       static std::vector<std::wstring> keys() { return {L"progress", ...}; } // in written order
//   };
//   INSTANTIATE_TYPED_TEST_SUITE_P(Progress, MemberSuite, ExcProgress);   // in namespace hrm::test
//
// and the suite checks that the sample survives the DOM, compact and pretty text, binary JSON,
// binary JSON + gzip and shared memory (an exchange object through its envelope); that it writes
// its keys in order; that each member is read (leaving it out changes what is read) and that a
// member of another JSON kind is taken for a missing one; and that a value of the wrong kind is
// reported once, in the class's words, and changes nothing. Family tests then hold only the
// odd rules.

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_json.h>
#include <hrm_api/hrm_api_json_binary.h>
#include <mp/mp_shared_buffer.h>

#include "support/log_capture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <sstream>
#include <string>
#include <type_traits>
#include <vector>

namespace hrm::test {

template <class T>
struct MemberCase; // specialised per class

struct MemberCaseDefaults
{
    // Logged at wrongKindLevel for a value of the wrong JSON kind; null when that is silent.
    static constexpr const char* wrongKindMessage = nullptr;
    static constexpr int wrongKindLevel = ax_herm::Error;
    // The keys the sample writes, in order (empty for a class that is not a JSON object).
    static std::vector<std::wstring> keys() { return {}; }
    // Keys written but never read.
    static std::vector<std::wstring> writtenOnly() { return {}; }
    // Keys whose members are read whatever their JSON kind (children that read themselves).
    static std::vector<std::wstring> anyKind() { return {}; }
    // Whether doubles must be stored as doubles (an integer such as 7 is then of another kind).
    static constexpr bool storedDoubles = false;
};

// The compact JSON text of `object`.
inline std::wstring jsonText(const IJsonObject& object)
{
    JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    return JsonTextIO::toString(document, false);
}

template <class T>
std::shared_ptr<T> readFresh(const JsonValue& value)
{
    auto object = std::make_shared<T>();
    object->readObject(value);
    return object;
}

template <class T, class = void>
struct HasEquality : std::false_type
{
};
template <class T>
struct HasEquality<T, std::void_t<decltype(std::declval<const T&>() == std::declval<const T&>())>> : std::true_type
{
};

// `read` is `expected` as its own equality and its JSON see it.
template <class T>
void expectSame(const T& read, const T& expected, const char* path)
{
    if constexpr (HasEquality<T>::value) {
        EXPECT_TRUE(read == expected) << path;
    }
    EXPECT_EQ(jsonText(read), jsonText(expected)) << path;
}

// A binary, compressed exchange object that carries any JSON value, so that every class travels
// through the envelope path: binary JSON, gzip, shared memory and back.
class JsonCarrier : public ExchangeObjectType<JsonCarrier>
{
public:
    static constexpr wchar_t s_objectName[] = L"test_json_carrier";

    bool binary() const override { return true; }
    bool compress() const override { return true; }
    // Held as binary JSON, a deep copy: packed arrays are written into the writer's allocator as
    // constant strings, which CopyFrom would share rather than copy.
    void readObject(const JsonValue& value) override
    {
        m_bytes.clear();
        JsonBinaryIO::encode(value, m_bytes);
    }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override
    {
        JsonBinaryIO::decode(m_bytes.data(), m_bytes.size(), value, allocator);
    }

    JsonDocument document() const
    {
        JsonDocument document;
        writeObject(document, document.GetAllocator());
        return document;
    }

private:
    std::vector<char> m_bytes;
};

inline StaticExchangeObject<JsonCarrier> jsonCarrierPrototype;

// `object` written into an envelope, through shared memory, and read back from the envelope.
template <class T>
std::shared_ptr<T> throughEnvelope(const T& object)
{
    std::shared_ptr<IExchangeObject> sent;
    if constexpr (std::is_base_of_v<IExchangeObject, T>) {
        sent = std::make_shared<T>(object);
    } else {
        auto carrier = std::make_shared<JsonCarrier>();
        JsonDocument document;
        object.writeObject(document, document.GetAllocator());
        carrier->readObject(document);
        sent = carrier;
    }
    ExchangeObjectWrapper writer;
    writer.set(sent);
    std::wstringstream envelope;
    writer.writeObject(envelope);
    ExchangeObjectWrapper reader;
    reader.setRemoveAfterLoading(true);
    reader.readObject(envelope);
    if constexpr (std::is_base_of_v<IExchangeObject, T>) {
        return std::dynamic_pointer_cast<T>(reader.get());
    } else {
        const auto carrier = std::dynamic_pointer_cast<JsonCarrier>(reader.get());
        return carrier ? readFresh<T>(carrier->document()) : nullptr;
    }
}

template <class T>
class MemberSuite : public ::testing::Test
{
protected:
    using Case = MemberCase<T>;

    static bool listed(const std::vector<std::wstring>& keys, const JsonValue& name)
    {
        return std::find(keys.begin(), keys.end(), std::wstring(name.GetString(), name.GetStringLength())) != keys.end();
    }

    // Values of another JSON kind than `valid`.
    static std::vector<JsonValue> mistyped(const JsonValue& valid, JsonAllocator& allocator)
    {
        std::vector<JsonValue> values;
        if (valid.IsString())
            values.emplace_back(3);
        else
            values.emplace_back(L"true", allocator);
        if (Case::storedDoubles && valid.IsDouble())
            values.emplace_back(7);
        return values;
    }
};

TYPED_TEST_SUITE_P(MemberSuite);

TYPED_TEST_P(MemberSuite, TravelsThroughEveryEncoding)
{
    using T = TypeParam;
    const T sample = TestFixture::Case::sample();
    JsonDocument document;
    sample.writeObject(document, document.GetAllocator());

    expectSame(*readFresh<T>(document), sample, "DOM");
    for (const bool pretty : {false, true}) {
        JsonDocument parsed;
        JsonTextIO::fromString(JsonTextIO::toString(document, pretty), parsed);
        ASSERT_FALSE(parsed.HasParseError());
        expectSame(*readFresh<T>(parsed), sample, pretty ? "pretty text" : "compact text");
    }

    std::vector<char> binary;
    JsonBinaryIO::encode(document, binary);
    std::vector<char> gzip;
    Compressor::compress(gzip, binary.data(), binary.size(), -1);
    for (const auto* bytes : {&binary, &gzip}) {
        std::vector<char> payload = *bytes;
        if (Compressor::isCompressed(payload.data(), payload.size()))
            Compressor::decompress(payload, bytes->data(), bytes->size());
        JsonDocument decoded;
        JsonBinaryIO::decode(payload.data(), payload.size(), decoded, decoded.GetAllocator());
        expectSame(*readFresh<T>(decoded), sample, bytes == &gzip ? "binary + gzip" : "binary");
    }

    const auto delivered = throughEnvelope(sample);
    ASSERT_TRUE(delivered) << "envelope";
    expectSame(*delivered, sample, "envelope");
}

TYPED_TEST_P(MemberSuite, WritesItsKeysInOrder)
{
    const auto expected = TestFixture::Case::keys();
    if (expected.empty())
        return;
    JsonDocument document;
    TestFixture::Case::sample().writeObject(document, document.GetAllocator());
    ASSERT_TRUE(document.IsObject());
    std::vector<std::wstring> keys;
    for (const auto& member : document.GetObject())
        keys.emplace_back(member.name.GetString(), member.name.GetStringLength());
    EXPECT_EQ(keys, expected);
}

// Each member is read: leaving it out changes the object read. A member of another JSON kind
// reads as a missing one.
TYPED_TEST_P(MemberSuite, ReadsEveryMemberAndOnlyOfItsKind)
{
    using T = TypeParam;
    using Case = typename TestFixture::Case;
    JsonDocument valid;
    Case::sample().writeObject(valid, valid.GetAllocator());
    if (!valid.IsObject())
        return;
    LogCapture quiet; // nested readers report what they refuse; that is their business here
    const std::wstring sampleText = jsonText(*readFresh<T>(valid));
    for (auto member = valid.MemberBegin(); member != valid.MemberEnd(); ++member) {
        const std::string key = toNarrow(std::wstring(member->name.GetString(), member->name.GetStringLength()));
        JsonDocument without;
        without.CopyFrom(valid, without.GetAllocator());
        without.RemoveMember(member->name);
        const std::wstring missingText = jsonText(*readFresh<T>(without));
        if (!TestFixture::listed(Case::writtenOnly(), member->name)) {
            EXPECT_NE(missingText, sampleText) << key << " is not read, or the sample holds its default";
        }
        if (TestFixture::listed(Case::anyKind(), member->name))
            continue;
        JsonDocument changed;
        for (JsonValue& value : TestFixture::mistyped(member->value, changed.GetAllocator())) {
            changed.CopyFrom(valid, changed.GetAllocator());
            changed[member->name] = value;
            EXPECT_EQ(jsonText(*readFresh<T>(changed)), missingText) << key << " of another kind";
        }
    }
}

TYPED_TEST_P(MemberSuite, AValueOfTheWrongKindIsReportedOnce)
{
    using T = TypeParam;
    const T sample = TestFixture::Case::sample();
    JsonDocument written;
    sample.writeObject(written, written.GetAllocator());
    const JsonValue wrongKind(written.IsObject() ? rapidjson::kArrayType : rapidjson::kObjectType);

    LogCapture log;
    T object = sample;
    object.readObject(wrongKind);
    expectSame(object, sample, "wrong kind");
    const char* message = TestFixture::Case::wrongKindMessage;
    EXPECT_EQ(log.messages(TestFixture::Case::wrongKindLevel),
              message ? std::vector<std::string>{message} : std::vector<std::string>{});
}

REGISTER_TYPED_TEST_SUITE_P(MemberSuite, TravelsThroughEveryEncoding, WritesItsKeysInOrder,
                            ReadsEveryMemberAndOnlyOfItsKind, AValueOfTheWrongKindIsReportedOnce);

} // namespace hrm::test
