#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>

#include "support/log_capture.h"
#include "support/member_suite.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "pmi_sample.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;
using Modifier = ExcPMIGDT::EToleranceModifier;

const std::wstring annotationKeys = L"{\"name\":\"\",\"id\":\"\",\"hidden\":false,\"type\":";
const std::wstring placement = L"\"orientation\":\"horizontal\",\"angle\":0.0,\"z_depth\":0.0,\"position\":[0.0,0.0],"
                               L"\"linked_elements\":[],\"leaders\":[]";

TEST(PMIAnnotations, WriteTheirBaseKeysFirstAndTheTypeTheClassDecides)
{
    ExcPMINote note;
    note.setFlagNote(true);
    EXPECT_EQ(toText(note), annotationKeys + L"\"note\"," + placement + L",\"texts\":[],\"is_flag_note\":true,\"is_noa\":false}");
    EXPECT_EQ(toText(ExcPMIDatum()), annotationKeys + L"\"datum\"," + placement + L",\"label\":\"\",\"target_ids\":[]}");
    EXPECT_EQ(toText(ExcPMIDatumTarget()),
              annotationKeys + L"\"datum_target\"," + placement
                  + L",\"label\":\"\",\"target_type\":\"unknown\",\"has_diameter\":false,\"upper_text\":\"\","
                    L"\"lower_text\":\"\",\"target_zone\":[[0.0,0.0,0.0],[0.0,0.0,0.0]]}");
    EXPECT_EQ(toText(ExcPMIRoughness()), annotationKeys + L"\"roughness\"," + placement
                                             + L",\"obtention_type\":\"unsupported\",\"applicability_type\":\"unsupported\","
                                               L"\"fields\":[]}");
    EXPECT_EQ(toText(ExcPMINote::Text()),
              L"{\"label\":\"\",\"font_name\":\"\",\"font_type\":\"simplex\",\"fixed_pitch\":false,\"bold\":false,"
              L"\"italic\":false,\"underline\":false,\"strike_through\":false,\"overline\":false,\"height\":0.0,"
              L"\"ratio\":0.0,\"slant\":0.0,\"color\":[1.0,1.0,1.0,1.0]}");

    // "type" is never read: a datum stays a datum whatever the document says.
    ExcPMIDatum datum;
    readText(datum, LR"({"type":"note","label":"A"})");
    EXPECT_EQ(datum.type(), EPMIAnnotationType::Datum);
    EXPECT_EQ(datum.label(), L"A");
}

TEST(PMIAnnotations, ConditionalKeysOfToleranceAndDimension)
{
    ExcPMIGDT gdt;
    const std::wstring gdtKeys =
        annotationKeys + L"\"GDT\"," + placement
        + L",\"tolerance_type\":\"unknown\",\"tolerance_value_type\":\"none\",\"tolerance_value\":0.0,"
          L"\"refine_tolerance\":0.0,\"rate_unit\":[0.0,0.0],\"proj_tol_zone_length\":0.0,\"shift_value\":0.0,"
          L"\"all_around\":0.0,\"note\":\"\",\"zone_modifiers\":[\"no_modifier\",\"no_modifier\"]";
    EXPECT_EQ(toText(gdt), gdtKeys + L"}");
    gdt.setReferenceFrame(std::make_shared<ExcPMIGDT::Frame>());
    gdt.setComposite(true);
    gdt.setCompositeZoneModifier(Modifier::TangentPlaneTangent);
    EXPECT_EQ(toText(gdt), gdtKeys + L",\"ref_frame\":{\"label\":\"\",\"datum_refs\":[]},\"composite_data\":{"
                                     L"\"tolerance_value_type\":\"none\",\"tolerance_value\":0.0,\"rate_unit\":[0.0,0.0],"
                                     L"\"zone_modifiers\":\"tangent_plant_tangent\"}}");

    ExcPMIDimension dimension;
    const std::wstring head =
        annotationKeys + L"\"dimension\"," + placement
        + L",\"main_type\":\"unknown\",\"sub_type\":\"no_dim\",\"callout_feature_annotation_type\":\"hole_unknown\","
          L"\"coord\":[0.0,0.0,0.0],\"value\":0.0,\"unit\":\"none\",\"value_precision\":0.0,"
          L"\"tolerance_precision_value\":0.0,\"numerical_tolerance\":[0.0,0.0],\"alphanumerical_tolerance\":[\"\",\"\"],"
          L"\"texts\":[\"\",\"\",\"\",\"\",\"\",\"\",\"\",\"\"],";
    const std::wstring tail = L"\"is_driving\":false,\"line\":[[0.0,0.0],[0.0,0.0]],\"arrows\":[\"not_used\",\"not_used\"],"
                              L"\"is_symbol_outside\":false}";
    EXPECT_EQ(toText(dimension), head + tail);
    dimension.setHasFakeNumericalValue(true);
    dimension.setHasFakeAlphanumericalValue(true);
    dimension.setFakeAlphanumericalValue(L"1/2");
    EXPECT_EQ(toText(dimension), head + L"\"fake_numerical_value\":0.0,\"fake_alphanumerical_value\":\"1/2\"," + tail);

    // Reading a fake value sets its flag; its absence leaves the flag.
    ExcPMIDimension read;
    readText(read, LR"({"fake_numerical_value":3})");
    EXPECT_TRUE(read.hasFakeNumericalValue());
    EXPECT_EQ(read.fakeNumericalValue(), 3.0);
    EXPECT_FALSE(read.hasFakeAlphanumericalValue());
    readText(read, LR"({"fake_alphanumerical_value":7})");
    EXPECT_FALSE(read.hasFakeAlphanumericalValue());
}

