#pragma once

// What the commands of the hrm tool share: reading and writing files or standard streams,
// text encodings, payload decoding, envelopes, the shared-memory folder and the progress bar.

#include <hrm_api/hrm_api_json.h>

#include <CLI/CLI.hpp>

#include <chrono>
#include <cstddef>
#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace hrm::tool {

// A failure the tool reports on standard error (with the command's name) before it exits
// with status 1.
struct Failure : std::runtime_error
{
    using std::runtime_error::runtime_error;
};

// ---- Files and standard streams ("-") ---------------------------------------------------------

// All bytes of the file at `path`, or of standard input for "-".
std::string readBytes(const std::string& path);
// Writes `bytes` to the file at `path`, or to standard output for "-".
void writeBytes(const std::string& path, const std::string& bytes);
// Whether standard error is a terminal (the progress bar shows only there).
bool stderrIsTerminal();

// The characters of a text file: UTF-16 (little or big endian) when it starts with a byte order
// mark or looks like UTF-16LE (a zero second byte), else UTF-8 with or without a mark.
std::wstring decodeText(const std::string& bytes);

// ---- JSON ---------------------------------------------------------------------------------------

// The library's pretty form of `value` as UTF-8, ending with a line break.
std::string prettyJson(const JsonValue& value);
// Decodes a binary JSON payload (raw, gzip or zlib) into `document`. Throws the library's
// exceptions for corrupt data, and Failure for bytes after the value.
void decodePayload(const std::string& bytes, JsonDocument& document);
// The bytes of the shared-memory object `name` (at most Compressor::decompressedSizeLimit()).
std::string readSharedMemory(const std::wstring& name);

// Splits a stream of envelopes into the text of each: JSON objects one after another (with or
// without white space between them, on one line or several); anything else, and an object that
// is never closed, counts as one (bad) envelope up to the end of its line.
std::vector<std::wstring> splitEnvelopes(const std::wstring& text);

// Sends the library's log lines of `level` and more severe to standard error, each prefixed with
// what `context` returns, for as long as the object lives.
class LogToStderr
{
public:
    LogToStderr(int level, std::function<std::string()> context);
    ~LogToStderr();
    LogToStderr(const LogToStderr&) = delete;
    LogToStderr& operator=(const LogToStderr&) = delete;

    // How many lines have been written.
    std::size_t lines() const;

private:
    std::size_t* m_lines;
};

// ---- Shared memory --------------------------------------------------------------------------

// An object in the shared-memory folder whose name has the form the library's writers make.
struct SharedObject
{
    std::wstring name;
    std::size_t size = 0;
    std::chrono::seconds age{0}; // since it was last written
};

// The library's shared-memory objects of this machine, oldest first.
std::vector<SharedObject> listSharedObjects();
// The object named `name`, if it exists and has the library's form of name.
bool findSharedObject(const std::wstring& name, SharedObject& object);
// "42 s", "5 min", "3 h", "2 d": how long `age` is, in its largest whole unit.
std::string formatAge(std::chrono::seconds age);
// A duration written as a number with an optional unit: s, m (or min), h, d ("90", "15m",
// "2h"). Throws Failure for anything else.
std::chrono::seconds parseDuration(const std::string& text);

// ---- Progress -------------------------------------------------------------------------------------

// A progress bar on standard error, drawn only when it is a terminal and cleared at the end.
class ProgressBar
{
public:
    explicit ProgressBar(std::string label);
    ~ProgressBar();
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;

    // Shows `done` (0 to 1) of the work.
    void update(double done);

private:
    std::string m_label;
    bool m_shown;
    int m_percent = -1;
};

// ---- Commands -------------------------------------------------------------------------------------

// Each adds its subcommand to `app`; the subcommand's callback runs it and returns through
// `status` the exit status (0 for success).
void addInspect(CLI::App& app, int& status);
void addCodec(CLI::App& app, int& status);
void addShm(CLI::App& app, int& status);
void addGltf(CLI::App& app, int& status);

} // namespace hrm::tool
