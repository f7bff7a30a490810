#include <hrm_api/hrm_api_exchange_mechanical_topology.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

HRM_ENUM_STRINGS(ExcTopologicalEntityInformation::ELineType,
    {ExcTopologicalEntityInformation::ELineType::Unknown, L"unknown"},
    {ExcTopologicalEntityInformation::ELineType::Solid, L"solid"},
    {ExcTopologicalEntityInformation::ELineType::Dash, L"dash"},
    {ExcTopologicalEntityInformation::ELineType::Dot, L"dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDot, L"dash_dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDotDot, L"dash_dot_dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDotDotDot, L"dash_dot_dot_dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDashDot, L"dash_dash_dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDashDotDot, L"dash_dash_dot_dot"},
    {ExcTopologicalEntityInformation::ELineType::DashDashDotDotDot, L"dash_dash_dot_dot_dot"},
    {ExcTopologicalEntityInformation::ELineType::ShortDash, L"short_dash"},
    {ExcTopologicalEntityInformation::ELineType::LongDash, L"long_dash"},
    {ExcTopologicalEntityInformation::ELineType::MediumDashLongDash, L"medium_dash_long_dash"},
    {ExcTopologicalEntityInformation::ELineType::MediumDashShortDashShortDash, L"medium_dash_short_dash_short_dash"},
    {ExcTopologicalEntityInformation::ELineType::LongDashShortDash, L"long_dash_short_dash"},
    {ExcTopologicalEntityInformation::ELineType::LongDashShortDashShortDash, L"long_dash_short_dash_short_dash"},
    {ExcTopologicalEntityInformation::ELineType::LongDashDotDot, L"long_dash_dot_dot"},
    {ExcTopologicalEntityInformation::ELineType::LongDashDot, L"long_dash_dot"},
    {ExcTopologicalEntityInformation::ELineType::MediumDashDotShortDashDot, L"medium_dash_dot_short_dash_dot"},
    {ExcTopologicalEntityInformation::ELineType::SparseDot, L"sparse_dot"},
    {ExcTopologicalEntityInformation::ELineType::VisibleInvisible, L"visible_invisible"},
    {ExcTopologicalEntityInformation::ELineType::Zigzag, L"zigzag"},
    {ExcTopologicalEntityInformation::ELineType::CurveBatting, L"curve_batting"},
    {ExcTopologicalEntityInformation::ELineType::FenceCircle, L"fence_circle"},
    {ExcTopologicalEntityInformation::ELineType::FenceSquare, L"fence_square"},
    {ExcTopologicalEntityInformation::ELineType::SupplyLineGas, L"supply_line_gas"},
    {ExcTopologicalEntityInformation::ELineType::SupplyLineHotWater, L"supply_line_hot_water"},
    {ExcTopologicalEntityInformation::ELineType::Tracks, L"tracks"})

template <class Members>
void ExcTopologicalEntityInformation::members(Members& m)
{
    m.nullableChild(L"entity", m_entity)
        .strings(L"pnames", m_persistentNames)
        .string(L"name", m_name)
        .boolean(L"hidden", m_hidden)
        .enumeration(L"line_type", m_lineType)
        .number(L"line_thickness", m_lineThickness);
}
HRM_MEMBER_IO(ExcTopologicalEntityInformation, "ExcTopologicalEntityInformation")
HRM_EQUALITY_AS_JSON(ExcTopologicalEntityInformation)

HRM_CHILD_ADDER(ExcEntityData, ExcTopologicalEntityInformation, addData, m_data, "Topological Entity Information Data")

void ExcEntityData::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsArray()) {
        HRM_LOG(ax_herm::Error) << "ExcEntityData object should have a JSON array type.";
        return;
    }
    readChildArray<ExcTopologicalEntityInformation>(value, [this](auto item) { m_data.push_back(std::move(item)); });
}

void ExcEntityData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    writeChildArray(m_data, value, allocator);
}
HRM_EQUALITY_AS_JSON(ExcEntityData)

} // namespace hrm
