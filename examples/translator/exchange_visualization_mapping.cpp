// The tessellation and the assembly tree as visualization objects.

#include "exchange_mapping.h"

#include "frame.h"

#include <algorithm>
#include <cmath>

namespace translator {
namespace {

// A polygon of a face is one triangle, tagged as a list of triangles is in graphics APIs.
constexpr int32_t trianglesTag = 4;

std::wstring meshId(std::size_t block)
{
    return L"mesh-" + std::to_wstring(blockId(block));
}

uint16_t channel(float value)
{
    return static_cast<uint16_t>(std::lround(std::clamp(value, 0.0f, 1.0f) * 255.0f));
}

std::shared_ptr<hrm::ExcVisuFace> visuFace(cad::FaceMesh face, const std::optional<cad::Rgba>& partColor)
{
    auto visu = std::make_shared<hrm::ExcVisuFace>();
    std::vector<hrm::ExcVisuFace::Polygon> polygons(face.triangles.size() / 3);
    for (std::size_t t = 0; t < polygons.size(); ++t) {
        polygons[t].tag = trianglesTag;
        polygons[t].indices.assign(face.triangles.begin() + 3 * t, face.triangles.begin() + 3 * t + 3);
    }
    visu->setVertices(std::move(face.vertices));
    visu->setNormals(std::move(face.normals));
    visu->setPolygons(std::move(polygons));
    if (const std::optional<cad::Rgba>& color = face.color ? face.color : partColor)
        visu->setColor(colorOf(*color));
    const std::wstring id = elementId(cad::ShapeRef::Kind::Face, face.face);
    visu->setId(id);
    visu->setMechanicalId(id);
    return visu;
}

std::shared_ptr<hrm::ExcVisuEdge> visuEdge(cad::EdgeLine line)
{
    auto edge = std::make_shared<hrm::ExcVisuEdge>();
    std::vector<int32_t> indices(line.points.size() / 3);
    for (std::size_t i = 0; i < indices.size(); ++i)
        indices[i] = static_cast<int32_t>(i);
    edge->setPoints(std::move(line.points));
    edge->setLineIndices(std::move(indices));
    edge->setLineType(hrm::ExcVisuEdge::ELineType::LineStrip);
    edge->setColor(hrm::ExcColor(0, 0, 0));
    edge->setMechanicalId(elementId(cad::ShapeRef::Kind::Edge, line.edge));
    return edge;
}

// A leaf over a part's mesh, named as the part.
std::shared_ptr<hrm::ExcVisuNode> meshLeaf(const std::string& name, std::shared_ptr<hrm::ExcVisuMesh> mesh)
{
    auto leaf = std::make_shared<hrm::ExcVisuNode>();
    leaf->setLeaf(true);
    leaf->setType(hrm::ExcVisuNode::EType::Mesh);
    leaf->setGroupName(wide(name));
    leaf->setMesh(std::move(mesh));
    return leaf;
}

std::shared_ptr<hrm::ExcVisuNode> instanceNode(const cad::Structure& structure, const cad::Component& component)
{
    const cad::Block& block = structure.blocks[component.block];
    auto node = std::make_shared<hrm::ExcVisuNode>();
    node->setType(hrm::ExcVisuNode::EType::Group);
    node->setGroupName(wide(component.name));
    node->setTransformation(std::make_shared<hrm::ExcTransformation>(transformationOf(component.placement)));
    if (const std::optional<cad::Rgba>& color = component.color ? component.color : block.color) {
        auto attributes = std::make_shared<hrm::ExcVisuAttributes>();
        attributes->setColor(colorOf(*color));
        node->setAttributes(attributes);
    }
    if (block.isAssembly) {
        for (const cad::Component& child : block.components)
            node->addChildNode(instanceNode(structure, child));
        return node;
    }
    auto mesh = std::make_shared<hrm::ExcVisuMesh>();
    mesh->setDisplayName(wide(block.name));
    mesh->setId(meshId(component.block));
    mesh->setGeometryType(hrm::EVisuGeometryType::Part);
    node->addChildNode(meshLeaf(block.name, mesh));
    return node;
}

} // namespace

std::wstring elementId(cad::ShapeRef::Kind kind, int index)
{
    return std::wstring(1, static_cast<wchar_t>(kind)) + std::to_wstring(index);
}

std::wstring wide(const std::string& text)
{
    return hrm::fromUtf8(text);
}

hrm::ExcTransformation transformationOf(const cad::Placement& placement)
{
    hrm::ExcTransformation transformation;
    for (std::size_t row = 0; row < 3; ++row)
        transformation.affine()[row].set(placement.rotation[3 * row], placement.rotation[3 * row + 1], placement.rotation[3 * row + 2]);
    transformation.translation().set(placement.translation[0], placement.translation[1], placement.translation[2]);
    return transformation;
}

hrm::ExcColor colorOf(const cad::Rgba& color)
{
    return hrm::ExcColor(channel(color.red), channel(color.green), channel(color.blue), channel(color.alpha));
}

std::shared_ptr<hrm::ExcBlockVisualization> blockVisualization(const cad::Structure& structure, std::size_t block,
                                                               cad::BlockMesh mesh)
{
    const cad::Block& part = structure.blocks[block];
    auto visuMesh = std::make_shared<hrm::ExcVisuMesh>();
    visuMesh->setDisplayName(wide(part.name));
    visuMesh->setId(meshId(block));
    visuMesh->setGeometryType(hrm::EVisuGeometryType::Part);
    hrm::ExcVisuFaces faces;
    faces.reserve(mesh.faces.size());
    for (cad::FaceMesh& face : mesh.faces)
        faces.push_back(visuFace(std::move(face), part.color));
    visuMesh->setFaces(std::move(faces));
    hrm::ExcVisuEdges edges;
    edges.reserve(mesh.edges.size());
    for (cad::EdgeLine& line : mesh.edges)
        edges.push_back(visuEdge(std::move(line)));
    visuMesh->setEdges(std::move(edges));

    auto root = std::make_shared<hrm::ExcVisuNode>();
    root->setType(hrm::ExcVisuNode::EType::Root);
    root->setGroupName(wide(part.name));
    root->addChildNode(meshLeaf(part.name, visuMesh));

    auto data = std::make_shared<hrm::ExcVisualizationData>();
    data->setUnits(hrm::ELengthUnitType::Millimeter);
    data->addSceneRootNode(root);
    auto object = std::make_shared<hrm::ExcBlockVisualization>();
    object->setBlockId(blockId(block));
    object->setVisualizationData(data);
    return object;
}

std::shared_ptr<hrm::ExcRootAssemblyVisualization> rootVisualization(const cad::Structure& structure)
{
    auto root = std::make_shared<hrm::ExcVisuNode>();
    root->setType(hrm::ExcVisuNode::EType::Root);
    root->setGroupName(wide(structure.productName));
    for (const cad::Component& component : structure.roots)
        root->addChildNode(instanceNode(structure, component));
    auto data = std::make_shared<hrm::ExcVisualizationData>();
    data->setUnits(hrm::ELengthUnitType::Millimeter);
    data->addSceneRootNode(root);
    auto object = std::make_shared<hrm::ExcRootAssemblyVisualization>();
    object->setVisualizationData(data);
    return object;
}

} // namespace translator
