#include <hrm_api/hrm_api_gltf.h>

#if __has_include(<hrm_api/hrm_api_exchange_structure.h>)
#include <hrm_api/hrm_api_exchange_structure.h>
#define HRM_GLTF_HAS_STRUCTURE 1
#else
#define HRM_GLTF_HAS_STRUCTURE 0
#endif

#include "hrm_api_gltf_geometry.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace hrm {

double metresPerUnit(ELengthUnitType units)
{
    switch (units) {
    case ELengthUnitType::Nanometer: return 1e-9;
    case ELengthUnitType::Micrometer: return 1e-6;
    case ELengthUnitType::Centimeter: return 1e-2;
    case ELengthUnitType::Decimeter: return 1e-1;
    case ELengthUnitType::Meter: return 1.0;
    case ELengthUnitType::Inch: return 0.0254;
    case ELengthUnitType::Foot: return 0.3048;
    case ELengthUnitType::Mile: return 1609.344;
    case ELengthUnitType::Kilometer: return 1000.0;
    case ELengthUnitType::MilliInch: return 0.0254e-3;
    case ELengthUnitType::MicroInch: return 0.0254e-6;
    default: return 1e-3; // millimetres, also for unknown and model units
    }
}

namespace gltf {

namespace {

using Vec3 = std::array<double, 3>;

double dot(const Vec3& a, const Vec3& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vec3 cross(const Vec3& a, const Vec3& b)
{
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vec3 scaled(const Vec3& a, double s)
{
    return {a[0] * s, a[1] * s, a[2] * s};
}

Vec3 minus(const Vec3& a, const Vec3& b)
{
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

// `v` made unit length, or a unit vector perpendicular to `x` (and to `y`, when given) when
// `v` has no usable direction.
Vec3 unitOr(const Vec3& v, const Vec3& x, const Vec3* y = nullptr)
{
    const double length = std::sqrt(dot(v, v));
    if (length > 1e-12)
        return scaled(v, 1 / length);
    if (y)
        return cross(x, *y);
    const Vec3 axis = std::abs(x[0]) < 0.9 ? Vec3{1, 0, 0} : Vec3{0, 1, 0};
    const Vec3 p = cross(x, axis);
    return scaled(p, 1 / std::sqrt(dot(p, p)));
}

// Sets the translation, rotation and scale of `node` from `transformation`, its translation
// multiplied by `metres`. The affine matrix maps column vectors (p' = A p + t); its columns
// are made orthogonal in the order x, y, z, so a shear is written as the nearest rotation
// times scale. A transformation that is not all finite leaves the node unmoved.
void setTransformation(tinygltf::Node& node, const ExcTransformation& transformation, double metres)
{
    std::array<Vec3, 3> column;
    for (std::size_t c = 0; c < 3; ++c)
        column[c] = {transformation.affine()[0][c], transformation.affine()[1][c], transformation.affine()[2][c]};
    const Vec3 t = {transformation.translation()[0] * metres, transformation.translation()[1] * metres,
                    transformation.translation()[2] * metres};
    bool finite = std::all_of(t.begin(), t.end(), [](double v) { return std::isfinite(v); });
    for (const Vec3& c : column)
        finite = finite && std::all_of(c.begin(), c.end(), [](double v) { return std::isfinite(v); });
    if (!finite)
        return;

    const Vec3 x = unitOr(column[0], Vec3{0, 0, 1});
    const Vec3 y = unitOr(minus(column[1], scaled(x, dot(column[1], x))), x);
    const Vec3 z = cross(x, y);
    Vec3 scale = {std::sqrt(dot(column[0], column[0])), std::sqrt(dot(column[1], column[1])),
                  std::sqrt(dot(column[2], column[2]))};
    if (dot(column[2], z) < 0)
        scale[2] = -scale[2]; // a mirror: the rotation stays proper, the scale turns over

    // The quaternion of the rotation whose columns are x, y, z.
    const double m00 = x[0], m11 = y[1], m22 = z[2];
    std::array<double, 4> q; // x, y, z, w
    const double trace = m00 + m11 + m22;
    if (trace > 0) {
        const double s = std::sqrt(trace + 1.0) * 2;
        q = {(y[2] - z[1]) / s, (z[0] - x[2]) / s, (x[1] - y[0]) / s, 0.25 * s};
    } else if (m00 > m11 && m00 > m22) {
        const double s = std::sqrt(1.0 + m00 - m11 - m22) * 2;
        q = {0.25 * s, (y[0] + x[1]) / s, (z[0] + x[2]) / s, (y[2] - z[1]) / s};
    } else if (m11 > m22) {
        const double s = std::sqrt(1.0 + m11 - m00 - m22) * 2;
        q = {(y[0] + x[1]) / s, 0.25 * s, (z[1] + y[2]) / s, (z[0] - x[2]) / s};
    } else {
        const double s = std::sqrt(1.0 + m22 - m00 - m11) * 2;
        q = {(z[0] + x[2]) / s, (z[1] + y[2]) / s, 0.25 * s, (x[1] - y[0]) / s};
    }
    const double length = std::sqrt(q[0] * q[0] + q[1] * q[1] + q[2] * q[2] + q[3] * q[3]);
    for (double& v : q)
        v /= length;

    if (t != Vec3{0, 0, 0})
        node.translation.assign(t.begin(), t.end());
    if (q != std::array<double, 4>{0, 0, 0, 1})
        node.rotation.assign(q.begin(), q.end());
    if (scale != Vec3{1, 1, 1})
        node.scale.assign(scale.begin(), scale.end());
}

void flagHidden(tinygltf::Node& node)
{
    tinygltf::Value::Object extras;
    extras["hidden"] = tinygltf::Value(true);
    node.extras = tinygltf::Value(std::move(extras));
}

std::size_t faceCount(const ExcVisuNodes& nodes)
{
    std::size_t count = 0;
    for (const auto& node : nodes) {
        if (!node)
            continue;
        if (node->mesh())
            count += node->mesh()->faces().size();
        count += faceCount(node->childNodes());
    }
    return count;
}

// The nodes of one visualization, converted once and placed as often as the structure asks:
// children are indices into `nodes`.
struct Picture
{
    std::vector<tinygltf::Node> nodes;
    std::vector<int> roots;
    double metres = 1e-3;
};

// References nested deeper than this are refused: real assemblies nest a few dozen levels.
constexpr std::size_t maxReferenceDepth = 1000;

class SceneBuilder
{
public:
    SceneBuilder(const GltfInput& input, const GltfOptions& options) : m_input(input), m_builder(options)
    {
        for (const auto& block : input.blockVisualizations) {
            if (block && block->visualizationData())
                m_blockData[block->blockId()] = block->visualizationData().get();
        }
        for (const auto& [id, data] : m_blockData)
            m_totalFaces += faceCount(data->sceneRootNodes());
        if (input.rootAssemblyVisualization && input.rootAssemblyVisualization->visualizationData())
            m_totalFaces += faceCount(input.rootAssemblyVisualization->visualizationData()->sceneRootNodes());
    }

    tinygltf::Model& build()
    {
#if HRM_GLTF_HAS_STRUCTURE
        const ExcProductStructure* structure = m_input.productStructure.get();
        const EWorldOrientation up = structure ? structure->worldOrientation() : EWorldOrientation::Unknown;
#else
        const void* structure = nullptr;
        const EWorldOrientation up = EWorldOrientation::Unknown;
#endif
        tinygltf::Node root;
        root.name = "model";
        const double half = std::sqrt(0.5);
        if (up == EWorldOrientation::UpX)
            root.rotation = {0, 0, half, half}; // +X turns to +Y
        else if (up != EWorldOrientation::UpY)
            root.rotation = {-half, 0, 0, half}; // +Z turns to +Y
        const int rootIndex = m_builder.addNode(std::move(root));

        std::vector<int> children;
        if (structure) {
#if HRM_GLTF_HAS_STRUCTURE
            std::vector<uint64_t> path;
            for (const auto& reference : structure->rootBlockReferences()) {
                if (reference)
                    add(children, placeReference(*reference, path));
            }
#endif
        } else {
            for (const auto& [id, data] : m_blockData)
                add(children, place(picture(id, *data), "block " + std::to_string(id)));
        }
        const auto& assembly = m_input.rootAssemblyVisualization;
        if (assembly && assembly->visualizationData())
            add(children, place(convert(*assembly->visualizationData()), "root assembly"));
        model().nodes[rootIndex].children = std::move(children);

        tinygltf::Scene scene;
        scene.nodes = {rootIndex};
        model().scenes.push_back(std::move(scene));
        model().defaultScene = 0;
        return model();
    }

private:
    tinygltf::Model& model() { return m_builder.model(); }
    const GltfOptions& options() const { return m_builder.options(); }

    static void add(std::vector<int>& children, int node)
    {
        if (node >= 0)
            children.push_back(node);
    }

    void reportProgress()
    {
        if (options().progress && m_totalFaces > 0)
            options().progress(std::min(1.0, double(m_builder.facesDone()) / double(m_totalFaces)));
    }

    // The picture of block `id`, converted on first use.
    const Picture& picture(uint64_t id, const ExcVisualizationData& data)
    {
        auto found = m_pictures.find(id);
        if (found == m_pictures.end())
            found = m_pictures.emplace(id, convert(data)).first;
        return found->second;
    }

    Picture convert(const ExcVisualizationData& data)
    {
        Picture picture;
        picture.metres = metresPerUnit(data.units());
        for (const auto& node : data.sceneRootNodes()) {
            if (node)
                add(picture.roots, convert(*node, Style(), picture));
        }
        return picture;
    }

    // Converts `node` and its children into `picture`; returns its index there, or -1 when it
    // is left out (hidden).
    int convert(const ExcVisuNode& node, Style style, Picture& picture)
    {
        const bool hidden = node.attributes() && node.attributes()->hidden();
        if (hidden && !options().keepHidden)
            return -1;
        if (const auto& attributes = node.attributes()) {
            if (attributes->color().hasRGB())
                style.color = &attributes->color();
            for (const auto& material : attributes->materials()) {
                if (material) {
                    style.material = material.get();
                    break;
                }
            }
        }
        tinygltf::Node out;
        out.name = toUtf8(node.groupName());
        if (node.transformation())
            setTransformation(out, *node.transformation(), 1.0);
        if (hidden)
            flagHidden(out);
        out.mesh = m_builder.addMesh(node, style);
        reportProgress();
        const int index = static_cast<int>(picture.nodes.size());
        picture.nodes.push_back(std::move(out));
        std::vector<int> children;
        for (const auto& child : node.childNodes()) {
            if (child)
                add(children, convert(*child, style, picture));
        }
        picture.nodes[index].children = std::move(children);
        return index;
    }

    // Places a copy of `picture` in the scene: a node scaled to metres over copies of its
    // nodes. Returns the node's index.
    int place(const Picture& picture, const std::string& name)
    {
        tinygltf::Node top;
        top.name = name;
        if (picture.metres != 1.0)
            top.scale = {picture.metres, picture.metres, picture.metres};
        const int topIndex = m_builder.addNode(std::move(top));
        const int first = static_cast<int>(model().nodes.size());
        for (tinygltf::Node node : picture.nodes) {
            for (int& child : node.children)
                child += first;
            m_builder.addNode(std::move(node));
        }
        for (int root : picture.roots)
            model().nodes[topIndex].children.push_back(root + first);
        return topIndex;
    }

#if HRM_GLTF_HAS_STRUCTURE
    // Places `reference` and what it holds: the picture of its block and the block's own
    // references. Returns its node, or -1 when it is left out.
    int placeReference(const ExcBlockReference& reference, std::vector<uint64_t>& path)
    {
        const uint64_t id = reference.blockId();
        const bool hidden = reference.isHidden();
        if (reference.isSuppressed() || (hidden && !options().keepHidden) ||
            std::find(path.begin(), path.end(), id) != path.end())
            return -1;
        if (path.size() >= maxReferenceDepth)
            throw std::length_error("glTF export: block references nested too deep");
        const auto block = m_input.productStructure->getBlockById(id);
        tinygltf::Node node;
        node.name = toUtf8(!reference.name().empty() || !block ? reference.name() : block->name());
        setTransformation(node, reference.transformation(), metresPerUnit(m_input.productStructure->units()));
        if (hidden)
            flagHidden(node);
        const int index = m_builder.addNode(std::move(node));

        std::vector<int> children;
        const auto data = m_blockData.find(id);
        if (data != m_blockData.end())
            add(children, place(picture(id, *data->second), "visualization"));
        if (block) {
            path.push_back(id);
            for (const auto& child : block->blockReferences()) {
                if (child)
                    add(children, placeReference(*child, path));
            }
            path.pop_back();
        }
        model().nodes[index].children = std::move(children);
        return index;
    }
#endif

    const GltfInput& m_input;
    ModelBuilder m_builder;
    std::map<uint64_t, const ExcVisualizationData*> m_blockData;
    std::map<uint64_t, Picture> m_pictures;
    std::size_t m_totalFaces = 0;
};

// Writes the .glb of `input` to `out`.
void writeGlb(std::ostream& out, const GltfInput& input, const GltfOptions& options)
{
    SceneBuilder builder(input, options);
    tinygltf::Model& model = builder.build();
    tinygltf::TinyGLTF writer;
    writer.WriteGltfSceneToStream(&model, out, false, true);
    if (options.progress)
        options.progress(1.0);
}

} // namespace
} // namespace gltf

std::vector<unsigned char> toGlb(const GltfInput& input, const GltfOptions& options)
{
    std::ostringstream out;
    gltf::writeGlb(out, input, options);
    const std::string bytes = std::move(out).str();
    return std::vector<unsigned char>(bytes.begin(), bytes.end());
}

void writeGlb(const std::string& path, const GltfInput& input, const GltfOptions& options)
{
    std::ofstream out(path, std::ios::binary);
    if (out)
        gltf::writeGlb(out, input, options);
    if (!out.flush())
        throw std::runtime_error("glTF export: cannot write " + path);
}

} // namespace hrm
