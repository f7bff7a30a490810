#pragma once

// The deflate engines beside zlib (libdeflate, Intel ISA-L's igzip), each built in only when
// the library is built with it. Compressor keeps zlib's own path; it comes here for the rest.

#include <hrm_api/hrm_api_compression.h>

#include <cstddef>
#include <vector>

namespace hrm::deflate_engines {

// A gzip trailer's size claim is data like any other: output room is reserved for at most this
// many times the input until the data shows it inflates further.
constexpr size_t trustedRatio = 16;

// The size the trailer of a gzip stream of `size` bytes announces (its true size modulo 2^32
// if the stream is whole); `size` is at least 4.
inline size_t announcedSize(const char* data, size_t size)
{
    const auto* trailer = reinterpret_cast<const unsigned char*>(data + size - 4);
    return trailer[0] | trailer[1] << 8 | trailer[2] << 16 | size_t(trailer[3]) << 24;
}

// Whether `engine` is built in (zlib is not one of these engines: false).
bool isBuiltIn(DeflateEngine engine);

// Throws what compress() throws for `compression` (an engine not built in, a level it refuses).
void check(Compression compression);

// Replaces `out` with the gzip stream of the input, compressed as `compression` says with an
// engine other than zlib. Throws as check() does.
void compress(Compression compression, std::vector<char>& out, const char* data, size_t size);

// Inflates a whole, well-formed gzip or zlib stream of at most `maxSize` bytes into `out` with
// libdeflate, and returns true. Returns false, `out` unspecified, when libdeflate is not built
// in or the input is anything else (corrupt, cut short, beyond the limit, a gzip header with a
// header CRC): zlib then inflates it, and so gives the same prefix, limit and message it
// always gives.
bool inflate(std::vector<char>& out, const char* data, size_t size, size_t maxSize);

} // namespace hrm::deflate_engines
