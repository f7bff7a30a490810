#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include "support/compression_setting.h"
#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/size_limit.h"
#include "support/test_exchange_object.h"

#include <gtest/gtest.h>

#include <cwctype>
#include <iterator>
#include <regex>
#include <sstream>
#include <streambuf>

#if defined(__linux__)
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace hrm {
namespace {

using test::BinaryObject;
using Buffer = mp::SharedBuffer<char>;

std::wstring envelopeOf(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    std::wostringstream out;
    wrapper.writeObject(out);
    return out.str();
}

std::shared_ptr<IExchangeObject> readEnvelope(const std::wstring& text, bool delayed = false)
{
    ExchangeObjectWrapper wrapper;
    wrapper.setDelayedLoading(delayed);
    std::wistringstream in(text);
    wrapper.readObject(in);
    return wrapper.get();
}

// The buffer name that a binary envelope carries: a lowercase version 4 UUID.
std::wstring sourceOf(const std::wstring& envelope)
{
    static const std::wregex binary(
        LR"re(\{"exchange_object_name":"test_binary_object","binary":true,"exchange_object_data":)re"
        LR"re("([0-9a-f]{8}-[0-9a-f]{4}-4[0-9a-f]{3}-[89ab][0-9a-f]{3}-[0-9a-f]{12})"\})re");
    std::wsmatch match;
    return std::regex_match(envelope, match, binary) ? match[1].str() : L"";
}

template <int Variant>
class Probe : public ExchangeObjectType<Probe<Variant>>
{
public:
    static constexpr wchar_t s_objectName[] = L"test_probe";
    void readObject(const JsonValue&) override {}
    void writeObject(JsonValue& value, JsonAllocator&) const override { value.SetNull(); }
};

TEST(ExchangeObjectRegistry, ClonesByNameAndReplacesOrRemovesByName)
{
    auto& registry = ExchangeObjectRegistry::instance();
    const auto first = registry.get(L"exc_message");
    EXPECT_TRUE(std::dynamic_pointer_cast<ExcMessage>(first));
    EXPECT_NE(first, registry.get(L"exc_message"));
    EXPECT_FALSE(registry.get(L"Exc_message"));

    StaticExchangeObject<Probe<1>> original;
    {
        StaticExchangeObject<Probe<2>> replacement;
        EXPECT_TRUE(std::dynamic_pointer_cast<Probe<2>>(registry.get(L"test_probe")));
    }
    EXPECT_FALSE(registry.get(L"test_probe")); // removed by name, whichever prototype it held
}

TEST(ExchangeObjectWrapper, InlineEnvelopesAndTheirFaults)
{
    EXPECT_EQ(envelopeOf(std::make_shared<ExcMessage>(L"hi")),
              LR"({"exchange_object_name":"exc_message","exchange_object_data":{"message":"hi"}})");
    const auto read = readEnvelope(
        LR"({"exchange_object_name":"exc_log","binary":false,"exchange_object_data":{"message":"x"}})");
    ASSERT_TRUE(std::dynamic_pointer_cast<ExcLog>(read));
    EXPECT_EQ(std::static_pointer_cast<ExcLog>(read)->message(), L"x");
    EXPECT_FALSE(read->isLoaded()); // the flag records binary loads only

    test::LogCapture log;
    for (const wchar_t* unknown : {LR"({"exchange_object_name":"no_such_type","exchange_object_data":{}})",
                                   LR"({"exchange_object_name":7,"exchange_object_data":{}})", L"{}"})
        EXPECT_FALSE(readEnvelope(unknown));
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());
    EXPECT_TRUE(readEnvelope(LR"({"exchange_object_name":"exc_message"})"));
    EXPECT_TRUE(readEnvelope(LR"({"exchange_object_name":"exc_message","binary":true,"exchange_object_data":{}})"));
    EXPECT_EQ(log.messages(ax_herm::Error),
              (std::vector<std::string>{
                  "ExchangeObjectWrapper JSON object has no Exchange Object data.",
                  "ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data field (if binary)."}));
    // "binary" for a class that is not binary: the source is recorded and load() does nothing.
    const std::wstring uuid = IExchangeObject::generateUUID();
    const auto announced =
        readEnvelope(LR"({"exchange_object_name":"exc_message","binary":true,"exchange_object_data":")" + uuid + L"\"}");
    EXPECT_EQ(announced->source(), uuid);
    EXPECT_FALSE(announced->isLoaded());

    for (const wchar_t* text : {L"", L"[1]", L"{\"exchange_object_name\":", L"\"exc_message\""})
        test::expectMessage<std::invalid_argument>([&] { readEnvelope(text); }, "Invalid json document");
    test::expectMessage<std::invalid_argument>([] { envelopeOf(nullptr); },
                                               "ExchangeObjectWrapper::writeObject > m_pObject == nullptr");
}

