#pragma once

// Captures the library's log lines in memory for the duration of a test.
//
//   LogCapture log;                      // level 6: everything
//   ... call the library ...
//   EXPECT_EQ(log.messages(ax_herm::Error), (std::vector<std::string>{"... should ..."}));

#include <logging/ax_herm_logger.h>

#include <sstream>
#include <string>
#include <vector>

namespace hrm::test {

struct LogLine
{
    int level;
    std::string message; // without the tag, time stamp and thread id
};

class LogCapture
{
public:
    explicit LogCapture(int level = ax_herm::Trace);
    ~LogCapture();
    LogCapture(const LogCapture&) = delete;
    LogCapture& operator=(const LogCapture&) = delete;

    const std::vector<LogLine>& lines() const;
    // The messages written at exactly `level`, in order.
    std::vector<std::string> messages(int level) const;
    void clear();

private:
    class Logger;
    Logger* m_logger;
};

} // namespace hrm::test
