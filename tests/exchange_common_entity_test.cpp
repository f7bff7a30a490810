#include <hrm_api/hrm_api_exchange_common_entity.h>

#include "common_sample.h"
#include "support/log_capture.h"
#include "support/member_suite.h"
#include "support/read_text.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;

std::vector<std::wstring> names(const ExcMiscPropertiesGroup& group)
{
    std::vector<std::wstring> result;
    for (const auto& property : group.properties())
        result.push_back(property.name());
    return result;
}

TEST(ExcFullSubentPath, TypeTravelsAsItsLetterAndReadsByTheFirstCharacter)
{
    ExcFullSubentPath path;
    EXPECT_EQ(toText(path), L"{\"block_references\":[],\"subent_id\":0,\"subent_type\":\"b\",\"visu_id\":\"\","
                            L"\"instance_path\":false}");
    path.setSubentType(ESubentType::Vertex);
    EXPECT_EQ(test::roundTripText(path).subentType(), ESubentType::Vertex);
    EXPECT_EQ(static_cast<int>(ESubentType::Face), 102);

    const auto typeRead = [](const std::wstring& text) {
        ExcFullSubentPath edge;
        edge.setSubentType(ESubentType::Edge);
        return readText(edge, L"{\"subent_type\":" + text + L"}").subentType();
    };
    EXPECT_EQ(typeRead(L"\"face\""), ESubentType::Face);
    EXPECT_EQ(typeRead(L"\"vx\""), ESubentType::Vertex);
    for (const wchar_t* unchanged : {L"\"Face\"", L"\"\"", L"\"x\"", L"102", L"null", L"\"\\uD800\\uDC66\""})
        EXPECT_EQ(typeRead(unchanged), ESubentType::Edge) << toNarrow(unchanged);

    // Non-string references are skipped; the others keep their order.
    EXPECT_EQ(readText(path, LR"({"block_references":["a",1,null,"b"]})").refs(), (std::vector<std::wstring>{L"a", L"b"}));
}

TEST(ExcEntity, APathIsNullWhenAbsentAndKeptWhenTheKeyIsMissing)
{
    ExcEntity entity;
    EXPECT_EQ(toText(entity), L"{\"type\":\"unknown\",\"fsp\":null,\"description\":\"\",\"id\":\"\"}");
    EXPECT_EQ(test::roundTripText(entity), entity);

    const auto path = samples::full::subentPath();
    entity.setFsp(path);
    readText(entity, LR"({"id":"x"})");
    EXPECT_EQ(entity.fsp(), path);
    readText(entity, LR"({"fsp":null})");
    EXPECT_EQ(entity.fsp(), nullptr);

    // Any other value makes a new path, read by the path's own rules.
    LogCapture log;
    readText(entity, LR"({"fsp":"face"})");
    ASSERT_NE(entity.fsp(), nullptr);
    EXPECT_EQ(*entity.fsp(), ExcFullSubentPath());
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"ExcFullSubentPath object should have a JSON object type."});

    // An unknown word reads as the alphabetically first of the table.
    EXPECT_EQ(readText(entity, LR"({"type":"topology"})").type(), ExcEntity::EType::Fsp);
    EXPECT_EQ(enumFromString<ExcMiscProperty::EType>(L"text"), ExcMiscProperty::EType::Boolean);
}

TEST(ExcMiscPropertiesGroup, PropertiesAreOrderedByUtf16CodeUnitsAndTheFirstWins)
{
    using Type = ExcMiscProperty::EType;
    ExcMiscPropertiesGroup group;
    // U+1F600 is the surrogate pair D83D DE00 and sorts before U+FF21 on every platform;
    // capitals sort before small letters.
    for (const wchar_t* name : {L"\uFF21", L"\U0001F600", L"b", L"B", L"a"})
        group.addProperty(ExcMiscProperty(name, Type::String, L"first"));
    group.addProperty(ExcMiscProperty(L"a", Type::Integer, L"second"));
    EXPECT_EQ(names(group), (std::vector<std::wstring>{L"B", L"a", L"b", L"\U0001F600", L"\uFF21"}));
    EXPECT_EQ(group.properties().begin()->value(), L"first");

    ExcMiscPropertiesGroup read;
    readText(read, LR"({"properties":[{"name":"p","value":"1"},{"name":"p","value":"2"},"x"]})");
    ASSERT_EQ(read.properties().size(), 2u); // "x" reads as a property named ""
    EXPECT_EQ(std::next(read.properties().begin())->value(), L"1");

    ExcMiscProperty property;
    property.setName(L"n").set(Type::Double, L"2.5");
    EXPECT_EQ(toText(property), L"{\"name\":\"n\",\"type\":\"double\",\"value\":\"2.5\"}");
}

