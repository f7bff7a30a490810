// One block visualization of a real-size mesh (samples/visualization_sample.h) through every
// stage of its way from the translator to the host, stage by stage, beside raw zlib deflate and
// inflate of the same bytes in the same run:
//
//   Build          the object from the tessellator's arrays
//   WriteObject    the object into a JSON document (packed arrays Base64-encoded)
//   BinaryEncode   the document into binary JSON
//   Deflate        gzip of the binary JSON (Compressor; RawDeflate: zlib's own calls)
//   SharedWrite    a new named shared-memory buffer holding the gzip bytes
//   SharedRead     the bytes copied out of the buffer
//   Inflate        the binary JSON back (Compressor; RawInflate: zlib's own calls)
//   BinaryDecode   the binary JSON into a document
//   ReadObject     a fresh object read from the document (packed arrays decoded)
//   WrapperWrite / WrapperRead: the envelope's own write and read + load, end to end
//   FastRoundTrip  both of them with the fastest deflate engine built in, at level 1
//   Peak           the heap and shared memory one round trip needs beyond the object sent
//
// each for 10,000, 100,000 and 1,000,000 triangles; and Base64 of the mesh's packed floats
// beside memcpy of the same bytes. scripts/bench prints the table.

#include <hrm_api/hrm_api.h>

#include "bench_support.h"
#include "visualization_sample.h"

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <atomic>
#include <cerrno>
#include <cstring>
#include <map>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <vector>

#if defined(__GLIBC__) && !defined(__SANITIZE_ADDRESS__)
#include <malloc.h>
#define HRM_COUNT_HEAP 1
#endif

namespace {

// ---- Heap accounting: the bytes in use and their high-water mark -------------------------

std::atomic<long long> heapInUse{0};
std::atomic<long long> heapPeak{0};

#ifdef HRM_COUNT_HEAP
void counted(void* pointer)
{
    if (!pointer)
        return;
    const long long now = heapInUse += static_cast<long long>(malloc_usable_size(pointer));
    long long peak = heapPeak;
    while (now > peak && !heapPeak.compare_exchange_weak(peak, now)) {
    }
}

void uncounted(void* pointer)
{
    if (pointer)
        heapInUse -= static_cast<long long>(malloc_usable_size(pointer));
}
#endif

// ---- The data of each size, made once ---------------------------------------------------

struct Data
{
    std::vector<hrm::samples::FaceArrays> arrays;
    std::shared_ptr<hrm::ExcBlockVisualization> object;
    std::vector<char> binary;
    std::vector<char> gzip;
    size_t documentBytes = 0; // what the decoded document's pool holds
};

const Data& data(size_t triangles)
{
    static std::map<size_t, Data> cache;
    auto [it, made] = cache.try_emplace(triangles);
    Data& d = it->second;
    if (made) {
        d.arrays = hrm::samples::tessellation(triangles);
        d.object = hrm::samples::blockVisualization(d.arrays);
        hrm::JsonDocument document;
        d.object->writeObject(document, document.GetAllocator());
        hrm::JsonBinaryIO::encode(document, d.binary);
        hrm::Compressor::compress(d.gzip, d.binary.data(), d.binary.size(), -1);
        hrm::JsonDocument decoded;
        hrm::JsonBinaryIO::decode(d.binary.data(), d.binary.size(), decoded, decoded.GetAllocator());
        d.documentBytes = decoded.GetAllocator().Capacity();
    }
    return d;
}

size_t triangles(const benchmark::State& state)
{
    return static_cast<size_t>(state.range(0));
}

void describe(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    state.counters["triangles"] = static_cast<double>(hrm::samples::trianglesPerFace * d.arrays.size());
    state.counters["binary_MB"] = static_cast<double>(d.binary.size()) / 1e6;
    state.counters["gzip_MB"] = static_cast<double>(d.gzip.size()) / 1e6;
    state.counters["document_MB"] = static_cast<double>(d.documentBytes) / 1e6;
}

const std::wstring bufferName = L"hrm_bench_visualization";

// ---- Stages ---------------------------------------------------------------------------------

void Build(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::samples::blockVisualization(d.arrays).get());
    describe(state);
}

