// Throughput of the binary JSON codec, the compressor and Base64, each next to its peer on the
// same data: RapidJSON's compact text writer and parser (same DOM encoding), raw zlib calls.
// The compressor runs with every deflate engine built in at the levels worth choosing from
// (Deflate/<engine>/<level>, with the size of the result), and its inflate beside the
// engines' own.
//
// The JSON benchmarks all count the bytes of the binary encoding of the document, so their
// MB/s are documents per second in one unit and compare directly.

#include <hrm_api/hrm_api.h>

#include "bench_support.h"

#include <benchmark/benchmark.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <zlib.h>
#if defined(HRM_WITH_LIBDEFLATE)
#include <libdeflate.h>
#endif
#if defined(HRM_WITH_IGZIP)
#include <isa-l/igzip_lib.h>
#endif

#include <cstring>
#include <memory>
#include <random>
#include <sstream>
#include <stdexcept>

namespace {

using hrm::JsonAllocator;
using hrm::JsonDocument;
using hrm::JsonValue;

using TextBuffer = rapidjson::GenericStringBuffer<hrm::JsonEncoding>;
using TextWriter = rapidjson::Writer<TextBuffer, hrm::JsonEncoding, hrm::JsonEncoding>;

JsonValue text(const std::wstring& value, JsonAllocator& allocator)
{
    return JsonValue(value.data(), static_cast<rapidjson::SizeType>(value.size()), allocator);
}

// Packed arrays as they travel inside visualization data: 32-bit values as Base64 text.
JsonValue packed(const std::vector<uint32_t>& values, JsonAllocator& allocator)
{
    return text(hrm::Base64::encode<std::wstring>(values), allocator);
}

// A strip of triangles: coordinates on a millimetre grid, unit normals, running indices.
JsonValue face(std::mt19937& random, unsigned id, JsonAllocator& a)
{
    std::uniform_int_distribution<int> step(-50, 50);
    std::vector<uint32_t> vertices, normals, indices;
    float x = 0, y = 0, z = 0;
    for (uint32_t i = 0; i < 12; ++i) {
        x += static_cast<float>(step(random)) * 0.001f;
        y += static_cast<float>(step(random)) * 0.001f;
        z += 0.5f;
        for (const float v : {x, y, z, 0.0f, 0.0f, 1.0f}) {
            uint32_t bits;
            std::memcpy(&bits, &v, sizeof bits);
            (vertices.size() < 3 * (i + 1) ? vertices : normals).push_back(bits);
        }
        if (i >= 2)
            indices.insert(indices.end(), {i - 2, i - 1, i});
    }
    JsonValue result(rapidjson::kObjectType);
    result.AddMember(L"face_id", id, a)
        .AddMember(L"vertices", packed(vertices, a), a)
        .AddMember(L"normals", packed(normals, a), a)
        .AddMember(L"indices", packed(indices, a), a);
    return result;
}

JsonValue block(std::mt19937& random, uint64_t id, JsonAllocator& a)
{
    std::uniform_real_distribution<double> coordinate(-1000.0, 1000.0);
    JsonValue matrix(rapidjson::kArrayType);
    for (int i = 0; i < 9; ++i)
        matrix.PushBack(coordinate(random), a);
    JsonValue origin(rapidjson::kArrayType);
    origin.PushBack(coordinate(random), a).PushBack(coordinate(random), a).PushBack(coordinate(random), a);
    JsonValue transformation(rapidjson::kObjectType);
    transformation.AddMember(L"matrix", matrix, a).AddMember(L"origin", origin, a);

    JsonValue color(rapidjson::kObjectType);
    color.AddMember(L"r", random() % 256, a).AddMember(L"g", random() % 256, a).AddMember(L"b", random() % 256, a);

    JsonValue faces(rapidjson::kArrayType);
    for (unsigned f = 0; f < 3; ++f)
        faces.PushBack(face(random, f, a), a);

    JsonValue properties(rapidjson::kArrayType);
    for (const wchar_t* name : {L"material", L"supplier", L"revision"}) {
        JsonValue property(rapidjson::kObjectType);
        property.AddMember(L"name", JsonValue(name, a), a)
            .AddMember(L"value", text(L"Stahl 1.4301 / Geh\u00e4use " + std::to_wstring(random() % 1000), a), a);
        properties.PushBack(property, a);
    }

    JsonValue result(rapidjson::kObjectType);
    result.AddMember(L"block_id", id, a)
        .AddMember(L"guid", text(L"7c1f0e52-9a4b-4d3e-8f21-" + std::to_wstring(id), a), a)
        .AddMember(L"name", text(L"Block " + std::to_wstring(id) + L" Getriebegeh\u00e4use", a), a)
        .AddMember(L"hidden", id % 7 == 0, a)
        .AddMember(L"layer", -static_cast<int>(id % 50), a)
        .AddMember(L"transformation", transformation, a)
        .AddMember(L"color", color, a)
        .AddMember(L"faces", faces, a)
        .AddMember(L"properties", properties, a);
    return result;
}

struct Data
{
    JsonDocument document;
    std::vector<char> binary;
    std::wstring text;
};

const Data& data()
{
    static const Data data = [] {
        Data d;
        std::mt19937 random(42);
        auto& a = d.document.GetAllocator();
        JsonValue blocks(rapidjson::kArrayType);
        for (uint64_t id = 0; id < 5000; ++id)
            blocks.PushBack(block(random, (uint64_t(1) << 33) + id, a), a);
        d.document.SetObject();
        d.document.AddMember(L"exchange_object_name", JsonValue(L"ExcBlockVisualization", a), a)
            .AddMember(L"blocks", blocks, a);
        hrm::JsonBinaryIO::encode(d.document, d.binary);
        d.text = hrm::JsonTextIO::toString(d.document, false);
        return d;
    }();
    return data;
}

const std::vector<char>& compressedData()
{
    static const std::vector<char> gzip = [] {
        std::vector<char> out;
        hrm::Compressor::compress(out, data().binary.data(), data().binary.size(), -1);
        return out;
    }();
    return gzip;
}

void countBinaryBytes(benchmark::State& state)
{
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * data().binary.size()));
}