TEST(ExchangeObjectWrapper, BinaryObjectsTravelInSharedMemory)
{
    for (const bool compressed : {true, false}) {
        const auto written = test::filledBinaryObject(compressed);
        const std::wstring envelope = envelopeOf(written);
        const std::wstring source = sourceOf(envelope);
        ASSERT_FALSE(source.empty()) << envelope;
        const Buffer cleanup(source, true, Buffer::Open::Existing);
        std::vector<char> payload;
        cleanup.read(payload);
        EXPECT_EQ(payload.size() > 2 && payload[0] == '\x1f' && payload[1] == '\x8b', compressed);
        const auto read = std::dynamic_pointer_cast<BinaryObject>(readEnvelope(envelope));
        EXPECT_TRUE(read->isLoaded());
        EXPECT_EQ(*read, *written);
    }
    const auto object = test::filledBinaryObject(true);
    const std::wstring first = sourceOf(envelopeOf(object)), second = sourceOf(envelopeOf(object));
    EXPECT_NE(first, second); // every write makes a new buffer
    EXPECT_TRUE(Buffer::remove(first));
    EXPECT_TRUE(Buffer::remove(second));
}

TEST(ExchangeObjectWrapper, TheEnvelopeInOneCallAndTypedAccess)
{
    const ExcMessage message(L"hi");
    std::wstring created = L"stale";
    EXPECT_EQ(toEnvelope(message, &created), envelopeOf(std::make_shared<ExcMessage>(message)));
    EXPECT_TRUE(created.empty());
    const ExchangeObjectWrapper inlineRead = fromEnvelope(toEnvelope(message));
    EXPECT_EQ(*inlineRead.get<ExcMessage>(), message);
    EXPECT_TRUE(inlineRead.get<ExcMessageBase>()); // a base class of the object's is its type too
    EXPECT_FALSE(inlineRead.get<ExcLog>());         // a sibling class is not
    EXPECT_FALSE(inlineRead.get<BinaryObject>());
    EXPECT_FALSE(fromEnvelope(LR"({"exchange_object_name":"no_such_type","exchange_object_data":{}})")
                     .get<ExcMessage>());

    // A binary object: the writer learns the buffer's name, the reader loads and removes it.
    const auto written = test::filledBinaryObject(true);
    const std::wstring envelope = toEnvelope(*written, &created);
    EXPECT_EQ(created, sourceOf(envelope));
    const auto read = fromEnvelope(envelope).get<BinaryObject>();
    ASSERT_TRUE(read);
    EXPECT_TRUE(read->isLoaded());
    EXPECT_EQ(*read, *written);
    EXPECT_FALSE(Buffer::remove(created));
    test::expectMessage<std::invalid_argument>([] { fromEnvelope(L"[]"); }, "Invalid json document");
}

TEST(ExchangeObjectWrapper, PayloadsAreCompressedAsTheLibraryIsSet)
{
    // The payload a wrapper writes under `compression`, and the object a default reader loads.
    const auto written = test::filledBinaryObject(true);
    const auto payloadAndObject = [&](Compression compression) {
        std::wstring envelope;
        {
            const test::CompressionSetting writer(compression);
            envelope = envelopeOf(written);
        }
        const Buffer buffer(sourceOf(envelope), true, Buffer::Open::Existing); // removed on return
        std::vector<char> payload;
        buffer.read(payload);
        return std::pair(payload, readEnvelope(envelope));
    };
    const auto recompressed = [](const std::vector<char>& payload, Compression compression) {
        std::vector<char> raw, again;
        Compressor::decompress(raw, payload.data(), payload.size());
        Compressor::compress(again, raw.data(), raw.size(), compression);
        return again;
    };

    // By default zlib at its default level, as always; the first setting is the default.
    std::vector<char> zlibPayload;
    for (const Compression compression :
         {Compression{}, Compression{DeflateEngine::libdeflate, 1}, Compression{DeflateEngine::igzip, 1}}) {
        if (!Compressor::isAvailable(compression.engine))
            continue;
        SCOPED_TRACE(testing::Message() << "engine " << int(compression.engine));
        const auto [payload, read] = payloadAndObject(compression);
        EXPECT_EQ(payload, recompressed(payload, compression));
        if (compression == Compression{})
            zlibPayload = payload;
        else
            EXPECT_NE(payload, zlibPayload);
        ASSERT_TRUE(read && read->isLoaded());
        EXPECT_EQ(*std::static_pointer_cast<BinaryObject>(read), *written);
    }
}

