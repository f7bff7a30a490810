// The hrm tool, run as a separate process on envelopes and payloads that the library's own
// writers make. POSIX only: it runs the tool through the shell.

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <mp/mp_shared_buffer.h>

#include "support/temp_dir.h"
#include "visualization_sample.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace hrm {
namespace {

namespace fs = std::filesystem;

std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

void writeFile(const fs::path& path, const std::string& bytes)
{
    std::ofstream(path, std::ios::binary).write(bytes.data(), std::streamsize(bytes.size()));
}

// The UTF-16LE bytes of `text` (characters of the basic plane).
std::string utf16(const std::wstring& text)
{
    std::string bytes;
    for (const wchar_t ch : text)
        bytes += {char(ch & 0xFF), char((ch >> 8) & 0xFF)};
    return bytes;
}

struct Outcome
{
    int status;
    std::string out;
    std::string err;
};

// Writes envelopes with the library's writer and removes the buffers they made at the end.
class ToolTest : public ::testing::Test
{
protected:
    ~ToolTest() override
    {
        for (const auto& name : m_buffers)
            mp::SharedBuffer<char>::remove(name);
    }

    // Runs `hrm <arguments>` in the test's folder with `input` on standard input.
    Outcome hrm(const std::string& arguments, const std::string& input = "")
    {
        writeFile(m_dir / "stdin", input);
        const std::string command = "cd '" + m_dir.path().string() + "' && '" HRM_TOOL "' " + arguments +
                                    " <stdin >stdout 2>stderr";
        const int status = std::system(command.c_str());
        return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, readFile(m_dir / "stdout"), readFile(m_dir / "stderr")};
    }

    // The envelope of `object` as the library writes it.
    std::string envelope(const std::shared_ptr<IExchangeObject>& object)
    {
        ExchangeObjectWrapper wrapper;
        wrapper.set(object);
        std::wostringstream out;
        wrapper.writeObject(out);
        if (!wrapper.createdBuffer().empty())
            m_buffers.push_back(wrapper.createdBuffer());
        m_last = wrapper.createdBuffer();
        return toUtf8(out.str());
    }

    // The pretty JSON of `object` as `hrm` prints it.
    static std::string pretty(const IJsonObject& object)
    {
        JsonDocument document;
        object.writeObject(document, document.GetAllocator());
        return toUtf8(JsonTextIO::toString(document, true)) + "\n";
    }

    static std::string shm(const std::wstring& name) { return "/dev/shm/" + toUtf8(name); }

    test::TempDir m_dir{"hrm_tool"};
    std::wstring m_last; // the buffer of the last binary envelope
    std::vector<std::wstring> m_buffers;
};

TEST_F(ToolTest, InspectDescribesEachEnvelopeAndReportsBadOnes)
{
    const auto visualization = samples::blockVisualization(5000);
    const std::string message = envelope(std::make_shared<ExcMessage>(L"caf\u00e9"));
    const std::string present = envelope(visualization);
    const std::wstring presentName = m_last;
    const std::string missing = envelope(visualization);
    mp::SharedBuffer<char>::remove(m_last);
    const std::string input = message + "\n" + present + "\n{not json\n" + missing +
                              "{\"exchange_object_name\":\"no_such_type\",\"exchange_object_data\":{}}\n"
                              "{\"exchange_object_name\":\"exc_block_visualization\",\"binary\":true,"
                              "\"exchange_object_data\":\"../x\"}";
    writeFile(m_dir / "envelopes", input);
    const std::string size = std::to_string(fs::file_size(shm(presentName)));

    const Outcome run = hrm("inspect envelopes");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.out, "exc_message inline\n"
                       "exc_block_visualization binary " + toUtf8(presentName) + " " + size + " bytes\n"
                       "exc_block_visualization binary " + toUtf8(m_last) + " missing\n"
                       "no_such_type (unknown type) inline\n"
                       "exc_block_visualization binary ../x missing\n");
    EXPECT_EQ(run.err, "hrm: envelope 3: Invalid json document\n"
                       "hrm: envelope 6: ExchangeObjectWrapper JSON object should have UUID in Exchange Object Data "
                       "field (if binary).\n");
    EXPECT_TRUE(fs::exists(shm(presentName))); // inspecting consumes nothing

    // Standard input, UTF-16 with a byte order mark, and the objects themselves.
    const Outcome loaded = hrm("inspect --load -", utf16(L"\uFEFF" + fromUtf8(message)));
    EXPECT_EQ(loaded.status, 0) << loaded.err;
    EXPECT_EQ(loaded.out, "exc_message inline\n" + pretty(ExcMessage(L"caf\u00e9")));
    writeFile(m_dir / "present", present);
    const Outcome binary = hrm("inspect --load present");
    EXPECT_EQ(binary.status, 0) << binary.err;
    EXPECT_EQ(binary.out, "exc_block_visualization binary " + toUtf8(presentName) + " " + size + " bytes\n" +
                              pretty(*visualization));
    writeFile(m_dir / "missing", missing);
    const Outcome gone = hrm("inspect --load missing");
    EXPECT_EQ(gone.status, 1);
    EXPECT_EQ(gone.err, "hrm: envelope 1: cannot load the object: no shared-memory object " + toUtf8(m_last) + "\n");
}