void BinaryEncode(benchmark::State& state)
{
    for (auto _ : state) {
        std::vector<char> out;
        hrm::JsonBinaryIO::encode(data().document, out);
        benchmark::DoNotOptimize(out.data());
    }
    countBinaryBytes(state);
}

void BinaryDecode(benchmark::State& state)
{
    const auto& binary = data().binary;
    for (auto _ : state) {
        JsonDocument document;
        hrm::JsonBinaryIO::decode(binary.data(), binary.size(), document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    countBinaryBytes(state);
}

void StreamWrite(benchmark::State& state)
{
    for (auto _ : state) {
        std::ostringstream out;
        hrm::JsonBinaryIO::write(out, data().document);
        benchmark::DoNotOptimize(&out);
    }
    countBinaryBytes(state);
}

void StreamRead(benchmark::State& state)
{
    std::istringstream in(std::string(data().binary.begin(), data().binary.end()));
    for (auto _ : state) {
        in.seekg(0);
        JsonDocument document;
        hrm::JsonBinaryIO::read(in, document, document.GetAllocator());
        benchmark::DoNotOptimize(&document);
    }
    countBinaryBytes(state);
}

void TextWrite(benchmark::State& state)
{
    for (auto _ : state) {
        TextBuffer buffer;
        TextWriter writer(buffer);
        if (!data().document.Accept(writer))
            throw std::runtime_error("text writer failed");
        benchmark::DoNotOptimize(buffer.GetString());
    }
    countBinaryBytes(state);
}

template <unsigned flags>
void TextParse(benchmark::State& state)
{
    for (auto _ : state) {
        JsonDocument document;
        document.Parse<flags>(data().text.c_str());
        if (document.HasParseError())
            throw std::runtime_error("text parse failed");
        benchmark::DoNotOptimize(&document);
    }
    countBinaryBytes(state);
}

// The library's own text reader on the same text: nesting bound, exact doubles.
void TextRead(benchmark::State& state)
{
    for (auto _ : state) {
        JsonDocument document;
        hrm::JsonTextIO::fromString(data().text, document);
        if (document.HasParseError())
            throw std::runtime_error("text read failed");
        benchmark::DoNotOptimize(&document);
    }
    countBinaryBytes(state);
}

void Compress(benchmark::State& state)
{
    const auto& binary = data().binary;
    for (auto _ : state) {
        std::vector<char> out;
        hrm::Compressor::compress(out, binary.data(), binary.size(), -1);
        benchmark::DoNotOptimize(out.data());
    }
    countBinaryBytes(state);
}

void RawDeflate(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawDeflate(data().binary).data());
    countBinaryBytes(state);
}

const char* engineName(hrm::DeflateEngine engine)
{
    switch (engine) {
    case hrm::DeflateEngine::zlib:
        return "zlib";
    case hrm::DeflateEngine::libdeflate:
        return "libdeflate";
    case hrm::DeflateEngine::igzip:
        return "igzip";
    }
    return "?";
}

// Compressor::compress with an engine at a level; reports the size of the gzip stream.
void Deflate(benchmark::State& state, hrm::Compression compression)
{
    const auto& binary = data().binary;
    std::vector<char> out;
    for (auto _ : state) {
        hrm::Compressor::compress(out, binary.data(), binary.size(), compression);
        benchmark::DoNotOptimize(out.data());
    }
    countBinaryBytes(state);
    state.counters["gzip_MB"] = static_cast<double>(out.size()) / 1e6;
}

// Deflate/<engine>/<level> for each engine built in, at the levels worth choosing from.
bool registerDeflate()
{
    const std::pair<hrm::DeflateEngine, std::vector<int>> levels[] = {
        {hrm::DeflateEngine::zlib, {1}},
        {hrm::DeflateEngine::libdeflate, {1, 2, 6}},
        {hrm::DeflateEngine::igzip, {0, 1, 3}},
    };
    for (const auto& [engine, engineLevels] : levels) {
        if (!hrm::Compressor::isAvailable(engine))
            continue;
        for (const int level : engineLevels) {
            const std::string name = std::string("Deflate/") + engineName(engine) + "/" + std::to_string(level);
            benchmark::RegisterBenchmark(name.c_str(), Deflate, hrm::Compression{engine, level})
                ->Unit(benchmark::kMillisecond);
        }
    }
    return true;
}

void Decompress(benchmark::State& state)
{
    const auto& gzip = compressedData();
    for (auto _ : state) {
        std::vector<char> out;
        hrm::Compressor::decompress(out, gzip.data(), gzip.size());
        benchmark::DoNotOptimize(out.data());
    }
    countBinaryBytes(state);
}

// Inflates into a buffer of the known result size: the best a caller can do.
void RawInflate(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::bench::rawInflate(compressedData(), data().binary.size()).data());
    countBinaryBytes(state);
}

