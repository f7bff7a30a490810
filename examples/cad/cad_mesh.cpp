// Tessellating one part: triangles, normals and colours per face, edges as polylines.

#include "cad_document_impl.h"

#include <BRepAdaptor_Curve.hxx>
#include <BRepAdaptor_Surface.hxx>
#include <BRepBndLib.hxx>
#include <BRepLProp_SLProps.hxx>
#include <BRepMesh_IncrementalMesh.hxx>
#include <BRep_Tool.hxx>
#include <Bnd_Box.hxx>
#include <GCPnts_TangentialDeflection.hxx>
#include <Poly_PolygonOnTriangulation.hxx>
#include <Poly_Triangulation.hxx>
#include <Standard_Failure.hxx>
#include <TopExp.hxx>
#include <TopTools_IndexedDataMapOfShapeListOfShape.hxx>
#include <TopoDS.hxx>

#include <cmath>

namespace cad {
namespace {

// A chordal deviation for a part of this size: a thousandth of its diagonal (a tenth of a
// millimetre for a part without extent).
double automaticSag(const TopoDS_Shape& shape)
{
    Bnd_Box box;
    BRepBndLib::Add(shape, box);
    const double diagonal = box.IsVoid() ? 0.0 : std::sqrt(box.SquareExtent());
    return diagonal > 1e-3 ? diagonal * 1e-3 : 0.1;
}

void append(std::vector<float>& to, const gp_XYZ& xyz)
{
    to.push_back(static_cast<float>(xyz.X()));
    to.push_back(static_cast<float>(xyz.Y()));
    to.push_back(static_cast<float>(xyz.Z()));
}

// The colours set on the faces of a block, or on the shells and solids that hold them: a face's
// own colour wins over its container's.
std::vector<std::optional<Rgba>> faceColors(const Document::Impl& impl, const BlockShape& block)
{
    std::vector<std::optional<Rgba>> colors(static_cast<std::size_t>(block.faces.Extent()) + 1);
    TDF_LabelSequence subShapes;
    XCAFDoc_ShapeTool::GetSubShapes(block.label, subShapes);
    std::vector<bool> ownColor(colors.size(), false);
    for (const TDF_Label& label : subShapes) {
        const std::optional<Rgba> color = colorOf(*impl.colorTool, label);
        if (!color)
            continue;
        const TopoDS_Shape shape = XCAFDoc_ShapeTool::GetShape(label);
        const bool isFace = shape.ShapeType() == TopAbs_FACE;
        TopTools_IndexedMapOfShape faces;
        TopExp::MapShapes(shape, TopAbs_FACE, faces);
        for (int i = 1; i <= faces.Extent(); ++i) {
            const int index = block.faces.FindIndex(faces(i));
            if (index == 0 || (ownColor[index] && !isFace))
                continue;
            colors[index] = color;
            ownColor[index] = ownColor[index] || isFace;
        }
    }
    return colors;
}

// The triangles of one face with normals from its surface (averaged from the triangles where
// the surface has none), oriented as the face is.
std::optional<FaceMesh> faceMesh(const TopoDS_Face& face, int number)
{
    TopLoc_Location location;
    const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(face, location);
    if (triangulation.IsNull() || triangulation->NbTriangles() == 0)
        return std::nullopt;
    const gp_Trsf transformation = location.Transformation();
    const bool reversed = face.Orientation() == TopAbs_REVERSED;
    const int nodes = triangulation->NbNodes();

    FaceMesh mesh;
    mesh.face = number;
    mesh.vertices.reserve(3 * static_cast<std::size_t>(nodes));
    for (int i = 1; i <= nodes; ++i)
        append(mesh.vertices, triangulation->Node(i).Transformed(transformation).XYZ());

    mesh.normals.reserve(mesh.vertices.size());
    BRepAdaptor_Surface surface(face, false);
    BRepLProp_SLProps properties(surface, 1, 1e-9);
    const bool fromSurface = triangulation->HasUVNodes();
    if (!fromSurface && !triangulation->HasNormals())
        triangulation->ComputeNormals();
    for (int i = 1; i <= nodes; ++i) {
        gp_XYZ normal;
        bool defined = false;
        if (fromSurface) {
            const gp_Pnt2d uv = triangulation->UVNode(i);
            properties.SetParameters(uv.X(), uv.Y());
            defined = properties.IsNormalDefined();
            if (defined)
                normal = properties.Normal().XYZ();
        }
        if (!defined) {
            if (!triangulation->HasNormals())
                triangulation->ComputeNormals();
            normal = triangulation->Normal(i).Transformed(transformation).XYZ();
        }
        append(mesh.normals, reversed ? normal.Reversed() : normal);
    }

    const int triangles = triangulation->NbTriangles();
    mesh.triangles.reserve(3 * static_cast<std::size_t>(triangles));
    for (int t = 1; t <= triangles; ++t) {
        int a = 0, b = 0, c = 0;
        triangulation->Triangle(t).Get(a, b, c);
        if (reversed)
            std::swap(b, c);
        mesh.triangles.insert(mesh.triangles.end(), {a - 1, b - 1, c - 1});
    }
    return mesh;
}

// An edge as the polyline its faces' triangulations share, else its own polygon, else its
// curve sampled to the same deviations.
std::optional<EdgeLine> edgeLine(const TopoDS_Edge& edge, int number, const TopTools_ListOfShape& faces,
                                 const MeshOptions& options, double sag)
{
    if (BRep_Tool::Degenerated(edge))
        return std::nullopt;
    EdgeLine line;
    line.edge = number;
    for (const TopoDS_Shape& shape : faces) {
        TopLoc_Location location;
        const Handle(Poly_Triangulation) triangulation = BRep_Tool::Triangulation(TopoDS::Face(shape), location);
        if (triangulation.IsNull())
            continue;
        const Handle(Poly_PolygonOnTriangulation)& polygon = BRep_Tool::PolygonOnTriangulation(edge, triangulation, location);
        if (polygon.IsNull())
            continue;
        const gp_Trsf transformation = location.Transformation();
        for (int i = 1; i <= polygon->NbNodes(); ++i)
            append(line.points, triangulation->Node(polygon->Node(i)).Transformed(transformation).XYZ());
        return line;
    }
    TopLoc_Location location;
    const Handle(Poly_Polygon3D)& polygon = BRep_Tool::Polygon3D(edge, location);
    if (!polygon.IsNull()) {
        const gp_Trsf transformation = location.Transformation();
        for (int i = 1; i <= polygon->NbNodes(); ++i)
            append(line.points, polygon->Nodes().Value(i).Transformed(transformation).XYZ());
        return line;
    }
    if (!BRep_Tool::IsGeometric(edge))
        return std::nullopt;
    BRepAdaptor_Curve curve(edge);
    GCPnts_TangentialDeflection sampler(curve, options.angle, sag);
    for (int i = 1; i <= sampler.NbPoints(); ++i)
        append(line.points, sampler.Value(i).XYZ());
    if (line.points.size() < 6)
        return std::nullopt;
    return line;
}

} // namespace

BlockMesh Document::mesh(std::size_t block, const MeshOptions& options, const ProgressCallback& progress) const
{
    BlockMesh result;
    if (block >= m_impl->shapes.size() || m_impl->structure.blocks[block].isAssembly)
        return result;
    const BlockShape& shape = m_impl->shapes[block];
    if (shape.shape.IsNull())
        return result;

    const double sag = options.sag > 0 ? options.sag : automaticSag(shape.shape);
    if (shape.faces.IsEmpty())
        return result;
    try {
        IMeshTools_Parameters parameters;
        parameters.Deflection = sag;
        parameters.Angle = options.angle;
        parameters.InParallel = true;
        BRepMesh_IncrementalMesh mesher;
        mesher.SetShape(shape.shape);
        mesher.ChangeParameters() = parameters;
        Handle(ProgressForwarder) indicator = new ProgressForwarder(progress);
        mesher.Perform(indicator->Start());
    } catch (const Standard_Failure& failure) {
        throw Error(std::string("OpenCASCADE failed tessellating ") + m_impl->structure.blocks[block].name + ": " +
                    failure.GetMessageString());
    }

    const std::vector<std::optional<Rgba>> colors = faceColors(*m_impl, shape);
    for (int i = 1; i <= shape.faces.Extent(); ++i) {
        std::optional<FaceMesh> face = faceMesh(TopoDS::Face(shape.faces(i)), i);
        if (!face) {
            ++result.facesWithoutTriangles;
            continue;
        }
        face->color = colors[static_cast<std::size_t>(i)];
        result.triangleCount += face->triangles.size() / 3;
        result.faces.push_back(std::move(*face));
    }

    TopTools_IndexedDataMapOfShapeListOfShape facesOfEdges;
    TopExp::MapShapesAndAncestors(shape.shape, TopAbs_EDGE, TopAbs_FACE, facesOfEdges);
    const TopTools_ListOfShape noFaces;
    for (int i = 1; i <= shape.edges.Extent(); ++i) {
        const TopoDS_Edge& edge = TopoDS::Edge(shape.edges(i));
        const TopTools_ListOfShape* faces = facesOfEdges.Seek(edge);
        std::optional<EdgeLine> line = edgeLine(edge, i, faces ? *faces : noFaces, options, sag);
        if (line)
            result.edges.push_back(std::move(*line));
    }
    return result;
}

} // namespace cad
