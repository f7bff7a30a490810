#pragma once

// The translator's side of the pipes: commands in on standard input, answers out on standard
// output, one frame each (common/frame.h).

#include "frame.h"

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_hermetor_info.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>

namespace translator {

// The host has gone: its end of the pipe is closed.
class HostGone : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads commands and writes results, infos and exchange objects.
class Channel
{
public:
    // Takes over the process's standard output for the answers and points file descriptor 1
    // at standard error, so that whatever else prints cannot break a frame.
    static Channel fromStandardStreams();

    // The next command's text, or none when the host has closed the pipe.
    std::optional<frame::Frame> nextCommand();

    void send(const hrm::Result& result);
    void send(const hrm::HermetorInfo& info);
    // Writes the object's envelope (a binary object's payload goes to a new shared-memory
    // buffer). When the host cannot take the envelope any more, removes that buffer and
    // throws HostGone.
    void send(const std::shared_ptr<hrm::IExchangeObject>& object);

    // Time spent writing envelopes, shared-memory payloads included.
    std::chrono::steady_clock::duration writingTime() const { return m_writingTime; }
    // Bytes put into shared memory.
    std::size_t sharedBytes() const { return m_sharedBytes; }

private:
    Channel(int in, int out) : m_reader(in), m_out(out) {}
    void sendText(const std::string& kind, const std::wstring& text);

    frame::Reader m_reader;
    int m_out;
    std::chrono::steady_clock::duration m_writingTime{};
    std::size_t m_sharedBytes = 0;
};

} // namespace translator