TEST(ExchangeObjectWrapper, DelayedLoading)
{
    const std::wstring envelope = envelopeOf(test::filledBinaryObject(true));
    const auto object = std::static_pointer_cast<BinaryObject>(readEnvelope(envelope, true));
    EXPECT_EQ(object->source(), sourceOf(envelope));
    EXPECT_FALSE(object->isLoaded());
    EXPECT_EQ(*object, BinaryObject()); // announced only
    object->load();
    EXPECT_TRUE(object->isLoaded());
    EXPECT_EQ(*object, *test::filledBinaryObject(true));
    EXPECT_FALSE(Buffer::remove(object->source())); // the announced object removed it as it loaded
    EXPECT_NO_THROW(object->load()); // loaded once: the buffer is not looked at again
}

TEST(ExchangeObject, LoadFailuresLeaveTheObjectUnloaded)
{
    BinaryObject missing;
    missing.setSource(IExchangeObject::generateUUID());
    EXPECT_THROW(missing.load(), mp::SharedMemoryException);
    EXPECT_FALSE(missing.isLoaded());
    EXPECT_FALSE(Buffer::remove(missing.source())); // load() created no buffer

    const std::wstring name = IExchangeObject::generateUUID();
    Buffer corrupt(name, true);
    for (const std::string& bytes : {std::string(), std::string("\x1f\x8b\x08garbage", 10), std::string("\xff\xff\xff")}) {
        corrupt.write(bytes.data(), bytes.size());
        BinaryObject object;
        object.setSource(name);
        EXPECT_ANY_THROW(object.load());
        EXPECT_FALSE(object.isLoaded());
    }
}

TEST(ExchangeObject, PayloadsAreHeldToTheLibrarySizeLimit)
{
    // About 700 bytes of binary JSON; compressed, about a hundred.
    const std::wstring compressed = sourceOf(envelopeOf(test::filledBinaryObject(true)));
    const std::wstring raw = sourceOf(envelopeOf(test::filledBinaryObject(false)));
    const Buffer removeCompressed(compressed, true, Buffer::Open::Existing);
    const Buffer removeRaw(raw, true, Buffer::Open::Existing);
    const auto load = [](const std::wstring& source) {
        BinaryObject object;
        object.setSource(source);
        object.load();
    };
    {
        const test::SizeLimit limit(300);
        test::expectMessage<std::length_error>([&] { load(compressed); },
                                               "Compressor: decompressed data exceeds the size limit");
        test::expectMessage<mp::SharedMemoryException>([&] { load(raw); },
                                                       "Shared buffer is larger than the size limit");
    }
    EXPECT_NO_THROW(load(compressed));
    EXPECT_NO_THROW(load(raw));
}

TEST(ExchangeObject, DecodingAPayloadKeepsToTheMemoryBudget)
{
    // Four million nulls compress to a few kilobytes and would take 160 MiB decoded.
    std::vector<char> nulls{'\x04'};
    const uint64_t count = uint64_t(4) << 20;
    for (int k = 0; k < 8; ++k)
        nulls.push_back(static_cast<char>(count >> (8 * k)));
    nulls.resize(nulls.size() + count, '\0');
    std::vector<char> gzip;
    Compressor::compress(gzip, nulls.data(), nulls.size(), 9);
    ASSERT_LT(gzip.size(), size_t(8) << 10);
    const std::wstring name = IExchangeObject::generateUUID();
    Buffer bomb(name, true);
    bomb.write(gzip.data(), gzip.size());

    const test::MemoryBudget budget(size_t(64) << 20);
    BinaryObject object;
    object.setSource(name);
    test::expectMessage<std::length_error>([&] { object.load(); }, "JsonBinaryIO: Memory budget exceeded");
    EXPECT_FALSE(object.isLoaded());
    const auto real = std::static_pointer_cast<BinaryObject>(readEnvelope(envelopeOf(test::filledBinaryObject(true))));
    EXPECT_TRUE(real->isLoaded());
}

