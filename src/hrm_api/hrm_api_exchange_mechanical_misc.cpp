#include <hrm_api/hrm_api_exchange_mechanical_misc.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

#include <stdexcept>

namespace hrm {

HRM_ENUM_STRINGS(ExcMiscLayerFilter::EType,
    {ExcMiscLayerFilter::EType::All, L"all"},
    {ExcMiscLayerFilter::EType::LayCur, L"laycur"},
    {ExcMiscLayerFilter::EType::Other, L"other"})

HRM_ENUM_STRINGS(EUnitSystemType,
    {EUnitSystemType::Unknown, L"unknown"},
    {EUnitSystemType::Mks, L"mks"},
    {EUnitSystemType::Cgs, L"cgs"},
    {EUnitSystemType::Fps, L"fps"},
    {EUnitSystemType::Ips, L"ips"},
    {EUnitSystemType::Mmks, L"mmks"},
    {EUnitSystemType::Mmns, L"mmns"},
    {EUnitSystemType::IpsCreo, L"ipscreo"},
    {EUnitSystemType::Si, L"si"},
    {EUnitSystemType::NotApplicable, L"not_applicable"},
    {EUnitSystemType::Custom, L"custom"})

HRM_ENUM_STRINGS(ExcMiscMaterial::EProperty,
    {ExcMiscMaterial::EProperty::Unknown, L"unknown"},
    {ExcMiscMaterial::EProperty::Density, L"density"},
    {ExcMiscMaterial::EProperty::YoungsModulus, L"youngs_modulus"},
    {ExcMiscMaterial::EProperty::PoissonsRatio, L"poissons_ratio"},
    {ExcMiscMaterial::EProperty::YieldStrength, L"yield_strength"},
    {ExcMiscMaterial::EProperty::TensileStrength, L"tensile_strength"},
    {ExcMiscMaterial::EProperty::ThermalConductivity, L"thermal_conductivity"},
    {ExcMiscMaterial::EProperty::ThermalExpansionCoefficient, L"thermal_expansion_coefficient"},
    {ExcMiscMaterial::EProperty::SpecificHeat, L"specific_heat"},
    {ExcMiscMaterial::EProperty::ShearModulus, L"shear_modulus"})

HRM_ENUM_STRINGS(ExcMiscSymmetry::ETransformMode,
    {ExcMiscSymmetry::ETransformMode::None, L"none"},
    {ExcMiscSymmetry::ETransformMode::Opposite, L"opposite"},
    {ExcMiscSymmetry::ETransformMode::Both, L"both"})

template <class Members>
void ExcMiscWCS::members(Members& m)
{
    m.object(L"origin", m_origin)
        .object(L"x", m_x)
        .object(L"y", m_y)
        .object(L"z", m_z)
        .object(L"color", m_color)
        .boolean(L"active", m_active)
        .string(L"id", m_id)
        .string(L"name", m_name)
        .boolean(L"shown", m_shown)
        .int32(L"layer_id", m_layerId);
}
HRM_MEMBER_IO(ExcMiscWCS, "ExcMiscWCS")
HRM_EQUALITY_AS_JSON(ExcMiscWCS)

HRM_CHILD_ADDER(ExcMiscLayer, ExcEntity, addEntity, m_entities, "Entity")

template <class Members>
void ExcMiscLayer::members(Members& m)
{
    m.int32(L"id", m_id).string(L"name", m_name);
    // The colour is read before the flag and written after it. The two are independent, so
    // only the order of their log lines could tell.
    if constexpr (Members::reading)
        m.object(L"color", m_color).boolean(L"current", m_current);
    else
        m.boolean(L"current", m_current).object(L"color", m_color);
    m.children(L"entities", m_entities);
}
HRM_MEMBER_IO(ExcMiscLayer, "ExcMiscLayer")
HRM_EQUALITY_AS_JSON(ExcMiscLayer)

template <class Members>
void ExcMiscLayerFilter::members(Members& m)
{
    m.string(L"name", m_name).enumeration(L"type", m_type).boolean(L"current", m_current).ints(L"layer_id", m_layerIds);
}
HRM_MEMBER_IO(ExcMiscLayerFilter, "ExcMiscLayerFilter")
HRM_EQUALITY_AS_JSON(ExcMiscLayerFilter)

template <class Members>
void ExcMiscNoteParameters::members(Members& m)
{
    m.string(L"name", m_name).object(L"properties", m_properties);
}
HRM_MEMBER_IO(ExcMiscNoteParameters, "ExcMiscNoteParameters")
HRM_EQUALITY_AS_JSON(ExcMiscNoteParameters)

template <class Members>
void ExcMiscMaterialPropertyUnit::members(Members& m)
{
    m.string(L"units", m_units).enumeration(L"unit_system", m_unitSystem);
}
HRM_MEMBER_IO(ExcMiscMaterialPropertyUnit, "ExcMiscMaterialPropertyUnit")
HRM_EQUALITY_AS_JSON(ExcMiscMaterialPropertyUnit)

template <class Members>
void ExcMiscMaterialProperty::Unit::members(Members& m)
{
    m.object(L"mass", mass).object(L"length", length).object(L"time", time).object(L"temperature", temperature);
}
HRM_MEMBER_IO(ExcMiscMaterialProperty::Unit, "ExcMiscMaterialProperty::Unit")
HRM_EQUALITY_AS_JSON(ExcMiscMaterialProperty::Unit)

template <class Members>
void ExcMiscMaterialProperty::members(Members& m)
{
    m.number(L"value", m_value).object(L"unit", m_unit);
}
HRM_MEMBER_IO(ExcMiscMaterialProperty, "ExcMiscMaterialProperty")
HRM_EQUALITY_AS_JSON(ExcMiscMaterialProperty)

namespace {

constexpr char invalidPropertyId[] = "Invalid material property id.";

} // namespace

std::shared_ptr<ExcMiscMaterialProperty> ExcMiscMaterial::get(EProperty id) const
{
    if (id == EProperty::Unknown)
        throw std::invalid_argument(invalidPropertyId);
    const auto it = m_properties.find(id);
    return it == m_properties.end() ? nullptr : it->second;
}

void ExcMiscMaterial::set(EProperty id, std::shared_ptr<ExcMiscMaterialProperty> property)
{
    if (id == EProperty::Unknown)
        throw std::invalid_argument(invalidPropertyId);
    if (!property)
        throw std::invalid_argument("Invalid material property value.");
    m_properties[id] = std::move(property);
}

HRM_CHILD_ADDER(ExcMiscMaterial, ExcEntity, addLinkedElement, m_linkedElements, "Linked Element")

template <class Members>
void ExcMiscMaterial::members(Members& m)
{
    m.string(L"name", m_name);
    // One member per property id in ascending order, keyed by the id's word: written when the
    // property is stored, read into a new property when the key is present.
    for (int32_t id = int32_t(EProperty::Density); id <= int32_t(EProperty::ShearModulus); ++id) {
        const auto property = EProperty(id);
        const auto it = m_properties.find(property);
        std::shared_ptr<ExcMiscMaterialProperty> stored = it == m_properties.end() ? nullptr : it->second;
        m.child(enumToString(property).c_str(), stored);
        if constexpr (Members::reading) {
            if (stored)
                m_properties[property] = std::move(stored);
        }
    }
    m.children(L"linked_elements", m_linkedElements).boolean(L"is_part_level_material", m_partLevelMaterial);
}
HRM_MEMBER_IO(ExcMiscMaterial, "ExcMiscMaterial")
HRM_EQUALITY_AS_JSON(ExcMiscMaterial)

template <class Members>
void ExcMiscSymmetry::members(Members& m)
{
    m.enumeration(L"transform_mode", m_transformMode)
        .object(L"transformation", m_transformation)
        .nullableChild(L"linked_entity", m_linkedEntity);
}
HRM_MEMBER_IO(ExcMiscSymmetry, "ExcMiscSymmetry")
HRM_EQUALITY_AS_JSON(ExcMiscSymmetry)

HRM_CHILD_ADDER(ExcMiscDisplaySet, ExcEntity, addEntity, m_entities, "Entity")

template <class Members>
void ExcMiscDisplaySet::members(Members& m)
{
    m.string(L"name", m_name).boolean(L"active", m_active).children(L"entities", m_entities);
}
HRM_MEMBER_IO(ExcMiscDisplaySet, "ExcMiscDisplaySet")
HRM_EQUALITY_AS_JSON(ExcMiscDisplaySet)

HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscWCS, addWorldCoordinateSystem, m_worldCoordinateSystems, "WCS")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscLayer, addLayer, m_layers, "Layer")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscLayerFilter, addLayerFilter, m_layerFilters, "Layer Filter")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscMaterial, addMaterial, m_materials, "Material")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscNoteParameters, addNoteParameters, m_noteParameters, "Note Parameters")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscSymmetry, addSymmetry, m_symmetries, "Symmetry")
HRM_CHILD_ADDER(ExcMechanicalMiscData, ExcMiscDisplaySet, addDisplaySet, m_displaySets, "Display Set")

