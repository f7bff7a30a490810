#pragma once

// A block visualization of a real-size mesh, made the way a translator makes one, for the
// benchmarks, the two-process tests, the fuzz seeds and anyone who needs a large visualization
// payload:
//
//   auto object = hrm::samples::blockVisualization(100000);   // 100,000 triangles
//
// The mesh is a wavy cylinder cut into faces of 50 x 50 quads (5,000 triangles each): every
// face has its vertices, unit normals, one polygon per triangle and its four boundary edges as
// polylines. The triangle count is rounded up to whole faces. Header-only and deterministic.

#include <hrm_api/hrm_api_exchange_visualization.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm::samples {

// The arrays a tessellator hands over for one face.
struct FaceArrays
{
    std::vector<float> vertices;                // x, y, z per vertex
    std::vector<float> normals;                 // one unit normal per vertex
    std::vector<int32_t> triangles;             // three vertex indices per triangle
    std::vector<std::vector<float>> boundaries; // x, y, z per point, one polyline per edge
};

constexpr int quadsPerSide = 50;
constexpr std::size_t trianglesPerFace = 2 * quadsPerSide * quadsPerSide;

// The arrays of the faces of a mesh of at least `triangles` triangles (at least one face).
inline std::vector<FaceArrays> tessellation(std::size_t triangles)
{
    const std::size_t faceCount = triangles == 0 ? 1 : (triangles + trianglesPerFace - 1) / trianglesPerFace;
    const std::size_t ring = 16; // faces around the cylinder
    const double pi = 3.14159265358979323846;
    std::vector<FaceArrays> faces(faceCount);
    for (std::size_t f = 0; f < faceCount; ++f) {
        FaceArrays& face = faces[f];
        const int n = quadsPerSide + 1;
        auto point = [&](int i, int j, float* position, float* normal) {
            const double angle = 2 * pi * (double(f % ring) + double(i) / quadsPerSide) / ring;
            const double height = 20.0 * (double(f / ring) + double(j) / quadsPerSide);
            const double wave = 1.5 * std::sin(7 * angle) * std::cos(0.3 * height);
            const double radius = 80.0 + wave;
            position[0] = static_cast<float>(radius * std::cos(angle));
            position[1] = static_cast<float>(radius * std::sin(angle));
            position[2] = static_cast<float>(height);
            // The surface normal of r(angle, height): radial, tilted by the slopes of the wave.
            const double dRadius = 10.5 * std::cos(7 * angle) * std::cos(0.3 * height) / radius;
            const double dHeight = -0.45 * std::sin(7 * angle) * std::sin(0.3 * height);
            const double x = std::cos(angle) + dRadius * std::sin(angle), y = std::sin(angle) - dRadius * std::cos(angle);
            const double z = -dHeight, length = std::sqrt(x * x + y * y + z * z);
            normal[0] = static_cast<float>(x / length);
            normal[1] = static_cast<float>(y / length);
            normal[2] = static_cast<float>(z / length);
        };
        face.vertices.resize(3 * n * n);
        face.normals.resize(3 * n * n);
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < n; ++i)
                point(i, j, &face.vertices[3 * (j * n + i)], &face.normals[3 * (j * n + i)]);
        }
        face.triangles.reserve(3 * trianglesPerFace);
        for (int j = 0; j < quadsPerSide; ++j) {
            for (int i = 0; i < quadsPerSide; ++i) {
                const int32_t a = j * n + i, b = a + 1, c = a + n, d = c + 1;
                face.triangles.insert(face.triangles.end(), {a, b, d, a, d, c});
            }
        }
        for (int side = 0; side < 4; ++side) {
            std::vector<float> line(3 * n);
            float normal[3];
            for (int k = 0; k < n; ++k) {
                const int i = side == 0 ? k : side == 1 ? quadsPerSide : side == 2 ? quadsPerSide - k : 0;
                const int j = side == 0 ? 0 : side == 1 ? k : side == 2 ? quadsPerSide : quadsPerSide - k;
                point(i, j, &line[3 * k], normal);
            }
            face.boundaries.push_back(std::move(line));
        }
    }
    return faces;
}

