#include <hrm_api/hrm_api_hermetor_info.h>

#include "support/expect_message.h"

#include <gtest/gtest.h>

#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace hrm {
namespace {

std::wstring write(const HermetorInfo& info)
{
    std::wostringstream out;
    info.writeObject(out);
    return out.str();
}

// The document `info` writes, in the compact form.
std::wstring compact(const HermetorInfo& info)
{
    JsonDocument document;
    JsonTextIO::fromString(write(info), document);
    return JsonTextIO::toString(document, false);
}

void read(HermetorInfo& info, const std::wstring& text)
{
    std::wistringstream in(text);
    info.readObject(in);
}

std::shared_ptr<Format> format(const std::wstring& description, const std::vector<std::wstring>& extensions)
{
    auto result = std::make_shared<Format>();
    result->setDescription(description).setExtensions(extensions).addFilterExtensions(extensions);
    return result;
}

TEST(HermetorInfo, LayoutSkipsNullEntriesAndTravels)
{
    EXPECT_EQ(write(HermetorInfo()), L"{\n  \"name\": \"\",\n  \"version\": \"\",\n  \"hermetor_interface\": \"uconnect\",\n"
                                     L"  \"parasolid_mode\": \"direct\",\n  \"modeler_version\": 31\n}");

    HermetorInfo info;
    info.setName(L"Hermetor");
    info.setVersion(L"4.2.1");
    info.setRequestedInterface(EHermetorInterface::Connect);
    info.newThirdpartyCore()->setName(L"CoreA").setVersion(L"1.0");
    info.addThirdpartyCore(nullptr);
    info.setParasolidMode(EParasolidMode::Kernel);
    info.addImportFormats({format(L"STEP files", {L"stp", L"step"}), nullptr, format(L"JT files", {L"jt"})});
    info.newExportFormat()->setDescription(L"ACIS files").addExtension(L"sat");
    info.setModelerMajorVersion(33);

    EXPECT_EQ(compact(info),
              LR"({"name":"Hermetor","version":"4.2.1","hermetor_interface":"connect",)"
              LR"("thirdparty_cores":[{"name":"CoreA","version":"1.0"}],"parasolid_mode":"kernel",)"
              LR"("import_formats":[{"description":"STEP files","extensions":["stp","step"],"filters":["stp","step"]},)"
              LR"({"description":"JT files","extensions":["jt"],"filters":["jt"]}],)"
              LR"("export_formats":[{"description":"ACIS files","extensions":["sat"],"filters":[]}],"modeler_version":33})");

    HermetorInfo received;
    read(received, write(info));
    EXPECT_EQ(compact(received), compact(info));
    EXPECT_EQ(*received.importFormats()[1], *info.importFormats()[2]);
}

TEST(HermetorInfo, ReadingRules)
{
    HermetorInfo info;
    info.setRequestedInterface(EHermetorInterface::Legacy);
    info.setParasolidMode(EParasolidMode::Kernel);
    info.newImportFormat()->setDescription(L"held");

    // Mistyped members keep their fields; formats read are appended.
    read(info, LR"({"name":1,"hermetor_interface":2,"parasolid_mode":true,"modeler_version":3.5,)"
               LR"("import_formats":[{"description":"read","extensions":["x",1]}]})");
    EXPECT_EQ(info.name(), L"");
    EXPECT_EQ(info.requestedInterface(), EHermetorInterface::Legacy);
    EXPECT_EQ(info.parasolidMode(), EParasolidMode::Kernel);
    EXPECT_EQ(info.modelerMajorVersion(), 31);
    ASSERT_EQ(info.importFormats().size(), 2u);
    EXPECT_EQ(info.importFormats()[1]->description(), L"read");
    EXPECT_TRUE(info.importFormats()[1]->extensions().empty());

    // Exact words only: any other word reads as UConnect and Direct.
    read(info, LR"({"hermetor_interface":"Legacy","parasolid_mode":"Kernel"})");
    EXPECT_EQ(info.requestedInterface(), EHermetorInterface::UConnect);
    EXPECT_EQ(info.parasolidMode(), EParasolidMode::Direct);
}

TEST(HermetorInfo, ElementsThatAreNoObjectsRejectTheDocument)
{
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"", "Invalid json document"},
        {L"[]", "Invalid json document"},
        {LR"({"import_formats":["STEP"]})", "Format::readFrom > !jsonObject.IsObject()"},
        {LR"({"export_formats":[{},null]})", "Format::readFrom > !jsonObject.IsObject()"},
        {LR"({"thirdparty_cores":[1]})", "ThirdpartyCore::readFrom > !jsonObject.IsObject()"},
    };
    HermetorInfo info;
    for (const auto& [text, message] : cases)
        test::expectMessage<std::invalid_argument>([&, text = text] { read(info, text); }, message);
    read(info, LR"({"thirdparty_cores":{},"import_formats":"STEP"})");
}

TEST(Format, RecognisesWholeFileNamesIgnoringCase)
{
    Format step;
    EXPECT_FALSE(step.is(L"part.stp"));
    step.setRegex(L".*\\.stp").addRegex(L".*\\.step");
    EXPECT_TRUE(step.is(L"part.stp"));
    EXPECT_TRUE(step.is(L"C:\\Models\\PART.STEP"));
    EXPECT_FALSE(step.is(L"part.stp.bak"));
    EXPECT_FALSE(step.is(L"part.stpx"));
    step.setRegex(L"[a-z]+\\.p21");
    EXPECT_FALSE(step.is(L"part.stp"));
    EXPECT_TRUE(step.is(L"Part.P21"));
}

TEST(Format, OneFilterPerFilterExtension)
{
    Format step;
    step.setDescription(L"STEP files");
    step.addFilterExtensions({L"stp", L"step"}).addFilterExtensions({L"p21"});
    EXPECT_EQ(step.getFilters(),
              (std::vector<std::wstring>{L"STEP files (*.stp)", L"STEP files (*.step)", L"STEP files (*.p21)"}));
}

} // namespace
} // namespace hrm