void WriteObject(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        hrm::JsonDocument document;
        d.object->writeObject(document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    describe(state);
}

void BinaryEncode(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    hrm::JsonDocument document;
    d.object->writeObject(document, document.GetAllocator());
    for (auto _ : state) {
        std::vector<char> bytes;
        hrm::JsonBinaryIO::encode(document, bytes);
        benchmark::DoNotOptimize(bytes.data());
    }
    describe(state);
}

void Deflate(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        std::vector<char> out;
        hrm::Compressor::compress(out, d.binary.data(), d.binary.size(), -1);
        benchmark::DoNotOptimize(out.data());
    }
    describe(state);
}

void RawDeflate(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawDeflate(d.binary).data());
    describe(state);
}

void SharedWrite(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        mp::SharedBuffer<char>(bufferName, false).write(d.gzip.data(), d.gzip.size());
        state.PauseTiming();
        mp::SharedBuffer<char>::remove(bufferName);
        state.ResumeTiming();
    }
    describe(state);
}

void SharedRead(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    mp::SharedBuffer<char>(bufferName, false).write(d.gzip.data(), d.gzip.size());
    for (auto _ : state) {
        std::vector<char> bytes;
        mp::SharedBuffer<char>(bufferName, false, mp::SharedBuffer<char>::Open::Existing).read(bytes);
        benchmark::DoNotOptimize(bytes.data());
    }
    mp::SharedBuffer<char>::remove(bufferName);
    describe(state);
}

void Inflate(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        std::vector<char> out;
        hrm::Compressor::decompress(out, d.gzip.data(), d.gzip.size());
        benchmark::DoNotOptimize(out.data());
    }
    describe(state);
}

// Inflates into a buffer of the known result size: the best a caller can do.
void RawInflate(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawInflate(d.gzip, d.binary.size()).data());
    describe(state);
}

void BinaryDecode(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        hrm::JsonDocument document;
        hrm::JsonBinaryIO::decode(d.binary.data(), d.binary.size(), document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    describe(state);
}

void ReadObject(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    hrm::JsonDocument document;
    hrm::JsonBinaryIO::decode(d.binary.data(), d.binary.size(), document, document.GetAllocator());
    for (auto _ : state) {
        hrm::ExcBlockVisualization object;
        object.readObject(document);
        benchmark::DoNotOptimize(&object);
    }
    describe(state);
}

using hrm::bench::envelope;
using hrm::bench::loaded;

void WrapperWrite(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    for (auto _ : state) {
        const std::wstring text = envelope(d.object);
        state.PauseTiming();
        loaded(text, true); // to remove the buffer; not timed
        state.ResumeTiming();
    }
    describe(state);
}

void WrapperRead(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    const std::wstring text = envelope(d.object);
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded(text, false).get());
    loaded(text, true);
    describe(state);
}

// The whole trip as a translator with large models sets it up: the fastest engine built in at
// level 1 (igzip, else libdeflate, else zlib). Envelope written, read and loaded, buffer removed.
void FastRoundTrip(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    hrm::Compression fast{hrm::DeflateEngine::zlib, 1};
    for (hrm::DeflateEngine engine : {hrm::DeflateEngine::libdeflate, hrm::DeflateEngine::igzip})
        if (hrm::Compressor::isAvailable(engine))
            fast.engine = engine;
    const hrm::Compression before = hrm::Compressor::compression();
    hrm::Compressor::setCompression(fast);
    for (auto _ : state)
        benchmark::DoNotOptimize(loaded(envelope(d.object), true).get());
    hrm::Compressor::setCompression(before);
    state.SetLabel(fast.engine == hrm::DeflateEngine::igzip        ? "igzip"
                   : fast.engine == hrm::DeflateEngine::libdeflate ? "libdeflate"
                                                                   : "zlib");
    describe(state);
}

// One round trip (envelope written, read and loaded) measured for the memory it needs beyond
// the object sent: the heap high-water mark above what was in use before, plus the bytes the
// shared-memory buffer holds meanwhile.
void Peak(benchmark::State& state)
{
    const Data& d = data(triangles(state));
    long long extra = 0;
    for (auto _ : state) {
        heapPeak = heapInUse.load();
        const long long before = heapInUse;
        benchmark::DoNotOptimize(loaded(envelope(d.object), true).get());
        extra = heapPeak - before;
    }
    describe(state);
    state.counters["peak_MB"] = static_cast<double>(extra + static_cast<long long>(d.gzip.size())) / 1e6;
    state.counters["counted"] = heapPeak > 0 ? 1 : 0;
}

// ---- Base64 of the mesh's packed floats beside memcpy of the same bytes ------------------

