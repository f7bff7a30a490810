#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_json.h>

#include "hrm_api/hrm_api_json_members.h"
#include "support/read_text.h"
#include "support/log_capture.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>

namespace hrm {
namespace {

using test::parse;

TEST(JsonMembers, StringsEnumerationsAndBooleansReadOnlyTheirKind)
{
    const JsonDocument document = parse(LR"({"word":"meter","odd":"Meter","true":"true","flag":true,"number":3,)"
                                        LR"("null":null,"array":["meter"]})");
    JsonObjectReader in(document);
    auto unit = ELengthUnitType::Inch;
    std::wstring text = L"kept";
    bool flag = false;
    for (const wchar_t* key : {L"missing", L"number", L"null", L"array"}) {
        in.enumeration(key, unit).string(key, text).boolean(key, flag);
        EXPECT_EQ(unit, ELengthUnitType::Inch) << toNarrow(key);
    }
    in.string(L"flag", text).boolean(L"true", flag);
    EXPECT_EQ(text, L"kept");
    EXPECT_FALSE(flag);

    in.enumeration(L"word", unit).string(L"true", text).boolean(L"flag", flag);
    EXPECT_EQ(unit, ELengthUnitType::Meter);
    EXPECT_EQ(text, L"true");
    EXPECT_TRUE(flag);
    in.enumeration(L"odd", unit); // an unknown word reads by the table's rule
    EXPECT_EQ(unit, ELengthUnitType::Centimeter);
}

TEST(JsonMembers, NumbersAreStrictAboutTheirKind)
{
    const JsonDocument document = parse(L"{\"big\":2147483648,\"negative\":-1,\"integer\":7,\"double\":7.0,"
                                        L"\"max\":18446744073709551615}");
    JsonObjectReader in(document);

    int32_t int32Field = 5;
    in.int32(L"big", int32Field);
    EXPECT_EQ(int32Field, 5);
    in.int32(L"negative", int32Field);
    EXPECT_EQ(int32Field, -1);

    uint64_t uint64Field = 5;
    in.uint64(L"negative", uint64Field).uint64(L"double", uint64Field);
    EXPECT_EQ(uint64Field, 5u);
    in.uint64(L"max", uint64Field);
    EXPECT_EQ(uint64Field, UINT64_MAX);

    double realField = 0.5;
    in.real(L"integer", realField);
    EXPECT_EQ(realField, 0.5);
    in.real(L"double", realField);
    EXPECT_EQ(realField, 7.0);
}

TEST(JsonMembers, NonObjectIsLoggedOnceWhenNamed)
{
    test::LogCapture log;
    const JsonDocument array = parse(L"[1]");

    JsonObjectReader named(array, "ExcThing");
    EXPECT_FALSE(named);
    std::wstring text = L"kept";
    named.string(L"a", text).string(L"b", text);
    EXPECT_EQ(text, L"kept");
    EXPECT_EQ(log.messages(ax_herm::Error), (std::vector<std::string>{"ExcThing object should have a JSON object type."}));

    log.clear();
    JsonObjectReader unnamed(array);
    EXPECT_FALSE(unnamed);
    JsonObjectReader object(parse(L"{}"), "ExcThing");
    EXPECT_TRUE(object);
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());
}

} // namespace
} // namespace hrm
