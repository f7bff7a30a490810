// hrm-translator: a translation service on OpenCASCADE. It reads commands from its standard
// input and answers on its standard output, each document in one frame (common/frame.h):
// ping gives an ok Result, info a HermetorInfo, import the model's exchange objects as each
// stage completes and then a Result. It ends when its input ends. SIGTERM, SIGINT and SIGHUP
// stop a running import at the next step (the Result says "interrupted"); the translator then
// ends without leaving a shared-memory buffer that the host was not told about; between
// commands they end it at once.
//
//   hrm-translator [--deflate ENGINE[:LEVEL]] [--angle RADIANS]
//
// ENGINE is zlib, libdeflate or igzip (those the library was built with); by default igzip at
// level 1, else libdeflate at level 1, else zlib at level 1. RADIANS is the tessellation's
// angular deviation (0.5 by default; the command gives only the sag).

#include "cad_document.h"
#include "channel.h"
#include "exchange_mapping.h"
#include "import_job.h"

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_hermetor_info.h>
#include <hrm_api/hrm_api_version.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <iostream>
#include <unistd.h>

namespace {

// The translator's own settings, from its command line.
struct Settings
{
    std::string deflate;
    double angle = 0.5;
};

Settings settings;
std::atomic<bool> stopRequested{false};
std::atomic<bool> importRunning{false};

extern "C" void onStopSignal(int signal)
{
    if (!importRunning)
        _exit(128 + signal);
    stopRequested = true;
}

void installSignalHandlers()
{
    struct sigaction action;
    std::memset(&action, 0, sizeof action);
    action.sa_handler = onStopSignal;
    sigemptyset(&action.sa_mask);
    for (int signal : {SIGTERM, SIGINT, SIGHUP})
        sigaction(signal, &action, nullptr);
    // A host that has gone shows as a failed write, not as a signal.
    std::signal(SIGPIPE, SIG_IGN);
}

hrm::HermetorInfo info()
{
    hrm::HermetorInfo info;
    info.setName(L"hrm-translator");
    info.setVersion(hrm::fromUtf8(hrm::libraryVersion()));
    info.setRequestedInterface(hrm::EHermetorInterface::Connect);
    info.newThirdpartyCore()->setName(L"OpenCASCADE").setVersion(translator::wide(cad::kernelVersion()));
    info.newImportFormat()->setDescription(L"STEP").setExtensions({L"stp", L"step", L"p21"}).addFilterExtensions({L"stp", L"step"});
    info.newImportFormat()->setDescription(L"IGES").setExtensions({L"igs", L"iges"}).addFilterExtensions({L"igs", L"iges"});
    return info;
}

// Answers one command. A command that does not read gives an error Result with the reader's
// message.
void answer(translator::Channel& channel, const frame::Frame& received)
{
    if (received.kind != "command") {
        channel.send(translator::endResult(hrm::Result::ECode::Error, L"Expected a command, received a '" + translator::wide(received.kind) + L"' frame"));
        return;
    }
    hrm::Command command;
    try {
        mp::fromText(hrm::fromUtf8(received.text), command);
    } catch (const std::exception& error) {
        channel.send(translator::endResult(hrm::Result::ECode::Error, L"Cannot read the command: " + translator::wide(error.what())));
        return;
    }
    switch (command.type()) {
    case hrm::Command::EType::Ping:
        channel.send(translator::endResult(hrm::Result::ECode::Ok, L""));
        return;
    case hrm::Command::EType::Info:
        channel.send(info());
        return;
    case hrm::Command::EType::Import:
        if (!command.importOptions()) {
            channel.send(translator::endResult(hrm::Result::ECode::Error, L"This translator imports through the current interface only"));
            return;
        }
    {
        importRunning = true;
        translator::ImportSettings import = translator::settingsOf(*command.importOptions());
        import.angle = settings.angle;
        const hrm::Result result = translator::runImport(channel, import, stopRequested);
        importRunning = false;
        channel.send(result);
        return;
    }
    case hrm::Command::EType::Export:
        channel.send(translator::endResult(hrm::Result::ECode::Error, L"This translator does not export"));
        return;
    default:
        channel.send(translator::endResult(hrm::Result::ECode::Error, L"Unknown command"));
        return;
    }
}

// The compression of the binary objects' payloads: `choice` ("igzip:1"), or the fastest engine
// built in. Throws std::invalid_argument for an unknown or missing engine.
hrm::Compression compressionOf(const std::string& choice)
{
    if (choice.empty()) {
        for (hrm::DeflateEngine engine : {hrm::DeflateEngine::igzip, hrm::DeflateEngine::libdeflate}) {
            if (hrm::Compressor::isAvailable(engine))
                return {engine, 1};
        }
        return {hrm::DeflateEngine::zlib, 1};
    }
    const std::size_t colon = choice.find(':');
    const std::string name = choice.substr(0, colon);
    hrm::Compression compression;
    if (name == "zlib")
        compression.engine = hrm::DeflateEngine::zlib;
    else if (name == "libdeflate")
        compression.engine = hrm::DeflateEngine::libdeflate;
    else if (name == "igzip")
        compression.engine = hrm::DeflateEngine::igzip;
    else
        throw std::invalid_argument("unknown deflate engine '" + name + "'");
    if (!hrm::Compressor::isAvailable(compression.engine))
        throw std::invalid_argument("the library was built without " + name);
    if (colon != std::string::npos)
        compression.level = std::stoi(choice.substr(colon + 1));
    return compression;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        for (int i = 1; i < argc; ++i) {
            const std::string option = argv[i];
            if (option == "--deflate" && i + 1 < argc)
                settings.deflate = argv[++i];
            else if (option == "--angle" && i + 1 < argc && std::stod(argv[i + 1]) > 0)
                settings.angle = std::stod(argv[++i]);
            else
                throw std::invalid_argument("usage: hrm-translator [--deflate ENGINE[:LEVEL]] [--angle RADIANS]");
        }
        hrm::Compressor::setCompression(compressionOf(settings.deflate));
        translator::Channel channel = translator::Channel::fromStandardStreams();
        installSignalHandlers();
        while (!stopRequested) {
            const std::optional<frame::Frame> received = channel.nextCommand();
            if (!received)
                return 0;
            answer(channel, *received);
        }
        return 0;
    } catch (const translator::HostGone&) {
        return 0;
    } catch (const std::exception& error) {
        std::cerr << "hrm-translator: " << error.what() << '\n';
        return 1;
    }
}