template <class Members>
void ExcMechanicalMiscData::members(Members& m)
{
    m.object(L"misc_data", m_miscData)
        .children(L"wcs", m_worldCoordinateSystems)
        .children(L"layers", m_layers)
        .children(L"layer_filters", m_layerFilters)
        .children(L"materials", m_materials)
        .children(L"note_parameters", m_noteParameters)
        .children(L"symmetries", m_symmetries)
        .children(L"display_sets", m_displaySets);
}
HRM_MEMBER_IO(ExcMechanicalMiscData, "ExcMechanicalMiscData")
HRM_EQUALITY_AS_JSON(ExcMechanicalMiscData)

namespace {

// The two members of one mapping item, for both directions.
template <class Members, class Pair>
void mappingPair(Members& m, Pair& pair)
{
    m.child(L"imported", pair.first).child(L"original", pair.second);
}

} // namespace

void ExcMappingData::add(const std::shared_ptr<ExcEntity>& imported, const std::shared_ptr<ExcEntity>& original)
{
    if (!imported || !original) {
        HRM_LOG(ax_herm::Warning) << "ExcMappingData: attempt to add null Entity object or null Original Entity object.";
        return;
    }
    m_mapping.emplace_back(imported, original);
}

// An item without "imported" or "original" gives a default entity on that side.
void ExcMappingData::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsArray()) {
        HRM_LOG(ax_herm::Error) << "ExcMappingData object should have a JSON array type.";
        return;
    }
    for (const JsonValue& item : value.GetArray()) {
        if (!item.IsObject()) {
            HRM_LOG(ax_herm::Error) << "ExcMappingData JSON array should have objects as items.";
            continue;
        }
        Pair pair(std::make_shared<ExcEntity>(), std::make_shared<ExcEntity>());
        MemberReader reader(item);
        mappingPair(reader, pair);
        m_mapping.push_back(std::move(pair));
    }
}

void ExcMappingData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value.SetArray();
    value.Reserve(static_cast<rapidjson::SizeType>(m_mapping.size()), allocator);
    for (const Pair& pair : m_mapping) {
        JsonValue item(rapidjson::kObjectType);
        MemberWriter writer(item, allocator);
        mappingPair(writer, pair);
        value.PushBack(item, allocator);
    }
}
HRM_EQUALITY_AS_JSON(ExcMappingData)

} // namespace hrm
