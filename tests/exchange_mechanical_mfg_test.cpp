#include <hrm_api/hrm_api_exchange_mechanical_mfg.h>

#include "support/log_capture.h"
#include "support/mechanical_case.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "mechanical_sample.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::parse;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;
namespace sample = samples::mechanical;

TEST(ExcMfgFeatureHole, TravelsWithoutTheKeysOfTheFeature)
{
    ExcMfgFeatureSimpleHole hole;
    hole.setId(L"h1");
    hole.addLinkedElement(sample::entity(L"e"));
    hole.setName(L"Hole");
    hole.setPattern(sample::rectangularPattern());
    auto defining = std::make_shared<ExcEntity>();
    defining->setId(L"d");
    hole.addDefiningGeometry(defining);
    EXPECT_EQ(toText(hole),
              LR"({"limiting":[],"defining":[{"type":"unknown","fsp":null,"description":"","id":"d"}],"hole_data":null})");

    // Reading the feature's keys does not set them either; "hole_data" replaces the hole held.
    const auto held = sample::simpleHole();
    hole.setHole(held);
    readText(hole, LR"({"id":"x","name":"n","linked_elements":[{}],"pattern":{"type":"circular"},)"
                   LR"("hole_data":{"name":"read","primary_depth":4}})");
    EXPECT_EQ(hole.id(), L"h1");
    EXPECT_EQ(hole.name(), L"Hole");
    EXPECT_EQ(hole.linkedElements().size(), 1u);
    EXPECT_EQ(hole.pattern()->type(), ExcMfgPattern::EType::Rectangular);
    ASSERT_NE(hole.hole(), held);
    EXPECT_EQ(hole.hole()->name(), L"read");
    EXPECT_EQ(hole.hole()->primaryDepth(), 4.0);
    EXPECT_EQ(hole.hole()->holeThread(), nullptr);

    const ExcMfgFeatureSimpleHole read = test::roundTripText(hole);
    EXPECT_TRUE(read.id().empty() && read.linkedElements().empty() && read.name().empty() && !read.pattern());
    EXPECT_EQ(read.definingGeometry().size(), 1u);
}

TEST(ExcMfgPattern, ReadPatternMakesTheClassItsTypeNames)
{
    LogCapture log;
    const auto read = [](const std::wstring& text) { return ExcMfgPattern::readPattern(parse(text)); };
    EXPECT_EQ(read(LR"({"type":"none","simplified":true})"), nullptr);
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());

    EXPECT_EQ(read(LR"([])"), nullptr);
    EXPECT_EQ(read(LR"({"simplified":true})"), nullptr);
    EXPECT_EQ(read(LR"({"type":2})"), nullptr);
    EXPECT_EQ(read(LR"({"type":"unknown"})"), nullptr);
    EXPECT_EQ(log.messages(ax_herm::Error),
              (Messages{"ExcMfgPattern object should have a JSON object type.", "ExcMfgPattern should have a type.",
                        "ExcMfgPattern should have a type.", "ExcMfgPattern: unknown type."}));

    EXPECT_EQ(read(LR"({"type":"rectangular"})")->type(), ExcMfgPattern::EType::Rectangular);
    EXPECT_EQ(read(LR"({"type":"user_defined"})")->type(), ExcMfgPattern::EType::UserDefined);
    // A word that is no type reads as the alphabetically first, "circular", and the pattern is
    // read from the same value.
    const auto hexagonal = std::dynamic_pointer_cast<ExcMfgPatternCircular>(read(LR"({"type":"hexagonal","radial_dist":2})"));
    ASSERT_TRUE(hexagonal);
    EXPECT_EQ(hexagonal->radialDistance(), 2.0);

    // A feature is read whatever its pattern; an unreadable one replaces the pattern held by none.
    ExcMfgFeatureUnclassified feature;
    feature.setPattern(sample::circularPattern());
    readText(feature, LR"({"name":"slot","pattern":{"kind":"rectangular"}})");
    EXPECT_EQ(feature.name(), L"slot");
    EXPECT_EQ(feature.pattern(), nullptr);
}

