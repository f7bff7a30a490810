#include <logging/ax_herm_logger.h>

#include <chrono>
#include <ctime>
#include <iomanip>
#include <string>

#if defined(_WIN32)
#include <windows.h>
#else
#include <sys/syscall.h>
#include <unistd.h>
#endif

namespace ax_herm {
namespace {

unsigned long long currentThreadId()
{
#if defined(_WIN32)
    return GetCurrentThreadId();
#else
    return static_cast<unsigned long long>(::syscall(SYS_gettid));
#endif
}

std::tm localTime(std::time_t time)
{
    std::tm result{};
#if defined(_WIN32)
    localtime_s(&result, &time);
#else
    localtime_r(&time, &result);
#endif
    return result;
}

} // namespace

const char* levelTag(int level)
{
    switch (level) {
    case Fatal: return "[FATAL]   ";
    case Error: return "[ERROR]   ";
    case Warning: return "[WARNING] ";
    case Info: return "[INFO]    ";
    case Debug: return "[DEBUG]   ";
    case Trace: return "[TRACE]   ";
    default: return "[UNKNOWN] ";
    }
}

Logger::Logger(const std::string& path) : m_stream(path, std::ios::out | std::ios::app) {}

bool Logger::isOpen() const
{
    return m_stream.is_open();
}

std::ostream& Logger::stream(int level)
{
    const std::tm now = localTime(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()));
    // Spelt out rather than "%T": the C runtime of Windows (msvcrt) does not know "%T".
    m_stream << levelTag(level) << '[' << std::put_time(&now, "%d.%m.%Y %H:%M:%S") << "] ";
    return m_stream;
}

void Logger::lock()
{
    m_mutex.lock();
}

void Logger::unlock()
{
    m_mutex.unlock();
}

void Logger::flush()
{
    m_stream.flush();
}

void Logger::endLine()
{
    m_stream << '\n';
    m_stream.flush();
}

MTLogger::MTLogger(ILogger& logger) : m_logger(logger)
{
    m_logger.lock();
}

MTLogger::~MTLogger()
{
    m_logger.endLine();
    m_logger.flush();
    m_logger.unlock();
}

std::ostream& MTLogger::begin(int level)
{
    std::ostream& out = m_logger.stream(level);
    out << '[' << std::hex << currentThreadId() << std::dec << "] ";
    return out;
}

std::unique_ptr<ILogger> LoggerHolder::s_logger;
int LoggerHolder::s_level = 0;

void LoggerHolder::initLogger(int level, const std::string& path)
{
    if (level <= 0)
        return;
    s_level = level;
    s_logger = std::make_unique<Logger>(path);
    if (!s_logger->isOpen()) {
        s_logger.reset();
        return;
    }
    s_logger->stream(Info) << std::string(102, '=');
    s_logger->endLine();
    s_logger->stream(Info) << "Logger initialized with level " << level;
    s_logger->endLine();
}

void LoggerHolder::setLogger(std::unique_ptr<ILogger> logger, int level)
{
    s_logger = std::move(logger);
    s_level = level;
}

bool LoggerHolder::levelEnabled(int level)
{
    return s_level >= level && s_logger && s_logger->isOpen();
}

ILogger* LoggerHolder::logger()
{
    return s_logger.get();
}

} // namespace ax_herm
