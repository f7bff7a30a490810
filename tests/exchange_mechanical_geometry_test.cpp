#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "support/size_limit.h"
#if HRM_HAS_MODELER
#include "support/tagged_bodies.h"
#endif

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

namespace hrm {
namespace {

using Buffer = mp::SharedBuffer<char>;
using Messages = std::vector<std::string>;
using test::expectMessage;
using test::LogCapture;
using test::readText;
using test::toText;

// Removes the named shared-memory object at the end of a test, whatever happened to it.
struct Removed
{
    std::wstring name = IExchangeObject::generateUUID();
    ~Removed() { Buffer::remove(name); }
};

bool exists(const std::wstring& name)
{
    try {
        Buffer(name, false, Buffer::Open::Existing);
        return true;
    } catch (const mp::SharedMemoryException&) {
        return false;
    }
}

std::vector<char> objectBytes(const std::wstring& name)
{
    std::vector<char> bytes;
    Buffer(name, false, Buffer::Open::Existing).read(bytes);
    return bytes;
}

std::string staged(ExcSharedAcisBuffer& buffer)
{
    buffer.goto_mark(0);
    std::string bytes(1 << 16, '\0');
    bytes.resize(buffer.read(&bytes[0], bytes.size(), 0));
    return bytes;
}

void stage(ExcSharedAcisBuffer& buffer, const std::string& bytes)
{
    buffer.write(bytes.data(), bytes.size(), 0);
}

// The bytes a fresh buffer loads from an object holding `payload`.
std::string loaded(const std::string& payload)
{
    Removed object;
    Buffer(object.name, false, Buffer::Open::Create).write(payload.data(), payload.size());
    ExcSharedAcisBuffer buffer(object.name, false);
    buffer.load();
    return staged(buffer);
}

TEST(ExcSharedAcisBuffer, PrimitivesReadWriteAndMoveOneCursor)
{
    ExcSharedAcisBuffer buffer(L"unused", false);
    stage(buffer, "abcdef");
    EXPECT_EQ(buffer.set_mark(), 6);
    EXPECT_EQ(buffer.goto_mark(2), 2);
    stage(buffer, "XYZ"); // over what is there
    EXPECT_EQ(buffer.set_mark(), 5);
    char bytes[8];
    EXPECT_EQ(buffer.read(bytes, sizeof bytes, 0), 1u);
    EXPECT_EQ(bytes[0], 'f');
    EXPECT_EQ(buffer.read(bytes, sizeof bytes, 0), 0u);
    EXPECT_EQ(buffer.goto_mark(-3), 0);
    EXPECT_EQ(buffer.goto_mark(100), 6);
    stage(buffer, "gh"); // and beyond
    EXPECT_EQ(staged(buffer), "abXYZfgh");
    buffer.cleanUp();
    EXPECT_EQ(staged(buffer), "");
}

TEST(ExcSharedAcisBuffer, FlushAndLoadRecogniseCompressionByItsHeader)
{
    const std::string payload(5000, 'g');
    for (const bool compress : {true, false}) {
        Removed object;
        ExcSharedAcisBuffer writer(object.name, false);
        stage(writer, payload);
        writer.flush(compress);
        const std::vector<char> held = objectBytes(object.name);
        EXPECT_EQ(held.size() < payload.size(), compress);
        EXPECT_EQ(Compressor::isCompressed(held.data(), held.size()), compress);
        ExcSharedAcisBuffer reader(object.name, false);
        reader.load();
        EXPECT_EQ(staged(reader), payload);
    }

    // An empty stream leaves an object of size 0, which loads as nothing.
    Removed empty;
    ExcSharedAcisBuffer writer(empty.name, false);
    writer.flush(true);
    EXPECT_TRUE(exists(empty.name));
    EXPECT_TRUE(objectBytes(empty.name).empty());
    EXPECT_EQ(loaded(""), "");

    // The header needs more than 2 bytes; raw data that starts like zlib is taken for zlib.
    EXPECT_EQ(loaded("\x78\x9c"), "\x78\x9c");
    EXPECT_EQ(loaded("SAB\x78\x01"), "SAB\x78\x01");
    EXPECT_THROW(loaded("\x78\x01 not deflate"), std::runtime_error);
}

TEST(ExcSharedAcisBuffer, KeepsTheSharedMemoryRules)
{
    // Loading a missing object throws and leaves no object behind.
    Removed missing;
    ExcSharedAcisBuffer reader(missing.name, true);
    EXPECT_THROW(reader.load(), mp::SharedMemoryException);
    EXPECT_FALSE(exists(missing.name));

    // A planted object of the name is not adopted, and not removed.
    Removed planted;
    Buffer(planted.name, false, Buffer::Open::Create).write("mine", 4);
    {
        ExcSharedAcisBuffer writer(planted.name, true);
        stage(writer, "theirs");
        EXPECT_THROW(writer.flush(false), mp::SharedMemoryException);
    }
    EXPECT_EQ(objectBytes(planted.name), (std::vector<char>{'m', 'i', 'n', 'e'}));

    // Each flush after the first writes the object again; what is larger than the size limit is
    // not loaded.
    Removed large;
    ExcSharedAcisBuffer writer(large.name, false);
    stage(writer, "0123456789");
    writer.flush(false);
    stage(writer, "abcdefghij");
    writer.flush(false);
    EXPECT_EQ(objectBytes(large.name).size(), 20u);
    const test::SizeLimit limit(16);
    expectMessage<mp::SharedMemoryException>([&] { ExcSharedAcisBuffer(large.name, false).load(); },
                                             "Shared buffer is larger than the size limit");
}

TEST(ExcSharedAcisBuffer, RemovesItsObjectOnlyWhenAsked)
{
    for (const bool remove : {false, true}) {
        Removed object;
        {
            ExcSharedAcisBuffer writer(object.name, false);
            writer.setRemoveOnDestroy(remove);
            stage(writer, remove ? "x" : ""); // an empty flush keeps the object open
            writer.flush(false);
            EXPECT_TRUE(exists(object.name));
        }
        EXPECT_EQ(exists(object.name), !remove);
    }
}

TEST(ExcBlockGeometry, JsonAndItsMessages)
{
    LogCapture log;
    ExcBlockGeometry geometry;
    EXPECT_EQ(toText(geometry), LR"({"block_id":0,"shared_acis_buffer_name":null})");
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"ExcBlockGeometry: ACIS buffer was not initialized in shared memory."});