TEST(ExchangeObjectWrapper, SharedMemoryIsForTheOwnerOnly)
{
#if !defined(__linux__)
    GTEST_SKIP() << "checked where shared memory lives in /dev/shm; on Windows "
                    "SharedBuffer.OnWindowsOnlyTheOwnerHasAccess reads the security descriptor back";
#else
    const std::wstring source = sourceOf(envelopeOf(test::filledBinaryObject(true)));
    const Buffer cleanup(source, true, Buffer::Open::Existing);
    struct stat status = {};
    ASSERT_EQ(stat(("/dev/shm/" + toNarrow(source)).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
#endif
}

TEST(ExchangeObjectWrapper, TheReaderRemovesWhatItLoadsOrWillNotLoad)
{
    ExchangeObjectWrapper reader; // default settings
    const auto read = [&](const std::wstring& envelope) {
        std::wistringstream in(envelope);
        reader.readObject(in);
    };
    const auto object = test::filledBinaryObject(true);
    for (int i = 0; i < 2000; ++i) {
        const std::wstring envelope = envelopeOf(object);
        read(envelope);
        ASSERT_EQ(*std::static_pointer_cast<BinaryObject>(reader.get()), *object);
        ASSERT_FALSE(Buffer::remove(sourceOf(envelope))) << "left behind after round trip " << i;
    }

    // Announced buffers that this reader will not load go at once: a corrupt payload, a type
    // it does not know, "binary" for a type that travels inline.
    const auto announce = [](const wchar_t* type, const std::wstring& buffer) {
        return LR"({"exchange_object_name":")" + std::wstring(type) + LR"(","binary":true,"exchange_object_data":")" +
               buffer + L"\"}";
    };
    const auto written = [](const std::string& bytes) {
        const std::wstring name = IExchangeObject::generateUUID();
        Buffer(name, false).write(bytes.data(), bytes.size());
        return name;
    };
    const std::wstring corrupt = written(std::string("\x1f\x8b\x08garbage", 10));
    EXPECT_ANY_THROW(read(announce(L"test_binary_object", corrupt)));
    EXPECT_FALSE(Buffer::remove(corrupt));
    for (const wchar_t* type : {L"no_such_type", L"exc_message"}) {
        const std::wstring unused = written("payload");
        read(announce(type, unused));
        EXPECT_FALSE(Buffer::remove(unused)) << toNarrow(type);
    }

    // A host that forwards envelopes to a second reader keeps them all.
    reader.setRemoveAfterLoading(false);
    const std::wstring forwarded = envelopeOf(object);
    read(forwarded);
    EXPECT_TRUE(reader.get()->isLoaded());
    const std::wstring inline_ = written("payload");
    read(announce(L"exc_message", inline_));
    EXPECT_TRUE(Buffer::remove(sourceOf(forwarded)));
    EXPECT_TRUE(Buffer::remove(inline_));
}

// A payload as the writer leaves it, put under a name of the test's choosing.
std::vector<char> payloadOf(const std::shared_ptr<IExchangeObject>& object)
{
    const Buffer written(sourceOf(envelopeOf(object)), true, Buffer::Open::Existing);
    std::vector<char> bytes;
    written.read(bytes);
    return bytes;
}

std::wstring announce(const std::wstring& jsonName)
{
    return LR"({"exchange_object_name":"test_binary_object","binary":true,"exchange_object_data":")" + jsonName + L"\"}";
}

TEST(ExchangeObjectWrapper, OnlyBufferNamesOfTheWritersFormAreLoadedOrRemoved)
{
    const std::vector<char> payload = payloadOf(test::filledBinaryObject(true));
    // Another program's object, of this user; and a UUID in capitals, which Windows takes for
    // the same object as in small letters.
    const std::wstring victim = L"hrm_test_victim_" + IExchangeObject::generateUUID().substr(0, 8);
    std::wstring capitals = IExchangeObject::generateUUID();
    for (wchar_t& ch : capitals)
        ch = static_cast<wchar_t>(std::towupper(ch));
    Buffer kept(victim, true), keptToo(capitals, true);
    kept.write(payload.data(), payload.size());
    keptToo.write(payload.data(), payload.size());

    test::LogCapture log;
    const std::wstring uuid = IExchangeObject::generateUUID();
    // As JSON text: a NUL, a letter beyond hexadecimal, a lone surrogate, a blank, a semaphore,
    // a hidden object, a path.
    const std::wstring names[] = {victim, capitals, victim + L"\\u0000" + uuid, uuid.substr(0, 35) + L"\\u00e9",
                                  uuid.substr(0, 35) + std::wstring(1, static_cast<wchar_t>(0xD800)), uuid + L" ",
                                  L"sem." + uuid.substr(4), L"." + uuid.substr(1), L"../" + uuid.substr(3)};
    for (const std::wstring& name : names) {
        const auto object = readEnvelope(announce(name));
        EXPECT_FALSE(object->isLoaded()) << toNarrow(name);
        EXPECT_TRUE(object->source().empty()) << toNarrow(name);
    }
    EXPECT_EQ(log.messages(ax_herm::Error),
              std::vector<std::string>(std::size(names), "ExchangeObjectWrapper JSON object should have UUID in "
                                                         "Exchange Object Data field (if binary)."));
    for (const std::wstring& name : {victim, capitals})
        EXPECT_NO_THROW(Buffer(name, false, Buffer::Open::Existing)) << toNarrow(name);
}

