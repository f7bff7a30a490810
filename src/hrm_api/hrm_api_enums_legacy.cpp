#include <hrm_api/hrm_api_enums_legacy.h>

#include "hrm_api/hrm_api_enum_table.h"

namespace hrm {

HRM_ENUM_STRINGS(ELegacyInsertionUnits,
    {ELegacyInsertionUnits::Undefined, L"undefined"},
    {ELegacyInsertionUnits::Inches, L"inches"},
    {ELegacyInsertionUnits::Feet, L"feet"},
    {ELegacyInsertionUnits::Miles, L"miles"},
    {ELegacyInsertionUnits::Millimeters, L"millimeters"},
    {ELegacyInsertionUnits::Centimeters, L"centimeters"},
    {ELegacyInsertionUnits::Meters, L"meters"},
    {ELegacyInsertionUnits::Kilometers, L"kilometers"},
    {ELegacyInsertionUnits::MicroInches, L"microinches"},
    {ELegacyInsertionUnits::Mils, L"mils"},
    {ELegacyInsertionUnits::Yards, L"yards"},
    {ELegacyInsertionUnits::Angstroms, L"angstroms"},
    {ELegacyInsertionUnits::Nanometers, L"nanometers"},
    {ELegacyInsertionUnits::Microns, L"microns"},
    {ELegacyInsertionUnits::Decimeters, L"decimeters"},
    {ELegacyInsertionUnits::Dekameters, L"dekameters"},
    {ELegacyInsertionUnits::Hectometers, L"hectometers"},
    {ELegacyInsertionUnits::Gigameters, L"gigameters"},
    {ELegacyInsertionUnits::Astronomical, L"astronomical"},
    {ELegacyInsertionUnits::LightYears, L"light_years"},
    {ELegacyInsertionUnits::Parsecs, L"parsecs"},
    {ELegacyInsertionUnits::USSurveyFeet, L"us_survey_feet"},
    {ELegacyInsertionUnits::USSurveyInch, L"us_survey_inch"},
    {ELegacyInsertionUnits::USSurveyYard, L"us_survey_yard"},
    {ELegacyInsertionUnits::USSurveyMil, L"us_survey_mil"})

HRM_ENUM_STRINGS(ELegacyPMIMode,
    {ELegacyPMIMode::None, L"none"},
    {ELegacyPMIMode::Graphical, L"graphical"},
    {ELegacyPMIMode::Semantic, L"semantic"})

HRM_ENUM_STRINGS(ELegacyProductStructureMode,
    {ELegacyProductStructureMode::None, L"none"},
    {ELegacyProductStructureMode::AsBlocks, L"as_blocks"},
    {ELegacyProductStructureMode::AsMechanicalComponents, L"as_mechanical_components"})

HRM_ENUM_STRINGS(ELegacyColorsMode,
    {ELegacyColorsMode::RGB, L"rgb"},
    {ELegacyColorsMode::NearestIndex, L"nearest_index"},
    {ELegacyColorsMode::MatchingIndex, L"matching_index"})

HRM_ENUM_STRINGS(ELegacyHiddenPartsImportMode,
    {ELegacyHiddenPartsImportMode::DoNotImport, L"do_not_import"},
    {ELegacyHiddenPartsImportMode::ImportHide, L"import_hide"},
    {ELegacyHiddenPartsImportMode::ImportShow, L"import_show"})

HRM_ENUM_STRINGS(ELegacyHiddenComponentsExportMode,
    {ELegacyHiddenComponentsExportMode::DoNotExport, L"do_not_export"},
    {ELegacyHiddenComponentsExportMode::ExportHide, L"export_hide"},
    {ELegacyHiddenComponentsExportMode::ExportShow, L"export_show"})

} // namespace hrm
