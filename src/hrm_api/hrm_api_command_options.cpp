#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_format_options.h>
#include <hrm_api/hrm_api_format_options_export.h>

#include "hrm_api/hrm_api_json_members.h"

#include <algorithm>

namespace hrm {
namespace {

std::shared_ptr<IFormatOptions> newCommonOptions(EFormatType format)
{
    switch (format) {
    case EFormatType::General: return std::make_shared<OptionsGeneral>();
    case EFormatType::Graphical: return std::make_shared<OptionsGraphical>();
    case EFormatType::Mechanical: return std::make_shared<OptionsMechanical>();
    case EFormatType::Modeler: return std::make_shared<OptionsModeler>();
    default: break;
    }
    HRM_LOG(ax_herm::Info) << "FormatOptions: Unknown common options type.";
    return nullptr;
}

std::shared_ptr<IFormatOptions> newImportOptions(EFormatType format)
{
    switch (format) {
    case EFormatType::Parasolid: return std::make_shared<imp::OptionsParasolid>();
    case EFormatType::CatiaV5: return std::make_shared<imp::OptionsCatiaV5>();
    case EFormatType::CatiaV5Drawing: return std::make_shared<imp::OptionsCatiaV5Drawing>();
    case EFormatType::CatiaV4: return std::make_shared<imp::OptionsCatiaV4>();
    case EFormatType::IGES: return std::make_shared<imp::OptionsIGES>();
    case EFormatType::STEP: return std::make_shared<imp::OptionsSTEP>();
    case EFormatType::Creo: return std::make_shared<imp::OptionsCreo>();
    case EFormatType::NX: return std::make_shared<imp::OptionsNX>();
    case EFormatType::SolidWorks: return std::make_shared<imp::OptionsSolidWorks>();
    case EFormatType::SolidWorksDrawing: return std::make_shared<imp::OptionsSolidWorksDrawing>();
    case EFormatType::SolidEdge: return std::make_shared<imp::OptionsSolidEdge>();
    case EFormatType::JT: return std::make_shared<imp::OptionsJT>();
    case EFormatType::Inventor: return std::make_shared<imp::OptionsInventor>();
    case EFormatType::XML3D: return std::make_shared<imp::Options3DXML>();
    case EFormatType::XCGM: return std::make_shared<imp::OptionsXCGM>();
    default: break;
    }
    HRM_LOG(ax_herm::Info) << "FormatOptions: No options for given import format.";
    return nullptr;
}

std::shared_ptr<IFormatOptions> newExportOptions(EFormatType format)
{
    switch (format) {
    case EFormatType::ACIS: return std::make_shared<exp::OptionsAcis>();
    case EFormatType::Parasolid: return std::make_shared<exp::OptionsParasolid>();
    case EFormatType::CatiaV5: return std::make_shared<exp::OptionsCatiaV5>();
    case EFormatType::CatiaV4: return std::make_shared<exp::OptionsCatiaV4>();
    case EFormatType::IGES: return std::make_shared<exp::OptionsIGES>();
    case EFormatType::STEP: return std::make_shared<exp::OptionsSTEP>();
    case EFormatType::STL: return std::make_shared<exp::OptionsSTL>();
    case EFormatType::PDF3D: return std::make_shared<exp::OptionsPDF>();
    case EFormatType::XML3D: return std::make_shared<exp::Options3DXML>();
    case EFormatType::XCGM: return std::make_shared<exp::OptionsXCGM>();
    default: break;
    }
    HRM_LOG(ax_herm::Info) << "FormatOptions: No options for given export format.";
    return nullptr;
}

std::shared_ptr<IFormatOptions> newOptions(EOperationType operation, EFormatType format)
{
    switch (operation) {
    case EOperationType::Options: return newCommonOptions(format);
    case EOperationType::Import: return newImportOptions(format);
    case EOperationType::Export: return newExportOptions(format);
    }
    return nullptr;
}

// "format_options": one array element per stored object, in ascending format type; only
// when some are stored.
void writeFormatOptions(MemberWriter& out, const FormatOptionsMap& map)
{
    if (map.empty())
        return;
    JsonValue array(rapidjson::kArrayType);
    for (const auto& entry : map) {
        JsonValue element;
        entry.second->writeObject(element, out.allocator());
        array.PushBack(element, out.allocator());
    }
    out.add(L"format_options", std::move(array));
}

// Elements that name no options class are dropped; a later element of a format replaces an
// earlier one.
void readFormatOptions(const MemberReader& in, FormatOptionsMap& map)
{
    const JsonValue* member = in.find(L"format_options");
    if (!member || !member->IsArray())
        return;
    for (const JsonValue& element : member->GetArray()) {
        if (auto options = IFormatOptions::readOptions(element))
            map[options->formatType()] = std::move(options);
        else
            HRM_LOG(ax_herm::Error) << "Specific format options cannot be read, file: .";
    }
}

std::shared_ptr<IFormatOptions> find(const FormatOptionsMap& map, EFormatType type)
{
    const auto it = map.find(type);
    return it == map.end() ? nullptr : it->second;
}

void store(FormatOptionsMap& map, std::shared_ptr<IFormatOptions> options)
{
    if (options)
        map[options->formatType()] = std::move(options);
}

bool sameOptions(const FormatOptionsMap& a, const FormatOptionsMap& b)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](const auto& x, const auto& y) {
               return x.first == y.first && *x.second == *y.second;
           });
}

} // namespace

