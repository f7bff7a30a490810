#pragma once

// The compact binary encoding of a JSON value: a one-byte tag, then the payload, integers and
// doubles little-endian, strings as UTF-16LE code units, containers prefixed by the byte
// length of their body.

#include <hrm_api/hrm_api_json.h>

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <vector>

namespace hrm {

class HRM_API JsonBinaryIO
{
public:
    // Appends the encoding of `value` to `out`.
    static void encode(const JsonValue& value, std::vector<char>& out);
    // Decodes one value from the start of `data` into `value`, allocating from `allocator`;
    // returns the number of bytes consumed.
    static size_t decode(const char* data, size_t size, JsonValue& value, JsonAllocator& allocator);

    // The stream forms: the same bytes and the same exceptions as encode / decode.
    static std::ostream& write(std::ostream& out, const JsonValue& value);
    static std::istream& read(std::istream& in, JsonValue& value, JsonAllocator& allocator);
};

} // namespace hrm
