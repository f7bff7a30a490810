#include "import_job.h"

#include "cad_document.h"
#include "exchange_mapping.h"
#include "frame.h"

#include <hrm_api/hrm_api_exchange_mechanical_roots.h>
#include <hrm_api/hrm_api_format_options.h>

#include <chrono>
#include <cmath>
#include <iomanip>
#include <sstream>

namespace translator {
namespace {

using Clock = std::chrono::steady_clock;

double seconds(Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

// Thrown out of a stage when the translator is asked to stop.
struct Interrupted
{
};

// Sends the progress of the running stage, at most once a percent.
class ProgressReporter
{
public:
    ProgressReporter(Channel& channel, const std::atomic<bool>& stop) : m_channel(channel), m_stop(stop) {}

    // A stage whose amount is unknown: the host shows activity.
    void pulse(const std::wstring& stage) { send(stage, 0, true); }

    // `done` of `total` of the stage; false once the translator is to stop.
    bool report(const std::wstring& stage, double done, double total)
    {
        const int percent = total > 0 ? static_cast<int>(std::floor(100.0 * std::clamp(done / total, 0.0, 1.0))) : 0;
        if (stage != m_stage || percent != m_percent)
            send(stage, percent, false);
        return !m_stop;
    }

    void checkStop() const
    {
        if (m_stop)
            throw Interrupted();
    }

private:
    void send(const std::wstring& stage, int percent, bool pulse)
    {
        m_stage = stage;
        m_percent = percent;
        auto progress = std::make_shared<hrm::ExcProgress>();
        progress->setStage(stage);
        progress->setProgress(percent);
        progress->setProgressMax(100);
        progress->setPulse(pulse);
        m_channel.send(progress);
    }

    Channel& m_channel;
    const std::atomic<bool>& m_stop;
    std::wstring m_stage;
    int m_percent = -1;
};

// What one import has done, for the result's message and the timing line.
struct Tally
{
    std::size_t blocks = 0, parts = 0, faces = 0, triangles = 0, facesWithoutTriangles = 0;
    std::size_t datums = 0, dimensions = 0, tolerances = 0;
    Clock::duration read{}, tessellate{}, pmi{}, build{};
};

class ImportRun
{
public:
    ImportRun(Channel& channel, const ImportSettings& settings, const std::atomic<bool>& stop)
        : m_channel(channel), m_settings(settings), m_progress(channel, stop)
    {
    }

    hrm::Result run()
    {
        const Clock::duration writtenBefore = m_channel.writingTime();
        m_progress.pulse(L"reading");
        auto start = Clock::now();
        cad::Document document(m_settings.file, [this](double fraction) { return m_progress.report(L"reading", fraction, 1); });
        m_tally.read = Clock::now() - start;
        m_progress.checkStop();
        const cad::Structure& structure = document.structure();
        m_tally.blocks = structure.blocks.size();

        sendStructure(structure);
        if (m_settings.visualization)
            sendBlockVisualizations(document);
        if (m_settings.rootVisualization)
            sendRootVisualization(structure);
        if (m_settings.pmi)
            sendMechanicalData(document);

        sendWarnings(document.takeWarnings());
        sendTimings(m_channel.writingTime() - writtenBefore);
        return finalResult();
    }

private:
    void send(const std::shared_ptr<hrm::IExchangeObject>& object) { m_channel.send(object); }

    void stageFinished(hrm::ExcStageFinished::EStage stage)
    {
        send(std::make_shared<hrm::ExcStageFinished>(stage));
    }

    void sendStructure(const cad::Structure& structure)
    {
        for (const cad::Block& block : structure.blocks)
            m_tally.parts += block.isAssembly ? 0 : 1;
        const auto start = Clock::now();
        auto object = productStructure(structure, m_settings.file);
        m_tally.build += Clock::now() - start;
        send(object);
        stageFinished(hrm::ExcStageFinished::EStage::ProductStructure);
    }

    void sendBlockVisualizations(const cad::Document& document)
    {
        const cad::Structure& structure = document.structure();
        const cad::MeshOptions options{m_settings.sag, m_settings.angle};
        std::size_t done = 0;
        for (std::size_t block = 0; block < structure.blocks.size(); ++block) {
            if (structure.blocks[block].isAssembly)
                continue;
            const auto start = Clock::now();
            cad::BlockMesh mesh = document.mesh(block, options, [this, done](double fraction) {
                return m_progress.report(L"tessellation", static_cast<double>(done) + fraction, static_cast<double>(m_tally.parts));
            });
            const auto meshed = Clock::now();
            m_tally.tessellate += meshed - start;
            m_progress.checkStop();
            m_tally.faces += mesh.faces.size();
            m_tally.triangles += mesh.triangleCount;
            m_tally.facesWithoutTriangles += mesh.facesWithoutTriangles;
            auto object = blockVisualization(structure, block, std::move(mesh));
            m_tally.build += Clock::now() - meshed;
            send(object);
            m_progress.report(L"tessellation", static_cast<double>(++done), static_cast<double>(m_tally.parts));
        }
        stageFinished(hrm::ExcStageFinished::EStage::Visualization);
    }

    void sendRootVisualization(const cad::Structure& structure)
    {
        const auto start = Clock::now();
        auto object = rootVisualization(structure);
        m_tally.build += Clock::now() - start;
        send(object);
        stageFinished(hrm::ExcStageFinished::EStage::RootVisualization);
    }

    void sendMechanicalData(const cad::Document& document)
    {
        m_progress.pulse(L"PMI");
        const auto start = Clock::now();
        const cad::Pmi pmi = document.pmi();
        m_tally.pmi = Clock::now() - start;
        m_tally.datums = pmi.datums.size();
        m_tally.dimensions = pmi.dimensions.size();
        m_tally.tolerances = pmi.tolerances.size();
        m_progress.checkStop();

        const auto built = Clock::now();
        PmiByOwner owners = pmiData(document.structure(), pmi);
        auto root = std::make_shared<hrm::ExcRootMechanicalData>();
        root->setPMIData(std::move(owners.root));
        std::vector<std::shared_ptr<hrm::ExcBlockMechanicalData>> blocks;
        for (auto& [block, data] : owners.blocks) {
            auto mechanical = std::make_shared<hrm::ExcBlockMechanicalData>();
            mechanical->setBlockId(blockId(block));
            mechanical->setPMIData(std::move(data));
            blocks.push_back(std::move(mechanical));
        }
        m_tally.build += Clock::now() - built;
        send(root);
        stageFinished(hrm::ExcStageFinished::EStage::RootMechanical);
        for (const auto& mechanical : blocks)
            send(mechanical);
        stageFinished(hrm::ExcStageFinished::EStage::Mechanical);
    }

    void sendWarnings(const std::vector<std::string>& warnings)
    {
        for (const std::string& warning : warnings)
            send(std::make_shared<hrm::ExcLog>(L"OpenCASCADE: " + wide(warning)));
        if (m_tally.facesWithoutTriangles > 0)
            send(std::make_shared<hrm::ExcLog>(std::to_wstring(m_tally.facesWithoutTriangles) +
                                               L" faces could not be tessellated"));
    }

    // One log line the host reads its stage times from: "timing <stage>=<seconds> ...".
    void sendTimings(Clock::duration writing)
    {
        std::wostringstream line;
        line << std::fixed << std::setprecision(6) << L"timing read=" << seconds(m_tally.read)
             << L" tessellate=" << seconds(m_tally.tessellate) << L" pmi=" << seconds(m_tally.pmi)
             << L" build=" << seconds(m_tally.build) << L" write=" << seconds(writing);
        send(std::make_shared<hrm::ExcLog>(line.str()));
    }

    hrm::Result finalResult() const
    {
        const auto counted = [](std::size_t number, const wchar_t* one, const wchar_t* many) {
            return std::to_wstring(number) + L" " + (number == 1 ? one : many);
        };
        std::wstring message = L"Imported " + wide(m_settings.file) + L": " + counted(m_tally.blocks, L"block", L"blocks") +
                               L", " + counted(m_tally.faces, L"face", L"faces") + L", " +
                               counted(m_tally.triangles, L"triangle", L"triangles");
        if (m_settings.pmi)
            message += L"; PMI: " + counted(m_tally.datums, L"datum", L"datums") + L", " +
                       counted(m_tally.dimensions, L"dimension", L"dimensions") + L", " +
                       counted(m_tally.tolerances, L"geometric tolerance", L"geometric tolerances");
        if (m_tally.facesWithoutTriangles == 0)
            return endResult(hrm::Result::ECode::Ok, message);
        message += L" (" + counted(m_tally.facesWithoutTriangles, L"face", L"faces") + L" without triangles)";
        return endResult(hrm::Result::ECode::Warning, message);
    }

    Channel& m_channel;
    const ImportSettings& m_settings;
    ProgressReporter m_progress;
    Tally m_tally;
};

} // namespace

hrm::Result endResult(hrm::Result::ECode code, const std::wstring& message)
{
    hrm::Result result;
    result.setCode(code);
    result.setMessage(message);
    result.setFinished(true);
    return result;
}

ImportSettings settingsOf(const hrm::ImportOptions& options)
{
    ImportSettings settings;
    settings.file = hrm::toUtf8(options.file());
    if (const auto graphical = options.formatOptions<hrm::OptionsGraphical>()) {
        settings.sag = std::max(0.0, graphical->tessellation3dSagValue());
        if (graphical->visuBRepTessellationMode() == hrm::EVisuBRepTessellationModeType::Never)
            settings.visualization = settings.rootVisualization = false;
    }
    const auto step = options.formatOptions<hrm::imp::OptionsSTEP>();
    if (step && cad::formatOf(settings.file) == cad::Format::Step) {
        settings.visualization = settings.visualization && step->importVisualization();
        settings.rootVisualization = settings.rootVisualization && step->importRootVisualization();
    }
    if (const auto modeler = options.formatOptions<hrm::OptionsModeler>())
        settings.pmi = modeler->preservePMIMode() != hrm::EPreservePMIModeType::Disabled;
    return settings;
}

hrm::Result runImport(Channel& channel, const ImportSettings& settings, const std::atomic<bool>& stop)
{
    try {
        return ImportRun(channel, settings, stop).run();
    } catch (const Interrupted&) {
        return endResult(hrm::Result::ECode::Interrupted, L"Import interrupted");
    } catch (const cad::Error& error) {
        if (stop)
            return endResult(hrm::Result::ECode::Interrupted, L"Import interrupted");
        return endResult(hrm::Result::ECode::Error, wide(error.what()));
    } catch (const HostGone&) {
        throw;
    } catch (const std::exception& error) {
        return endResult(hrm::Result::ECode::Error, L"Import failed: " + wide(error.what()));
    }
}

} // namespace translator
