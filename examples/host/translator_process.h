#pragma once

// The translator as a child process of the host: its standard input and output are the host's
// pipes, its standard error is the host's.

#include "frame.h"

#include <sys/types.h>

#include <optional>
#include <string>
#include <vector>

namespace host {

// The translator process, ended (and waited for) when the object goes.
class TranslatorProcess
{
public:
    // Starts `program` with `arguments`. Throws std::runtime_error when it cannot be started.
    TranslatorProcess(const std::string& program, const std::vector<std::string>& arguments);
    ~TranslatorProcess();
    TranslatorProcess(const TranslatorProcess&) = delete;
    TranslatorProcess& operator=(const TranslatorProcess&) = delete;

    pid_t pid() const { return m_pid; }

    // Sends one command document.
    void sendCommand(const std::wstring& text);
    // The next frame, or none when the translator has closed its output. Throws
    // frame::FrameError for a broken frame or when nothing arrives for `timeoutSeconds`
    // (0 waits for ever).
    std::optional<frame::Frame> receive(int timeoutSeconds);

    // Closes the translator's input, which ends it, and waits for it to exit.
    void finish();
    // Ends the translator now: SIGTERM, then SIGKILL when it has not gone within two seconds.
    void kill();
    // How the process ended, for a person ("exited with status 1", "was killed by signal 9
    // (Killed)"), once it has ended; empty while it runs.
    std::string howItEnded();

private:
    bool waitFor(int milliseconds);

    pid_t m_pid = -1;
    int m_input = -1;  // the translator's standard input
    int m_output = -1; // the translator's standard output
    std::optional<frame::Reader> m_reader;
    std::optional<int> m_status;
};

} // namespace host
