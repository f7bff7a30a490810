#pragma once

// How the host and the translator frame their text documents on a pipe.
//
// Every document travels as one frame: a header line of ASCII text, "<kind> <length>\n", then
// exactly <length> bytes of the document's JSON text in UTF-8. The kinds are
//
//   command    host to translator: a command document (written pretty)
//   result     translator to host: the Result that ends a command
//   info       translator to host: the HermetorInfo answering an info command
//   envelope   translator to host: one exchange object's envelope (written compact)
//
// A kind is 1 to 16 lowercase letters; a length is decimal, at most maxFrameLength. A reader
// refuses anything else (FrameError) rather than guess where the next frame starts.

#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>

namespace frame {

// The largest document a frame may carry. Envelopes carry buffer names, not payloads, so text
// documents stay small; this only bounds what a misbehaving peer can make the reader allocate.
constexpr std::size_t maxFrameLength = 16u << 20;

// One framed document.
struct Frame
{
    std::string kind;
    std::string text; // UTF-8
};

// A broken frame, or a pipe that failed.
class FrameError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// Reads frames from a file descriptor (a pipe), buffering what it has read.
class Reader
{
public:
    explicit Reader(int fd) : m_fd(fd) {}

    // The next frame, or none at the end of the stream between frames. Throws FrameError for
    // a malformed header, an oversize length, a stream that ends inside a frame or a read
    // error. With a timeout (milliseconds, negative waits for ever), throws FrameError when no
    // byte arrives for that long.
    std::optional<Frame> read(int timeoutMilliseconds = -1);

private:
    // Appends at least one byte to the buffer; false at the end of the stream.
    bool fill(int timeoutMilliseconds);

    int m_fd;
    std::string m_buffer;
    std::size_t m_position = 0;
};

// Writes one frame, all of it. Throws FrameError when the pipe fails (for example when the
// reader has gone: SIGPIPE is expected to be ignored).
void write(int fd, const std::string& kind, const std::string& text);

} // namespace frame
