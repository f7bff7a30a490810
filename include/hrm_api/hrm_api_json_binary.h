#pragma once

/// @file
/// The compact binary encoding of a JSON value: a one-byte tag, then the payload, integers and
/// doubles little-endian, strings as UTF-16LE code units, containers prefixed by the byte
/// length of their body.
///
///    tag  value            payload
///    0    null             -
///    1    false            -
///    2    true             -
///    3    object           8-byte body length, then per member: name (as tag 5), value
///    4    array            8-byte body length, then the elements
///    5    string           8-byte length in UTF-16 code units, then the units
///    6    int32            4 bytes        7  uint32   4 bytes
///    8    int64            8 bytes        9  uint64   8 bytes
///    10   double           8 bytes (IEEE 754 binary64)
///
/// A number takes the first of int32, uint32, int64, uint64, double that holds it, so the
/// integer kinds and doubles survive a round trip. On every platform the strings travel as
/// UTF-16: where wchar_t holds code points, characters above U+FFFF become surrogate pairs and
/// a valid pair read back becomes one character again; a lone surrogate travels as itself.

#include <hrm_api/hrm_api_json.h>

#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <vector>

namespace hrm {

/// The compact binary encoding of JSON values, and its decoder that survives any bytes.
class HRM_API JsonBinaryIO
{
public:
    /// Containers nested deeper than this are refused while decoding (the top-level container
    /// is at depth 1), so that hostile data cannot build a document that recursive consumers
    /// cannot walk.
    static constexpr size_t maxNestingDepth = 512;
    /// Members or elements of one container, at most: RapidJSON's growth arithmetic (32-bit)
    /// would wrap round beyond about 2.9 billion. Only a payload of gigabytes comes near it.
    static constexpr size_t maxContainerSize = size_t(1) << 31;
    /// What decoding one value may allocate, at most, unless changed (see setMemoryBudget).
    /// Twice the default decompressed-size limit: what the largest payloads of real models
    /// take when decoded, with room to spare (README, "Hostile input").
    static constexpr size_t defaultMemoryBudget = size_t(1) << 30; ///< 1 GiB

    /// The library-wide memory budget of decoding: what decode() allows when the caller names
    /// no budget, and what read() allows. Decoding counts what it allocates: a JsonValue for
    /// every value (member names included) in its container's storage, the characters and a
    /// terminator of every string, and the document builder's stack, which holds the values of
    /// the open containers and grows by half when full (one and a half times its highest need).
    /// Data that would take more stops with std::length_error("JsonBinaryIO: Memory budget
    /// exceeded"): a payload of a byte a value (nulls) would otherwise take 40 times its size.
    /// defaultMemoryBudget until changed; it may be changed at any time from any thread and
    /// applies to the decodes that start afterwards.
    static void setMemoryBudget(size_t bytes);
    /// The library-wide memory budget of decoding (see setMemoryBudget).
    static size_t memoryBudget();

    /// Appends the encoding of `value` to `out`. Throws std::invalid_argument("JsonBinaryIO:
    /// Unknown number type") for a number of no known kind; `out` then holds a partial value.
    static void encode(const JsonValue& value, std::vector<char>& out);

    /// Decodes one value from the start of the `size` bytes at `data` into `value`, allocating
    /// its strings and containers from `allocator`; returns the number of bytes consumed.
    /// A container ends at the first member or element that reaches or passes its recorded
    /// body length; its storage holds exactly its members or elements. `value` is replaced
    /// only when the whole value has been read, so a failure leaves it as it was (what was
    /// allocated stays in `allocator`):
    /// - std::length_error: no tag byte ("JsonBinaryIO: Failed to parse all bytes of type"), a
    ///   short number or length ("... Failed to read all the number of bytes"), short string
    ///   data ("... Failed to read all the bytes of string"); nothing is allocated for a length
    ///   the data does not hold; a string or container too large for RapidJSON's 32-bit sizes
    ///   ("... String too long");
    /// - std::invalid_argument: a tag above 10 ("JsonBinaryIO: Unknown value type"), a member
    ///   name that is not a string ("JsonBinaryIO: Member name is not a string"), nesting deeper
    ///   than maxNestingDepth ("JsonBinaryIO: Nesting too deep");
    /// - std::length_error("JsonBinaryIO: Container too large") for a container with more than
    ///   maxContainerSize members or elements;
    /// - std::length_error("JsonBinaryIO: Memory budget exceeded") for a value that takes more
    ///   than `budget` bytes as counted above (setMemoryBudget).
    static size_t decode(const char* data, size_t size, JsonValue& value, JsonAllocator& allocator,
                         size_t budget = memoryBudget());

    /// Writes the encoding of `value` at the put position in one write.
    static std::ostream& write(std::ostream& out, const JsonValue& value);

    /// Decodes one value at the get position from the bytes the stream's buffer can deliver
    /// without blocking (all of a string stream; what a file stream reports as available), then
    /// leaves the get position just after the value, so that values written back to back are
    /// read one by one. The stream must support tellg and seekg. Throws as decode; the bytes
    /// taken from the stream then stay consumed.
    static std::istream& read(std::istream& in, JsonValue& value, JsonAllocator& allocator);
};

} // namespace hrm
