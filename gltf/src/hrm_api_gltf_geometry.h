#pragma once

// The parts of the glTF export that turn geometry into glTF: the model under construction with
// its binary buffer and shared materials, and the conversion of one visualization node's
// mesh, wire, PMI lines and point set into one glTF mesh.

#include <hrm_api/hrm_api_gltf.h>

#include <tiny_gltf.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <vector>

namespace hrm::gltf {

// A colour in glTF's terms: linear red, green, blue and alpha, 0 to 1.
using LinearRgba = std::array<float, 4>;

// The colour of `color` (sRGB channels 0 to 255; alpha 255 unless it has alpha).
LinearRgba linear(const ExcColor& color);
// The colour of a material colour (sRGB components 0 to 1).
LinearRgba linear(const ExcVisuMaterial::Rgba& color);

// What a surface looks like, inherited down the scene graph: the nearest colour and material.
struct Style
{
    const ExcColor* color = nullptr;
    const ExcVisuMaterial* material = nullptr;
};

// The glTF model being built: nodes, meshes, materials, accessors and the one binary buffer.
class ModelBuilder
{
public:
    explicit ModelBuilder(const GltfOptions& options);

    const GltfOptions& options() const { return m_options; }
    tinygltf::Model& model() { return m_model; }

    // Appends a node; throws std::length_error when the scene would pass options().maxNodes.
    int addNode(tinygltf::Node node);
    // The glTF mesh of the geometry of `node` under `style`, or -1 when it has none.
    int addMesh(const ExcVisuNode& node, const Style& style);

    // The surface material of a face of colour `face` (may be null) under `style`.
    int surfaceMaterial(const ExcColor* face, const Style& style);
    // The material of lines or points of colour `color`.
    int lineMaterial(const ExcColor& color);

    // Appends `count` elements of `components` floats as an accessor; with `bounds`, the
    // accessor carries the minimum and maximum of each component (glTF wants them for
    // positions).
    int addFloats(const float* data, std::size_t count, int components, bool bounds);
    // Appends 32-bit vertex indices as an accessor.
    int addIndices(const std::vector<uint32_t>& indices);

    // Faces converted so far, for the progress callback.
    std::size_t facesDone() const { return m_facesDone; }
    void countFaces(std::size_t faces) { m_facesDone += faces; }

private:
    int addBufferView(const void* data, std::size_t bytes, int target);
    int material(const LinearRgba& color, float roughness, const std::array<float, 3>& emissive);

    GltfOptions m_options;
    tinygltf::Model m_model;
    std::map<std::vector<float>, int> m_materials; // colour, roughness, emission -> index
    std::size_t m_facesDone = 0;
};

} // namespace hrm::gltf
