#include <hrm_api/hrm_api_exchange_structure.h>

#include "hrm_api/hrm_api_json_members.h"

#include <logging/ax_herm_logger.h>

#include <algorithm>

namespace hrm {

template <class Members>
void ExcBlockReference::members(Members& m)
{
    m.string(L"guid", m_guid)
        .string(L"persistent_id", m_persistentId)
        .string(L"persistent_name", m_persistentName)
        .uint64(L"block_id", m_blockId)
        .string(L"name", m_name)
        .boolean(L"hidden", m_hidden)
        .boolean(L"suppressed", m_suppressed)
        .string(L"configuration_name", m_configurationName)
        .object(L"transformation", m_transformation)
        .object(L"color", m_color)
        .object(L"misc_data", m_miscData);
}
HRM_MEMBER_IO(ExcBlockReference, "ExcBlockReference")
HRM_EQUALITY_AS_JSON(ExcBlockReference)

HRM_CHILD_ADDER(ExcBlock, ExcBlockReference, addBlockReference, m_blockReferences, "Block Reference")

template <class Members>
void ExcBlock::members(Members& m)
{
    m.uint64(L"id", m_id)
        .string(L"name", m_name)
        .string(L"storage_name", m_storageName)
        .enumeration(L"world_orientation", m_worldOrientation)
        .object(L"misc_data", m_miscData)
        .boolean(L"is_part", m_part)
        .children(L"block_references", m_blockReferences);
}
HRM_MEMBER_IO(ExcBlock, "ExcBlock")
HRM_EQUALITY_AS_JSON(ExcBlock)

void ExcProductStructure::addBlock(const std::shared_ptr<ExcBlock>& block)
{
    if (!block) {
        HRM_LOG(ax_herm::Warning) << "ExcProductStructure: attempt to add null Block object.";
        return;
    }
    // The list is searched only when the id is in use, so that reading many blocks of one id
    // (which are all new objects) stays linear.
    if (m_blockIndex.count(block->id()) != 0) {
        const auto listed = std::find(m_blocks.begin(), m_blocks.end(), block);
        if (listed != m_blocks.end())
            m_blocks.erase(listed);
    }
    appendBlock(block);
}

void ExcProductStructure::appendBlock(const std::shared_ptr<ExcBlock>& block)
{
    m_blocks.push_back(block);
    m_blockIndex[block->id()] = block;
}

std::shared_ptr<ExcBlock> ExcProductStructure::getBlockById(uint64_t id) const
{
    const auto it = m_blockIndex.find(id);
    return it == m_blockIndex.end() ? nullptr : it->second;
}

HRM_CHILD_ADDER(ExcProductStructure, ExcBlockReference, addRootBlockReference, m_rootBlockReferences, "Root Block Reference")

bool ExcProductStructure::isPart() const
{
    if (m_productName == L"SPAXIopPSProductDummyReference")
        return true;
    return m_rootBlockReferences.size() == 1 && m_rootBlockReferences.front()->name() == L"SPAXIopPSProductDummyInstance";
}

template <class Members>
void ExcProductStructure::members(Members& m)
{
    // Blocks read are new objects, never listed yet: appendBlock is addBlock for them.
    m.string(L"product_name", m_productName)
        .string(L"product_configuration_name", m_productConfigurationName)
        .object(L"misc_data", m_miscData)
        .enumeration(L"units", m_units)
        .enumeration(L"world_orientation", m_worldOrientation)
        .children(L"blocks", m_blocks, adder(this, &ExcProductStructure::appendBlock))
        .children(L"root_block_references", m_rootBlockReferences);
}
HRM_MEMBER_IO(ExcProductStructure, "ExcProductStructure")
HRM_EQUALITY_AS_JSON(ExcProductStructure)

} // namespace hrm
