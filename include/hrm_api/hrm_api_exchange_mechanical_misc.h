#pragma once

// The organisational data of a translated part beside its PMI and features: work coordinate
// systems, layers and layer filters, note parameters, materials with their physical
// properties, symmetries and display sets, gathered with the free property groups of
// ExcMiscData in ExcMechanicalMiscData; and ExcMappingData, which maps imported entities to the
// original entities they came from.
//
// Every class reads leniently: a missing member, or one of the wrong JSON kind, keeps its field;
// a value of the wrong kind for the whole object is logged ("<class> object should have a JSON
// object type.") and changes nothing; an unknown word reads as its table's alphabetically first
// word. Lists read are appended to those held, and written also when empty. A single child is
// written as null when there is none, or left out where a class says so; a present member is
// read into a new child that replaces the one held (null takes it away). Adders refuse a null
// child with a warning. Two objects are equal when they write the same JSON.

#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_common_entity.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

/// A list of shared entities.
using ExcEntities = std::vector<std::shared_ptr<ExcEntity>>;

/// A work coordinate system: {"origin", "x", "y", "z", "color", "active", "id", "name", "shown",
/// "layer_id"}.
class HRM_API ExcMiscWCS : public IJsonObject
{
public:
    /// The origin of the coordinate system.
    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }
    /// The direction of the x axis.
    const ExcVector3d& x() const { return m_x; }
    void setX(const ExcVector3d& x) { m_x = x; }
    /// The direction of the y axis.
    const ExcVector3d& y() const { return m_y; }
    void setY(const ExcVector3d& y) { m_y = y; }
    /// The direction of the z axis.
    const ExcVector3d& z() const { return m_z; }
    void setZ(const ExcVector3d& z) { m_z = z; }
    /// The colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// Whether it is the active one.
    bool isActive() const { return m_active; }
    void setActive(bool active) { m_active = active; }
    /// The id.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether it is shown.
    bool isShown() const { return m_shown; }
    void setShown(bool shown) { m_shown = shown; }
    /// The id of the layer it lies on.
    int32_t layerId() const { return m_layerId; }
    void setLayerId(int32_t id) { m_layerId = id; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscWCS& other) const;
    bool operator!=(const ExcMiscWCS& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVector3d m_origin;
    ExcVector3d m_x;
    ExcVector3d m_y;
    ExcVector3d m_z;
    ExcColor m_color;
    bool m_active = false;
    std::wstring m_id;
    std::wstring m_name;
    bool m_shown = false;
    int32_t m_layerId = 0;
};

/// A layer and the entities on it: {"id", "name", "current", "color", "entities"}.
class HRM_API ExcMiscLayer : public IJsonObject
{
public:
    /// The id.
    int32_t id() const { return m_id; }
    void setId(int32_t id) { m_id = id; }
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether it is the current one.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }
    /// The colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// The entities it holds.
    const ExcEntities& entities() const { return m_entities; }
    /// Appends an entity; a null one is refused with a warning.
    void addEntity(const std::shared_ptr<ExcEntity>& entity);
    void setEntities(ExcEntities entities) { m_entities = std::move(entities); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscLayer& other) const;
    bool operator!=(const ExcMiscLayer& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    int32_t m_id = 0;
    std::wstring m_name;
    bool m_current = false;
    ExcColor m_color;
    ExcEntities m_entities;
};

/// A named selection of layers: {"name", "type", "current", "layer_id"} (the key of the list of
/// layer ids is singular).
class HRM_API ExcMiscLayerFilter : public IJsonObject
{
public:
    /// Which layers the filter takes. Travels as "all", "laycur", "other".
    enum class HRM_API_TYPE EType : int32_t
    {
        All = 0,
        LayCur = 1,
        Other = 2,
    };

    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The kind of filter.
    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }
    /// Whether it is the current one.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }
    /// The ids of the layers it takes.
    const std::vector<int32_t>& layerIds() const { return m_layerIds; }
    /// Appends a layer id.
    void addLayerId(int32_t id) { m_layerIds.push_back(id); }
    void setLayerIds(std::vector<int32_t> ids) { m_layerIds = std::move(ids); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscLayerFilter& other) const;
    bool operator!=(const ExcMiscLayerFilter& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    EType m_type = EType::All;
    bool m_current = false;
    std::vector<int32_t> m_layerIds;
};

