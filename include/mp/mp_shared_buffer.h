#pragma once

// A named shared-memory buffer that hands bytes from one process to another.

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mp {

template <class T>
class SharedBuffer;

// A named, resizable shared-memory object of bytes. The writer creates and fills it, the
// reader opens it by name later; nothing locks it. Objects are created readable and
// writable by their owner only. Every failure is a SharedMemoryException.
template <>
class HRM_API SharedBuffer<char>
{
public:
    enum class Open
    {
        OrCreate, // open the named object, creating an empty one when it does not exist
        Existing, // open the named object; a missing one is an error
    };

    // Opens the named object for reading and writing. With `removeOnDestroy` the destructor
    // removes the name from the system. An empty name throws "Shared variable name mustn't be
    // empty"; a name with a path separator ('/' or '\\'), which could reach beyond the
    // platform's shared-memory folder, throws "Shared variable name mustn't contain a path
    // separator".
    SharedBuffer(const std::wstring& name, bool removeOnDestroy, Open open = Open::OrCreate);
    virtual ~SharedBuffer();

    SharedBuffer(const SharedBuffer&) = delete;
    SharedBuffer& operator=(const SharedBuffer&) = delete;
    // A moved-from buffer holds no object: write, read and clear then throw "Shared buffer was
    // not initialized", and its destructor removes nothing.
    SharedBuffer(SharedBuffer&& other) noexcept;
    SharedBuffer& operator=(SharedBuffer&& other) noexcept;

    // Makes the object exactly `size` bytes long and copies the bytes into it.
    void write(const char* data, size_t size);
    // Replaces `out` with the object's bytes (empty when the object has size 0). An object
    // larger than `maxSize` bytes throws "Shared buffer is larger than the size limit" before
    // anything is copied. Where the system lets another process shrink the object meanwhile
    // (POSIX), the copy then ends early instead of faulting.
    void read(std::vector<char>& out, size_t maxSize = SIZE_MAX) const;
    // Makes the object 0 bytes long.
    void clear();

    const std::wstring& name() const { return m_name; }

    // Removes the named object from the system; objects still open stay usable. Returns
    // whether a name was removed (never for a name the constructor refuses). Never throws.
    static bool remove(const std::wstring& name);

private:
    class Object;
    Object& object() const;
    void release() noexcept;

    std::unique_ptr<Object> m_object;
    std::wstring m_name;
    bool m_removeOnDestroy = false;
};

} // namespace mp
