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

void appendUtf8(std::string& out, char32_t c)
{
    if (c < 0x80) {
        out += static_cast<char>(c);
    } else if (c < 0x800) {
        out += static_cast<char>(0xC0 | (c >> 6));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        out += static_cast<char>(0xE0 | (c >> 12));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        out += static_cast<char>(0xF0 | (c >> 18));
        out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        out += static_cast<char>(0x80 | (c & 0x3F));
    }
}

void appendWide(std::wstring& out, char32_t c)
{
    if constexpr (sizeof(wchar_t) == 2) {
        if (c >= 0x10000) {
            c -= 0x10000;
            out += static_cast<wchar_t>(0xD800 + (c >> 10));
            out += static_cast<wchar_t>(0xDC00 + (c & 0x3FF));
            return;
        }
    }
    out += static_cast<wchar_t>(c);
}

constexpr char32_t replacement = 0xFFFD;

bool isSurrogate(char32_t c)
{
    return c >= 0xD800 && c <= 0xDFFF;
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

std::string toUtf8(const std::wstring& text)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        char32_t c = static_cast<char32_t>(text[i]);
        if constexpr (sizeof(wchar_t) == 2) {
            c &= 0xFFFF;
            if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
                const char32_t low = static_cast<char32_t>(text[i + 1]) & 0xFFFF;
                if (low >= 0xDC00 && low <= 0xDFFF) {
                    c = 0x10000 + ((c - 0xD800) << 10) + (low - 0xDC00);
                    ++i;
                }
            }
        }
        if (isSurrogate(c) || c > 0x10FFFF)
            c = replacement;
        appendUtf8(out, c);
    }
    return out;
}

std::wstring fromUtf8(const std::string& text)
{
    std::wstring out;
    out.reserve(text.size());
    std::size_t i = 0;
    while (i < text.size()) {
        const unsigned char lead = static_cast<unsigned char>(text[i]);
        if (lead < 0x80) {
            out += static_cast<wchar_t>(lead);
            ++i;
            continue;
        }
        const std::size_t extra = lead >= 0xC2 && lead <= 0xDF ? 1 : lead >= 0xE0 && lead <= 0xEF ? 2 : lead >= 0xF0 && lead <= 0xF4 ? 3 : 0;
        char32_t c = lead & (0x3F >> extra);
        std::size_t k = 1;
        while (extra > 0 && k <= extra && i + k < text.size() && (static_cast<unsigned char>(text[i + k]) & 0xC0) == 0x80) {
            c = (c << 6) | (static_cast<unsigned char>(text[i + k]) & 0x3F);
            ++k;
        }
        const char32_t smallest = extra == 1 ? 0x80 : extra == 2 ? 0x800 : 0x10000;
        const bool valid = extra > 0 && k == extra + 1 && c >= smallest && !isSurrogate(c) && c <= 0x10FFFF;
        appendWide(out, valid ? c : replacement);
        i += k;
    }
    return out;
}

} // namespace frame
