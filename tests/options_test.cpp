#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_format_options.h>
#include <hrm_api/hrm_api_format_options_export.h>
#include <hrm_api/hrm_api_legacy_options.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/read_text.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::toText;
using Messages = std::vector<std::string>;

using test::parse;

std::shared_ptr<IFormatOptions> readOptions(const std::wstring& text)
{
    return IFormatOptions::readOptions(parse(text));
}

// Every options class with each of its keys set to a value other than its default, in the
// order the class writes them.
struct OptionsCase
{
    std::string className;
    std::wstring json;
};

const std::vector<OptionsCase>& optionsCases()
{
    static const std::vector<OptionsCase> cases = {
        {"OptionsGeneral",
         LR"({"operation_type":"options","format_type":"general","log_event_level_type":"verbose",)"
         LR"("log_file_encoding_type":"utf8","log_file_name":"hrm.log","logging_mode_type":"append",)"
         LR"("logging_output_directory":"C:\\logs","memory_management_mode":"keep_asm_mech"})"},
        {"OptionsGraphical",
         LR"({"operation_type":"options","format_type":"graphical","tesselation_2d_sag_value":0.5,)"
         LR"("tesselation_3d_sag_value":0.25,"translate_reference_geometry_mode":"true",)"
         LR"("visu_brep_tesselation_mode":"never_at_least_native_pmi","visu_text_data_mode":"as_stroked",)"
         LR"("visu_text_stroking_mode":"from_iop"})"},
        {"OptionsMechanical",
         LR"({"operation_type":"options","format_type":"mechanical","feature_tolerance_processing_mode":"all",)"
         LR"("misc_data_processing_mode":"none"})"},
        {"OptionsModeler",
         LR"({"operation_type":"options","format_type":"modeler","acis_spline_resurfacing_mode":"erroneous_surfaces_only",)"
         LR"("acis_spline_resurfacing_tolerance":0.001,"attribute_processing_mode":"all","acis_heal_type":"standard",)"
         LR"("length_unit_type":"millimeter","preserve_mfg_mode":"decorate_all_mfg",)"
         LR"("preserve_model_associativity_mode":"decorate_all","preserve_pmi_mode":"disabled",)"
         LR"("topological_entity_inspector_mode":"process"})"},
        {"Options3DXML", LR"({"operation_type":"import","format_type":"3D_XML","visu_pmi_mode":"all"})"},
        {"OptionsCatiaV4",
         LR"({"operation_type":"import","format_type":"CatiaV4","import_entities":"root_only",)"
         LR"("hidden_entities_mode":"only_with_visible_links","layer_filter":"1-10"})"},
        {"OptionsCatiaV5",
         LR"({"operation_type":"import","format_type":"CatiaV5","assembly_path_pref":"root_folder_first",)"
         LR"("in_work_object_mode":"true","name_processing_mode":"long_names","assembly_unfolded_view_mode":"false",)"
         LR"("mfg_processing_mode":"results_only","hidden_entities_mode":"none","suppressed_entities_mode":"all",)"
         LR"("visu_pmi_mode":"none","mfg_data_mode":"all","doc_delay_loading_mode":"part",)"
         LR"("import_visualization":false,"import_root_visualization":false,"import_preview_graphics":true,)"
         LR"("pname_modes":["faces","edges"]})"},
        {"OptionsCatiaV5Drawing",
         LR"({"operation_type":"import","format_type":"CatiaV5Drawing","hidden_entities_mode":"all","visu_pmi_mode":"all"})"},
        {"OptionsCreo",
         LR"({"operation_type":"import","format_type":"Creo","search_paths":"D:\\parts;D:\\asm",)"
         LR"("configuration_name":"default","hidden_entities_mode":"all","suppressed_entities_mode":"none",)"
         LR"("visu_pmi_mode":"all","driving_dimensions_type":"true","construction_geom_mode":"false",)"
         LR"("reference_geom_mode":"true","import_visualization":false,"import_root_visualization":false,)"
         LR"("import_preview_graphics":true,"pname_modes":["bodies"]})"},
        {"OptionsIGES",
         LR"({"operation_type":"import","format_type":"IGES","import_entities":"root_and_nonroot",)"
         LR"("hidden_entities_mode":"none","copious_data_mode":"multiple_lines","trim_curve_import_pref_mode":"from_source"})"},
        {"OptionsInventor",
         LR"({"operation_type":"import","format_type":"Inventor","search_paths":"E:\\lib",)"
         LR"("assembly_path_pref":"subfolders_first","hidden_entities_mode":"all","suppressed_entities_mode":"all",)"
         LR"("active_state_mode":"active_only","import_visualization":false,"import_root_visualization":false,)"
         LR"("import_preview_graphics":true,"pname_modes":["vertices"]})"},
        {"OptionsJT",
         LR"({"operation_type":"import","format_type":"JT","user_prop_mode":"translate_none","import_visu_lod":"lod1",)"
         LR"("import_geometry":false,"import_visualization":false,"import_root_visualization":false})"},
        {"OptionsNX",
         LR"({"operation_type":"import","format_type":"NX","search_paths":"F:\\nx","assembly_path_pref":"root_folder_only",)"
         LR"("configuration_name":"arrangement","hidden_entities_mode":"none","suppressed_entities_mode":"none",)"
         LR"("translate_free_curves_mode":"none","translate_free_points_mode":"none","visu_pmi_mode":"all",)"
         LR"("import_geometry":false,"import_visualization":false,"import_root_visualization":false,)"
         LR"("pname_modes":["bodies","vertices"]})"},
        {"OptionsParasolid", LR"({"operation_type":"import","format_type":"parasolid","hidden_entities_mode":"all"})"},
        {"OptionsSolidEdge",
         LR"({"operation_type":"import","format_type":"SolidEdge","search_paths":"G:\\se",)"
         LR"("assembly_path_pref":"root_folder_first","hidden_entities_mode":"none","import_visualization":false,)"
         LR"("import_root_visualization":false,"import_preview_graphics":true,"pname_modes":["edges"]})"},
        {"OptionsSolidWorks",
         LR"({"operation_type":"import","format_type":"SolidWorks","search_paths":"H:\\sw",)"
         LR"("assembly_path_pref":"subfolders_first","configuration_name":"Default","hidden_entities_mode":"all",)"
         LR"("suppressed_entities_mode":"all","visu_pmi_mode":"none","import_visualization":false,)"
         LR"("import_root_visualization":false,"import_preview_graphics":true,"pname_modes":["faces"]})"},
        {"OptionsSolidWorksDrawing", LR"({"operation_type":"import","format_type":"SolidWorksDrawing"})"},
        {"OptionsSTEP",
         LR"({"operation_type":"import","format_type":"STEP","visu_pmi_mode":"all","import_geometry":false,)"
         LR"("import_visualization":false,"import_root_visualization":false})"},
        {"OptionsXCGM",
         LR"({"operation_type":"import","format_type":"XCGM","visu_pmi_mode":"all","import_geometry":false,)"
         LR"("import_visualization":false,"import_root_visualization":false})"},
        {"Options3DXML",
         LR"({"operation_type":"export","format_type":"3D_XML","default_color_mode":"false",)"
         LR"("graphical_pmi_container_mode":"true"})"},
        {"OptionsAcis", LR"({"operation_type":"export","format_type":"ACIS","units":"meter"})"},
        {"OptionsCatiaV4",
         LR"({"operation_type":"export","format_type":"CatiaV4","author_name":"jd","model_name":"bracket",)"
         LR"("version":"4.2.4","edge_curve_mode":"2d+3d"})"},
        {"OptionsCatiaV5",
         LR"({"operation_type":"export","format_type":"CatiaV5","default_color_mode":"catiav5",)"
         LR"("cgr_compatibility_mode":"catia_3dexperience"})"},
        {"OptionsIGES", LR"({"operation_type":"export","format_type":"IGES","units":"inch"})"},
        {"OptionsParasolid", LR"({"operation_type":"export","format_type":"parasolid"})"},
        {"OptionsSTEP",
         LR"({"operation_type":"export","format_type":"STEP","units":"millimeter","version":"AP242",)"
         LR"("tolerance":0.01,"layer_name_mode":"saved_visu_rep"})"},
        {"OptionsXCGM",
         LR"({"operation_type":"export","format_type":"XCGM","default_color_mode":"catiav5",)"
         LR"("graphical_pmi_container_mode":"false"})"},
        {"OptionsSTL", LR"({"operation_type":"export","format_type":"STL","save_mode":"binary_le"})"},
        {"OptionsPDF",
         LR"({"operation_type":"export","format_type":"3D_PDF","title":"Bracket","author_name":"jd",)"
         LR"("units":"millimeter","visu_pmi_mode":"all","background_color":{"rgb":[32,64,96]}})"},
    };
    return cases;
}

