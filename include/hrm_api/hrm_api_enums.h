#pragma once

// Enumerations of units, commands and options, with their string forms (enumToString /
// enumFromString, hrm_api_enum.h). The numbers are part of the format.

#include <hrm_api/hrm_api_enum.h>

#include <cstdint>

namespace hrm {

enum class ELengthUnitType : int32_t
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

// Value 2 has no unit (and no string).
enum class EMassUnitType : int32_t
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

enum class ETimeUnitType : int32_t
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

enum class ETemperatureUnitType : int32_t
{
    Unknown = 0,
    ModelUnit = 1,
    Fahrenheit = 2,
    Celsius = 3,
    Kelvin = 4,
};

enum class EWorldOrientation : int32_t
{
    Unknown = 0,
    UpX = 1,
    UpY = 2,
    UpZ = 3,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ELengthUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::EMassUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETimeUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::ETemperatureUnitType)
HRM_DECLARE_ENUM_STRINGS(hrm::EWorldOrientation)
