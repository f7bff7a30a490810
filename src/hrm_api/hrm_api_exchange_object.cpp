#include <hrm_api/hrm_api_exchange_object.h>

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_json_binary.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include "hrm_api/hrm_api_buffer_name.h"
#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_exchange_types.h"
#include "hrm_api/hrm_api_json_members.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <map>
#include <sstream>
#include <stdexcept>
#include <vector>

namespace hrm {

// ---- IExchangeObject ----------------------------------------------------------------------

void IExchangeObject::load()
{
    HRM_TRACE();
    if (m_loaded || m_source.empty() || !binary())
        return;

    // A missing buffer is an error here; opening it must not leave an empty one behind. The
    // size limit on decompressed data bounds the raw payload as well.
    mp::SharedBuffer<char> buffer(m_source, false, mp::SharedBuffer<char>::Open::Existing);
    std::vector<char> bytes;
    {
        // Once read (or found unreadable), the buffer is of no more use to its reader.
        struct Removal
        {
            mp::SharedBuffer<char>& buffer;
            bool wanted;
            ~Removal()
            {
                if (wanted)
                    buffer.removeOwned();
            }
        } removal{buffer, m_removeSource};
        buffer.read(bytes, Compressor::decompressedSizeLimit());
    }
    if (Compressor::isCompressed(bytes.data(), bytes.size())) {
        std::vector<char> inflated;
        Compressor::decompress(inflated, bytes.data(), bytes.size());
        bytes.swap(inflated);
    }

    JsonDocument document;
    JsonBinaryIO::decode(bytes.data(), bytes.size(), document, document.GetAllocator());
    readObject(document);
    m_loaded = true;
}

std::wstring IExchangeObject::generateUUID()
{
    // A generator per call: each draws its bytes straight from the platform's random source.
    boost::uuids::random_generator generator;
    return boost::uuids::to_wstring(generator());
}

// ---- ExchangeObjectRegistry ---------------------------------------------------------------

class ExchangeObjectRegistry::Prototypes : public std::map<std::wstring, IExchangeObject*, Utf16Less>
{
};

ExchangeObjectRegistry::ExchangeObjectRegistry() : m_prototypes(std::make_unique<Prototypes>())
{
    addLibraryTypes(*this);
}

ExchangeObjectRegistry::~ExchangeObjectRegistry() = default;

ExchangeObjectRegistry& ExchangeObjectRegistry::instance()
{
    static ExchangeObjectRegistry registry;
    return registry;
}

void ExchangeObjectRegistry::add(IExchangeObject* prototype)
{
    if (prototype)
        (*m_prototypes)[prototype->objectName()] = prototype;
}

void ExchangeObjectRegistry::remove(IExchangeObject* prototype)
{
    if (prototype)
        m_prototypes->erase(prototype->objectName());
}

std::shared_ptr<IExchangeObject> ExchangeObjectRegistry::get(const std::wstring& name) const
{
    const auto it = m_prototypes->find(name);
    return it != m_prototypes->end() ? it->second->clone() : nullptr;
}

std::vector<std::wstring> ExchangeObjectRegistry::names() const
{
    std::vector<std::wstring> names;
    names.reserve(m_prototypes->size());
    for (const auto& entry : *m_prototypes)
        names.push_back(entry.first);
    return names;
}

// ---- ExchangeObjectWrapper ----------------------------------------------------------------

namespace {

// Puts the binary JSON of `object` (gzip-compressed as Compressor::compression() says, when the
// object asks for it) into a new shared-memory buffer, created exclusively under a new name, and
// returns it open.
mp::SharedBuffer<char> writeToSharedMemory(const IExchangeObject& object, JsonAllocator& allocator)
{
    JsonValue value;
    object.writeObject(value, allocator);
    std::vector<char> bytes;
    JsonBinaryIO::encode(value, bytes);
    if (object.compress()) {
        std::vector<char> compressed;
        Compressor::compress(compressed, bytes.data(), bytes.size(), Compressor::compression());
        bytes.swap(compressed);
    }
    mp::SharedBuffer<char> buffer(IExchangeObject::generateUUID(), false, mp::SharedBuffer<char>::Open::Create);
    try {
        buffer.write(bytes.data(), bytes.size());
    } catch (...) {
        buffer.removeOwned();
        throw;
    }
    return buffer;
}

void failedWrite()
{
    throw std::runtime_error("Cannot write object into json document");
}

// Writes the envelope of `object` and returns the name of the shared-memory buffer it created
// for a binary object (empty for an inline one). A buffer whose envelope could not be written
// is removed again.
std::wstring writeEnvelope(const IExchangeObject& object, std::wostream& out)
{
    if (!out)
        failedWrite(); // before a buffer that nobody would learn of is made

    JsonDocument envelope(rapidjson::kObjectType);
    MemberWriter members(envelope, envelope.GetAllocator());
    members.string(L"exchange_object_name", object.objectName());
    if (!object.binary()) {
        members.object(L"exchange_object_data", object);
        if (!JsonTextIO::write(out, envelope, false))
            failedWrite();
        return {};
    }
    mp::SharedBuffer<char> buffer = writeToSharedMemory(object, envelope.GetAllocator());
    members.boolean(L"binary", true).string(L"exchange_object_data", buffer.name());
    try {
        if (!JsonTextIO::write(out, envelope, false))
            failedWrite();
    } catch (...) {
        buffer.removeOwned(); // the reader will never learn of it
        throw;
    }
    return buffer.name();
}

} // namespace

void ExchangeObjectWrapper::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    m_createdBuffer.clear();
    if (!m_pObject)
        throw std::invalid_argument("ExchangeObjectWrapper::writeObject > m_pObject == nullptr");
    m_createdBuffer = writeEnvelope(*m_pObject, out);
}