TEST(PMIAnnotations, ReadLeniently)
{
    // Lists are appended to: reading one document twice doubles them.
    auto note = samples::pmi::note();
    const auto document = test::parse(toText(*note));
    ExcPMINote twice;
    twice.readObject(document);
    twice.readObject(document);
    EXPECT_EQ(twice.leaders().size(), 2u);
    EXPECT_EQ(twice.linkedElements().size(), 2u);
    EXPECT_EQ(twice.texts().size(), 2u);

    // "color" is read up to the first element that is not a number; any number is a double.
    ExcPMINote::Text text;
    readText(text, LR"({"color":[0.5,"x",0.2],"height":7})");
    EXPECT_EQ(text.getRGBA(), (ExcPMINote::Text::RGBA{0.5, 1.0, 1.0, 1.0}));
    EXPECT_EQ(text.height(), 7.0);

    // A non-object child reads as a default one, with its class's message.
    LogCapture log;
    ExcPMIDatum datum;
    readText(datum, LR"({"leaders":[3,{"points":[[1.0,2.0]]}],"target_ids":["a",1,"b"]})");
    ASSERT_EQ(datum.leaders().size(), 2u);
    EXPECT_TRUE(datum.leaders()[0]->points().empty());
    EXPECT_EQ(datum.leaders()[1]->points().size(), 1u);
    EXPECT_EQ(datum.targetIds(), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"ExcPMILeader object should have a JSON object type."});
}

TEST(PMIAnnotations, RefuseNullChildren)
{
    LogCapture log;
    ExcPMINote note;
    note.addLeader(nullptr);
    note.addLinkedElements({nullptr, samples::pmi::entity(L"f")});
    note.addTexts({nullptr});
    EXPECT_TRUE(note.leaders().empty());
    EXPECT_EQ(note.linkedElements().size(), 1u);
    EXPECT_TRUE(note.texts().empty());
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcPMIAnnotation: attempt to add null PMI leader.", "ExcPMIAnnotation: attempt to add null linked element",
                        "ExcPMINote: attempt to add null text."}));
    // Setters take the list as given.
    note.setLeaders({nullptr});
    EXPECT_EQ(note.leaders().size(), 1u);
}