TEST(ExchangeObjectWrapper, RemovesOnlyAnObjectOfThisUserThatOthersCannotOpen)
{
#if !defined(__linux__)
    GTEST_SKIP() << "sets POSIX modes and owners on the objects in /dev/shm";
#else
    const std::vector<char> payload = payloadOf(test::filledBinaryObject(true));
    const auto readEnvelope = [](const std::wstring& text) {
        ExchangeObjectWrapper reader;
        reader.setRemoveAfterLoading(true);
        std::wistringstream in(text);
        reader.readObject(in);
        return reader.get();
    };
    const auto planted = [&](mode_t mode, uid_t owner) {
        const std::wstring name = IExchangeObject::generateUUID();
        Buffer(name, false).write(payload.data(), payload.size());
        const std::string path = "/dev/shm/" + toNarrow(name);
        EXPECT_EQ(chmod(path.c_str(), mode), 0);
        if (owner != geteuid()) {
            EXPECT_EQ(chown(path.c_str(), owner, static_cast<gid_t>(-1)), 0);
        }
        return name;
    };
    // Readable by others: loaded, and left.
    const std::wstring open = planted(0644, geteuid());
    EXPECT_TRUE(readEnvelope(announce(open))->isLoaded());
    EXPECT_TRUE(Buffer::remove(open));
    if (geteuid() == 0) {
        // Another user's, which root can read: loaded, and left.
        const std::wstring foreign = planted(0600, 65534);
        EXPECT_TRUE(readEnvelope(announce(foreign))->isLoaded());
        EXPECT_TRUE(Buffer::remove(foreign));
    } else {
        // One this reader cannot open for writing: not loaded, and left.
        const std::wstring readOnly = planted(0400, geteuid());
        EXPECT_THROW(readEnvelope(announce(readOnly)), mp::SharedMemoryException);
        EXPECT_TRUE(Buffer::remove(readOnly));
    }
#endif
}

TEST(ExchangeObjectWrapper, AWriteThatFailsThrowsAndLeavesNoBuffer)
{
    ExchangeObjectWrapper writer;
    writer.set(test::filledBinaryObject(true));
    std::wostringstream good;
    writer.writeObject(good);
    EXPECT_EQ(writer.createdBuffer(), sourceOf(good.str())); // for the writer to remove if undelivered
    EXPECT_TRUE(Buffer::remove(writer.createdBuffer()));

    // A stream that has failed already: nothing is made. One that fails while the envelope
    // goes out (it keeps what it was given, so that the buffer's name is known): the buffer
    // made for it is removed again.
    struct Failing : std::wstreambuf
    {
        std::wstring given;
        std::streamsize xsputn(const wchar_t* text, std::streamsize count) override
        {
            given.append(text, static_cast<size_t>(count));
            return 0;
        }
    } failing;
    std::wostream failed(&failing);
    failed.setstate(std::ios::badbit);
    test::expectMessage<std::runtime_error>([&] { writer.writeObject(failed); }, "Cannot write object into json document");
    EXPECT_TRUE(failing.given.empty());
    std::wostream failingLater(&failing);
    test::expectMessage<std::runtime_error>([&] { writer.writeObject(failingLater); },
                                            "Cannot write object into json document");
    ASSERT_FALSE(sourceOf(failing.given).empty());
    EXPECT_FALSE(Buffer::remove(sourceOf(failing.given)));
    EXPECT_TRUE(writer.createdBuffer().empty());

    writer.set(std::make_shared<ExcMessage>(L"inline"));
    std::wostream inlineFailing(&failing);
    EXPECT_THROW(writer.writeObject(inlineFailing), std::runtime_error);
}

} // namespace
} // namespace hrm
