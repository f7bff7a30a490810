#include <mp/mp_exception.h>
#include <mp/mp_shared_buffer.h>

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

#if defined(__linux__)
#include <sys/stat.h>
#endif

namespace mp {
namespace {

using Buffer = SharedBuffer<char>;

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

// Expects `operation` to throw a SharedMemoryException with `message`.
template <class Operation>
void expectFailure(Operation operation, const std::wstring& message)
{
    try {
        operation();
        ADD_FAILURE() << "no exception";
    } catch (const SharedMemoryException& error) {
        EXPECT_EQ(error.message(), message);
    }
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

    const std::vector<char> small{'\0', '\x78', '\x9c'};
    owner.write(small.data(), small.size());
    EXPECT_EQ(contentOf(name), small);

    owner.write(nullptr, 0);
    EXPECT_TRUE(contentOf(name).empty());

    owner.write(small.data(), small.size());
    owner.clear();
    EXPECT_TRUE(contentOf(name).empty());

#if defined(__linux__)
    struct stat status = {};
    ASSERT_EQ(stat(("/dev/shm/" + std::string(name.begin(), name.end())).c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0600u);
#endif
}

TEST(SharedBuffer, NameOutlivesTheWriterUnlessRemovedOnDestroy)
{
    const std::wstring name = uniqueName();
    const std::vector<char> payload{'a', 'b', 'c'};
    Buffer(name, false).write(payload.data(), payload.size());
    EXPECT_EQ(contentOf(name), payload);

    { Buffer reader(name, true, Buffer::Open::Existing); }
    EXPECT_THROW(Buffer(name, false, Buffer::Open::Existing), SharedMemoryException);
    EXPECT_FALSE(Buffer::remove(name));

    Buffer(name, false);
    EXPECT_TRUE(Buffer::remove(name));
    EXPECT_FALSE(Buffer::remove(L""));
}

TEST(SharedBuffer, FailuresAreSharedMemoryExceptions)
{
    expectFailure([] { Buffer(L"", false); }, L"Shared variable name mustn't be empty");

    try {
        Buffer(uniqueName(), false, Buffer::Open::Existing);
        ADD_FAILURE() << "opened a missing object";
    } catch (const SharedMemoryException& error) {
        EXPECT_FALSE(error.message().empty()); // Boost's own text
        EXPECT_STRNE(error.what(), "");
    }

    const std::wstring name = uniqueName();
    Buffer first(name, true);
    Buffer second(std::move(first));
    std::vector<char> bytes;
    expectFailure([&] { first.write("a", 1); }, L"Shared buffer was not initialized");
    expectFailure([&] { first.read(bytes); }, L"Shared buffer was not initialized");
    expectFailure([&] { first.clear(); }, L"Shared buffer was not initialized");
    second.write("a", 1);
    EXPECT_EQ(contentOf(name), std::vector<char>{'a'}); // the moved-from buffer did not remove it
}

} // namespace
} // namespace mp
