// The table-driven Base64 paths (two groups at a time, one group, the unfinished end) against a
// plain bit-by-bit reference, at every length and stop position around their boundaries.

#include <hrm_api/hrm_api_base64.h>

#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace hrm {
namespace {

const std::string alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// RFC 4648 bit by bit: six bits at a time from the front, zero bits to fill, "=" to pad.
std::string reference(const std::string& bytes)
{
    std::string text;
    for (size_t bit = 0; bit < 8 * bytes.size(); bit += 6) {
        unsigned value = 0;
        for (size_t k = bit; k < bit + 6; ++k) {
            const bool set = k < 8 * bytes.size() && (static_cast<unsigned char>(bytes[k / 8]) >> (7 - k % 8) & 1);
            value = value << 1 | unsigned(set);
        }
        text += alphabet[value];
    }
    while (text.size() % 4 != 0)
        text += '=';
    return text;
}

std::string randomBytes(size_t size, std::mt19937& random)
{
    std::string bytes(size, '\0');
    for (char& byte : bytes)
        byte = static_cast<char>(random());
    return bytes;
}

TEST(Base64, EveryLengthMatchesTheReferenceBothWays)
{
    std::mt19937 random(5);
    for (size_t size = 0; size < 64; ++size) {
        const std::string bytes = randomBytes(size, random);
        const std::string text = reference(bytes);
        EXPECT_EQ(Base64::encode(bytes), text) << size;
        EXPECT_EQ(Base64::encode<std::wstring>(bytes), std::wstring(text.begin(), text.end())) << size;

        std::string narrow, wide;
        const size_t unpadded = text.find('=') == std::string::npos ? text.size() : text.find('=');
        EXPECT_EQ(Base64::decode(text, narrow), unpadded) << size;
        EXPECT_EQ(Base64::decode(std::wstring(text.begin(), text.end()), wide), unpadded) << size;
        EXPECT_EQ(narrow, bytes) << size;
        EXPECT_EQ(wide, bytes) << size;
    }
}

TEST(Base64, AStopAnywhereEndsDecodingThere)
{
    std::mt19937 random(9);
    const std::string text = Base64::encode(randomBytes(48, random)); // 64 characters
    for (size_t stop = 0; stop < text.size(); ++stop) {
        for (const char bad : {'=', ' ', '-', '\0'}) {
            std::string cut = text;
            cut[stop] = bad;
            std::string expected, decoded;
            Base64::decode(text.substr(0, stop), expected);
            EXPECT_EQ(Base64::decode(cut, decoded), stop) << stop;
            EXPECT_EQ(decoded, expected) << stop;
        }
        // A wide character outside one byte stops as well, whatever its low byte.
        std::wstring wide(text.begin(), text.end());
        wide[stop] = static_cast<wchar_t>(0x100 + 'A');
        std::string decoded, expected;
        Base64::decode(text.substr(0, stop), expected);
        EXPECT_EQ(Base64::decode(wide, decoded), stop) << stop;
        EXPECT_EQ(decoded, expected) << stop;
    }
}

TEST(Base64, ThirtyTwoBitValuesTravelLittleEndian)
{
    const std::vector<uint32_t> words{0x04030201, 0xFFFEFDFC};
    EXPECT_EQ(Base64::encode(words), reference(std::string("\x01\x02\x03\x04\xFC\xFD\xFE\xFF", 8)));
    std::wstring text(Base64::encodedSize(8), L'\0');
    EXPECT_EQ(Base64::encodeWordsInto(&text[0], words.data(), words.size()), text.size());
    std::vector<uint32_t> back;
    Base64::decode(text, back);
    EXPECT_EQ(back, words);
}

} // namespace
} // namespace hrm