TEST(PMIAnnotations, UnknownWordsReadAsTheAlphabeticallyFirst)
{
    ExcPMIDatumTarget target;
    readText(target, LR"({"orientation":"diagonal","target_type":"circle"})");
    EXPECT_EQ(target.orientation(), EPMIOrientation::DimAngle);
    EXPECT_EQ(target.targetType(), ExcPMIDatumTarget::EType::AreaCircular);
    EXPECT_EQ(enumFromString<ExcPMINote::Text::EFontType>(L"Arial"), ExcPMINote::Text::EFontType::IGES1001);
    // Capitals sort first: "GDT" before "NOA", and the capital-L tolerance type before all others,
    // so the lower-case spelling of that very word reads as it.
    EXPECT_EQ(enumFromString<EPMIAnnotationType>(L"gdt"), EPMIAnnotationType::GDT);
    EXPECT_EQ(enumToString(EPMIAnnotationType::NOA), L"NOA");
    using Tolerance = ExcPMIGDT::EToleranceType;
    EXPECT_EQ(enumToString(Tolerance::LocationPositionOfASurface), L"Location_position_of_a_surface");
    EXPECT_EQ(enumFromString<Tolerance>(L"location_position_of_a_surface"), Tolerance::LocationPositionOfASurface);
    EXPECT_EQ(enumFromString<Tolerance>(L"run_out_total"), Tolerance::RunOutTotal);
    EXPECT_EQ(enumToString(Modifier::TangentPlaneNonTangent), L"tangent_plant_non_tangent");
    EXPECT_EQ(enumFromString<ExcPMIDimension::ESubType>(L"?"), ExcPMIDimension::ESubType::Angle);
    EXPECT_EQ(enumFromString<ExcPMIDimension::EDimUnit>(L"?"), ExcPMIDimension::EDimUnit::Cm);
    EXPECT_EQ(enumFromString<ExcPMIRoughness::EApplicabilityType>(L"?"), ExcPMIRoughness::EApplicabilityType::AllPartSurfaces);

    // A new dimension is no dimension of an unknown hole, not the zero values.
    const ExcPMIDimension dimension;
    EXPECT_EQ(dimension.subType(), ExcPMIDimension::ESubType::NoDim);
    EXPECT_EQ(dimension.calloutFeatureAnnotationType(), ExcPMIDimension::ECalloutFeatureAnnotationType::HoleUnknown);
}

TEST(ExcPMIGDT, ArraysOfTwoAndTheCompositeSegment)
{
    auto gdt = samples::pmi::gdt();
    LogCapture log;
    readText(*gdt, LR"({"rate_unit":[0.1],"zone_modifiers":["free_state_free"],"composite_data":{"rate_unit":[1,2,3]}})");
    double first = 0, second = 0;
    gdt->rateUnits(first, second);
    EXPECT_EQ(first, 10.5);
    EXPECT_EQ(second, 20.5);
    Modifier m1{}, m2{};
    gdt->zoneModifiers(m1, m2);
    EXPECT_EQ(m1, Modifier::MaterialConditionMaximum);
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcPMIGDT: invalid size of rate_unit array", "ExcPMIGDT: invalid size of zone_modifiers array",
                        "ExcPMIGDT: invalid size of composite rate_unit array."}));

    // In an array of two, a number slot takes 0 for a non-number, a word slot keeps its value; a
    // member that is no array is skipped silently.
    log.clear();
    readText(*gdt, LR"({"rate_unit":[0.1,"a"],"zone_modifiers":[3,"common_zone"],"composite_data":{"rate_unit":7}})");
    gdt->rateUnits(first, second);
    EXPECT_EQ(first, 0.1);
    EXPECT_EQ(second, 0.0);
    gdt->zoneModifiers(m1, m2);
    EXPECT_EQ(m1, Modifier::MaterialConditionMaximum);
    EXPECT_EQ(m2, Modifier::CommonZone);
    gdt->compositeRateUnits(first, second);
    EXPECT_EQ(first, 5.5);
    EXPECT_TRUE(log.messages(ax_herm::Warning).empty());

    // The composite segment reads its frame anew; a document without it, or with a non-object,
    // turns composite off.
    EXPECT_TRUE(gdt->isComposite());
    readText(*gdt, LR"({"composite_data":{"ref_frame":{"label":"C"}}})");
    EXPECT_EQ(gdt->compositeReferenceFrame()->label(), L"C");
    EXPECT_TRUE(gdt->compositeReferenceFrame()->datumRefs().empty());
    readText(*gdt, LR"({"composite_data":[]})");
    EXPECT_FALSE(gdt->isComposite());
    gdt->setComposite(true);
    readText(*gdt, L"{}");
    EXPECT_FALSE(gdt->isComposite());
    EXPECT_EQ(gdt->compositeZoneModifier(), Modifier::FreeStateFree); // the fields stay
}

