#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_export.h>
#include <hrm_api/hrm_api_enums_legacy.h>
#include <hrm_api/hrm_api_enums_options.h>

#include "hrm_api/hrm_api_enum_table.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <typeinfo>

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

// For enumeration E, an unknown value writes `writes` (the word of the smallest value) and an
// unknown word reads as `reads` (the value of the alphabetically first word).
template <class E>
void expectUnknownInputOf(const std::wstring& writes, int32_t reads)
{
    SCOPED_TRACE(typeid(E).name());
    EXPECT_EQ(enumToString(static_cast<E>(1000)), writes);
    EXPECT_EQ(enumToString(static_cast<E>(-1)), writes);
    EXPECT_EQ(static_cast<int32_t>(enumFromString<E>(L"")), reads);
    EXPECT_EQ(static_cast<int32_t>(enumFromString<E>(L"Unknown")), reads);
    EXPECT_EQ(enumToString(enumFromString<E>(writes)), writes);
}

template <class... E>
void expectUnknownInput(const std::wstring& writes, int32_t reads)
{
    (expectUnknownInputOf<E>(writes, reads), ...);
}

TEST(Enumerations, UnknownInputOfEveryTable)
{
    expectUnknownInput<EVisuBRepTessellationModeType, EVisuTextDataMode, EFeatureToleranceProcessingModeType,
                       EMiscDataProcessingModeType, EAttributeProcessingModeType, EVisuPMIProcessingMode,
                       ETranslateHiddenEntitiesModeType, EImportMfgProcessingModeType,
                       ETranslateSuppressedEntitiesModeType, EProcessMfgDataModeType, EImportMfgHolesOnSheetsMode,
                       ETrimCurveImportPreferenceModeType, EImportEdgesModeType, EUserPropertiesModeType,
                       ETranslateFreeCurvesModeType, ETranslateFreePointsModeType,
                       EImportProductStructureRepresentationMode, ELayerNameProcessingModeType, EExportVersionStep,
                       EExportVersionCatiaV4, EExportVersionParasolid>(L"unknown", 1);
    expectUnknownInput<ELogEventLevelType, ELogFileEncodingType, ELoggingModeType, ETranslateReferenceGeometryMode,
                       EAcisHealType, EPreserveMfgModeType, EPreserveModelAssociativityModeType, EPreservePMIModeType,
                       ETopologicalEntityInspectorModeType, EImportEntities, EProcessInWorkObjectModeType,
                       ENameProcessingModeType, EAssemblyUnfoldedViewMode, EEdgeAttributeModeType,
                       ETranslateDrivingDimensionsModeType, ETranslateConstructionGeometriesModeType,
                       ECopiousDataModeType, EActiveStateProcessingModeType, EDefaultColorMode,
                       EGraphicalPMIContainerMode, EEdgeCurveMode, EExportCgrCompatibilityMode, EExportSaveMode,
                       EExportVersionXCGM>(L"unknown", 2);
    expectUnknownInput<EMassUnitType, ETemperatureUnitType, EAcisSplineResurfacingModeType, EAssemblyPathPrefType>(
        L"unknown", 3);
    expectUnknownInput<EWorldOrientation>(L"unknown", 0);
    expectUnknownInput<ELengthUnitType, EVisuTextStrokingMode>(L"unknown", 5);
    expectUnknownInput<ETimeUnitType, EExportVersionCatiaV5>(L"unknown", 8);
    expectUnknownInput<EExportVersionAcis>(L"unknown", 10);
    expectUnknownInput<EFormatType>(L"unknown", 18);
    expectUnknownInput<EOperationType>(L"options", 2);
    expectUnknownInput<EMemoryManagementModeFlags>(L"keep_none", 8);
    expectUnknownInput<EDocumentDelayLoadingMode>(L"none", 0);
    expectUnknownInput<ELegacyPMIMode, ELegacyProductStructureMode>(L"none", 1);
    expectUnknownInput<ELegacyInsertionUnits>(L"undefined", 11);
    expectUnknownInput<ELegacyColorsMode>(L"rgb", 1);
    expectUnknownInput<ELegacyHiddenPartsImportMode>(L"import_hide", 2);
    expectUnknownInput<ELegacyHiddenComponentsExportMode>(L"export_hide", 2);
}

TEST(Enumerations, TablesWithOddEntries)
{
    // A gap in the values, a misspelt word, and the word it was meant to be.
    EXPECT_EQ(enumToString(static_cast<EMassUnitType>(2)), L"unknown");
    EXPECT_EQ(enumToString(EMassUnitType::PoundMass), L"poind_mass");
    EXPECT_EQ(enumFromString<EMassUnitType>(L"pound_mass"), EMassUnitType::Centigram);

    // Two words share value 1; the first one is written.
    EXPECT_EQ(enumToString(ETrimCurveImportPreferenceModeType::Prefer3d), L"2d");
    EXPECT_EQ(enumToString(static_cast<ETrimCurveImportPreferenceModeType>(2)), L"unknown");

    // Combinations of flags have no word of their own; Unknown is 255, not 0.
    EXPECT_EQ(enumToString(static_cast<EMemoryManagementModeFlags>(3)), L"keep_none");
    EXPECT_EQ(enumToString(static_cast<EMemoryManagementModeFlags>(6)), L"keep_none");
    EXPECT_EQ(enumToString(EMemoryManagementModeFlags::Unknown), L"unknown");
    EXPECT_EQ(enumFromString<EMemoryManagementModeFlags>(L"unknown"), EMemoryManagementModeFlags::Unknown);

    EXPECT_EQ(enumFromString<EDefaultColorMode>(L"true"), EDefaultColorMode::CatiaV5);

    // Legacy tables list their pairs out of numeric order.
    EXPECT_EQ(enumFromString<ELegacyColorsMode>(L"matching_index"), ELegacyColorsMode::MatchingIndex);
    EXPECT_EQ(enumToString(ELegacyHiddenComponentsExportMode::ExportShow), L"export_show");
}

TEST(Enumerations, FormatTypeWordsKeepTheirCase)
{
    EXPECT_EQ(enumToString(EFormatType::AutoCAD), L"autocad");
    EXPECT_EQ(enumToString(EFormatType::UDL), L"UDL");
    EXPECT_EQ(enumFromString<EFormatType>(L"VDA_FS"), EFormatType::VDAFS);
    EXPECT_EQ(enumFromString<EFormatType>(L"XML_EBOM"), EFormatType::XMLEBOM);
    EXPECT_EQ(enumFromString<EFormatType>(L"EDrawings"), EFormatType::EDrawings);
    EXPECT_EQ(enumFromString<EFormatType>(L"Parasolid"), EFormatType::PDF3D);
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