void ExchangeObjectWrapper::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument envelope;
    readObjectDocument(in, envelope);

    const MemberReader members(envelope);
    const JsonValue* name = members.find(L"exchange_object_name");
    const JsonValue* data = members.find(L"exchange_object_data");
    const JsonValue* binary = members.find(L"binary");
    const bool announced = binary && binary->IsTrue();
    const std::wstring buffer = announced && data && data->IsString() ? wideString(*data) : std::wstring();
    const bool hasBuffer = isBufferName(buffer);

    m_pObject = name && name->IsString() ? ExchangeObjectRegistry::instance().get(wideString(*name)) : nullptr;
    if (!m_pObject) {
        if (hasBuffer)
            discard(buffer);
        return;
    }
    if (!data) {
        HRM_LOG(ax_herm::Error) << "ExchangeObjectWrapper JSON object has no Exchange Object data.";
        return;
    }
    if (!announced) {
        m_pObject->readObject(*data);
        return;
    }
    if (!hasBuffer) {
        HRM_LOG(ax_herm::Error)
            << "ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data field (if binary).";
        return;
    }
    m_pObject->setSource(buffer);
    if (!m_pObject->binary()) {
        discard(buffer); // load() does nothing for a type that travels inline
        return;
    }
    m_pObject->setRemoveSourceAfterLoading(m_removeAfterLoading);
    if (!m_delayedLoading)
        m_pObject->load();
}

// Such a name means the same object on every platform (Windows would take "ABC" and "abc" for
// one).
bool ExchangeObjectWrapper::isBufferName(const std::wstring& name)
{
    if (name.size() != 36)
        return false;
    for (size_t i = 0; i < name.size(); ++i) {
        const wchar_t ch = name[i];
        const bool hyphen = i == 8 || i == 13 || i == 18 || i == 23;
        if (hyphen ? ch != L'-' : !((ch >= L'0' && ch <= L'9') || (ch >= L'a' && ch <= L'f')))
            return false;
    }
    return true;
}

// Removes an announced buffer that this reader will not load, if removal is on and the buffer
// is this user's own.
void ExchangeObjectWrapper::discard(const std::wstring& buffer) const
{
    if (!m_removeAfterLoading)
        return;
    try {
        mp::SharedBuffer<char>(buffer, false, mp::SharedBuffer<char>::Open::Existing).removeOwned();
    } catch (const mp::SharedMemoryException&) {
        // gone already, or not ours to open
    }
}

// ---- The envelope in one call ----------------------------------------------------------------

std::wstring toEnvelope(const IExchangeObject& object, std::wstring* createdBuffer)
{
    HRM_TRACE();
    std::wostringstream out;
    const std::wstring created = writeEnvelope(object, out);
    if (createdBuffer)
        *createdBuffer = created;
    return out.str();
}

ExchangeObjectWrapper fromEnvelope(const std::wstring& envelope)
{
    HRM_TRACE();
    ExchangeObjectWrapper wrapper;
    std::wistringstream in(envelope);
    wrapper.readObject(in);
    return wrapper;
}

// ---- Status objects -----------------------------------------------------------------------

template <class Members>
void ExcMessageBase::members(Members& m)
{
    m.string(L"message", m_message);
}
HRM_MEMBER_IO(ExcMessageBase, nullptr)

bool ExcProgress::operator==(const ExcProgress& other) const
{
    return m_progress == other.m_progress && m_progressMax == other.m_progressMax && m_stage == other.m_stage;
}

template <class Members>
void ExcProgress::members(Members& m)
{
    m.int32(L"progress", m_progress).int32(L"progress_max", m_progressMax).boolean(L"pulse", m_pulse).string(L"stage", m_stage);
}
HRM_MEMBER_IO(ExcProgress, nullptr)

HRM_ENUM_STRINGS(ExcStageFinished::EStage,
    {ExcStageFinished::EStage::Unknown, L"unknown"},
    {ExcStageFinished::EStage::ProductStructure, L"product_structure"},
    {ExcStageFinished::EStage::RootVisualization, L"root_visualization"},
    {ExcStageFinished::EStage::Visualization, L"visualization"},
    {ExcStageFinished::EStage::RootMechanical, L"root_mechanical"},
    {ExcStageFinished::EStage::Mechanical, L"mechanical"},
    {ExcStageFinished::EStage::VisuAndMech, L"visu_and_mech"})

