#include "summary.h"

#include <hrm_api/hrm_api_json.h>

#include <unistd.h>

#include <algorithm>
#include <cinttypes>
#include <set>

namespace host {
namespace {

double seconds(std::chrono::steady_clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

// 1234567 as "1,234,567".
std::string grouped(std::size_t number)
{
    std::string digits = std::to_string(number);
    for (int i = static_cast<int>(digits.size()) - 3; i > 0; i -= 3)
        digits.insert(static_cast<std::size_t>(i), ",");
    return digits;
}

// "1 assembly", "2 assemblies".
std::string counted(std::size_t number, const char* one, const char* many)
{
    return grouped(number) + " " + (number == 1 ? one : many);
}

std::string narrow(const std::wstring& text)
{
    return hrm::toUtf8(text);
}

struct Geometry
{
    std::size_t faces = 0, triangles = 0, edges = 0;
};

void countNode(const hrm::ExcVisuNode& node, Geometry& geometry)
{
    if (const auto& mesh = node.mesh()) {
        geometry.faces += mesh->faces().size();
        geometry.edges += mesh->edges().size();
        for (const auto& face : mesh->faces()) {
            for (const auto& polygon : face->polygons())
                geometry.triangles += polygon.indices.size() >= 3 ? polygon.indices.size() - 2 : 0;
        }
    }
    for (const auto& child : node.childNodes())
        countNode(*child, geometry);
}

Geometry geometryOf(const Received& received)
{
    Geometry geometry;
    for (const auto& block : received.blockVisualizations) {
        if (const auto& data = block->visualizationData()) {
            for (const auto& node : data->sceneRootNodes())
                countNode(*node, geometry);
        }
    }
    return geometry;
}

struct Structure
{
    std::size_t blocks = 0, parts = 0, instances = 0;
};

// The part instances below `reference`, each block entered at most once on a path (a cycle
// counts nothing).
std::size_t instancesBelow(const hrm::ExcProductStructure& structure, const hrm::ExcBlockReference& reference,
                           std::vector<uint64_t>& path)
{
    const auto block = structure.getBlockById(reference.blockId());
    if (!block || std::find(path.begin(), path.end(), reference.blockId()) != path.end())
        return 0;
    if (block->isPart())
        return 1;
    path.push_back(reference.blockId());
    std::size_t count = 0;
    for (const auto& child : block->blockReferences()) {
        if (child)
            count += instancesBelow(structure, *child, path);
    }
    path.pop_back();
    return count;
}

Structure structureOf(const Received& received)
{
    Structure counts;
    if (!received.productStructure)
        return counts;
    const hrm::ExcProductStructure& structure = *received.productStructure;
    for (const auto& block : structure.blocks()) {
        ++counts.blocks;
        counts.parts += block && block->isPart() ? 1 : 0;
    }
    std::vector<uint64_t> path;
    for (const auto& root : structure.rootBlockReferences()) {
        if (root)
            counts.instances += instancesBelow(structure, *root, path);
    }
    return counts;
}

struct Pmi
{
    std::size_t datums = 0, dimensions = 0, tolerances = 0;
    std::set<std::wstring> faces; // the faces annotations link to, by block and face id
};

template <class Annotations>
void countLinks(const Annotations& annotations, uint64_t block, Pmi& pmi)
{
    for (const auto& annotation : annotations) {
        for (const auto& element : annotation->linkedElements()) {
            const auto& path = element ? element->fsp() : nullptr;
            if (path && path->subentType() == hrm::ESubentType::Face)
                pmi.faces.insert(std::to_wstring(block) + L"/" + std::to_wstring(path->subentId()));
        }
    }
}

void countPmi(const std::shared_ptr<hrm::ExcPMIData>& data, Pmi& pmi)
{
    if (!data)
        return;
    for (const auto& set : data->annotationSets()) {
        if (!set)
            continue;
        for (const auto& view : set->views()) {
            if (!view)
                continue;
            pmi.datums += view->datums().size();
            pmi.dimensions += view->dimensions().size();
            pmi.tolerances += view->gdts().size();
            countLinks(view->datums(), set->blockId(), pmi);
            countLinks(view->dimensions(), set->blockId(), pmi);
            countLinks(view->gdts(), set->blockId(), pmi);
        }
    }
}

Pmi pmiOf(const Received& received)
{
    Pmi pmi;
    if (received.rootMechanicalData)
        countPmi(received.rootMechanicalData->pmiData(), pmi);
    for (const auto& block : received.blockMechanicalData)
        countPmi(block->pmiData(), pmi);
    return pmi;
}

std::string translatorName(const hrm::HermetorInfo& info)
{
    std::string name = narrow(info.name()) + " " + narrow(info.version());
    for (const auto& core : info.thirdpartyCores()) {
        if (core)
            name += " (" + narrow(core->name()) + " " + narrow(core->version()) + ")";
    }
    return name;
}

const char* codeName(hrm::Result::ECode code)
{
    switch (code) {
    case hrm::Result::ECode::Ok: return "ok";
    case hrm::Result::ECode::Warning: return "warning";
    case hrm::Result::ECode::Error: return "error";
    case hrm::Result::ECode::Interrupted: return "interrupted";
    default: return "unknown";
    }
}

double translatorSeconds(const Traffic& traffic, const char* stage)
{
    const auto found = traffic.translatorSeconds.find(stage);
    return found == traffic.translatorSeconds.end() ? 0.0 : found->second;
}

} // namespace

ProgressBar::ProgressBar(std::FILE* out) : m_out(out), m_terminal(isatty(fileno(out)) != 0) {}

void ProgressBar::show(const std::wstring& stage, int percent)
{
    if (!m_terminal)
        return;
    constexpr int width = 30;
    std::string bar(width, ' ');
    if (percent >= 0) {
        std::fill(bar.begin(), bar.begin() + std::clamp(percent, 0, 100) * width / 100, '#');
    } else {
        const int at = m_spinner++ % width;
        bar[static_cast<std::size_t>(at)] = '#';
    }
    std::fprintf(m_out, "\r\033[K[%s] %s", bar.c_str(), narrow(stage).c_str());
    if (percent >= 0)
        std::fprintf(m_out, " %d%%", percent);
    std::fflush(m_out);
    m_shown = true;
}

void ProgressBar::clear()
{
    if (!m_shown)
        return;
    std::fprintf(m_out, "\r\033[K");
    std::fflush(m_out);
    m_shown = false;
}

void printSummary(std::FILE* out, const Summary& summary, const Received& received, const Traffic& traffic)
{
    const Geometry geometry = geometryOf(received);
    const Structure structure = structureOf(received);
    const Pmi pmi = pmiOf(received);

    std::fprintf(out, "%s imported by %s\n", summary.file.c_str(), translatorName(received.info).c_str());
    std::fprintf(out, "  structure      %s (%s, %s), %s\n", counted(structure.blocks, "block", "blocks").c_str(),
                 counted(structure.parts, "part", "parts").c_str(),
                 counted(structure.blocks - structure.parts, "assembly", "assemblies").c_str(),
                 counted(structure.instances, "part instance", "part instances").c_str());
    std::fprintf(out, "  geometry       %s, %s, %s in %s\n", counted(geometry.faces, "face", "faces").c_str(),
                 counted(geometry.triangles, "triangle", "triangles").c_str(), counted(geometry.edges, "edge", "edges").c_str(),
                 counted(received.blockVisualizations.size(), "part picture", "part pictures").c_str());
    if (received.rootMechanicalData || !received.blockMechanicalData.empty())
        std::fprintf(out, "  PMI            %s, %s, %s, linked to %s\n", counted(pmi.datums, "datum", "datums").c_str(),
                     counted(pmi.dimensions, "dimension", "dimensions").c_str(),
                     counted(pmi.tolerances, "geometric tolerance", "geometric tolerances").c_str(),
                     counted(pmi.faces.size(), "face", "faces").c_str());
    std::fprintf(out, "  shared memory  %s, %s bytes, %s\n", counted(traffic.sharedObjects, "object", "objects").c_str(),
                 grouped(traffic.sharedBytes).c_str(),
                 traffic.sharedObjectsLeft == 0 ? "all removed" : (grouped(traffic.sharedObjectsLeft) + " left behind").c_str());
    std::fprintf(out, "  stages         reading %.2f s, tessellation %.2f s, PMI %.2f s",
                 translatorSeconds(traffic, "read"), translatorSeconds(traffic, "tessellate"), translatorSeconds(traffic, "pmi"));
    if (!summary.glbPath.empty())
        std::fprintf(out, ", glTF %.2f s", seconds(summary.glbTime));
    std::fprintf(out, "; import %.2f s, total %.2f s\n", seconds(traffic.import), seconds(summary.total));

    const double wrapping = translatorSeconds(traffic, "build") + translatorSeconds(traffic, "write");
    const double library = wrapping + seconds(traffic.loading);
    const double import = seconds(traffic.import);
    std::fprintf(out, "  library        %.3f s: wrapping and shared memory %.3f s (translator), loading %.3f s (host); %.1f%% of the import\n",
                 library, wrapping, seconds(traffic.loading), import > 0 ? 100.0 * library / import : 0.0);
    if (!summary.glbPath.empty())
        std::fprintf(out, "  glTF           %s (%s bytes)\n", summary.glbPath.c_str(), grouped(summary.glbBytes).c_str());
    constexpr std::size_t shownLogLines = 10;
    for (std::size_t i = 0; i < received.logLines.size() && i < shownLogLines; ++i)
        std::fprintf(out, "  log            %s\n", narrow(received.logLines[i]).c_str());
    if (received.logLines.size() > shownLogLines)
        std::fprintf(out, "  log            ... and %s more lines\n", grouped(received.logLines.size() - shownLogLines).c_str());
    std::fprintf(out, "  result         %s", codeName(received.result.code()));
    if (!received.result.message().empty())
        std::fprintf(out, ": %s", narrow(received.result.message()).c_str());
    std::fprintf(out, "\n");
}

} // namespace host
