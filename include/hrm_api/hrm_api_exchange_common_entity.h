#pragma once

/// @file
/// References to model topology and free property groups, shared by the product structure and
/// the mechanical data:
///
/// - ExcFullSubentPath and ExcEntity name a body, face, edge or vertex inside an instance path
///   of block references, so that annotations and features can point at geometry.
/// - ExcMiscProperty, ExcMiscPropertiesGroup and ExcMiscData carry the named properties of the
///   source CAD system in named groups, each kept in the order of its names.
///
/// Like the other value types, these classes never throw on malformed JSON: they log and leave
/// their fields as they were. Equality is the same JSON.

#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace hrm {

/// The kind of topology a path names, as the character code of its letter.
enum class HRM_API_TYPE ESubentType : uint16_t
{
    Body = 'b',
    Edge = 'e',
    Face = 'f',
    Vertex = 'v',
};

/// A piece of topology inside an instance: {"block_references", "subent_id", "subent_type",
/// "visu_id", "instance_path"}. The type travels as its letter ("f"); reading decides it by the
/// first character of the string only ("face" reads as a face, "Face" changes nothing).
class HRM_API ExcFullSubentPath : public IJsonObject
{
public:
    ExcFullSubentPath() = default;
    explicit ExcFullSubentPath(const uint64_t& subentId) : m_subentId(subentId) {}

    /// The block reference ids from the root down to the instance.
    const std::vector<std::wstring>& refs() const { return m_refs; }
    std::vector<std::wstring>& refs() { return m_refs; }
    /// The id of the piece of topology within its body.
    const uint64_t& subentId() const { return m_subentId; }
    void setSubentId(const uint64_t& id) { m_subentId = id; }
    /// The kind of topology.
    ESubentType subentType() const { return m_subentType; }
    void setSubentType(ESubentType type) { m_subentType = type; }
    /// The id of the matching item of the visualization data.
    const std::wstring& visuId() const { return m_visuId; }
    void setVisuId(const std::wstring& id) { m_visuId = id; }
    /// Whether the path names the instance itself rather than a piece of it.
    bool isInstancePath() const { return m_instancePath; }
    void setInstancePath(bool instancePath) { m_instancePath = instancePath; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcFullSubentPath& other) const;
    bool operator!=(const ExcFullSubentPath& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
    template <class Members>
    void subentLetter(Members& m);

    std::vector<std::wstring> m_refs;
    uint64_t m_subentId = 0;
    ESubentType m_subentType = ESubentType::Body;
    std::wstring m_visuId;
    bool m_instancePath = false;
};

/// A reference to a model entity: {"type", "fsp", "description", "id"}. An entity without a
/// path writes "fsp": null, and reading null takes the path away; reading a document without
/// "fsp" keeps the path held, as every missing member keeps its field.
class HRM_API ExcEntity : public IJsonObject
{
public:
    /// What the entity's id refers to.
    enum class HRM_API_TYPE EType : int32_t
    {
        Unknown = 0,
        Fsp = 1,
        Mfg = 2,
        Original = 3,
    };

    /// The entity's id.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    /// What the id refers to.
    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }
    /// The path to the entity's topology, or null.
    const std::shared_ptr<ExcFullSubentPath>& fsp() const { return m_fsp; }
    void setFsp(std::shared_ptr<ExcFullSubentPath> fsp) { m_fsp = std::move(fsp); }
    /// A description for the user.
    const std::wstring& description() const { return m_description; }
    void setDescription(const std::wstring& description) { m_description = description; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcEntity& other) const;
    bool operator!=(const ExcEntity& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_id;
    EType m_type = EType::Unknown;
    std::shared_ptr<ExcFullSubentPath> m_fsp;
    std::wstring m_description;
};

/// One named property: {"name", "type", "value"}. Every value is carried as text, whatever its
/// type; the library neither parses nor checks it. Setters return the property, so calls chain.
class HRM_API ExcMiscProperty : public IJsonObject
{
public:
    /// The type of the value the text stands for.
    enum class HRM_API_TYPE EType : int32_t
    {
        Unknown = 0,
        String = 1,
        Integer = 2,
        Double = 3,
        Boolean = 4,
        DateTime = 5,
    };

