#pragma once

/// @file
/// Enumerations of the format options shared by import and export and of the import options,
/// with their string forms (enumToString / enumFromString). The numbers are part of the format.

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>

namespace hrm {

// Options shared by import and export (general, graphical, mechanical, modeler)

/// How much the translator logs, from nothing to everything.
enum class HRM_API_TYPE ELogEventLevelType : int32_t
{
    Unknown = 0,
    None = 1,
    Abort = 2,
    Error = 3,
    Warning = 4,
    Information = 5,
    Verbose = 6,
};

/// The character encoding of the translator's log file.
enum class HRM_API_TYPE ELogFileEncodingType : int32_t
{
    Unknown = 0,
    UsAscii = 1,
    Mbcs = 2,
    Utf8 = 3,
    Utf16 = 4,
};

/// Whether the translator's log file is written anew or appended to.
enum class HRM_API_TYPE ELoggingModeType : int32_t
{
    Unknown = 0,
    Atomic = 1,
    Append = 2,
};

/// Which translated data is kept in memory: a combination of the Keep flags, or Unknown. Only
/// the listed values have a word, so a combination such as 6 is written as "keep_none".
enum class HRM_API_TYPE EMemoryManagementModeFlags : int32_t
{
    Unknown = 255,
    KeepNone = 0,
    KeepPartVisu = 1,
    KeepPartMech = 2,
    KeepAsmVisu = 4,
    KeepAsmMech = 8,
};

/// Whether reference geometry (planes, axes) is shown.
enum class HRM_API_TYPE ETranslateReferenceGeometryMode : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// When bodies are tessellated for display.
enum class HRM_API_TYPE EVisuBRepTessellationModeType : int32_t
{
    Unknown = 0,
    Auto = 1,
    Never = 2,
    NeverAtLeastNativePMI = 3,
};

/// Whether texts are shown as strings or as strokes.
enum class HRM_API_TYPE EVisuTextDataMode : int32_t
{
    Unknown = 0,
    AsString = 1,
    AsStroked = 2,
};

/// Where the strokes of stroked texts come from.
enum class HRM_API_TYPE EVisuTextStrokingMode : int32_t
{
    Unknown = 0,
    FromSourceNative = 1,
    FromSourceGenerated = 2,
    FromSourceGeneratedWithoutInnerLoops = 3,
    FromSourceGeneratedWithInnerLoops = 4,
    FromIop = 5,
};

/// Whether feature tolerances are translated.
enum class HRM_API_TYPE EFeatureToleranceProcessingModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Whether miscellaneous data (properties and the like) is translated.
enum class HRM_API_TYPE EMiscDataProcessingModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Which spline surfaces the solid modeler fits anew.
enum class HRM_API_TYPE EAcisSplineResurfacingModeType : int32_t
{
    Unknown = 0,
    None = 1,
    ErroneousSurfacesOnly = 2,
    ErroneousAndShortSurfaces = 3,
};

/// Whether the source's attributes are translated.
enum class HRM_API_TYPE EAttributeProcessingModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// How much the solid modeler heals the translated bodies.
enum class HRM_API_TYPE EAcisHealType : int32_t
{
    Unknown = 0,
    None = 1,
    Minimal = 2,
    Standard = 3,
};

/// Whether manufacturing data is kept on the bodies as attributes.
enum class HRM_API_TYPE EPreserveMfgModeType : int32_t
{
    Unknown = 0,
    Disabled = 1,
    DecorateAllMfg = 2,
};

/// Whether the links between the model and its data are kept on the bodies as attributes.
enum class HRM_API_TYPE EPreserveModelAssociativityModeType : int32_t
{
    Unknown = 0,
    Disabled = 1,
    DecorateAll = 2,
};

/// Whether PMI is kept on the bodies as attributes.
enum class HRM_API_TYPE EPreservePMIModeType : int32_t
{
    Unknown = 0,
    Disabled = 1,
    DecorateAllPMI = 2,
};

/// Whether the topological entity inspector runs.
enum class HRM_API_TYPE ETopologicalEntityInspectorModeType : int32_t
{
    Unknown = 0,
    Process = 1,
    Disabled = 2,
};

// Import options

/// Whether PMI is translated for display.
enum class HRM_API_TYPE EVisuPMIProcessingMode : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Which entities of the file are imported: the root ones only, or all.
enum class HRM_API_TYPE EImportEntities : int32_t
{
    Unknown = 0,
    RootOnly = 1,
    RootAndNonRoot = 2,
};

/// Which hidden entities are translated.
enum class HRM_API_TYPE ETranslateHiddenEntitiesModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
    OnlyWithVisibleLinks = 3,
};

/// Where the files of an assembly's parts are looked for first.
enum class HRM_API_TYPE EAssemblyPathPrefType : int32_t
{
    Unknown = 0,
    SubfoldersFirst = 1,
    RootFolderOnly = 2,
    RootFolderFirst = 3,
};