TEST(ExcMfgPattern, InstancePairsOfAnotherSizeAreSkippedWithTheirOwnWarnings)
{
    LogCapture log;
    const std::wstring pairs = LR"({"visible_instances":[[1,2],[3],[4,5]],"deactivated_instances":[[6,7,8],[9,10]]})";
    ExcMfgPatternRectangular rectangular;
    readText(rectangular, pairs);
    EXPECT_EQ(rectangular.visibleInstances(), (ExcMfgGridPattern::Positions{{1, 2}, {4, 5}}));
    EXPECT_EQ(rectangular.deactivatedInstances(), (ExcMfgGridPattern::Positions{{9, 10}}));
    ExcMfgPatternCircular circular;
    readText(circular, pairs);
    EXPECT_EQ(circular.visibleInstances(), rectangular.visibleInstances());
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
                        "ExcMfgPatternRectangular: invalid size of deactivated instances array item (pair).",
                        "ExcMfgPatternCircular: invalid size of visible_instances array item (pair).",
                        "ExcMfgPatternCircular: invalid size of deactivated_instances array item (pair)."}));

    // Items that are no pairs of integers are skipped silently; reading appends.
    log.clear();
    readText(circular, LR"({"visible_instances":[7,[1.5,2],["a","b"],[-1,2147483647]]})");
    EXPECT_EQ(circular.visibleInstances(), (ExcMfgGridPattern::Positions{{1, 2}, {4, 5}, {-1, 2147483647}}));
    EXPECT_TRUE(log.messages(ax_herm::Warning).empty());

    EXPECT_EQ(toText(*sample::rectangularPattern()).rfind(LR"({"type":"rectangular","anchor_point":[5.0,5.0,0.0],)", 0), 0u);
    const std::wstring text = toText(rectangular);
    EXPECT_NE(text.find(LR"("simplified":false,"visible_instances":[[1,2],[4,5]],"deactivated_instances":[[9,10]]})"),
              std::wstring::npos);
}

