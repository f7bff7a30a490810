#include <hrm_api/hrm_api_compression.h>

#include "support/compression_setting.h"
#include "support/expect_message.h"
#include "support/size_limit.h"

#include <gtest/gtest.h>

#include <zlib.h>

#include <random>

namespace hrm {
namespace {

using Bytes = std::vector<char>;

Bytes randomBytes(size_t size, unsigned seed)
{
    std::mt19937 generator(seed);
    Bytes data(size);
    for (char& byte : data)
        byte = static_cast<char>(generator());
    return data;
}

// Text-like data that compresses to roughly a third.
Bytes wordBytes(size_t size)
{
    static const char* const words[] = {"block ", "face ", "edge ", "12.5 ", "-3.25 ", "{\"id\":", "true, ", "\n"};
    std::mt19937 generator(7);
    Bytes data;
    while (data.size() < size) {
        const char* word = words[generator() % 8];
        data.insert(data.end(), word, word + std::char_traits<char>::length(word));
    }
    data.resize(size);
    return data;
}

Bytes bytesOf(const char* text, size_t size)
{
    return Bytes(text, text + size);
}

Bytes compressed(const Bytes& data, int level = -1)
{
    Bytes out;
    Compressor::compress(out, data.data(), data.size(), level);
    return out;
}

Bytes compressed(const Bytes& data, Compression compression)
{
    Bytes out;
    Compressor::compress(out, data.data(), data.size(), compression);
    return out;
}

// Inflates a gzip stream with zlib alone, as any reader of the stream would.
Bytes zlibInflated(const Bytes& gzip)
{
    z_stream stream{};
    EXPECT_EQ(inflateInit2(&stream, 15 + 16), Z_OK);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(gzip.data()));
    stream.avail_in = static_cast<uInt>(gzip.size());
    Bytes out;
    int result = Z_OK;
    while (result == Z_OK) {
        char chunk[65536];
        stream.next_out = reinterpret_cast<Bytef*>(chunk);
        stream.avail_out = sizeof chunk;
        result = inflate(&stream, Z_NO_FLUSH);
        out.insert(out.end(), chunk, reinterpret_cast<char*>(stream.next_out));
    }
    EXPECT_EQ(result, Z_STREAM_END);
    EXPECT_EQ(stream.avail_in, 0u); // one gzip member and nothing after it
    inflateEnd(&stream);
    return out;
}

Bytes decompressed(const Bytes& data)
{
    Bytes out{'s', 't', 'a', 'l', 'e'};
    Compressor::decompress(out, data.data(), data.size());
    return out;
}

template <typename Operation>
std::string failureOf(Operation operation)
{
    try {
        operation();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "no exception";
}

std::string zlibMessage(const Bytes& data)
{
    return failureOf([&] { decompressed(data); });
}

// A zlib stream of `mebibytes` MiB of zeros at about a kilobyte per MiB: one block of a MiB,
// flushed so that it stands alone, repeated; the stream is left unfinished.
Bytes zeroBomb(size_t mebibytes)
{
    Bytes zeros(size_t(1) << 20, '\0');
    z_stream stream{};
    EXPECT_EQ(deflateInit(&stream, 9), Z_OK);
    const auto flushed = [&] {
        Bytes out(compressBound(static_cast<uLong>(zeros.size())));
        stream.next_in = reinterpret_cast<Bytef*>(zeros.data());
        stream.avail_in = static_cast<uInt>(zeros.size());
        stream.next_out = reinterpret_cast<Bytef*>(out.data());
        stream.avail_out = static_cast<uInt>(out.size());
        deflate(&stream, Z_FULL_FLUSH);
        out.resize(out.size() - stream.avail_out);
        return out;
    };
    Bytes bomb = flushed(); // the zlib header and the first block
    const Bytes block = flushed();
    deflateEnd(&stream);
    for (size_t i = 1; i < mebibytes; ++i)
        bomb.insert(bomb.end(), block.begin(), block.end());
    return bomb;
}

TEST(Compressor, RecognisesZlibAndGzipHeaders)
{
    const auto is = [](std::initializer_list<unsigned char> bytes) {
        const Bytes data(bytes.begin(), bytes.end());
        return Compressor::isCompressed(data.data(), data.size());
    };
    for (const unsigned char second : {0x01, 0x5E, 0x9C, 0xDA})
        EXPECT_TRUE(is({0x78, second, 0x00})) << int(second);
    EXPECT_TRUE(is({0x1F, 0x8B, 0x08}));
    EXPECT_FALSE(is({0x78, 0x9C}));
    EXPECT_FALSE(is({0x78, 0x00, 0x00}));
    EXPECT_FALSE(is({0x8B, 0x1F, 0x08}));
    EXPECT_FALSE(Compressor::isCompressed(nullptr, 10));
}

TEST(Compressor, RoundTripsAtEveryKindOfLevelAndSize)
{
    // Random data at level 0 grows past the first output chunk (half the input + 1 KiB).
    for (const int level : {-1, 0, 1, 9}) {
        for (const Bytes& data : {Bytes(), randomBytes(1, 1), randomBytes(100000, 2), wordBytes(100000)}) {
            SCOPED_TRACE(testing::Message() << "level " << level << ", size " << data.size());
            const Bytes gzip = compressed(data, level);
            ASSERT_GE(gzip.size(), 18u);
            EXPECT_EQ(static_cast<unsigned char>(gzip[0]), 0x1F);
            EXPECT_EQ(static_cast<unsigned char>(gzip[1]), 0x8B);
            EXPECT_EQ(decompressed(gzip), data);

            std::string text;
            Compressor::compress(text, data.data(), data.size(), level);
            EXPECT_EQ(Bytes(text.begin(), text.end()), gzip);
            std::string back = "stale";
            Compressor::decompress(back, text.data(), text.size());
            EXPECT_EQ(Bytes(back.begin(), back.end()), data);
        }
    }
    EXPECT_LE(compressed(Bytes()).size(), 20u);

    // Empty input decompresses to nothing instead of looping for ever.
    EXPECT_TRUE(decompressed(Bytes()).empty());
    std::string empty = "stale";
    Compressor::decompress(empty, nullptr, 0);
    EXPECT_TRUE(empty.empty());
}

TEST(Compressor, EveryEngineWritesGzipThatZlibReads)
{
    struct Levels
    {
        DeflateEngine engine;
        int standard; // what -1 stands for
        int highest;
    };
    const Bytes inputs[] = {Bytes(), randomBytes(1, 3), randomBytes(300000, 4), wordBytes(1'000'000)};
    for (const auto [engine, standard, highest] :
         {Levels{DeflateEngine::zlib, 6, 9}, Levels{DeflateEngine::libdeflate, 6, 12}, Levels{DeflateEngine::igzip, 1, 3}}) {
        SCOPED_TRACE(testing::Message() << "engine " << int(engine));
        if (!Compressor::isAvailable(engine)) {
            test::expectMessage<std::invalid_argument>([e = engine] { compressed(Bytes(), Compression{e, -1}); },
                                                       "Compressor: deflate engine not available");
            continue;
        }
        for (const int level : {0, 1, highest}) {
            for (const Bytes& data : inputs) {
                SCOPED_TRACE(testing::Message() << "level " << level << ", size " << data.size());
                const Bytes gzip = compressed(data, Compression{engine, level});
                EXPECT_EQ(zlibInflated(gzip), data);
                EXPECT_EQ(decompressed(gzip), data);
            }
        }
        const Bytes& words = inputs[3];
        EXPECT_EQ(compressed(words, Compression{engine, -1}), compressed(words, Compression{engine, standard}));
        std::string text;
        Compressor::compress(text, words.data(), words.size(), Compression{engine, 1});
        EXPECT_EQ(Bytes(text.begin(), text.end()), compressed(words, Compression{engine, 1}));
        for (const int refused : {-2, highest + 1})
            EXPECT_EQ(failureOf([&, e = engine] { compressed(words, Compression{e, refused}); }), "deflate init failed");
    }
    // The zlib engine is the level-only form, byte for byte.
    EXPECT_EQ(compressed(inputs[3], Compression{}), compressed(inputs[3], -1));
}

TEST(Compressor, CompressionIsChosenForTheWholeLibrary)
{
    EXPECT_EQ(Compressor::compression(), Compression{});
    const Compression fast{Compressor::isAvailable(DeflateEngine::libdeflate) ? DeflateEngine::libdeflate
                                                                               : DeflateEngine::zlib,
                           1};
    const test::CompressionSetting setting(fast);
    EXPECT_EQ(Compressor::compression(), fast);
    // A setting that compress() would refuse is refused here, and the last one stays.
    EXPECT_EQ(failureOf([] { Compressor::setCompression(Compression{DeflateEngine::zlib, 10}); }), "deflate init failed");
    EXPECT_THROW(Compressor::setCompression(Compression{static_cast<DeflateEngine>(7), -1}), std::invalid_argument);
    EXPECT_EQ(Compressor::compression(), fast);
}

TEST(Compressor, InflatesForeignZlibStreamsAndLargeRatios)
{
    const Bytes data = wordBytes(50000);
    Bytes zlib(compressBound(static_cast<uLong>(data.size())));
    uLongf size = static_cast<uLongf>(zlib.size());
    ASSERT_EQ(compress2(reinterpret_cast<Bytef*>(zlib.data()), &size, reinterpret_cast<const Bytef*>(data.data()),
                        static_cast<uLong>(data.size()), 6),
              Z_OK);
    zlib.resize(size);
    EXPECT_EQ(static_cast<unsigned char>(zlib[0]), 0x78);
    EXPECT_EQ(decompressed(zlib), data);

    // Hundreds of output chunks of twice the input size each.
    const Bytes repetitive(5'000'000, 'a');
    const Bytes gzip = compressed(repetitive, 9);
    EXPECT_LT(gzip.size() * 500, repetitive.size());
    EXPECT_EQ(decompressed(gzip), repetitive);

    Bytes limited;
    EXPECT_NO_THROW(Compressor::decompress(limited, gzip.data(), gzip.size(), repetitive.size()));
    EXPECT_THROW(Compressor::decompress(limited, gzip.data(), gzip.size(), repetitive.size() - 1), std::length_error);
}

TEST(Compressor, DecompressedSizeIsBoundedForTheWholeLibrary)
{
    EXPECT_EQ(Compressor::decompressedSizeLimit(), size_t(512) << 20);
    const size_t mebibyte = size_t(1) << 20;
    EXPECT_EQ(decompressed(zeroBomb(3)), Bytes(3 * mebibyte, '\0'));

    // Four gibibytes from a few megabytes are refused at the limit, with no more room taken.
    const Bytes bomb = zeroBomb(4096);
    EXPECT_LT(bomb.size(), 8 * mebibyte);
    const test::SizeLimit limit(mebibyte);
    const auto limitError = [&](auto& out, size_t maxSize) {
        try {
            Compressor::decompress(out, bomb.data(), bomb.size(), maxSize);
        } catch (const std::length_error& error) {
            return std::string(error.what());
        }
        return std::string("no exception");
    };
    Bytes bytes;
    std::string text;
    EXPECT_EQ(limitError(bytes, Compressor::decompressedSizeLimit()), "Compressor: decompressed data exceeds the size limit");
    EXPECT_LE(bytes.capacity(), mebibyte + 1);
    EXPECT_EQ(limitError(text, Compressor::decompressedSizeLimit()), "Compressor: decompressed data exceeds the size limit");
    EXPECT_THROW(decompressed(zeroBomb(2)), std::length_error);

    // Exactly the limit passes; a limit given to the call overrides the library's.
    EXPECT_EQ(decompressed(zeroBomb(1)).size(), mebibyte);
    EXPECT_EQ(limitError(bytes, 3 * mebibyte), "Compressor: decompressed data exceeds the size limit");
    EXPECT_LE(bytes.capacity(), 3 * mebibyte + 1);
    const Bytes three = zeroBomb(3);
    Compressor::decompress(bytes, three.data(), three.size(), 3 * mebibyte);
    EXPECT_EQ(bytes.size(), 3 * mebibyte);
}

TEST(Compressor, TruncatedStreamsGiveAPrefixAndCorruptOnesThrow)
{
    const Bytes data = wordBytes(200000);
    const Bytes gzip = compressed(data);
    const Bytes cut(gzip.begin(), gzip.begin() + static_cast<std::ptrdiff_t>(gzip.size() / 2));
    const Bytes prefix = decompressed(cut);
    EXPECT_GT(prefix.size(), data.size() / 4);
    EXPECT_LT(prefix.size(), data.size());
    EXPECT_TRUE(std::equal(prefix.begin(), prefix.end(), data.begin()));
    EXPECT_TRUE(decompressed(Bytes(gzip.begin(), gzip.begin() + 10)).empty());
    // All the data with a trailer cut short, or with bytes after the trailer, is all the data.
    for (size_t missing = 1; missing <= 8; ++missing)
        EXPECT_EQ(decompressed(Bytes(gzip.begin(), gzip.end() - static_cast<std::ptrdiff_t>(missing))), data);
    Bytes followed = gzip;
    followed.insert(followed.end(), {'\x1F', '\x8B', 'x'});
    EXPECT_EQ(decompressed(followed), data);

    // A header that carries its own CRC is checked (libdeflate would skip it).
    Bytes headerCrc(gzip.begin(), gzip.begin() + 10);
    headerCrc[3] |= 0x02;
    const uLong crc = crc32(0, reinterpret_cast<const Bytef*>(headerCrc.data()), 10);
    headerCrc.insert(headerCrc.end(), {static_cast<char>(crc & 0xFF), static_cast<char>(crc >> 8 & 0xFF)});
    headerCrc.insert(headerCrc.end(), gzip.begin() + 10, gzip.end());
    EXPECT_EQ(decompressed(headerCrc), data);
    headerCrc[10] ^= 1;
    EXPECT_EQ(zlibMessage(headerCrc), "header crc mismatch");

    const auto corrupted = [&](size_t at, char byte) {
        Bytes bad = gzip;
        bad[at] = byte;
        return zlibMessage(bad);
    };
    EXPECT_EQ(corrupted(2, 7), "unknown compression method");
    EXPECT_EQ(corrupted(10, 0x07), "invalid block type");
    EXPECT_EQ(corrupted(gzip.size() - 8, static_cast<char>(gzip[gzip.size() - 8] ^ 1)), "incorrect data check");
    // The trailer's size field also sizes the output in advance, but only up to a small
    // multiple of the input: here the last four bytes of a stream cut short claim 4 GiB.
    EXPECT_EQ(corrupted(gzip.size() - 1, '\x7F'), "incorrect length check");
    Bytes claims(1000, 'x');
    std::fill(claims.end() - 4, claims.end(), '\xFF');
    Bytes stored = compressed(claims, 0); // the bytes stand as they are in a stored block
    stored.resize(stored.size() - 8);     // without the real trailer
    ASSERT_TRUE(std::equal(claims.end() - 4, claims.end(), stored.end() - 4));
    Bytes out;
    Compressor::decompress(out, stored.data(), stored.size());
    EXPECT_EQ(out, claims);
    EXPECT_LE(out.capacity(), 16 * stored.size() + 1);
    EXPECT_EQ(zlibMessage(Bytes{'n', 'o', 't', ' ', 'z', 'l', 'i', 'b'}), "incorrect header check");

    // 100 times "a" with the right CRC and size, in a block whose literal/length code is
    // incomplete (two codes of two bits): zlib refuses it, and so must a faster inflater.
    Bytes incompleteCode = bytesOf("\x1F\x8B\x08\0\0\0\0\0\0\x03\x05\xC0\x01\x09\0\0\0\x80\xA0\xAD\xFD\x3F\x91", 23);
    incompleteCode.resize(incompleteCode.size() + 25, 0);
    const Bytes trailer = bytesOf("\x02\x64\x7A\x70\xAF\x64\0\0\0", 9);
    incompleteCode.insert(incompleteCode.end(), trailer.begin(), trailer.end());
    EXPECT_EQ(zlibMessage(incompleteCode), "invalid literal/lengths set");
    // Code lengths that run past the count the block header gives, and the trailer of nothing:
    // libdeflate takes it, zlib refuses it.
    const Bytes overrun = bytesOf("\x1F\x8B\x08\0\0\0\0\0\x04\x03\xED\xD0\x31\x01\0\0\0\xC2\xA0\xF5\x4F\x6D\x0D"
                                  "\x0F\x88\x38\0\0\0\0\0\0\0\0",
                                  34);
    EXPECT_EQ(zlibMessage(overrun), "invalid bit length repeat");

    EXPECT_EQ(failureOf([&] { compressed(data, 10); }), "deflate init failed");
}

TEST(Base64, EncodesAndDecodesTheStandardAlphabet)
{
    for (const auto& [bytes, text] : {std::pair{"", ""}, {"M", "TQ=="}, {"Ma", "TWE="}, {"Man", "TWFu"}})
        EXPECT_EQ(Base64::encode(std::string(bytes)), text);
    EXPECT_EQ(Base64::encode<std::wstring>(std::string("\xFB\xFF\xBF")), L"+/+/");

    const auto decode = [](const auto& text, size_t consumed) {
        std::string out = "stale";
        EXPECT_EQ(Base64::decode(text, out), consumed);
        return out;
    };
    EXPECT_EQ(decode(std::string("TWE="), 3), "Ma");
    EXPECT_EQ(decode(std::string("TW E="), 2), "M");
    EXPECT_EQ(decode(std::string("TQ"), 2), "M");
    EXPECT_EQ(decode(std::string("TWFuT"), 5), "Man");
    EXPECT_EQ(decode(std::string("TWFu\nTWFu"), 4), "Man");
    EXPECT_EQ(decode(std::string("TW-_"), 2), "M");
    // A wide character whose low byte is in the alphabet is still outside it.
    EXPECT_EQ(decode(std::wstring{L'T', L'W', wchar_t(0x141), L'u'}, 2), "M");

    // Every byte value survives, through both text types; the padding is not consumed.
    std::string all;
    for (int i = 0; i < 256; ++i)
        all += static_cast<char>(i);
    EXPECT_EQ(decode(Base64::encode(all), 342), all);
    EXPECT_EQ(decode(Base64::encode<std::wstring>(all), 342), all);
}

TEST(Base64, CarriesThirtyTwoBitValues)
{
    const std::vector<uint32_t> pixels{0x00000000, 0xFFFFFFFF, 0x12345678, 0x80FF7F01, 7};
    const std::wstring text = Base64::encode<std::wstring>(pixels);
    EXPECT_EQ(text.size(), Base64::encodedSize(20));
    std::vector<uint32_t> back;
    EXPECT_EQ(Base64::decode(text, back), text.size() - 1); // up to the "="
    EXPECT_EQ(back, pixels);

    // Bytes that do not fill a last value are dropped.
    std::vector<uint32_t> partial;
    EXPECT_EQ(Base64::decode(Base64::encode(std::string("abcdefg")), partial), 10u);
    ASSERT_EQ(partial.size(), 1u);
    EXPECT_EQ(Base64::encode(partial), Base64::encode(std::string("abcd")));
    EXPECT_EQ(Base64::decode(std::string("TWE="), partial), 3u);
    EXPECT_TRUE(partial.empty());
}

} // namespace
} // namespace hrm