/// The parameters of notes, as one named property group: {"name", "properties"}.
class HRM_API ExcMiscNoteParameters : public IJsonObject
{
public:
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The parameters, as a property group.
    const ExcMiscPropertiesGroup& properties() const { return m_properties; }
    ExcMiscPropertiesGroup& properties() { return m_properties; }
    void setProperties(ExcMiscPropertiesGroup properties) { m_properties = std::move(properties); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscNoteParameters& other) const;
    bool operator!=(const ExcMiscNoteParameters& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    ExcMiscPropertiesGroup m_properties;
};

/// The system of units a material property's unit belongs to. Travels as "unknown", "mks",
/// "cgs", "fps", "ips", "mmks", "mmns", "ipscreo", "si", "not_applicable", "custom".
enum class HRM_API_TYPE EUnitSystemType : int32_t
{
    Unknown = 0,
    Mks = 1,
    Cgs = 2,
    Fps = 3,
    Ips = 4,
    Mmks = 5,
    Mmns = 6,
    IpsCreo = 7,
    Si = 8,
    NotApplicable = 9,
    Custom = 10,
};

/// One unit of a material property, as the source system names it: {"units", "unit_system"}.
class HRM_API ExcMiscMaterialPropertyUnit : public IJsonObject
{
public:
    /// The unit as the source system writes it (kg, mm, ...).
    const std::wstring& units() const { return m_units; }
    void setUnits(const std::wstring& units) { m_units = units; }
    /// The system of units it belongs to.
    EUnitSystemType unitSystem() const { return m_unitSystem; }
    void setUnitSystem(EUnitSystemType system) { m_unitSystem = system; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscMaterialPropertyUnit& other) const;
    bool operator!=(const ExcMiscMaterialPropertyUnit& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_units;
    EUnitSystemType m_unitSystem = EUnitSystemType::Unknown;
};

/// A physical property of a material: {"value", "unit"}, the unit given by its mass, length,
/// time and temperature parts.
class HRM_API ExcMiscMaterialProperty : public IJsonObject
{
public:
    /// The four parts of a property's unit: {"mass", "length", "time", "temperature"}.
    class HRM_API Unit : public IJsonObject
    {
    public:
        ExcMiscMaterialPropertyUnit mass;        ///< The unit of mass.
        ExcMiscMaterialPropertyUnit length;      ///< The unit of length.
        ExcMiscMaterialPropertyUnit time;        ///< The unit of time.
        ExcMiscMaterialPropertyUnit temperature; ///< The unit of temperature.

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const Unit& other) const;
        bool operator!=(const Unit& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;
    };

