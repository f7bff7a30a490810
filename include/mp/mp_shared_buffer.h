#pragma once

/// @file
/// A named shared-memory buffer that hands bytes from one process to another.

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace mp {

template <class T>
class SharedBuffer;

/// A named, resizable shared-memory object of bytes. The writer creates and fills it, the
/// reader opens it by name later; nothing locks it. Objects are created readable and
/// writable by their owner only (mode 0600 on POSIX; on Windows, where an object is a file in
/// Boost's shared folder, with this user as owner and a protected access list that admits this
/// user alone). Every failure is a SharedMemoryException.
///
/// A name must be the name the system sees: it must convert to the narrow encoding exactly (no
/// "best fit" look-alike, no replacement character), and what it converts to must be one plain
/// file name on every platform: no path separator ('/' or '\\': "Shared variable name mustn't
/// contain a path separator"), and no control character (NUL included), none of < > : " | ? *,
/// no trailing dot or blank, and no Windows device name such as NUL, CON, COM1 or lpt2.txt
/// ("Shared variable name is not a plain object name").
template <>
class HRM_API SharedBuffer<char>
{
public:
    /// How the constructor finds the named object.
    enum class Open
    {
        OrCreate, ///< open the named object, creating an empty one when it does not exist
        Existing, ///< open the named object; a missing one is an error
        Create,   ///< create a new object; an object of that name already there is an error
    };

    /// Opens the named object for reading and writing. With `removeOnDestroy` the destructor
    /// removes the name from the system. An empty name throws "Shared variable name mustn't be
    /// empty"; other names as the class comment says.
    SharedBuffer(const std::wstring& name, bool removeOnDestroy, Open open = Open::OrCreate);
    virtual ~SharedBuffer();

    SharedBuffer(const SharedBuffer&) = delete;
    SharedBuffer& operator=(const SharedBuffer&) = delete;
    /// A moved-from buffer holds no object: write, read and clear then throw "Shared buffer was
    /// not initialized", and its destructor removes nothing.
    SharedBuffer(SharedBuffer&& other) noexcept;
    /// Takes over `other`'s object (see the move constructor).
    SharedBuffer& operator=(SharedBuffer&& other) noexcept;

    /// Makes the object exactly `size` bytes long and copies the bytes into it. Where the
    /// system lets another process shrink the object meanwhile (POSIX), the bytes are written
    /// without a mapping, so that the writer cannot fault.
    void write(const char* data, size_t size);
    /// Replaces `out` with the object's bytes (empty when the object has size 0). An object
    /// larger than `maxSize` bytes throws "Shared buffer is larger than the size limit" before
    /// anything is copied. Where the system lets another process shrink the object meanwhile
    /// (POSIX), the copy then ends early instead of faulting.
    void read(std::vector<char>& out, size_t maxSize = SIZE_MAX) const;
    /// Makes the object 0 bytes long.
    void clear();

    /// The object's name, as given.
    const std::wstring& name() const { return m_name; }

    /// Removes the name of the open object from the system, but only when that object is this
    /// user's own: a regular object owned by this user that nobody else may access, and the one
    /// the name still refers to (not one put in its place since it was opened). Returns whether
    /// the name was removed. Never throws.
    bool removeOwned() noexcept;

    /// Removes the named object from the system, whatever it is; objects still open stay
    /// usable. Returns whether a name was removed (never for a name the constructor refuses).
    /// Never throws.
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
