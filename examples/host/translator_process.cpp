#include "translator_process.h"

#include <hrm_api/hrm_api_json.h>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <thread>

extern char** environ;

namespace host {
namespace {

void closeIfOpen(int& fd)
{
    if (fd >= 0)
        ::close(fd);
    fd = -1;
}

} // namespace

TranslatorProcess::TranslatorProcess(const std::string& program, const std::vector<std::string>& arguments)
{
    int toChild[2], fromChild[2];
    if (pipe2(toChild, O_CLOEXEC) != 0)
        throw std::runtime_error(std::string("Cannot make a pipe: ") + std::strerror(errno));
    if (pipe2(fromChild, O_CLOEXEC) != 0) {
        const int error = errno;
        ::close(toChild[0]);
        ::close(toChild[1]);
        throw std::runtime_error(std::string("Cannot make a pipe: ") + std::strerror(error));
    }
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, toChild[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, fromChild[1], STDOUT_FILENO);

    // The translator handles its signals itself, whatever the host ignores.
    posix_spawnattr_t attributes;
    posix_spawnattr_init(&attributes);
    sigset_t defaults;
    sigemptyset(&defaults);
    sigaddset(&defaults, SIGINT);
    sigaddset(&defaults, SIGPIPE);
    posix_spawnattr_setsigdefault(&attributes, &defaults);
    posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETSIGDEF);

    std::vector<std::string> strings{program};
    strings.insert(strings.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    for (std::string& s : strings)
        argv.push_back(s.data());
    argv.push_back(nullptr);
    const int spawned = posix_spawn(&m_pid, program.c_str(), &actions, &attributes, argv.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    posix_spawnattr_destroy(&attributes);
    ::close(toChild[0]);
    ::close(fromChild[1]);
    m_input = toChild[1];
    m_output = fromChild[0];
    if (spawned != 0) {
        closeIfOpen(m_input);
        closeIfOpen(m_output);
        m_pid = -1;
        throw std::runtime_error("Cannot start the translator " + program + ": " + std::strerror(spawned));
    }
    m_reader.emplace(m_output);
}

TranslatorProcess::~TranslatorProcess()
{
    if (m_pid > 0 && !m_status)
        kill();
    closeIfOpen(m_input);
    closeIfOpen(m_output);
}

void TranslatorProcess::sendCommand(const std::wstring& text)
{
    frame::write(m_input, "command", hrm::toUtf8(text));
}

std::optional<frame::Frame> TranslatorProcess::receive(int timeoutSeconds)
{
    return m_reader->read(timeoutSeconds > 0 ? timeoutSeconds * 1000 : -1);
}

void TranslatorProcess::finish()
{
    closeIfOpen(m_input);
    if (!waitFor(10000))
        kill();
}

void TranslatorProcess::kill()
{
    if (m_pid <= 0 || m_status)
        return;
    ::kill(m_pid, SIGTERM);
    if (!waitFor(2000)) {
        ::kill(m_pid, SIGKILL);
        waitFor(-1);
    }
}

bool TranslatorProcess::waitFor(int milliseconds)
{
    if (m_status)
        return true;
    for (int waited = 0;; waited += 10) {
        int status = 0;
        const pid_t ended = waitpid(m_pid, &status, milliseconds < 0 ? 0 : WNOHANG);
        if (ended == m_pid) {
            m_status = status;
            return true;
        }
        if (ended < 0 && errno != EINTR)
            return false;
        if (milliseconds >= 0 && waited >= milliseconds)
            return false;
        if (milliseconds >= 0)
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
}

std::string TranslatorProcess::howItEnded()
{
    if (!waitFor(1000))
        return {};
    if (WIFEXITED(*m_status))
        return "exited with status " + std::to_string(WEXITSTATUS(*m_status));
    if (WIFSIGNALED(*m_status))
        return "was killed by signal " + std::to_string(WTERMSIG(*m_status)) + " (" + strsignal(WTERMSIG(*m_status)) + ")";
    return "ended";
}

} // namespace host
