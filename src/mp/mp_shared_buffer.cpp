#include <mp/mp_shared_buffer.h>

#include <hrm_api/hrm_api_text.h>
#include <mp/mp_exception.h>

#include "hrm_api/hrm_api_narrow_text.h"

#include <boost/interprocess/exceptions.hpp>
#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <cwchar>
#include <cwctype>
#include <type_traits>
#include <utility>

#if defined(_WIN32)
#include <aclapi.h>
#include <windows.h>
#else
#include <cerrno>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace mp {
namespace ipc = boost::interprocess;

namespace {

// Runs `operation`, turning a Boost.Interprocess failure into a SharedMemoryException.
template <class Operation>
auto translated(Operation&& operation)
{
    try {
        return operation();
    } catch (const ipc::interprocess_exception& error) {
        throw SharedMemoryException(hrm::toWide(error.what()));
    }
}

// ---- Names ------------------------------------------------------------------------------------

bool hasPathSeparator(const std::wstring& name)
{
    return name.find_first_of(L"/\\") != std::wstring::npos;
}

// Names that Windows takes for a device in any folder and with any extension ("NUL",
// "com1.txt", "LPT\u00B9 .x").
bool isDeviceName(const std::wstring& name)
{
    std::wstring stem = name.substr(0, name.find(L'.'));
    stem.erase(stem.find_last_not_of(L' ') + 1);
    std::transform(stem.begin(), stem.end(), stem.begin(), [](wchar_t ch) { return ch < 0x80 ? std::towupper(ch) : ch; });
    for (const wchar_t* device : {L"CON", L"PRN", L"AUX", L"NUL", L"CONIN$", L"CONOUT$"}) {
        if (stem == device)
            return true;
    }
    const bool numbered = stem.size() == 4 && (stem.compare(0, 3, L"COM") == 0 || stem.compare(0, 3, L"LPT") == 0);
    return numbered && (std::wcschr(L"0123456789\u00B9\u00B2\u00B3", stem[3]) != nullptr);
}

// A name that is one plain file name on every platform: no control character, none of the
// characters Windows refuses or reads as a stream (':'), no trailing dot or blank (Windows
// drops them, so that two names would reach one object; "." and ".." end in a dot), no device.
bool isPlainName(const std::wstring& name)
{
    const bool forbidden = std::any_of(name.begin(), name.end(), [](wchar_t ch) {
        return static_cast<std::make_unsigned_t<wchar_t>>(ch) < 0x20 || std::wcschr(L"<>:\"|?*", ch) != nullptr;
    });
    return !forbidden && name.back() != L'.' && name.back() != L' ' && !isDeviceName(name);
}

// The narrow name under which the system knows the object named `name`. The name must convert
// exactly (no best-fit look-alike, no replacement character), so that the system sees this very
// name, and the rules are checked on what it sees.
std::string systemName(const std::wstring& name)
{
    if (name.empty())
        throw SharedMemoryException(L"Shared variable name mustn't be empty");
    std::string narrow;
    const bool exact = hrm::toNarrowExactly(name, narrow);
    const std::wstring seen = hrm::toWide(narrow);
    if (hasPathSeparator(seen))
        throw SharedMemoryException(L"Shared variable name mustn't contain a path separator");
    if (!exact || !isPlainName(seen))
        throw SharedMemoryException(L"Shared variable name is not a plain object name");
    return narrow;
}

// ---- Platform --------------------------------------------------------------------------------

#if defined(_WIN32)

using NativeHandle = HANDLE;

NativeHandle nativeHandle(const ipc::shared_memory_object& memory)
{
    return memory.get_mapping_handle().handle;
}

// The SID of the user this process runs as.
class UserSid
{
public:
    UserSid()
    {
        HANDLE token = nullptr;
        if (!OpenProcessToken(GetCurrentProcess(), TOKEN_QUERY, &token))
            return;
        DWORD size = 0;
        GetTokenInformation(token, TokenUser, nullptr, 0, &size);
        m_buffer.resize(size);
        if (!GetTokenInformation(token, TokenUser, m_buffer.data(), size, &size))
            m_buffer.clear();
        CloseHandle(token);
    }

