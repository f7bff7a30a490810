// hrm-translator: a translation service on OpenCASCADE. It reads commands from its standard
// input and answers on its standard output, each document in one frame (common/frame.h):
// ping gives an ok Result, info a HermetorInfo, import the model's exchange objects as each
// stage completes and then a Result. It ends when its input ends. SIGTERM, SIGINT and SIGHUP
// stop a running import at the next step (the Result says "interrupted"); the translator then
// ends without leaving a shared-memory buffer that the host was not told about.

#include "cad_document.h"
#include "channel.h"
#include "documents.h"
#include "exchange_mapping.h"
#include "import_job.h"

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_hermetor_info.h>

#include <atomic>
#include <csignal>
#include <cstring>
#include <iostream>

namespace {

std::atomic<bool> stopRequested{false};

extern "C" void onStopSignal(int)
{
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

hrm::Result resultOf(hrm::Result::ECode code, const std::wstring& message)
{
    hrm::Result result;
    result.setCode(code);
    result.setMessage(message);
    result.setFinished(true);
    return result;
}

hrm::HermetorInfo info()
{
    hrm::HermetorInfo info;
    info.setName(L"hrm-translator");
    info.setVersion(L"" HRM_EXAMPLES_VERSION);
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
        channel.send(resultOf(hrm::Result::ECode::Error, L"Expected a command, received a '" + translator::wide(received.kind) + L"' frame"));
        return;
    }
    hrm::Command command;
    try {
        frame::readFrom(command, frame::fromUtf8(received.text));
    } catch (const std::exception& error) {
        channel.send(resultOf(hrm::Result::ECode::Error, L"Cannot read the command: " + translator::wide(error.what())));
        return;
    }
    switch (command.type()) {
    case hrm::Command::EType::Ping:
        channel.send(resultOf(hrm::Result::ECode::Ok, L""));
        return;
    case hrm::Command::EType::Info:
        channel.send(info());
        return;
    case hrm::Command::EType::Import:
        if (!command.importOptions()) {
            channel.send(resultOf(hrm::Result::ECode::Error, L"This translator imports through the current interface only"));
            return;
        }
        stopRequested = false;
        channel.send(translator::runImport(channel, translator::settingsOf(*command.importOptions()), stopRequested));
        return;
    case hrm::Command::EType::Export:
        channel.send(resultOf(hrm::Result::ECode::Error, L"This translator does not export"));
        return;
    default:
        channel.send(resultOf(hrm::Result::ECode::Error, L"Unknown command"));
        return;
    }
}

} // namespace

int main()
{
    try {
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
