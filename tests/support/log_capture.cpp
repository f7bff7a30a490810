#include "support/log_capture.h"

#include <memory>
#include <mutex>

namespace hrm::test {

class LogCapture::Logger : public ax_herm::ILogger
{
public:
    bool isOpen() const override { return true; }
    std::ostream& stream(int level) override
    {
        m_level = level;
        m_current.str({});
        return m_current;
    }
    void lock() override { m_mutex.lock(); }
    void unlock() override { m_mutex.unlock(); }
    void flush() override {}
    void endLine() override
    {
        std::string text = m_current.str();
        // MTLogger::begin writes "[<thread id>] " before the message.
        if (!text.empty() && text[0] == '[') {
            const auto end = text.find("] ");
            if (end != std::string::npos)
                text.erase(0, end + 2);
        }
        lines.push_back({m_level, text});
    }

    std::vector<LogLine> lines;

private:
    std::ostringstream m_current;
    int m_level = 0;
    std::mutex m_mutex;
};

LogCapture::LogCapture(int level)
{
    auto logger = std::make_unique<Logger>();
    m_logger = logger.get();
    ax_herm::LoggerHolder::setLogger(std::move(logger), level);
}

LogCapture::~LogCapture()
{
    ax_herm::LoggerHolder::setLogger(nullptr, 0);
}

const std::vector<LogLine>& LogCapture::lines() const
{
    return m_logger->lines;
}

std::vector<std::string> LogCapture::messages(int level) const
{
    std::vector<std::string> result;
    for (const auto& line : m_logger->lines)
        if (line.level == level)
            result.push_back(line.message);
    return result;
}

void LogCapture::clear()
{
    m_logger->lines.clear();
}

} // namespace hrm::test