    // A bad block id is reported and kept; the name is taken all the same (but, with no buffer
    // behind it, not written).
    log.clear();
    geometry.setBlockId(9);
    readText(geometry, LR"({"block_id":-1,"shared_acis_buffer_name":"x"})");
    EXPECT_EQ(geometry.blockId(), 9u);
    EXPECT_EQ(geometry.source(), L"x");
    EXPECT_FALSE(geometry.isLoaded());
    readText(geometry, LR"({"block_id":12,"shared_acis_buffer_name":7})");
    readText(geometry, LR"([])");
    EXPECT_EQ(geometry.blockId(), 12u);
    EXPECT_EQ(geometry.source(), L"x");
    EXPECT_EQ(log.messages(ax_herm::Error), (Messages{"ExcBlockGeometry: Failed to read block Id from JSON object.",
                                                      "ExcBlockGeometry: Failed to read shared memory buffer name.",
                                                      "ExcBlockGeometry object should have a JSON object type."}));

    // It travels inline, and the registry hands out copies.
    EXPECT_TRUE(geometry.setBinaryData("abc", 3, false));
    const std::wstring name = geometry.source();
    const Removed removed{name};
    ExchangeObjectWrapper wrapper;
    wrapper.set(std::make_shared<ExcBlockGeometry>(geometry));
    std::wostringstream envelope;
    wrapper.writeObject(envelope);
    EXPECT_EQ(envelope.str(), L"{\"exchange_object_name\":\"exc_block_geometry\",\"exchange_object_data\":"
                              L"{\"block_id\":12,\"shared_acis_buffer_name\":\"" + name + L"\"}}");
    const auto fresh = ExchangeObjectRegistry::instance().get(ExcBlockGeometry::objName());
    ASSERT_TRUE(fresh);
    EXPECT_FALSE(fresh->binary() || fresh->compress());
    const auto copy = std::dynamic_pointer_cast<ExcBlockGeometry>(geometry.clone());
    ASSERT_TRUE(copy);
    EXPECT_EQ(copy->buffer(), geometry.buffer());
}

TEST(ExcBlockGeometry, BinaryDataReachesTheReaderAndTheOwnerRemovesIt)
{
    ExcBlockGeometry writer;
    writer.setBlockId(4);
    ASSERT_TRUE(writer.setBinaryData("first", 5, true));
    const Removed first{writer.source()};
    ASSERT_TRUE(writer.setBinaryData("second", 6, true));
    const Removed second{writer.source()};
    EXPECT_NE(first.name, second.name);
    EXPECT_EQ(toText(writer), L"{\"block_id\":4,\"shared_acis_buffer_name\":\"" + second.name + L"\"}");
    EXPECT_TRUE(exists(first.name)); // not owned: nobody removes it

    for (const bool owner : {false, true}) {
        {
            ExcBlockGeometry reader;
            readText(reader, toText(writer));
            reader.load();
            EXPECT_TRUE(reader.isLoaded());
            EXPECT_EQ(staged(*reader.buffer()), "second");
            reader.own(owner);
            const ExcBlockGeometry copy = reader;
            reader = ExcBlockGeometry();
            EXPECT_TRUE(exists(second.name)); // the copy still holds the buffer
        }
        EXPECT_EQ(exists(second.name), !owner);
    }

    // Only names of the form the library makes are opened.
    ExcBlockGeometry reader;
    readText(reader, LR"({"block_id":1,"shared_acis_buffer_name":"../victim"})");
    expectMessage<mp::SharedMemoryException>([&] { reader.load(); },
                                             "ExcBlockGeometry: shared memory buffer name is not a UUID");
    EXPECT_FALSE(reader.isLoaded());
}