TEST_F(ToolTest, DecodeAndEncodeRoundTripByteForByte)
{
    envelope(samples::blockVisualization(5000));
    const std::string compressed = readFile(shm(m_last));
    std::string raw;
    Compressor::decompress(raw, compressed.data(), compressed.size());
    writeFile(m_dir / "payload.gz", compressed);
    writeFile(m_dir / "payload.bin", raw);

    const Outcome decoded = hrm("decode payload.gz -o payload.json");
    ASSERT_EQ(decoded.status, 0) << decoded.err;
    EXPECT_EQ(decoded.out + decoded.err, ""); // quiet when not on a terminal
    const std::string json = readFile(m_dir / "payload.json");
    EXPECT_EQ(hrm("decode -", raw).out, json);
    EXPECT_EQ(hrm("encode payload.json --gzip").out, compressed);
    EXPECT_EQ(hrm("encode -", json).out, raw);
    EXPECT_EQ(hrm("encode -", utf16(L"\uFEFF" + fromUtf8(json))).out, raw);

    // Bad input: the library's messages, status 1.
    EXPECT_EQ(hrm("decode -", std::string("\x05\x09\0\0\0\0\0\0\0a", 10)).err,
              "hrm: JsonBinaryIO: Failed to read all the bytes of string\n");
    EXPECT_EQ(hrm("decode -", std::string("\x00\x00", 2)).err, "hrm: 1 bytes after the binary JSON value\n");
    EXPECT_EQ(hrm("decode -", compressed.substr(0, 10) + std::string(50, 'x')).status, 1);
    const Outcome notJson = hrm("encode -", "{\"a\":");
    EXPECT_EQ(notJson.status, 1);
    EXPECT_EQ(notJson.err, "hrm: - is not JSON: Invalid value. (at character 5)\n");
    EXPECT_EQ(hrm("decode no_such_file").err, "hrm: cannot read no_such_file\n");
}

TEST_F(ToolTest, SharedMemoryListDumpRemoveAndCollect)
{
    const auto visualization = samples::blockVisualization(5000);
    envelope(visualization);
    const std::string name = toUtf8(m_last);
    const std::string size = std::to_string(fs::file_size(shm(m_last)));

    const Outcome list = hrm("shm list");
    EXPECT_EQ(list.status, 0);
    EXPECT_NE(list.out.find(name + " " + size + " bytes "), std::string::npos) << list.out;
    EXPECT_EQ(hrm("shm dump " + name).out, pretty(*visualization));
    EXPECT_EQ(hrm("shm dump --raw -o raw " + name).status, 0);
    EXPECT_EQ(readFile(m_dir / "raw"), readFile(shm(m_last)));

    // Only names of the writers' form, only this user's own objects.
    EXPECT_EQ(hrm("shm rm ../etc").err,
              "hrm: \"../etc\" is not a name of the library's shared-memory objects (a lowercase UUID)\n");
    const std::wstring foreign = IExchangeObject::generateUUID();
    m_buffers.push_back(foreign);
    ::close(::open(shm(foreign).c_str(), O_CREAT | O_RDWR, 0644));
    ::chmod(shm(foreign).c_str(), 0644);
    EXPECT_EQ(hrm("shm rm " + toUtf8(foreign)).err,
              "hrm: " + toUtf8(foreign) + " is not this user's own object: left in place\n");
    EXPECT_TRUE(fs::exists(shm(foreign)));

    // gc removes what was written long ago, and only that.
    const std::wstring fresh = IExchangeObject::generateUUID();
    m_buffers.push_back(fresh);
    mp::SharedBuffer<char>(fresh, false, mp::SharedBuffer<char>::Open::Create).write("x", 1);
    fs::last_write_time(shm(m_last), fs::file_time_type::clock::now() - std::chrono::hours(24 * 365 * 30));
    const Outcome gc = hrm("shm gc --older-than 10000d");
    EXPECT_EQ(gc.out, name + "\n");
    EXPECT_FALSE(fs::exists(shm(m_last)));
    EXPECT_TRUE(fs::exists(shm(fresh)));
    const Outcome again = hrm("shm rm " + name);
    EXPECT_EQ(again.status, 1);
    EXPECT_NE(again.err.find("hrm: "), std::string::npos);
    EXPECT_EQ(hrm("shm gc --older-than soon").status, 1);
}

TEST_F(ToolTest, CommandLine)
{
    const Outcome version = hrm("--version");
    EXPECT_EQ(version.status, 0);
    EXPECT_EQ(version.out.rfind("hrm ", 0), 0u);
    for (const char* command : {"inspect", "decode", "encode", "shm", "shm gc", "gltf"}) {
        const Outcome help = hrm(std::string(command) + " --help");
        EXPECT_EQ(help.status, 0) << command;
        EXPECT_NE(help.out.find("Usage"), std::string::npos) << command;
    }
    EXPECT_NE(hrm("").status, 0);
    EXPECT_NE(hrm("decode").status, 0);
    EXPECT_NE(hrm("frobnicate").err, "");
}

TEST_F(ToolTest, GltfExportsWhatTheEnvelopesAnnounce)
{
    const std::string input = envelope(samples::blockVisualization(5000)) + envelope(std::make_shared<ExcProgress>()) +
                              "{broken";
    writeFile(m_dir / "envelopes", input);
    const Outcome run = hrm("gltf envelopes -o model.glb");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "hrm: envelope 3: Invalid json document\n");
    EXPECT_EQ(readFile(m_dir / "model.glb").substr(0, 4), "glTF");
    EXPECT_TRUE(fs::exists(shm(m_buffers[0]))); // read, not removed
    fs::create_directories(HRM_GLB_DIR);
    fs::copy_file(m_dir / "model.glb", fs::path(HRM_GLB_DIR) / "tool.glb", fs::copy_options::overwrite_existing);
}

} // namespace
} // namespace hrm