    PSID get() const
    {
        return m_buffer.empty() ? nullptr : reinterpret_cast<const TOKEN_USER*>(m_buffer.data())->User.Sid;
    }

private:
    std::vector<char> m_buffer;
};

// Security attributes that make this user the owner of a new object and give nobody else any
// access: a protected list with one entry, so that nothing is inherited from the folder.
class OwnerOnly
{
public:
    OwnerOnly()
    {
        PSID user = m_user.get();
        if (!user)
            throw SharedMemoryException(L"Shared buffer could not find its user");
        const DWORD aclSize = sizeof(ACL) + sizeof(ACCESS_ALLOWED_ACE) + GetLengthSid(user);
        m_acl.resize(aclSize);
        auto* acl = reinterpret_cast<ACL*>(m_acl.data());
        if (!InitializeAcl(acl, aclSize, ACL_REVISION) || !AddAccessAllowedAce(acl, ACL_REVISION, FILE_ALL_ACCESS, user) ||
            !InitializeSecurityDescriptor(&m_descriptor, SECURITY_DESCRIPTOR_REVISION) ||
            !SetSecurityDescriptorOwner(&m_descriptor, user, FALSE) ||
            !SetSecurityDescriptorDacl(&m_descriptor, TRUE, acl, FALSE) ||
            !SetSecurityDescriptorControl(&m_descriptor, SE_DACL_PROTECTED, SE_DACL_PROTECTED))
            throw SharedMemoryException(L"Shared buffer could not make its security descriptor");
        m_attributes.nLength = sizeof m_attributes;
        m_attributes.lpSecurityDescriptor = &m_descriptor;
        m_attributes.bInheritHandle = FALSE;
    }
    OwnerOnly(const OwnerOnly&) = delete;
    OwnerOnly& operator=(const OwnerOnly&) = delete;

    ipc::permissions permissions() { return ipc::permissions(&m_attributes); }

private:
    UserSid m_user;
    std::vector<char> m_acl;
    SECURITY_DESCRIPTOR m_descriptor{};
    SECURITY_ATTRIBUTES m_attributes{};
};

// Whether the file behind `handle` is a regular file owned by this user whose access list lets
// nobody else in (but the system itself, which may do anything anyway).
bool isOwnPrivateObject(NativeHandle handle)
{
    BY_HANDLE_FILE_INFORMATION info{};
    if (GetFileType(handle) != FILE_TYPE_DISK || !GetFileInformationByHandle(handle, &info) ||
        (info.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT | FILE_ATTRIBUTE_DEVICE)))
        return false;
    const UserSid user;
    PSID owner = nullptr;
    PACL dacl = nullptr;
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    if (!user.get() || GetSecurityInfo(handle, SE_FILE_OBJECT, OWNER_SECURITY_INFORMATION | DACL_SECURITY_INFORMATION,
                                       &owner, nullptr, &dacl, nullptr, &descriptor) != ERROR_SUCCESS)
        return false;
    bool own = owner && dacl && EqualSid(owner, user.get());
    for (DWORD i = 0; own && i < dacl->AceCount; ++i) {
        void* entry = nullptr;
        own = GetAce(dacl, i, &entry);
        if (own && static_cast<ACE_HEADER*>(entry)->AceType == ACCESS_ALLOWED_ACE_TYPE) {
            PSID allowed = &static_cast<ACCESS_ALLOWED_ACE*>(entry)->SidStart;
            own = EqualSid(allowed, user.get()) || IsWellKnownSid(allowed, WinLocalSystemSid);
        }
    }
    LocalFree(descriptor);
    return own;
}

