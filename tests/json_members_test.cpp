#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_exchange_object.h>

#include "hrm_api/hrm_api_json_members.h"
#include "support/log_capture.h"
#include "support/read_text.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <string>
#include <type_traits>
#include <vector>

namespace hrm {
namespace {

using test::parse;
using test::toText;
using Messages = std::vector<std::string>;

// A base with two members and a derived class with one member of every verb.
struct Base : IJsonObject
{
    void readObject(const JsonValue& value) override { readMembers(*this, value, "Base"); }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override { writeMembers(*this, value, allocator); }
    template <class Members>
    void members(Members& m)
    {
        m.string(L"name", name).boolean(L"hidden", hidden);
    }
    std::wstring name;
    bool hidden = false;
};

struct Everything : Base
{
    void readObject(const JsonValue& value) override { readMembers(*this, value, "Everything"); }
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override { writeMembers(*this, value, allocator); }
    template <class Members>
    void members(Members& m)
    {
        Base::members(m);
        m.int32(L"int32", int32)
            .uint64(L"uint64", uint64)
            .number(L"number", number)
            .storedDouble(L"stored", stored)
            .enumeration(L"unit", unit)
            .object(L"progress", progress)
            .object(L"strict", strict, Nested::OnlyObjects)
            .child(L"child", child)
            .children(L"children", children, [this](std::shared_ptr<ExcMessage> c) { sunk.push_back(c); })
            .strings(L"strings", strings)
            .allStrings(L"all", all)
            .writtenIf(!optional.empty())
            .string(L"optional", optional)
            .exactly(L"pair", pair, "Everything: invalid size of pair array")
            .exactly(L"words", words, "Everything: invalid size of words array")
            .leading(L"four", four)
            .packed(L"floats", floats)
            .packed(L"ints", ints);
    }
    int32_t int32 = 0;
    uint64_t uint64 = 0;
    double number = 0, stored = 0;
    ELengthUnitType unit = ELengthUnitType::Unknown;
    ExcProgress progress, strict;
    std::shared_ptr<ExcMessage> child;
    std::vector<std::shared_ptr<ExcMessage>> children, sunk;
    std::vector<std::wstring> strings, all;
    std::wstring optional;
    std::array<double, 2> pair{};
    std::array<std::wstring, 2> words;
    std::array<double, 4> four{};
    std::vector<float> floats;
    std::vector<int32_t> ints;
};

TEST(MemberLayer, BaseKeysComeFirstAndEveryVerbWritesItsForm)
{
    Everything object;
    object.name = L"n";
    object.hidden = true;
    object.unit = ELengthUnitType::Meter;
    object.child = std::make_shared<ExcMessage>(L"c");
    object.children = {std::make_shared<ExcMessage>(L"a"), nullptr};
    object.words = {L"x", L"y"};
    object.floats = {1.0f, -2.0f};
    object.ints = {1, -1};
    EXPECT_EQ(toText(object),
              LR"({"name":"n","hidden":true,"int32":0,"uint64":0,"number":0.0,"stored":0.0,"unit":"meter",)"
              LR"("progress":{"progress":0,"progress_max":100,"pulse":false,"stage":""},)"
              LR"("strict":{"progress":0,"progress_max":100,"pulse":false,"stage":""},"child":{"message":"c"},)"
              LR"("children":[{"message":"a"}],"strings":[],"all":[],"pair":[0.0,0.0],"words":["x","y"],)"
              LR"("four":[0.0,0.0,0.0,0.0],"floats":"AACAPwAAAMA=","ints":"AQAAAP////8="})");

    // A null child, empty packed arrays and a false condition leave their keys out.
    object.child = nullptr;
    object.floats.clear();
    object.ints.clear();
    object.optional = L"o";
    const std::wstring text = toText(object);
    for (const wchar_t* key : {L"\"child\"", L"\"floats\"", L"\"ints\""})
        EXPECT_EQ(text.find(key), std::wstring::npos) << toNarrow(key);
    EXPECT_NE(text.find(LR"("optional":"o")"), std::wstring::npos);
}

TEST(MemberLayer, ScalarsReadOnlyTheirKind)
{
    Everything object;
    object.int32 = 5;
    object.uint64 = 5;
    object.number = 0.5;
    object.stored = 0.5;
    test::readText(object, LR"({"name":1,"hidden":"true","int32":2147483648,"uint64":-1,"number":"7","stored":7,)"
                           LR"("unit":3})");
    EXPECT_EQ(object.name, L"");
    EXPECT_FALSE(object.hidden);
    EXPECT_EQ(object.int32, 5);
    EXPECT_EQ(object.uint64, 5u);
    EXPECT_EQ(object.number, 0.5);
    EXPECT_EQ(object.stored, 0.5);
    EXPECT_EQ(object.unit, ELengthUnitType::Unknown);

    test::readText(object, LR"({"int32":-1,"uint64":18446744073709551615,"number":7,"stored":7.0,"unit":"Meter"})");
    EXPECT_EQ(object.int32, -1);
    EXPECT_EQ(object.uint64, UINT64_MAX);
    EXPECT_EQ(object.number, 7.0); // any number
    EXPECT_EQ(object.stored, 7.0);
    EXPECT_EQ(object.unit, ELengthUnitType::Centimeter); // an unknown word reads by the table's rule
}

TEST(MemberLayer, ChildrenAndNestedObjects)
{
    test::LogCapture log;
    Everything object;
    object.child = std::make_shared<ExcMessage>(L"kept");
    test::readText(object, LR"({"progress":"x","strict":"x"})");
    EXPECT_EQ(object.child->message(), L"kept"); // a missing child stays
    EXPECT_EQ(object.strict.progressMax(), 100);

    // A present child is a fresh object, whatever the member holds; lists are appended to,
    // each new child through the sink.
    const auto kept = object.child;
    test::readText(object, LR"({"child":7,"children":[{"message":"a"},3],"strict":{"progress":4}})");
    ASSERT_TRUE(object.child);
    EXPECT_NE(object.child, kept);
    EXPECT_EQ(object.child->message(), L"");
    ASSERT_EQ(object.sunk.size(), 2u);
    EXPECT_EQ(object.sunk[0]->message(), L"a");
    EXPECT_EQ(object.strict.progress(), 4);
    test::readText(object, LR"({"children":[{}]})");
    EXPECT_EQ(object.sunk.size(), 3u);
}

TEST(MemberLayer, ArraysOfStrings)
{
    Everything object;
    object.all = {L"kept"};
    test::readText(object, LR"({"strings":["a",1,"b"],"all":["x",2]})");
    test::readText(object, LR"({"strings":["c"]})");
    EXPECT_EQ(object.strings, (std::vector<std::wstring>{L"a", L"b", L"c"})); // appended, non-strings skipped
    EXPECT_EQ(object.all, std::vector<std::wstring>{L"kept"}); // all strings or nothing
    test::readText(object, LR"({"all":["x","y"]})");
    EXPECT_EQ(object.all, (std::vector<std::wstring>{L"x", L"y"})); // replaced
}

TEST(MemberLayer, FixedSizeArrays)
{
    test::LogCapture log;
    Everything object;
    object.pair = {1.0, 2.0};
    object.words = {L"a", L"b"};
    test::readText(object, LR"({"pair":[0.5],"words":{},"four":[0.5,2,"x",9.0]})");
    EXPECT_EQ(object.pair, (std::array<double, 2>{1.0, 2.0}));
    EXPECT_EQ(object.four, (std::array<double, 4>{0.5, 2.0, 0.0, 0.0})); // stops at the first non-number
    EXPECT_EQ(log.messages(ax_herm::Warning), Messages{"Everything: invalid size of pair array"});

    test::readText(object, LR"({"pair":[0.5,"a"],"words":[1,"c"]})");
    EXPECT_EQ(object.pair, (std::array<double, 2>{0.5, 0.0})); // a non-number slot becomes 0
    EXPECT_EQ(object.words, (std::array<std::wstring, 2>{L"a", L"c"})); // a non-string slot is kept
}

TEST(MemberLayer, PackedArraysAreLittleEndianBase64CutToWholeValues)
{
    Everything object;
    test::readText(object, LR"({"floats":"AACAPwAAAMA=","ints":"AQAAAP////8AAA=="})");
    EXPECT_EQ(object.floats, (std::vector<float>{1.0f, -2.0f}));
    EXPECT_EQ(object.ints, (std::vector<int32_t>{1, -1})); // the two trailing bytes are dropped
    EXPECT_EQ(test::roundTripText(object).floats, object.floats);
}

TEST(MemberLayer, OneKindCheckPerChainNamedAfterTheMostDerivedClass)
{
    test::LogCapture log;
    Everything object;
    object.name = L"kept";
    object.readObject(parse(L"[]"));
    EXPECT_EQ(object.name, L"kept");
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"Everything object should have a JSON object type."});
    static_assert(!std::is_constructible_v<MemberReader, JsonDocument&&>, "a reader must not bind to a temporary");
}

TEST(MemberLayer, ExpectReportsAContradictingWord)
{
    test::LogCapture log;
    const JsonDocument document = parse(LR"({"unit":"meter","other":"inch","number":7})");
    MemberReader in(document);
    in.expect(L"unit", ELengthUnitType::Meter, "unit differs")
        .expect(L"other", ELengthUnitType::Meter, "other differs")
        .expect(L"number", ELengthUnitType::Meter, "number differs");
    EXPECT_EQ(log.messages(ax_herm::Error), Messages{"other differs"});
}

TEST(ExchangeObjectRegistry, KnowsEveryTypeOfTheLibraryAlsoInAStaticBuild)
{
    const auto names = ExchangeObjectRegistry::instance().names();
    for (const wchar_t* name : {L"exc_message", L"exc_log", L"exc_progress", L"exc_stage_finished",
                                L"legacy_component_instance_names", L"legacy_component_material_map",
                                L"exc_block_geometry"})
        EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << toNarrow(name);
}

} // namespace
} // namespace hrm
