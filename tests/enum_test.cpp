#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_export.h>
#include <hrm_api/hrm_api_enums_legacy.h>
#include <hrm_api/hrm_api_enums_options.h>

#include "hrm_api/hrm_api_enum_table.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace hrm {
namespace {

TEST(Utf16Order, CodeUnitsCompareAsUnsigned)
{
    Utf16Less less;
    EXPECT_TRUE(less(L"3D_PDF", L"ACIS"));  // digits before capitals
    EXPECT_TRUE(less(L"Z", L"_"));          // capitals before '_'
    EXPECT_TRUE(less(L"_", L"a"));          // '_' before small letters
    EXPECT_TRUE(less(L"ab", L"abc"));
    EXPECT_FALSE(less(L"abc", L"abc"));
    // U+1F600 is the pair D83D DE00 and therefore sorts before U+E000.
    EXPECT_TRUE(less(L"\U0001F600", L"\xE000"));
    EXPECT_FALSE(less(L"\xE000", L"\U0001F600"));
}

TEST(Enumerations, UnitTables)
{
    EXPECT_EQ(enumToString(ELengthUnitType::MicroInch), L"microinch");
    EXPECT_EQ(enumFromString<ELengthUnitType>(L"meter"), ELengthUnitType::Meter);
    EXPECT_EQ(enumFromString<ELengthUnitType>(L""), ELengthUnitType::Centimeter);
    EXPECT_EQ(enumToString(static_cast<ELengthUnitType>(99)), L"unknown");

    EXPECT_EQ(enumToString(static_cast<EMassUnitType>(2)), L"unknown");
    EXPECT_EQ(enumToString(EMassUnitType::PoundMass), L"poind_mass");
    EXPECT_EQ(enumFromString<EMassUnitType>(L"pound_mass"), EMassUnitType::Centigram);
    EXPECT_EQ(enumFromString<ETimeUnitType>(L"Second"), ETimeUnitType::Day);
    EXPECT_EQ(enumFromString<ETemperatureUnitType>(L"x"), ETemperatureUnitType::Celsius);
    EXPECT_EQ(enumFromString<EWorldOrientation>(L"up-z"), EWorldOrientation::Unknown);
    EXPECT_EQ(enumFromString<EWorldOrientation>(L"up_z"), EWorldOrientation::UpZ);
}

// One enumeration seen through int32_t, with what its table gives for unknown input.
struct Table
{
    const char* name;
    std::wstring (*write)(int32_t value);
    int32_t (*read)(const std::wstring& text);
    std::wstring unknownValueWrites;
    int32_t unknownWordReads;
};

template <class E>
Table table(const char* name, const wchar_t* unknownValueWrites, int32_t unknownWordReads)
{
    return {name, [](int32_t value) { return enumToString(static_cast<E>(value)); },
            [](const std::wstring& text) { return static_cast<int32_t>(enumFromString<E>(text)); },
            unknownValueWrites, unknownWordReads};
}

#define TABLE(E, writes, reads) table<E>(#E, writes, reads)

TEST(Enumerations, UnknownInputOfEveryTable)
{
    const std::vector<Table> tables{
        TABLE(ELengthUnitType, L"unknown", 5),
        TABLE(EMassUnitType, L"unknown", 3),
        TABLE(ETimeUnitType, L"unknown", 8),
        TABLE(ETemperatureUnitType, L"unknown", 3),
        TABLE(EWorldOrientation, L"unknown", 0),
        TABLE(EOperationType, L"options", 2),
        TABLE(EFormatType, L"unknown", 18),
        TABLE(ELogEventLevelType, L"unknown", 2),
        TABLE(ELogFileEncodingType, L"unknown", 2),
        TABLE(ELoggingModeType, L"unknown", 2),
        TABLE(EMemoryManagementModeFlags, L"keep_none", 8),
        TABLE(ETranslateReferenceGeometryMode, L"unknown", 2),
        TABLE(EVisuBRepTessellationModeType, L"unknown", 1),
        TABLE(EVisuTextDataMode, L"unknown", 1),
        TABLE(EVisuTextStrokingMode, L"unknown", 5),
        TABLE(EFeatureToleranceProcessingModeType, L"unknown", 1),
        TABLE(EMiscDataProcessingModeType, L"unknown", 1),
        TABLE(EAcisSplineResurfacingModeType, L"unknown", 3),
        TABLE(EAttributeProcessingModeType, L"unknown", 1),
        TABLE(EAcisHealType, L"unknown", 2),
        TABLE(EPreserveMfgModeType, L"unknown", 2),
        TABLE(EPreserveModelAssociativityModeType, L"unknown", 2),
        TABLE(EPreservePMIModeType, L"unknown", 2),
        TABLE(ETopologicalEntityInspectorModeType, L"unknown", 2),
        TABLE(EVisuPMIProcessingMode, L"unknown", 1),
        TABLE(EImportEntities, L"unknown", 2),
        TABLE(ETranslateHiddenEntitiesModeType, L"unknown", 1),
        TABLE(EAssemblyPathPrefType, L"unknown", 3),
        TABLE(EProcessInWorkObjectModeType, L"unknown", 2),
        TABLE(ENameProcessingModeType, L"unknown", 2),
        TABLE(EAssemblyUnfoldedViewMode, L"unknown", 2),
        TABLE(EImportMfgProcessingModeType, L"unknown", 1),
        TABLE(ETranslateSuppressedEntitiesModeType, L"unknown", 1),
        TABLE(EProcessMfgDataModeType, L"unknown", 1),
        TABLE(EDocumentDelayLoadingMode, L"none", 0),
        TABLE(EEdgeAttributeModeType, L"unknown", 2),
        TABLE(EImportMfgHolesOnSheetsMode, L"unknown", 1),
        TABLE(ETranslateDrivingDimensionsModeType, L"unknown", 2),
        TABLE(ETranslateConstructionGeometriesModeType, L"unknown", 2),
        TABLE(ECopiousDataModeType, L"unknown", 2),
        TABLE(ETrimCurveImportPreferenceModeType, L"unknown", 1),
        TABLE(EActiveStateProcessingModeType, L"unknown", 2),
        TABLE(EImportEdgesModeType, L"unknown", 1),
        TABLE(EUserPropertiesModeType, L"unknown", 1),
        TABLE(ETranslateFreeCurvesModeType, L"unknown", 1),
        TABLE(ETranslateFreePointsModeType, L"unknown", 1),
        TABLE(EImportProductStructureRepresentationMode, L"unknown", 1),
        TABLE(ELayerNameProcessingModeType, L"unknown", 1),
        TABLE(EDefaultColorMode, L"unknown", 2),
        TABLE(EGraphicalPMIContainerMode, L"unknown", 2),
        TABLE(EEdgeCurveMode, L"unknown", 2),
        TABLE(EExportCgrCompatibilityMode, L"unknown", 2),
        TABLE(EExportSaveMode, L"unknown", 2),
        TABLE(EExportVersionStep, L"unknown", 1),
        TABLE(EExportVersionCatiaV4, L"unknown", 1),
        TABLE(EExportVersionAcis, L"unknown", 10),
        TABLE(EExportVersionParasolid, L"unknown", 1),
        TABLE(EExportVersionCatiaV5, L"unknown", 8),
        TABLE(EExportVersionXCGM, L"unknown", 2),
        TABLE(ELegacyInsertionUnits, L"undefined", 11),
        TABLE(ELegacyPMIMode, L"none", 1),
        TABLE(ELegacyProductStructureMode, L"none", 1),
        TABLE(ELegacyColorsMode, L"rgb", 1),
        TABLE(ELegacyHiddenPartsImportMode, L"import_hide", 2),
        TABLE(ELegacyHiddenComponentsExportMode, L"export_hide", 2),
    };
    for (const Table& t : tables) {
        SCOPED_TRACE(t.name);
        EXPECT_EQ(t.write(1000), t.unknownValueWrites);
        EXPECT_EQ(t.write(-1), t.unknownValueWrites);
        EXPECT_EQ(t.read(L""), t.unknownWordReads);
        EXPECT_EQ(t.read(L"Unknown"), t.unknownWordReads);
        // The word of the smallest value reads back as that value.
        EXPECT_EQ(t.write(t.read(t.unknownValueWrites)), t.unknownValueWrites);
    }
}

TEST(Enumerations, TablesWithOddEntries)
{
    // Two words share value 1; the first one is written.
    EXPECT_EQ(enumToString(ETrimCurveImportPreferenceModeType::Prefer3d), L"2d");
    EXPECT_EQ(enumFromString<ETrimCurveImportPreferenceModeType>(L"2d"), ETrimCurveImportPreferenceModeType::Prefer2d);
    EXPECT_EQ(enumFromString<ETrimCurveImportPreferenceModeType>(L"3d"), ETrimCurveImportPreferenceModeType::Prefer2d);
    EXPECT_EQ(enumToString(static_cast<ETrimCurveImportPreferenceModeType>(2)), L"unknown");
    EXPECT_EQ(enumToString(ETrimCurveImportPreferenceModeType::FromSource), L"from_source");

    // Combinations of flags have no word of their own; Unknown is 255, not 0.
    EXPECT_EQ(enumToString(static_cast<EMemoryManagementModeFlags>(3)), L"keep_none");
    EXPECT_EQ(enumToString(static_cast<EMemoryManagementModeFlags>(6)), L"keep_none");
    EXPECT_EQ(enumToString(EMemoryManagementModeFlags::Unknown), L"unknown");
    EXPECT_EQ(enumFromString<EMemoryManagementModeFlags>(L"unknown"), EMemoryManagementModeFlags::Unknown);
    EXPECT_EQ(enumToString(EMemoryManagementModeFlags::KeepAsmMech), L"keep_asm_mech");

    EXPECT_EQ(enumFromString<EDocumentDelayLoadingMode>(L"unknown"), EDocumentDelayLoadingMode::None);
    EXPECT_EQ(enumToString(EDocumentDelayLoadingMode::Part), L"part");

    EXPECT_EQ(enumToString(EDefaultColorMode::False), L"false");
    EXPECT_EQ(enumFromString<EDefaultColorMode>(L"false"), EDefaultColorMode::False);
    EXPECT_EQ(enumFromString<EDefaultColorMode>(L"true"), EDefaultColorMode::CatiaV5);

    EXPECT_EQ(enumFromString<ELogEventLevelType>(L"Verbose"), ELogEventLevelType::Abort);
    EXPECT_EQ(enumFromString<ELogEventLevelType>(L"verbose"), ELogEventLevelType::Verbose);

    EXPECT_EQ(enumToString(EEdgeCurveMode::Curves2dAnd3d), L"2d+3d");
    EXPECT_EQ(enumFromString<EExportVersionCatiaV4>(L"4.2.4"), EExportVersionCatiaV4::V4_2_4);

    // Legacy tables list their pairs out of numeric order.
    EXPECT_EQ(enumToString(ELegacyColorsMode::NearestIndex), L"nearest_index");
    EXPECT_EQ(enumFromString<ELegacyColorsMode>(L"matching_index"), ELegacyColorsMode::MatchingIndex);
    EXPECT_EQ(enumToString(ELegacyHiddenComponentsExportMode::ExportShow), L"export_show");
}

TEST(Enumerations, FormatTypeWordsKeepTheirCase)
{
    EXPECT_EQ(enumToString(EFormatType::PDF3D), L"3D_PDF");
    EXPECT_EQ(enumToString(EFormatType::Parasolid), L"parasolid");
    EXPECT_EQ(enumToString(EFormatType::AutoCAD), L"autocad");
    EXPECT_EQ(enumToString(EFormatType::SolidWorksDrawing), L"SolidWorksDrawing");
    EXPECT_EQ(enumToString(EFormatType::UDL), L"UDL");
    EXPECT_EQ(enumFromString<EFormatType>(L"VDA_FS"), EFormatType::VDAFS);
    EXPECT_EQ(enumFromString<EFormatType>(L"XML_EBOM"), EFormatType::XMLEBOM);
    EXPECT_EQ(enumFromString<EFormatType>(L"EDrawings"), EFormatType::EDrawings);
    EXPECT_EQ(enumFromString<EFormatType>(L"Parasolid"), EFormatType::PDF3D);
    EXPECT_EQ(enumFromString<EFormatType>(L"acis"), EFormatType::PDF3D);
    for (int32_t value = 0; value <= 31; ++value) {
        const auto format = static_cast<EFormatType>(value);
        EXPECT_EQ(enumFromString<EFormatType>(enumToString(format)), format) << value;
    }
}

// Every listed value of a version table has its own word, which reads back as the value.
template <class E>
void expectVersionTable(int32_t lastValue)
{
    std::set<std::wstring> words;
    for (int32_t value = 0; value <= lastValue; ++value) {
        const std::wstring& word = enumToString(static_cast<E>(value));
        EXPECT_EQ(static_cast<int32_t>(enumFromString<E>(word)), value);
        words.insert(word);
    }
    EXPECT_EQ(words.size(), static_cast<size_t>(lastValue + 1));
    EXPECT_EQ(enumToString(static_cast<E>(1)), L"current");
    EXPECT_EQ(enumToString(static_cast<E>(lastValue + 1)), L"unknown");
}

TEST(Enumerations, VersionTablesBuiltByRule)
{
    expectVersionTable<EExportVersionAcis>(15);
    EXPECT_EQ(enumToString(EExportVersionAcis::R18), L"R18");
    EXPECT_EQ(enumToString(static_cast<EExportVersionAcis>(9)), L"R25");
    EXPECT_EQ(enumToString(EExportVersionAcis::V2016_1_0), L"2016_1_0");
    EXPECT_EQ(enumToString(static_cast<EExportVersionAcis>(15)), L"2021_1_0");

    expectVersionTable<EExportVersionParasolid>(23);
    EXPECT_EQ(enumToString(static_cast<EExportVersionParasolid>(2)), L"r12");
    EXPECT_EQ(enumToString(EExportVersionParasolid::R33), L"r33");

    expectVersionTable<EExportVersionCatiaV5>(17);
    EXPECT_EQ(enumToString(EExportVersionCatiaV5::V5R16), L"V5_R16");
    EXPECT_EQ(enumToString(static_cast<EExportVersionCatiaV5>(7)), L"V5_R21");
    EXPECT_EQ(enumToString(static_cast<EExportVersionCatiaV5>(8)), L"V5_6_R2012");
    EXPECT_EQ(enumToString(static_cast<EExportVersionCatiaV5>(17)), L"V5_6_R2021");

    expectVersionTable<EExportVersionXCGM>(16);
    EXPECT_EQ(enumToString(EExportVersionXCGM::R2015x_B5_SP1), L"CGM_R2015x_B5_SP1");
    EXPECT_EQ(enumToString(static_cast<EExportVersionXCGM>(16)), L"CGM_R2021_1_0");
}

} // namespace
} // namespace hrm