TEST(ExcMiscData, ReadsTheFlatAndTheGroupedLayoutAndWritesGroups)
{
    ExcMiscData flat;
    readText(flat, LR"([{"name":"b","type":"integer","value":"2"},{"name":"a","type":"string","value":"x"}])");
    ASSERT_EQ(flat.groups().size(), 1u);
    const auto& group = **flat.groups().begin();
    EXPECT_EQ(group.name(), L"");
    EXPECT_EQ(names(group), (std::vector<std::wstring>{L"a", L"b"}));
    EXPECT_EQ(toText(flat), L"[{\"name\":\"\",\"is_bim\":false,\"properties\":[{\"name\":\"a\",\"type\":\"string\",\"value\":"
                            L"\"x\"},{\"name\":\"b\",\"type\":\"integer\",\"value\":\"2\"}]}]");

    // Nothing is read, silently, from an empty array or one that does not start with an object.
    LogCapture log;
    for (const wchar_t* nothing : {L"[]", L"[1,{\"name\":\"G\"}]", L"[[]]"})
        EXPECT_TRUE(readText(flat = ExcMiscData(), nothing).isEmpty()) << toNarrow(nothing);
    EXPECT_TRUE(log.messages(ax_herm::Warning).empty());

    ExcMiscData grouped;
    readText(grouped, LR"([{"name":"Z"},{"name":"G\u00fc","properties":[]},{"name":"G\u00fc","is_bim":true}])");
    ASSERT_EQ(grouped.groups().size(), 2u);
    const auto& first = **grouped.groups().begin();
    EXPECT_EQ(first.name(), L"G\u00fc");
    EXPECT_FALSE(first.isBim()); // the first group of the name stays
    grouped.addGroup(nullptr);
    EXPECT_EQ(grouped.groups().size(), 2u);
    EXPECT_EQ(log.messages(ax_herm::Warning),
              (Messages{"ExcMiscData::addGroup: properties group '" + toNarrow(L"G\u00fc") +
                            "' already exist, some properties can be lost.",
                        "ExcMiscData::addGroup: attempt to add null group"}));
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {

#define HRM_ENTITY_CASE(T, make, level, message, ...)                   \
    template <>                                                         \
    struct MemberCase<T> : MemberCaseDefaults                           \
    {                                                                   \
        static constexpr const char* wrongKindMessage = message;        \
        static constexpr int wrongKindLevel = level;                    \
        static T sample() { return *samples::full::make(); }            \
        static std::vector<std::wstring> keys() { return {__VA_ARGS__}; } \
        static std::vector<std::wstring> anyKind() { return {L"fsp"}; } \
    };

HRM_ENTITY_CASE(ExcFullSubentPath, subentPath, ax_herm::Error, "ExcFullSubentPath object should have a JSON object type.",
                L"block_references", L"subent_id", L"subent_type", L"visu_id", L"instance_path")
HRM_ENTITY_CASE(ExcEntity, entity, ax_herm::Error, "ExcEntity object should have a JSON object type.", L"type", L"fsp",
                L"description", L"id")
HRM_ENTITY_CASE(ExcMiscProperty, miscProperty, ax_herm::Warning, "ExcMiscProperty::readObject: input JsonValue is not an object",
                L"name", L"type", L"value")
HRM_ENTITY_CASE(ExcMiscPropertiesGroup, propertiesGroup, ax_herm::Warning,
                "ExcMiscPropertiesGroup::readObject: input JsonValue is not an object.", L"name", L"is_bim", L"properties")

// An array: no keys.
template <>
struct MemberCase<ExcMiscData> : MemberCaseDefaults
{
    static constexpr const char* wrongKindMessage = "ExcMiscData::readObject: input JsonValue is not an array.";
    static constexpr int wrongKindLevel = ax_herm::Warning;
    static ExcMiscData sample() { return *samples::full::miscData(); }
};

using EntityTypes = ::testing::Types<ExcFullSubentPath, ExcEntity, ExcMiscProperty, ExcMiscPropertiesGroup, ExcMiscData>;
INSTANTIATE_TYPED_TEST_SUITE_P(Entities, MemberSuite, EntityTypes);

} // namespace hrm::test
