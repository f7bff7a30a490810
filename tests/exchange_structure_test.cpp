#include <hrm_api/hrm_api_exchange_structure.h>

#include "structure_sample.h"
#include "support/log_capture.h"
#include "support/member_suite.h"
#include "support/read_text.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;

std::shared_ptr<ExcBlock> blockWithId(uint64_t id)
{
    auto block = std::make_shared<ExcBlock>();
    block->setId(id);
    return block;
}

std::shared_ptr<ExcBlockReference> referenceNamed(const std::wstring& name)
{
    auto reference = std::make_shared<ExcBlockReference>();
    reference->setName(name);
    return reference;
}

TEST(ExcProductStructure, DefaultsWriteEveryKey)
{
    EXPECT_EQ(toText(ExcProductStructure()),
              L"{\"product_name\":\"\",\"product_configuration_name\":\"\",\"misc_data\":[],\"units\":\"unknown\","
              L"\"world_orientation\":\"unknown\",\"blocks\":[],\"root_block_references\":[]}");

    // Only JSON booleans and unsigned integers are taken.
    ExcBlockReference reference;
    readText(reference, LR"({"hidden":1,"block_id":-3,"suppressed":"true"})");
    EXPECT_EQ(reference, ExcBlockReference());
    EXPECT_EQ(readText(reference, LR"({"block_id":18446744073709551615})").blockId(), 18446744073709551615ull);
}

TEST(ExcProductStructure, ReAddingABlockMovesItButAnotherWithTheSameIdStaysBeside)
{
    ExcProductStructure structure;
    const auto a = blockWithId(5), c = blockWithId(6), b = blockWithId(5);
    for (const auto& block : {a, c, b})
        structure.addBlock(block);
    EXPECT_EQ(structure.blocks(), (ExcBlocks{a, c, b}));
    EXPECT_EQ(structure.getBlockById(5), b);

    structure.addBlock(a); // the same object: moved to the end, and the block of its id again
    EXPECT_EQ(structure.blocks(), (ExcBlocks{c, b, a}));
    EXPECT_EQ(structure.getBlockById(5), a);
    structure.addBlock(c);
    EXPECT_EQ(structure.blocks(), (ExcBlocks{b, a, c}));
    EXPECT_EQ(structure.getBlockById(7), nullptr);

    // Reading passes every block through the same rule.
    ExcProductStructure read;
    readText(read, LR"({"blocks":[{"id":5,"name":"first"},{"id":5,"name":"second"},{"id":4}]})");
    ASSERT_EQ(read.blocks().size(), 3u);
    EXPECT_EQ(read.getBlockById(5)->name(), L"second");
    EXPECT_EQ(read.blocks()[0]->name(), L"first");

    // Copies share their blocks.
    const ExcProductStructure copy = structure;
    EXPECT_EQ(copy.getBlockById(5), a);
}

TEST(ExcProductStructure, IsAPartByItsDummyNames)
{
    ExcProductStructure structure;
    EXPECT_FALSE(structure.isPart());
    structure.addRootBlockReference(referenceNamed(L"SPAXIopPSProductDummyInstance"));
    EXPECT_TRUE(structure.isPart());
    structure.addRootBlockReference(referenceNamed(L"other"));
    EXPECT_FALSE(structure.isPart()); // two roots, whatever the first is called
    structure.setProductName(L"SPAXIopPSProductDummyReference");
    EXPECT_TRUE(structure.isPart());
    structure.setProductName(L"spaxioppsproductdummyreference");
    EXPECT_FALSE(structure.isPart());

    ExcProductStructure instance;
    instance.addRootBlockReference(referenceNamed(L"SPAXIopPSProductDummyInstance "));
    EXPECT_FALSE(instance.isPart());
}

TEST(ExcProductStructure, NullChildrenAreRefused)
{
    LogCapture log;
    ExcProductStructure structure;
    structure.addBlock(nullptr);
    structure.addRootBlockReference(nullptr);
    ExcBlock block;
    block.addBlockReference(nullptr);
    EXPECT_TRUE(structure.blocks().empty() && structure.rootBlockReferences().empty() && block.blockReferences().empty());
    EXPECT_EQ(log.messages(ax_herm::Warning), (Messages{"ExcProductStructure: attempt to add null Block object.",
                                                        "ExcProductStructure: attempt to add null Root Block Reference object.",
                                                        "ExcBlock: attempt to add null Block Reference object."}));

    // An element of another kind still becomes a (default) child, and says so.
    log.clear();
    readText(block, LR"({"block_references":[3]})");
    ASSERT_EQ(block.blockReferences().size(), 1u);
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"ExcBlockReference object should have a JSON object type."});
}

TEST(ExcProductStructure, AnAssemblyTravelsThroughTheWrapperUnchanged)
{
    const auto structure = samples::productStructure(1000, 10000);
    ASSERT_EQ(structure->blocks().size(), 1000u);
    const auto delivered = test::throughEnvelope(*structure);
    ASSERT_TRUE(delivered);
    EXPECT_TRUE(delivered->isLoaded());
    EXPECT_EQ(toText(*delivered), toText(*structure));
    EXPECT_EQ(delivered->getBlockById(1000)->name(), structure->getBlockById(1000)->name());
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {

#define HRM_STRUCTURE_CASE(T, make, ...)                                                          \
    template <>                                                                                   \
    struct MemberCase<T> : MemberCaseDefaults                                                     \
    {                                                                                             \
        static constexpr const char* wrongKindMessage = #T " object should have a JSON object type."; \
        static T sample() { return *samples::full::make(); }                                     \
        static std::vector<std::wstring> keys() { return {__VA_ARGS__}; }                        \
        static std::vector<std::wstring> anyKind() { return {L"color"}; }                        \
    };

HRM_STRUCTURE_CASE(ExcBlockReference, blockReference, L"guid", L"persistent_id", L"persistent_name", L"block_id", L"name",
                   L"hidden", L"suppressed", L"configuration_name", L"transformation", L"color", L"misc_data")
HRM_STRUCTURE_CASE(ExcBlock, productBlock, L"id", L"name", L"storage_name", L"world_orientation", L"misc_data", L"is_part",
                   L"block_references")
HRM_STRUCTURE_CASE(ExcProductStructure, productStructure, L"product_name", L"product_configuration_name", L"misc_data",
                   L"units", L"world_orientation", L"blocks", L"root_block_references")

using StructureTypes = ::testing::Types<ExcBlockReference, ExcBlock, ExcProductStructure>;
INSTANTIATE_TYPED_TEST_SUITE_P(Structure, MemberSuite, StructureTypes);

} // namespace hrm::test
