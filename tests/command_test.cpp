#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_format_options.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/round_trip.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>
#include <tuple>
#include <utility>

namespace hrm {
namespace {

using test::expectMessage;
using test::LogCapture;
using Type = Command::EType;
using Interface = EHermetorInterface;

std::wstring write(const Command& command)
{
    std::wostringstream out;
    command.writeObject(out);
    return out.str();
}

void read(Command& command, const std::wstring& text)
{
    std::wistringstream in(text);
    command.readObject(in);
}

// A command of `type` and `interface` holding all four options objects, each with the fields its
// reading requires.
Command filledCommand(Type type, Interface interface)
{
    Command command;
    command.setType(type);
    command.setInternalInterface(interface);
    command.setUseMultiThreading(true);
    command.setImportOptions(Command::newImportOptions());
    command.importOptions()->setFile(L"in.stp");
    command.setExportOptions(Command::newExportOptions());
    command.exportOptions()->setFile(L"out.sat");
    command.setLegacyImportOptions(Command::newLegacyImportOptions());
    command.legacyImportOptions()->setFile(L"in.dwg");
    command.legacyImportOptions()->setTemporaryDwg(L"tmp.dwg");
    command.setLegacyExportOptions(Command::newLegacyExportOptions());
    command.legacyExportOptions()->setFile(L"out.dwg");
    return command;
}

template <class Options>
std::wstring optionsText(const std::shared_ptr<Options>& options)
{
    return options ? test::toText(*options) : L"none";
}

TEST(Command, DefaultDocument)
{
    EXPECT_EQ(write(Command()), L"{\n  \"hermetor_interface\": \"uconnect\",\n  \"command\": \"unknown\",\n  \"mt_mode\": false\n}");

    Command outOfRange;
    outOfRange.setType(static_cast<Type>(9));
    outOfRange.setInternalInterface(static_cast<Interface>(-1));
    EXPECT_EQ(write(outOfRange), write(Command()));
}

TEST(Command, EveryTypeAndInterfaceTravelsWithItsOptionsOnly)
{
    for (const Type type : {Type::Unknown, Type::Info, Type::Import, Type::Export, Type::Ping}) {
        for (const Interface interface : {Interface::UConnect, Interface::Connect, Interface::Legacy}) {
            SCOPED_TRACE("type " + std::to_string(static_cast<int>(type)) + ", interface "
                         + std::to_string(static_cast<int>(interface)));
            const Command sent = filledCommand(type, interface);
            const std::wstring text = write(sent);
            Command received;
            read(received, text);
            EXPECT_EQ(received.type(), type);
            EXPECT_EQ(received.internalInterface(), interface);
            EXPECT_TRUE(received.useMultiThreading());

            // Exactly the one options object that matches type and interface travels.
            const bool legacy = interface == Interface::Legacy;
            const bool imports = type == Type::Import;
            const bool exports = type == Type::Export;
            EXPECT_EQ(text.find(L"options") != std::wstring::npos, imports || exports);
            const auto expected = [](bool travels, auto options) { return travels ? optionsText(options) : L"none"; };
            EXPECT_EQ(optionsText(received.importOptions()), expected(imports && !legacy, sent.importOptions()));
            EXPECT_EQ(optionsText(received.exportOptions()), expected(exports && !legacy, sent.exportOptions()));
            EXPECT_EQ(optionsText(received.legacyImportOptions()), expected(imports && legacy, sent.legacyImportOptions()));
            EXPECT_EQ(optionsText(received.legacyExportOptions()), expected(exports && legacy, sent.legacyExportOptions()));
        }
    }
}

TEST(Command, OptionsSettersAcceptOnlyTheImplementations)
{
    Command command = filledCommand(Type::Import, Interface::Connect);
    const auto imported = command.importOptions();
    expectMessage<std::invalid_argument>([&] { command.setImportOptions(nullptr); },
                                         "Wrong implementation of ImportOptions interface.");
    expectMessage<std::invalid_argument>([&] { command.setExportOptions(nullptr); },
                                         "Wrong implementation of ExportOptions interface");
    EXPECT_EQ(command.importOptions(), imported);
}

TEST(Command, WritingFailuresLeaveTheStream)
{
    const std::tuple<Type, Interface, const char*> cases[] = {
        {Type::Import, Interface::Connect, "Import command should contain import options"},
        {Type::Import, Interface::UConnect, "Import command should contain import options"},
        {Type::Import, Interface::Legacy, "Import(LEGACY) command should contain import options(LEGACY)"},
        {Type::Export, Interface::Connect, "Export command should contain export options"},
        {Type::Export, Interface::Legacy, "Export(LEGACY) command should contain export options(LEGACY)"},
    };
    std::wostringstream out;
    out << L"before";
    for (const auto& [type, interface, message] : cases) {
        // Options of the other interface do not count.
        Command command;
        command.setType(type);
        command.setInternalInterface(interface);
        if (interface == Interface::Legacy) {
            command.setImportOptions(Command::newImportOptions());
            command.setExportOptions(Command::newExportOptions());
        } else {
            command.setLegacyImportOptions(Command::newLegacyImportOptions());
            command.setLegacyExportOptions(Command::newLegacyExportOptions());
        }
        expectMessage<std::invalid_argument>([&] { command.writeObject(out); }, message);
    }

    // A value the JSON writer refuses.
    Command command = filledCommand(Type::Import, Interface::Connect);
    auto graphical = std::make_shared<OptionsGraphical>();
    graphical->setTessellation3dSagValue(std::numeric_limits<double>::quiet_NaN());
    command.importOptions()->setFormatOptions(graphical);
    expectMessage<std::runtime_error>([&] { command.writeObject(out); }, "Cannot write object into json document");
    EXPECT_EQ(out.str(), L"before");
}

TEST(Command, MalformedDocuments)
{
    const std::wstring tooDeep = L"{\"command\": \"ping\", \"x\": " + std::wstring(1000000, L'[');
    const std::pair<const wchar_t*, const char*> cases[] = {
        {L"", "Invalid json document"},
        {L"command", "Invalid json document"},
        {L"[{\"command\": \"ping\"}]", "Invalid json document"},
        {L"\"ping\"", "Invalid json document"},
        {L"{\"command\": \"ping\"} {}", "Invalid json document"},
        {tooDeep.c_str(), "Invalid json document"},
        {L"{}", "Json document has no command type."},
        {L"{\"command\": 4}", "Json document has no command type."},
        {L"{\"command\": \"import\"}", "Import command should contain options."},
        {L"{\"command\": \"import\", \"hermetor_interface\": \"legacy\", \"options\": []}",
         "Import command should contain options."},
        {L"{\"command\": \"export\", \"options\": \"out.stp\"}", "Export command should contain options."},
        // The options' own failures pass through.
        {L"{\"command\": \"import\", \"options\": {}}", "Json document has no valid file path."},
        {L"{\"command\": \"import\", \"hermetor_interface\": \"legacy\", \"options\": {\"file\": \"a.dwg\"}}",
         "Json document has no valid temporary dwg path."},
    };
    for (const auto& [text, message] : cases) {
        Command command;
        SCOPED_TRACE(toNarrow(text));
        expectMessage<std::invalid_argument>([&, text = text] { read(command, text); }, message);
    }
}

TEST(Command, ReadingReplacesOnlyWhatTheDocumentMentions)
{
    Command command = filledCommand(Type::Import, Interface::Legacy);
    const auto imported = command.importOptions();
    const auto legacyImported = command.legacyImportOptions();

    // A number leaves the interface; "mt_mode" as a string is ignored; an info command keeps
    // every options object.
    read(command, L"{\"hermetor_interface\": 5, \"command\": \"info\", \"mt_mode\": \"false\"}");
    EXPECT_EQ(command.type(), Type::Info);
    EXPECT_EQ(command.internalInterface(), Interface::Legacy);
    EXPECT_TRUE(command.useMultiThreading());
    EXPECT_EQ(command.importOptions(), imported);
    EXPECT_EQ(command.legacyImportOptions(), legacyImported);

    // A legacy import replaces the legacy options only.
    read(command, L"{\"command\": \"import\", \"options\": {\"file\": \"b.dwg\", \"temporary_dwg\": \"t.dwg\"}}");
    EXPECT_EQ(command.importOptions(), imported);
    ASSERT_NE(command.legacyImportOptions(), legacyImported);
    EXPECT_EQ(command.legacyImportOptions()->file(), L"b.dwg");

    // Words are exact: capitals give UConnect and Unknown.
    read(command, L"{\"hermetor_interface\": \"LEGACY\", \"command\": \"Import\", \"mt_mode\": false}");
    EXPECT_EQ(command.type(), Type::Unknown);
    EXPECT_EQ(command.internalInterface(), Interface::UConnect);
    EXPECT_FALSE(command.useMultiThreading());

    // Nothing read before a failure is rolled back.
    expectMessage<std::invalid_argument>(
        [&] { read(command, L"{\"hermetor_interface\": \"connect\", \"command\": \"export\"}"); },
        "Export command should contain options.");
    EXPECT_EQ(command.internalInterface(), Interface::Connect);
    EXPECT_EQ(command.type(), Type::Export);
}

TEST(Command, ReadingAndWritingAreTraced)
{
    LogCapture log;
    Command command;
    read(command, write(Command()));
    const auto lines = log.messages(ax_herm::Trace);
    ASSERT_EQ(lines.size(), 2u);
    EXPECT_NE(lines[0].find("hrm::Command::writeObject("), std::string::npos) << lines[0];
    EXPECT_NE(lines[1].find("hrm::Command::readObject("), std::string::npos) << lines[1];
}

TEST(Command, GoldenImportCommand)
{
    Command command;
    command.setType(Type::Import);
    command.setInternalInterface(Interface::Connect);
    command.setUseMultiThreading(true);

    auto options = Command::newImportOptions();
    options->setFile(L"C:\\Models\\gearbox\\gearbox.CATProduct");
    options->setTranslateMiscData(true);
    options->setModelerVersion(33);

    auto general = std::make_shared<OptionsGeneral>();
    general->setLogEventLevel(ELogEventLevelType::Warning);
    general->setLogFileEncoding(ELogFileEncodingType::Utf8);
    general->setLogFileName(L"gearbox.log");
    general->setLoggingMode(ELoggingModeType::Append);
    general->setLoggingOutputDirectory(L"C:\\Temp\\hermetor");
    general->setMemoryManagementMode(EMemoryManagementModeFlags::KeepNone);

    auto modeler = std::make_shared<OptionsModeler>();
    modeler->setSplineResurfacingMode(EAcisSplineResurfacingModeType::ErroneousSurfacesOnly);
    modeler->setSplineResurfacingTolerance(0.001);
    modeler->setHealType(EAcisHealType::Standard);
    modeler->setLengthUnit(ELengthUnitType::Millimeter);
    modeler->setPreservePMIMode(EPreservePMIModeType::DecorateAllPMI);

    auto catia = std::make_shared<imp::OptionsCatiaV5>();
    catia->setAssemblyPathPref(EAssemblyPathPrefType::RootFolderFirst);
    catia->setNameProcessingMode(ENameProcessingModeType::LongNames);
    catia->setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType::None);
    catia->setVisuPMIMode(EVisuPMIProcessingMode::All);
    catia->setDocDelayLoadingMode(EDocumentDelayLoadingMode::Part);
    catia->setImportPreviewGraphics(true);
    catia->addPersistentNameMode(EPersistentNameProcessingModeType::Edges);
    catia->addPersistentNameMode(EPersistentNameProcessingModeType::Faces);

    auto nx = std::make_shared<imp::OptionsNX>();
    nx->setSearchPaths(L"C:\\Models\\nx_lib");
    nx->setFreeCurvesMode(ETranslateFreeCurvesModeType::None);
    nx->setImportRootVisualization(false);

    auto step = std::make_shared<imp::OptionsSTEP>();
    step->setVisuPMIMode(EVisuPMIProcessingMode::None);
    step->setImportVisualization(false);

    // Added out of order: they are written in ascending format type.
    options->setFormatOptions(step);
    options->setFormatOptions(nx);
    options->setFormatOptions(catia);
    options->setFormatOptions(modeler);
    options->setFormatOptions(general);
    command.setImportOptions(options);

    std::ifstream golden(HRM_TEST_GOLDEN_DIR "/command/import_command.json", std::ios::binary);
    ASSERT_TRUE(golden) << "missing golden file";
    const std::string expected(std::istreambuf_iterator<char>(golden), {});
    EXPECT_EQ(toNarrow(write(command)), expected);
}

} // namespace
} // namespace hrm