/// Whether the part's "in work object" is processed.
enum class HRM_API_TYPE EProcessInWorkObjectModeType : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether entities get short or long names.
enum class HRM_API_TYPE ENameProcessingModeType : int32_t
{
    Unknown = 0,
    ShortNames = 1,
    LongNames = 2,
};

/// Whether the assembly's unfolded view is translated.
enum class HRM_API_TYPE EAssemblyUnfoldedViewMode : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether manufacturing features or their results are imported.
enum class HRM_API_TYPE EImportMfgProcessingModeType : int32_t
{
    Unknown = 0,
    FeaturesOnly = 1,
    ResultsOnly = 2,
};

/// Which suppressed entities are translated.
enum class HRM_API_TYPE ETranslateSuppressedEntitiesModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Whether manufacturing data is processed.
enum class HRM_API_TYPE EProcessMfgDataModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Has no Unknown: an unknown word reads as None.
enum class HRM_API_TYPE EDocumentDelayLoadingMode : int32_t
{
    None = 0,
    Part = 1,
};

/// Which edges carry attributes.
enum class HRM_API_TYPE EEdgeAttributeModeType : int32_t
{
    Unknown = 0,
    None = 1,
    All = 2,
    PMIOwnersOnly = 3,
    WireBodyOnly = 4,
};

/// Whether manufacturing holes on sheets are imported.
enum class HRM_API_TYPE EImportMfgHolesOnSheetsMode : int32_t
{
    Unknown = 0,
    Ignore = 1,
    Include = 2,
};

/// Whether driving dimensions are translated.
enum class HRM_API_TYPE ETranslateDrivingDimensionsModeType : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Whether construction geometry is translated.
enum class HRM_API_TYPE ETranslateConstructionGeometriesModeType : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// How copious data (point and line sets) is imported.
enum class HRM_API_TYPE ECopiousDataModeType : int32_t
{
    Unknown = 0,
    SingleBSpline = 1,
    MultipleBSplines = 2,
    MultipleLines = 3,
};

/// Prefer2d and Prefer3d are one value: both words read as 1, which is written as "2d". Value 2
/// has no word and is written as "unknown".
enum class HRM_API_TYPE ETrimCurveImportPreferenceModeType : int32_t
{
    Unknown = 0,
    Prefer2d = 1,
    Prefer3d = 1,
    FromSource = 3,
};

/// Whether only the active state of a model is processed.
enum class HRM_API_TYPE EActiveStateProcessingModeType : int32_t
{
    Unknown = 0,
    ActiveOnly = 1,
    ActiveAndInactive = 2,
};

/// Whether edges are imported.
enum class HRM_API_TYPE EImportEdgesModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Whether user properties are translated.
enum class HRM_API_TYPE EUserPropertiesModeType : int32_t
{
    Unknown = 0,
    TranslateAll = 1,
    TranslateNone = 2,
};

/// Whether free curves are translated.
enum class HRM_API_TYPE ETranslateFreeCurvesModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Whether free points are translated.
enum class HRM_API_TYPE ETranslateFreePointsModeType : int32_t
{
    Unknown = 0,
    All = 1,
    None = 2,
};

/// Which representation of the product structure is imported.
enum class HRM_API_TYPE EImportProductStructureRepresentationMode : int32_t
{
    Unknown = 0,
    AsmRep = 1,
    SavedVisuRep = 2,
    AsmRepAndSavedVisuRep = 3,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ELogEventLevelType)
HRM_DECLARE_ENUM_STRINGS(hrm::ELogFileEncodingType)
HRM_DECLARE_ENUM_STRINGS(hrm::ELoggingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EMemoryManagementModeFlags)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateReferenceGeometryMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EVisuBRepTessellationModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EVisuTextDataMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EVisuTextStrokingMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EFeatureToleranceProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EMiscDataProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EAcisSplineResurfacingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EAttributeProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EAcisHealType)
HRM_DECLARE_ENUM_STRINGS(hrm::EPreserveMfgModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EPreserveModelAssociativityModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EPreservePMIModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETopologicalEntityInspectorModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EVisuPMIProcessingMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EImportEntities)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateHiddenEntitiesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EAssemblyPathPrefType)
HRM_DECLARE_ENUM_STRINGS(hrm::EProcessInWorkObjectModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ENameProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EAssemblyUnfoldedViewMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EImportMfgProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateSuppressedEntitiesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EProcessMfgDataModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EDocumentDelayLoadingMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EEdgeAttributeModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EImportMfgHolesOnSheetsMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateDrivingDimensionsModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateConstructionGeometriesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ECopiousDataModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETrimCurveImportPreferenceModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EActiveStateProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EImportEdgesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EUserPropertiesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateFreeCurvesModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETranslateFreePointsModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EImportProductStructureRepresentationMode)