#if defined(HRM_WITH_LIBDEFLATE)
// libdeflate's inflate into a buffer of the known result size.
void RawLibdeflateInflate(benchmark::State& state)
{
    const auto& gzip = compressedData();
    libdeflate_decompressor* decompressor = libdeflate_alloc_decompressor();
    for (auto _ : state) {
        std::vector<char> out(data().binary.size());
        if (libdeflate_gzip_decompress(decompressor, gzip.data(), gzip.size(), out.data(), out.size(), nullptr) !=
            LIBDEFLATE_SUCCESS)
            throw std::runtime_error("libdeflate inflate failed");
        benchmark::DoNotOptimize(out.data());
    }
    libdeflate_free_decompressor(decompressor);
    countBinaryBytes(state);
}
#endif

#if defined(HRM_WITH_IGZIP)
// igzip's one-shot inflate into a buffer of the known result size.
void RawIgzipInflate(benchmark::State& state)
{
    const auto& gzip = compressedData();
    const auto inflater = std::make_unique<inflate_state>();
    for (auto _ : state) {
        std::vector<char> out(data().binary.size());
        isal_inflate_init(inflater.get());
        inflater->next_in = reinterpret_cast<uint8_t*>(const_cast<char*>(gzip.data()));
        inflater->avail_in = static_cast<uint32_t>(gzip.size());
        inflater->next_out = reinterpret_cast<uint8_t*>(out.data());
        inflater->avail_out = static_cast<uint32_t>(out.size());
        inflater->crc_flag = ISAL_GZIP;
        if (isal_inflate_stateless(inflater.get()) != ISAL_DECOMP_OK)
            throw std::runtime_error("igzip inflate failed");
        benchmark::DoNotOptimize(out.data());
    }
    countBinaryBytes(state);
}
#endif

