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
//
// samples::full:: holds one small object of every class of the family with every member away
// from its default (what the tests and the fuzz seeds use).

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

// One object of each class of the family with every member set away from its default, small
// enough for a test or a fuzz seed: samples::full::block() holds all of them.
namespace full {

inline std::shared_ptr<ExcVisuFont> font()
{
    auto font = std::make_shared<ExcVisuFont>();
    font->setName(L"Arial \u00e9");
    font->setTextHeight(3.5);
    font->setFontPitch(ExcVisuFont::EPitch::Variable);
    font->setSpacingFactor(1.25);
    font->setWidthScalingFactor(0.75);
    return font;
}

inline std::shared_ptr<ExcVisuLineAttribute> lineAttribute()
{
    auto attribute = std::make_shared<ExcVisuLineAttribute>();
    attribute->setLineWeight(0.35);
    attribute->setLineStyle(ExcVisuLineAttribute::ELineStyle::PhantomLine);
    return attribute;
}

inline std::shared_ptr<ExcVisuTexture> texture()
{
    auto texture = std::make_shared<ExcVisuTexture>();
    texture->setName(L"grain");
    texture->setSwapUV(true);
    texture->setMethod(ExcVisuTexture::EMethod::Replace);
    texture->setWrapMode(1, ExcVisuTexture::EWrapMode::Mirror);
    texture->setMappingMode(ExcVisuTexture::EMappingMode::Cylindrical);
    texture->setFilter(ExcVisuTexture::EFilter::NearestMipmapLinear);
    texture->setAlpha(0.5);
    texture->setFile(L"C:\\textures\\oak.png");
    texture->setNameUV(L"uv2");
    texture->setUVTranslation(0, 0.25);
    texture->setUVScale(1, 2.0);
    texture->setUVRotation(2, 1.5);
    texture->setUseMaterial(true);
    return texture;
}

inline std::shared_ptr<ExcVisuMaterial> material()
{
    auto material = std::make_shared<ExcVisuMaterial>();
    material->setName(L"Oak");
    material->setColor(ExcVisuMaterial::EColorType::Specular, {0.5, 0.25, 0.125, 1.0});
    material->setColor(ExcVisuMaterial::EColorType::Ambient, {0.1, 0.1, 0.1, 0.5});
    material->setShininess(32.0);
    material->setBump(L"bump.png");
    material->setBumpFactor(0.5);
    material->setNormalMap(L"normal.png");
    material->addTexture(ExcVisuMaterial::ETextureType::DiffuseColor, texture());
    return material;
}

inline std::shared_ptr<ExcVisuAttributes> attributes()
{
    auto attributes = std::make_shared<ExcVisuAttributes>();
    attributes->setFont(font());
    attributes->setColor(ExcColor(1, 2, 3, 4));
    attributes->setHidden(true);
    attributes->addMaterial(material());
    attributes->setLineAttribute(lineAttribute());
    return attributes;
}

// Names an item after `what`.
template <class T>
void name(T& item, const wchar_t* what)
{
    item.setDisplayName(std::wstring(what) + L" \u00fc");
    item.setId(std::wstring(what) + L"-1");
    item.setMechanicalId(std::wstring(L"mech-") + what);
}

inline std::shared_ptr<ExcVisuView> view()
{
    auto view = std::make_shared<ExcVisuView>();
    name(*view, L"view");
    view->setHidden(true);
    view->setOrigin(ExcVector3d(1.0, 2.0, 3.0));
    view->setDirectionU(ExcVector3d(1.0, 0.0, 0.0));
    view->setDirectionV(ExcVector3d(0.0, 1.0, 0.0));
    view->setAnnotationIds({L"a1", L"a2"});
    return view;
}

inline std::shared_ptr<ExcCamera> camera()
{
    auto camera = std::make_shared<ExcCamera>();
    camera->setType(ExcCamera::EType::Perspective);
    camera->setName(L"Front");
    camera->setPerspectiveViewAngle(0.785);
    camera->setOrthographicZoomFactor(2.0);
    camera->setEye(ExcVector3d(0.0, -100.0, 0.0));
    camera->setTarget(ExcVector3d(0.5, 0.0, 0.0));
    camera->setUp(ExcVector3d(0.0, 0.0, 1.0));
    return camera;
}

inline std::shared_ptr<ExcClippingPlane> clippingPlane()
{
    auto plane = std::make_shared<ExcClippingPlane>();
    plane->setOrigin(ExcVector3d(0.0, 0.0, 5.0));
    plane->setU(ExcVector3d(1.0, 0.0, 0.0));
    plane->setV(ExcVector3d(0.0, 1.0, 0.0));
    plane->setCoefficients({0.0, 0.0, 1.0, -5.0});
    return plane;
}

inline std::shared_ptr<ExcVisuCapture> capture()
{
    auto capture = std::make_shared<ExcVisuCapture>();
    name(*capture, L"capture");
    capture->setHidden(true);
    capture->setActive(true);
    capture->setHiddenText(L"hidden");
    capture->setClippingPlane(clippingPlane());
    capture->setCamera(camera());
    capture->setAnnotationIds({L"a1"});
    capture->setFtaConstructedGeometryIds({L"g1", L"g2"});
    capture->setBodies({L"b1"});
    return capture;
}

inline std::shared_ptr<ExcVisuFace> face()
{
    auto face = std::make_shared<ExcVisuFace>();
    face->setVertices({0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 0.0f, 1.0f, 0.0f, 1.0f, 1.0f, -0.0f});
    face->setNormals({0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f, 0.0f, 0.0f, 1.0f});
    face->setPolygons({{4, {0, 1, 2}}, {4, {2, 1, 3}}});
    face->setColor(ExcColor(255, 0, 0));
    face->setMechanicalId(L"face-7");
    face->setId(L"7");
    return face;
}

inline std::shared_ptr<ExcVisuEdge> edge()
{
    auto edge = std::make_shared<ExcVisuEdge>();
    edge->setPoints({0.0f, 0.0f, 0.0f, 1.5f, 2.5f, -3.5f});
    edge->setLineIndices({0, 1});
    edge->setLineType(ExcVisuEdge::ELineType::LineLoopFilled);
    edge->setColor(ExcColor(0, 0, 255));
    edge->setMechanicalId(L"edge-3");
    return edge;
}

inline std::shared_ptr<ExcVisuPoints> points()
{
    auto points = std::make_shared<ExcVisuPoints>();
    points->setPoints({1.0f, 2.0f, 3.0f});
    points->setPointIndices({0});
    points->setMarkerStyle(ExcVisuPoints::EMarkerStyle::Integral);
    points->setColor(ExcColor(9, 9, 9));
    return points;
}

inline std::shared_ptr<ExcVisuText> text()
{
    auto text = std::make_shared<ExcVisuText>();
    text->setText(L"\u00d8 12 H7");
    text->setAnchorPoint(ExcVector3d(1.0, 2.0, 3.0));
    text->setDirection(ExcVector3d(1.0, 0.0, 0.0));
    text->setNormal(ExcVector3d(0.0, 0.0, 1.0));
    text->setColor(ExcColor(0, 128, 0));
    text->setFont(font());
    return text;
}

inline std::shared_ptr<ExcVisuMesh> mesh()
{
    auto mesh = std::make_shared<ExcVisuMesh>();
    name(*mesh, L"mesh");
    mesh->setGeometryType(EVisuGeometryType::Part);
    mesh->addFaces({face(), face()});
    mesh->addEdge(edge());
    return mesh;
}

inline std::shared_ptr<ExcVisuWire> wire()
{
    auto wire = std::make_shared<ExcVisuWire>();
    name(*wire, L"wire");
    wire->setGeometryType(EVisuGeometryType::Construction);
    wire->addEdges({edge()});
    return wire;
}

inline std::shared_ptr<ExcVisuPointSet> pointSet()
{
    auto set = std::make_shared<ExcVisuPointSet>();
    name(*set, L"points");
    set->setGeometryType(EVisuGeometryType::FtaConstructed);
    set->addPoints(points());
    return set;
}

inline std::shared_ptr<ExcVisuPMI> pmi()
{
    auto pmi = std::make_shared<ExcVisuPMI>();
    name(*pmi, L"pmi");
    pmi->addEdge(edge());
    pmi->addTexts({text()});
    return pmi;
}

inline std::shared_ptr<ExcVisuNode> node()
{
    auto leaf = std::make_shared<ExcVisuNode>();
    leaf->setLeaf(true);
    leaf->setType(ExcVisuNode::EType::Mesh);
    leaf->setMesh(mesh());
    auto node = std::make_shared<ExcVisuNode>();
    node->setLeaf(true);
    node->setType(ExcVisuNode::EType::GeomTolFlatness);
    node->setGroupName(L"Group");
    node->setAttributes(attributes());
    auto transformation = std::make_shared<ExcTransformation>();
    transformation->translation().set(1.0, 2.0, 3.0);
    node->setTransformation(transformation);
    node->setMesh(mesh());
    node->setWire(wire());
    node->setPmi(pmi());
    node->setPointSet(pointSet());
    node->addChildNode(leaf);
    return node;
}

inline std::shared_ptr<ExcVisualizationData> data()
{
    auto data = std::make_shared<ExcVisualizationData>();
    data->addSceneRootNode(node());
    data->setUnits(ELengthUnitType::Inch);
    data->addView(view());
    data->addCaptures({capture()});
    return data;
}


inline std::shared_ptr<ExcBlockVisualization> block()
{
    auto block = std::make_shared<ExcBlockVisualization>();
    block->setBlockId(18446744073709551615u);
    block->setVisualizationData(data());
    return block;
}

inline std::shared_ptr<ExcRootAssemblyVisualization> assembly()
{
    auto assembly = std::make_shared<ExcRootAssemblyVisualization>();
    assembly->setVisualizationData(data());
    return assembly;
}

} // namespace full

} // namespace hrm::samples
