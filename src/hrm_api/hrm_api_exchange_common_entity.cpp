#include <hrm_api/hrm_api_exchange_common_entity.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

#include <logging/ax_herm_logger.h>

namespace hrm {

HRM_ENUM_STRINGS(ExcEntity::EType,
    {ExcEntity::EType::Unknown, L"unknown"},
    {ExcEntity::EType::Fsp, L"fsp"},
    {ExcEntity::EType::Mfg, L"mfg"},
    {ExcEntity::EType::Original, L"original"})

HRM_ENUM_STRINGS(ExcMiscProperty::EType,
    {ExcMiscProperty::EType::Unknown, L"unknown"},
    {ExcMiscProperty::EType::String, L"string"},
    {ExcMiscProperty::EType::Integer, L"integer"},
    {ExcMiscProperty::EType::Double, L"double"},
    {ExcMiscProperty::EType::Boolean, L"boolean"},
    {ExcMiscProperty::EType::DateTime, L"date_time"})

// ---- ExcFullSubentPath -----------------------------------------------------------------------

// The type travels as its letter. Reading looks at the first character only: one of the four
// letters sets the type, anything else (an empty string included) leaves it.
template <class Members>
void ExcFullSubentPath::subentLetter(Members& m)
{
    if constexpr (Members::reading) {
        const JsonValue* member = m.find(L"subent_type");
        if (!member || !member->IsString() || member->GetStringLength() == 0)
            return;
        switch (const wchar_t letter = member->GetString()[0]) {
        case L'b':
        case L'e':
        case L'f':
        case L'v':
            m_subentType = static_cast<ESubentType>(letter);
            break;
        default:
            break;
        }
    } else {
        const std::wstring letter(1, static_cast<wchar_t>(m_subentType));
        m.add(L"subent_type", jsonString(letter, m.allocator()));
    }
}

template <class Members>
void ExcFullSubentPath::members(Members& m)
{
    m.strings(L"block_references", m_refs).uint64(L"subent_id", m_subentId);
    subentLetter(m);
    m.string(L"visu_id", m_visuId).boolean(L"instance_path", m_instancePath);
}
HRM_MEMBER_IO(ExcFullSubentPath, "ExcFullSubentPath")
HRM_EQUALITY_AS_JSON(ExcFullSubentPath)

// ---- ExcEntity -------------------------------------------------------------------------------

template <class Members>
void ExcEntity::members(Members& m)
{
    m.enumeration(L"type", m_type).nullableChild(L"fsp", m_fsp).string(L"description", m_description).string(L"id", m_id);
}
HRM_MEMBER_IO(ExcEntity, "ExcEntity")
HRM_EQUALITY_AS_JSON(ExcEntity)

// ---- Properties and groups -------------------------------------------------------------------

ExcMiscProperty& ExcMiscProperty::setName(const std::wstring& name)
{
    m_name = name;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::setType(EType type)
{
    m_type = type;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::setValue(const std::wstring& value)
{
    m_value = value;
    return *this;
}

ExcMiscProperty& ExcMiscProperty::set(EType type, const std::wstring& value)
{
    return setType(type).setValue(value);
}

template <class Members>
void ExcMiscProperty::members(Members& m)
{
    m.string(L"name", m_name).enumeration(L"type", m_type).string(L"value", m_value);
}
HRM_MEMBER_IO_REPORTING(ExcMiscProperty, ax_herm::Warning, "ExcMiscProperty::readObject: input JsonValue is not an object")
HRM_EQUALITY_AS_JSON(ExcMiscProperty)

bool ExcMiscPropertyCmp::operator()(const ExcMiscProperty& a, const ExcMiscProperty& b) const
{
    return Utf16Less()(a.name(), b.name());
}

template <class Members>
void ExcMiscPropertiesGroup::members(Members& m)
{
    m.string(L"name", m_name).boolean(L"is_bim", m_bim).values(L"properties", m_properties);
}
HRM_MEMBER_IO_REPORTING(ExcMiscPropertiesGroup, ax_herm::Warning,
                        "ExcMiscPropertiesGroup::readObject: input JsonValue is not an object.")
HRM_EQUALITY_AS_JSON(ExcMiscPropertiesGroup)

bool ExcMiscPropertiesGroupPtrCmp::operator()(const std::shared_ptr<ExcMiscPropertiesGroup>& a,
                                              const std::shared_ptr<ExcMiscPropertiesGroup>& b) const
{
    return Utf16Less()(a->name(), b->name());
}

// ---- ExcMiscData -----------------------------------------------------------------------------

void ExcMiscData::addGroup(const std::shared_ptr<ExcMiscPropertiesGroup>& group)
{
    if (!group) {
        HRM_LOG(ax_herm::Warning) << "ExcMiscData::addGroup: attempt to add null group";
        return;
    }
    if (!m_groups.insert(group).second)
        HRM_LOG(ax_herm::Warning) << "ExcMiscData::addGroup: properties group '" << toNarrow(group->name())
                                  << "' already exist, some properties can be lost.";
}

namespace {

// Whether an array of properties is in the flat layout of older writers: its first element
// has all three keys of a property.
bool isFlatLayout(const JsonValue& first)
{
    return first.HasMember(L"name") && first.HasMember(L"type") && first.HasMember(L"value");
}

} // namespace

void ExcMiscData::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsArray()) {
        HRM_LOG(ax_herm::Warning) << "ExcMiscData::readObject: input JsonValue is not an array.";
        return;
    }
    if (value.Empty() || !value[0].IsObject())
        return;
    if (isFlatLayout(value[0])) {
        auto group = std::make_shared<ExcMiscPropertiesGroup>();
        for (const JsonValue& element : value.GetArray()) {
            ExcMiscProperty property;
            property.readObject(element);
            group->addProperty(std::move(property));
        }
        addGroup(group);
        return;
    }
    readChildArray<ExcMiscPropertiesGroup>(value, [this](std::shared_ptr<ExcMiscPropertiesGroup> group) { addGroup(group); });
}

void ExcMiscData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    writeChildArray(m_groups, value, allocator);
}

HRM_EQUALITY_AS_JSON(ExcMiscData)

} // namespace hrm
