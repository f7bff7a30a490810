// The product structure of a large assembly (samples/structure_sample.h: 1,000 blocks, 10,000
// references with transformations, colours and properties) through the envelope, beside raw
// zlib deflate and inflate of the same bytes in the same run:
//
//   WrapperWrite   the envelope written: the object into a document, binary JSON, gzip, a new
//                  shared-memory buffer
//   WrapperRead    the envelope read and the object loaded: the buffer copied out, inflated,
//                  decoded and read into a fresh product structure
//   RawDeflate / RawInflate: zlib's own calls on the object's binary JSON
//
// and the library's own stages of both: WriteObject, BinaryEncode, BinaryDecode, ReadObject.
// scripts/bench prints the table.

#include <hrm_api/hrm_api.h>

#include "bench_support.h"
#include "structure_sample.h"

#include <benchmark/benchmark.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace {

constexpr std::size_t blockCount = 1000;
constexpr std::size_t referenceCount = 10000;

struct Data
{
    std::shared_ptr<hrm::ExcProductStructure> object;
    std::vector<char> binary;
    std::vector<char> gzip;
};

const Data& data()
{
    static const Data made = [] {
        Data d;
        d.object = hrm::samples::productStructure(blockCount, referenceCount);
        hrm::JsonDocument document;
        d.object->writeObject(document, document.GetAllocator());
        hrm::JsonBinaryIO::encode(document, d.binary);
        hrm::Compressor::compress(d.gzip, d.binary.data(), d.binary.size(), -1);
        return d;
    }();
    return made;
}

void describe(benchmark::State& state)
{
    state.counters["binary_MB"] = static_cast<double>(data().binary.size()) / 1e6;
    state.counters["gzip_MB"] = static_cast<double>(data().gzip.size()) / 1e6;
}

void WrapperWrite(benchmark::State& state)
{
    for (auto _ : state) {
        const std::wstring text = hrm::bench::envelope(data().object);
        state.PauseTiming();
        hrm::bench::loaded(text, true); // to remove the buffer; not timed
        state.ResumeTiming();
    }
    describe(state);
}

void WrapperRead(benchmark::State& state)
{
    const std::wstring text = hrm::bench::envelope(data().object);
    for (auto _ : state) {
        const auto object = hrm::bench::loaded(text, false);
        if (!object || !object->isLoaded())
            throw std::runtime_error("the product structure did not load");
        benchmark::DoNotOptimize(object.get());
    }
    hrm::bench::loaded(text, true);
    describe(state);
}

void RawDeflate(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawDeflate(data().binary).data());
    describe(state);
}

void RawInflate(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawInflate(data().gzip, data().binary.size()).data());
    describe(state);
}

void WriteObject(benchmark::State& state)
{
    for (auto _ : state) {
        hrm::JsonDocument document;
        data().object->writeObject(document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    describe(state);
}

void BinaryEncode(benchmark::State& state)
{
    hrm::JsonDocument document;
    data().object->writeObject(document, document.GetAllocator());
    for (auto _ : state) {
        std::vector<char> bytes;
        hrm::JsonBinaryIO::encode(document, bytes);
        benchmark::DoNotOptimize(bytes.data());
    }
    describe(state);
}

void BinaryDecode(benchmark::State& state)
{
    for (auto _ : state) {
        hrm::JsonDocument document;
        hrm::JsonBinaryIO::decode(data().binary.data(), data().binary.size(), document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    describe(state);
}

void ReadObject(benchmark::State& state)
{
    hrm::JsonDocument document;
    hrm::JsonBinaryIO::decode(data().binary.data(), data().binary.size(), document, document.GetAllocator());
    for (auto _ : state) {
        hrm::ExcProductStructure object;
        object.readObject(document);
        benchmark::DoNotOptimize(&object);
    }
    describe(state);
}

} // namespace

BENCHMARK(WrapperWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(WrapperRead)->Unit(benchmark::kMillisecond);
BENCHMARK(RawDeflate)->Unit(benchmark::kMillisecond);
BENCHMARK(RawInflate)->Unit(benchmark::kMillisecond);
BENCHMARK(WriteObject)->Unit(benchmark::kMillisecond);
BENCHMARK(BinaryEncode)->Unit(benchmark::kMillisecond);
BENCHMARK(BinaryDecode)->Unit(benchmark::kMillisecond);
BENCHMARK(ReadObject)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