// Values of another JSON kind than `valid`: a number for a string, a string for anything else,
// an integer for a stored double, and an array with an element of another kind.
std::vector<JsonValue> mistyped(const JsonValue& valid, JsonAllocator& allocator)
{
    std::vector<JsonValue> values;
    if (valid.IsString())
        values.emplace_back(3);
    else
        values.emplace_back(L"true", allocator);
    if (valid.IsDouble())
        values.emplace_back(7);
    if (valid.IsArray()) {
        values.emplace_back(valid, allocator);
        values.back().PushBack(1, allocator);
    }
    return values;
}

// A new object of the class under test, filled from `document`.
using Reader = std::function<std::shared_ptr<IJsonObject>(const JsonValue& document)>;

template <class T>
std::shared_ptr<IJsonObject> readNew(const JsonValue& document)
{
    auto object = std::make_shared<T>();
    object->readObject(document);
    return object;
}

// `text` travels unchanged. Each member from the `first` on differs from what an object read
// from the members before it writes, so that a key that is not read, or read into the wrong
// field, shows; and an object that read `text` keeps its fields when such a member is replaced
// by a value of another JSON kind.
void expectKeysTravel(const std::wstring& text, unsigned first, const Reader& read)
{
    SCOPED_TRACE(toNarrow(text));
    const JsonDocument valid = parse(text);
    EXPECT_EQ(toText(*read(valid)), text);
    JsonDocument head = parse(text);
    while (head.MemberCount() > first)
        head.EraseMember(head.MemberEnd() - 1);
    const JsonDocument defaults = parse(toText(*read(head)));
    for (unsigned index = first; index < valid.MemberCount(); ++index) {
        const auto& member = valid.MemberBegin()[index];
        const std::string name = toNarrow(member.name.GetString());
        EXPECT_NE(defaults[member.name], member.value) << name;
        JsonDocument document;
        for (JsonValue& value : mistyped(member.value, document.GetAllocator())) {
            document.CopyFrom(valid, document.GetAllocator());
            document[member.name] = value;
            const auto object = read(valid);
            object->readObject(document);
            EXPECT_EQ(toText(*object), text) << "mistyped " << name;
        }
    }
}