bool sameObject(NativeHandle a, NativeHandle b)
{
    BY_HANDLE_FILE_INFORMATION x{};
    BY_HANDLE_FILE_INFORMATION y{};
    return GetFileInformationByHandle(a, &x) && GetFileInformationByHandle(b, &y) &&
           x.dwVolumeSerialNumber == y.dwVolumeSerialNumber && x.nFileIndexHigh == y.nFileIndexHigh &&
           x.nFileIndexLow == y.nFileIndexLow;
}

#else

using NativeHandle = int;

NativeHandle nativeHandle(const ipc::shared_memory_object& memory)
{
    return memory.get_mapping_handle().handle;
}

// Objects are created with mode 0600 (read and write for the owner only).
class OwnerOnly
{
public:
    ipc::permissions permissions() { return ipc::permissions(0600); }
};

// Whether the object behind `fd` is a regular one owned by this user with no access for others.
bool isOwnPrivateObject(NativeHandle fd)
{
    struct stat status = {};
    return ::fstat(fd, &status) == 0 && S_ISREG(status.st_mode) && status.st_uid == ::geteuid() &&
           (status.st_mode & 077) == 0;
}

bool sameObject(NativeHandle a, NativeHandle b)
{
    struct stat x = {};
    struct stat y = {};
    return ::fstat(a, &x) == 0 && ::fstat(b, &y) == 0 && x.st_dev == y.st_dev && x.st_ino == y.st_ino;
}

#endif