    ExcMiscProperty() = default;
    /// A property of that name, type and value.
    ExcMiscProperty(const std::wstring& name, EType type, const std::wstring& value)
        : m_name(name), m_type(type), m_value(value)
    {
    }

    /// The property's name.
    const std::wstring& name() const { return m_name; }
    ExcMiscProperty& setName(const std::wstring& name);
    /// The type of value the text stands for.
    EType type() const { return m_type; }
    ExcMiscProperty& setType(EType type);
    /// The value, as text.
    const std::wstring& value() const { return m_value; }
    ExcMiscProperty& setValue(const std::wstring& value);
    /// Sets the type and the value together.
    ExcMiscProperty& set(EType type, const std::wstring& value);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscProperty& other) const;
    bool operator!=(const ExcMiscProperty& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    EType m_type = EType::Unknown;
    std::wstring m_value;
};

/// Orders properties by name, comparing UTF-16 code units (case-sensitive), the same on every
/// platform.
struct HRM_API ExcMiscPropertyCmp
{
    /// Whether `a` comes before `b`.
    bool operator()(const ExcMiscProperty& a, const ExcMiscProperty& b) const;
};

/// A named group of properties: {"name", "is_bim", "properties"}. The properties are kept in
/// the order of their names, one per name: adding a property whose name is already present
/// keeps the one held and drops the new one, silently.
class HRM_API ExcMiscPropertiesGroup : public IJsonObject
{
public:
    /// Properties, one per name, in the order of their names.
    using Properties = std::set<ExcMiscProperty, ExcMiscPropertyCmp>;

    /// The group's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether the group holds building (BIM) data.
    bool isBim() const { return m_bim; }
    void setBim(bool bim) { m_bim = bim; }
    /// The properties, in the order of their names.
    const Properties& properties() const { return m_properties; }
    /// Adds a property unless one of its name is present.
    void addProperty(const ExcMiscProperty& property) { m_properties.insert(property); }
    void addProperty(ExcMiscProperty&& property) { m_properties.insert(std::move(property)); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscPropertiesGroup& other) const;
    bool operator!=(const ExcMiscPropertiesGroup& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    bool m_bim = false;
    Properties m_properties;
};

/// Orders shared groups by their names, as ExcMiscPropertyCmp orders properties. A group's name
/// must not change while a set holds it.
struct HRM_API ExcMiscPropertiesGroupPtrCmp
{
    /// Whether `a` comes before `b`.
    bool operator()(const std::shared_ptr<ExcMiscPropertiesGroup>& a, const std::shared_ptr<ExcMiscPropertiesGroup>& b) const;
};

/// Property groups, one per name, written as a JSON array of groups in the order of their
/// names. Reading also takes the flat layout of older writers, an array of properties, as one
/// group with an empty name.
class HRM_API ExcMiscData : public IJsonObject
{
public:
    /// Groups, one per name, in the order of their names.
    using Groups = std::set<std::shared_ptr<ExcMiscPropertiesGroup>, ExcMiscPropertiesGroupPtrCmp>;

    /// The groups, in the order of their names.
    const Groups& groups() const { return m_groups; }
    /// A null group is refused with a warning. A group whose name is already present is dropped
    /// with a warning (its properties are lost: groups are not merged).
    void addGroup(const std::shared_ptr<ExcMiscPropertiesGroup>& group);
    /// Whether there are no groups.
    bool isEmpty() const { return m_groups.empty(); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMiscData& other) const;
    bool operator!=(const ExcMiscData& other) const { return !(*this == other); }

private:
    Groups m_groups;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcEntity::EType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMiscProperty::EType)