void ExcStageFinished::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (value.IsString())
        m_stage = enumFromString<EStage>(wideString(value));
}

void ExcStageFinished::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value = jsonString(enumToString(m_stage), allocator);
}

// Reading does not follow the usual rule for unknown words: every word outside the table is Unknown.
HRM_ENUM_STRINGS_UNKNOWN_AS(Result::ECode, Result::ECode::Unknown,
    {Result::ECode::Unknown, L"unknown"},
    {Result::ECode::Ok, L"ok"},
    {Result::ECode::Warning, L"warning"},
    {Result::ECode::Error, L"error"},
    {Result::ECode::Interrupted, L"interrupted"})

void Result::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    JsonDocument document(rapidjson::kObjectType);
    MemberWriter(document, document.GetAllocator())
        .enumeration(L"code", m_code)
        .writtenIf(!m_message.empty())
        .string(L"message", m_message)
        .boolean(L"is_finished", m_finished);
    JsonTextIO::write(out, document, true);
}

void Result::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument document;
    readObjectDocument(in, document);
    MemberReader members(document);
    const JsonValue* code = members.find(L"code");
    if (!code)
        throw std::invalid_argument("Json document has no result code.");

    m_code = code->IsString() ? enumFromJson<ECode>(*code) : ECode::Unknown;
    members.string(L"message", m_message);
    // Any value but the literal true, once present, means not finished.
    if (const JsonValue* finished = members.find(L"is_finished"))
        m_finished = finished->IsTrue();
}

// ---- Legacy component maps ----------------------------------------------------------------

bool LegacyComponentInstanceNames::addInstanceName(const OdDbHandle& handle, const std::wstring& name)
{
    m_map[handle] = name;
    return true;
}

void LegacyComponentInstanceNames::merge(const LegacyComponentInstanceNames& other)
{
    m_map.insert(other.m_map.begin(), other.m_map.end());
}

void LegacyComponentInstanceNames::readObject(const JsonValue& value)
{
    if (!value.IsArray())
        throw std::invalid_argument("LegacyComponentInstanceNames::readObject(): Input json object is not an array");
    for (const JsonValue& element : value.GetArray()) {
        if (!element.IsObject())
            continue;
        const MemberReader entry(element);
        const JsonValue* handle = entry.find(L"component_handle");
        const JsonValue* name = entry.find(L"component_name");
        if (handle && handle->IsUint64() && name && name->IsString())
            addInstanceName(handle->GetUint64(), wideString(*name));
    }
}

void LegacyComponentInstanceNames::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    value.SetArray();
    for (const auto& [handle, name] : m_map) {
        JsonValue entry(rapidjson::kObjectType);
        MemberWriter(entry, allocator).uint64(L"component_handle", handle).string(L"component_name", name);
        value.PushBack(entry, allocator);
    }
}

bool LegacyMaterialMap::Material::operator==(const Material& other) const
{
    return hasMaterial == other.hasMaterial && name == other.name && density == other.density &&
           thermalConductivity == other.thermalConductivity && specificHeat == other.specificHeat;
}

bool LegacyMaterialMap::addMaterial(const OdDbHandle& handle, const Material& material)
{
    m_map[handle] = material;
    return true;
}

void LegacyMaterialMap::merge(const LegacyMaterialMap& other)
{
    m_map.insert(other.m_map.begin(), other.m_map.end());
}

// The material's members, one list for both directions.
template <class Members, class Material>
void materialMembers(Members& m, Material& material)
{
    m.boolean(L"has_material", material.hasMaterial)
        .string(L"name", material.name)
        .storedDouble(L"density", material.density)
        .storedDouble(L"thermal_conductivity", material.thermalConductivity)
        .storedDouble(L"specific_heat", material.specificHeat);
}

void LegacyMaterialMap::readObject(const JsonValue& value)
{
    if (!value.IsArray())
        throw std::invalid_argument("LegacyMaterialMap::readObject(): Input json object is not an array");
    for (const JsonValue& element : value.GetArray()) {
        if (!element.IsObject())
            continue;
        const MemberReader entry(element);
        const JsonValue* handle = entry.find(L"component_handle");
        const JsonValue* fields = entry.find(L"component_material");
        if (!handle || !handle->IsUint64() || !fields || !fields->IsObject())
            continue;
        Material material;
        MemberReader in(*fields);
        materialMembers(in, material);
        addMaterial(handle->GetUint64(), material);
    }
}

void LegacyMaterialMap::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    value.SetArray();
    for (const auto& [handle, material] : m_map) {
        JsonValue fields(rapidjson::kObjectType);
        MemberWriter out(fields, allocator);
        materialMembers(out, material);
        JsonValue entry(rapidjson::kObjectType);
        MemberWriter(entry, allocator).uint64(L"component_handle", handle).add(L"component_material", std::move(fields));
        value.PushBack(entry, allocator);
    }
}

} // namespace hrm