    /// The value, in the unit.
    double value() const { return m_value; }
    void setValue(double value) { m_value = value; }
    /// The unit, by its mass, length, time and temperature parts.
    const Unit& unit() const { return m_unit; }
    Unit& unit() { return m_unit; }
    void setUnit(const Unit& unit) { m_unit = unit; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscMaterialProperty& other) const;
    bool operator!=(const ExcMiscMaterialProperty& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_value = 0.0;
    Unit m_unit;
};

/// A material: {"name", one member per stored property in ascending order of its id, keyed by
/// the id's word ("density", "youngs_modulus", ...), "linked_elements", "is_part_level_material"}.
class HRM_API ExcMiscMaterial : public IJsonObject
{
public:
    /// The physical properties a material may carry. Travels as "unknown", "density",
    /// "youngs_modulus", "poissons_ratio", "yield_strength", "tensile_strength",
    /// "thermal_conductivity", "thermal_expansion_coefficient", "specific_heat", "shear_modulus".
    enum class HRM_API_TYPE EProperty : int32_t
    {
        Unknown = 0,
        Density = 1,
        YoungsModulus = 2,
        PoissonsRatio = 3,
        YieldStrength = 4,
        TensileStrength = 5,
        ThermalConductivity = 6,
        ThermalExpansionCoefficient = 7,
        SpecificHeat = 8,
        ShearModulus = 9,
    };
    /// The stored properties by id, in ascending order.
    using Properties = std::map<EProperty, std::shared_ptr<ExcMiscMaterialProperty>>;

    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The stored properties by id.
    const Properties& properties() const { return m_properties; }
    /// The property stored under `id`, or null. Throws std::invalid_argument("Invalid material
    /// property id.") for EProperty::Unknown.
    std::shared_ptr<ExcMiscMaterialProperty> get(EProperty id) const;
    /// Stores or replaces the property under `id`. Throws std::invalid_argument with "Invalid
    /// material property id." for EProperty::Unknown and "Invalid material property value." for
    /// a null property.
    void set(EProperty id, std::shared_ptr<ExcMiscMaterialProperty> property);
    /// The model entities it refers to.
    const ExcEntities& linkedElements() const { return m_linkedElements; }
    /// Appends a linked element; a null one is refused with a warning.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void setLinkedElements(ExcEntities elements) { m_linkedElements = std::move(elements); }
    /// Whether the material is that of the whole part.
    bool isPartLevelMaterial() const { return m_partLevelMaterial; }
    void setPartLevelMaterial(bool partLevel) { m_partLevelMaterial = partLevel; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscMaterial& other) const;
    bool operator!=(const ExcMiscMaterial& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    Properties m_properties;
    ExcEntities m_linkedElements;
    bool m_partLevelMaterial = false;
};

/// An entity mirrored by a transformation: {"transform_mode", "transformation", "linked_entity"
/// (null when there is none)}.
class HRM_API ExcMiscSymmetry : public IJsonObject
{
public:
    /// Which side of the symmetry the part keeps. Travels as "none", "opposite", "both".
    enum class HRM_API_TYPE ETransformMode : int32_t
    {
        None = 0,
        Opposite = 1,
        Both = 2,
    };

    /// Which side of the symmetry the part keeps.
    ETransformMode transformMode() const { return m_transformMode; }
    void setTransformMode(ETransformMode mode) { m_transformMode = mode; }
    /// The mirroring transformation.
    const ExcTransformation& transformation() const { return m_transformation; }
    void setTransformation(const ExcTransformation& transformation) { m_transformation = transformation; }
    /// The mirrored entity, or null.
    const std::shared_ptr<ExcEntity>& linkedEntity() const { return m_linkedEntity; }
    void setLinkedEntity(std::shared_ptr<ExcEntity> entity) { m_linkedEntity = std::move(entity); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscSymmetry& other) const;
    bool operator!=(const ExcMiscSymmetry& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ETransformMode m_transformMode = ETransformMode::None;
    ExcTransformation m_transformation;
    std::shared_ptr<ExcEntity> m_linkedEntity;
};

/// A named set of entities shown together: {"name", "active", "entities"}.
class HRM_API ExcMiscDisplaySet : public IJsonObject
{
public:
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether the set is shown.
    bool isActive() const { return m_active; }
    void setActive(bool active) { m_active = active; }
    /// The entities it holds.
    const ExcEntities& entities() const { return m_entities; }
    /// Appends an entity; a null one is refused with a warning.
    void addEntity(const std::shared_ptr<ExcEntity>& entity);
    void setEntities(ExcEntities entities) { m_entities = std::move(entities); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscDisplaySet& other) const;
    bool operator!=(const ExcMiscDisplaySet& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    bool m_active = false;
    ExcEntities m_entities;
};

/// All the organisational data of a block or of the root: {"misc_data", "wcs", "layers",
/// "layer_filters", "materials", "note_parameters", "symmetries", "display_sets"}, every list
/// written also when empty.
class HRM_API ExcMechanicalMiscData : public IJsonObject
{
public:
    /// The free property groups.
    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }
    void setMiscData(ExcMiscData data) { m_miscData = std::move(data); }

