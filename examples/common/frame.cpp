#include "frame.h"

#include <poll.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace frame {
namespace {

// A header is short: a kind of at most 16 letters, a blank, at most 10 digits, a newline.
constexpr std::size_t maxHeaderLength = 16 + 1 + 10 + 1;

bool validKind(const std::string& kind)
{
    if (kind.empty() || kind.size() > 16)
        return false;
    for (char c : kind) {
        if (c < 'a' || c > 'z')
            return false;
    }
    return true;
}

// "<kind> <length>" without its newline.
Frame parsedHeader(const std::string& header, std::size_t& length)
{
    const std::size_t blank = header.find(' ');
    if (blank == std::string::npos)
        throw FrameError("Malformed frame header");
    Frame frame;
    frame.kind = header.substr(0, blank);
    const std::string digits = header.substr(blank + 1);
    if (!validKind(frame.kind) || digits.empty() || digits.size() > 10 ||
        digits.find_first_not_of("0123456789") != std::string::npos)
        throw FrameError("Malformed frame header");
    length = std::stoull(digits);
    if (length > maxFrameLength)
        throw FrameError("Frame of " + digits + " bytes exceeds the limit of " + std::to_string(maxFrameLength));
    return frame;
}

} // namespace

std::optional<Frame> Reader::read(int timeoutMilliseconds)
{
    // Drop what earlier frames used, so the buffer holds one frame at most.
    m_buffer.erase(0, m_position);
    m_position = 0;

    std::size_t newline;
    while ((newline = m_buffer.find('\n')) == std::string::npos) {
        if (m_buffer.size() > maxHeaderLength)
            throw FrameError("Malformed frame header");
        if (!fill(timeoutMilliseconds)) {
            if (m_buffer.empty())
                return std::nullopt;
            throw FrameError("The stream ended inside a frame header");
        }
    }
    if (newline > maxHeaderLength)
        throw FrameError("Malformed frame header");
    std::size_t length = 0;
    Frame frame = parsedHeader(m_buffer.substr(0, newline), length);
    const std::size_t start = newline + 1;
    while (m_buffer.size() - start < length) {
        if (!fill(timeoutMilliseconds))
            throw FrameError("The stream ended inside a '" + frame.kind + "' frame");
    }
    frame.text = m_buffer.substr(start, length);
    m_position = start + length;
    return frame;
}

bool Reader::fill(int timeoutMilliseconds)
{
    char chunk[65536];
    for (;;) {
        pollfd descriptor{m_fd, POLLIN, 0};
        const int ready = poll(&descriptor, 1, timeoutMilliseconds);
        if (ready < 0 && errno == EINTR)
            continue;
        if (ready < 0)
            throw FrameError(std::string("Cannot wait for the pipe: ") + std::strerror(errno));
        if (ready == 0)
            throw FrameError("No answer within " + std::to_string(timeoutMilliseconds / 1000) + " s");
        const ssize_t count = ::read(m_fd, chunk, sizeof chunk);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw FrameError(std::string("Cannot read from the pipe: ") + std::strerror(errno));
        if (count == 0)
            return false;
        m_buffer.append(chunk, static_cast<std::size_t>(count));
        return true;
    }
}

void write(int fd, const std::string& kind, const std::string& text)
{
    if (!validKind(kind) || text.size() > maxFrameLength)
        throw FrameError("Cannot frame a '" + kind + "' document of " + std::to_string(text.size()) + " bytes");
    const std::string bytes = kind + ' ' + std::to_string(text.size()) + '\n' + text;
    std::size_t written = 0;
    while (written < bytes.size()) {
        const ssize_t count = ::write(fd, bytes.data() + written, bytes.size() - written);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw FrameError(std::string("Cannot write to the pipe: ") + std::strerror(errno));
        written += static_cast<std::size_t>(count);
    }
}

} // namespace frame
