// Writes the seed corpus of every fuzz target: small valid documents made through the
// library's own writers, one file each, under <folder>/<target>/.
//
//   make_corpus fuzz/corpus

#include "fuzz_exchange_object.h"

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_acis_attrib_id.h>
#include <hrm_api/hrm_api_exchange_mechanical_geometry.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_format_options.h>
#include <hrm_api/hrm_api_format_options_export.h>
#include <hrm_api/hrm_api_hermetor_info.h>
#include <hrm_api/hrm_api_json_binary.h>

#include <cctype>
#include "structure_sample.h"
#include "visualization_sample.h"

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <limits>
#include <sstream>
#include <string>
#include <vector>

using namespace hrm;
namespace fs = std::filesystem;

namespace {

fs::path root;

void save(const std::string& target, const std::string& name, const std::string& bytes)
{
    fs::create_directories(root / target);
    std::ofstream(root / target / name, std::ios::binary).write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

std::string bytesOf(const std::vector<char>& bytes)
{
    return std::string(bytes.begin(), bytes.end());
}

template <class Document>
std::string textOf(const Document& document)
{
    std::wostringstream out;
    document.writeObject(out);
    return toNarrow(out.str());
}

JsonDocument parsed(const std::wstring& text)
{
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    return document;
}

Command importCommand()
{
    auto options = Command::newImportOptions();
    options->setFile(L"C:\\models\\gear.stp");
    for (const auto& format : std::vector<std::shared_ptr<IFormatOptions>>{
             std::make_shared<OptionsGeneral>(), std::make_shared<OptionsGraphical>(),
             std::make_shared<OptionsMechanical>(), std::make_shared<OptionsModeler>(),
             std::make_shared<imp::Options3DXML>(), std::make_shared<imp::OptionsCatiaV4>(),
             std::make_shared<imp::OptionsCatiaV5>(), std::make_shared<imp::OptionsCatiaV5Drawing>(),
             std::make_shared<imp::OptionsCreo>(), std::make_shared<imp::OptionsIGES>(),
             std::make_shared<imp::OptionsInventor>(), std::make_shared<imp::OptionsJT>(),
             std::make_shared<imp::OptionsNX>(), std::make_shared<imp::OptionsParasolid>(),
             std::make_shared<imp::OptionsSolidEdge>(), std::make_shared<imp::OptionsSolidWorks>(),
             std::make_shared<imp::OptionsSolidWorksDrawing>(), std::make_shared<imp::OptionsSTEP>(),
             std::make_shared<imp::OptionsXCGM>()})
        options->setFormatOptions(format);
    Command command;
    command.setType(Command::EType::Import);
    command.setImportOptions(options);
    return command;
}

Command exportCommand()
{
    auto options = Command::newExportOptions();
    options->setFile(L"/tmp/out.stp");
    options->setFormatVersion(L"AP242");
    for (const auto& format : std::vector<std::shared_ptr<IFormatOptions>>{
             std::make_shared<exp::Options3DXML>(), std::make_shared<exp::OptionsAcis>(),
             std::make_shared<exp::OptionsCatiaV4>(), std::make_shared<exp::OptionsCatiaV5>(),
             std::make_shared<exp::OptionsIGES>(), std::make_shared<exp::OptionsParasolid>(),
             std::make_shared<exp::OptionsSTEP>(), std::make_shared<exp::OptionsXCGM>(),
             std::make_shared<exp::OptionsSTL>(), std::make_shared<exp::OptionsPDF>()})
        options->setFormatOptions(format);
    Command command;
    command.setType(Command::EType::Export);
    command.setInternalInterface(EHermetorInterface::Connect);
    command.setExportOptions(options);
    return command;
}

Command legacyCommand(Command::EType type)
{
    auto imported = Command::newLegacyImportOptions();
    imported->setFile(L"in.dwg");
    imported->setTemporaryDwg(L"tmp.dwg");
    auto exported = Command::newLegacyExportOptions();
    exported->setFile(L"out.dwg");
    Command command;
    command.setType(type);
    command.setInternalInterface(EHermetorInterface::Legacy);
    command.setLegacyImportOptions(imported);
    command.setLegacyExportOptions(exported);
    return command;
}

void commands()
{
    Command ping;
    ping.setType(Command::EType::Ping);
    save("command", "ping.json", textOf(ping));
    save("command", "import.json", textOf(importCommand()));
    save("command", "export.json", textOf(exportCommand()));
    save("command", "legacy_import.json", textOf(legacyCommand(Command::EType::Import)));
    save("command", "legacy_export.json", textOf(legacyCommand(Command::EType::Export)));
}

void hermetorInfo()
{
    HermetorInfo info;
    info.setName(L"Hermetor");
    info.setVersion(L"2.4.1");
    info.setParasolidMode(EParasolidMode::Kernel);
    info.newThirdpartyCore()->setName(L"Core").setVersion(L"7");
    info.newImportFormat()->setDescription(L"STEP files").setExtensions({L"stp", L"step"}).addFilterExtensions({L"stp"});
    info.newExportFormat()->setDescription(L"IGES files").addExtension(L"igs");
    save("hermetor_info", "info.json", textOf(info));
    save("hermetor_info", "empty.json", textOf(HermetorInfo()));
}

// Documents for the binary codec: every kind of value, and the two command documents.
std::vector<std::pair<std::string, std::wstring>> binarySources()
{
    std::wostringstream imported;
    importCommand().writeObject(imported);
    return {
        {"kinds", L"[null,false,true,0,-1,4294967295,-4294967296,18446744073709551615,0.5,-0.0,1e308,"
                  L"\"\",\"a\\u00e9\\u4e2d\\ud83d\\ude00\",{},[],{\"a\":{\"b\":[1,[2,[3]]]}}]"},
        {"import", imported.str()},
    };
}

void binaryDocuments()
{
    for (const auto& [name, text] : binarySources()) {
        std::vector<char> bytes;
        JsonBinaryIO::encode(parsed(text), bytes);
        save("binary_json", name + ".bin", bytesOf(bytes));

        std::vector<char> gzip;
        Compressor::compress(gzip, bytes.data(), bytes.size(), 9);
        save("decompress", name + ".gz", bytesOf(gzip));
    }
    std::vector<char> empty;
    Compressor::compress(empty, nullptr, 0, -1);
    save("decompress", "empty.gz", bytesOf(empty));
    const std::string zeros(100000, '\0');
    std::vector<char> repetitive;
    Compressor::compress(repetitive, zeros.data(), zeros.size(), 1);
    save("decompress", "zeros.gz", bytesOf(repetitive));
    // A zlib stream (header 78 9C, stored block of "hello", Adler-32 trailer).
    save("decompress", "hello.zlib", std::string("\x78\x9c\x01\x05\x00\xfa\xff" "hello" "\x06\x2c\x02\x15", 16));
}

void base64()
{
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    save("base64", "every_byte.txt", Base64::encode(bytes));
    save("base64", "padding_one.txt", Base64::encode(std::string("Ma")));
    save("base64", "padding_two.txt", Base64::encode(std::string("M")));
    save("base64", "stops.txt", "TWFu TWE=\nTQ==-_");
}

std::string envelopeOf(const std::shared_ptr<IExchangeObject>& object)
{
    ExchangeObjectWrapper wrapper;
    wrapper.set(object);
    return textOf(wrapper);
}

// The envelope of a binary `object` with its payload after a NUL byte, as the envelope target
// expects it: <name>_gzip.bin compressed, <name>_raw.bin raw.
// Saves the envelope of a binary object with its payload, compressed and raw; returns the
// compressed payload.
std::vector<char> saveBinary(const std::string& name, const IExchangeObject& object)
{
    JsonDocument value;
    object.writeObject(value, value.GetAllocator());
    std::vector<char> raw;
    JsonBinaryIO::encode(value, raw);
    std::vector<char> gzip;
    Compressor::compress(gzip, raw.data(), raw.size(), -1);
    const std::string envelope = "{\"exchange_object_name\":\"" + toNarrow(object.objectName())
                                 + "\",\"binary\":true,\"exchange_object_data\":\"" + toNarrow(fuzz::payloadBuffer) + "\"}";
    save("envelope", name + "_gzip.bin", envelope + '\0' + bytesOf(gzip));
    save("envelope", name + "_raw.bin", envelope + '\0' + bytesOf(raw));
    return gzip;
}

// Envelopes of the inline types, and of the binary object with its payload after a NUL byte,
// compressed and raw, as the envelope target expects them.
void envelopes()
{
    auto progress = std::make_shared<ExcProgress>();
    progress->setProgress(40);
    progress->setStage(L"Reading");
    auto names = std::make_shared<LegacyComponentInstanceNames>();
    names->addInstanceName(42, L"Bolt");
    auto materials = std::make_shared<LegacyMaterialMap>();
    materials->addMaterial(7, {true, L"Steel", 7850.0, 50.2, 0.49});
    save("envelope", "message.json", envelopeOf(std::make_shared<ExcMessage>(L"Translating")));
    save("envelope", "log.json", envelopeOf(std::make_shared<ExcLog>(L"line")));
    save("envelope", "progress.json", envelopeOf(progress));
    save("envelope", "stage.json", envelopeOf(std::make_shared<ExcStageFinished>(ExcStageFinished::EStage::VisuAndMech)));
    save("envelope", "names.json", envelopeOf(names));
    save("envelope", "materials.json", envelopeOf(materials));

    fuzz::BinaryObject object;
    object.text = L"Gear \u00e9\U0001F600";
    object.number = 18446744073709551615u;
    object.count = -3;
    object.real = 0.25;
    object.flag = true;
    object.words = {L"a", L"b"};
    object.progress.setProgress(7);
    object.messages = {std::make_shared<ExcMessage>(L"one"), std::make_shared<ExcMessage>(L"two")};
    object.measure = 3;
    object.unit = ELengthUnitType::Inch;
    object.note = std::make_shared<ExcMessage>(L"note");
    object.pair = {0.5, -1.5};
    object.color = {1.0, 0.5, 0.25, 1.0};
    object.vertices = {0.0f, 1.5f, -2.25f};
    object.indices = {0, 1, 2, -1};
    const std::vector<char> gzip = saveBinary("binary", object);
    // Both visualization roots, with one object of every class of their family.
    saveBinary("block_visualization", *samples::full::block());
    saveBinary("root_assembly_visualization", *samples::full::assembly());
    // Product structures: one object of every class of the family, and a small assembly.
    saveBinary("product_structure", *samples::full::productStructure());
    saveBinary("assembly", *samples::productStructure(12, 40));

    // Buffer names a reader must neither load nor remove, each beside a payload that the
    // buffer of the right name holds: capitals, a NUL, a lone surrogate, a path, a device, a
    // semaphore, a hidden object, look-alikes of separators, a trailing blank.
    std::string upper = toNarrow(fuzz::payloadBuffer);
    for (char& ch : upper)
        ch = static_cast<char>(std::toupper(static_cast<unsigned char>(ch)));
    const std::string uuid = toNarrow(fuzz::payloadBuffer);
    const std::pair<const char*, std::string> bufferNames[] = {
        {"upper", upper},
        {"nul", "victim\\u0000" + uuid},
        {"surrogate", uuid.substr(0, 35) + "\\ud800"},
        {"path", "../" + uuid.substr(3)},
        {"device", "NUL"},
        {"semaphore", "sem." + uuid.substr(4)},
        {"hidden", "." + uuid.substr(1)},
        {"fullwidth_solidus", ".." + toNarrow(L"\uFF0F") + uuid.substr(2)},
        {"blank", uuid + " "},
    };
    for (const auto& [file, name] : bufferNames) {
        const std::string named = "{\"exchange_object_name\":\"fuzz_binary_object\",\"binary\":true,"
                                  "\"exchange_object_data\":\"" + name + "\"}";
        save("envelope", std::string("name_") + file + ".bin", named + '\0' + bytesOf(gzip));
    }
    // The unknown type and the inline type announced as binary: their buffers go unread.
    save("envelope", "unknown_type.bin",
         "{\"exchange_object_name\":\"no_such_type\",\"binary\":true,\"exchange_object_data\":\"" + uuid + "\"}" +
             '\0' + bytesOf(gzip));
    save("envelope", "inline_type_binary.bin",
         "{\"exchange_object_name\":\"exc_message\",\"binary\":true,\"exchange_object_data\":\"" + uuid + "\"}" +
             '\0' + bytesOf(gzip));
}

#if HRM_HAS_MODELER

// The modeler's saved data of bodies carrying the given attributes (`ids`: an identity tag per
// id; `plain`: also the organisation attribute and a bare one).
std::string savedBodies(const std::vector<std::vector<long>>& ids, bool plain)
{
    ENTITY_LIST bodies;
    for (const auto& bodyIds : ids) {
        BODY* body = ACIS_NEW BODY;
        for (const long id : bodyIds)
            ACIS_NEW ATTRIB_HERMETOR_ID(body, id);
        if (plain) {
            ACIS_NEW ATTRIB_HERMETOR(body);
            ACIS_NEW ATTRIB(body);
        }
        bodies.add(body);
    }
    FileInfo info;
    info.set_product_id("Ardenix Hermetor");
    info.set_units(1.0);
    api_set_file_info(FileIdent | FileUnits, info);
    ExcSharedAcisBuffer file(L"unused", false);
    api_save_entity_list_file(&file, bodies);
    for (int i = 0; i < bodies.count(); ++i)
        bodies[i]->lose();
    file.goto_mark(0);
    std::string bytes(size_t(1) << 16, '\0');
    bytes.resize(file.read(&bytes[0], bytes.size(), 0));
    return bytes;
}

// Saved bodies for the restore target, and block geometries naming the payload buffer that
// holds them, raw and compressed, for the envelope target.
void geometry()
{
    const std::string tagged = savedBodies({{42}, {43, 44}}, false);
    save("acis_restore", "tagged.bin", tagged);
    save("acis_restore", "plain.bin", savedBodies({{}}, true));
    save("acis_restore", "empty.bin", savedBodies({}, false));

    auto geometry = std::make_shared<ExcBlockGeometry>();
    geometry->setBlockId(7);
    geometry->setBinaryData(nullptr, 0, false);
    mp::SharedBuffer<char>::remove(geometry->source());
    std::string envelope = envelopeOf(geometry);
    const std::string name = toNarrow(geometry->source());
    envelope.replace(envelope.find(name), name.size(), toNarrow(fuzz::payloadBuffer));
    std::vector<char> gzip;
    Compressor::compress(gzip, tagged.data(), tagged.size(), -1);
    save("envelope", "block_geometry_raw.bin", envelope + '\0' + tagged);
    save("envelope", "block_geometry_gzip.bin", envelope + '\0' + bytesOf(gzip));
}

#endif

// The glTF target's seeds: binary JSON of block visualizations, one of every class of the family
// and a small mesh of a quad and a triangle with an edge.
void gltf()
{
    auto seed = [](const std::string& name, const IJsonObject& object) {
        JsonDocument document;
        object.writeObject(document, document.GetAllocator());
        std::vector<char> bytes;
        JsonBinaryIO::encode(document, bytes);
        save("gltf", name + ".bin", bytesOf(bytes));
    };
    seed("full", *samples::full::block());

    auto face = std::make_shared<ExcVisuFace>();
    face->setVertices({0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 0.5f, 1.5f, 0});
    face->setNormals({0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1});
    face->setPolygons({{4, {0, 1, 2, 3}}, {3, {3, 2, 4}}});
    face->setColor(ExcColor(200, 120, 40));
    auto mesh = std::make_shared<ExcVisuMesh>();
    mesh->addFace(face);
    mesh->addEdge(samples::visuEdge({0, 0, 0, 1, 0, 0, 1, 1, 0}, 0));
    auto node = std::make_shared<ExcVisuNode>();
    node->setMesh(mesh);
    node->setTransformation(std::make_shared<ExcTransformation>());
    auto data = std::make_shared<ExcVisualizationData>();
    data->addSceneRootNode(node);
    ExcBlockVisualization block;
    block.setVisualizationData(data);
    seed("mesh", block);
}

void results()
{
    Result result;
    save("result", "ok.json", textOf(result));
    result.setCode(Result::ECode::Error);
    result.setMessage(L"Cannot open \"gear.stp\"");
    result.setFinished(true);
    save("result", "error.json", textOf(result));
}

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: make_corpus <folder>\n");
        return 2;
    }
    root = argv[1];
    commands();
    hermetorInfo();
    binaryDocuments();
    base64();
    envelopes();
#if HRM_HAS_MODELER
    geometry();
#endif
    results();
    gltf();
    return 0;
}
