// The glTF export, read back with tinygltf. Every .glb made here is also written to
// HRM_GLB_DIR, where the validator and the browser check take them up.

#include <hrm_api/hrm_api_gltf.h>

#include "visualization_sample.h"

#if __has_include(<hrm_api/hrm_api_exchange_structure.h>)
#include <hrm_api/hrm_api_exchange_structure.h>
#define HRM_TEST_STRUCTURE 1
#endif

#include <gtest/gtest.h>
#include <tiny_gltf.h>

#include <cmath>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>

namespace hrm {
namespace {

// Exports `input`, keeps the file as HRM_GLB_DIR/<name>.glb and reads it back.
tinygltf::Model exported(const std::string& name, const GltfInput& input, const GltfOptions& options = {})
{
    const std::vector<unsigned char> glb = toGlb(input, options);
    std::filesystem::create_directories(HRM_GLB_DIR);
    std::ofstream(std::string(HRM_GLB_DIR) + "/" + name + ".glb", std::ios::binary)
        .write(reinterpret_cast<const char*>(glb.data()), std::streamsize(glb.size()));
    tinygltf::Model model;
    std::string error, warning;
    tinygltf::TinyGLTF loader;
    EXPECT_TRUE(loader.LoadBinaryFromMemory(&model, &error, &warning, glb.data(), unsigned(glb.size()))) << error;
    return model;
}

template <class T>
std::vector<T> values(const tinygltf::Model& model, int accessorIndex)
{
    const tinygltf::Accessor& accessor = model.accessors.at(accessorIndex);
    const tinygltf::BufferView& view = model.bufferViews.at(accessor.bufferView);
    const std::size_t components = accessor.type == TINYGLTF_TYPE_VEC3 ? 3 : 1;
    std::vector<T> result(accessor.count * components);
    std::memcpy(result.data(), model.buffers.at(view.buffer).data.data() + view.byteOffset + accessor.byteOffset,
                result.size() * sizeof(T));
    return result;
}

GltfInput blocks(std::initializer_list<std::shared_ptr<const ExcBlockVisualization>> visualizations)
{
    GltfInput input;
    input.blockVisualizations = visualizations;
    return input;
}

// A block visualization of one node holding `mesh` under `attributes`.
std::shared_ptr<ExcBlockVisualization> blockOf(std::shared_ptr<ExcVisuMesh> mesh,
                                               std::shared_ptr<ExcVisuAttributes> attributes = nullptr,
                                               ELengthUnitType units = ELengthUnitType::Millimeter)
{
    auto node = std::make_shared<ExcVisuNode>();
    node->setGroupName(L"leaf");
    node->setMesh(std::move(mesh));
    node->setAttributes(std::move(attributes));
    auto data = std::make_shared<ExcVisualizationData>();
    data->setUnits(units);
    data->addSceneRootNode(node);
    auto block = std::make_shared<ExcBlockVisualization>();
    block->setVisualizationData(data);
    return block;
}

std::shared_ptr<ExcVisuFace> square(std::vector<ExcVisuFace::Polygon> polygons)
{
    auto face = std::make_shared<ExcVisuFace>();
    face->setVertices({0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 1, 0, 0.5f, 1.5f, 0});
    face->setPolygons(std::move(polygons));
    return face;
}

std::shared_ptr<ExcVisuMesh> meshOf(std::initializer_list<std::shared_ptr<ExcVisuFace>> faces)
{
    auto mesh = std::make_shared<ExcVisuMesh>();
    for (const auto& face : faces)
        mesh->addFace(face);
    return mesh;
}

// The node that holds the first mesh of the model.
const tinygltf::Node& meshNode(const tinygltf::Model& model)
{
    for (const auto& node : model.nodes) {
        if (node.mesh >= 0)
            return node;
    }
    throw std::runtime_error("no mesh node");
}

TEST(GltfExport, RealMeshKeepsItsTrianglesNormalsEdgesAndUnits)
{
    const auto model = exported("block", blocks({samples::blockVisualization(20000)}));
    ASSERT_EQ(model.meshes.size(), 1u);
    const auto& primitives = model.meshes[0].primitives;
    ASSERT_EQ(primitives.size(), 2u); // the four faces share one colour, the edges another
    const auto& faces = primitives[0].mode == TINYGLTF_MODE_TRIANGLES ? primitives[0] : primitives[1];
    const auto& edges = primitives[0].mode == TINYGLTF_MODE_TRIANGLES ? primitives[1] : primitives[0];
    EXPECT_EQ(edges.mode, TINYGLTF_MODE_LINE);
    EXPECT_EQ(model.accessors[faces.indices].count, 3u * 20000);
    EXPECT_EQ(model.accessors[faces.attributes.at("NORMAL")].count, 4u * 51 * 51);
    EXPECT_EQ(model.accessors[edges.indices].count, 16u * 50 * 2); // 16 polylines of 50 segments

    // Millimetres become metres in the node above the picture; Z up becomes Y up at the root.
    const auto& root = model.nodes[model.scenes[0].nodes[0]];
    EXPECT_NEAR(root.rotation[0], -std::sqrt(0.5), 1e-12);
    const auto& picture = model.nodes[root.children.at(0)];
    EXPECT_EQ(picture.scale, (std::vector<double>{1e-3, 1e-3, 1e-3}));

    // The face colour (200, 120, 40) in linear terms; edges black.
    const auto& color = model.materials[faces.material].pbrMetallicRoughness.baseColorFactor;
    EXPECT_NEAR(color[0], 0.578, 0.001);
    EXPECT_NEAR(color[1], 0.188, 0.001);
    EXPECT_NEAR(color[2], 0.021, 0.001);
    EXPECT_EQ(model.materials[edges.material].pbrMetallicRoughness.baseColorFactor, (std::vector<double>{0, 0, 0, 1}));
}

TEST(GltfExport, PolygonsBecomeFansAndUnusableDataIsLeftOut)
{
    using P = ExcVisuFace::Polygon;
    auto good = square({P{4, {0, 1, 2, 3}}, P{3, {1, 2, 4}}, P{5, {0, 1}}, P{6, {0, 1, 5}}, P{7, {-1, 0, 1}}});
    good->setNormals({0, 0, 2, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1});
    auto flat = square({P{3, {0, 1, 2, 3, 4}}});
    flat->setNormals({0, 0, 0, 0, 0, 1, 0, 0, 1, 0, 0, 1, 0, 0, 1}); // a zero normal: none kept
    flat->setColor(ExcColor(10, 20, 30));
    auto broken = square({P{3, {0, 1, 2}}});
    broken->setVertices({0, 0, std::numeric_limits<float>::quiet_NaN(), 1, 0, 0, 1, 1, 0});
    const auto model = exported("polygons", blocks({blockOf(meshOf({good, flat, broken}))}));

    ASSERT_EQ(model.meshes.at(0).primitives.size(), 2u);
    const auto& withNormals = model.meshes[0].primitives[0];
    const auto& without = model.meshes[0].primitives[1];
    EXPECT_EQ(values<uint32_t>(model, withNormals.indices), (std::vector<uint32_t>{0, 1, 2, 0, 2, 3, 1, 2, 4}));
    EXPECT_EQ(values<float>(model, withNormals.attributes.at("NORMAL"))[2], 1.0f); // normalised
    EXPECT_EQ(values<uint32_t>(model, without.indices), (std::vector<uint32_t>{0, 1, 2, 0, 2, 3, 0, 3, 4}));
    EXPECT_EQ(without.attributes.count("NORMAL"), 0u);
    EXPECT_NE(withNormals.material, without.material);
    const auto& bounds = model.accessors[without.attributes.at("POSITION")];
    EXPECT_EQ(bounds.maxValues, (std::vector<double>{1, 1.5, 0}));
}

TEST(GltfExport, ColoursComeFromTheFaceTheNodeOrTheMaterial)
{
    auto material = std::make_shared<ExcVisuMaterial>();
    material->setColor(ExcVisuMaterial::EColorType::Diffuse, {1.0, 0.0, 0.0, 1.0});
    material->setShininess(96);
    auto withMaterial = std::make_shared<ExcVisuAttributes>();
    withMaterial->addMaterial(material);
    auto withColor = std::make_shared<ExcVisuAttributes>(*withMaterial);
    withColor->setColor(ExcColor(0, 255, 0, 128));
    auto own = square({{3, {0, 1, 2}}});
    own->setColor(ExcColor(0, 0, 255));

    auto colorOf = [](const tinygltf::Model& model) {
        return model.materials.at(model.meshes.at(0).primitives.at(0).material);
    };
    const auto byMaterial = colorOf(exported("material", blocks({blockOf(meshOf({square({{3, {0, 1, 2}}})}), withMaterial)})));
    EXPECT_EQ(byMaterial.pbrMetallicRoughness.baseColorFactor, (std::vector<double>{1, 0, 0, 1}));
    EXPECT_DOUBLE_EQ(byMaterial.pbrMetallicRoughness.roughnessFactor, 0.25);
    EXPECT_EQ(byMaterial.alphaMode, "OPAQUE");
    const auto byNode = colorOf(exported("node_colour", blocks({blockOf(meshOf({square({{3, {0, 1, 2}}})}), withColor)})));
    EXPECT_EQ(byNode.pbrMetallicRoughness.baseColorFactor[1], 1.0);
    EXPECT_NEAR(byNode.pbrMetallicRoughness.baseColorFactor[3], 128 / 255.0, 1e-6);
    EXPECT_EQ(byNode.alphaMode, "BLEND");
    const auto byFace = colorOf(exported("face_colour", blocks({blockOf(meshOf({own}), withColor)})));
    EXPECT_EQ(byFace.pbrMetallicRoughness.baseColorFactor, (std::vector<double>{0, 0, 1, 1}));
}

TEST(GltfExport, HiddenNodesAreLeftOutOrFlagged)
{
    auto hidden = std::make_shared<ExcVisuAttributes>();
    hidden->setHidden(true);
    const auto block = blockOf(meshOf({square({{3, {0, 1, 2}}})}), hidden, ELengthUnitType::Inch);
    EXPECT_TRUE(exported("hidden_left_out", blocks({block})).meshes.empty());

    GltfOptions keep;
    keep.keepHidden = true;
    const auto model = exported("hidden_kept", blocks({block}), keep);
    const auto& node = meshNode(model);
    EXPECT_TRUE(node.extras.Get("hidden").Get<bool>());
    EXPECT_EQ(model.nodes[model.nodes[0].children.at(0)].scale[0], 0.0254);
}

TEST(GltfExport, TransformationsBecomeTranslationRotationAndScale)
{
    auto node = [](const ExcTransformation& transformation) {
        auto visu = std::make_shared<ExcVisuNode>();
        visu->setTransformation(std::make_shared<ExcTransformation>(transformation));
        visu->setMesh(meshOf({square({{3, {0, 1, 2}}})}));
        auto data = std::make_shared<ExcVisualizationData>();
        data->addSceneRootNode(visu);
        auto block = std::make_shared<ExcBlockVisualization>();
        block->setVisualizationData(data);
        return meshNode(exported("transformation", blocks({block})));
    };
    ExcTransformation turn; // 90 degrees about Z, twice as large, moved
    turn.affine()[0] = ExcVector3d(0, -2, 0);
    turn.affine()[1] = ExcVector3d(2, 0, 0);
    turn.affine()[2] = ExcVector3d(0, 0, 2);
    turn.translation() = ExcVector3d(10, 20, 30);
    const auto turned = node(turn);
    EXPECT_EQ(turned.translation, (std::vector<double>{10, 20, 30})); // the visualization's units
    ASSERT_EQ(turned.rotation.size(), 4u);
    EXPECT_NEAR(turned.rotation[2], std::sqrt(0.5), 1e-12);
    EXPECT_NEAR(turned.rotation[3], std::sqrt(0.5), 1e-12);
    EXPECT_EQ(turned.scale, (std::vector<double>{2, 2, 2}));

    ExcTransformation mirror;
    mirror.affine()[2] = ExcVector3d(0, 0, -1);
    EXPECT_EQ(node(mirror).scale, (std::vector<double>{1, 1, -1}));
    EXPECT_TRUE(node(mirror).rotation.empty());

    ExcTransformation broken;
    broken.translation() = ExcVector3d(std::numeric_limits<double>::infinity(), 0, 0);
    const auto unmoved = node(broken);
    EXPECT_TRUE(unmoved.translation.empty() && unmoved.rotation.empty() && unmoved.scale.empty());
}

TEST(GltfExport, EmptyInputAndTheFullSample)
{
    const auto empty = exported("empty", GltfInput());
    EXPECT_EQ(empty.nodes.size(), 1u);
    EXPECT_TRUE(empty.buffers.empty());

    GltfInput full = blocks({samples::full::block()});
    auto root = std::make_shared<ExcRootAssemblyVisualization>();
    root->setVisualizationData(samples::full::block()->visualizationData());
    full.rootAssemblyVisualization = root;
    GltfOptions options;
    options.keepHidden = true;
    std::vector<double> progress;
    options.progress = [&](double done) { progress.push_back(done); };
    const auto model = exported("full", full, options);
    EXPECT_FALSE(model.meshes.empty());
    ASSERT_FALSE(progress.empty());
    EXPECT_EQ(progress.back(), 1.0);
}

#if HRM_TEST_STRUCTURE
std::shared_ptr<ExcBlockReference> referenceTo(uint64_t block, double x, double turn = 0)
{
    auto reference = std::make_shared<ExcBlockReference>();
    reference->setBlockId(block);
    reference->setName(L"instance \u00e9");
    ExcTransformation transformation;
    transformation.affine()[0] = ExcVector3d(std::cos(turn), -std::sin(turn), 0);
    transformation.affine()[1] = ExcVector3d(std::sin(turn), std::cos(turn), 0);
    transformation.translation() = ExcVector3d(x, 0, 0);
    reference->setTransformation(transformation);
    return reference;
}

// Block 2, an assembly, places block 1 twice; hidden, suppressed and cyclic references are left
// out. Written as structure.glb, which the browser check expects to show two copies.
TEST(GltfExport, BlockReferencesPlaceSharedMeshes)
{
    auto part = std::make_shared<ExcBlock>();
    part->setId(1);
    part->setPart(true);
    auto assembly = std::make_shared<ExcBlock>();
    assembly->setId(2);
    assembly->addBlockReference(referenceTo(1, 0));
    assembly->addBlockReference(referenceTo(1, 250, 1.0));
    auto hidden = referenceTo(1, 500);
    hidden->setHidden(true);
    assembly->addBlockReference(hidden);
    auto suppressed = referenceTo(1, 750);
    suppressed->setSuppressed(true);
    assembly->addBlockReference(suppressed);
    assembly->addBlockReference(referenceTo(2, 1000)); // a cycle
    auto structure = std::make_shared<ExcProductStructure>();
    structure->setUnits(ELengthUnitType::Centimeter);
    structure->setWorldOrientation(EWorldOrientation::UpY);
    structure->addBlock(part);
    structure->addBlock(assembly);
    structure->addRootBlockReference(referenceTo(2, 0));

    GltfInput input = blocks({samples::blockVisualization(20000)});
    input.productStructure = structure;
    const auto model = exported("structure", input);
    const auto& root = model.nodes[model.scenes[0].nodes[0]];
    EXPECT_TRUE(root.rotation.empty()); // Y up already
    ASSERT_EQ(root.children.size(), 1u);
    const auto& top = model.nodes[root.children[0]];
    EXPECT_EQ(top.name, "instance \xC3\xA9");
    ASSERT_EQ(top.children.size(), 2u);
    const auto& second = model.nodes[top.children[1]];
    EXPECT_EQ(second.translation, (std::vector<double>{2.5, 0, 0})); // 250 cm
    EXPECT_NEAR(second.rotation[2], std::sin(0.5), 1e-12);
    std::vector<int> meshes;
    for (int instance : top.children) {
        const auto& picture = model.nodes[model.nodes[instance].children.at(0)];
        EXPECT_EQ(picture.scale[0], 1e-3);
        meshes.push_back(model.nodes[model.nodes[picture.children.at(0)].children.at(0)].mesh); // root, leaf
    }
    EXPECT_EQ(meshes[0], meshes[1]);
    EXPECT_EQ(model.meshes.size(), 1u);

    GltfOptions keep;
    keep.keepHidden = true;
    const auto kept = exported("structure_hidden", input, keep);
    EXPECT_EQ(kept.nodes[kept.nodes[kept.scenes[0].nodes[0]].children.at(0)].children.size(), 3u);
    GltfOptions few;
    few.maxNodes = 5;
    EXPECT_THROW(toGlb(input, few), std::length_error);
}
#endif

} // namespace
} // namespace hrm
