#pragma once

// What the host shows: a progress bar while the import runs (on a terminal only), and the
// summary at the end.

#include "import_session.h"

#include <chrono>
#include <cstdio>
#include <optional>
#include <string>

namespace host {

// A one-line progress bar, redrawn in place on a terminal; silent elsewhere.
class ProgressBar
{
public:
    explicit ProgressBar(std::FILE* out);
    ~ProgressBar() { clear(); }

    // Shows the stage with its percentage (negative: activity of unknown amount).
    void show(const std::wstring& stage, int percent);
    // Removes the bar from the line.
    void clear();

private:
    std::FILE* m_out;
    bool m_terminal;
    bool m_shown = false;
    int m_spinner = 0;
};

// The figures of one run, as the summary prints them.
struct Summary
{
    std::string file;
    std::string glbPath;                 // empty when no .glb was written
    std::size_t glbBytes = 0;
    std::chrono::steady_clock::duration glbTime{};
    std::chrono::steady_clock::duration total{};
};

// Prints the summary of a finished import.
void printSummary(std::FILE* out, const Summary& summary, const Received& received, const Traffic& traffic);

} // namespace host
