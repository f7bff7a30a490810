#include <mp/mp_shared_buffer.h>

#include <hrm_api/hrm_api_json.h>
#include <mp/mp_exception.h>

#include <boost/interprocess/exceptions.hpp>
#include <boost/interprocess/mapped_region.hpp>
#include <boost/interprocess/shared_memory_object.hpp>

#include <cstdio>
#include <cstring>
#include <utility>

#if !defined(_WIN32)
#include <cerrno>
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

ipc::permissions ownerOnly()
{
    ipc::permissions permissions;
#if !defined(_WIN32)
    permissions.set_permissions(0600);
#endif
    // On Windows the object is a file in Boost's shared folder and takes that folder's access
    // rules.
    return permissions;
}

bool hasPathSeparator(const std::wstring& name)
{
    return name.find_first_of(L"/\\") != std::wstring::npos;
}

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
        const ssize_t count = ::pread(memory.get_mapping_handle().handle, out.data() + done, size - done,
                                      static_cast<off_t>(done));
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

} // namespace

class SharedBuffer<char>::Object
{
public:
    Object(const std::string& name, Open open)
        : memory(open == Open::Existing
                     ? ipc::shared_memory_object(ipc::open_only, name.c_str(), ipc::read_write)
                     : ipc::shared_memory_object(ipc::open_or_create, name.c_str(), ipc::read_write, ownerOnly()))
    {
    }

    ipc::shared_memory_object memory;
};

SharedBuffer<char>::SharedBuffer(const std::wstring& name, bool removeOnDestroy, Open open)
    : m_name(name), m_removeOnDestroy(removeOnDestroy)
{
    if (name.empty())
        throw SharedMemoryException(L"Shared variable name mustn't be empty");
    if (hasPathSeparator(name))
        throw SharedMemoryException(L"Shared variable name mustn't contain a path separator");
    m_object = translated([&] { return std::make_unique<Object>(hrm::toNarrow(name), open); });
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
        if (size == 0)
            return; // a region of 0 bytes cannot be mapped, and there is nothing to copy
        ipc::mapped_region region(memory, ipc::read_write);
        std::memcpy(region.get_address(), data, size);
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

bool SharedBuffer<char>::remove(const std::wstring& name)
{
    return !name.empty() && !hasPathSeparator(name) && removeObject(hrm::toNarrow(name));
}

} // namespace mp
