#pragma once

// What the reference translator takes from a CAD file, in plain C++: the assembly tree, the
// tessellation of each part and the semantic PMI. cad::Document fills it on OpenCASCADE; the
// translator maps it onto the exchange classes. Nothing here knows how it will travel.
//
// Lengths are millimetres (OpenCASCADE converts every file to its session unit). Colours are
// sRGB channels from 0 to 1. The PMI kinds keep OpenCASCADE's own enumerations.

#include <XCAFDimTolObjects_DatumSingleModif.hxx>
#include <XCAFDimTolObjects_DimensionQualifier.hxx>
#include <XCAFDimTolObjects_DimensionType.hxx>
#include <XCAFDimTolObjects_GeomToleranceMatReqModif.hxx>
#include <XCAFDimTolObjects_GeomToleranceModif.hxx>
#include <XCAFDimTolObjects_GeomToleranceType.hxx>
#include <XCAFDimTolObjects_GeomToleranceTypeValue.hxx>
#include <XCAFDimTolObjects_GeomToleranceZoneModif.hxx>

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace cad {

// A colour: red, green, blue and alpha as sRGB values from 0 to 1.
struct Rgba
{
    float red = 0, green = 0, blue = 0, alpha = 1;
};

// Where a component sits in its parent: point' = rotation * point + translation, the rotation
// given row by row.
struct Placement
{
    std::array<double, 9> rotation{1, 0, 0, 0, 1, 0, 0, 0, 1};
    std::array<double, 3> translation{0, 0, 0};
};

// One instance of a block inside an assembly, or at the top of the model.
struct Component
{
    std::size_t block = 0;      // index into Structure::blocks
    std::string name;
    std::string entry;          // the document's label entry ("0:1:1:1:2"), unique in the file
    Placement placement;
    std::optional<Rgba> color;  // the instance's own colour, when it has one
};

// A shape definition: a part with geometry, or an assembly of components.
struct Block
{
    std::string name;
    std::string entry;
    bool isAssembly = false;
    std::vector<Component> components;
    std::size_t faceCount = 0;  // faces of a part's shape; its faces are numbered 1..faceCount
    std::size_t edgeCount = 0;  // edges of a part's shape, numbered 1..edgeCount
    std::optional<Rgba> color;
};

// The assembly tree: every block once, and the components at the top.
struct Structure
{
    std::string productName;
    std::vector<Block> blocks;
    std::vector<Component> roots;
};

// The triangles of one face, in the block's coordinates.
struct FaceMesh
{
    int face = 0;                     // the face's number in its block
    std::vector<float> vertices;      // x, y, z per vertex
    std::vector<float> normals;       // a unit normal per vertex
    std::vector<int32_t> triangles;   // three vertex indices per triangle, counter-clockwise seen from outside
    std::optional<Rgba> color;
};

// One edge as a polyline.
struct EdgeLine
{
    int edge = 0;                     // the edge's number in its block
    std::vector<float> points;        // x, y, z per point
};

// The tessellation of one part.
struct BlockMesh
{
    std::vector<FaceMesh> faces;
    std::vector<EdgeLine> edges;
    std::size_t triangleCount = 0;
    std::size_t facesWithoutTriangles = 0; // faces the mesher could not triangulate
};

// How finely to tessellate.
struct MeshOptions
{
    double sag = 0;                   // chordal deviation in millimetres; 0 picks one per part
    double angle = 0.5;               // angular deviation in radians
};

// A topological element a PMI annotation applies to.
struct ShapeRef
{
    enum class Kind : char
    {
        Face = 'f',
        Edge = 'e',
        Vertex = 'v',
        Body = 'b',
    };
    std::size_t block = 0;
    Kind kind = Kind::Face;
    int index = 0;                    // its number in the block (0 for a whole body)
};

// A datum feature ("A").
struct Datum
{
    std::string entry;
    std::string label;
    std::vector<ShapeRef> shapes;
};

// A dimension with its value and tolerance.
struct Dimension
{
    std::string entry;
    XCAFDimTolObjects_DimensionType type = XCAFDimTolObjects_DimensionType_Location_None;
    XCAFDimTolObjects_DimensionQualifier qualifier = XCAFDimTolObjects_DimensionQualifier_None;
    double value = 0;
    bool hasPlusMinus = false;        // upperTolerance / lowerTolerance hold the tolerance
    double upperTolerance = 0;        // as OpenCASCADE gives them: the lower one is a magnitude
    double lowerTolerance = 0;
    bool hasRange = false;            // lowerBound / upperBound hold the limits
    double lowerBound = 0;
    double upperBound = 0;
    int decimals = -1;                // digits after the decimal point, -1 when not given
    std::vector<ShapeRef> shapes;
};

// One compartment of a datum reference frame: a datum and its modifiers.
struct DatumReference
{
    std::string label;
    int position = 0;                 // 1 primary, 2 secondary, 3 tertiary
    std::vector<XCAFDimTolObjects_DatumSingleModif> modifiers;
};

// A geometric tolerance with its feature control frame.
struct GeomTolerance
{
    std::string entry;
    XCAFDimTolObjects_GeomToleranceType type = XCAFDimTolObjects_GeomToleranceType_None;
    XCAFDimTolObjects_GeomToleranceTypeValue valueType = XCAFDimTolObjects_GeomToleranceTypeValue_None;
    double value = 0;
    XCAFDimTolObjects_GeomToleranceMatReqModif materialModifier = XCAFDimTolObjects_GeomToleranceMatReqModif_None;
    XCAFDimTolObjects_GeomToleranceZoneModif zoneModifier = XCAFDimTolObjects_GeomToleranceZoneModif_None;
    double zoneValue = 0;
    std::vector<XCAFDimTolObjects_GeomToleranceModif> modifiers;
    std::vector<DatumReference> datums; // in the frame's order
    std::vector<ShapeRef> shapes;
};

// The semantic PMI of a file.
struct Pmi
{
    std::vector<Datum> datums;
    std::vector<Dimension> dimensions;
    std::vector<GeomTolerance> tolerances;
};

} // namespace cad
