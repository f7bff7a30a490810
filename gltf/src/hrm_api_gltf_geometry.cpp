#include "hrm_api_gltf_geometry.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <tuple>

namespace hrm::gltf {

namespace {

constexpr int arrayBuffer = TINYGLTF_TARGET_ARRAY_BUFFER;
constexpr int elementArrayBuffer = TINYGLTF_TARGET_ELEMENT_ARRAY_BUFFER;
// A .glb file records its length in 32 bits; the binary chunk leaves room for the JSON.
constexpr std::size_t maxBinary = 0xFFFFFFFFu - (std::size_t(256) << 20);

float srgbToLinear(double c)
{
    c = std::clamp(std::isfinite(c) ? c : 0.0, 0.0, 1.0);
    return static_cast<float>(c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4));
}

// Whether the first `count` floats of `values` are all finite.
bool allFinite(const std::vector<float>& values, std::size_t count)
{
    return std::all_of(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(count),
                       [](float v) { return std::isfinite(v); });
}

// Whether `values` holds a usable normal for each of `vertices` vertices: all finite, none zero.
bool usableNormals(const std::vector<float>& values, std::size_t vertices)
{
    if (values.size() < 3 * vertices)
        return false;
    for (std::size_t v = 0; v < vertices; ++v) {
        const float* n = &values[3 * v];
        const double length = std::sqrt(double(n[0]) * n[0] + double(n[1]) * n[1] + double(n[2]) * n[2]);
        if (!std::isfinite(length) || length < 1e-12)
            return false;
    }
    return true;
}

// Vertices and vertex indices of one primitive in the making; normals when it has them.
struct Primitive
{
    std::vector<float> positions;
    std::vector<float> normals;
    std::vector<uint32_t> indices;

    uint32_t vertexCount() const { return static_cast<uint32_t>(positions.size() / 3); }

