// hrm decode: binary JSON (raw or compressed) to the library's pretty JSON text.
// hrm encode: JSON text to binary JSON, gzip-compressed on request, byte for byte as the
// library's writers make it.

#include "hrm_tool.h"

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_json_binary.h>

#include <rapidjson/error/en.h>

#include <memory>

namespace hrm::tool {

namespace {

struct CodecOptions
{
    std::string input;
    std::string output = "-";
    bool gzip = false;
};

int decode(const CodecOptions& options)
{
    const std::string bytes = readBytes(options.input);
    ProgressBar progress("decoding");
    JsonDocument document;
    decodePayload(bytes, document);
    progress.update(1.0);
    writeBytes(options.output, prettyJson(document));
    return 0;
}

int encode(const CodecOptions& options)
{
    JsonDocument document;
    {
        ProgressBar progress("parsing");
        JsonTextIO::fromString(decodeText(readBytes(options.input)), document);
        progress.update(1.0);
    }
    if (document.HasParseError())
        throw Failure(options.input + " is not JSON: " + rapidjson::GetParseError_En(document.GetParseError()) +
                      " (at character " + std::to_string(document.GetErrorOffset()) + ")");
    std::vector<char> bytes;
    JsonBinaryIO::encode(document, bytes);
    if (options.gzip) {
        ProgressBar progress("compressing");
        std::vector<char> compressed;
        Compressor::compress(compressed, bytes.data(), bytes.size(), Compressor::compression());
        bytes.swap(compressed);
        progress.update(1.0);
    }
    writeBytes(options.output, std::string(bytes.begin(), bytes.end()));
    return 0;
}

} // namespace

void addCodec(CLI::App& app, int& status)
{
    auto decodeOptions = std::make_shared<CodecOptions>();
    CLI::App* decodeCommand = app.add_subcommand(
        "decode", "Binary JSON (raw, gzip or zlib) to the library's pretty JSON text in UTF-8");
    decodeCommand->add_option("FILE", decodeOptions->input, "Binary JSON (- for standard input)")->required();
    decodeCommand->add_option("-o,--output", decodeOptions->output, "Where the JSON goes (default: standard output)");
    decodeCommand->callback([decodeOptions, &status] { status = decode(*decodeOptions); });

    auto encodeOptions = std::make_shared<CodecOptions>();
    CLI::App* encodeCommand = app.add_subcommand(
        "encode", "JSON text (UTF-8 or UTF-16) to binary JSON, as the library's writers encode it");
    encodeCommand->add_option("FILE", encodeOptions->input, "JSON text (- for standard input)")->required();
    encodeCommand->add_option("-o,--output", encodeOptions->output, "Where the binary JSON goes (default: standard output)");
    encodeCommand->add_flag("--gzip", encodeOptions->gzip, "Compress the result as exchange objects travel (gzip)");
    encodeCommand->callback([encodeOptions, &status] { status = encode(*encodeOptions); });
}

} // namespace hrm::tool
