#include <hrm_api/hrm_api_base64.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <type_traits>

// Table-driven Base64 in portable C++. Encoding looks up two characters at a time (a 12-bit
// half of a 3-byte group) and stores them as one integer; decoding looks up each character in
// a table per position that already holds its bits where they go in the output word, so that
// a group of four characters is four loads, three ORs and one store. Both run straight between
// the caller's buffers.

namespace hrm {
namespace {

#if defined(__BYTE_ORDER__) && defined(__ORDER_BIG_ENDIAN__) && __BYTE_ORDER__ == __ORDER_BIG_ENDIAN__
constexpr bool littleEndianHost = false;
#else
constexpr bool littleEndianHost = true; // x86, ARM in its usual mode, and every Windows target
#endif

constexpr char alphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// An unsigned integer of exactly `bytes` bytes.
template <size_t bytes>
using Unsigned = std::conditional_t<bytes == 2, uint16_t, std::conditional_t<bytes == 4, uint32_t, uint64_t>>;

template <typename Char>
using CharPair = Unsigned<2 * sizeof(Char)>;

// For each 12-bit value, its two characters as they lie in memory, first character first.
template <typename Char>
constexpr std::array<CharPair<Char>, 4096> makePairTable()
{
    using Pair = CharPair<Char>;
    constexpr unsigned bits = 8 * sizeof(Char);
    std::array<Pair, 4096> table{};
    for (unsigned v = 0; v < 4096; ++v) {
        const auto first = static_cast<Pair>(static_cast<unsigned char>(alphabet[v >> 6]));
        const auto second = static_cast<Pair>(static_cast<unsigned char>(alphabet[v & 0x3F]));
        table[v] = littleEndianHost ? static_cast<Pair>(first | second << bits) : static_cast<Pair>(first << bits | second);
    }
    return table;
}

template <typename Char>
constexpr std::array<CharPair<Char>, 4096> pairTable = makePairTable<Char>();

template <typename Char>
void storePair(Char* out, unsigned twelveBits)
{
    std::memcpy(out, &pairTable<Char>[twelveBits], sizeof(CharPair<Char>));
}

template <typename Char>
size_t encodeBase64(Char* dest, const void* src, size_t bytes)
{
    const auto* in = static_cast<const unsigned char*>(src);
    Char* out = dest;
    size_t i = 0;
    for (; i + 6 <= bytes; i += 6, out += 8) {
        const unsigned first = unsigned(in[i]) << 16 | unsigned(in[i + 1]) << 8 | in[i + 2];
        const unsigned second = unsigned(in[i + 3]) << 16 | unsigned(in[i + 4]) << 8 | in[i + 5];
        storePair(out, first >> 12);
        storePair(out + 2, first & 0xFFF);
        storePair(out + 4, second >> 12);
        storePair(out + 6, second & 0xFFF);
    }
    for (; i + 3 <= bytes; i += 3, out += 4) {
        const unsigned group = unsigned(in[i]) << 16 | unsigned(in[i + 1]) << 8 | in[i + 2];
        storePair(out, group >> 12);
        storePair(out + 2, group & 0xFFF);
    }
    if (i < bytes) {
        const bool two = i + 1 < bytes;
        const unsigned group = unsigned(in[i]) << 16 | (two ? unsigned(in[i + 1]) << 8 : 0);
        out[0] = static_cast<Char>(alphabet[group >> 18]);
        out[1] = static_cast<Char>(alphabet[(group >> 12) & 0x3F]);
        out[2] = static_cast<Char>(two ? alphabet[(group >> 6) & 0x3F] : '=');
        out[3] = static_cast<Char>('=');
        out += 4;
    }
    return static_cast<size_t>(out - dest);
}

// Used on big-endian hosts only.
[[maybe_unused]] uint32_t swapBytes(uint32_t word)
{
    return word >> 24 | (word >> 8 & 0xFF00) | (word << 8 & 0xFF0000) | word << 24;
}

template <typename Char>
size_t encodeWords(Char* dest, const void* words, size_t count)
{
    if constexpr (littleEndianHost) {
        return encodeBase64(dest, words, 4 * count);
    } else {
        // Little-endian copies of the words, a few at a time (a multiple of 3 words, so that
        // every piece but the last ends on a whole group).
        std::array<uint32_t, 768> piece;
        const auto* in = static_cast<const unsigned char*>(words);
        size_t written = 0;
        for (size_t done = 0; done < count;) {
            const size_t n = std::min(piece.size(), count - done);
            std::memcpy(piece.data(), in + 4 * done, 4 * n);
            std::transform(piece.begin(), piece.begin() + n, piece.begin(), swapBytes);
            written += encodeBase64(dest + written, piece.data(), 4 * n);
            done += n;
        }
        return written;
    }
}

// Decoding: a character outside the alphabet (or beyond one byte) carries this bit, which
// lies above the 24 bits of a group.
constexpr uint32_t notInAlphabet = uint32_t(1) << 24;

// Table k maps the character at position k of a group to its six bits placed in the group's
// three output bytes as a host-order word holds them (byte 0 first in memory).
constexpr std::array<std::array<uint32_t, 256>, 4> makeDecodeTables()
{
    std::array<std::array<uint32_t, 256>, 4> tables{};
    for (auto& table : tables) {
        for (auto& entry : table)
            entry = notInAlphabet;
    }
    for (uint32_t v = 0; v < 64; ++v) {
        for (unsigned k = 0; k < 4; ++k) {
            const uint32_t group = v << (18 - 6 * k); // byte 0 in bits 16..23
            const uint32_t word = littleEndianHost
                ? (group >> 16 & 0xFF) | (group & 0xFF00) | (group & 0xFF) << 16
                : group << 8;
            tables[k][static_cast<unsigned char>(alphabet[v])] = word;
        }
    }
    return tables;
}

constexpr std::array<std::array<uint32_t, 256>, 4> decodeTables = makeDecodeTables();

template <typename Char>
unsigned code(Char ch)
{
    return static_cast<std::make_unsigned_t<Char>>(ch);
}

// The three bytes of the group at `in` in a word's first three bytes, or a word with the
// notInAlphabet bit.
template <typename Char>
uint32_t decodeGroup(const Char* in)
{
    const unsigned a = code(in[0]), b = code(in[1]), c = code(in[2]), d = code(in[3]);
    if constexpr (sizeof(Char) > 1) {
        if ((a | b | c | d) > 0xFF)
            return notInAlphabet;
    }
    return decodeTables[0][a] | decodeTables[1][b] | decodeTables[2][c] | decodeTables[3][d];
}

template <typename Char>
uint32_t sextet(Char ch)
{
    const unsigned value = code(ch);
    if (value > 0xFF || decodeTables[3][value] & notInAlphabet)
        return notInAlphabet;
    return littleEndianHost ? decodeTables[3][value] >> 16 : decodeTables[3][value] >> 8;
}

template <typename Char>
std::pair<size_t, size_t> decodeBase64(void* dest, const Char* src, size_t chars)
{
    auto* out = static_cast<unsigned char*>(dest);
    size_t i = 0;
    // Two groups at a time, stored as one 8-byte word: its last two bytes land where the next
    // group goes, which the room for decodedSize(chars) covers while a third group follows.
    for (; i + 12 <= chars; i += 8, out += 6) {
        const uint32_t first = decodeGroup(src + i);
        const uint32_t second = decodeGroup(src + i + 4);
        if ((first | second) & notInAlphabet)
            break;
        const uint64_t both = littleEndianHost ? first | uint64_t(second) << 24 : uint64_t(first) << 32 | uint64_t(second) << 8;
        std::memcpy(out, &both, sizeof both);
    }
    for (; i + 4 <= chars; i += 4, out += 3) {
        const uint32_t group = decodeGroup(src + i);
        if (group & notInAlphabet)
            break;
        const unsigned char bytes[4] = {
            static_cast<unsigned char>(littleEndianHost ? group : group >> 24),
            static_cast<unsigned char>(littleEndianHost ? group >> 8 : group >> 16),
            static_cast<unsigned char>(littleEndianHost ? group >> 16 : group >> 8),
            0,
        };
        std::memcpy(out, bytes, 3);
    }
    // The last, unfinished group: at most three characters before the end or the stop.
    uint32_t group = 0;
    size_t collected = 0;
    for (; i < chars && collected < 3; ++i, ++collected) {
        const uint32_t value = sextet(src[i]);
        if (value & notInAlphabet)
            break;
        group = group << 6 | value;
    }
    if (collected > 1) {
        group <<= 6 * (4 - collected);
        for (size_t k = 0; k + 1 < collected; ++k)
            *out++ = static_cast<unsigned char>(group >> (16 - 8 * k));
    }
    return {static_cast<size_t>(out - static_cast<unsigned char*>(dest)), i};
}

} // namespace

size_t Base64::encodeImpl(char* dest, const void* src, size_t bytes)
{
    return encodeBase64(dest, src, bytes);
}

size_t Base64::encodeImpl(wchar_t* dest, const void* src, size_t bytes)
{
    return encodeBase64(dest, src, bytes);
}

size_t Base64::encodeWordsInto(char* dest, const void* words, size_t count)
{
    return encodeWords(dest, words, count);
}

size_t Base64::encodeWordsInto(wchar_t* dest, const void* words, size_t count)
{
    return encodeWords(dest, words, count);
}

std::pair<size_t, size_t> Base64::decodeImpl(void* dest, const char* src, size_t chars)
{
    return decodeBase64(dest, src, chars);
}

std::pair<size_t, size_t> Base64::decodeImpl(void* dest, const wchar_t* src, size_t chars)
{
    return decodeBase64(dest, src, chars);
}

void Base64::fromLittleEndian(void* words, size_t count)
{
    if constexpr (!littleEndianHost) {
        auto* bytes = static_cast<unsigned char*>(words);
        for (size_t i = 0; i < count; ++i, bytes += 4) {
            uint32_t word;
            std::memcpy(&word, bytes, 4);
            word = swapBytes(word);
            std::memcpy(bytes, &word, 4);
        }
    } else {
        (void)words;
        (void)count;
    }
}

} // namespace hrm
