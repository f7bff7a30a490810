// The frames of the host's and the translator's pipes: what a reader takes, and what it refuses
// from a misbehaving peer.

#include "frame.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <string>

namespace {

// A pipe whose write end is closed once `bytes` are in it.
class Pipe
{
public:
    explicit Pipe(const std::string& bytes)
    {
        EXPECT_EQ(pipe(m_fds), 0);
        EXPECT_EQ(write(m_fds[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
        close(m_fds[1]);
    }
    ~Pipe() { close(m_fds[0]); }
    int fd() const { return m_fds[0]; }

private:
    int m_fds[2];
};

TEST(Frame, ReadsFramesBackToBackAndEndsBetweenThem)
{
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    frame::write(fds[1], "command", "{\"command\": \"ping\"}");
    frame::write(fds[1], "result", "");
    frame::write(fds[1], "envelope", "\xc3\xa9\n{}");
    close(fds[1]);

    frame::Reader reader(fds[0]);
    const auto first = reader.read();
    ASSERT_TRUE(first);
    EXPECT_EQ(first->kind, "command");
    EXPECT_EQ(first->text, "{\"command\": \"ping\"}");
    const auto empty = reader.read();
    ASSERT_TRUE(empty);
    EXPECT_EQ(empty->kind, "result");
    EXPECT_EQ(empty->text, "");
    const auto third = reader.read();
    ASSERT_TRUE(third);
    EXPECT_EQ(third->text, "\xc3\xa9\n{}"); // a newline inside a document is the document's
    EXPECT_FALSE(reader.read());
    close(fds[0]);
}

TEST(Frame, RefusesWhatNoWriterSends)
{
    const std::string oversize = "envelope " + std::to_string(frame::maxFrameLength + 1) + "\n";
    for (const std::string& bytes : {std::string("result\n{}"), std::string("Result 2\n{}"), std::string("result -2\n{}"),
                                     std::string("result 2x\n{}"), std::string(" 2\n{}"), std::string(40, 'a'),
                                     std::string("result 99999999999\n"), oversize, std::string("result 5\n{}"),
                                     std::string("result 2")}) {
        Pipe pipe(bytes);
        frame::Reader reader(pipe.fd());
        EXPECT_THROW(reader.read(), frame::FrameError) << bytes;
    }
    EXPECT_THROW(frame::write(1, "Bad kind", ""), frame::FrameError);
}

TEST(Frame, GivesUpOnASilentPeer)
{
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    frame::Reader reader(fds[0]);
    EXPECT_THROW(reader.read(10), frame::FrameError);
    close(fds[0]);
    close(fds[1]);
}

} // namespace