TEST(FormatOptions, EveryClassReadsAndWritesItsKeysInOrder)
{
    LogCapture log;
    for (const auto& [className, json] : optionsCases()) {
        const auto options = readOptions(json);
        ASSERT_TRUE(options) << className;
        expectKeysTravel(json, 2, [](const JsonValue& document) -> std::shared_ptr<IJsonObject> {
            return IFormatOptions::readOptions(document);
        });

        // A value that is no object changes nothing and is logged with the class name.
        log.clear();
        options->readObject(JsonValue(3));
        EXPECT_EQ(log.messages(ax_herm::Error), Messages{className + " object should have a JSON object type."});
        EXPECT_EQ(toText(*options), json) << className;
    }
}

TEST(FormatOptions, DefaultsThatTravel)
{
    EXPECT_EQ(toText(OptionsGraphical()),
              LR"({"operation_type":"options","format_type":"graphical","tesselation_2d_sag_value":0.0,)"
              LR"("tesselation_3d_sag_value":0.0,"translate_reference_geometry_mode":"unknown",)"
              LR"("visu_brep_tesselation_mode":"unknown","visu_text_data_mode":"as_string",)"
              LR"("visu_text_stroking_mode":"unknown"})");
    EXPECT_EQ(toText(exp::OptionsPDF()),
              LR"({"operation_type":"export","format_type":"3D_PDF","title":"","author_name":"",)"
              LR"("units":"unknown","visu_pmi_mode":"unknown","background_color":null})");
}

