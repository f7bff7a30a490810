#include <hrm_api/hrm_api_exchange_common.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/member_suite.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::roundTripText;
using test::toText;
using Channel = ExcColor::EChannel;

// `object` after reading the JSON `text` into it.
template <class T>
T read(T object, const std::wstring& text)
{
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    EXPECT_FALSE(document.HasParseError()) << "offset " << document.GetErrorOffset();
    object.readObject(document);
    return object;
}

ExcMatrix3d filledMatrix(double value)
{
    ExcMatrix3d matrix;
    for (std::size_t i = 0; i < 3; ++i)
        matrix[i].set(value, value, value);
    return matrix;
}

TEST(ExcVector, ReadingTakesLeadingStoredDoublesOnly)
{
    // An integer element ends the reading; later elements are not looked at.
    EXPECT_EQ(read(ExcVector2d(7, 7), L"[1.5, 2]"), ExcVector2d(1.5, 7));
    EXPECT_EQ(read(ExcVector3d(7, 7, 7), L"[1.5, 2, 3.5]"), ExcVector3d(1.5, 7, 7));
    EXPECT_EQ(read(ExcVector3d(), L"[1.0, 2.0, 3.0, 4.0]"), ExcVector3d(1, 2, 3));
    EXPECT_EQ(read(ExcVector2d(7, 7), L"[]"), ExcVector2d(7, 7));
}

TEST(ExcVector, ValueThatIsNotAnArrayIsLoggedOnce)
{
    LogCapture log;
    for (const wchar_t* text : {L"{\"x\":1.0}", L"\"1.0\"", L"null", L"1.0"}) {
        log.clear();
        EXPECT_EQ(read(ExcVector3d(1, 2, 3), text), ExcVector3d(1, 2, 3)) << text;
        EXPECT_EQ(log.messages(ax_herm::Error),
                  std::vector<std::string>{"Exchange vector/point (2D/3D) object should have a JSON array type."})
            << text;
    }
}

TEST(ExchangeCommon, IndexOutOfRangeThrows)
{
    ExcVector2d planar;
    const ExcVector3d spatial;
    ExcMatrix3d matrix;
    const ExcMatrix3d& constMatrix = matrix;
    for (const auto& access : std::vector<std::function<void()>>{[&] { planar[2] = 1; }, [&] { (void)spatial[3]; },
                                                                 [&] { matrix.row(3); }, [&] { constMatrix[3]; }})
        test::expectMessage<std::invalid_argument>(access, "out of range");
}

TEST(ExcMatrix3d, ReadsRowsUntilTheFirstElementThatIsNotAnArray)
{
    LogCapture log;
    ExcMatrix3d expected = filledMatrix(9);
    expected[0].set(1, 0, 0);
    EXPECT_EQ(read(filledMatrix(9), L"[[1.0,0.0,0.0],\"x\",[0.0,0.0,1.0]]"), expected);
    EXPECT_EQ(read(filledMatrix(9), L"{\"rows\":[]}"), filledMatrix(9));

    // Each row reads with the vector's rules; a fourth row is ignored.
    expected[1].set(2, 9, 9);
    EXPECT_EQ(read(filledMatrix(9), L"[[1.0,0.0,0.0],[2.0,3],[],[5.0]]"), expected);
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());
}

TEST(ExcTransformation, MissingMembersKeepTheirFields)
{
    ExcTransformation moved;
    moved.affine() = filledMatrix(2);
    moved.translation().set(4, 5, 6);
    EXPECT_EQ(read(moved, L"{}"), moved);
    EXPECT_EQ(read(moved, L"[[1.0,0.0,0.0]]"), moved);

    ExcTransformation translated = moved;
    translated.translation().set(1, 2, 3);
    EXPECT_EQ(read(moved, L"{\"translation\":[1.0,2.0,3.0]}"), translated);
}

TEST(ExcColor, FlagsDecideWhatIsWritten)
{
    ExcColor color;
    EXPECT_EQ(toText(color), L"null");
    color[Channel::Red] = 10;
    EXPECT_EQ(toText(color), L"null");
    color.setHasAlpha(true);
    EXPECT_EQ(toText(color), L"{\"alpha\":255}");
    EXPECT_EQ(toText(ExcColor(1, 2, 3)), L"{\"rgb\":[1,2,3]}");
    EXPECT_EQ(toText(ExcColor(1, 2, 65535, 0)), L"{\"rgb\":[1,2,65535],\"alpha\":0}");
}

