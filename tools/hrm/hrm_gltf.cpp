// hrm gltf: the product structure and visualizations that envelopes announce, as one .glb file.

#include "hrm_tool.h"

#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_gltf.h>
#include <logging/ax_herm_logger.h>
#if __has_include(<hrm_api/hrm_api_exchange_structure.h>)
#include <hrm_api/hrm_api_exchange_structure.h>
#else
namespace hrm {
class ExcProductStructure : public IExchangeObject {};
}
#endif

#include <iostream>
#include <memory>
#include <sstream>

namespace hrm::tool {

namespace {

struct GltfCommandOptions
{
    std::vector<std::string> inputs{"-"};
    std::string output;
    bool keepHidden = false;
    bool noLines = false;
};

// Reads the envelopes of every input; the objects that the export takes are loaded (their
// buffers stay) and added to `input`. Returns false when something went wrong.
bool collect(const GltfCommandOptions& options, GltfInput& input)
{
    std::vector<std::wstring> envelopes;
    for (const std::string& path : options.inputs) {
        const auto more = splitEnvelopes(decodeText(readBytes(path)));
        envelopes.insert(envelopes.end(), more.begin(), more.end());
    }
    std::size_t number = 0;
    const LogToStderr log(ax_herm::Warning, [&] { return "envelope " + std::to_string(number) + ": "; });
    bool ok = true;
    ProgressBar progress("loading");
    for (const std::wstring& text : envelopes) {
        ++number;
        try {
            ExchangeObjectWrapper wrapper;
            wrapper.setDelayedLoading(true);
            wrapper.setRemoveAfterLoading(false);
            std::wistringstream in(text);
            wrapper.readObject(in);
            const auto object = wrapper.get();
            auto block = std::dynamic_pointer_cast<ExcBlockVisualization>(object);
            auto root = std::dynamic_pointer_cast<ExcRootAssemblyVisualization>(object);
            auto structure = std::dynamic_pointer_cast<ExcProductStructure>(object);
            if (block || root || structure)
                object->load();
            if (block)
                input.blockVisualizations.push_back(block);
            if (root)
                input.rootAssemblyVisualization = root;
            if (structure)
                input.productStructure = structure;
        } catch (const std::exception& error) {
            std::cerr << "hrm: envelope " << number << ": " << error.what() << '\n';
            ok = false;
        }
        progress.update(double(number) / double(envelopes.size()));
    }
    return ok && log.lines() == 0;
}

int run(const GltfCommandOptions& options)
{
    GltfInput input;
    const bool ok = collect(options, input);
    GltfOptions gltf;
    gltf.keepHidden = options.keepHidden;
    gltf.lines = !options.noLines;
    ProgressBar progress("exporting");
    gltf.progress = [&progress](double done) { progress.update(done); };
    writeGlb(options.output, input, gltf);
    return ok ? 0 : 1;
}

} // namespace

void addGltf(CLI::App& app, int& status)
{
    auto options = std::make_shared<GltfCommandOptions>();
    CLI::App* command = app.add_subcommand(
        "gltf", "Export the structure and visualizations that envelopes announce as one glTF 2.0 binary (.glb)");
    command->add_option("ENVELOPE-FILES", options->inputs, "Files of envelopes (- for standard input, the default)");
    command->add_option("-o,--output", options->output, "The .glb file to write")->required();
    command->add_flag("--keep-hidden", options->keepHidden, "Keep hidden nodes and references, flagged as hidden in extras");
    command->add_flag("--no-lines", options->noLines, "Leave out edges, wires, PMI lines and points");
    command->callback([options, &status] { status = run(*options); });
}

} // namespace hrm::tool
