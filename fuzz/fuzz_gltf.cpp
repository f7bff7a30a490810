// The glTF export on whatever a block visualization decodes to (the fuzz bytes as binary JSON):
// any mesh, index, number or transformation a peer sends. Exporting never fails but for its
// documented limits, and what it writes is a binary glTF file.

#include "fuzz_support.h"

#include <hrm_api/hrm_api_exchange_visualization.h>
#include <hrm_api/hrm_api_gltf.h>
#include <hrm_api/hrm_api_json_binary.h>

#include <cstring>

using namespace hrm;

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    fuzz::discardLogLines();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    JsonDocument document;
    if (!fuzz::decodes([&] {
            JsonBinaryIO::decode(reinterpret_cast<const char*>(data), size, document, document.GetAllocator());
        }))
        return 0;
    auto block = std::make_shared<ExcBlockVisualization>();
    block->readObject(document);
    auto root = std::make_shared<ExcRootAssemblyVisualization>();
    root->readObject(document);

    GltfInput input;
    input.blockVisualizations = {block};
    input.rootAssemblyVisualization = root;
    GltfOptions options;
    options.maxNodes = 10000;
    options.keepHidden = size % 2 == 0;
    std::vector<unsigned char> glb;
    if (!fuzz::decodes([&] { glb = toGlb(input, options); }))
        return 0;
    fuzz::check(glb.size() >= 20 && std::memcmp(glb.data(), "glTF", 4) == 0, "the export is a binary glTF file");
    return 0;
}
