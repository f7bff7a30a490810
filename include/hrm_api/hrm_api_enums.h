#pragma once

/// @file
/// Enumerations of units, orientation, operation and file format, with their string forms
/// (enumToString / enumFromString, hrm_api_enum.h). The numbers are part of the format.
/// The option enumerations are in hrm_api_enums_options.h, hrm_api_enums_export.h and
/// hrm_api_enums_legacy.h.

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>

namespace hrm {

/// A unit of length. Travels as a word ("millimeter", "inch", ...).
enum class HRM_API_TYPE ELengthUnitType : int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Nanometer = 2,
    Micrometer = 3,
    Millimeter = 4,
    Centimeter = 5,
    Decimeter = 6,
    Meter = 7,
    Inch = 8,
    Foot = 9,
    Mile = 10,
    Kilometer = 11,
    MilliInch = 12,
    MicroInch = 13,
};

/// Value 2 has no unit (and no string).
enum class HRM_API_TYPE EMassUnitType : int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Centigram = 3,
    Decigram = 4,
    Gram = 5,
    Kilogram = 6,
    PoundMass = 7,
    Tonne = 8,
    Slug = 9,
    LbfSec2PerInch = 10,
};

/// A unit of time.
enum class HRM_API_TYPE ETimeUnitType : int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Nanosecond = 2,
    Microsecond = 3,
    Millisecond = 4,
    Second = 5,
    Minute = 6,
    Hour = 7,
    Day = 8,
};

/// A unit of temperature.
enum class HRM_API_TYPE ETemperatureUnitType : int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Fahrenheit = 2,
    Celsius = 3,
    Kelvin = 4,
};

/// Which axis of a model points up.
enum class HRM_API_TYPE EWorldOrientation : int32_t
{
    Unknown = 0,
    UpX = 1,
    UpY = 2,
    UpZ = 3,
};

/// What a format options object is for: options shared by every direction, import or export.
enum class HRM_API_TYPE EOperationType : int32_t
{
    Options = 0,
    Import = 1,
    Export = 2,
};

/// The file format of a format options object; also the formats a translator announces.
enum class HRM_API_TYPE EFormatType : int32_t
{
    Unknown = 0,
    General = 1,
    CGM = 2,
    ACIS = 3,
    Parasolid = 4,
    CatiaV5 = 5,
    CatiaV5Drawing = 6,
    CatiaV4 = 7,
    IGES = 8,
    STEP = 9,
    STL = 10,
    Creo = 11,
    NX = 12,
    SolidWorks = 13,
    SolidWorksDrawing = 14,
    SolidEdge = 15,
    JT = 16,
    Inventor = 17,
    PDF3D = 18,
    XML3D = 19,
    AutoCAD = 20,
    U3D = 21,
    VDAFS = 22,
    XMLEBOM = 23,
    XCGM = 24,
    Graphical = 25,
    Mechanical = 26,
    Modeler = 27,
    Picture = 28,
    IFC = 29,
    EDrawings = 30,
    UDL = 31,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ELengthUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::EMassUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETimeUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETemperatureUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::EWorldOrientation)
HRM_DECLARE_ENUM_STRINGS(hrm::EOperationType)
HRM_DECLARE_ENUM_STRINGS(hrm::EFormatType)
