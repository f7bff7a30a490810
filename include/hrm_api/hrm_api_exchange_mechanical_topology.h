#pragma once

// How single topological entities of a block are shown: ExcTopologicalEntityInformation names an
// entity with its persistent names and carries its display settings; ExcEntityData is the list
// of them for one block.
//
// Reading and writing follow the rules of the mechanical data (hrm_api_exchange_mechanical_misc.h).

#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// One entity and how it is shown: {"entity" (null when there is none), "pnames", "name", "hidden",
/// "line_type", "line_thickness"}.
class HRM_API ExcTopologicalEntityInformation : public IJsonObject
{
public:
    /// The line an entity is drawn with. Travels as "unknown", "solid", "dash", "dot",
    /// "dash_dot", ... "tracks"; an unknown word reads as "curve_batting", the alphabetically first.
    enum class HRM_API_TYPE ELineType : int32_t
    {
        Unknown = 0,
        Solid = 1,
        Dash = 2,
        Dot = 3,
        DashDot = 4,
        DashDotDot = 5,
        DashDotDotDot = 6,
        DashDashDot = 7,
        DashDashDotDot = 8,
        DashDashDotDotDot = 9,
        ShortDash = 10,
        LongDash = 11,
        MediumDashLongDash = 12,
        MediumDashShortDashShortDash = 13,
        LongDashShortDash = 14,
        LongDashShortDashShortDash = 15,
        LongDashDotDot = 16,
        LongDashDot = 17,
        MediumDashDotShortDashDot = 18,
        SparseDot = 19,
        VisibleInvisible = 20,
        Zigzag = 21,
        CurveBatting = 22,
        FenceCircle = 23,
        FenceSquare = 24,
        SupplyLineGas = 25,
        SupplyLineHotWater = 26,
        Tracks = 27,
    };

    /// The entity, or null.
    const std::shared_ptr<ExcEntity>& entity() const { return m_entity; }
    void setEntity(std::shared_ptr<ExcEntity> entity) { m_entity = std::move(entity); }
    /// The persistent names of the entity.
    const std::vector<std::wstring>& persistentNames() const { return m_persistentNames; }
    void setPersistentNames(std::vector<std::wstring> names) { m_persistentNames = std::move(names); }
    /// Appends a persistent name.
    void addPersistentName(const std::wstring& name) { m_persistentNames.push_back(name); }
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether the entity is hidden.
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// The line the entity is drawn with.
    ELineType lineType() const { return m_lineType; }
    void setLineType(ELineType type) { m_lineType = type; }
    /// The thickness of that line.
    double lineThickness() const { return m_lineThickness; }
    void setLineThickness(double thickness) { m_lineThickness = thickness; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcTopologicalEntityInformation& other) const;
    bool operator!=(const ExcTopologicalEntityInformation& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::shared_ptr<ExcEntity> m_entity;
    std::vector<std::wstring> m_persistentNames;
    std::wstring m_name;
    bool m_hidden = false;
    ELineType m_lineType = ELineType::Unknown;
    double m_lineThickness = 0.0;
};

/// The entity information of one block. The value is an array of
/// ExcTopologicalEntityInformation objects, read appended to those held; anything but an array
/// is logged and ignored.
class HRM_API ExcEntityData : public IJsonObject
{
public:
    /// The entity information items.
    const std::vector<std::shared_ptr<ExcTopologicalEntityInformation>>& data() const { return m_data; }
    /// Appends an item; a null one is refused with a warning.
    void addData(const std::shared_ptr<ExcTopologicalEntityInformation>& information);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcEntityData& other) const;
    bool operator!=(const ExcEntityData& other) const { return !(*this == other); }

private:
    std::vector<std::shared_ptr<ExcTopologicalEntityInformation>> m_data;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcTopologicalEntityInformation::ELineType)
