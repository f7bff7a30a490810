#include "hrm_tool.h"

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_json_binary.h>
#include <logging/ax_herm_logger.h>
#include <mp/mp_shared_buffer.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <memory>
#include <mutex>
#include <sstream>

#if defined(_WIN32)
#include <boost/interprocess/detail/shared_dir_helpers.hpp>
#include <fcntl.h>
#include <io.h>
#else
#include <unistd.h>
#endif

namespace hrm::tool {

namespace fs = std::filesystem;

// ---- Files and standard streams -------------------------------------------------------------

std::string readBytes(const std::string& path)
{
    if (path == "-") {
#if defined(_WIN32)
        _setmode(_fileno(stdin), _O_BINARY);
#endif
        return std::string(std::istreambuf_iterator<char>(std::cin), std::istreambuf_iterator<char>());
    }
    std::ifstream in(fs::u8path(path), std::ios::binary);
    if (!in)
        throw Failure("cannot read " + path);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeBytes(const std::string& path, const std::string& bytes)
{
    if (path == "-") {
#if defined(_WIN32)
        _setmode(_fileno(stdout), _O_BINARY);
#endif
        std::cout.write(bytes.data(), std::streamsize(bytes.size()));
        if (!std::cout.flush())
            throw Failure("cannot write to standard output");
        return;
    }
    std::ofstream out(fs::u8path(path), std::ios::binary);
    if (!out.write(bytes.data(), std::streamsize(bytes.size())) || !out.flush())
        throw Failure("cannot write " + path);
}

bool stderrIsTerminal()
{
#if defined(_WIN32)
    return _isatty(_fileno(stderr)) != 0;
#else
    return isatty(STDERR_FILENO) != 0;
#endif
}

namespace {

// The UTF-16 code units of `bytes` after `skip` bytes, as wide text.
std::wstring fromUtf16(const std::string& bytes, std::size_t skip, bool bigEndian)
{
    std::u16string units;
    for (std::size_t i = skip; i + 1 < bytes.size(); i += 2) {
        const auto a = static_cast<unsigned char>(bytes[i]), b = static_cast<unsigned char>(bytes[i + 1]);
        units.push_back(static_cast<char16_t>(bigEndian ? (a << 8 | b) : (b << 8 | a)));
    }
    std::wstring text;
    for (std::size_t i = 0; i < units.size(); ++i) {
        const char32_t unit = units[i];
        const bool pair = unit >= 0xD800 && unit < 0xDC00 && i + 1 < units.size() && units[i + 1] >= 0xDC00 &&
                          units[i + 1] < 0xE000;
        if (sizeof(wchar_t) == 2 || !pair) {
            text.push_back(static_cast<wchar_t>(unit));
            continue;
        }
        text.push_back(static_cast<wchar_t>(0x10000 + ((unit - 0xD800) << 10) + (units[i + 1] - 0xDC00)));
        ++i;
    }
    return text;
}

} // namespace

std::wstring decodeText(const std::string& bytes)
{
    auto starts = [&](const char* mark) { return bytes.rfind(mark, 0) == 0; };
    if (starts("\xFF\xFE"))
        return fromUtf16(bytes, 2, false);
    if (starts("\xFE\xFF"))
        return fromUtf16(bytes, 2, true);
    if (starts("\xEF\xBB\xBF"))
        return fromUtf8(bytes.substr(3));
    if (bytes.size() >= 2 && bytes[0] != '\0' && bytes[1] == '\0')
        return fromUtf16(bytes, 0, false);
    return fromUtf8(bytes);
}

// ---- JSON ---------------------------------------------------------------------------------------

std::string prettyJson(const JsonValue& value)
{
    return toUtf8(JsonTextIO::toString(value, true)) + "\n";
}

void decodePayload(const std::string& bytes, JsonDocument& document)
{
    std::string inflated;
    const bool compressed = Compressor::isCompressed(bytes.data(), bytes.size());
    if (compressed)
        Compressor::decompress(inflated, bytes.data(), bytes.size());
    const std::string& data = compressed ? inflated : bytes;
    const std::size_t used = JsonBinaryIO::decode(data.data(), data.size(), document, document.GetAllocator());
    if (used != data.size())
        throw Failure(std::to_string(data.size() - used) + " bytes after the binary JSON value");
}

std::string readSharedMemory(const std::wstring& name)
{
    const mp::SharedBuffer<char> buffer(name, false, mp::SharedBuffer<char>::Open::Existing);
    std::vector<char> bytes;
    buffer.read(bytes, Compressor::decompressedSizeLimit());
    return std::string(bytes.begin(), bytes.end());
}

std::vector<std::wstring> splitEnvelopes(const std::wstring& text)
{
    std::vector<std::wstring> envelopes;
    std::size_t i = 0;
    auto blank = [](wchar_t ch) { return ch == L' ' || ch == L'\t' || ch == L'\r' || ch == L'\n' || ch == 0xFEFF; };
    while (true) {
        while (i < text.size() && blank(text[i]))
            ++i;
        if (i == text.size())
            return envelopes;
        const std::size_t start = i;
        if (text[i] != L'{') {
            i = std::min(text.find(L'\n', i), text.size());
            envelopes.push_back(text.substr(start, i - start));
            continue;
        }
        // The matching brace, outside strings.
        std::size_t depth = 0;
        bool inString = false;
        for (; i < text.size(); ++i) {
            const wchar_t ch = text[i];
            if (inString) {
                if (ch == L'\\')
                    ++i;
                else if (ch == L'"')
                    inString = false;
            } else if (ch == L'"') {
                inString = true;
            } else if (ch == L'{' || ch == L'[') {
                ++depth;
            } else if ((ch == L'}' || ch == L']') && --depth == 0) {
                ++i;
                break;
            }
        }
        if (depth > 0) // never closed: a bad envelope, up to the end of its line
            i = std::min(text.find(L'\n', start), text.size());
        i = std::min(i, text.size());
        envelopes.push_back(text.substr(start, i - start));
    }
}

namespace {

// The library's log lines on standard error: "hrm: <context><message>".
class StderrLogger : public ax_herm::ILogger
{
public:
    explicit StderrLogger(std::function<std::string()> context) : m_context(std::move(context)) {}

    std::size_t lines = 0;

    bool isOpen() const override { return true; }
    std::ostream& stream(int) override
    {
        m_line.str({});
        return m_line;
    }
    void lock() override { m_mutex.lock(); }
    void unlock() override { m_mutex.unlock(); }
    void flush() override {}
    void endLine() override
    {
        std::string text = m_line.str();
        if (!text.empty() && text[0] == '[') // the thread id before the message
            text.erase(0, std::min(text.size(), text.find("] ") + 2));
        std::cerr << "hrm: " << m_context() << text << std::endl;
        ++lines;
    }

private:
    std::function<std::string()> m_context;
    std::ostringstream m_line;
    std::mutex m_mutex;
};

} // namespace

LogToStderr::LogToStderr(int level, std::function<std::string()> context)
{
    auto logger = std::make_unique<StderrLogger>(std::move(context));
    m_lines = &logger->lines;
    ax_herm::LoggerHolder::setLogger(std::move(logger), level);
}

std::size_t LogToStderr::lines() const
{
    return *m_lines;
}

LogToStderr::~LogToStderr()
{
    ax_herm::LoggerHolder::setLogger(nullptr, 0);
}

// ---- Shared memory --------------------------------------------------------------------------

namespace {

// The folder in which the system keeps named shared-memory objects as files.
fs::path sharedFolder()
{
#if defined(_WIN32)
    std::string folder;
    boost::interprocess::ipcdetail::get_shared_dir(folder);
    return fs::path(folder);
#else
    return "/dev/shm";
#endif
}

bool describe(const fs::directory_entry& entry, SharedObject& object)
{
    std::error_code error;
    const std::wstring name = fromUtf8(entry.path().filename().u8string());
    if (!ExchangeObjectWrapper::isBufferName(name) || !entry.is_regular_file(error))
        return false;
    const auto size = entry.file_size(error);
    const auto written = entry.last_write_time(error);
    if (error)
        return false;
    object.name = name;
    object.size = static_cast<std::size_t>(size);
    object.age = std::max(std::chrono::seconds(0),
                          std::chrono::duration_cast<std::chrono::seconds>(fs::file_time_type::clock::now() - written));
    return true;
}

} // namespace

std::vector<SharedObject> listSharedObjects()
{
    std::vector<SharedObject> objects;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(sharedFolder(), error)) {
        SharedObject object;
        if (describe(entry, object))
            objects.push_back(object);
    }
    std::sort(objects.begin(), objects.end(), [](const SharedObject& a, const SharedObject& b) {
        return a.age != b.age ? a.age > b.age : a.name < b.name;
    });
    return objects;
}

bool findSharedObject(const std::wstring& name, SharedObject& object)
{
    std::error_code error;
    const fs::directory_entry entry(sharedFolder() / fs::u8path(toUtf8(name)), error);
    return ExchangeObjectWrapper::isBufferName(name) && !error && describe(entry, object);
}

std::string formatAge(std::chrono::seconds age)
{
    const long long s = age.count();
    if (s < 120)
        return std::to_string(s) + " s";
    if (s < 2 * 3600)
        return std::to_string(s / 60) + " min";
    if (s < 2 * 86400)
        return std::to_string(s / 3600) + " h";
    return std::to_string(s / 86400) + " d";
}

std::chrono::seconds parseDuration(const std::string& text)
{
    std::size_t digits = 0;
    while (digits < text.size() && digits < 12 && std::isdigit(static_cast<unsigned char>(text[digits])))
        ++digits;
    const std::string unit = text.substr(digits);
    const long long factor = unit.empty() || unit == "s" ? 1 : unit == "m" || unit == "min" ? 60 : unit == "h" ? 3600
                             : unit == "d"                ? 86400
                                                          : 0;
    if (digits == 0 || factor == 0)
        throw Failure("a duration is a number with an optional unit s, m, h or d (\"90\", \"15m\"), not \"" + text + "\"");
    return std::chrono::seconds(std::stoll(text.substr(0, digits)) * factor);
}

// ---- Progress -------------------------------------------------------------------------------------

ProgressBar::ProgressBar(std::string label) : m_label(std::move(label)), m_shown(stderrIsTerminal()) {}

ProgressBar::~ProgressBar()
{
    if (m_shown && m_percent >= 0)
        std::cerr << "\r\033[K" << std::flush;
}

void ProgressBar::update(double done)
{
    const int percent = static_cast<int>(std::clamp(done, 0.0, 1.0) * 100);
    if (!m_shown || percent == m_percent)
        return;
    m_percent = percent;
    const int width = 30, filled = percent * width / 100;
    std::cerr << '\r' << m_label << " [" << std::string(filled, '#') << std::string(width - filled, ' ') << "] "
              << percent << '%' << std::flush;
}

} // namespace hrm::tool
