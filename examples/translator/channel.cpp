#include "channel.h"

#include "shared_memory.h"

#include <mp/mp_shared_buffer.h>

#include <unistd.h>

#include <cstdio>

namespace translator {

Channel Channel::fromStandardStreams()
{
    std::fflush(stdout);
    const int out = dup(STDOUT_FILENO);
    if (out < 0 || dup2(STDERR_FILENO, STDOUT_FILENO) < 0)
        throw std::runtime_error("Cannot set up the answer channel");
    return Channel(STDIN_FILENO, out);
}

std::optional<frame::Frame> Channel::nextCommand()
{
    return m_reader.read();
}

void Channel::sendText(const std::string& kind, const std::wstring& text)
{
    try {
        frame::write(m_out, kind, hrm::toUtf8(text));
    } catch (const frame::FrameError& error) {
        throw HostGone(error.what());
    }
}

void Channel::send(const hrm::Result& result)
{
    sendText("result", mp::toText(result));
}

void Channel::send(const hrm::HermetorInfo& info)
{
    sendText("info", mp::toText(info));
}

void Channel::send(const std::shared_ptr<hrm::IExchangeObject>& object)
{
    const auto start = std::chrono::steady_clock::now();
    std::wstring buffer;
    const std::wstring envelope = hrm::toEnvelope(*object, &buffer);
    m_writingTime += std::chrono::steady_clock::now() - start;
    if (!buffer.empty())
        m_sharedBytes += frame::sharedMemorySize(buffer);
    try {
        sendText("envelope", envelope);
    } catch (const HostGone&) {
        if (!buffer.empty())
            mp::SharedBuffer<char>::remove(buffer);
        throw;
    }
}

} // namespace translator