const std::vector<float>& packedFloats()
{
    static const std::vector<float> floats = [] {
        std::vector<float> all;
        for (const auto& face : data(1000000).arrays) {
            all.insert(all.end(), face.vertices.begin(), face.vertices.end());
            all.insert(all.end(), face.normals.begin(), face.normals.end());
        }
        return all;
    }();
    return floats;
}

void countFloatBytes(benchmark::State& state)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * packedFloats().size() * sizeof(float)));
}

void Base64Encode(benchmark::State& state)
{
    const auto& floats = packedFloats();
    std::vector<wchar_t> text(hrm::Base64::encodedSize(4 * floats.size()));
    for (auto _ : state) {
        hrm::Base64::encodeWordsInto(text.data(), floats.data(), floats.size());
        benchmark::DoNotOptimize(text.data());
        benchmark::ClobberMemory();
    }
    countFloatBytes(state);
}

void Base64Decode(benchmark::State& state)
{
    const std::wstring text = hrm::Base64::encode<std::wstring>(packedFloats());
    std::vector<float> floats;
    for (auto _ : state) {
        hrm::Base64::decode(text, floats);
        benchmark::DoNotOptimize(floats.data());
        benchmark::ClobberMemory();
    }
    countFloatBytes(state);
}

void Memcpy(benchmark::State& state)
{
    const auto& floats = packedFloats();
    std::vector<float> copy(floats.size());
    for (auto _ : state) {
        std::memcpy(copy.data(), floats.data(), floats.size() * sizeof(float));
        benchmark::DoNotOptimize(copy.data());
        benchmark::ClobberMemory();
    }
    countFloatBytes(state);
}

void sizes(benchmark::internal::Benchmark* benchmark)
{
    benchmark->Arg(10000)->Arg(100000)->Arg(1000000)->Unit(benchmark::kMillisecond);
}

} // namespace

#ifdef HRM_COUNT_HEAP
// The process's allocation functions, counting what they hand out (glibc's own underneath).
extern "C" {
void* __libc_malloc(size_t);
void* __libc_calloc(size_t, size_t);
void* __libc_realloc(void*, size_t);
void* __libc_memalign(size_t, size_t);
void __libc_free(void*);

void* malloc(size_t size) noexcept
{
    void* pointer = __libc_malloc(size);
    counted(pointer);
    return pointer;
}

void* calloc(size_t count, size_t size) noexcept
{
    void* pointer = __libc_calloc(count, size);
    counted(pointer);
    return pointer;
}

void* realloc(void* old, size_t size) noexcept
{
    const long long before = old ? static_cast<long long>(malloc_usable_size(old)) : 0;
    void* pointer = __libc_realloc(old, size);
    if (pointer || size == 0) {
        heapInUse -= before;
        counted(pointer);
    }
    return pointer;
}

void* memalign(size_t alignment, size_t size) noexcept
{
    void* pointer = __libc_memalign(alignment, size);
    counted(pointer);
    return pointer;
}

void* aligned_alloc(size_t alignment, size_t size) noexcept
{
    return memalign(alignment, size);
}

int posix_memalign(void** result, size_t alignment, size_t size) noexcept
{
    *result = memalign(alignment, size);
    return *result || size == 0 ? 0 : ENOMEM;
}

void free(void* pointer) noexcept
{
    uncounted(pointer);
    __libc_free(pointer);
}
}
#endif

BENCHMARK(Build)->Apply(sizes);
BENCHMARK(WriteObject)->Apply(sizes);
BENCHMARK(BinaryEncode)->Apply(sizes);
BENCHMARK(Deflate)->Apply(sizes);
BENCHMARK(RawDeflate)->Apply(sizes);
BENCHMARK(SharedWrite)->Apply(sizes);
BENCHMARK(SharedRead)->Apply(sizes);
BENCHMARK(Inflate)->Apply(sizes);
BENCHMARK(RawInflate)->Apply(sizes);
BENCHMARK(BinaryDecode)->Apply(sizes);
BENCHMARK(ReadObject)->Apply(sizes);
BENCHMARK(WrapperWrite)->Apply(sizes);
BENCHMARK(WrapperRead)->Apply(sizes);
BENCHMARK(FastRoundTrip)->Apply(sizes);
BENCHMARK(Peak)->Apply(sizes)->Iterations(1);
BENCHMARK(Base64Encode)->Unit(benchmark::kMillisecond);
BENCHMARK(Base64Decode)->Unit(benchmark::kMillisecond);
BENCHMARK(Memcpy)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
