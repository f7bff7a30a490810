#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include <hrm_api/hrm_api_json.h>

#include "support/expect_message.h"

#include <gtest/gtest.h>

#include <atomic>
#include <fstream>
#include <random>
#include <string>
#include <thread>
#include <vector>

#if defined(__linux__)
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>
#endif
#if defined(_WIN32)
#include <boost/interprocess/detail/shared_dir_helpers.hpp>
#include <aclapi.h>
#include <windows.h>
#endif

namespace mp {
namespace {

using Buffer = SharedBuffer<char>;
using hrm::test::expectMessage;

std::wstring uniqueName()
{
    std::random_device random;
    return L"hrm_test_" + std::to_wstring(random()) + L"_" + std::to_wstring(random());
}

std::vector<char> contentOf(const std::wstring& name)
{
    std::vector<char> bytes{'x'};
    Buffer(name, false, Buffer::Open::Existing).read(bytes);
    return bytes;
}

#if defined(_WIN32)

// The file that holds the named object, in Boost's shared folder.
std::string fileOf(const std::wstring& name)
{
    std::string path;
    boost::interprocess::ipcdetail::shared_filepath(hrm::toNarrow(name).c_str(), path);
    return path;
}

#endif

TEST(SharedBuffer, SizeFollowsEveryWriteExactly)
{
    const std::wstring name = uniqueName();
    Buffer owner(name, true);
    EXPECT_TRUE(contentOf(name).empty()); // a new object has size 0
    std::vector<char> large(70000);
    for (size_t i = 0; i < large.size(); ++i)
        large[i] = static_cast<char>(i * 7);
    owner.write(large.data(), large.size());
    EXPECT_EQ(contentOf(name), large);
    owner.write("\0\x78\x9c", 3);
    EXPECT_EQ(contentOf(name), (std::vector<char>{'\0', '\x78', '\x9c'}));
    owner.write(nullptr, 0);
    EXPECT_TRUE(contentOf(name).empty());
    owner.write("a", 1);
    owner.clear();
    EXPECT_TRUE(contentOf(name).empty());
#if defined(__linux__)
    struct stat status = {};
    ASSERT_EQ(stat(("/dev/shm/" + std::string(name.begin(), name.end())).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u); // owner only
#endif
}

TEST(SharedBuffer, LifetimeAndFailures)
{
    const std::wstring name = uniqueName();
    Buffer(name, false).write("abc", 3);
    EXPECT_EQ(contentOf(name), (std::vector<char>{'a', 'b', 'c'})); // outlives its writer
    { Buffer reader(name, true, Buffer::Open::Existing); }
    EXPECT_THROW(Buffer(name, false, Buffer::Open::Existing), SharedMemoryException); // Boost's text
    EXPECT_FALSE(Buffer::remove(name));

    expectMessage<SharedMemoryException>([] { Buffer(L"", false); }, "Shared variable name mustn't be empty");
    Buffer first(name, true);
    const Buffer second(std::move(first));
    for (auto operation : {+[](Buffer& b) { b.write("a", 1); }, +[](Buffer& b) { b.clear(); },
                           +[](Buffer& b) { std::vector<char> out; b.read(out); }})
        expectMessage<SharedMemoryException>([&] { operation(first); }, "Shared buffer was not initialized");
    EXPECT_TRUE(contentOf(name).empty()); // the moved-from buffer removed nothing
}

TEST(SharedBuffer, HostileNamesAndSizes)
{
    // A path separator could lead out of the shared-memory folder (Windows keeps the objects
    // as files there).
    for (const wchar_t* name : {L"../hrm_test", L"a/b", L"..\\hrm_api.dll"}) {
        expectMessage<SharedMemoryException>([&] { Buffer(name, false); },
                                             "Shared variable name mustn't contain a path separator");
        EXPECT_FALSE(Buffer::remove(name));
    }
    // Devices, a NUL that would cut the name short, names that Windows trims or reads as a
    // stream, and a lone surrogate, which cannot be converted: none is a plain name anywhere.
    using namespace std::string_literals;
    for (const std::wstring& name : {L"NUL"s, L"com1"s, L"Lpt\u00B9.txt"s, L"CON .log"s, L"aux.hrm_test"s, L"CONIN$"s,
                                     L"hrm_test\0victim"s, L"hrm\ttest"s, L"hrm_test:stream"s, L"hrm_test*"s,
                                     L"hrm_test."s, L"hrm_test "s, L"."s, L".."s,
                                     L"hrm_test"s + static_cast<wchar_t>(0xD800)}) {
        expectMessage<SharedMemoryException>([&] { Buffer(name, false); },
                                             "Shared variable name is not a plain object name");
        EXPECT_FALSE(Buffer::remove(name));
    }
    for (const wchar_t* name : {L"COM10", L"nul_", L"hrm.test", L"con-hrm_test"}) {
        EXPECT_NO_THROW(Buffer(name, true)) << hrm::toNarrow(name);
    }

    Buffer owner(uniqueName(), true);
    owner.write("abcd", 4);
    std::vector<char> out;
    owner.read(out, 4);
    EXPECT_EQ(out, (std::vector<char>{'a', 'b', 'c', 'd'}));
    expectMessage<SharedMemoryException>([&] { owner.read(out, 3); }, "Shared buffer is larger than the size limit");
}

TEST(SharedBuffer, CreatingIsExclusiveAndRemovalOwnsWhatItOpened)
{
    const std::wstring name = uniqueName();
    Buffer planted(name, true);
    planted.write("planted", 7);
    EXPECT_THROW(Buffer(name, false, Buffer::Open::Create), SharedMemoryException);
    EXPECT_EQ(contentOf(name).size(), 7u);

    // The name now refers to another object than the one opened: that one stays. (Windows
    // keeps the name of a removed file while it is open, but lets it be renamed.)
    Buffer opened(name, false, Buffer::Open::Existing);
#if defined(_WIN32)
    const std::string moved = fileOf(name) + ".moved";
    ASSERT_TRUE(MoveFileA(fileOf(name).c_str(), moved.c_str()));
#else
    EXPECT_TRUE(Buffer::remove(name));
#endif
    Buffer(name, false, Buffer::Open::Create).write("other", 5);
    EXPECT_FALSE(opened.removeOwned());
    EXPECT_EQ(contentOf(name).size(), 5u);
    EXPECT_TRUE(Buffer(name, false, Buffer::Open::Existing).removeOwned());
    EXPECT_FALSE(Buffer::remove(name)); // gone, once closed (Windows keeps an open file's name)
#if defined(_WIN32)
    std::remove(moved.c_str());
#endif
}

TEST(SharedBuffer, ConcurrentShrinkingDoesNotKillTheWriter)
{
#if !defined(__linux__)
    GTEST_SKIP() << "Windows does not let another process shrink a file while it is mapped";
#else
    // A peer that keeps cutting the object to nothing while the writer fills it: a writer that
    // copied into a mapping would die of SIGBUS where the pages have gone.
    const std::wstring name = uniqueName();
    Buffer writer(name, true);
    std::atomic<bool> done{false};
    std::thread peer([&] {
        const int fd = ::shm_open(("/" + hrm::toNarrow(name)).c_str(), O_RDWR, 0);
        while (!done)
            EXPECT_EQ(::ftruncate(fd, 0), 0);
        ::close(fd);
    });
    const std::vector<char> bytes(size_t(8) << 20, 'x');
    for (int i = 0; i < 40; ++i)
        writer.write(bytes.data(), bytes.size());
    done = true;
    peer.join();
    writer.write(bytes.data(), bytes.size());
    EXPECT_EQ(contentOf(name), bytes);
#endif
}

TEST(SharedBuffer, LookAlikesOfSeparatorsStayInTheSharedFolder)
{
#if !defined(_WIN32)
    GTEST_SKIP() << "the narrow encoding here is UTF-8, which has no best-fit look-alikes";
#else
    // Converted with best fit, a fullwidth solidus becomes '/' and the name leads out of the
    // folder, to a file beside it.
    const std::string folder = fileOf(L"x").substr(0, fileOf(L"x").size() - 2);
    const std::string victim = folder + "_hrm_test_victim";
    std::ofstream(victim) << "victim";
    const std::wstring leading = L"..\uFF0F" + hrm::toWide(victim.substr(victim.find_last_of("/\\") + 1));
    for (const wchar_t slash : {L'\uFF0F', L'\uFF3C', L'\u2215', L'\u2044'}) {
        std::wstring name = leading;
        name[2] = slash;
        expectMessage<SharedMemoryException>([&] { Buffer(name, false, Buffer::Open::Existing); },
                                             "Shared variable name is not a plain object name");
        EXPECT_FALSE(Buffer::remove(name));
    }
    std::ifstream file(victim);
    std::string text;
    file >> text;
    EXPECT_EQ(text, "victim");
    file.close();
    std::remove(victim.c_str());
#endif
}

TEST(SharedBuffer, OnWindowsOnlyTheOwnerHasAccess)
{
#if !defined(_WIN32)
    GTEST_SKIP() << "POSIX modes are checked in SizeFollowsEveryWriteExactly";
#else
    const std::wstring name = uniqueName();
    const Buffer owner(name, true, Buffer::Open::Create);
    PSID fileOwner = nullptr;
    PACL dacl = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_EQ(GetNamedSecurityInfoA(fileOf(name).c_str(), SE_FILE_OBJECT,
                                    OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION, &fileOwner, nullptr, &dacl,
                                    nullptr, &descriptor),
              DWORD(ERROR_SUCCESS));
    HANDLE token = nullptr;
    ASSERT_TRUE(OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token));
    char user[256];
    DWORD size = sizeof user;
    ASSERT_TRUE(GetTokenInformation(token, TokenUser, user, size, &size));
    CloseHandle(token);
    const PSID self = reinterpret_cast<TOKEN_USER*>(user)->User.Sid;

    ASSERT_TRUE(fileOwner && EqualSid(fileOwner, self));
    if (GetProcAddress(GetModuleHandleA("ntdll.dll"), "wine_get_version")) {
        LocalFree(descriptor);
        GTEST_SKIP() << "wine does not keep the security descriptor a file is given: it reports one made up "
                        "from the file's Unix mode bits (the owner, SYSTEM and the user, not protected)";
    }
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    ASSERT_TRUE(GetSecurityDescriptorControl(descriptor, &control, &revision));
    EXPECT_TRUE(control & SE_DACL_PROTECTED);
    ASSERT_TRUE(dacl);
    ASSERT_EQ(dacl->AceCount, 1);
    void* entry = nullptr;
    ASSERT_TRUE(GetAce(dacl, 0, &entry));
    EXPECT_EQ(static_cast<ACE_HEADER*>(entry)->AceType, ACCESS_ALLOWED_ACE_TYPE);
    EXPECT_TRUE(EqualSid(&static_cast<ACCESS_ALLOWED_ACE*>(entry)->SidStart, self));
    LocalFree(descriptor);
#endif
}

} // namespace
} // namespace mp
