#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>

#include <hrm_api/hrm_api_acis_attrib_id.h>
#include <hrm_api/hrm_api_compression.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_exception.h>

#include "hrm_api/hrm_api_buffer_name.h"
#include "hrm_api/hrm_api_json_members.h"

#include <algorithm>
#include <cstring>

namespace hrm {

#if !HRM_HAS_MODELER
modeler::BinaryFile::~BinaryFile() = default;
#endif

// ---- ExcSharedAcisBuffer ------------------------------------------------------------------

ExcSharedAcisBuffer::ExcSharedAcisBuffer(const std::wstring& name, bool removeOnDestroy)
    : m_name(name), m_removeOnDestroy(removeOnDestroy)
{
}

ExcSharedAcisBuffer::~ExcSharedAcisBuffer()
{
    if (m_removeOnDestroy && m_opened)
        removeObject();
}

// Removes the named object if it is this user's own. Only an object this buffer has created or
// opened is removed (not one planted under the name that flush() refused to adopt); one still
// held open (after an empty flush) only while the name still refers to it.
void ExcSharedAcisBuffer::removeObject() noexcept
{
    try {
        if (!m_shared)
            m_shared = std::make_unique<mp::SharedBuffer<char>>(m_name, false, mp::SharedBuffer<char>::Open::Existing);
        m_shared->removeOwned();
    } catch (const mp::SharedMemoryException&) {
        // gone already, or never made
    }
    m_shared.reset();
}

void ExcSharedAcisBuffer::flush(bool compress)
{
    HRM_TRACE();
    m_shared.reset();
    const bool creating = !m_opened;
    auto shared = std::make_unique<mp::SharedBuffer<char>>(
        m_name, false, creating ? mp::SharedBuffer<char>::Open::Create : mp::SharedBuffer<char>::Open::Existing);
    m_opened = true;
    try {
        if (m_stream.empty()) {
            shared->clear();
            m_shared = std::move(shared);
        } else if (compress) {
            std::vector<char> compressed;
            Compressor::compress(compressed, m_stream.data(), m_stream.size(), Compressor::compression());
            shared->write(compressed.data(), compressed.size());
        } else {
            shared->write(m_stream.data(), m_stream.size());
        }
    } catch (...) {
        if (creating && shared) {
            shared->removeOwned(); // nobody will learn of it
            m_opened = false;
        }
        throw;
    }
}

void ExcSharedAcisBuffer::load()
{
    HRM_TRACE();
    m_shared.reset();
    // A missing object is an error; opening it must not leave an empty one behind.
    const mp::SharedBuffer<char> shared(m_name, false, mp::SharedBuffer<char>::Open::Existing);
    m_opened = true;
    m_stream.clear();
    m_position = 0;
    std::vector<char> bytes;
    shared.read(bytes, Compressor::decompressedSizeLimit());
    if (Compressor::isCompressed(bytes.data(), bytes.size())) {
        std::vector<char> inflated;
        Compressor::decompress(inflated, bytes.data(), bytes.size());
        bytes.swap(inflated);
    }
    m_stream.swap(bytes);
}

void ExcSharedAcisBuffer::cleanUp()
{
    m_shared.reset();
    std::vector<char>().swap(m_stream);
    m_position = 0;
}

modeler::FilePosition ExcSharedAcisBuffer::set_mark()
{
    return static_cast<modeler::FilePosition>(m_position);
}

modeler::FilePosition ExcSharedAcisBuffer::goto_mark(modeler::FilePosition position)
{
    m_position = position < 0 ? 0 : std::min(static_cast<size_t>(position), m_stream.size());
    return set_mark();
}

size_t ExcSharedAcisBuffer::read(void* buffer, size_t length, modeler::logical)
{
    const size_t count = std::min(length, m_stream.size() - m_position);
    if (count != 0)
        std::memcpy(buffer, m_stream.data() + m_position, count);
    m_position += count;
    return count;
}

void ExcSharedAcisBuffer::write(const void* data, size_t length, modeler::logical)
{
    const auto* bytes = static_cast<const char*>(data);
    const size_t overwritten = std::min(length, m_stream.size() - m_position);
    if (overwritten != 0)
        std::memcpy(m_stream.data() + m_position, bytes, overwritten);
    m_stream.insert(m_stream.end(), bytes + overwritten, bytes + length);
    m_position += length;
}

// ---- ExcBlockGeometry ---------------------------------------------------------------------

void ExcBlockGeometry::own(bool owner)
{
    m_own = owner;
    if (m_buffer)
        m_buffer->setRemoveOnDestroy(owner);
}

// Replaces the buffer by a new one under a new name (the old one goes when no copy holds it).
ExcSharedAcisBuffer& ExcBlockGeometry::newBuffer()
{
    m_source = generateUUID();
    m_buffer = std::make_shared<ExcSharedAcisBuffer>(m_source, m_own);
    return *m_buffer;
}

#if HRM_HAS_MODELER

namespace {

// The modeler's message of a failed outcome (empty without details).
const char* modelerMessage(const outcome& result)
{
    const error_info_base* info = result.get_error_info();
    const char* message = info ? info->error_message() : nullptr;
    return message ? message : "";
}

outcome saveEntities(ExcSharedAcisBuffer& buffer, const ENTITY_LIST& entities)
{
    API_BEGIN
        FileInfo info;
        info.set_product_id("Ardenix Hermetor");
        info.set_units(1.0); // millimetres
        result = api_set_file_info(3, info); // product id and units
        check_outcome(result);
        result = api_save_entity_list_file(&buffer, entities);
    API_END
    return result;
}

outcome restoreEntities(ExcSharedAcisBuffer& buffer, ENTITY_LIST& entities)
{
    API_BEGIN
        result = api_restore_entity_list_file(&buffer, entities);
    API_END
    return result;
}

} // namespace

bool ExcBlockGeometry::setGeometry(const ENTITY_LIST& entities, bool compress)
{
    HRM_TRACE();
    ExcSharedAcisBuffer& buffer = newBuffer();
    const outcome result = saveEntities(buffer, entities);
    if (!result.ok()) {
        HRM_LOG(ax_herm::Error) << "Failed to write geometry into shared ACIS buffer: " << modelerMessage(result);
        return false;
    }
    buffer.flush(compress);
    return true;
}

bool ExcBlockGeometry::getGeometry(ENTITY_LIST& entities) const
{
    HRM_TRACE();
    if (!m_buffer) {
        HRM_LOG(ax_herm::Error) << "Failed to get geometry from shared memory buffer: Invalid buffer object.";
        return false;
    }
    ATTRIB_HERMETOR_ID::staticType(); // registers the identity attributes for the restore
    m_buffer->goto_mark(0);
    const outcome result = restoreEntities(*m_buffer, entities);
    if (!result.ok()) {
        HRM_LOG(ax_herm::Error) << "Failed to get geometry from shared memory buffer: " << modelerMessage(result);
        return false;
    }
    return true;
}

#endif

bool ExcBlockGeometry::setBinaryData(const char* data, size_t size, bool compress)
{
    HRM_TRACE();
    try {
        ExcSharedAcisBuffer& buffer = newBuffer();
        buffer.write(data, data ? size : 0, 0);
        buffer.flush(compress);
        return true;
    } catch (const mp::SharedMemoryException& error) {
        HRM_LOG(ax_herm::Error) << "Work with shared ACIS buffer failed with message: " << error.what();
        return false;
    }
}

void ExcBlockGeometry::load()
{
    HRM_TRACE();
    if (!m_source.empty() && !isBufferName(m_source))
        throw mp::SharedMemoryException(L"ExcBlockGeometry: shared memory buffer name is not a UUID");
    if (!m_buffer || m_buffer->name() != m_source)
        m_buffer = std::make_shared<ExcSharedAcisBuffer>(m_source, m_own);
    m_buffer->load();
    m_loaded = true;
}

bool ExcBlockGeometry::isLoaded() const
{
    return m_loaded && m_buffer;
}

void ExcBlockGeometry::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsObject()) {
        HRM_LOG(ax_herm::Error) << "ExcBlockGeometry object should have a JSON object type.";
        return;
    }
    const MemberReader in(value);
    const JsonValue* id = in.find(L"block_id");
    if (id && id->IsUint64())
        m_blockId = id->GetUint64();
    else
        HRM_LOG(ax_herm::Error) << "ExcBlockGeometry: Failed to read block Id from JSON object.";
    const JsonValue* name = in.find(L"shared_acis_buffer_name");
    if (name && name->IsString()) {
        m_source = wideString(*name);
        m_loaded = false;
    } else {
        HRM_LOG(ax_herm::Error) << "ExcBlockGeometry: Failed to read shared memory buffer name.";
    }
}

void ExcBlockGeometry::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    if (!value.IsObject())
        value.SetObject();
    MemberWriter out(value, allocator);
    out.uint64(L"block_id", m_blockId);
    if (m_buffer) {
        out.string(L"shared_acis_buffer_name", m_buffer->name());
    } else {
        HRM_LOG(ax_herm::Error) << "ExcBlockGeometry: ACIS buffer was not initialized in shared memory.";
        out.add(L"shared_acis_buffer_name", JsonValue());
    }
}

} // namespace hrm