#if HRM_HAS_MODELER

TEST(ExcBlockGeometry, BodiesTravelWithTheirIdentities)
{
    test::OwnedEntities sent;
    test::addTaggedBodies(sent.list, {42, 43});
    for (const bool compress : {true, false}) {
        ExcBlockGeometry writer;
        ASSERT_TRUE(writer.setGeometry(sent.list, compress));
        const Removed removed{writer.source()};
        EXPECT_EQ(Compressor::isCompressed(objectBytes(removed.name).data(), objectBytes(removed.name).size()), compress);

        ExcBlockGeometry reader;
        readText(reader, toText(writer));
        reader.load();
        test::OwnedEntities received;
        ASSERT_TRUE(reader.getGeometry(received.list));
        EXPECT_EQ(test::taggedIds(received.list), (std::vector<long>{42, 43}));
        EXPECT_STREQ(restored_file_info().product_id(), "Ardenix Hermetor");
        EXPECT_EQ(restored_file_info().units(), 1.0);
        // Each call restores the staged bytes from their start, appending.
        ASSERT_TRUE(reader.getGeometry(received.list));
        EXPECT_EQ(received.list.count(), 4);
    }
}

TEST(ExcBlockGeometry, ModelerFailuresAreLoggedNotThrown)
{
    LogCapture log;
    ExcBlockGeometry geometry;
    ENTITY_LIST entities;
    EXPECT_FALSE(geometry.getGeometry(entities));

    EXPECT_TRUE(geometry.setBinaryData(nullptr, 0, true));
    const Removed empty{geometry.source()};
    geometry.load();
    EXPECT_FALSE(geometry.getGeometry(entities));

    const std::string garbage = "not geometry at all";
    EXPECT_TRUE(geometry.setBinaryData(garbage.data(), garbage.size(), false));
    const Removed bad{geometry.source()};
    EXPECT_FALSE(geometry.getGeometry(entities));
    EXPECT_EQ(entities.count(), 0);
    EXPECT_EQ(log.messages(ax_herm::Error), (Messages{"Failed to get geometry from shared memory buffer: Invalid buffer object.",
                                                      "Failed to get geometry from shared memory buffer: unexpected end of saved data",
                                                      "Failed to get geometry from shared memory buffer: data is not a saved entity list"}));

    const long huge = std::numeric_limits<long>::max();
    if (huge > std::numeric_limits<int32_t>::max()) { // an id beyond the file format's 32 bits fails the save
        log.clear();
        test::OwnedEntities sent;
        test::addTaggedBodies(sent.list, {huge});
        EXPECT_FALSE(geometry.setGeometry(sent.list, true));
        EXPECT_EQ(log.messages(ax_herm::Error),
                  Messages{"Failed to write geometry into shared ACIS buffer: value out of range for saved data"});
        Buffer::remove(geometry.source());
    }
}

TEST(ExcBlockGeometry, RestoringCutOrChangedDataFailsCleanly)
{
    test::OwnedEntities sent;
    test::addTaggedBodies(sent.list, {1, 2, 3});
    ExcBlockGeometry writer;
    ASSERT_TRUE(writer.setGeometry(sent.list, false));
    const Removed removed{writer.source()};
    const std::string whole = staged(*writer.buffer());

    // Every prefix, and every byte changed, either restores or fails; nothing made is left over
    // (the sanitizer build checks the leaks).
    LogCapture quiet;
    const auto restores = [](const std::string& bytes) {
        ExcSharedAcisBuffer buffer(L"unused", false);
        stage(buffer, bytes);
        buffer.goto_mark(0);
        test::OwnedEntities received;
        const outcome result = api_restore_entity_list_file(&buffer, received.list);
        EXPECT_EQ(result.ok(), received.list.count() > 0);
        return result.ok();
    };
    EXPECT_TRUE(restores(whole));
    for (size_t size = 0; size < whole.size(); ++size)
        EXPECT_FALSE(restores(whole.substr(0, size))) << size;
    for (size_t at = 0; at < whole.size(); ++at) {
        std::string changed = whole;
        changed[at] = static_cast<char>(changed[at] ^ 0x5a);
        restores(changed);
    }
}

#endif

} // namespace
} // namespace hrm