TEST(ExcColor, ReadingSetsFlagsFromTheMembersPresent)
{
    const ExcColor seen(9, 9, 9, 9);
    ExcColor rgbOnly(255, 9, 9, 9);
    rgbOnly.setHasAlpha(false);
    EXPECT_EQ(read(seen, L"{\"rgb\":[255,-1,0]}"), rgbOnly);
    // Low 16 bits of values that fit an unsigned 32-bit integer; anything else stops the channels.
    EXPECT_EQ(read(seen, L"{\"rgb\":[70000,1.0,2],\"alpha\":65791}"), ExcColor(4464, 9, 9, 255));
    EXPECT_EQ(read(seen, L"{\"rgb\":[4294967295,4294967296],\"alpha\":1}"), ExcColor(65535, 9, 9, 1));
    // An empty array still says the colour has RGB.
    EXPECT_EQ(read(seen, L"{\"rgb\":[],\"alpha\":1}"), ExcColor(9, 9, 9, 1));

    ExcColor cleared = seen;
    cleared.setHasRGB(false);
    cleared.setHasAlpha(false);
    for (const wchar_t* text : {L"{\"rgb\":{},\"alpha\":1.0}", L"{\"alpha\":-1}", L"null", L"[1,2,3]"})
        EXPECT_EQ(read(seen, text), cleared) << text;
}

TEST(ExcUnitComponent, ReadsTypedMembersOnly)
{
    ExcUnitComponent<ELengthUnitType> length;
    length.setDimension(-2);
    length.setUnits(ELengthUnitType::Meter);
    EXPECT_EQ(toText(length), L"{\"dimension\":-2,\"units\":\"meter\"}");
    EXPECT_EQ(roundTripText(length), length);

    LogCapture log;
    EXPECT_EQ(read(length, L"{\"dimension\":1.0,\"units\":4}"), length);
    EXPECT_EQ(read(length, L"{\"dimension\":2147483648}"), length);
    EXPECT_TRUE(log.messages(ax_herm::Error).empty());

    EXPECT_EQ(read(length, L"[]"), length);
    EXPECT_EQ(log.messages(ax_herm::Error),
              std::vector<std::string>{"ExcUnitComponent object should have a JSON object type."});
}

TEST(ExchangeCommon, ReadAndWriteAreTraced)
{
    LogCapture log;
    read(ExcVector2d(), L"[1.0]");
    toText(ExcTransformation());
    // The vector; the transformation, its matrix, three rows and the translation.
    EXPECT_EQ(log.messages(ax_herm::Trace).size(), 7u);
}

TEST(ExchangeCommon, TextRoundTripKeepsDoublesDoubles)
{
    const ExcVector2d planar(1.0, -0.5);
    EXPECT_EQ(toText(planar), L"[1.0,-0.5]");
    EXPECT_EQ(roundTripText(planar), planar);
    EXPECT_EQ(roundTripText(ExcVector3d(3.0, 1e300, 0.1)), ExcVector3d(3.0, 1e300, 0.1));

    ExcTransformation transformation;
    transformation.affine() = filledMatrix(2.0);
    transformation.translation().set(10.0, 20.0, 30.0);
    EXPECT_EQ(roundTripText(transformation), transformation);

    ExcColor alphaOnly;
    alphaOnly.setHasAlpha(true);
    for (const ExcColor& color : {ExcColor(), alphaOnly, ExcColor(1, 2, 3), ExcColor(65535, 0, 128, 7)})
        EXPECT_EQ(roundTripText(color), color) << toText(color);
}

} // namespace
} // namespace hrm

namespace hrm::test {

template <>
struct MemberCase<ExcTransformation> : MemberCaseDefaults
{
    static constexpr bool storedDoubles = true;
    static ExcTransformation sample()
    {
        ExcTransformation transformation;
        transformation.affine()[0].set(0.0, -1.0, 0.0);
        transformation.translation().set(10.0, 20.5, -30.0);
        return transformation;
    }
    static std::vector<std::wstring> keys() { return {L"affine", L"translation"}; }
};

template <>
struct MemberCase<ExcUnitComponent<ELengthUnitType>> : MemberCaseDefaults
{
    static constexpr const char* wrongKindMessage = "ExcUnitComponent object should have a JSON object type.";
    static ExcUnitComponent<ELengthUnitType> sample()
    {
        ExcUnitComponent<ELengthUnitType> unit;
        unit.setDimension(-2);
        unit.setUnits(ELengthUnitType::Inch);
        return unit;
    }
    static std::vector<std::wstring> keys() { return {L"dimension", L"units"}; }
};

template <>
struct MemberCase<ExcVector3d> : MemberCaseDefaults
{
    static constexpr const char* wrongKindMessage = "Exchange vector/point (2D/3D) object should have a JSON array type.";
    static ExcVector3d sample() { return ExcVector3d(1.0, 1e300, -0.1); }
};

using ValueTypes = ::testing::Types<ExcTransformation, ExcUnitComponent<ELengthUnitType>, ExcVector3d>;
INSTANTIATE_TYPED_TEST_SUITE_P(ValueTypes, MemberSuite, ValueTypes);

} // namespace hrm::test
