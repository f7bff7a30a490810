#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include "support/expect_message.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

#if defined(__linux__)
#include <sys/stat.h>
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

    Buffer owner(uniqueName(), true);
    owner.write("abcd", 4);
    std::vector<char> out;
    owner.read(out, 4);
    EXPECT_EQ(out, (std::vector<char>{'a', 'b', 'c', 'd'}));
    expectMessage<SharedMemoryException>([&] { owner.read(out, 3); }, "Shared buffer is larger than the size limit");
}

} // namespace
} // namespace mp
