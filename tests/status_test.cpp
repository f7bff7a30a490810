#include <hrm_api/hrm_api_exchange_object.h>

#include "support/expect_message.h"
#include "support/read_text.h"
#include "support/member_suite.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <sstream>

namespace hrm {
namespace {

using test::readText;
using test::toText;
using Stage = ExcStageFinished::EStage;
using Code = Result::ECode;

TEST(ExcMessage, TextIsAlwaysWrittenAndOnlyAStringIsRead)
{
    EXPECT_EQ(toText(ExcLog(static_cast<const wchar_t*>(nullptr))), LR"({"message":""})");
    ExcMessage message(L"kept");
    EXPECT_EQ(readText(message, LR"({"message":5})").message(), L"kept");
    EXPECT_EQ(readText(message, LR"(["message"])").message(), L"kept");
    EXPECT_EQ(readText(message, LR"({"message":"new"})").message(), L"new");
}

TEST(ExcProgress, MembersAndEqualityWithoutPulse)
{
    EXPECT_EQ(toText(ExcProgress()), LR"({"progress":0,"progress_max":100,"pulse":false,"stage":""})");
    ExcProgress progress;
    readText(progress, LR"({"progress":"5","progress_max":2147483648,"pulse":1,"stage":7})");
    EXPECT_EQ(toText(progress), toText(ExcProgress()));
    const std::wstring filled = LR"({"progress":-3,"progress_max":2147483647,"pulse":true,"stage":"mesh"})";
    EXPECT_EQ(toText(readText(progress, filled)), filled);

    ExcProgress other = progress;
    other.setPulse(false);
    EXPECT_EQ(progress, other);
    other.setStage(L"Mesh");
    EXPECT_NE(progress, other);
}

TEST(ExcStageFinished, BareStringWithTheTwoFallbacks)
{
    EXPECT_EQ(toText(ExcStageFinished(Stage::VisuAndMech)), L"\"visu_and_mech\"");
    EXPECT_EQ(toText(ExcStageFinished(static_cast<Stage>(99))), L"\"unknown\"");
    ExcStageFinished stage;
    EXPECT_EQ(readText(stage, L"\"visu_and_mech\"").stage(), Stage::VisuAndMech);
    EXPECT_EQ(readText(stage, L"\"no_such_stage\"").stage(), Stage::Mechanical);
    stage.setStage(Stage::RootVisualization);
    EXPECT_EQ(readText(stage, L"3").stage(), Stage::RootVisualization);
}

std::wstring resultText(const Result& result)
{
    std::wostringstream out;
    result.writeObject(out);
    return out.str();
}

Result readResult(const std::wstring& text, Result result = Result())
{
    std::wistringstream in(text);
    result.readObject(in);
    return result;
}

TEST(Result, PrettyDocumentWithOptionalMessage)
{
    EXPECT_EQ(resultText(Result()), L"{\n  \"code\": \"ok\",\n  \"is_finished\": false\n}");
    Result result;
    result.setCode(static_cast<Code>(7));
    result.setMessage(L"done");
    result.setFinished(true);
    EXPECT_EQ(resultText(result), L"{\n  \"code\": \"unknown\",\n  \"message\": \"done\",\n  \"is_finished\": true\n}");

    const Result read = readResult(LR"({"code":"interrupted","message":"m","is_finished":true})");
    EXPECT_EQ(read.code(), Code::Interrupted);
    EXPECT_EQ(read.message(), L"m");
    EXPECT_TRUE(read.isFinished());
    // Every other word is Unknown, not the alphabetically first word ("error").
    EXPECT_EQ(readResult(LR"({"code":"OK"})").code(), Code::Unknown);
    EXPECT_EQ(readResult(LR"({"code":1})").code(), Code::Unknown);
    EXPECT_FALSE(readResult(LR"({"code":"ok","is_finished":1})", read).isFinished());
    const Result kept = readResult(LR"({"code":"ok"})", read); // absent members keep their fields
    EXPECT_TRUE(kept.isFinished());
    EXPECT_EQ(kept.message(), L"m");

    test::expectMessage<std::invalid_argument>([] { readResult(LR"({"message":"x"})"); },
                                               "Json document has no result code.");
    for (const wchar_t* text : {L"[\"ok\"]", L"{\"code\":"})
        test::expectMessage<std::invalid_argument>([&] { readResult(text); }, "Invalid json document");
}

} // namespace
} // namespace hrm

namespace hrm::test {

template <>
struct MemberCase<ExcProgress> : MemberCaseDefaults
{
    static ExcProgress sample()
    {
        ExcProgress progress;
        progress.setProgress(3);
        progress.setProgressMax(7);
        progress.setPulse(true);
        progress.setStage(L"Tessellation \u00e9");
        return progress;
    }
    static std::vector<std::wstring> keys() { return {L"progress", L"progress_max", L"pulse", L"stage"}; }
};

template <>
struct MemberCase<ExcLog> : MemberCaseDefaults
{
    static ExcLog sample() { return ExcLog(L"Warning: \U0001F600 face 12 was healed"); }
    static std::vector<std::wstring> keys() { return {L"message"}; }
};

using StatusObjects = ::testing::Types<ExcProgress, ExcLog>;
INSTANTIATE_TYPED_TEST_SUITE_P(StatusObjects, MemberSuite, StatusObjects);

} // namespace hrm::test
