#pragma once

// Small helpers both example programs use around the library's documents.

#include <mp/mp_serializable.h>

#include <cstddef>
#include <string>

namespace frame {

// The document's text as its writeObject writes it.
std::wstring textOf(const mp::ISerializable& document);
// Reads the document from its text (the document's readObject and its exceptions).
void readFrom(mp::ISerializable& document, const std::wstring& text);
// The size in bytes of the named shared-memory object (POSIX keeps them under /dev/shm), or 0
// when it cannot be told.
std::size_t sharedMemorySize(const std::wstring& name);

} // namespace frame