TEST(ExcPMIDimension, ArraysOfTwoAndTheEightTexts)
{
    auto dimension = samples::pmi::dimension();
    LogCapture log;
    readText(*dimension, LR"({"numerical_tolerance":[],"alphanumerical_tolerance":["a"],"line":[[1.0,1.0]],
        "arrows":["cross","plus","dot"],"texts":["p","s",3,"a"]})");
    EXPECT_EQ(dimension->numericalToleranceUpper(), 0.1);
    EXPECT_EQ(dimension->alphanumericalToleranceUpper(), L"H7");
    EXPECT_EQ(dimension->lineStart(), ExcVector2d(0.5, 1.5));
    EXPECT_EQ(dimension->arrowSymbolStart(), ExcPMIDimension::EArrowSymbol::FilledArrow);
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcPMIDimension: invalid size of numerical_tolerance array.",
                        "ExcPMIDimension: invalid size of alphanumerical_tolerance array.",
                        "ExcPMIDimension: invalid size of line array.", "ExcPMIDimension: invalid size of arrows array."}));
    // A text that is no string leaves its field and the next ones are still read; texts past
    // the array's end keep theirs.
    EXPECT_EQ(dimension->prefix(), L"p");
    EXPECT_EQ(dimension->suffix(), L"s");
    EXPECT_EQ(dimension->before(), L"2X");
    EXPECT_EQ(dimension->after(), L"a");
    EXPECT_EQ(dimension->upper(), L"+0.1");

    readText(*dimension, LR"({"alphanumerical_tolerance":[1,"h6"],"line":[[2.0,3.0],"x"],
        "texts":["1","2","3","4","5","6","7","8","9"]})");
    EXPECT_EQ(dimension->alphanumericalToleranceUpper(), L"H7");
    EXPECT_EQ(dimension->alphanumericalToleranceLower(), L"h6");
    EXPECT_EQ(dimension->lineStart(), ExcVector2d(2.0, 3.0));
    EXPECT_EQ(dimension->lineEnd(), ExcVector2d(40.5, 1.5));
    EXPECT_EQ(dimension->calloutText(), L"7");
    EXPECT_EQ(dimension->below(), L"8");
}

TEST(ExcPMIAnnotationView, OneIdIndexOverAllSixKinds)
{
    LogCapture log;
    ExcPMIAnnotationView view;
    const auto first = samples::pmi::note(L"x");
    view.addNote(first);
    view.addNote(samples::pmi::note(L"x"));
    view.addDatum(samples::pmi::datum(L"x"));
    view.addGdt(samples::pmi::gdt(L"g"));
    EXPECT_EQ(view.notes().size(), 2u);
    EXPECT_EQ(view.datums().size(), 1u);
    EXPECT_EQ(view.getAnnotationById(L"x"), first);
    EXPECT_EQ(view.getAnnotationById(L"g")->type(), EPMIAnnotationType::GDT);
    EXPECT_EQ(view.getAnnotationById(L"y"), nullptr);
    EXPECT_EQ(log.messages(ax_herm::Warning), (Messages{"Duplicated PMI annotation id: x", "Duplicated PMI annotation id: x"}));

    // Reading registers too, the first of an id staying, without a message; "datums" is not the key.
    log.clear();
    ExcPMIAnnotationView read;
    readText(read, LR"({"notes":[{"id":"n","name":"first"},{"id":"n"}],"dimensions":[{"id":"n"},{"id":"d"}],
        "datums":[{"id":"a"}],"datum":[{"id":"b"}],"roughness":[{"id":"r"}],"datum_targets":[{"id":"t"}],"GDTs":[{"id":"g"}]})");
    EXPECT_EQ(read.notes().size(), 2u);
    EXPECT_EQ(read.getAnnotationById(L"n")->name(), L"first");
    EXPECT_EQ(read.getAnnotationById(L"d"), read.dimensions()[1]);
    EXPECT_EQ(read.getAnnotationById(L"a"), nullptr);
    for (const wchar_t* id : {L"b", L"r", L"t", L"g"})
        EXPECT_NE(read.getAnnotationById(id), nullptr) << toNarrow(id);
    EXPECT_TRUE(log.messages(ax_herm::Warning).empty());

    view.addNote(nullptr);
    view.addDatum(nullptr);
    view.addDatumTarget(nullptr);
    view.addGdt(nullptr);
    view.addDimension(nullptr);
    view.addRoughness(nullptr);
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcPMIAnnotationView: attempt to add null PMI Note object.",
                        "ExcPMIAnnotationView: attempt to add null PMI Datum object.",
                        "ExcPMIAnnotationView: attempt to add null PMI Datum Target object.",
                        "ExcPMIAnnotationView: attempt ot add null PMI GDT object.",
                        "ExcPMIAnnotationView: attempt to add null PMI Dimension object.",
                        "ExcPMIAnnotationView: attempt to add null PMI Roughness object."}));
}

