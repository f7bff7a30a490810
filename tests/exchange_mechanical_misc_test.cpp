#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_exchange_mechanical_topology.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/mechanical_case.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "mechanical_sample.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;
using Property = ExcMiscMaterial::EProperty;
namespace sample = samples::mechanical;

TEST(ExcMiscMaterial, PropertiesTravelBetweenNameAndLinkedElementsInIdOrder)
{
    ExcMiscMaterial material;
    material.setName(L"S");
    auto shear = std::make_shared<ExcMiscMaterialProperty>();
    shear->setValue(2.0);
    material.set(Property::ShearModulus, shear);
    material.set(Property::Density, std::make_shared<ExcMiscMaterialProperty>());
    const std::wstring unit = LR"({"units":"","unit_system":"unknown"})";
    const std::wstring units = L"{\"mass\":" + unit + L",\"length\":" + unit + L",\"time\":" + unit +
                               L",\"temperature\":" + unit + L"}";
    EXPECT_EQ(toText(material), L"{\"name\":\"S\",\"density\":{\"value\":0.0,\"unit\":" + units +
                                    L"},\"shear_modulus\":{\"value\":2.0,\"unit\":" + units +
                                    L"},\"linked_elements\":[],\"is_part_level_material\":false}");

    // Reading: every id whose word is a key gives a new property; "unknown" is no property, and
    // a property that is no object is a default one, reported by the property.
    LogCapture log;
    ExcMiscMaterial read;
    read.set(Property::Density, shear);
    readText(read, LR"({"unknown":{"value":1},"density":{"value":3},"specific_heat":7})");
    EXPECT_EQ(read.properties().size(), 2u);
    EXPECT_EQ(read.get(Property::Density)->value(), 3.0);
    EXPECT_NE(read.get(Property::Density), shear);
    EXPECT_EQ(*read.get(Property::SpecificHeat), ExcMiscMaterialProperty());
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"ExcMiscMaterialProperty object should have a JSON object type."});
}

TEST(ExcMiscMaterial, GetAndSetRefuseTheUnknownIdAndANullProperty)
{
    ExcMiscMaterial material;
    EXPECT_EQ(material.get(Property::Density), nullptr);
    const auto invalidId = "Invalid material property id.";
    test::expectMessage<std::invalid_argument>([&] { material.get(Property::Unknown); }, invalidId);
    test::expectMessage<std::invalid_argument>(
        [&] { material.set(Property::Unknown, std::make_shared<ExcMiscMaterialProperty>()); }, invalidId);
    test::expectMessage<std::invalid_argument>([&] { material.set(Property::Density, nullptr); },
                                               "Invalid material property value.");
    EXPECT_TRUE(material.properties().empty());
}

TEST(ExcMiscLayerFilter, LayerIdsTravelUnderASingularKeyAndUnknownTypesReadAsAll)
{
    ExcMiscLayerFilter filter;
    filter.setType(ExcMiscLayerFilter::EType::LayCur);
    filter.addLayerId(4);
    EXPECT_EQ(toText(filter), LR"({"name":"","type":"laycur","current":false,"layer_id":[4]})");
    EXPECT_EQ(test::roundTripText(filter).type(), ExcMiscLayerFilter::EType::LayCur);
    readText(filter, LR"({"type":"LAYCUR","layer_id":[5,"6",7.5,8]})");
    EXPECT_EQ(filter.type(), ExcMiscLayerFilter::EType::All);
    EXPECT_EQ(filter.layerIds(), (std::vector<int32_t>{4, 5, 8}));
}

TEST(ExcMappingData, ReadsAnArrayOfPairsAndSkipsItemsThatAreNoObjects)
{
    LogCapture log;
    ExcMappingData mapping;
    mapping.add(sample::entity(L"a"), nullptr);
    mapping.add(nullptr, sample::entity(L"b"));
    EXPECT_TRUE(mapping.mapping().empty());
    EXPECT_EQ(log.messages(ax_herm::Warning),
              Messages(2, "ExcMappingData: attempt to add null Entity object or null Original Entity object."));

    readText(mapping, LR"([{"imported":{"id":"i"},"original":{"id":"o"}},"x",{"original":{"id":"p"}}])");
    ASSERT_EQ(mapping.mapping().size(), 2u);
    EXPECT_EQ(mapping.mapping()[0].second->id(), L"o");
    EXPECT_EQ(mapping.mapping()[1].first->id(), L""); // a missing side is a default entity
    EXPECT_EQ(mapping.mapping()[1].second->id(), L"p");
    readText(mapping, LR"({"imported":{}})");
    EXPECT_EQ(mapping.mapping().size(), 2u);
    EXPECT_EQ(log.messages(ax_herm::Error), (Messages{"ExcMappingData JSON array should have objects as items.",
                                                      "ExcMappingData object should have a JSON array type."}));
}

TEST(ExcEntityData, AnUnknownLineTypeReadsAsCurveBatting)
{
    ExcEntityData data;
    readText(data, LR"([{"line_type":"dash_dot"},{"line_type":"Dash"},{"line_type":"tracks"}])");
    ASSERT_EQ(data.data().size(), 3u);
    using LineType = ExcTopologicalEntityInformation::ELineType;
    EXPECT_EQ(data.data()[0]->lineType(), LineType::DashDot);
    EXPECT_EQ(data.data()[1]->lineType(), LineType::CurveBatting);
    EXPECT_EQ(data.data()[2]->lineType(), LineType::Tracks);
    EXPECT_EQ(toText(*data.data()[2]),
              LR"({"entity":null,"pnames":[],"name":"","hidden":false,"line_type":"tracks","line_thickness":0.0})");
}

