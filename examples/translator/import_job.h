#pragma once

// One import: the file read with OpenCASCADE, its exchange objects sent as each stage
// completes, then the Result.

#include "channel.h"

#include <hrm_api/hrm_api_command_options.h>

#include <atomic>
#include <string>

namespace translator {

// What an import command asks for, as far as this translator honours it.
struct ImportSettings
{
    std::string file;
    double sag = 0;                 // tessellation sag in millimetres; 0 lets the translator choose
    double angle = 0.5;             // angular deviation of the tessellation in radians (not in the command:
                                    // the translator's own setting)
    bool visualization = true;      // a block visualization per part
    bool rootVisualization = true;  // the root assembly visualization
    bool pmi = true;                // the mechanical data with the semantic PMI
};

// The settings of an import command's options: the file; the graphical options' 3D sag; the
// STEP options' visualization switches (when the command carries STEP options) and the
// graphical tessellation mode "never"; the modeler options' PMI mode "disabled".
ImportSettings settingsOf(const hrm::ImportOptions& options);

// A Result that ends a command: its code and message, finished.
hrm::Result endResult(hrm::Result::ECode code, const std::wstring& message);

// Runs one import and says how it ended. Objects go out on the channel as they are ready; the
// job stops early, with an interrupted result, once `stop` is set.
hrm::Result runImport(Channel& channel, const ImportSettings& settings, const std::atomic<bool>& stop);

} // namespace translator
