// hrm-host: drives the OpenCASCADE translator as a child process. It sends ping, info and an
// import command for FILE, reads every answer (binary objects from shared memory, each buffer
// removed once read), shows the progress on a terminal, writes the model as a .glb file and
// prints a summary. Exit status: 0 for an ok result, 1 unknown, 2 warning, 3 error,
// 4 interrupted (the result's code); 5 when the translator fails (it dies, goes silent or
// breaks the protocol) or the .glb cannot be written.

#include "import_session.h"
#include "summary.h"
#include "translator_process.h"

#include <hrm_api/hrm_api_gltf.h>

#include <CLI/CLI.hpp>

#include <csignal>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <iostream>

namespace {

constexpr int translatorFailed = 5;

int exitStatusOf(hrm::Result::ECode code)
{
    switch (code) {
    case hrm::Result::ECode::Ok: return 0;
    case hrm::Result::ECode::Warning: return 2;
    case hrm::Result::ECode::Error: return 3;
    case hrm::Result::ECode::Interrupted: return 4;
    default: return 1;
    }
}

// The translator installed beside this program.
std::string defaultTranslator()
{
    std::error_code error;
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe", error);
    return error ? std::string("hrm-translator") : (self.parent_path() / "hrm-translator").string();
}

// Ctrl-C reaches the translator too (it runs in the host's process group) and stops its import
// at the next step; the host then waits for its "interrupted" result.
void ignoreInterruptions()
{
    std::signal(SIGINT, SIG_IGN);
    std::signal(SIGPIPE, SIG_IGN);
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app{"Imports a STEP or IGES file through the OpenCASCADE translator and writes it as a .glb file"};
    host::ImportRequest request;
    std::string translator = defaultTranslator();
    std::string output;
    std::string deflate;
    double angle = 0;
    bool noGlb = false;
    bool verbose = false;
    app.add_option("file", request.file, "the model to import (.stp, .step, .p21, .igs, .iges)")->required();
    app.add_option("-o,--output", output, "the .glb file to write (default: the model's name with .glb, here)");
    app.add_flag("--no-glb", noGlb, "write no .glb file");
    app.add_option("--sag", request.sag, "tessellation sag in millimetres (default: a thousandth of each part's size)")
        ->check(CLI::NonNegativeNumber);
    app.add_flag("--no-pmi", [&request](std::int64_t) { request.pmi = false; }, "ask for no PMI");
    app.add_option("--timeout", request.timeoutSeconds, "the longest the translator may stay silent, in seconds (0: no limit)")
        ->check(CLI::NonNegativeNumber);
    app.add_option("--translator", translator, "the translator program")->capture_default_str();
    app.add_option("--angle", angle, "the translator's angular deviation of the tessellation in radians (default 0.5)")
        ->check(CLI::PositiveNumber);
    app.add_option("--deflate", deflate, "the translator's compression, ENGINE[:LEVEL] (zlib, libdeflate, igzip)");
    app.add_flag("-v,--verbose", verbose, "report the translator's process id, each stage and progress on standard error");
    CLI11_PARSE(app, argc, argv);
    if (output.empty())
        output = std::filesystem::path(request.file).stem().string() + ".glb";

    ignoreInterruptions();
    const auto start = std::chrono::steady_clock::now();
    host::Received received;
    host::Traffic traffic;
    try {
        std::vector<std::string> arguments;
        if (!deflate.empty())
            arguments.insert(arguments.end(), {"--deflate", deflate});
        if (angle > 0)
            arguments.insert(arguments.end(), {"--angle", std::to_string(angle)});
        host::TranslatorProcess process(translator, arguments);
        if (verbose)
            std::fprintf(stderr, "hrm-host: translator %s started, pid %d\n", translator.c_str(), static_cast<int>(process.pid()));
        host::ProgressBar bar(stderr);
        std::wstring lastStage;
        host::runImport(process, request, [&](const std::wstring& stage, int percent) {
            if (verbose && stage != lastStage)
                std::fprintf(stderr, "hrm-host: stage %s\n", hrm::toUtf8(stage).c_str());
            lastStage = stage;
            bar.show(stage, percent);
        }, received, traffic);
        bar.clear();
        process.finish();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "hrm-host: %s\n", error.what());
        return translatorFailed;
    }

    host::Summary summary;
    summary.file = request.file;
    const bool imported = received.result.code() == hrm::Result::ECode::Ok || received.result.code() == hrm::Result::ECode::Warning;
    if (imported && !noGlb) {
        const auto glbStart = std::chrono::steady_clock::now();
        try {
            hrm::GltfInput input;
            input.productStructure = received.productStructure;
            input.blockVisualizations.assign(received.blockVisualizations.begin(), received.blockVisualizations.end());
            input.rootAssemblyVisualization = received.rootVisualization;
            hrm::writeGlb(output, input);
        } catch (const std::exception& error) {
            std::fprintf(stderr, "hrm-host: %s\n", error.what());
            return translatorFailed;
        }
        summary.glbTime = std::chrono::steady_clock::now() - glbStart;
        summary.glbPath = output;
        std::error_code error;
        summary.glbBytes = static_cast<std::size_t>(std::filesystem::file_size(output, error));
    }
    summary.total = std::chrono::steady_clock::now() - start;
    if (imported) {
        host::printSummary(stdout, summary, received, traffic);
    } else {
        std::fprintf(stderr, "hrm-host: %s\n", hrm::toUtf8(received.result.message()).c_str());
    }
    return exitStatusOf(received.result.code());
}
