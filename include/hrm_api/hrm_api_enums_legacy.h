#pragma once

/// @file
/// Enumerations of the legacy import and export options, with their string forms
/// (enumToString / enumFromString). The numbers are part of the format.

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>

namespace hrm {

/// Units of "ins_units_def_source" and "ins_units_def_target".
enum class HRM_API_TYPE ELegacyInsertionUnits : int32_t
{
    Undefined = 0,
    Inches = 1,
    Feet = 2,
    Miles = 3,
    Millimeters = 4,
    Centimeters = 5,
    Meters = 6,
    Kilometers = 7,
    MicroInches = 8,
    Mils = 9,
    Yards = 10,
    Angstroms = 11,
    Nanometers = 12,
    Microns = 13,
    Decimeters = 14,
    Dekameters = 15,
    Hectometers = 16,
    Gigameters = 17,
    Astronomical = 18,
    LightYears = 19,
    Parsecs = 20,
    USSurveyFeet = 21,
    USSurveyInch = 22,
    USSurveyYard = 23,
    USSurveyMil = 24,
};

/// How PMI is imported through the legacy interface.
enum class HRM_API_TYPE ELegacyPMIMode : int32_t
{
    None = 0,
    Graphical = 1,
    Semantic = 2,
};

/// How the product structure is imported through the legacy interface.
enum class HRM_API_TYPE ELegacyProductStructureMode : int32_t
{
    None = 0,
    AsBlocks = 1,
    AsMechanicalComponents = 2,
};

/// How colours are matched through the legacy interface.
enum class HRM_API_TYPE ELegacyColorsMode : int32_t
{
    RGB = 0,
    NearestIndex = 2,
    MatchingIndex = 1,
};

/// Hidden parts on import: skipped, imported hidden, or imported shown. An unknown word reads
/// as DoNotImport, an unknown value writes "import_hide".
enum class HRM_API_TYPE ELegacyHiddenPartsImportMode : int32_t
{
    DoNotImport = 2,
    ImportHide = 0,
    ImportShow = 1,
};

/// The export counterpart, numbered like the import one.
enum class HRM_API_TYPE ELegacyHiddenComponentsExportMode : int32_t
{
    DoNotExport = 2,
    ExportHide = 0,
    ExportShow = 1,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyInsertionUnits)
HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyPMIMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyProductStructureMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyColorsMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyHiddenPartsImportMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ELegacyHiddenComponentsExportMode)
