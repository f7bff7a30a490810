#include "import_session.h"

#include "shared_memory.h"

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_format_options.h>
#include <mp/mp_shared_buffer.h>

#include <sstream>

namespace host {
namespace {

using Clock = Traffic::Clock;

hrm::Command commandOf(hrm::Command::EType type)
{
    hrm::Command command;
    command.setType(type);
    command.setInternalInterface(hrm::EHermetorInterface::Connect);
    return command;
}

// The import command: the file, the tessellation sag, visualization of the parts and of the
// assembly, and the PMI unless it is not wanted.
hrm::Command importCommand(const ImportRequest& request)
{
    hrm::Command command = commandOf(hrm::Command::EType::Import);
    auto options = hrm::Command::newImportOptions();
    options->setFile(hrm::fromUtf8(request.file));
    auto graphical = std::make_shared<hrm::OptionsGraphical>();
    graphical->setTessellation3dSagValue(request.sag);
    graphical->setVisuBRepTessellationMode(hrm::EVisuBRepTessellationModeType::Auto);
    options->setFormatOptions(graphical);
    auto step = std::make_shared<hrm::imp::OptionsSTEP>();
    step->setImportVisualization(true);
    step->setImportRootVisualization(true);
    step->setVisuPMIMode(request.pmi ? hrm::EVisuPMIProcessingMode::All : hrm::EVisuPMIProcessingMode::None);
    options->setFormatOptions(step);
    auto modeler = std::make_shared<hrm::OptionsModeler>();
    modeler->setPreservePMIMode(request.pmi ? hrm::EPreservePMIModeType::DecorateAllPMI : hrm::EPreservePMIModeType::Disabled);
    options->setFormatOptions(modeler);
    command.setImportOptions(options);
    return command;
}

// Reads the translator's "timing name=seconds ..." line.
std::map<std::string, double> timingsOf(const std::wstring& line)
{
    std::map<std::string, double> seconds;
    std::istringstream in(hrm::toUtf8(line.substr(7)));
    std::string item;
    while (in >> item) {
        const std::size_t equals = item.find('=');
        if (equals == std::string::npos)
            continue;
        try {
            seconds[item.substr(0, equals)] = std::stod(item.substr(equals + 1));
        } catch (const std::exception&) {
        }
    }
    return seconds;
}

class Session
{
public:
    Session(TranslatorProcess& translator, const ImportRequest& request, const ProgressCallback& progress,
            Received& received, Traffic& traffic)
        : m_translator(translator), m_request(request), m_progress(progress), m_received(received), m_traffic(traffic)
    {
    }

    void run()
    {
        send(commandOf(hrm::Command::EType::Ping));
        const hrm::Result pong = expectResult(next());
        if (pong.code() != hrm::Result::ECode::Ok)
            throw TranslatorFailure("The translator did not answer the ping with ok");

        send(commandOf(hrm::Command::EType::Info));
        const frame::Frame info = next();
        if (info.kind != "info")
            throw TranslatorFailure("The translator answered info with a '" + info.kind + "' frame");
        readDocument(m_received.info, info);

        const auto start = Clock::now();
        send(importCommand(m_request));
        for (;;) {
            const frame::Frame received = next();
            if (received.kind == "envelope") {
                take(received);
                continue;
            }
            m_received.result = expectResult(received);
            break;
        }
        m_traffic.import = Clock::now() - start;
    }

private:
    void send(const hrm::Command& command)
    {
        try {
            m_translator.sendCommand(mp::toText(command));
        } catch (const frame::FrameError&) {
            throw TranslatorFailure(gone());
        }
    }

    frame::Frame next()
    {
        std::optional<frame::Frame> received;
        try {
            received = m_translator.receive(m_request.timeoutSeconds);
        } catch (const frame::FrameError& error) {
            m_translator.kill();
            throw TranslatorFailure(std::string("The translator broke off: ") + error.what());
        }
        if (!received)
            throw TranslatorFailure(gone());
        return std::move(*received);
    }

    std::string gone()
    {
        const std::string ended = m_translator.howItEnded();
        return "The translator " + (ended.empty() ? std::string("closed its output") : ended) + " before its result";
    }

    template <class Document>
    void readDocument(Document& document, const frame::Frame& received)
    {
        try {
            mp::fromText(hrm::fromUtf8(received.text), document);
        } catch (const std::exception& error) {
            m_translator.kill();
            throw TranslatorFailure("The translator sent an unreadable '" + received.kind + "' document: " + error.what());
        }
    }

    hrm::Result expectResult(const frame::Frame& received)
    {
        if (received.kind != "result") {
            m_translator.kill();
            throw TranslatorFailure("The translator sent a '" + received.kind + "' frame where a result was due");
        }
        hrm::Result result;
        readDocument(result, received);
        return result;
    }

    // Reads one envelope; a binary object is loaded from its buffer, which goes once read.
    void take(const frame::Frame& received)
    {
        ++m_traffic.envelopes;
        const auto start = Clock::now();
        hrm::ExchangeObjectWrapper wrapper;
        wrapper.setDelayedLoading(true);
        readDocument(wrapper, received);
        const std::shared_ptr<hrm::IExchangeObject> object = wrapper.get();
        if (!object)
            return;
        if (object->binary() && !object->source().empty()) {
            const std::wstring buffer = object->source();
            m_traffic.sharedBytes += frame::sharedMemorySize(buffer);
            try {
                object->load();
            } catch (const std::exception& error) {
                m_received.logLines.push_back(L"Cannot load " + object->objectName() + L": " + hrm::fromUtf8(error.what()));
                return;
            }
            ++m_traffic.sharedObjects;
            m_traffic.sharedObjectsLeft += frame::sharedMemorySize(buffer) > 0 ? 1 : 0;
        }
        m_traffic.loading += Clock::now() - start;
        keep(wrapper);
    }

    void keep(const hrm::ExchangeObjectWrapper& wrapper)
    {
        if (auto progress = wrapper.get<hrm::ExcProgress>()) {
            if (m_progress)
                m_progress(progress->stage(), progress->pulse() ? -1 : progress->progress() * 100 / std::max(1, progress->progressMax()));
        } else if (auto log = wrapper.get<hrm::ExcLog>()) {
            if (log->message().rfind(L"timing ", 0) == 0)
                m_traffic.translatorSeconds = timingsOf(log->message());
            else
                m_received.logLines.push_back(log->message());
        } else if (auto message = wrapper.get<hrm::ExcMessage>()) {
            m_received.messages.push_back(message->message());
        } else if (auto structure = wrapper.get<hrm::ExcProductStructure>()) {
            m_received.productStructure = structure;
        } else if (auto block = wrapper.get<hrm::ExcBlockVisualization>()) {
            m_received.blockVisualizations.push_back(block);
        } else if (auto root = wrapper.get<hrm::ExcRootAssemblyVisualization>()) {
            m_received.rootVisualization = root;
        } else if (auto rootMechanical = wrapper.get<hrm::ExcRootMechanicalData>()) {
            m_received.rootMechanicalData = rootMechanical;
        } else if (auto blockMechanical = wrapper.get<hrm::ExcBlockMechanicalData>()) {
            m_received.blockMechanicalData.push_back(blockMechanical);
        }
    }

    TranslatorProcess& m_translator;
    const ImportRequest& m_request;
    const ProgressCallback& m_progress;
    Received& m_received;
    Traffic& m_traffic;
};

} // namespace

void runImport(TranslatorProcess& translator, const ImportRequest& request, const ProgressCallback& progress,
               Received& received, Traffic& traffic)
{
    Session(translator, request, progress, received, traffic).run();
}

} // namespace host
