#include <hrm_api/hrm_api_exchange_mechanical_roots.h>

#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

template <class Members>
void ExcRootMechanicalData::members(Members& m)
{
    m.child(L"pmi_data", m_pmiData).writtenIf(!m_logFile.empty()).string(L"log_file", m_logFile);
}
HRM_MEMBER_IO(ExcRootMechanicalData, "ExcRootMechanicalData")
HRM_EQUALITY_AS_JSON(ExcRootMechanicalData)

template <class Members>
void ExcBlockMechanicalData::members(Members& m)
{
    m.uint64(L"block_id", m_blockId)
        .writtenIf(!m_logFile.empty())
        .string(L"log_file", m_logFile)
        .child(L"pmi_data", m_pmiData)
        .child(L"misc_data", m_miscData)
        .child(L"mapping_data", m_mappingData)
        .child(L"mfg_data", m_manufacturingData)
        .child(L"entity_data", m_entityData);
}
HRM_MEMBER_IO(ExcBlockMechanicalData, "ExcBlockMechanicalData")
HRM_EQUALITY_AS_JSON(ExcBlockMechanicalData)

} // namespace hrm
