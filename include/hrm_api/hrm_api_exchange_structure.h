#pragma once

/// @file
/// The product structure: the assembly tree of a translated model as a flat list of blocks (part
/// and assembly definitions) and references that place a block under a parent with a
/// transformation. A block's children are the references it holds; the top level is a list of
/// root references. Each block's geometry travels apart, as an ExcBlockGeometry with the same
/// block id.
///
/// Reading is lenient: a missing or mistyped member keeps its field; lists read are appended to
/// those held (read into a fresh object to get exactly what a document holds). The library does
/// not check that block ids are unique, that references name existing blocks, or that the tree
/// is free of cycles. Equality is the same JSON.

#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_common_entity.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// An instance of a block under a parent: {"guid", "persistent_id", "persistent_name",
/// "block_id", "name", "hidden", "suppressed", "configuration_name", "transformation", "color",
/// "misc_data"}.
class HRM_API ExcBlockReference : public IJsonObject
{
public:
    /// A globally unique id of the instance.
    const std::wstring& guid() const { return m_guid; }
    void setGuid(const std::wstring& guid) { m_guid = guid; }
    /// The source system's lasting id of the instance.
    const std::wstring& persistentId() const { return m_persistentId; }
    void setPersistentId(const std::wstring& id) { m_persistentId = id; }
    /// The source system's lasting name of the instance.
    const std::wstring& persistentName() const { return m_persistentName; }
    void setPersistentName(const std::wstring& name) { m_persistentName = name; }
    /// The id of the block (ExcBlock) placed here.
    uint64_t blockId() const { return m_blockId; }
    void setBlockId(uint64_t id) { m_blockId = id; }
    /// The instance's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Placement in the parent's coordinates; the identity by default.
    const ExcTransformation& transformation() const { return m_transformation; }
    void setTransformation(const ExcTransformation& transformation) { m_transformation = transformation; }
    /// Written as null while it has neither RGB nor alpha.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// Whether the instance is hidden.
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// Whether the instance is suppressed.
    bool isSuppressed() const { return m_suppressed; }
    void setSuppressed(bool suppressed) { m_suppressed = suppressed; }
    /// The configuration of the block that the instance shows.
    const std::wstring& configurationName() const { return m_configurationName; }
    void setConfigurationName(const std::wstring& name) { m_configurationName = name; }
    /// The instance's property groups.
    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcBlockReference& other) const;
    bool operator!=(const ExcBlockReference& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_guid;
    std::wstring m_persistentId;
    std::wstring m_persistentName;
    uint64_t m_blockId = 0;
    std::wstring m_name;
    ExcTransformation m_transformation;
    ExcColor m_color;
    bool m_hidden = false;
    bool m_suppressed = false;
    std::wstring m_configurationName;
    ExcMiscData m_miscData;
};

/// The instances under a block, or the roots of a tree.
using ExcBlockReferences = std::vector<std::shared_ptr<ExcBlockReference>>;

/// A part or assembly definition: {"id", "name", "storage_name", "world_orientation",
/// "misc_data", "is_part", "block_references"}.
class HRM_API ExcBlock : public IJsonObject
{
public:
    /// The id by which instances and other data refer to the block.
    uint64_t id() const { return m_id; }
    void setId(uint64_t id) { m_id = id; }
    /// The block's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The name of the file or storage the block comes from.
    const std::wstring& storageName() const { return m_storageName; }
    void setStorageName(const std::wstring& name) { m_storageName = name; }
    /// Which axis of the block points up.
    EWorldOrientation worldOrientation() const { return m_worldOrientation; }
    void setWorldOrientation(EWorldOrientation orientation) { m_worldOrientation = orientation; }
    /// The block's property groups.
    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }
    /// The instances this block holds, in order.
    const ExcBlockReferences& blockReferences() const { return m_blockReferences; }
    /// A null reference is refused with a warning.
    void addBlockReference(const std::shared_ptr<ExcBlockReference>& reference);
    /// Whether the block is a part (has no instances of its own).
    bool isPart() const { return m_part; }
    void setPart(bool part) { m_part = part; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcBlock& other) const;
    bool operator!=(const ExcBlock& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    uint64_t m_id = 0;
    std::wstring m_name;
    std::wstring m_storageName;
    EWorldOrientation m_worldOrientation = EWorldOrientation::Unknown;
    ExcMiscData m_miscData;
    ExcBlockReferences m_blockReferences;
    bool m_part = false;
};

/// The blocks of a product structure.
using ExcBlocks = std::vector<std::shared_ptr<ExcBlock>>;

/// The assembly tree of a model, "exc_product_structure": {"product_name",
/// "product_configuration_name", "misc_data", "units", "world_orientation", "blocks",
/// "root_block_references"}. Always travels as compressed binary JSON in shared memory.
class HRM_API ExcProductStructure : public ExchangeObjectType<ExcProductStructure>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_product_structure";

    bool binary() const override { return true; }
    bool compress() const override { return true; }

    /// The product's name.
    const std::wstring& productName() const { return m_productName; }
    void setProductName(const std::wstring& name) { m_productName = name; }
    /// The configuration of the product translated.
    const std::wstring& productConfigurationName() const { return m_productConfigurationName; }
    void setProductConfigurationName(const std::wstring& name) { m_productConfigurationName = name; }
    /// The product's property groups.
    const ExcMiscData& miscData() const { return m_miscData; }
    ExcMiscData& miscData() { return m_miscData; }
    /// The length unit of every transformation.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType units) { m_units = units; }
    /// Which axis of the model points up.
    EWorldOrientation worldOrientation() const { return m_worldOrientation; }
    void setWorldOrientation(EWorldOrientation orientation) { m_worldOrientation = orientation; }

    /// The blocks in the order added. Several may share an id (see addBlock).
    const ExcBlocks& blocks() const { return m_blocks; }
    /// Appends `block` and makes it the block of its id. Adding a block object that is already
    /// listed under an id in use moves it to the end; adding another object with an id in use
    /// keeps both in the list, and the newer one becomes the block of the id. A null block is
    /// refused with a warning.
    void addBlock(const std::shared_ptr<ExcBlock>& block);
    /// The block last added with `id`; null when there is none.
    std::shared_ptr<ExcBlock> getBlockById(uint64_t id) const;

    /// The top level of the tree.
    const ExcBlockReferences& rootBlockReferences() const { return m_rootBlockReferences; }
    /// A null reference is refused with a warning.
    void addRootBlockReference(const std::shared_ptr<ExcBlockReference>& reference);

    /// Whether the structure only wraps a single part: the product is named
    /// "SPAXIopPSProductDummyReference", or its one root reference "SPAXIopPSProductDummyInstance".
    bool isPart() const;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcProductStructure& other) const;
    bool operator!=(const ExcProductStructure& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
    /// Appends a block that is not listed yet (a block just read) and indexes it.
    void appendBlock(const std::shared_ptr<ExcBlock>& block);

    std::wstring m_productName;
    std::wstring m_productConfigurationName;
    ExcMiscData m_miscData;
    ELengthUnitType m_units = ELengthUnitType::Unknown;
    EWorldOrientation m_worldOrientation = EWorldOrientation::Unknown;
    ExcBlocks m_blocks;
    std::map<uint64_t, std::shared_ptr<ExcBlock>> m_blockIndex;
    ExcBlockReferences m_rootBlockReferences;
};

} // namespace hrm