TEST(FormatOptions, NXCarriesTheFreeCurvesModeUnderBothKeys)
{
    imp::OptionsNX nx;
    nx.setFreeCurvesMode(ETranslateFreeCurvesModeType::None);
    EXPECT_NE(toText(nx).find(LR"("translate_free_curves_mode":"none","translate_free_points_mode":"none")"),
              std::wstring::npos);

    // The points key, read last, overwrites the curves mode; the points mode is never read.
    test::readText(nx, LR"({"translate_free_curves_mode":"none","translate_free_points_mode":"all"})");
    EXPECT_EQ(nx.freeCurvesMode(), ETranslateFreeCurvesModeType::All);
    EXPECT_EQ(nx.freePointsMode(), ETranslateFreePointsModeType::Unknown);
}

TEST(FormatOptions, PersistentNameModesAreASetWrittenInValueOrder)
{
    imp::OptionsSolidWorks options;
    options.addPersistentNameMode(EPersistentNameProcessingModeType::Vertices);
    options.addPersistentNameMode(EPersistentNameProcessingModeType::Bodies);
    options.addPersistentNameMode(EPersistentNameProcessingModeType::Vertices);
    EXPECT_EQ(parse(toText(options))[L"pname_modes"], parse(LR"(["bodies","vertices"])"));

    // Reading replaces the set; an unknown word reads as the alphabetically first one.
    options.readObject(parse(LR"({"pname_modes":["faces","no_such_mode","faces"]})"));
    EXPECT_EQ(options.persistentNameModes(),
              (std::set<EPersistentNameProcessingModeType>{EPersistentNameProcessingModeType::Faces,
                                                           EPersistentNameProcessingModeType::Bodies}));
}

TEST(FormatOptions, TheHeadChoosesTheClass)
{
    LogCapture log;
    const std::tuple<const wchar_t*, int, const char*> refused[] = {
        {L"[]", ax_herm::Error, "FormatOptions object should have a JSON object type."},
        {LR"({"format_type":"NX"})", ax_herm::Error, "FormatOptions object should contain operation type."},
        {LR"({"operation_type":"import","format_type":12})", ax_herm::Error,
         "FormatOptions object should contain format type."},
        {LR"({"operation_type":"options","format_type":"NX"})", ax_herm::Info,
         "FormatOptions: Unknown common options type."},
        {LR"({"operation_type":"import","format_type":"ACIS"})", ax_herm::Info,
         "FormatOptions: No options for given import format."},
        {LR"({"operation_type":"export","format_type":"NX"})", ax_herm::Info,
         "FormatOptions: No options for given export format."},
    };
    for (const auto& [json, level, message] : refused) {
        log.clear();
        EXPECT_FALSE(readOptions(json)) << toNarrow(json);
        EXPECT_EQ(log.messages(level), Messages{message}) << toNarrow(json);
    }

    // Unknown words select the value whose word sorts first: "export" and "3D_PDF".
    const auto pdf = readOptions(LR"({"operation_type":"export","format_type":"pdf"})");
    ASSERT_TRUE(pdf);
    EXPECT_EQ(pdf->formatType(), EFormatType::PDF3D);
    const auto step = readOptions(LR"({"operation_type":"Import","format_type":"STEP"})");
    ASSERT_TRUE(std::dynamic_pointer_cast<exp::OptionsSTEP>(step));

    // An object whose class is known only logs a head that contradicts it.
    log.clear();
    imp::OptionsSTEP imported;
    imported.readObject(parse(LR"({"operation_type":"export","format_type":"XCGM","visu_pmi_mode":"all"})"));
    EXPECT_EQ(log.messages(ax_herm::Error), (Messages{"FormatOptions operation type doesn't match.",
                                                      "FormatOptions format type doesn't match."}));
    EXPECT_EQ(imported.visuPMIMode(), EVisuPMIProcessingMode::All);
    log.clear();
    imported.readObject(parse(LR"({"operation_type":"import","format_type":"STEP"})"));
    imported.readObject(parse(LR"({"operation_type":1,"format_type":null})"));
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());
}

