#pragma once

// The two exchange objects that carry the mechanical results of a translation:
// ExcRootMechanicalData, the PMI of the model as a whole, and ExcBlockMechanicalData, one per
// block of the product structure, with that block's PMI, miscellaneous data, entity mapping,
// manufacturing features and entity information. Both always travel as compressed binary JSON
// in shared memory. Their children are shared, may be null, and are written only when set;
// reading a present member replaces the child by a new one, and an absent member leaves it.
// A clone is a copy that shares the children.

#include <hrm_api/hrm_api_exchange_mechanical_mfg.h>
#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>
#include <hrm_api/hrm_api_exchange_mechanical_topology.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <memory>
#include <string>

namespace hrm {

/// What both mechanical data objects are: binary and compressed whatever happens, with the PMI
/// data they carry and the path of the translator's log.
class HRM_API ExcMechanicalDataObject : public IExchangeObject
{
public:
    /// Always true: the object travels in shared memory.
    bool binary() const final { return true; }
    /// Always true: its payload is compressed.
    bool compress() const final { return true; }

    /// The PMI, or null.
    const std::shared_ptr<ExcPMIData>& pmiData() const { return m_pmiData; }
    void setPMIData(std::shared_ptr<ExcPMIData> data) { m_pmiData = std::move(data); }
    /// The path of the translator's log, or empty.
    const std::wstring& logFile() const { return m_logFile; }
    void setLogFile(const std::wstring& path) { m_logFile = path; }

protected:
    ExcMechanicalDataObject() = default;

    std::shared_ptr<ExcPMIData> m_pmiData; ///< The PMI, or null.
    std::wstring m_logFile;                ///< The path of the translator's log, or empty.
};

/// The mechanical data of the model as a whole: {"pmi_data" (when set), "log_file" (when not
/// empty)}.
class HRM_API ExcRootMechanicalData
    : public ExchangeObjectType<ExcRootMechanicalData, ExcMechanicalDataObject, Cloning::Copy>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_root_mechanical_data";

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcRootMechanicalData& other) const;
    bool operator!=(const ExcRootMechanicalData& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

/// The mechanical data of one block: {"block_id", "log_file" (when not empty), "pmi_data",
/// "misc_data", "mapping_data", "mfg_data", "entity_data" (each when set)}.
class HRM_API ExcBlockMechanicalData
    : public ExchangeObjectType<ExcBlockMechanicalData, ExcMechanicalDataObject, Cloning::Copy>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_block_mechanical_data";

    /// The id of the block (ExcBlock) the data belongs to.
    uint64_t blockId() const { return m_blockId; }
    void setBlockId(uint64_t id) { m_blockId = id; }
    /// The free property groups.
    const std::shared_ptr<ExcMechanicalMiscData>& miscData() const { return m_miscData; }
    void setMiscData(std::shared_ptr<ExcMechanicalMiscData> data) { m_miscData = std::move(data); }
    /// The entity mapping, or null.
    const std::shared_ptr<ExcMappingData>& mappingData() const { return m_mappingData; }
    void setMappingData(std::shared_ptr<ExcMappingData> data) { m_mappingData = std::move(data); }
    /// The manufacturing features, or null.
    const std::shared_ptr<ExcMfgData>& manufacturingData() const { return m_manufacturingData; }
    void setManufacturingData(std::shared_ptr<ExcMfgData> data) { m_manufacturingData = std::move(data); }
    /// The entity information, or null.
    const std::shared_ptr<ExcEntityData>& entityData() const { return m_entityData; }
    void setEntityData(std::shared_ptr<ExcEntityData> data) { m_entityData = std::move(data); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcBlockMechanicalData& other) const;
    bool operator!=(const ExcBlockMechanicalData& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    uint64_t m_blockId = 0;
    std::shared_ptr<ExcMechanicalMiscData> m_miscData;
    std::shared_ptr<ExcMappingData> m_mappingData;
    std::shared_ptr<ExcMfgData> m_manufacturingData;
    std::shared_ptr<ExcEntityData> m_entityData;
};

} // namespace hrm
