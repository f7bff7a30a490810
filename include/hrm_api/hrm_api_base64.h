#pragma once

/// @file
/// Base64 text for binary payloads: compressed data, arrays of 32-bit values (tessellation,
/// pixels) inside JSON strings.

#include <hrm_api/hrm_api_export.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

/// Base64 with the standard alphabet ("A-Za-z0-9+/"), "=" padding and no line breaks.
///
///    std::wstring text = Base64::encode<std::wstring>(pixels);   // std::vector<uint32_t>
///    std::vector<uint32_t> back;
///    size_t consumed = Base64::decode(text, back);
///
/// Decoding never fails: it stops at the first "=" or character outside the alphabet (white
/// space included) and returns the characters consumed; an unfinished group of k characters
/// gives k - 1 bytes. Decoding into 32-bit values drops a trailing partial value. 32-bit values
/// travel as their little-endian bytes on every platform.
///
/// Both directions are table-driven and work straight between the caller's memory and the
/// caller's text, without a copy in between.
class HRM_API Base64
{
public:
    /// The characters that encode `bytes` bytes, padding included.
    static size_t encodedSize(size_t bytes) { return (bytes + 2) / 3 * 4; }
    /// The bytes of `chars` characters in whole groups of four.
    static size_t decodedSize(size_t chars) { return chars / 4 * 3; }

    /// Text is std::string or std::wstring; Container holds bytes or 32-bit values.
    template <typename Text = std::string, typename Container>
    static Text encode(const Container& data)
    {
        Text text(encodedSize(data.size() * elementSize<Container>()), typename Text::value_type());
        if constexpr (elementSize<Container>() == 1)
            text.resize(encodeInto(&text[0], data.data(), data.size()));
        else
            text.resize(encodeWordsInto(&text[0], data.data(), data.size()));
        return text;
    }

    /// Writes the encodedSize(bytes) characters of the `bytes` bytes at `src` to `dest`;
    /// returns that count.
    static size_t encodeInto(char* dest, const void* src, size_t bytes) { return encodeImpl(dest, src, bytes); }
    /// The same into wide characters.
    static size_t encodeInto(wchar_t* dest, const void* src, size_t bytes) { return encodeImpl(dest, src, bytes); }
    /// Writes the encodedSize(4 * count) characters of the little-endian bytes of the `count`
    /// 32-bit values at `words` to `dest`; returns that count.
    static size_t encodeWordsInto(char* dest, const void* words, size_t count);
    /// The same into wide characters.
    static size_t encodeWordsInto(wchar_t* dest, const void* words, size_t count);

    /// Replaces `out` with the data decoded from the `length` characters at `text` (32-bit
    /// values from their little-endian bytes); returns the characters consumed.
    template <typename Container, typename Char>
    static size_t decode(const Char* text, size_t length, Container& out)
    {
        constexpr size_t size = elementSize<Container>();
        // An unfinished last group still yields bytes, so size for one more whole group.
        out.resize((decodedSize(length + 3) + size - 1) / size);
        const auto [bytes, consumed] = decodeImpl(out.data(), text, length);
        out.resize(bytes / size);
        if constexpr (size == 4)
            fromLittleEndian(out.data(), out.size());
        return consumed;
    }

    template <typename Container, typename Char>
    /// decode() of a whole string.
    static size_t decode(const std::basic_string<Char>& text, Container& out)
    {
        return decode(text.data(), text.size(), out);
    }

private:
    template <typename Container>
    static constexpr size_t elementSize()
    {
        constexpr size_t size = sizeof(typename Container::value_type);
        static_assert(size == 1 || size == 4, "Base64 works on containers of bytes or 32-bit values");
        return size;
    }

    /// Write encodedSize(bytes) characters; return that count.
    static size_t encodeImpl(char* dest, const void* src, size_t bytes);
    static size_t encodeImpl(wchar_t* dest, const void* src, size_t bytes);
    /// Return (bytes written, characters consumed). `dest` has room for decodedSize(chars + 3).
    static std::pair<size_t, size_t> decodeImpl(void* dest, const char* src, size_t chars);
    static std::pair<size_t, size_t> decodeImpl(void* dest, const wchar_t* src, size_t chars);
    /// Turns `count` 32-bit values read as little-endian bytes into the host's order, in place
    /// (nothing to do on a little-endian host).
    static void fromLittleEndian(void* words, size_t count);
};

} // namespace hrm
