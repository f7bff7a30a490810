#include <hrm_api/hrm_api_exchange_object.h>

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_json_binary.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_shared_buffer.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_exchange_types.h"
#include "hrm_api/hrm_api_json_members.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/uuid_io.hpp>

#include <map>
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
    std::vector<char> bytes;
    mp::SharedBuffer<char>(m_source, false, mp::SharedBuffer<char>::Open::Existing)
        .read(bytes, Compressor::decompressedSizeLimit());
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
// object asks for it) into a new shared-memory buffer and returns the buffer's name.
std::wstring writeToSharedMemory(const IExchangeObject& object, JsonAllocator& allocator)
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
    const std::wstring name = IExchangeObject::generateUUID();
    mp::SharedBuffer<char>(name, false).write(bytes.data(), bytes.size());
    return name;
}

} // namespace

void ExchangeObjectWrapper::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    if (!m_pObject)
        throw std::invalid_argument("ExchangeObjectWrapper::writeObject > m_pObject == nullptr");

    JsonDocument envelope(rapidjson::kObjectType);
    MemberWriter members(envelope, envelope.GetAllocator());
    members.string(L"exchange_object_name", m_pObject->objectName());
    if (m_pObject->binary())
        members.boolean(L"binary", true)
            .string(L"exchange_object_data", writeToSharedMemory(*m_pObject, envelope.GetAllocator()));
    else
        members.object(L"exchange_object_data", *m_pObject);
    JsonTextIO::write(out, envelope, false);
}

void ExchangeObjectWrapper::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument envelope;
    readObjectDocument(in, envelope);

    const MemberReader members(envelope);
    const JsonValue* name = members.find(L"exchange_object_name");
    m_pObject = name && name->IsString() ? ExchangeObjectRegistry::instance().get(wideString(*name)) : nullptr;
    if (!m_pObject)
        return;

    const JsonValue* data = members.find(L"exchange_object_data");
    if (!data) {
        HRM_LOG(ax_herm::Error) << "ExchangeObjectWrapper JSON object has no Exchange Object data.";
        return;
    }
    const JsonValue* binary = members.find(L"binary");
    if (!binary || !binary->IsTrue()) {
        m_pObject->readObject(*data);
        return;
    }
    if (!data->IsString()) {
        HRM_LOG(ax_herm::Error)
            << "ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data field (if binary).";
        return;
    }
    m_pObject->setSource(wideString(*data));
    if (!m_delayedLoading)
        loadObject();
}

void ExchangeObjectWrapper::loadObject()
{
    if (!m_removeAfterLoading || !m_pObject->binary()) {
        m_pObject->load();
        return;
    }
    // The buffer goes whether the load succeeds or throws: a corrupt payload is of no more use.
    struct Removal
    {
        const std::wstring& name;
        ~Removal() { mp::SharedBuffer<char>::remove(name); }
    } removal{m_pObject->source()};
    m_pObject->load();
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
