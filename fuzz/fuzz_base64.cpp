// Base64 decoding of arbitrary text, narrow and wide (the fuzz bytes taken as 16-bit units).
// Decoding consumes a prefix of the text; that prefix decodes alone to the same bytes; the
// re-encoded bytes decode back to them; 32-bit values are the bytes in whole groups of four;
// a wide character outside the alphabet stops decoding however its low byte reads.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_compression.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

using namespace hrm;

namespace {

using Bytes = std::vector<unsigned char>;

template <class Char>
Bytes decodeChecked(const std::basic_string<Char>& text)
{
    Bytes bytes;
    const size_t consumed = Base64::decode(text, bytes);
    fuzz::check(consumed <= text.size(), "decoding consumes no more than the text");

    Bytes prefix;
    fuzz::check(Base64::decode(text.data(), consumed, prefix) == consumed, "the consumed prefix is consumed whole");
    fuzz::check(prefix == bytes, "the consumed prefix decodes to the same bytes");

    const auto encoded = Base64::encode<std::basic_string<Char>>(bytes);
    Bytes back;
    const size_t padding = std::min(encoded.find(Char('=')), encoded.size());
    fuzz::check(Base64::decode(encoded, back) == padding, "an encoding is consumed up to its padding");
    fuzz::check(back == bytes, "re-encoded bytes decode to the same bytes");

    std::vector<uint32_t> values;
    Base64::decode(text, values);
    fuzz::check(values.size() == bytes.size() / 4, "32-bit values drop a partial value only");
    fuzz::check(values.empty() || std::memcmp(values.data(), bytes.data(), values.size() * 4) == 0,
                "32-bit values hold the bytes");
    return bytes;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    decodeChecked(std::string(reinterpret_cast<const char*>(data), size));

    // 16-bit units; the narrow twin has '!' (outside the alphabet) wherever a unit is not a
    // byte, so both must stop at the same place.
    std::wstring wide;
    std::string twin;
    for (size_t i = 0; i + 1 < size; i += 2) {
        const auto unit = static_cast<wchar_t>(data[i] | data[i + 1] << 8);
        wide += unit;
        twin += unit < 256 ? static_cast<char>(unit) : '!';
    }
    fuzz::check(decodeChecked(wide) == decodeChecked(twin), "wide text decodes as its narrow twin");
    return 0;
}
