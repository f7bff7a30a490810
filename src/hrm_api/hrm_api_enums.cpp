#include <hrm_api/hrm_api_enums.h>

#include "hrm_api/hrm_api_enum_table.h"

namespace hrm {

HRM_ENUM_STRINGS(ELengthUnitType,
    {ELengthUnitType::Unknown, L"unknown"},
    {ELengthUnitType::ModelUnit, L"model_unit"},
    {ELengthUnitType::Nanometer, L"nanometer"},
    {ELengthUnitType::Micrometer, L"micrometer"},
    {ELengthUnitType::Millimeter, L"millimeter"},
    {ELengthUnitType::Centimeter, L"centimeter"},
    {ELengthUnitType::Decimeter, L"decimeter"},
    {ELengthUnitType::Meter, L"meter"},
    {ELengthUnitType::Inch, L"inch"},
    {ELengthUnitType::Foot, L"foot"},
    {ELengthUnitType::Mile, L"mile"},
    {ELengthUnitType::Kilometer, L"kilometer"},
    {ELengthUnitType::MilliInch, L"milliinch"},
    {ELengthUnitType::MicroInch, L"microinch"})

HRM_ENUM_STRINGS(EMassUnitType,
    {EMassUnitType::Unknown, L"unknown"},
    {EMassUnitType::ModelUnit, L"model_unit"},
    {EMassUnitType::Centigram, L"centigram"},
    {EMassUnitType::Decigram, L"decigram"},
    {EMassUnitType::Gram, L"gram"},
    {EMassUnitType::Kilogram, L"kilogram"},
    {EMassUnitType::PoundMass, L"poind_mass"},
    {EMassUnitType::Tonne, L"tonne"},
    {EMassUnitType::Slug, L"slug"},
    {EMassUnitType::LbfSec2PerInch, L"lbfsec2_in"})

HRM_ENUM_STRINGS(ETimeUnitType,
    {ETimeUnitType::Unknown, L"unknown"},
    {ETimeUnitType::ModelUnit, L"model_unit"},
    {ETimeUnitType::Nanosecond, L"nanosecond"},
    {ETimeUnitType::Microsecond, L"microsecond"},
    {ETimeUnitType::Millisecond, L"millisecond"},
    {ETimeUnitType::Second, L"second"},
    {ETimeUnitType::Minute, L"minute"},
    {ETimeUnitType::Hour, L"hour"},
    {ETimeUnitType::Day, L"day"})

HRM_ENUM_STRINGS(ETemperatureUnitType,
    {ETemperatureUnitType::Unknown, L"unknown"},
    {ETemperatureUnitType::ModelUnit, L"model_unit"},
    {ETemperatureUnitType::Fahrenheit, L"fahrenheit"},
    {ETemperatureUnitType::Celsius, L"celsius"},
    {ETemperatureUnitType::Kelvin, L"kelvin"})

HRM_ENUM_STRINGS(EWorldOrientation,
    {EWorldOrientation::Unknown, L"unknown"},
    {EWorldOrientation::UpX, L"up_x"},
    {EWorldOrientation::UpY, L"up_y"},
    {EWorldOrientation::UpZ, L"up_z"})

HRM_ENUM_STRINGS(EOperationType,
    {EOperationType::Options, L"options"},
    {EOperationType::Import, L"import"},
    {EOperationType::Export, L"export"})

// The mixed case of these words is part of the format.
HRM_ENUM_STRINGS(EFormatType,
    {EFormatType::Unknown, L"unknown"},
    {EFormatType::General, L"general"},
    {EFormatType::CGM, L"CGM"},
    {EFormatType::ACIS, L"ACIS"},
    {EFormatType::Parasolid, L"parasolid"},
    {EFormatType::CatiaV5, L"CatiaV5"},
    {EFormatType::CatiaV5Drawing, L"CatiaV5Drawing"},
    {EFormatType::CatiaV4, L"CatiaV4"},
    {EFormatType::IGES, L"IGES"},
    {EFormatType::STEP, L"STEP"},
    {EFormatType::STL, L"STL"},
    {EFormatType::Creo, L"Creo"},
    {EFormatType::NX, L"NX"},
    {EFormatType::SolidWorks, L"SolidWorks"},
    {EFormatType::SolidWorksDrawing, L"SolidWorksDrawing"},
    {EFormatType::SolidEdge, L"SolidEdge"},
    {EFormatType::JT, L"JT"},
    {EFormatType::Inventor, L"Inventor"},
    {EFormatType::PDF3D, L"3D_PDF"},
    {EFormatType::XML3D, L"3D_XML"},
    {EFormatType::AutoCAD, L"autocad"},
    {EFormatType::U3D, L"U3D"},
    {EFormatType::VDAFS, L"VDA_FS"},
    {EFormatType::XMLEBOM, L"XML_EBOM"},
    {EFormatType::XCGM, L"XCGM"},
    {EFormatType::Graphical, L"graphical"},
    {EFormatType::Mechanical, L"mechanical"},
    {EFormatType::Modeler, L"modeler"},
    {EFormatType::Picture, L"picture"},
    {EFormatType::IFC, L"IFC"},
    {EFormatType::EDrawings, L"EDrawings"},
    {EFormatType::UDL, L"UDL"})

} // namespace hrm
