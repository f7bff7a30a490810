#include <hrm_api/hrm_api_enums_options.h>

#include "hrm_api/hrm_api_enum_table.h"

namespace hrm {

HRM_ENUM_STRINGS(ELogEventLevelType,
    {ELogEventLevelType::Unknown, L"unknown"},
    {ELogEventLevelType::None, L"none"},
    {ELogEventLevelType::Abort, L"abort"},
    {ELogEventLevelType::Error, L"error"},
    {ELogEventLevelType::Warning, L"warning"},
    {ELogEventLevelType::Information, L"information"},
    {ELogEventLevelType::Verbose, L"verbose"})

HRM_ENUM_STRINGS(ELogFileEncodingType,
    {ELogFileEncodingType::Unknown, L"unknown"},
    {ELogFileEncodingType::UsAscii, L"us_ascii"},
    {ELogFileEncodingType::Mbcs, L"mbcs"},
    {ELogFileEncodingType::Utf8, L"utf8"},
    {ELogFileEncodingType::Utf16, L"utf16"})

HRM_ENUM_STRINGS(ELoggingModeType,
    {ELoggingModeType::Unknown, L"unknown"},
    {ELoggingModeType::Atomic, L"atomic"},
    {ELoggingModeType::Append, L"append"})

HRM_ENUM_STRINGS(EMemoryManagementModeFlags,
    {EMemoryManagementModeFlags::Unknown, L"unknown"},
    {EMemoryManagementModeFlags::KeepNone, L"keep_none"},
    {EMemoryManagementModeFlags::KeepPartVisu, L"keep_part_visu"},
    {EMemoryManagementModeFlags::KeepPartMech, L"keep_part_mech"},
    {EMemoryManagementModeFlags::KeepAsmVisu, L"keep_asm_visu"},
    {EMemoryManagementModeFlags::KeepAsmMech, L"keep_asm_mech"})

HRM_ENUM_STRINGS(ETranslateReferenceGeometryMode,
    {ETranslateReferenceGeometryMode::Unknown, L"unknown"},
    {ETranslateReferenceGeometryMode::True, L"true"},
    {ETranslateReferenceGeometryMode::False, L"false"})

HRM_ENUM_STRINGS(EVisuBRepTessellationModeType,
    {EVisuBRepTessellationModeType::Unknown, L"unknown"},
    {EVisuBRepTessellationModeType::Auto, L"auto"},
    {EVisuBRepTessellationModeType::Never, L"never"},
    {EVisuBRepTessellationModeType::NeverAtLeastNativePMI, L"never_at_least_native_pmi"})

HRM_ENUM_STRINGS(EVisuTextDataMode,
    {EVisuTextDataMode::Unknown, L"unknown"},
    {EVisuTextDataMode::AsString, L"as_string"},
    {EVisuTextDataMode::AsStroked, L"as_stroked"})

HRM_ENUM_STRINGS(EVisuTextStrokingMode,
    {EVisuTextStrokingMode::Unknown, L"unknown"},
    {EVisuTextStrokingMode::FromSourceNative, L"from_source_native"},
    {EVisuTextStrokingMode::FromSourceGenerated, L"from_source_generated"},
    {EVisuTextStrokingMode::FromSourceGeneratedWithoutInnerLoops, L"from_source_generated_without_inner_loops"},
    {EVisuTextStrokingMode::FromSourceGeneratedWithInnerLoops, L"from_source_generated_with_inner_loops"},
    {EVisuTextStrokingMode::FromIop, L"from_iop"})

HRM_ENUM_STRINGS(EFeatureToleranceProcessingModeType,
    {EFeatureToleranceProcessingModeType::Unknown, L"unknown"},
    {EFeatureToleranceProcessingModeType::All, L"all"},
    {EFeatureToleranceProcessingModeType::None, L"none"})

HRM_ENUM_STRINGS(EMiscDataProcessingModeType,
    {EMiscDataProcessingModeType::Unknown, L"unknown"},
    {EMiscDataProcessingModeType::All, L"all"},
    {EMiscDataProcessingModeType::None, L"none"})

HRM_ENUM_STRINGS(EAcisSplineResurfacingModeType,
    {EAcisSplineResurfacingModeType::Unknown, L"unknown"},
    {EAcisSplineResurfacingModeType::None, L"none"},
    {EAcisSplineResurfacingModeType::ErroneousSurfacesOnly, L"erroneous_surfaces_only"},
    {EAcisSplineResurfacingModeType::ErroneousAndShortSurfaces, L"erroneous_and_short_surfaces"})

HRM_ENUM_STRINGS(EAttributeProcessingModeType,
    {EAttributeProcessingModeType::Unknown, L"unknown"},
    {EAttributeProcessingModeType::All, L"all"},
    {EAttributeProcessingModeType::None, L"none"})

HRM_ENUM_STRINGS(EAcisHealType,
    {EAcisHealType::Unknown, L"unknown"},
    {EAcisHealType::None, L"none"},
    {EAcisHealType::Minimal, L"minimal"},
    {EAcisHealType::Standard, L"standard"})

HRM_ENUM_STRINGS(EPreserveMfgModeType,
    {EPreserveMfgModeType::Unknown, L"unknown"},
    {EPreserveMfgModeType::Disabled, L"disabled"},
    {EPreserveMfgModeType::DecorateAllMfg, L"decorate_all_mfg"})

HRM_ENUM_STRINGS(EPreserveModelAssociativityModeType,
    {EPreserveModelAssociativityModeType::Unknown, L"unknown"},
    {EPreserveModelAssociativityModeType::Disabled, L"disabled"},
    {EPreserveModelAssociativityModeType::DecorateAll, L"decorate_all"})

HRM_ENUM_STRINGS(EPreservePMIModeType,
    {EPreservePMIModeType::Unknown, L"unknown"},
    {EPreservePMIModeType::Disabled, L"disabled"},
    {EPreservePMIModeType::DecorateAllPMI, L"decorate_all_pmi"})

HRM_ENUM_STRINGS(ETopologicalEntityInspectorModeType,
    {ETopologicalEntityInspectorModeType::Unknown, L"unknown"},
    {ETopologicalEntityInspectorModeType::Process, L"process"},
    {ETopologicalEntityInspectorModeType::Disabled, L"disabled"})

HRM_ENUM_STRINGS(EVisuPMIProcessingMode,
    {EVisuPMIProcessingMode::Unknown, L"unknown"},
    {EVisuPMIProcessingMode::All, L"all"},
    {EVisuPMIProcessingMode::None, L"none"})

HRM_ENUM_STRINGS(EImportEntities,
    {EImportEntities::Unknown, L"unknown"},
    {EImportEntities::RootOnly, L"root_only"},
    {EImportEntities::RootAndNonRoot, L"root_and_nonroot"})

HRM_ENUM_STRINGS(ETranslateHiddenEntitiesModeType,
    {ETranslateHiddenEntitiesModeType::Unknown, L"unknown"},
    {ETranslateHiddenEntitiesModeType::All, L"all"},
    {ETranslateHiddenEntitiesModeType::None, L"none"},
    {ETranslateHiddenEntitiesModeType::OnlyWithVisibleLinks, L"only_with_visible_links"})

HRM_ENUM_STRINGS(EAssemblyPathPrefType,
    {EAssemblyPathPrefType::Unknown, L"unknown"},
    {EAssemblyPathPrefType::SubfoldersFirst, L"subfolders_first"},
    {EAssemblyPathPrefType::RootFolderOnly, L"root_folder_only"},
    {EAssemblyPathPrefType::RootFolderFirst, L"root_folder_first"})

HRM_ENUM_STRINGS(EProcessInWorkObjectModeType,
    {EProcessInWorkObjectModeType::Unknown, L"unknown"},
    {EProcessInWorkObjectModeType::True, L"true"},
    {EProcessInWorkObjectModeType::False, L"false"})

HRM_ENUM_STRINGS(ENameProcessingModeType,
    {ENameProcessingModeType::Unknown, L"unknown"},
    {ENameProcessingModeType::ShortNames, L"short_names"},
    {ENameProcessingModeType::LongNames, L"long_names"})

HRM_ENUM_STRINGS(EAssemblyUnfoldedViewMode,
    {EAssemblyUnfoldedViewMode::Unknown, L"unknown"},
    {EAssemblyUnfoldedViewMode::True, L"true"},
    {EAssemblyUnfoldedViewMode::False, L"false"})

HRM_ENUM_STRINGS(EImportMfgProcessingModeType,
    {EImportMfgProcessingModeType::Unknown, L"unknown"},
    {EImportMfgProcessingModeType::FeaturesOnly, L"features_only"},
    {EImportMfgProcessingModeType::ResultsOnly, L"results_only"})

HRM_ENUM_STRINGS(ETranslateSuppressedEntitiesModeType,
    {ETranslateSuppressedEntitiesModeType::Unknown, L"unknown"},
    {ETranslateSuppressedEntitiesModeType::All, L"all"},
    {ETranslateSuppressedEntitiesModeType::None, L"none"})

HRM_ENUM_STRINGS(EProcessMfgDataModeType,
    {EProcessMfgDataModeType::Unknown, L"unknown"},
    {EProcessMfgDataModeType::All, L"all"},
    {EProcessMfgDataModeType::None, L"none"})

HRM_ENUM_STRINGS(EDocumentDelayLoadingMode,
    {EDocumentDelayLoadingMode::None, L"none"},
    {EDocumentDelayLoadingMode::Part, L"part"})

HRM_ENUM_STRINGS(EEdgeAttributeModeType,
    {EEdgeAttributeModeType::Unknown, L"unknown"},
    {EEdgeAttributeModeType::None, L"none"},
    {EEdgeAttributeModeType::All, L"all"},
    {EEdgeAttributeModeType::PMIOwnersOnly, L"pmi_owners_only"},
    {EEdgeAttributeModeType::WireBodyOnly, L"wire_body_only"})

HRM_ENUM_STRINGS(EImportMfgHolesOnSheetsMode,
    {EImportMfgHolesOnSheetsMode::Unknown, L"unknown"},
    {EImportMfgHolesOnSheetsMode::Ignore, L"ignore"},
    {EImportMfgHolesOnSheetsMode::Include, L"include"})

HRM_ENUM_STRINGS(ETranslateDrivingDimensionsModeType,
    {ETranslateDrivingDimensionsModeType::Unknown, L"unknown"},
    {ETranslateDrivingDimensionsModeType::True, L"true"},
    {ETranslateDrivingDimensionsModeType::False, L"false"})

HRM_ENUM_STRINGS(ETranslateConstructionGeometriesModeType,
    {ETranslateConstructionGeometriesModeType::Unknown, L"unknown"},
    {ETranslateConstructionGeometriesModeType::True, L"true"},
    {ETranslateConstructionGeometriesModeType::False, L"false"})

HRM_ENUM_STRINGS(ECopiousDataModeType,
    {ECopiousDataModeType::Unknown, L"unknown"},
    {ECopiousDataModeType::SingleBSpline, L"single_b_spline"},
    {ECopiousDataModeType::MultipleBSplines, L"multiple_b_splines"},
    {ECopiousDataModeType::MultipleLines, L"multiple_lines"})

HRM_ENUM_STRINGS(ETrimCurveImportPreferenceModeType,
    {ETrimCurveImportPreferenceModeType::Unknown, L"unknown"},
    {ETrimCurveImportPreferenceModeType::Prefer2d, L"2d"},
    {ETrimCurveImportPreferenceModeType::Prefer3d, L"3d"},
    {ETrimCurveImportPreferenceModeType::FromSource, L"from_source"})

HRM_ENUM_STRINGS(EActiveStateProcessingModeType,
    {EActiveStateProcessingModeType::Unknown, L"unknown"},
    {EActiveStateProcessingModeType::ActiveOnly, L"active_only"},
    {EActiveStateProcessingModeType::ActiveAndInactive, L"active_and_inactive"})

HRM_ENUM_STRINGS(EImportEdgesModeType,
    {EImportEdgesModeType::Unknown, L"unknown"},
    {EImportEdgesModeType::All, L"all"},
    {EImportEdgesModeType::None, L"none"})

HRM_ENUM_STRINGS(EUserPropertiesModeType,
    {EUserPropertiesModeType::Unknown, L"unknown"},
    {EUserPropertiesModeType::TranslateAll, L"translate_all"},
    {EUserPropertiesModeType::TranslateNone, L"translate_none"})

HRM_ENUM_STRINGS(ETranslateFreeCurvesModeType,
    {ETranslateFreeCurvesModeType::Unknown, L"unknown"},
    {ETranslateFreeCurvesModeType::All, L"all"},
    {ETranslateFreeCurvesModeType::None, L"none"})

HRM_ENUM_STRINGS(ETranslateFreePointsModeType,
    {ETranslateFreePointsModeType::Unknown, L"unknown"},
    {ETranslateFreePointsModeType::All, L"all"},
    {ETranslateFreePointsModeType::None, L"none"})

HRM_ENUM_STRINGS(EImportProductStructureRepresentationMode,
    {EImportProductStructureRepresentationMode::Unknown, L"unknown"},
    {EImportProductStructureRepresentationMode::AsmRep, L"asm_rep"},
    {EImportProductStructureRepresentationMode::SavedVisuRep, L"saved_visu_rep"},
    {EImportProductStructureRepresentationMode::AsmRepAndSavedVisuRep, L"asm_rep_and_saved_visu_rep"})

} // namespace hrm
