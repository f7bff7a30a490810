#pragma once

/// @file
/// Geometry transfer: the modeler geometry (ACIS bodies) of one block travels in a named
/// shared-memory object, staged by ExcSharedAcisBuffer; ExcBlockGeometry is the exchange object
/// whose JSON names that object.

#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>
#include <hrm_api/hrm_api_modeler.h>
#include <mp/mp_shared_buffer.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// A binary file for the modeler whose bytes are staged in memory and moved to and from a named
/// shared-memory object as a whole. The modeler saves into it and restores from it through the
/// four stream primitives; flush() and load() move the bytes.
///
/// Shared memory: flush() creates the object exclusively the first time (a planted object of
/// the name makes it throw), and opens the existing one after a flush or load; load() opens an
/// existing object only and holds what it reads, raw and inflated, to
/// Compressor::decompressedSizeLimit(). Neither removes the object: with removeOnDestroy, the
/// destructor does, if this buffer has created or opened it and it is this user's own
/// (mp::SharedBuffer::removeOwned). Failures of the shared memory throw
/// mp::SharedMemoryException.
class HRM_API ExcSharedAcisBuffer : public modeler::BinaryFile
{
public:
    /// A buffer for the named object with an empty stream; nothing is opened yet.
    ExcSharedAcisBuffer(const std::wstring& name, bool removeOnDestroy);
    /// Removes the object when asked to (removeOnDestroy).
    ~ExcSharedAcisBuffer() override;
    ExcSharedAcisBuffer(const ExcSharedAcisBuffer&) = delete;
    ExcSharedAcisBuffer& operator=(const ExcSharedAcisBuffer&) = delete;

    /// Moves the staged bytes into the shared-memory object, gzip-compressed when `compress`
    /// (as Compressor::compression() says). An empty stream makes the object 0 bytes long, and
    /// the object then stays open until the next flush or load or the buffer's end.
    void flush(bool compress);
    /// Replaces the staged bytes by the object's, inflated when they begin with a zlib or gzip
    /// header and are more than 2 bytes long, and moves to position 0.
    void load();
    /// Releases the shared-memory object and empties the stream; removes nothing.
    void cleanUp();

    /// The name of the shared-memory object.
    const std::wstring& name() const { return m_name; }
    /// Whether the destructor removes the shared-memory object.
    bool removeOnDestroy() const { return m_removeOnDestroy; }
    /// Sets whether the destructor removes the shared-memory object.
    void setRemoveOnDestroy(bool remove) { m_removeOnDestroy = remove; }

    // The stream primitives follow; the position is where the next read or write happens.

    /// The current position.
    modeler::FilePosition set_mark() override;
    /// Moves to `position` (kept within the staged bytes) and answers the new position.
    modeler::FilePosition goto_mark(modeler::FilePosition position) override;
    /// Reads up to `length` bytes from the position and answers how many it read.
    size_t read(void* buffer, size_t length, modeler::logical swap) override;
    /// Writes `length` bytes at the position, over what is there and beyond.
    void write(const void* data, size_t length, modeler::logical swap) override;

private:
    void removeObject() noexcept;

    std::wstring m_name;
    bool m_removeOnDestroy;
    std::vector<char> m_stream;
    size_t m_position = 0;
    std::unique_ptr<mp::SharedBuffer<char>> m_shared; // open only while an empty flush keeps it
    bool m_opened = false; // the object has been created or opened by this buffer
};

/// The modeler geometry of one block: {"block_id": id, "shared_acis_buffer_name": name}. The
/// bodies themselves travel in a shared-memory object (ExcSharedAcisBuffer) whose name the JSON
/// holds. Travels inline in its envelope.
///
/// Sending: setBlockId, setGeometry (or setBinaryData), then the wrapper writes the JSON.
/// Receiving: the wrapper reads the JSON, then load(), own(true) and getGeometry(). The side
/// that owns the geometry (own(true)) removes the shared-memory object when its last copy of the
/// buffer goes; nobody else removes it.
///
/// Copies share the buffer; clone() is a copy.
class HRM_API ExcBlockGeometry : public ExchangeObjectType<ExcBlockGeometry, IExchangeObject, Cloning::Copy>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_block_geometry";

    /// The id of the block (ExcBlock) whose geometry this is.
    uint64_t blockId() const { return m_blockId; }
    /// Sets the id of the block.
    void setBlockId(uint64_t id) { m_blockId = id; }

    /// Makes this side the owner of the geometry, or not: the buffers this object makes from now
    /// on, and the current one, remove their shared-memory object when they go.
    void own(bool owner);

#if HRM_HAS_MODELER
    /// Saves `entities` (with the product id "Ardenix Hermetor" and 1 mm units) into a new
    /// shared-memory object under a new UUID, gzip-compressed when `compress`. A modeler failure
    /// is logged ("Failed to write geometry into shared ACIS buffer: " and the modeler's message)
    /// and answers false; the new buffer then stays with what was written. Failures of the shared
    /// memory throw mp::SharedMemoryException.
    bool setGeometry(const ENTITY_LIST& entities, bool compress);
    /// Restores the staged entities, from the start of the staged bytes, and appends them to
    /// `entities`. Without a buffer, or when the modeler fails, logs "Failed to get geometry from
    /// shared memory buffer: " with the reason and answers false; never throws.
    bool getGeometry(ENTITY_LIST& entities) const;
#endif

    /// Puts `size` bytes already in the modeler's save format into a new shared-memory object,
    /// as setGeometry does. A failure of the shared memory is logged ("Work with shared ACIS
    /// buffer failed with message: " and its message) and answers false.
    bool setBinaryData(const char* data, size_t size, bool compress);

    /// Stages the bytes of the shared-memory object named in the JSON. Only names of the form
    /// the library makes (canonical UUIDs) are opened; any other name, a missing object or one
    /// beyond the size limit throws mp::SharedMemoryException, corrupt compressed data the
    /// Compressor's exceptions, and the object stays unloaded.
    void load() override;
    /// Whether load() succeeded and a buffer is there.
    bool isLoaded() const override;
    /// The buffer that stages the geometry (null before setGeometry, setBinaryData or load),
    /// shared with the copies of this object.
    const std::shared_ptr<ExcSharedAcisBuffer>& buffer() const { return m_buffer; }

    /// A name that is missing or not a string, or a block id that is not an unsigned 64-bit
    /// integer, is logged at the error level and leaves its field; reading a name marks the
    /// object unloaded (the buffer is replaced by the next load()).
    void readObject(const JsonValue& value) override;
    /// Writes the name of the current buffer, or null (logged at the error level) without one.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    ExcSharedAcisBuffer& newBuffer();

    bool m_own = false;
    uint64_t m_blockId = 0;
    std::shared_ptr<ExcSharedAcisBuffer> m_buffer;
};

} // namespace hrm
