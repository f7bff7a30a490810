// The geometry of one large block through the shared ACIS buffer, stage by stage, each beside
// what it is made of, on the same bytes in the same run:
//
//   Stage        the modeler's save: the payload written 8 bytes at a time through the write
//                primitive (Memcpy: the same bytes copied at once)
//   Restage      the modeler's restore: read back 8 bytes at a time (Memcpy)
//   FlushRaw     flush(false) into a new shared-memory object (SharedWrite: mp::SharedBuffer)
//   LoadRaw      load() of it (SharedRead: mp::SharedBuffer)
//   FlushGzip    flush(true) (Deflate + SharedWrite: Compressor::compress, then the write)
//   LoadGzip     load() of it (SharedRead + Inflate)
//
// The payload: 64 MB of doubles along a random walk, as coordinates are, which deflate to
// about half their size. scripts/bench prints the ratios.

#include <hrm_api/hrm_api.h>

#include <benchmark/benchmark.h>

#include <cstring>
#include <random>
#include <vector>

namespace {

const size_t payloadSize = size_t(64) << 20;

const std::vector<char>& payload()
{
    static const std::vector<char> bytes = [] {
        std::vector<double> values(payloadSize / sizeof(double));
        std::mt19937_64 random(7);
        std::normal_distribution<double> step(0.0, 1.0);
        double x = 0.0;
        for (double& value : values)
            value = x += step(random);
        std::vector<char> result(payloadSize);
        std::memcpy(result.data(), values.data(), payloadSize);
        return result;
    }();
    return bytes;
}

const std::vector<char>& gzipPayload()
{
    static const std::vector<char> bytes = [] {
        std::vector<char> result;
        hrm::Compressor::compress(result, payload().data(), payload().size(), hrm::Compressor::compression());
        return result;
    }();
    return bytes;
}

// A new shared-memory object name, removed again when it goes.
struct Object
{
    std::wstring name = hrm::IExchangeObject::generateUUID();
    ~Object() { mp::SharedBuffer<char>::remove(name); }
};

void staged(hrm::ExcSharedAcisBuffer& buffer)
{
    const std::vector<char>& bytes = payload();
    for (size_t at = 0; at < bytes.size(); at += 8)
        buffer.write(bytes.data() + at, 8, 0);
}

void setBytes(benchmark::State& state, size_t bytes)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
    state.counters["payload_MB"] = double(payload().size()) / 1e6;
    state.counters["gzip_MB"] = double(gzipPayload().size()) / 1e6;
}

void Memcpy(benchmark::State& state)
{
    std::vector<char> copy(payload().size());
    for (auto _ : state) {
        std::memcpy(copy.data(), payload().data(), copy.size());
        benchmark::DoNotOptimize(copy.data());
    }
    setBytes(state, payload().size());
}

void Stage(benchmark::State& state)
{
    for (auto _ : state) {
        hrm::ExcSharedAcisBuffer buffer(L"unused", false);
        staged(buffer);
        benchmark::DoNotOptimize(buffer.set_mark());
    }
    setBytes(state, payload().size());
}

void Restage(benchmark::State& state)
{
    hrm::ExcSharedAcisBuffer buffer(L"unused", false);
    staged(buffer);
    char value[8];
    for (auto _ : state) {
        buffer.goto_mark(0);
        while (buffer.read(value, sizeof value, 0) == sizeof value)
            benchmark::DoNotOptimize(value);
    }
    setBytes(state, payload().size());
}

void SharedWrite(benchmark::State& state, bool compressed)
{
    const std::vector<char>& bytes = compressed ? gzipPayload() : payload();
    for (auto _ : state) {
        const Object object;
        mp::SharedBuffer<char>(object.name, false, mp::SharedBuffer<char>::Open::Create).write(bytes.data(), bytes.size());
    }
    setBytes(state, payload().size());
}

void SharedRead(benchmark::State& state, bool compressed)
{
    const std::vector<char>& bytes = compressed ? gzipPayload() : payload();
    const Object object;
    mp::SharedBuffer<char>(object.name, false, mp::SharedBuffer<char>::Open::Create).write(bytes.data(), bytes.size());
    for (auto _ : state) {
        std::vector<char> read;
        mp::SharedBuffer<char>(object.name, false, mp::SharedBuffer<char>::Open::Existing).read(read);
        benchmark::DoNotOptimize(read.data());
    }
    setBytes(state, payload().size());
}

void Deflate(benchmark::State& state)
{
    for (auto _ : state) {
        std::vector<char> compressed;
        hrm::Compressor::compress(compressed, payload().data(), payload().size(), hrm::Compressor::compression());
        benchmark::DoNotOptimize(compressed.data());
    }
    setBytes(state, payload().size());
}

void Inflate(benchmark::State& state)
{
    for (auto _ : state) {
        std::vector<char> inflated;
        hrm::Compressor::decompress(inflated, gzipPayload().data(), gzipPayload().size());
        benchmark::DoNotOptimize(inflated.data());
    }
    setBytes(state, payload().size());
}

void Flush(benchmark::State& state, bool compress)
{
    for (auto _ : state) {
        const Object object;
        hrm::ExcSharedAcisBuffer flushed(object.name, false);
        state.PauseTiming();
        staged(flushed);
        state.ResumeTiming();
        flushed.flush(compress);
    }
    setBytes(state, payload().size());
}

void Load(benchmark::State& state, bool compressed)
{
    const Object object;
    const std::vector<char>& bytes = compressed ? gzipPayload() : payload();
    mp::SharedBuffer<char>(object.name, false, mp::SharedBuffer<char>::Open::Create).write(bytes.data(), bytes.size());
    for (auto _ : state) {
        hrm::ExcSharedAcisBuffer buffer(object.name, false);
        buffer.load();
        benchmark::DoNotOptimize(buffer.set_mark());
    }
    setBytes(state, payload().size());
}

BENCHMARK(Memcpy)->Unit(benchmark::kMillisecond);
BENCHMARK(Stage)->Unit(benchmark::kMillisecond);
BENCHMARK(Restage)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SharedWrite, Raw, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Flush, Raw, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SharedRead, Raw, false)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, Raw, false)->Unit(benchmark::kMillisecond);
BENCHMARK(Deflate)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK_CAPTURE(SharedWrite, Gzip, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Flush, Gzip, true)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(Inflate)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(SharedRead, Gzip, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(Load, Gzip, true)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