TEST(ImportOptions, FreshAndFilledDocuments)
{
    EXPECT_EQ(toText(ImportOptionsImpl()),
              LR"({"file":"","force_mp_mode":false,"translate_world_orientation":false,)"
              LR"("translate_misc_data":false,"modeler_version":31})");
    EXPECT_EQ(toText(ExportOptionsImpl()), LR"({"file":"","geometry_flags":0})");

    ExportOptionsImpl exported;
    exported.setFile(L"out.stp");
    exported.setFormatVersion(L"AP242");
    exported.setGeometryFlags(5);
    exported.setFormatOptions(std::make_shared<exp::OptionsSTL>());
    exported.setFormatOptions(std::make_shared<OptionsGeneral>());
    exported.setFormatOptions(nullptr);
    EXPECT_EQ(toText(exported),
              LR"({"file":"out.stp","format_version":"AP242","geometry_flags":5,"format_options":[)"
              LR"({"operation_type":"options","format_type":"general","log_event_level_type":"unknown",)"
              LR"("log_file_encoding_type":"unknown","log_file_name":"","logging_mode_type":"unknown",)"
              LR"("logging_output_directory":"","memory_management_mode":"unknown"},)"
              LR"({"operation_type":"export","format_type":"STL","save_mode":"unknown"}]})");
    EXPECT_EQ(test::roundTripText(exported), exported);

    // The comparison sees a changed format options object.
    ExportOptionsImpl changed = exported;
    auto general = std::make_shared<OptionsGeneral>();
    general->setLogFileName(L"other.log");
    changed.setFormatOptions(general);
    EXPECT_NE(changed, exported);
}

TEST(ImportOptions, ReadingFormatOptionsIsForgiving)
{
    LogCapture log;
    ImportOptionsImpl options;
    options.readObject(parse(
        LR"({"file":"a.stp","force_mp_mode":"true","modeler_version":3.5,"format_options":[)"
        LR"({"operation_type":"import","format_type":"STEP","visu_pmi_mode":"all"},)"
        LR"({"operation_type":"import","format_type":"ACIS"},)"
        LR"({"operation_type":"import","format_type":"STEP","visu_pmi_mode":"none"}]})"));
    EXPECT_FALSE(options.forceMPMode());
    EXPECT_EQ(options.modelerVersion(), 31);
    const auto step = options.formatOptions<imp::OptionsSTEP>();
    ASSERT_TRUE(step);
    EXPECT_EQ(step->visuPMIMode(), EVisuPMIProcessingMode::None);
    EXPECT_EQ(log.messages(ax_herm::Info), Messages{"FormatOptions: No options for given import format."});
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"Specific format options cannot be read, file: ."});

    // A "format_options" that is no array leaves the stored objects.
    options.readObject(parse(LR"({"file":"b.stp","format_options":{}})"));
    EXPECT_EQ(options.formatOptions(EFormatType::STEP), step);
}

TEST(ImportOptions, TypedAccessToFormatOptions)
{
    ImportOptionsImpl options;
    EXPECT_FALSE(options.formatOptions<imp::OptionsSTEP>());
    const auto step = std::make_shared<imp::OptionsSTEP>();
    options.setFormatOptions(step);
    options.setFormatOptions(std::make_shared<exp::OptionsIGES>()); // the class is not checked on storing
    EXPECT_EQ(options.formatOptions<imp::OptionsSTEP>(), step);
    EXPECT_FALSE(options.formatOptions<exp::OptionsSTEP>()); // the same format, the other direction
    EXPECT_FALSE(options.formatOptions<imp::OptionsIGES>());
    EXPECT_TRUE(options.formatOptions<exp::OptionsIGES>());

    // Read-only options hand out read-only objects.
    const ImportOptions& readOnly = options;
    static_assert(std::is_same_v<decltype(readOnly.formatOptions<imp::OptionsSTEP>()),
                                 std::shared_ptr<const imp::OptionsSTEP>>);
    static_assert(std::is_same_v<decltype(readOnly.formatOptions(EFormatType::STEP)),
                                 std::shared_ptr<const IFormatOptions>>);
    EXPECT_EQ(readOnly.formatOptions<imp::OptionsSTEP>(), step);

    ExportOptionsImpl exported;
    exported.setFormatOptions(std::make_shared<exp::OptionsSTEP>());
    EXPECT_TRUE(exported.formatOptions<exp::OptionsSTEP>());
    EXPECT_FALSE(exported.formatOptions<imp::OptionsSTEP>());
}