TEST(MechanicalMiscData, NullChildrenAreRefusedWithTheirOwnWarnings)
{
    LogCapture log;
    ExcMiscLayer layer;
    layer.addEntity(nullptr);
    ExcMiscMaterial material;
    material.addLinkedElement(nullptr);
    ExcMiscDisplaySet displaySet;
    displaySet.addEntity(nullptr);
    ExcMechanicalMiscData data;
    data.addWorldCoordinateSystem(nullptr);
    data.addLayer(nullptr);
    data.addLayerFilter(nullptr);
    data.addMaterial(nullptr);
    data.addNoteParameters(nullptr);
    data.addSymmetry(nullptr);
    data.addDisplaySet(nullptr);
    ExcEntityData entityData;
    entityData.addData(nullptr);
    EXPECT_EQ(toText(data), LR"({"misc_data":[],"wcs":[],"layers":[],"layer_filters":[],"materials":[],)"
                            LR"("note_parameters":[],"symmetries":[],"display_sets":[]})");
    EXPECT_TRUE(layer.entities().empty() && material.linkedElements().empty() && displaySet.entities().empty() &&
                entityData.data().empty());
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcMiscLayer: attempt to add null Entity object.",
                        "ExcMiscMaterial: attempt to add null Linked Element object.",
                        "ExcMiscDisplaySet: attempt to add null Entity object.",
                        "ExcMechanicalMiscData: attempt to add null WCS object.",
                        "ExcMechanicalMiscData: attempt to add null Layer object.",
                        "ExcMechanicalMiscData: attempt to add null Layer Filter object.",
                        "ExcMechanicalMiscData: attempt to add null Material object.",
                        "ExcMechanicalMiscData: attempt to add null Note Parameters object.",
                        "ExcMechanicalMiscData: attempt to add null Symmetry object.",
                        "ExcMechanicalMiscData: attempt to add null Display Set object.",
                        "ExcEntityData: attempt to add null Topological Entity Information Data object."}));
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {

namespace sample = samples::mechanical;

HRM_MECH_CASE(ExcMiscWCS, "ExcMiscWCS", sample::wcs(), L"origin", L"x", L"y", L"z", L"color", L"active", L"id", L"name",
              L"shown", L"layer_id")
HRM_MECH_CASE(ExcMiscLayer, "ExcMiscLayer", sample::layer(), L"id", L"name", L"current", L"color", L"entities")
HRM_MECH_CASE(ExcMiscLayerFilter, "ExcMiscLayerFilter", sample::layerFilter(), L"name", L"type", L"current", L"layer_id")
HRM_MECH_CASE(ExcMiscNoteParameters, "ExcMiscNoteParameters", sample::noteParameters(), L"name", L"properties")
HRM_MECH_CASE(ExcMiscMaterialPropertyUnit, "ExcMiscMaterialPropertyUnit", sample::materialPropertyUnit(), L"units",
              L"unit_system")
HRM_MECH_CASE(ExcMiscMaterialProperty, "ExcMiscMaterialProperty", sample::materialProperty(), L"value", L"unit")
HRM_MECH_CASE(ExcMiscMaterial, "ExcMiscMaterial", sample::material(), L"name", L"density", L"shear_modulus",
              L"linked_elements", L"is_part_level_material")
HRM_MECH_CASE(ExcMiscSymmetry, "ExcMiscSymmetry", sample::symmetry(), L"transform_mode", L"transformation",
              L"linked_entity")
HRM_MECH_CASE(ExcMiscDisplaySet, "ExcMiscDisplaySet", sample::displaySet(), L"name", L"active", L"entities")
HRM_MECH_CASE(ExcMechanicalMiscData, "ExcMechanicalMiscData", sample::miscData(), L"misc_data", L"wcs", L"layers",
              L"layer_filters", L"materials", L"note_parameters", L"symmetries", L"display_sets")
HRM_MECH_CASE(ExcTopologicalEntityInformation, "ExcTopologicalEntityInformation", sample::entityInformation(), L"entity",
              L"pnames", L"name", L"hidden", L"line_type", L"line_thickness")

template <>
struct MemberCase<ExcMiscMaterialProperty::Unit> : MemberCaseDefaults
{
    static constexpr const char* wrongKindMessage = "ExcMiscMaterialProperty::Unit object should have a JSON object type.";
    static ExcMiscMaterialProperty::Unit sample() { return samples::mechanical::materialProperty()->unit(); }
    static std::vector<std::wstring> keys() { return {L"mass", L"length", L"time", L"temperature"}; }
};

// The classes whose value is an array.
#define HRM_MECH_ARRAY_CASE(T, make)                                                                 \
    template <>                                                                                      \
    struct MemberCase<T> : MemberCaseDefaults                                                        \
    {                                                                                                \
        static constexpr const char* wrongKindMessage = #T " object should have a JSON array type."; \
        static T sample() { return *samples::mechanical::make(); }                                   \
    };

HRM_MECH_ARRAY_CASE(ExcMappingData, mapping)
HRM_MECH_ARRAY_CASE(ExcEntityData, entityData)

using MiscTypes = ::testing::Types<ExcMiscWCS, ExcMiscLayer, ExcMiscLayerFilter, ExcMiscNoteParameters,
                                   ExcMiscMaterialPropertyUnit, ExcMiscMaterialProperty::Unit, ExcMiscMaterialProperty,
                                   ExcMiscMaterial, ExcMiscSymmetry, ExcMiscDisplaySet, ExcMechanicalMiscData,
                                   ExcMappingData, ExcTopologicalEntityInformation, ExcEntityData>;
INSTANTIATE_TYPED_TEST_SUITE_P(MechanicalMisc, MemberSuite, MiscTypes);

} // namespace hrm::test
