#pragma once

/// @file
/// The library's plain-text log: one process-wide logger, whole lines guarded by a mutex.
///
/// A line reads: level tag (10 characters), "[dd.mm.yyyy hh:mm:ss] ", "[<thread id in hex>] ",
/// the message. Logging is off until LoggerHolder::initLogger is called with a level > 0.

#include <hrm_api/hrm_api_export.h>

#include <fstream>
#include <memory>
#include <mutex>
#include <ostream>
#include <string>

namespace ax_herm {

/// The levels of log lines, from the most to the least severe.
enum LogLevel : int
{
    Fatal = 1,
    Error = 2,
    Warning = 3,
    Info = 4,
    Debug = 5,
    Trace = 6,
};

/// Where log lines go: the file logger, or one of the caller's own (LoggerHolder::setLogger).
class HRM_API ILogger
{
public:
    virtual ~ILogger() = default;
    /// Whether lines written now reach their destination.
    virtual bool isOpen() const = 0;
    /// Writes the level tag and the time stamp; the caller writes the message on the result.
    virtual std::ostream& stream(int level) = 0;
    /// Locks the logger for one line (MTLogger does it).
    virtual void lock() = 0;
    /// Unlocks the logger after a line.
    virtual void unlock() = 0;
    /// Writes what is buffered to the destination.
    virtual void flush() = 0;
    /// Ends the current line and flushes it.
    virtual void endLine() = 0;
};

/// Appends to a log file.
class HRM_API Logger : public ILogger
{
public:
    /// Opens `path` for appending; isOpen() says whether that worked.
    explicit Logger(const std::string& path);
    bool isOpen() const override;
    std::ostream& stream(int level) override;
    void lock() override;
    void unlock() override;
    void flush() override;
    void endLine() override;

private:
    std::ofstream m_stream;
    std::mutex m_mutex;
};

/// Holds the logger's lock for one line: ends, flushes and unlocks it on destruction.
class HRM_API MTLogger
{
public:
    /// Locks `logger` until the destructor.
    explicit MTLogger(ILogger& logger);
    ~MTLogger();
    MTLogger(const MTLogger&) = delete;
    MTLogger& operator=(const MTLogger&) = delete;

    /// Writes the level tag, the time stamp and the thread id; returns the stream for the message.
    std::ostream& begin(int level);

private:
    ILogger& m_logger;
};

/// Owns the process-wide logger and the configured level.
class HRM_API LoggerHolder
{
public:
    /// Level <= 0 changes nothing. Otherwise stores the level and replaces the logger by one on
    /// `path`; when that file cannot be opened no logger is left and nothing is logged.
    /// Not thread-safe: call it before other threads log.
    static void initLogger(int level, const std::string& path);
    /// Whether lines of `level` are written: a logger is set and `level` is at most the configured level.
    static bool levelEnabled(int level);
    /// The process-wide logger, or null.
    static ILogger* logger();
    /// Installs a logger of the caller's own (for example one that captures lines in memory).
    static void setLogger(std::unique_ptr<ILogger> logger, int level);

private:
    static std::unique_ptr<ILogger> s_logger;
    static int s_level;
};

/// The tag written at the start of a line of `level`.
HRM_API const char* levelTag(int level);

} // namespace ax_herm

/// HRM_LOG(level) << "message";  writes one line when `level` is enabled; the message is not
/// built otherwise. A single statement, safe under an unbraced if/else.
#define HRM_LOG(level)                                                                        \
    for (bool hrmLogEnabled_ = ::ax_herm::LoggerHolder::levelEnabled(level); hrmLogEnabled_;  \
         hrmLogEnabled_ = false)                                                              \
    ::ax_herm::MTLogger(*::ax_herm::LoggerHolder::logger()).begin(level)

#if defined(_MSC_VER)
#define HRM_FUNCTION_SIGNATURE __FUNCSIG__
#else
/// The current function's full signature, for trace lines.
#define HRM_FUNCTION_SIGNATURE __PRETTY_FUNCTION__
#endif

/// The trace line written on entry to important operations: "<unit>(<line>): <signature>".
#define HRM_TRACE() HRM_LOG(::ax_herm::Trace) << __FILE__ << '(' << __LINE__ << "): " << HRM_FUNCTION_SIGNATURE
