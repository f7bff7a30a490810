#pragma once

// What the round-trip benchmarks share: raw zlib calls, the peers of the library's compressor
// on the same bytes, and an exchange object's way through its envelope.

#include <hrm_api/hrm_api.h>

#include <zlib.h>

#include <memory>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace hrm::bench {

// gzip of `bytes` with zlib's own calls at its default level, in one call into a buffer of the
// bound's size.
inline std::vector<char> rawDeflate(const std::vector<char>& bytes)
{
    z_stream stream{};
    deflateInit2(&stream, Z_DEFAULT_COMPRESSION, Z_DEFLATED, 31, 8, Z_DEFAULT_STRATEGY);
    std::vector<char> out(deflateBound(&stream, static_cast<uLong>(bytes.size())));
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(bytes.data()));
    stream.avail_in = static_cast<uInt>(bytes.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    if (deflate(&stream, Z_FINISH) != Z_STREAM_END)
        throw std::runtime_error("deflate failed");
    out.resize(stream.total_out);
    deflateEnd(&stream);
    return out;
}

// The `size` bytes of `gzip` inflated with zlib's own calls into a buffer of the known result
// size: the best a caller can do.
inline std::vector<char> rawInflate(const std::vector<char>& gzip, size_t size)
{
    z_stream stream{};
    inflateInit2(&stream, 47);
    std::vector<char> out(size);
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(gzip.data()));
    stream.avail_in = static_cast<uInt>(gzip.size());
    stream.next_out = reinterpret_cast<Bytef*>(out.data());
    stream.avail_out = static_cast<uInt>(out.size());
    if (inflate(&stream, Z_FINISH) != Z_STREAM_END)
        throw std::runtime_error("inflate failed");
    inflateEnd(&stream);
    return out;
}

// The envelope of `object`; its buffer stays for the reader.
inline std::wstring envelope(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    std::wostringstream out;
    wrapper.writeObject(out);
    return out.str();
}

// The object an envelope announces, loaded; the buffer is removed when `remove`.
inline std::shared_ptr<IExchangeObject> loaded(const std::wstring& text, bool remove)
{
    ExchangeObjectWrapper wrapper;
    wrapper.setRemoveAfterLoading(remove);
    std::wistringstream in(text);
    wrapper.readObject(in);
    return wrapper.get();
}

} // namespace hrm::bench
