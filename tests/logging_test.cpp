#include <logging/ax_herm_logger.h>

#include "support/log_capture.h"
#include "support/temp_dir.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <thread>

namespace ax_herm {
namespace {

std::vector<std::string> fileLines(const std::filesystem::path& path)
{
    std::ifstream file(path);
    std::vector<std::string> lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

class LoggingTest : public ::testing::Test
{
protected:
    void SetUp() override { LoggerHolder::setLogger(nullptr, 0); }
    void TearDown() override { LoggerHolder::setLogger(nullptr, 0); }
    hrm::test::TempDir m_dir{"logging"};
};

TEST_F(LoggingTest, LevelTags)
{
    EXPECT_STREQ(levelTag(Fatal), "[FATAL]   ");
    EXPECT_STREQ(levelTag(Error), "[ERROR]   ");
    EXPECT_STREQ(levelTag(Warning), "[WARNING] ");
    EXPECT_STREQ(levelTag(Info), "[INFO]    ");
    EXPECT_STREQ(levelTag(Debug), "[DEBUG]   ");
    EXPECT_STREQ(levelTag(Trace), "[TRACE]   ");
    EXPECT_STREQ(levelTag(0), "[UNKNOWN] ");
    EXPECT_STREQ(levelTag(7), "[UNKNOWN] ");
}

TEST_F(LoggingTest, InitLoggerRules)
{
    const auto path = m_dir.path() / "log.txt";
    EXPECT_FALSE(LoggerHolder::levelEnabled(1));
    HRM_LOG(Fatal) << "nobody hears this";

    LoggerHolder::initLogger(0, path.string());
    EXPECT_FALSE(std::filesystem::exists(path));
    EXPECT_EQ(LoggerHolder::logger(), nullptr);

    LoggerHolder::initLogger(2, path.string());
    EXPECT_TRUE(LoggerHolder::levelEnabled(2));
    EXPECT_FALSE(LoggerHolder::levelEnabled(3));
    HRM_LOG(Error) << "value " << 42;
    HRM_LOG(Warning) << "filtered";

    const auto lines = fileLines(path);
    ASSERT_EQ(lines.size(), 3u);
    const std::string stamp = R"(\[\d\d\.\d\d\.\d{4} \d\d:\d\d:\d\d\] )";
    EXPECT_TRUE(std::regex_match(lines[0], std::regex(R"(\[INFO\]    )" + stamp + std::string(102, '='))));
    EXPECT_TRUE(std::regex_match(lines[1], std::regex(R"(\[INFO\]    )" + stamp + "Logger initialized with level 2")));
    EXPECT_TRUE(std::regex_match(lines[2], std::regex(R"(\[ERROR\]   )" + stamp + R"(\[[0-9a-f]+\] value 42)")))
        << lines[2];

    // Level <= 0 keeps the logger; a second init appends to the same file.
    LoggerHolder::initLogger(-1, path.string());
    EXPECT_TRUE(LoggerHolder::levelEnabled(2));
    LoggerHolder::initLogger(6, path.string());
    EXPECT_EQ(fileLines(path).size(), 5u);

    // A path that cannot be opened leaves no logger at all.
    LoggerHolder::initLogger(6, (m_dir.path() / "missing" / "log.txt").string());
    EXPECT_EQ(LoggerHolder::logger(), nullptr);
    EXPECT_FALSE(LoggerHolder::levelEnabled(1));
}

TEST_F(LoggingTest, ConcurrentLinesDoNotInterleave)
{
    const auto path = m_dir.path() / "mt.txt";
    LoggerHolder::initLogger(Trace, path.string());
    constexpr int perThread = 200;
    auto work = [](char letter) {
        for (int i = 0; i < perThread; ++i)
            HRM_LOG(Debug) << std::string(50, letter) << ' ' << i;
    };
    std::thread a(work, 'a'), b(work, 'b');
    a.join();
    b.join();

    const auto lines = fileLines(path);
    ASSERT_EQ(lines.size(), 2u + 2 * perThread);
    const std::regex line(R"(\[DEBUG\]   \[[^\]]+\] \[([0-9a-f]+)\] (a{50}|b{50}) \d+)");
    std::map<std::string, std::string> threadOfLetter;
    for (size_t i = 2; i < lines.size(); ++i) {
        std::smatch match;
        ASSERT_TRUE(std::regex_match(lines[i], match, line)) << lines[i];
        auto [it, added] = threadOfLetter.emplace(match[2].str().substr(0, 1), match[1].str());
        EXPECT_EQ(it->second, match[1].str()); // one thread id per writer
    }
    ASSERT_EQ(threadOfLetter.size(), 2u);
    EXPECT_NE(threadOfLetter["a"], threadOfLetter["b"]);
}

TEST_F(LoggingTest, TraceLineNamesUnitLineAndSignature)
{
    hrm::test::LogCapture log;
    const int line = __LINE__ + 1;
    HRM_TRACE();
    const auto traces = log.messages(Trace);
    ASSERT_EQ(traces.size(), 1u);
    EXPECT_NE(traces[0].find("logging_test.cpp(" + std::to_string(line) + "): "), std::string::npos) << traces[0];
    EXPECT_NE(traces[0].find("TestBody()"), std::string::npos) << traces[0];
}

} // namespace
} // namespace ax_herm
