#pragma once

/// @file
/// Enumerations of the export options, with their string forms (enumToString /
/// enumFromString). The numbers are part of the format.

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>

namespace hrm {

/// Where the names of exported layers come from.
enum class HRM_API_TYPE ELayerNameProcessingModeType : int32_t
{
    Unknown = 0,
    AsmRep = 1,
    SavedVisuRep = 2,
};

/// Value 1 travels as the word "false".
enum class HRM_API_TYPE EDefaultColorMode : int32_t
{
    Unknown = 0,
    False = 1,
    CatiaV5 = 2,
};

/// Whether graphical PMI is written into a container.
enum class HRM_API_TYPE EGraphicalPMIContainerMode : int32_t
{
    Unknown = 0,
    True = 1,
    False = 2,
};

/// Which curves of an edge are written.
enum class HRM_API_TYPE EEdgeCurveMode : int32_t
{
    Unknown = 0,
    Curves2dAnd3d = 1,
    Curves2d = 2,
};

/// The application the written CGR file is to be compatible with.
enum class HRM_API_TYPE EExportCgrCompatibilityMode : int32_t
{
    Unknown = 0,
    CatiaV5 = 1,
    Catia3DExperience = 2,
};

/// Whether the file is written as text or as binary.
enum class HRM_API_TYPE EExportSaveMode : int32_t
{
    Unknown = 0,
    Text = 1,
    BinaryLE = 2,
};

/// The STEP application protocol to write.
enum class HRM_API_TYPE EExportVersionStep : int32_t
{
    Unknown = 0,
    AP203 = 1,
    AP214 = 2,
    AP242 = 3,
};

/// The CATIA V4 version to write.
enum class HRM_API_TYPE EExportVersionCatiaV4 : int32_t
{
    Unknown = 0,
    V4_1_9 = 1,
    V4_2_0 = 2,
    V4_2_1 = 3,
    V4_2_2 = 4,
    V4_2_3 = 5,
    V4_2_4 = 6,
};

// Versions of the exported file; each starts with Unknown and Current.

/// The ACIS version to write.
enum class HRM_API_TYPE EExportVersionAcis : int32_t
{
    Unknown = 0,
    Current = 1,
    R18 = 2,
    R19 = 3,
    R20 = 4,
    R21 = 5,
    R22 = 6,
    R23 = 7,
    R24 = 8,
    R25 = 9,
    V2016_1_0 = 10,
    V2017_1_0 = 11,
    V2018_1_0 = 12,
    V2019_1_0 = 13,
    V2020_1_0 = 14,
    V2021_1_0 = 15,
};

/// The Parasolid version to write.
enum class HRM_API_TYPE EExportVersionParasolid : int32_t
{
    Unknown = 0,
    Current = 1,
    R12 = 2,
    R13 = 3,
    R14 = 4,
    R15 = 5,
    R16 = 6,
    R17 = 7,
    R18 = 8,
    R19 = 9,
    R20 = 10,
    R21 = 11,
    R22 = 12,
    R23 = 13,
    R24 = 14,
    R25 = 15,
    R26 = 16,
    R27 = 17,
    R28 = 18,
    R29 = 19,
    R30 = 20,
    R31 = 21,
    R32 = 22,
    R33 = 23,
};

/// The CATIA V5 version to write.
enum class HRM_API_TYPE EExportVersionCatiaV5 : int32_t
{
    Unknown = 0,
    Current = 1,
    V5R16 = 2,
    V5R17 = 3,
    V5R18 = 4,
    V5R19 = 5,
    V5R20 = 6,
    V5R21 = 7,
    V5_6R2012 = 8,
    V5_6R2013 = 9,
    V5_6R2014 = 10,
    V5_6R2015 = 11,
    V5_6R2016 = 12,
    V5_6R2017 = 13,
    V5_6R2018 = 14,
    V5_6R2019 = 15,
    V5_6R2020 = 16,
    V5_6R2021 = 17,
};

/// The XCGM version to write.
enum class HRM_API_TYPE EExportVersionXCGM : int32_t
{
    Unknown = 0,
    Current = 1,
    R2013x = 2,
    R2014 = 3,
    R2014x = 4,
    R2015x_B1 = 5,
    R2015x_B5 = 6,
    R2015x_B5_SP1 = 7,
    R2016_1_0 = 8,
    R2016_1_1 = 9,
    R2017_1_0 = 10,
    R2017_1_1 = 11,
    R2018_1_0 = 12,
    R2018_1_1 = 13,
    R2019_1_0 = 14,
    R2020_1_0 = 15,
    R2021_1_0 = 16,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ELayerNameProcessingModeType)
HRM_DECLARE_ENUM_STRINGS(hrm::EDefaultColorMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EGraphicalPMIContainerMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EEdgeCurveMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportCgrCompatibilityMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportSaveMode)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionStep)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionCatiaV4)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionAcis)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionParasolid)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionCatiaV5)
HRM_DECLARE_ENUM_STRINGS(hrm::EExportVersionXCGM)