    /// The work coordinate systems.
    const std::vector<std::shared_ptr<ExcMiscWCS>>& worldCoordinateSystems() const { return m_worldCoordinateSystems; }
    /// Appends a world coordinate system; a null one is refused with a warning.
    void addWorldCoordinateSystem(const std::shared_ptr<ExcMiscWCS>& wcs);
    /// The layers.
    const std::vector<std::shared_ptr<ExcMiscLayer>>& layers() const { return m_layers; }
    /// Appends a layer; a null one is refused with a warning.
    void addLayer(const std::shared_ptr<ExcMiscLayer>& layer);
    /// The layer filters.
    const std::vector<std::shared_ptr<ExcMiscLayerFilter>>& layerFilters() const { return m_layerFilters; }
    /// Appends a layer filter; a null one is refused with a warning.
    void addLayerFilter(const std::shared_ptr<ExcMiscLayerFilter>& filter);
    /// The materials.
    const std::vector<std::shared_ptr<ExcMiscMaterial>>& materials() const { return m_materials; }
    /// Appends a material; a null one is refused with a warning.
    void addMaterial(const std::shared_ptr<ExcMiscMaterial>& material);
    /// The note parameters.
    const std::vector<std::shared_ptr<ExcMiscNoteParameters>>& noteParameters() const { return m_noteParameters; }
    /// Appends note parameters; a null one is refused with a warning.
    void addNoteParameters(const std::shared_ptr<ExcMiscNoteParameters>& parameters);
    /// The symmetries.
    const std::vector<std::shared_ptr<ExcMiscSymmetry>>& symmetries() const { return m_symmetries; }
    /// Appends a symmetry; a null one is refused with a warning.
    void addSymmetry(const std::shared_ptr<ExcMiscSymmetry>& symmetry);
    /// The display sets.
    const std::vector<std::shared_ptr<ExcMiscDisplaySet>>& displaySets() const { return m_displaySets; }
    /// Appends a display set; a null one is refused with a warning.
    void addDisplaySet(const std::shared_ptr<ExcMiscDisplaySet>& displaySet);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMechanicalMiscData& other) const;
    bool operator!=(const ExcMechanicalMiscData& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcMiscData m_miscData;
    std::vector<std::shared_ptr<ExcMiscWCS>> m_worldCoordinateSystems;
    std::vector<std::shared_ptr<ExcMiscLayer>> m_layers;
    std::vector<std::shared_ptr<ExcMiscLayerFilter>> m_layerFilters;
    std::vector<std::shared_ptr<ExcMiscMaterial>> m_materials;
    std::vector<std::shared_ptr<ExcMiscNoteParameters>> m_noteParameters;
    std::vector<std::shared_ptr<ExcMiscSymmetry>> m_symmetries;
    std::vector<std::shared_ptr<ExcMiscDisplaySet>> m_displaySets;
};

/// Which original entity each imported entity came from. The value is an array of
/// {"imported", "original"} objects, read appended to the pairs held; anything but an array is
/// logged and ignored, and an item that is no object is logged and skipped.
class HRM_API ExcMappingData : public IJsonObject
{
public:
    /// An imported entity and the original it came from; neither is null.
    using Pair = std::pair<std::shared_ptr<ExcEntity>, std::shared_ptr<ExcEntity>>;

    /// The pairs of (imported, original) entities.
    const std::vector<Pair>& mapping() const { return m_mapping; }
    /// Adds a pair; one in which either entity is null is refused with a warning.
    void add(const std::shared_ptr<ExcEntity>& imported, const std::shared_ptr<ExcEntity>& original);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMappingData& other) const;
    bool operator!=(const ExcMappingData& other) const { return !(*this == other); }

private:
    std::vector<Pair> m_mapping;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcMiscLayerFilter::EType)
HRM_DECLARE_ENUM_STRINGS(hrm::EUnitSystemType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMiscMaterial::EProperty)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMiscSymmetry::ETransformMode)