    // Appends the first `vertices` points of `points`; returns the index of the first one.
    uint32_t addVertices(const std::vector<float>& points, std::size_t vertices)
    {
        if (positions.size() / 3 + vertices > std::numeric_limits<uint32_t>::max())
            throw std::length_error("glTF export: the model does not fit into one .glb file");
        const uint32_t first = vertexCount();
        positions.insert(positions.end(), points.begin(), points.begin() + static_cast<std::ptrdiff_t>(3 * vertices));
        return first;
    }
};

// The triangles of `face`: each polygon of at least 3 indices, all of them among the face's
// vertices, cut into a fan around its first index. Indices are the face's own.
std::vector<uint32_t> triangles(const ExcVisuFace& face, std::size_t vertices)
{
    std::vector<uint32_t> result;
    for (const ExcVisuFace::Polygon& polygon : face.polygons()) {
        const std::vector<int32_t>& index = polygon.indices;
        if (index.size() < 3 ||
            std::any_of(index.begin(), index.end(), [&](int32_t i) { return i < 0 || std::size_t(i) >= vertices; }))
            continue;
        for (std::size_t k = 1; k + 1 < index.size(); ++k)
            result.insert(result.end(), {uint32_t(index[0]), uint32_t(index[k]), uint32_t(index[k + 1])});
    }
    return result;
}

// Appends the triangles of `face` to `primitive`, with normals when the primitive has them.
void appendFace(const ExcVisuFace& face, Primitive& primitive, bool normals)
{
    const std::size_t vertices = face.vertices().size() / 3;
    std::vector<uint32_t> faceTriangles = triangles(face, vertices);
    if (faceTriangles.empty())
        return;
    const uint32_t first = primitive.addVertices(face.vertices(), vertices);
    for (uint32_t& index : faceTriangles)
        index += first;
    primitive.indices.insert(primitive.indices.end(), faceTriangles.begin(), faceTriangles.end());
    if (!normals)
        return;
    for (std::size_t v = 0; v < vertices; ++v) {
        const float* n = &face.normals()[3 * v];
        const double length = std::sqrt(double(n[0]) * n[0] + double(n[1]) * n[1] + double(n[2]) * n[2]);
        for (int c = 0; c < 3; ++c)
            primitive.normals.push_back(static_cast<float>(n[c] / length));
    }
}

// Appends the segments of `edge` to `primitive`: its line indices (or all its points) in
// order, closed for the loop types; segments with an index outside the points are left out.
void appendEdge(const ExcVisuEdge& edge, Primitive& primitive)
{
    const std::size_t points = edge.points().size() / 3;
    if (points < 2 || !allFinite(edge.points(), 3 * points))
        return;
    const std::vector<int32_t>& order = edge.lineIndices();
    const std::size_t length = order.empty() ? points : order.size();
    auto at = [&](std::size_t k) -> int64_t { return order.empty() ? int64_t(k) : order[k]; };
    auto valid = [&](int64_t i) { return i >= 0 && std::size_t(i) < points; };
    std::vector<uint32_t> segments;
    auto segment = [&](int64_t a, int64_t b) {
        if (valid(a) && valid(b))
            segments.insert(segments.end(), {uint32_t(a), uint32_t(b)});
    };
    for (std::size_t k = 0; k + 1 < length; ++k)
        segment(at(k), at(k + 1));
    const bool loop = edge.lineType() == ExcVisuEdge::ELineType::LineLoop ||
                      edge.lineType() == ExcVisuEdge::ELineType::LineLoopFilled;
    if (loop && length > 2)
        segment(at(length - 1), at(0));
    if (segments.empty())
        return;
    const uint32_t first = primitive.addVertices(edge.points(), points);
    for (uint32_t index : segments)
        primitive.indices.push_back(index + first);
}

// Appends the marked points of `points` (those its point indices name, else all).
void appendPoints(const ExcVisuPoints& points, Primitive& primitive)
{
    const std::size_t count = points.points().size() / 3;
    if (count == 0 || !allFinite(points.points(), 3 * count))
        return;
    std::vector<uint32_t> marked;
    if (points.pointIndices().empty()) {
        for (std::size_t i = 0; i < count; ++i)
            marked.push_back(uint32_t(i));
    }
    for (int32_t i : points.pointIndices()) {
        if (i >= 0 && std::size_t(i) < count)
            marked.push_back(uint32_t(i));
    }
    if (marked.empty())
        return;
    const uint32_t first = primitive.addVertices(points.points(), count);
    for (uint32_t index : marked)
        primitive.indices.push_back(index + first);
}

// The primitives of one glTF mesh in the making, by mode, material and whether they have
// normals, so that faces and lines of the same look share one primitive.
class MeshPrimitives
{
public:
    Primitive& get(int mode, int material, bool normals) { return m_primitives[{mode, material, normals}]; }

    // Appends the primitives that have something to draw to `mesh`.
    void addTo(tinygltf::Mesh& mesh, ModelBuilder& builder)
    {
        for (auto& [key, primitive] : m_primitives) {
            if (primitive.indices.empty())
                continue;
            tinygltf::Primitive out;
            out.mode = key.mode;
            out.material = key.material;
            out.attributes["POSITION"] = builder.addFloats(primitive.positions.data(), primitive.vertexCount(), 3, true);
            if (key.normals)
                out.attributes["NORMAL"] = builder.addFloats(primitive.normals.data(), primitive.vertexCount(), 3, false);
            out.indices = builder.addIndices(primitive.indices);
            primitive = Primitive(); // the data is in the buffer now
            mesh.primitives.push_back(std::move(out));
        }
    }

private:
    struct Key
    {
        int mode;
        int material;
        bool normals;
        bool operator<(const Key& o) const
        {
            return std::tie(mode, material, normals) < std::tie(o.mode, o.material, o.normals);
        }
    };
    std::map<Key, Primitive> m_primitives;
};

void addEdges(const ExcVisuEdges& edges, MeshPrimitives& primitives, ModelBuilder& builder)
{
    for (const auto& edge : edges) {
        if (edge)
            appendEdge(*edge, primitives.get(TINYGLTF_MODE_LINE, builder.lineMaterial(edge->color()), false));
    }
}

} // namespace