IFormatOptions::~IFormatOptions() = default;

// A head that contradicts the object is only reported.
template <class Members>
void IFormatOptions::members(Members& m)
{
    m.expect(L"operation_type", operationType(), "FormatOptions operation type doesn't match.")
        .expect(L"format_type", formatType(), "FormatOptions format type doesn't match.");
}
HRM_MEMBER_IO(IFormatOptions, "FormatOptions")

std::shared_ptr<IFormatOptions> IFormatOptions::readOptions(const JsonValue& value)
{
    if (!value.IsObject()) {
        HRM_LOG(ax_herm::Error) << "FormatOptions object should have a JSON object type.";
        return nullptr;
    }
    const MemberReader in(value);
    const JsonValue* operation = in.find(L"operation_type");
    if (!operation || !operation->IsString()) {
        HRM_LOG(ax_herm::Error) << "FormatOptions object should contain operation type.";
        return nullptr;
    }
    const JsonValue* format = in.find(L"format_type");
    if (!format || !format->IsString()) {
        HRM_LOG(ax_herm::Error) << "FormatOptions object should contain format type.";
        return nullptr;
    }
    auto options = newOptions(enumFromJson<EOperationType>(*operation), enumFromJson<EFormatType>(*format));
    if (options)
        options->readObject(value);
    return options;
}

bool operator==(const IFormatOptions& a, const IFormatOptions& b)
{
    return writeSameJson(a, b);
}

HermetorOptions::~HermetorOptions() = default;
FormatOptionsHolder::~FormatOptionsHolder() = default;

std::shared_ptr<IFormatOptions> ImportOptionsImpl::formatOptions(EFormatType type)
{
    return find(m_formatOptions, type);
}

std::shared_ptr<const IFormatOptions> ImportOptionsImpl::formatOptions(EFormatType type) const
{
    return find(m_formatOptions, type);
}

void ImportOptionsImpl::setFormatOptions(std::shared_ptr<IFormatOptions> options)
{
    store(m_formatOptions, std::move(options));
}

void ImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value.SetObject();
    MemberWriter out(value, allocator);
    out.string(L"file", m_file);
    HRM_LOG(ax_herm::Debug) << "ImportOptions.file = " << toNarrow(m_file);
    out.boolean(L"force_mp_mode", m_forceMPMode)
        .boolean(L"translate_world_orientation", m_translateWorldOrientation)
        .boolean(L"translate_misc_data", m_translateMiscData);
    writeFormatOptions(out, m_formatOptions);
    out.int32(L"modeler_version", m_modelerVersion);
}

void ImportOptionsImpl::readObject(const JsonValue& value)
{
    HRM_TRACE();
    MemberReader in = strictReader(value, "!object.IsObject()");
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    HRM_LOG(ax_herm::Debug) << "ImportOptions.file = " << toNarrow(m_file);
    in.boolean(L"force_mp_mode", m_forceMPMode)
        .boolean(L"translate_world_orientation", m_translateWorldOrientation)
        .boolean(L"translate_misc_data", m_translateMiscData);
    readFormatOptions(in, m_formatOptions);
    in.int32(L"modeler_version", m_modelerVersion);
}

bool ImportOptionsImpl::operator==(const ImportOptionsImpl& other) const
{
    return m_file == other.m_file && m_forceMPMode == other.m_forceMPMode
        && m_translateWorldOrientation == other.m_translateWorldOrientation
        && m_translateMiscData == other.m_translateMiscData && m_modelerVersion == other.m_modelerVersion
        && sameOptions(m_formatOptions, other.m_formatOptions);
}

std::shared_ptr<IFormatOptions> ExportOptionsImpl::formatOptions(EFormatType type)
{
    return find(m_formatOptions, type);
}

std::shared_ptr<const IFormatOptions> ExportOptionsImpl::formatOptions(EFormatType type) const
{
    return find(m_formatOptions, type);
}

void ExportOptionsImpl::setFormatOptions(std::shared_ptr<IFormatOptions> options)
{
    store(m_formatOptions, std::move(options));
}

void ExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value.SetObject();
    MemberWriter out(value, allocator);
    out.string(L"file", m_file)
        .writtenIf(!m_formatVersion.empty())
        .string(L"format_version", m_formatVersion)
        .int32(L"geometry_flags", m_geometryFlags);
    logFields();
    writeFormatOptions(out, m_formatOptions);
}

void ExportOptionsImpl::readObject(const JsonValue& value)
{
    HRM_TRACE();
    MemberReader in = strictReader(value, "!object.IsObject()");
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    in.string(L"format_version", m_formatVersion).int32(L"geometry_flags", m_geometryFlags);
    logFields();
    readFormatOptions(in, m_formatOptions);
}

void ExportOptionsImpl::logFields() const
{
    HRM_LOG(ax_herm::Debug) << "ExportOptions.file = " << toNarrow(m_file);
    if (!m_formatVersion.empty())
        HRM_LOG(ax_herm::Debug) << "ExportOptions.formatVersion = " << toNarrow(m_formatVersion);
    HRM_LOG(ax_herm::Debug) << "ExportOptions.geometryFlags = " << m_geometryFlags;
}

bool ExportOptionsImpl::operator==(const ExportOptionsImpl& other) const
{
    return m_file == other.m_file && m_formatVersion == other.m_formatVersion
        && m_geometryFlags == other.m_geometryFlags && sameOptions(m_formatOptions, other.m_formatOptions);
}

} // namespace hrm
