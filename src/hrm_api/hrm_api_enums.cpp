#include <hrm_api/hrm_api_enums.h>

#include "hrm_api/hrm_api_enum_table.h"

namespace hrm {

HRM_ENUM_STRINGS(ELengthUnitType,
    {{ELengthUnitType::Unknown, L"unknown"}, {ELengthUnitType::ModelUnit, L"model_unit"},
     {ELengthUnitType::Nanometer, L"nanometer"}, {ELengthUnitType::Micrometer, L"micrometer"},
     {ELengthUnitType::Millimeter, L"millimeter"}, {ELengthUnitType::Centimeter, L"centimeter"},
     {ELengthUnitType::Decimeter, L"decimeter"}, {ELengthUnitType::Meter, L"meter"},
     {ELengthUnitType::Inch, L"inch"}, {ELengthUnitType::Foot, L"foot"}, {ELengthUnitType::Mile, L"mile"},
     {ELengthUnitType::Kilometer, L"kilometer"}, {ELengthUnitType::MilliInch, L"milliinch"},
     {ELengthUnitType::MicroInch, L"microinch"}})

HRM_ENUM_STRINGS(EMassUnitType,
    {{EMassUnitType::Unknown, L"unknown"}, {EMassUnitType::ModelUnit, L"model_unit"},
     {EMassUnitType::Centigram, L"centigram"}, {EMassUnitType::Decigram, L"decigram"},
     {EMassUnitType::Gram, L"gram"}, {EMassUnitType::Kilogram, L"kilogram"},
     {EMassUnitType::PoundMass, L"poind_mass"}, {EMassUnitType::Tonne, L"tonne"}, {EMassUnitType::Slug, L"slug"},
     {EMassUnitType::LbfSec2PerInch, L"lbfsec2_in"}})

HRM_ENUM_STRINGS(ETimeUnitType,
    {{ETimeUnitType::Unknown, L"unknown"}, {ETimeUnitType::ModelUnit, L"model_unit"},
     {ETimeUnitType::Nanosecond, L"nanosecond"}, {ETimeUnitType::Microsecond, L"microsecond"},
     {ETimeUnitType::Millisecond, L"millisecond"}, {ETimeUnitType::Second, L"second"},
     {ETimeUnitType::Minute, L"minute"}, {ETimeUnitType::Hour, L"hour"}, {ETimeUnitType::Day, L"day"}})

HRM_ENUM_STRINGS(ETemperatureUnitType,
    {{ETemperatureUnitType::Unknown, L"unknown"}, {ETemperatureUnitType::ModelUnit, L"model_unit"},
     {ETemperatureUnitType::Fahrenheit, L"fahrenheit"}, {ETemperatureUnitType::Celsius, L"celsius"},
     {ETemperatureUnitType::Kelvin, L"kelvin"}})

HRM_ENUM_STRINGS(EWorldOrientation,
    {{EWorldOrientation::Unknown, L"unknown"}, {EWorldOrientation::UpX, L"up_x"},
     {EWorldOrientation::UpY, L"up_y"}, {EWorldOrientation::UpZ, L"up_z"}})

} // namespace hrm