// Copies `size` bytes of the object into `out`; fewer when the object has shrunk meanwhile.
void copyOut(const ipc::shared_memory_object& memory, size_t size, std::vector<char>& out)
{
#if defined(_WIN32)
    // Windows does not let a mapped object shrink, so the mapping can be copied as it stands.
    const ipc::mapped_region region(memory, ipc::read_only, 0, size);
    const auto* bytes = static_cast<const char*>(region.get_address());
    out.assign(bytes, bytes + size);
#else
    // Read rather than map: a mapping of an object that another process shrinks faults
    // (SIGBUS) where the pages have gone, while a read just ends there.
    out.resize(size);
    size_t done = 0;
    while (done < size) {
        const ssize_t count = ::pread(nativeHandle(memory), out.data() + done, size - done, static_cast<off_t>(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw SharedMemoryException(L"Shared buffer could not be read");
        if (count == 0)
            break;
        done += static_cast<size_t>(count);
    }
    out.resize(done);
#endif
}

// Copies `size` bytes into the object, which has just been made that long.
void copyIn(ipc::shared_memory_object& memory, const char* data, size_t size)
{
#if defined(_WIN32)
    // Windows does not let a mapped object shrink; a mapping of exactly `size` bytes fails
    // rather than comes out short if the object shrank before it was made.
    ipc::mapped_region region(memory, ipc::read_write, 0, size);
    std::memcpy(region.get_address(), data, size);
#else
    // Write rather than map: a mapping of an object that another process shrinks faults
    // (SIGBUS) where the pages have gone, while a write just extends the object again.
    size_t done = 0;
    while (done < size) {
        const ssize_t count = ::pwrite(nativeHandle(memory), data + done, size - done, static_cast<off_t>(done));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            throw SharedMemoryException(L"Shared buffer could not be written");
        done += static_cast<size_t>(count);
    }
#endif
}

bool removeObject(const std::string& name)
{
#if defined(_WIN32)
    // On Windows the object is a file in Boost's shared folder. Boost's own removal emulates
    // unlink with a rename and a delete-on-close that fails in optimised mingw builds; deleting
    // the file directly works (while it is still open elsewhere, once the last handle closes).
    try {
        std::string path;
        ipc::ipcdetail::shared_filepath(name.c_str(), path);
        return std::remove(path.c_str()) == 0;
    } catch (...) {
        return false;
    }
#else
    return ipc::shared_memory_object::remove(name.c_str());
#endif
}

ipc::shared_memory_object openObject(const std::string& name, SharedBuffer<char>::Open open)
{
    using Open = SharedBuffer<char>::Open;
    if (open == Open::Existing)
        return ipc::shared_memory_object(ipc::open_only, name.c_str(), ipc::read_write);
    OwnerOnly ownerOnly;
    if (open == Open::Create)
        return ipc::shared_memory_object(ipc::create_only, name.c_str(), ipc::read_write, ownerOnly.permissions());
    return ipc::shared_memory_object(ipc::open_or_create, name.c_str(), ipc::read_write, ownerOnly.permissions());
}

} // namespace

class SharedBuffer<char>::Object
{
public:
    Object(const std::string& name, Open open) : systemName(name), memory(openObject(name, open)) {}

    const std::string systemName;
    ipc::shared_memory_object memory;
};

SharedBuffer<char>::SharedBuffer(const std::wstring& name, bool removeOnDestroy, Open open)
    : m_name(name), m_removeOnDestroy(removeOnDestroy)
{
    const std::string narrow = systemName(name);
    m_object = translated([&] { return std::make_unique<Object>(narrow, open); });
}

SharedBuffer<char>::~SharedBuffer()
{
    release();
}

SharedBuffer<char>::SharedBuffer(SharedBuffer&& other) noexcept
    : m_object(std::move(other.m_object)), m_name(std::move(other.m_name)), m_removeOnDestroy(other.m_removeOnDestroy)
{
    other.m_removeOnDestroy = false;
}

SharedBuffer<char>& SharedBuffer<char>::operator=(SharedBuffer&& other) noexcept
{
    if (this != &other) {
        release();
        m_object = std::move(other.m_object);
        m_name = std::move(other.m_name);
        m_removeOnDestroy = std::exchange(other.m_removeOnDestroy, false);
    }
    return *this;
}

void SharedBuffer<char>::release() noexcept
{
    const bool removeName = m_object && m_removeOnDestroy;
    m_object.reset();
    if (removeName)
        remove(m_name);
}

SharedBuffer<char>::Object& SharedBuffer<char>::object() const
{
    if (!m_object)
        throw SharedMemoryException(L"Shared buffer was not initialized");
    return *m_object;
}

void SharedBuffer<char>::write(const char* data, size_t size)
{
    ipc::shared_memory_object& memory = object().memory;
    translated([&] {
        memory.truncate(static_cast<ipc::offset_t>(size));
        if (size != 0)
            copyIn(memory, data, size);
    });
}

void SharedBuffer<char>::read(std::vector<char>& out, size_t maxSize) const
{
    const ipc::shared_memory_object& memory = object().memory;
    translated([&] {
        ipc::offset_t size = 0;
        if (!memory.get_size(size) || size < 1) {
            out.clear();
            return;
        }
        if (static_cast<uint64_t>(size) > maxSize)
            throw SharedMemoryException(L"Shared buffer is larger than the size limit");
        copyOut(memory, static_cast<size_t>(size), out);
    });
}

void SharedBuffer<char>::clear()
{
    ipc::shared_memory_object& memory = object().memory;
    translated([&] { memory.truncate(0); });
}

bool SharedBuffer<char>::removeOwned() noexcept
{
    if (!m_object)
        return false;
    try {
        const std::string& name = m_object->systemName;
        const NativeHandle opened = nativeHandle(m_object->memory);
        if (!isOwnPrivateObject(opened))
            return false;
        const ipc::shared_memory_object named(ipc::open_only, name.c_str(), ipc::read_only);
        return sameObject(opened, nativeHandle(named)) && removeObject(name);
    } catch (...) {
        return false;
    }
}

bool SharedBuffer<char>::remove(const std::wstring& name)
{
    try {
        return removeObject(systemName(name));
    } catch (const SharedMemoryException&) {
        return false;
    }
}

} // namespace mp