LinearRgba linear(const ExcColor& color)
{
    auto channel = [&](ExcColor::EChannel c) { return color.channel(c) / 255.0; };
    const double alpha = color.hasAlpha() ? std::min(channel(ExcColor::EChannel::Alpha), 1.0) : 1.0;
    return {srgbToLinear(channel(ExcColor::EChannel::Red)), srgbToLinear(channel(ExcColor::EChannel::Green)),
            srgbToLinear(channel(ExcColor::EChannel::Blue)), static_cast<float>(alpha)};
}

LinearRgba linear(const ExcVisuMaterial::Rgba& color)
{
    const double alpha = std::isfinite(color[3]) ? std::clamp(color[3], 0.0, 1.0) : 1.0;
    return {srgbToLinear(color[0]), srgbToLinear(color[1]), srgbToLinear(color[2]), static_cast<float>(alpha)};
}

ModelBuilder::ModelBuilder(const GltfOptions& options) : m_options(options)
{
    m_model.asset.version = "2.0";
    m_model.asset.generator = "hrm_api";
}

int ModelBuilder::addNode(tinygltf::Node node)
{
    if (m_model.nodes.size() >= m_options.maxNodes)
        throw std::length_error("glTF export: too many nodes");
    m_model.nodes.push_back(std::move(node));
    return static_cast<int>(m_model.nodes.size() - 1);
}

int ModelBuilder::addMesh(const ExcVisuNode& node, const Style& style)
{
    MeshPrimitives primitives;
    if (const auto& mesh = node.mesh()) {
        for (const auto& face : mesh->faces()) {
            if (!face)
                continue;
            const std::size_t vertices = face->vertices().size() / 3;
            if (vertices == 0 || !allFinite(face->vertices(), 3 * vertices))
                continue;
            const bool normals = usableNormals(face->normals(), vertices);
            const ExcColor* color = face->color().hasRGB() ? &face->color() : nullptr;
            appendFace(*face, primitives.get(TINYGLTF_MODE_TRIANGLES, surfaceMaterial(color, style), normals), normals);
        }
        countFaces(mesh->faces().size());
        if (m_options.lines)
            addEdges(mesh->edges(), primitives, *this);
    }
    if (m_options.lines) {
        if (node.wire())
            addEdges(node.wire()->edges(), primitives, *this);
        if (node.pmi())
            addEdges(node.pmi()->edges(), primitives, *this);
        if (node.pointSet()) {
            for (const auto& points : node.pointSet()->points()) {
                if (points)
                    appendPoints(*points, primitives.get(TINYGLTF_MODE_POINTS, lineMaterial(points->color()), false));
            }
        }
    }
    tinygltf::Mesh mesh;
    if (node.mesh())
        mesh.name = toUtf8(node.mesh()->displayName());
    primitives.addTo(mesh, *this);
    if (mesh.primitives.empty())
        return -1;
    m_model.meshes.push_back(std::move(mesh));
    return static_cast<int>(m_model.meshes.size() - 1);
}

int ModelBuilder::surfaceMaterial(const ExcColor* face, const Style& style)
{
    const ExcVisuMaterial* material = style.material;
    LinearRgba color = linear(ExcVisuMaterial::Rgba{0.8, 0.8, 0.8, 1.0});
    const auto& colors = material ? material->colors() : ExcVisuMaterial::Colors();
    const auto diffuse = colors.find(ExcVisuMaterial::EColorType::Diffuse);
    if (face)
        color = linear(*face);
    else if (style.color)
        color = linear(*style.color);
    else if (diffuse != colors.end())
        color = linear(diffuse->second);

    float roughness = 0.5f;
    std::array<float, 3> emissive{0, 0, 0};
    if (material && std::isfinite(material->shininess()) && material->shininess() > 0)
        roughness = static_cast<float>(std::clamp(1.0 - material->shininess() / 128.0, 0.05, 1.0));
    const auto emission = colors.find(ExcVisuMaterial::EColorType::Emissive);
    if (emission != colors.end()) {
        const LinearRgba e = linear(emission->second);
        emissive = {e[0], e[1], e[2]};
    }
    return this->material(color, roughness, emissive);
}

