#include <hrm_api/hrm_api_exchange_mechanical_roots.h>

#include "support/mechanical_case.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "mechanical_sample.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hrm {
namespace {

using test::readText;
using test::toText;

TEST(MechanicalRoots, WriteOnlyTheChildrenTheyHold)
{
    ExcBlockMechanicalData block;
    block.setBlockId(42);
    EXPECT_EQ(toText(block), LR"({"block_id":42})");
    block.setEntityData(std::make_shared<ExcEntityData>());
    block.setLogFile(L"t.log");
    EXPECT_EQ(toText(block), LR"({"block_id":42,"log_file":"t.log","entity_data":[]})");
    EXPECT_EQ(toText(ExcRootMechanicalData()), L"{}");

    // A present member replaces its child by a new one; an absent one leaves it.
    const auto misc = samples::mechanical::miscData();
    const auto entities = block.entityData();
    block.setMiscData(misc);
    readText(block, LR"({"block_id":-1,"entity_data":[{"name":"e"}],"mfg_data":{"has_data":true}})");
    EXPECT_EQ(block.blockId(), 42u);
    EXPECT_EQ(block.miscData(), misc);
    ASSERT_NE(block.entityData(), entities);
    EXPECT_EQ(block.entityData()->data().size(), 1u);
    EXPECT_TRUE(block.manufacturingData()->hasData());
}

TEST(MechanicalRoots, ACloneIsACopySharingTheChildren)
{
    const auto block = samples::mechanical::block();
    block->setSource(L"buffer");
    const auto clone = std::dynamic_pointer_cast<ExcBlockMechanicalData>(block->clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(*clone, *block);
    EXPECT_EQ(clone->blockId(), block->blockId());
    EXPECT_EQ(clone->pmiData(), block->pmiData());
    EXPECT_EQ(clone->miscData(), block->miscData());
    EXPECT_EQ(clone->mappingData(), block->mappingData());
    EXPECT_EQ(clone->manufacturingData(), block->manufacturingData());
    EXPECT_EQ(clone->entityData(), block->entityData());

    const auto root = samples::mechanical::root();
    const auto rootClone = std::dynamic_pointer_cast<ExcRootMechanicalData>(root->clone());
    ASSERT_TRUE(rootClone);
    EXPECT_EQ(rootClone->pmiData(), root->pmiData());
    EXPECT_EQ(rootClone->logFile(), root->logFile());
}

} // namespace
} // namespace hrm

namespace hrm::test {

HRM_MECH_CASE(ExcRootMechanicalData, "ExcRootMechanicalData", samples::mechanical::root(), L"pmi_data", L"log_file")
HRM_MECH_CASE(ExcBlockMechanicalData, "ExcBlockMechanicalData", samples::mechanical::block(), L"block_id", L"log_file",
              L"pmi_data", L"misc_data", L"mapping_data", L"mfg_data", L"entity_data")

using RootTypes = ::testing::Types<ExcRootMechanicalData, ExcBlockMechanicalData>;
INSTANTIATE_TYPED_TEST_SUITE_P(MechanicalRoots, MemberSuite, RootTypes);

} // namespace hrm::test
