#include "hrm_api/hrm_api_deflate_engines.h"

#if defined(HRM_WITH_LIBDEFLATE)
#include <libdeflate.h>
#endif
#if defined(HRM_WITH_IGZIP)
#include <isa-l/igzip_lib.h>
#endif

#include <algorithm>
#include <cstdint>
#include <limits>
#include <memory>
#include <stdexcept>

namespace hrm::deflate_engines {
namespace {

// The levels an engine takes, and the one that -1 stands for.
struct Levels
{
    int lowest;
    int highest;
    int standard;
};

Levels levelsOf(DeflateEngine engine)
{
    switch (engine) {
    case DeflateEngine::zlib:
        return {0, 9, 6};
    case DeflateEngine::libdeflate:
        return {0, 12, 6};
    case DeflateEngine::igzip:
        return {0, 3, 1};
    }
    return {0, -1, 0}; // not an engine: no level at all
}

// The level `compression` names, -1 resolved; throws for an engine not built in or a level it
// refuses.
int levelOf(Compression compression)
{
    if (!isBuiltIn(compression.engine))
        throw std::invalid_argument("Compressor: deflate engine not available");
    const Levels levels = levelsOf(compression.engine);
    const int level = compression.level == -1 ? levels.standard : compression.level;
    if (level < levels.lowest || level > levels.highest)
        throw std::runtime_error("deflate init failed");
    return level;
}

#if defined(HRM_WITH_LIBDEFLATE)

struct FreeLibdeflate
{
    void operator()(libdeflate_compressor* compressor) const { libdeflate_free_compressor(compressor); }
    void operator()(libdeflate_decompressor* decompressor) const { libdeflate_free_decompressor(decompressor); }
};

void libdeflateCompress(int level, std::vector<char>& out, const char* data, size_t size)
{
    const std::unique_ptr<libdeflate_compressor, FreeLibdeflate> compressor(libdeflate_alloc_compressor(level));
    if (!compressor)
        throw std::runtime_error("deflate init failed");
    out.resize(libdeflate_gzip_compress_bound(compressor.get(), size));
    out.resize(libdeflate_gzip_compress(compressor.get(), data, size, out.data(), out.size()));
}

// The two wrappers a compressed stream comes in.
enum class Wrapper
{
    gzip,
    zlib,
};

constexpr unsigned char gzipHeaderCrcFlag = 0x02;

// The wrapper of a stream that libdeflate inflates exactly as zlib does, if it is one.
// libdeflate skips a gzip header's CRC without checking it, so such headers go to zlib.
bool libdeflateWrapper(const char* data, size_t size, Wrapper& wrapper)
{
    const auto* bytes = reinterpret_cast<const unsigned char*>(data);
    if (size >= 4 && bytes[0] == 0x1F && bytes[1] == 0x8B) {
        wrapper = Wrapper::gzip;
        return (bytes[3] & gzipHeaderCrcFlag) == 0;
    }
    wrapper = Wrapper::zlib;
    return size >= 2;
}

// Each time the output fills the room it was given, the room grows by this factor.
constexpr size_t roomGrowth = 4;

#endif

#if defined(HRM_WITH_IGZIP)

// igzip counts in 32 bits.
uint32_t igzipCount(size_t count)
{
    return static_cast<uint32_t>(std::min<size_t>(count, std::numeric_limits<uint32_t>::max()));
}

void igzipCompress(int level, std::vector<char>& out, const char* data, size_t size)
{
    static constexpr uint32_t levelBufferSizes[] = {ISAL_DEF_LVL0_DEFAULT, ISAL_DEF_LVL1_DEFAULT,
                                                    ISAL_DEF_LVL2_DEFAULT, ISAL_DEF_LVL3_DEFAULT};
    std::vector<uint8_t> levelBuffer(levelBufferSizes[level]);
    isal_zstream stream{}; // isal_deflate_init leaves the input and output fields as they are
    isal_deflate_init(&stream);
    stream.level = static_cast<uint32_t>(level);
    stream.level_buf = levelBuffer.data();
    stream.level_buf_size = static_cast<uint32_t>(levelBuffer.size());
    stream.gzip_flag = IGZIP_GZIP;

    size_t consumed = 0;
    size_t total = 0;
    out.clear();
    do {
        if (stream.avail_in == 0) {
            stream.avail_in = igzipCount(size - consumed);
            stream.next_in = reinterpret_cast<uint8_t*>(const_cast<char*>(data + consumed));
            consumed += stream.avail_in;
            stream.end_of_stream = consumed == size;
        }
        if (total == out.size())
            out.resize(std::max(2 * total, size / 2 + 1024));
        stream.avail_out = igzipCount(out.size() - total);
        stream.next_out = reinterpret_cast<uint8_t*>(out.data() + total);
        const uint32_t room = stream.avail_out;
        if (isal_deflate(&stream) != COMP_OK)
            throw std::runtime_error("deflate init failed"); // a level this processor lacks
        total += room - stream.avail_out;
    } while (stream.internal_state.state != ZSTATE_END);
    out.resize(total);
}

#endif

using CompressFunction = void (*)(int level, std::vector<char>& out, const char* data, size_t size);

// The engine's gzip compressor; null for zlib (Compressor's own) and engines not built in.
CompressFunction compressorOf(DeflateEngine engine)
{
    switch (engine) {
#if defined(HRM_WITH_LIBDEFLATE)
    case DeflateEngine::libdeflate:
        return libdeflateCompress;
#endif
#if defined(HRM_WITH_IGZIP)
    case DeflateEngine::igzip:
        return igzipCompress;
#endif
    default:
        return nullptr;
    }
}

} // namespace

bool isBuiltIn(DeflateEngine engine)
{
    return engine == DeflateEngine::zlib || compressorOf(engine) != nullptr;
}

void check(Compression compression)
{
    levelOf(compression);
}

void compress(Compression compression, std::vector<char>& out, const char* data, size_t size)
{
    const int level = levelOf(compression);
    const CompressFunction engine = compressorOf(compression.engine);
    if (!engine) // zlib: Compressor's own
        throw std::invalid_argument("Compressor: deflate engine not available");
    engine(level, out, data, size);
}

#if defined(HRM_WITH_LIBDEFLATE)

// libdeflate alone: igzip's inflate would be fast too, but it takes far more streams that zlib
// refuses (incomplete Huffman codes, a zlib header asking for a window beyond 32 KiB, reserved
// gzip flags). libdeflate takes only a few malformed block headers that zlib refuses (a run of
// code lengths past the count the header gives), and then still checks the CRC-32 and size,
// or the Adler-32, of what came out; an empty result, whose checksums prove nothing, goes to
// zlib all the same.
bool inflate(std::vector<char>& out, const char* data, size_t size, size_t maxSize)
{
    Wrapper wrapper;
    if (!libdeflateWrapper(data, size, wrapper))
        return false;
    // A whole gzip stream is exactly as long as it announces, modulo 4 GiB: one that announces
    // more than the limit is too large or lies, which zlib tells apart.
    size_t limit = maxSize;
    if (wrapper == Wrapper::gzip) {
        limit = announcedSize(data, size);
        if (limit > maxSize)
            return false;
    }
    const std::unique_ptr<libdeflate_decompressor, FreeLibdeflate> decompressor(libdeflate_alloc_decompressor());
    if (!decompressor)
        return false;
    // Both stop at the end of the stream and ignore what follows it, as zlib does.
    const auto run = wrapper == Wrapper::gzip ? libdeflate_gzip_decompress : libdeflate_zlib_decompress;
    size_t room = size > limit / trustedRatio ? limit : size * trustedRatio;
    for (;;) {
        out.clear();
        out.resize(std::max<size_t>(room, 1)); // never a null buffer, even for nothing
        size_t produced = 0;
        switch (run(decompressor.get(), data, size, out.data(), room, &produced)) {
        case LIBDEFLATE_SUCCESS:
            out.resize(produced);
            return produced != 0;
        case LIBDEFLATE_INSUFFICIENT_SPACE: // all well so far: more room, up to the limit
            if (room == limit)
                return false;
            room = room > limit / roomGrowth ? limit : room * roomGrowth;
            break;
        default: // corrupt, cut short, ...: zlib tells which
            return false;
        }
    }
}

#else

bool inflate(std::vector<char>&, const char*, size_t, size_t)
{
    return false;
}

#endif

} // namespace hrm::deflate_engines