int ModelBuilder::lineMaterial(const ExcColor& color)
{
    const LinearRgba black{0, 0, 0, 1};
    return material(color.hasRGB() ? linear(color) : black, 1.0f, {0, 0, 0});
}

int ModelBuilder::material(const LinearRgba& color, float roughness, const std::array<float, 3>& emissive)
{
    const std::vector<float> key{color[0], color[1], color[2], color[3], roughness, emissive[0], emissive[1], emissive[2]};
    const auto found = m_materials.find(key);
    if (found != m_materials.end())
        return found->second;
    tinygltf::Material material;
    material.pbrMetallicRoughness.baseColorFactor = {color[0], color[1], color[2], color[3]};
    material.pbrMetallicRoughness.metallicFactor = 0.0;
    material.pbrMetallicRoughness.roughnessFactor = roughness;
    if (emissive != std::array<float, 3>{0, 0, 0})
        material.emissiveFactor = {emissive[0], emissive[1], emissive[2]};
    material.alphaMode = color[3] < 1.0f ? "BLEND" : "OPAQUE";
    material.doubleSided = true; // CAD faces are often open shells, seen from both sides
    m_model.materials.push_back(std::move(material));
    const int index = static_cast<int>(m_model.materials.size() - 1);
    m_materials.emplace(key, index);
    return index;
}

int ModelBuilder::addBufferView(const void* data, std::size_t bytes, int target)
{
    if (m_model.buffers.empty())
        m_model.buffers.emplace_back();
    std::vector<unsigned char>& buffer = m_model.buffers[0].data;
    const std::size_t offset = (buffer.size() + 3) / 4 * 4;
    if (offset + bytes > maxBinary)
        throw std::length_error("glTF export: the model does not fit into one .glb file");
    buffer.resize(offset + bytes);
    std::memcpy(buffer.data() + offset, data, bytes);
    tinygltf::BufferView view;
    view.buffer = 0;
    view.byteOffset = offset;
    view.byteLength = bytes;
    view.target = target;
    m_model.bufferViews.push_back(std::move(view));
    return static_cast<int>(m_model.bufferViews.size() - 1);
}

int ModelBuilder::addFloats(const float* data, std::size_t count, int components, bool bounds)
{
    tinygltf::Accessor accessor;
    accessor.bufferView = addBufferView(data, count * components * sizeof(float), arrayBuffer);
    accessor.componentType = TINYGLTF_COMPONENT_TYPE_FLOAT;
    accessor.type = components == 3 ? TINYGLTF_TYPE_VEC3 : TINYGLTF_TYPE_SCALAR;
    accessor.count = count;
    if (bounds) {
        accessor.minValues.assign(components, std::numeric_limits<double>::infinity());
        accessor.maxValues.assign(components, -std::numeric_limits<double>::infinity());
        for (std::size_t i = 0; i < count * components; ++i) {
            double& low = accessor.minValues[i % components];
            double& high = accessor.maxValues[i % components];
            low = std::min(low, double(data[i]));
            high = std::max(high, double(data[i]));
        }
    }
    m_model.accessors.push_back(std::move(accessor));
    return static_cast<int>(m_model.accessors.size() - 1);
}

int ModelBuilder::addIndices(const std::vector<uint32_t>& indices)
{
    tinygltf::Accessor accessor;
    accessor.bufferView = addBufferView(indices.data(), indices.size() * sizeof(uint32_t), elementArrayBuffer);
    accessor.componentType = TINYGLTF_COMPONENT_TYPE_UNSIGNED_INT;
    accessor.type = TINYGLTF_TYPE_SCALAR;
    accessor.count = indices.size();
    m_model.accessors.push_back(std::move(accessor));
    return static_cast<int>(m_model.accessors.size() - 1);
}

} // namespace hrm::gltf