TEST(ImportOptions, FileAndVersionAreLoggedAtTheDebugLevel)
{
    LogCapture log;
    ImportOptionsImpl imported;
    imported.setFile(L"C:/parts/a.CATPart");
    test::readText(imported, toText(imported));
    ExportOptionsImpl exported;
    exported.setFile(L"b.sat");
    exported.setGeometryFlags(3);
    toText(exported);
    exported.setFormatVersion(L"R25");
    test::readText(exported, toText(exported));
    EXPECT_EQ(log.messages(ax_herm::Debug),
              (Messages{"ImportOptions.file = C:/parts/a.CATPart", "ImportOptions.file = C:/parts/a.CATPart",
                        "ExportOptions.file = b.sat", "ExportOptions.geometryFlags = 3", "ExportOptions.file = b.sat",
                        "ExportOptions.formatVersion = R25", "ExportOptions.geometryFlags = 3",
                        "ExportOptions.file = b.sat", "ExportOptions.formatVersion = R25",
                        "ExportOptions.geometryFlags = 3"}));
}

const wchar_t* const legacyImport =
    LR"({"file":"a.dwg","temporary_dwg":"t.dwg","use_interop_mp":true,"pmi_mode":"semantic",)"
    LR"("product_structure_mode":"as_blocks","colors_mode":"nearest_index","hidden_parts_mode":"do_not_import",)"
    LR"("ins_units_def_source":"millimeters","ins_units_scaling":true,"import_acis_with_ardenix":true,)"
    LR"("step_rotate_yz":true,"solidworks_rotate_yz":true,"edge_attribute_mode":"pmi_owners_only",)"
    LR"("alternate_search_paths":"C:\\lib","debug_log":true})";
const wchar_t* const legacyExport =
    LR"({"file":"b.stp","ins_units_def_target":"inches","selection_set":"Set 1","component_names":true,)"
    LR"("hidden_components":"do_not_export","acis_format_version":"R25","parasolid_format_version":"r33",)"
    LR"("catiav4_format_version":"4.2.4","catiav5_format_version":"V5_6_R2021","step_format_version":"AP214",)"
    LR"("xcgm_format_version":"CGM_R2021_1_0"})";

TEST(LegacyOptions, KeysTravelAndMistypedOnesAreIgnored)
{
    expectKeysTravel(legacyImport, 2, readNew<LegacyImportOptionsImpl>);
    expectKeysTravel(legacyExport, 1, readNew<LegacyExportOptionsImpl>);
}

TEST(CommandOptions, RequiredPaths)
{
    const auto expectRefused = [](auto options, const wchar_t* json, const char* message) {
        SCOPED_TRACE(toNarrow(json));
        test::expectMessage<std::invalid_argument>([&] { options.readObject(parse(json)); }, message);
    };
    for (const wchar_t* json : {L"{}", LR"({"file":7})", LR"({"temporary_dwg":"t.dwg"})"}) {
        expectRefused(ImportOptionsImpl(), json, "Json document has no valid file path.");
        expectRefused(ExportOptionsImpl(), json, "Json document has no valid file path.");
        expectRefused(LegacyImportOptionsImpl(), json, "Json document has no valid file path.");
        expectRefused(LegacyExportOptionsImpl(), json, "Json document has no valid file path.");
    }
    expectRefused(ImportOptionsImpl(), L"[]", "!object.IsObject()");
    expectRefused(ExportOptionsImpl(), L"[]", "!object.IsObject()");
    expectRefused(LegacyImportOptionsImpl(), L"7", "!object.IsObject()");
    expectRefused(LegacyImportOptionsImpl(), LR"({"file":"a.dwg","temporary_dwg":1})",
                  "Json document has no valid temporary dwg path.");
    LegacyExportOptionsImpl().readObject(parse(LR"({"file":"b.stp"})"));
}

} // namespace
} // namespace hrm