TEST(PMISets, CapturesSetsAndTheData)
{
    ExcPMICapture capture;
    EXPECT_EQ(toText(capture), L"{\"capture_hidden\":false,\"current\":false,\"hidden_text\":\"\",\"manage_hide_show\":false,"
                               L"\"annotation_ids\":[],\"constructed_geometry\":[],\"bodies\":[]}");
    EXPECT_EQ(toText(ExcPMIAnnotationSet()), L"{\"block_id\":0,\"name\":\"\",\"hidden\":false,\"standart\":\"\","
                                             L"\"annotation_views\":[],\"captures\":[],\"constructed_geometry\":[]}");

    LogCapture log;
    capture.addConstructedGeometry(nullptr);
    capture.addBody(nullptr);
    ExcPMIAnnotationSet set;
    set.addView(nullptr);
    set.addCapture(nullptr);
    set.addConstructedGeometry(nullptr);
    ExcPMIData data;
    data.addAnnotationSet(nullptr);
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcPMICapture: attempt to add null Constructed Geometry Entity object.",
                        "ExcPMICapture: attempt to add null Body object.", "ExcPMIAnnotationSet: attempt to add null View object.",
                        "ExcPMIAnnotationSet: attempt to add null Capture object.",
                        "ExcPMIAnnotationSet: attempt to add null Constructed Geometry Entity object.",
                        "ExcPMIData: attempt to add null PMI Annotation Set object."}));
    EXPECT_EQ(toText(data), L"[]");
}

