#include <hrm_api/hrm_api_enums.h>

#include "hrm_api/hrm_api_enum_table.h"

#include <gtest/gtest.h>

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

TEST(Enumerations, UnitTables)
{
    EXPECT_EQ(enumToString(ELengthUnitType::MicroInch), L"microinch");
    EXPECT_EQ(enumFromString<ELengthUnitType>(L"meter"), ELengthUnitType::Meter);
    EXPECT_EQ(enumFromString<ELengthUnitType>(L""), ELengthUnitType::Centimeter);
    EXPECT_EQ(enumToString(static_cast<ELengthUnitType>(99)), L"unknown");

    EXPECT_EQ(enumToString(static_cast<EMassUnitType>(2)), L"unknown");
    EXPECT_EQ(enumToString(EMassUnitType::PoundMass), L"poind_mass");
    EXPECT_EQ(enumFromString<EMassUnitType>(L"pound_mass"), EMassUnitType::Centigram);
    EXPECT_EQ(enumFromString<ETimeUnitType>(L"Second"), ETimeUnitType::Day);
    EXPECT_EQ(enumFromString<ETemperatureUnitType>(L"x"), ETemperatureUnitType::Celsius);
    EXPECT_EQ(enumFromString<EWorldOrientation>(L"up-z"), EWorldOrientation::Unknown);
    EXPECT_EQ(enumFromString<EWorldOrientation>(L"up_z"), EWorldOrientation::UpZ);
}

} // namespace
} // namespace hrm
