#include <hrm_api/hrm_api_exchange_object.h>

#include "support/expect_message.h"
#include "support/read_text.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

namespace hrm {
namespace {

using test::readText;
using test::toText;
using Material = LegacyMaterialMap::Material;

TEST(LegacyComponentInstanceNames, ArrayInHandleOrderAndLenientElements)
{
    LegacyComponentInstanceNames names;
    EXPECT_EQ(toText(names), L"[]");
    names.setMap({{18446744073709551615u, L"max"}, {2, L"old"}});
    EXPECT_TRUE(names.addInstanceName(2, L"two"));
    const std::wstring text = LR"([{"component_handle":2,"component_name":"two"},)"
                              LR"({"component_handle":18446744073709551615,"component_name":"max"}])";
    EXPECT_EQ(toText(names), text);

    LegacyComponentInstanceNames read;
    read.setMap({{2, L"replaced"}, {3, L"kept"}});
    readText(read, text);
    readText(read, LR"([{"component_handle":-1,"component_name":"A"},{"component_handle":4.0,"component_name":"A"},)"
                   LR"({"component_handle":5},{"component_handle":6,"component_name":null},7])");
    EXPECT_EQ(read.map(), (LegacyComponentInstanceNames::Map{{2, L"two"}, {3, L"kept"}, {18446744073709551615u, L"max"}}));

    LegacyComponentInstanceNames other;
    other.setMap({{3, L"other"}, {9, L"nine"}});
    read.merge(other);
    EXPECT_EQ(read.map().at(3), L"kept");
    EXPECT_EQ(read.map().at(9), L"nine");
    test::expectMessage<std::invalid_argument>([&] { readText(read, L"{}"); },
        "LegacyComponentInstanceNames::readObject(): Input json object is not an array");
}

TEST(LegacyMaterialMap, AllFieldsWrittenAndOnlyStoredDoublesRead)
{
    LegacyMaterialMap materials;
    materials.setMap({{7, Material{true, L"steel", 7800.0, 50.5, 0.49}}, {1, Material{}}});
    const std::wstring text =
        LR"([{"component_handle":1,"component_material":{"has_material":false,"name":"","density":0.0,)"
        LR"("thermal_conductivity":0.0,"specific_heat":0.0}},{"component_handle":7,"component_material":)"
        LR"({"has_material":true,"name":"steel","density":7800.0,"thermal_conductivity":50.5,"specific_heat":0.49}}])";
    EXPECT_EQ(toText(materials), text);
    LegacyMaterialMap read;
    EXPECT_EQ(readText(read, text).map(), materials.map());

    LegacyMaterialMap strict;
    readText(strict, LR"([{"component_handle":1,"component_material":{"has_material":1,"name":"iron","density":7800,)"
                     LR"("thermal_conductivity":80.0,"specific_heat":"0.45"}},{"component_handle":2},)"
                     LR"({"component_handle":3,"component_material":[]},{"component_handle":-4,"component_material":{}}])");
    EXPECT_EQ(strict.map(), (LegacyMaterialMap::Map{{1, Material{false, L"iron", 0.0, 80.0, 0.0}}}));
    strict.merge(read);
    EXPECT_EQ(strict.map().at(1).name, L"iron");
    EXPECT_EQ(strict.map().at(7), materials.map().at(7));
    test::expectMessage<std::invalid_argument>([&] { readText(strict, L"5"); },
        "LegacyMaterialMap::readObject(): Input json object is not an array");
}

} // namespace
} // namespace hrm