TEST(ExcPMIData, AWholeModelReadsBackWithItsIndexes)
{
    const auto sent = samples::pmi::data();
    const ExcPMIData received = test::roundTripText(*sent);
    EXPECT_EQ(received, *sent);
    ASSERT_EQ(received.annotationSets().size(), 2u);
    const auto& view = received.annotationSets()[1]->views().at(0);
    for (const wchar_t* id : {L"p2:note-1", L"p2:datum-A", L"p2:target-A1", L"p2:gdt-1", L"p2:dim-1", L"p2:rough-1"})
        EXPECT_NE(view->getAnnotationById(id), nullptr) << toNarrow(id);
    EXPECT_EQ(received.annotationSets()[1]->captures().at(0)->camera()->name(), sent->annotationSets()[1]->captures()[0]->camera()->name());
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {

#define HRM_PMI_CASE(T, make, ...)                                                                 \
    template <>                                                                                    \
    struct MemberCase<T> : MemberCaseDefaults                                                      \
    {                                                                                              \
        static constexpr const char* wrongKindMessage = #T " object should have a JSON object type."; \
        static T sample()                                                                          \
        {                                                                                          \
            using namespace samples::pmi;                                                          \
            return T(make);                                                                        \
        }                                                                                          \
        static std::vector<std::wstring> keys() { return {__VA_ARGS__}; }                         \
        static std::vector<std::wstring> writtenOnly() { return {L"type"}; }                       \
        static std::vector<std::wstring> anyKind() { return {L"ref_frame", L"camera", L"clipping_plane"}; } \
    };

#define HRM_ANNOTATION_KEYS L"name", L"id", L"hidden", L"type", L"orientation", L"angle", L"z_depth", L"position", \
                            L"linked_elements", L"leaders"

HRM_PMI_CASE(ExcPMILeader, *leader(), L"points")
HRM_PMI_CASE(ExcPMINote::Text, *text(), L"label", L"font_name", L"font_type", L"fixed_pitch", L"bold", L"italic", L"underline",
             L"strike_through", L"overline", L"height", L"ratio", L"slant", L"color")
HRM_PMI_CASE(ExcPMINote, *note(), HRM_ANNOTATION_KEYS, L"texts", L"is_flag_note", L"is_noa")
HRM_PMI_CASE(ExcPMIDatum, *datum(), HRM_ANNOTATION_KEYS, L"label", L"target_ids")
HRM_PMI_CASE(ExcPMIDatumTarget, *datumTarget(), HRM_ANNOTATION_KEYS, L"label", L"target_type", L"has_diameter", L"upper_text",
             L"lower_text", L"target_zone")
HRM_PMI_CASE(ExcPMIGDT::ModifiedDatum, modifiedDatum(), L"datum_id", L"tolerance_modifier")
HRM_PMI_CASE(ExcPMIGDT::DatumRef, datumRef(), L"label", L"modified_datums")
HRM_PMI_CASE(ExcPMIGDT::Frame, *frame(), L"label", L"datum_refs")
HRM_PMI_CASE(ExcPMIGDT, *gdt(), HRM_ANNOTATION_KEYS, L"tolerance_type", L"tolerance_value_type", L"tolerance_value",
             L"refine_tolerance", L"rate_unit", L"proj_tol_zone_length", L"shift_value", L"all_around", L"note",
             L"zone_modifiers", L"ref_frame", L"composite_data")
HRM_PMI_CASE(ExcPMIDimension, *dimension(), HRM_ANNOTATION_KEYS, L"main_type", L"sub_type", L"callout_feature_annotation_type",
             L"coord", L"value", L"unit", L"value_precision", L"tolerance_precision_value", L"numerical_tolerance",
             L"alphanumerical_tolerance", L"texts", L"fake_numerical_value", L"fake_alphanumerical_value", L"is_driving",
             L"line", L"arrows", L"is_symbol_outside")
HRM_PMI_CASE(ExcPMIRoughness, *roughness(), HRM_ANNOTATION_KEYS, L"obtention_type", L"applicability_type", L"fields")
HRM_PMI_CASE(ExcPMIAnnotationView, *view(), L"origin", L"u", L"v", L"notes", L"datum", L"datum_targets", L"GDTs",
             L"dimensions", L"roughness")
HRM_PMI_CASE(ExcPMICapture, *capture(), L"capture_hidden", L"current", L"hidden_text", L"manage_hide_show", L"camera",
             L"clipping_plane", L"annotation_ids", L"constructed_geometry", L"bodies")
HRM_PMI_CASE(ExcPMIAnnotationSet, *annotationSet(), L"block_id", L"name", L"hidden", L"standart", L"annotation_views",
             L"captures", L"constructed_geometry")

template <>
struct MemberCase<ExcPMIData> : MemberCaseDefaults
{
    static constexpr const char* wrongKindMessage = "ExcPMIData object should have a JSON array type.";
    static ExcPMIData sample() { return *samples::pmi::data(); }
};

using PMITypes = ::testing::Types<ExcPMILeader, ExcPMINote::Text, ExcPMINote, ExcPMIDatum, ExcPMIDatumTarget,
                                  ExcPMIGDT::ModifiedDatum, ExcPMIGDT::DatumRef, ExcPMIGDT::Frame, ExcPMIGDT,
                                  ExcPMIDimension, ExcPMIRoughness, ExcPMIAnnotationView, ExcPMICapture,
                                  ExcPMIAnnotationSet, ExcPMIData>;
INSTANTIATE_TYPED_TEST_SUITE_P(PMI, MemberSuite, PMITypes);

} // namespace hrm::test