TEST(ManufacturingData, NullChildrenAreRefusedWithTheirOwnWarnings)
{
    LogCapture log;
    ExcMfgFeatureUnclassified feature;
    feature.addLinkedElement(nullptr);
    ExcMfgFeatureTaperHole hole;
    hole.addLimitingGeometry(nullptr);
    hole.addDefiningGeometry(nullptr);
    ExcMfgFeatureInternalThread thread;
    thread.addSideFace(nullptr);
    thread.addTopFace(nullptr);
    thread.addBottomFace(nullptr);
    ExcMfgPattern::Instance instance;
    instance.addLimiting(nullptr);
    instance.addDefining(nullptr);
    ExcMfgData data;
    data.addSimpleHole(nullptr);
    data.addTaperHole(nullptr);
    data.addCounterBoreHole(nullptr);
    data.addCounterSinkHole(nullptr);
    data.addCounterDrillHole(nullptr);
    data.addInternalThread(nullptr);
    data.addExternalThread(nullptr);
    data.addUnclassifiedFeature(nullptr);
    EXPECT_TRUE(instance.limitng().empty() && instance.defining().empty() && thread.sideFaces().empty());
    EXPECT_EQ(toText(data), LR"({"has_data":false,"simple_holes":[],"taper_holes":[],"counter_bore_holes":[],)"
                            LR"("counter_sink_holes":[],"counter_drill_holes":[],"internal_threads":[],)"
                            LR"("external_threads":[],"unclassified_features":[]})");
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcMfgObject: attempt to add null Linked Element object.",
                        "ExcMfgFeatureHole: attempt to add null Limiting Geometry Entity object.",
                        "ExcMfgFeatureHole: attempt to add null Defining Geometry Entity object.",
                        "ExcMfgFeatureThread: attempt to add null Side Face Entity object.",
                        "ExcMfgFeatureThread: attempt to add null Top Face Entity object.",
                        "ExcMfgFeatureThread: attempt to add null Bottom Face Entity object.",
                        "ExcMfgPattern::Instance: attempt to add null Limiting Entity object.",
                        "ExcMfgPattern::Instance: attempt to add null Defining Entity object.",
                        "ExcMfgData: attempt to add null Simple Hole object.",
                        "ExcMfgData: attempt to add null Taper Hole object.",
                        "ExcMfgData: attempt to add null Counter Bore Hole object.",
                        "ExcMfgData: attempt to add null Counter Sink Hole object.",
                        "ExcMfgData: attempt to add null Counter Drill Hole object.",
                        "ExcMfgData: attempt to add null Internal Thread object.",
                        "ExcMfgData: attempt to add null External thread object.",
                        "ExcMfgData: attempt to add null Unclassified Feature object."}));
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {

#define HRM_THREADING_KEYS L"diameter", L"depth", L"pitch", L"orientation", L"designation", L"designation_system_type"
#define HRM_HOLE_KEYS                                                                                               \
    L"name", L"primary_diameter", L"primary_diameter_max_tol", L"primary_diameter_min_tol", L"primary_depth",       \
        L"tip_angle_degrees", L"bottom_limit_extent_type", L"center", L"direction", L"hole_thread"
#define HRM_COUNTER_KEYS HRM_HOLE_KEYS, L"diameter", L"max_tol", L"min_tol"
#define HRM_GRID_KEYS L"base_instance", L"simplified", L"visible_instances", L"deactivated_instances"
#define HRM_FEATURE_KEYS L"id", L"linked_elements", L"name", L"pattern"
#define HRM_HOLE_FEATURE_CASE(Hole, make)                                                                        \
    HRM_MECH_CASE(ExcMfgFeatureHoleType<Hole>, "ExcMfgFeatureHoleType", samples::mechanical::holeFeature(make()), \
                 L"limiting", L"defining", L"hole_data")

namespace sample = samples::mechanical;

HRM_MECH_CASE(ExcMfgThread, "ExcMfgThread", sample::thread(), HRM_THREADING_KEYS, L"support_diameter",
              L"support_depth", L"bottom_type")
HRM_MECH_CASE(ExcMfgHoleThread, "ExcMfgHoleThread", sample::holeThread(), HRM_THREADING_KEYS, L"standart",
              L"min_tol", L"max_tol")
HRM_MECH_CASE(ExcMfgSimpleHole, "ExcMfgSimpleHole", sample::simpleHole(), HRM_HOLE_KEYS)
HRM_MECH_CASE(ExcMfgTaperHole, "ExcMfgTaperHole", sample::taperHole(), HRM_HOLE_KEYS, L"angle")
HRM_MECH_CASE(ExcMfgCounterBoreHole, "ExcMfgCounterBoreHole", sample::counterBoreHole(), HRM_COUNTER_KEYS,
              L"depth")
HRM_MECH_CASE(ExcMfgCounterSinkHole, "ExcMfgCounterSinkHole", sample::counterSinkHole(), HRM_COUNTER_KEYS,
              L"angle")
HRM_MECH_CASE(ExcMfgCounterDrillHole, "ExcMfgCounterDrillHole", sample::counterDrillHole(), HRM_COUNTER_KEYS, L"depth",
             L"sink_diameter", L"angle")
HRM_MECH_CASE(ExcMfgPattern::Instance, "ExcMfgPattern::Instance", sample::instance(), L"is_base", L"limiting",
             L"defining")
HRM_MECH_CASE(ExcMfgPatternRectangular, "ExcMfgPatternRectangular", sample::rectangularPattern(), L"type",
             L"anchor_point", L"align_primary_dir", L"align_secondary_dir", L"primary_inst_count",
             L"secondary_inst_count", L"primary_spacing", L"secondary_spacing", HRM_GRID_KEYS)
HRM_MECH_CASE(ExcMfgPatternCircular, "ExcMfgPatternCircular", sample::circularPattern(), L"type", L"anchor_point",
             L"center_of_rotation", L"axis_of_rotation", L"axial_inst_count", L"radial_inst_count",
             L"axial_dist_degrees", L"radial_dist", L"fixed_rot_orient", HRM_GRID_KEYS)
HRM_MECH_CASE(ExcMfgPatternUserDefined, "ExcMfgPatternUserDefined", sample::userDefinedPattern(), L"type",
             L"anchor_point", L"base_instance", L"instance_positions", L"deactivated_positions")
HRM_HOLE_FEATURE_CASE(ExcMfgSimpleHole, sample::simpleHole)
HRM_HOLE_FEATURE_CASE(ExcMfgTaperHole, sample::taperHole)
HRM_HOLE_FEATURE_CASE(ExcMfgCounterBoreHole, sample::counterBoreHole)
HRM_HOLE_FEATURE_CASE(ExcMfgCounterSinkHole, sample::counterSinkHole)
HRM_HOLE_FEATURE_CASE(ExcMfgCounterDrillHole, sample::counterDrillHole)
HRM_MECH_CASE(ExcMfgFeatureInternalThread, "ExcMfgFeatureInternalThread", sample::internalThread(), HRM_FEATURE_KEYS,
             L"thread_data", L"side_faces", L"top_faces", L"bottom_faces")
HRM_MECH_CASE(ExcMfgFeatureExternalThread, "ExcMfgFeatureExternalThread", sample::externalThread(), HRM_FEATURE_KEYS,
             L"thread_data", L"side_faces", L"top_faces", L"bottom_faces")
HRM_MECH_CASE(ExcMfgFeatureUnclassified, "ExcMfgFeatureUnclassified", sample::unclassifiedFeature(), HRM_FEATURE_KEYS)
HRM_MECH_CASE(ExcMfgData, "ExcMfgData", sample::mfgData(), L"has_data", L"simple_holes", L"taper_holes",
             L"counter_bore_holes", L"counter_sink_holes", L"counter_drill_holes", L"internal_threads",
             L"external_threads", L"unclassified_features")

using MfgTypes =
    ::testing::Types<ExcMfgThread, ExcMfgHoleThread, ExcMfgSimpleHole, ExcMfgTaperHole, ExcMfgCounterBoreHole,
                     ExcMfgCounterSinkHole, ExcMfgCounterDrillHole, ExcMfgPattern::Instance, ExcMfgPatternRectangular,
                     ExcMfgPatternCircular, ExcMfgPatternUserDefined, ExcMfgFeatureSimpleHole, ExcMfgFeatureTaperHole,
                     ExcMfgFeatureCounterBoreHole, ExcMfgFeatureCounterSinkHole, ExcMfgFeatureCounterDrillHole,
                     ExcMfgFeatureInternalThread, ExcMfgFeatureExternalThread, ExcMfgFeatureUnclassified, ExcMfgData>;
INSTANTIATE_TYPED_TEST_SUITE_P(Manufacturing, MemberSuite, MfgTypes);

} // namespace hrm::test