const std::vector<uint32_t>& pixels()
{
    static const std::vector<uint32_t> pixels = [] {
        std::mt19937 random(1);
        std::vector<uint32_t> values(4 << 20); // 16 MiB
        for (auto& value : values)
            value = random();
        return values;
    }();
    return pixels;
}

void Base64Encode(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(hrm::Base64::encode<std::wstring>(pixels()).data());
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * pixels().size() * 4));
}

void Base64Decode(benchmark::State& state)
{
    const std::wstring text = hrm::Base64::encode<std::wstring>(pixels());
    for (auto _ : state) {
        std::vector<uint32_t> values;
        hrm::Base64::decode(text, values);
        benchmark::DoNotOptimize(values.data());
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * pixels().size() * 4));
}

void describeData(benchmark::State& state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(&data());
    state.counters["binary_MB"] = static_cast<double>(data().binary.size()) / 1e6;
    state.counters["text_chars_M"] = static_cast<double>(data().text.size()) / 1e6;
    state.counters["gzip_MB"] = static_cast<double>(compressedData().size()) / 1e6;
}

} // namespace

BENCHMARK(describeData)->Name("Data")->Iterations(1);
BENCHMARK(BinaryEncode)->Unit(benchmark::kMillisecond);
BENCHMARK(TextWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(BinaryDecode)->Unit(benchmark::kMillisecond);
BENCHMARK(TextParse<rapidjson::kParseDefaultFlags>)->Name("TextParse")->Unit(benchmark::kMillisecond);
BENCHMARK(TextParse<rapidjson::kParseIterativeFlag>)->Name("TextParseIterative")->Unit(benchmark::kMillisecond);
BENCHMARK(TextRead)->Unit(benchmark::kMillisecond);
BENCHMARK(StreamWrite)->Unit(benchmark::kMillisecond);
BENCHMARK(StreamRead)->Unit(benchmark::kMillisecond);
BENCHMARK(Compress)->Unit(benchmark::kMillisecond);
BENCHMARK(RawDeflate)->Unit(benchmark::kMillisecond);
const bool deflateRegistered = registerDeflate();
BENCHMARK(Decompress)->Unit(benchmark::kMillisecond);
BENCHMARK(RawInflate)->Unit(benchmark::kMillisecond);
#if defined(HRM_WITH_LIBDEFLATE)
BENCHMARK(RawLibdeflateInflate)->Unit(benchmark::kMillisecond);
#endif
#if defined(HRM_WITH_IGZIP)
BENCHMARK(RawIgzipInflate)->Unit(benchmark::kMillisecond);
#endif
BENCHMARK(Base64Encode)->Unit(benchmark::kMillisecond);
BENCHMARK(Base64Decode)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