// The face of `arrays`: vertices, normals, one polygon (tag 4) per triangle, a colour and ids.
inline std::shared_ptr<ExcVisuFace> visuFace(const FaceArrays& arrays, std::size_t number)
{
    auto face = std::make_shared<ExcVisuFace>();
    face->setVertices(arrays.vertices);
    face->setNormals(arrays.normals);
    std::vector<ExcVisuFace::Polygon> polygons(arrays.triangles.size() / 3);
    for (std::size_t t = 0; t < polygons.size(); ++t) {
        polygons[t].tag = 4;
        polygons[t].indices.assign(arrays.triangles.begin() + 3 * t, arrays.triangles.begin() + 3 * t + 3);
    }
    face->setPolygons(std::move(polygons));
    face->setColor(ExcColor(200, 120, 40));
    face->setMechanicalId(L"face-" + std::to_wstring(number));
    face->setId(std::to_wstring(number));
    return face;
}

// The boundary edge `line` of face `number`: a line strip through its points.
inline std::shared_ptr<ExcVisuEdge> visuEdge(const std::vector<float>& line, std::size_t number)
{
    auto edge = std::make_shared<ExcVisuEdge>();
    edge->setPoints(line);
    std::vector<int32_t> indices(line.size() / 3);
    for (std::size_t k = 0; k < indices.size(); ++k)
        indices[k] = static_cast<int32_t>(k);
    edge->setLineIndices(std::move(indices));
    edge->setLineType(ExcVisuEdge::ELineType::LineStrip);
    edge->setColor(ExcColor(0, 0, 0));
    edge->setMechanicalId(L"edge-" + std::to_wstring(number));
    return edge;
}

// The block visualization of `faces`: a root node over one leaf that holds the mesh, with
// attributes and a transformation.
inline std::shared_ptr<ExcBlockVisualization> blockVisualization(const std::vector<FaceArrays>& faces, uint64_t blockId = 1)
{
    auto mesh = std::make_shared<ExcVisuMesh>();
    mesh->setDisplayName(L"Housing");
    mesh->setId(L"body-1");
    mesh->setMechanicalId(L"mech-body-1");
    mesh->setGeometryType(EVisuGeometryType::Part);
    std::size_t edges = 0;
    for (std::size_t f = 0; f < faces.size(); ++f) {
        mesh->addFace(visuFace(faces[f], f));
        for (const auto& line : faces[f].boundaries)
            mesh->addEdge(visuEdge(line, edges++));
    }
    auto attributes = std::make_shared<ExcVisuAttributes>();
    attributes->setColor(ExcColor(200, 120, 40, 255));
    auto material = std::make_shared<ExcVisuMaterial>();
    material->setName(L"Aluminium");
    material->setColor(ExcVisuMaterial::EColorType::Diffuse, {0.8, 0.8, 0.82, 1.0});
    attributes->addMaterial(material);

    auto leaf = std::make_shared<ExcVisuNode>();
    leaf->setLeaf(true);
    leaf->setType(ExcVisuNode::EType::Mesh);
    leaf->setAttributes(attributes);
    leaf->setTransformation(std::make_shared<ExcTransformation>());
    leaf->setMesh(mesh);
    auto root = std::make_shared<ExcVisuNode>();
    root->setType(ExcVisuNode::EType::Root);
    root->setGroupName(L"Block " + std::to_wstring(blockId));
    root->addChildNode(leaf);

    auto data = std::make_shared<ExcVisualizationData>();
    data->setUnits(ELengthUnitType::Millimeter);
    data->addSceneRootNode(root);
    auto object = std::make_shared<ExcBlockVisualization>();
    object->setBlockId(blockId);
    object->setVisualizationData(data);
    return object;
}

// A block visualization of at least `triangles` triangles.
inline std::shared_ptr<ExcBlockVisualization> blockVisualization(std::size_t triangles)
{
    return blockVisualization(tessellation(triangles));
}

} // namespace hrm::samples
