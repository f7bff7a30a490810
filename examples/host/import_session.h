#pragma once

// The host's side of one import: ping, info and the import command sent to the translator,
// every answer read, binary objects loaded from shared memory (and removed once read).

#include "translator_process.h"

#include <hrm_api/hrm_api_exchange_mechanical_roots.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_exchange_structure.h>
#include <hrm_api/hrm_api_exchange_visualization.h>
#include <hrm_api/hrm_api_hermetor_info.h>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace host {

// What the host asks for.
struct ImportRequest
{
    std::string file;
    double sag = 0;          // tessellation sag in millimetres, 0 for the translator's choice
    bool pmi = true;
    int timeoutSeconds = 0;  // the longest silence of the translator; 0 waits for ever
};

// Everything the translator sent for one import.
struct Received
{
    hrm::HermetorInfo info;
    std::shared_ptr<hrm::ExcProductStructure> productStructure;
    std::vector<std::shared_ptr<hrm::ExcBlockVisualization>> blockVisualizations;
    std::shared_ptr<hrm::ExcRootAssemblyVisualization> rootVisualization;
    std::shared_ptr<hrm::ExcRootMechanicalData> rootMechanicalData;
    std::vector<std::shared_ptr<hrm::ExcBlockMechanicalData>> blockMechanicalData;
    std::vector<std::wstring> logLines;  // warnings and notes, without the timing line
    std::vector<std::wstring> messages;
    hrm::Result result;
};

// How the exchange went.
struct Traffic
{
    using Clock = std::chrono::steady_clock;

    std::size_t envelopes = 0;
    std::size_t sharedObjects = 0;          // binary objects loaded from shared memory
    std::size_t sharedBytes = 0;            // their payloads, as they lay in shared memory
    std::size_t sharedObjectsLeft = 0;      // of those, buffers still there after loading
    Clock::duration loading{};              // reading envelopes and loading their objects
    Clock::duration import{};               // from the import command to its result
    std::map<std::string, double> translatorSeconds; // the translator's "timing" line
};

// Called with the stage and percentage of each progress report (percent < 0: no fraction known).
using ProgressCallback = std::function<void(const std::wstring& stage, int percent)>;

// A translator's failure: it died, broke the protocol, or went silent. The message says which.
class TranslatorFailure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Runs ping, info and the import on `translator`. Throws TranslatorFailure when the translator
// does not answer as it should.
void runImport(TranslatorProcess& translator, const ImportRequest& request, const ProgressCallback& progress,
               Received& received, Traffic& traffic);

} // namespace host
