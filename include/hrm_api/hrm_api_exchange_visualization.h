#pragma once

/// @file
/// Visualization data: the display-ready scene graph of a translated model, and the two
/// exchange objects that carry it, ExcBlockVisualization (one block of the product structure)
/// and ExcRootAssemblyVisualization (the assembly as a whole). Both always travel as compressed
/// binary JSON in shared memory.
///
/// The scene graph is a tree of nodes whose leaves hold meshes (faces and edges), wires, point
/// sets and PMI graphics. Tessellation travels packed: the little-endian bytes of 32-bit floats
/// and integers as one Base64 string per array, written only when the array is not empty.
///
/// Reading and writing follow the rules of hrm_api_exchange_visualization_attributes.h: lenient
/// reading, null children and empty lists left out, lists read appended to those held (read
/// into a fresh object to get exactly what a document holds), equality as the same JSON
/// (packed arrays compare bit for bit).

#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_object.h>
#include <hrm_api/hrm_api_exchange_visualization_attributes.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// What a piece of geometry is for. Travels as "unknown", "part", "construction",
/// "fta_constructed".
enum class HRM_API_TYPE EVisuGeometryType : int32_t
{
    Unknown = 0,
    Part = 1,
    Construction = 2,
    FtaConstructed = 3,
};

/// One face of a mesh: {"vertices", "normals", "polygons", "color", "mechanical_id", "id"}.
/// Vertices and normals are x, y, z of each vertex in turn. Polygons pack as one integer
/// array: for each polygon its tag, its index count and its indices. On reading, a polygon
/// starts only where at least three integers remain, so a last polygon without indices is not
/// read back, a payload of exactly 2 integers reads nothing, and fewer than 2 read no polygons.
class HRM_API ExcVisuFace : public IJsonObject
{
public:
    /// A polygon: a tag (its meaning is the producer's; the library only carries it) and the
    /// indices of its vertices.
    struct Polygon
    {
        int32_t tag = 0; ///< The producer's tag of the polygon.
        std::vector<int32_t> indices; ///< The indices of its vertices.

        /// Whether tag and indices are equal.
        bool operator==(const Polygon& other) const { return tag == other.tag && indices == other.indices; }
        bool operator!=(const Polygon& other) const { return !(*this == other); }
    };

    /// x, y, z of each vertex in turn.
    const std::vector<float>& vertices() const { return m_vertices; }
    void setVertices(std::vector<float> vertices) { m_vertices = std::move(vertices); }
    /// x, y, z of the normal at each vertex in turn.
    const std::vector<float>& normals() const { return m_normals; }
    void setNormals(std::vector<float> normals) { m_normals = std::move(normals); }
    /// The polygons, by the indices of their vertices.
    const std::vector<Polygon>& polygons() const { return m_polygons; }
    /// Appends a polygon.
    void addPolygon(Polygon polygon) { m_polygons.push_back(std::move(polygon)); }
    /// Replaces the polygons.
    void setPolygons(std::vector<Polygon> polygons) { m_polygons = std::move(polygons); }
    /// The face's colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// The id of the mechanical data the face shows.
    const std::wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const std::wstring& id) { m_mechanicalId = id; }
    /// The face's own id.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuFace& other) const;
    bool operator!=(const ExcVisuFace& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
    template <class Members>
    void packedPolygons(Members& m);

    std::vector<float> m_vertices;
    std::vector<float> m_normals;
    std::vector<Polygon> m_polygons;
    ExcColor m_color;
    std::wstring m_mechanicalId;
    std::wstring m_id;
};

/// A polyline or set of lines: {"points", "line_indices", "line_type", "color",
/// "mechanical_id"}. Points are x, y, z of each point in turn.
class HRM_API ExcVisuEdge : public IJsonObject
{
public:
    /// How the points connect.
    enum class HRM_API_TYPE ELineType : int32_t
    {
        Unknown = 0,
        LineStrip = 1,
        LineLoop = 2,
        LineLoopFilled = 3,
    };

    /// x, y, z of each point in turn.
    const std::vector<float>& points() const { return m_points; }
    void setPoints(std::vector<float> points) { m_points = std::move(points); }
    /// The indices of the points that the lines connect.
    const std::vector<int32_t>& lineIndices() const { return m_lineIndices; }
    void setLineIndices(std::vector<int32_t> indices) { m_lineIndices = std::move(indices); }
    /// How the points connect.
    ELineType lineType() const { return m_lineType; }
    void setLineType(ELineType type) { m_lineType = type; }
    /// The edge's colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// The id of the mechanical data the edge shows.
    const std::wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const std::wstring& id) { m_mechanicalId = id; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuEdge& other) const;
    bool operator!=(const ExcVisuEdge& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::vector<float> m_points;
    std::vector<int32_t> m_lineIndices;
    ELineType m_lineType = ELineType::Unknown;
    ExcColor m_color;
    std::wstring m_mechanicalId;
};

/// Marked points: {"points", "point_indices", "marker_style", "color"}, packed as an edge's
/// points and line indices are.
class HRM_API ExcVisuPoints : public IJsonObject
{
public:
    /// The marker drawn at each point. The values jump from 36 to 2001.
    enum class HRM_API_TYPE EMarkerStyle : int32_t
    {
        NotUsed = 0,
        Cross = 1,
        Plus = 2,
        Concentric = 3,
        Coincident = 4,
        FullCircle = 5,
        FullSquare = 6,
        Star = 7,
        Dot = 8,
        SmallDot = 9,
        Misc1 = 10,
        Misc2 = 11,
        FullCircle2 = 12,
        FullSquare2 = 13,
        OpenArrow = 14,
        UnfilledArrow = 15,
        BlankedArrow = 16,
        FilledArrow = 17,
        UnfilledCircle = 18,
        BlankedCircle = 19,
        FilledCircle = 20,
        CrossedCircle = 21,
        BlankedSquare = 22,
        FilledSquare = 23,
        BlankedTriangle = 24,
        FilledTriangle = 25,
        ManipulatorSquare = 26,
        ManipulatorDiamond = 27,
        ManipulatorCircle = 28,
        ManipulatorTriangle = 29,
        DoubleOpenArrow = 30,
        Wave = 31,
        DoubleFilledArrow = 32,
        FullDoubleRotateArrowBlackBorder = 33,
        FullSquareBlackBorder = 34,
        FullDiamondBlackBorder = 35,
        FullCircleBlackBorder = 36,
        DoubleUnfilledArrow = 2001,
        DoubleBlankedArrow = 2002,
        ForeSlash = 2003,
        BackSlash = 2004,
        Integral = 2005,
        UnfilledDot = 2006,
        FilledDot = 2007,
        UnfilledSquare = 2008,
        TopOpenArrow = 2009,
        BottomOpenArrow = 2010,
        TopFilledArrow = 2011,
        BottomFilledArrow = 2012,
        UnfilledTriangle = 2013,
    };

    /// x, y, z of each point in turn.
    const std::vector<float>& points() const { return m_points; }
    void setPoints(std::vector<float> points) { m_points = std::move(points); }
    /// The indices of the points to show.
    const std::vector<int32_t>& pointIndices() const { return m_pointIndices; }
    void setPointIndices(std::vector<int32_t> indices) { m_pointIndices = std::move(indices); }
    /// How each point is drawn.
    EMarkerStyle markerStyle() const { return m_markerStyle; }
    void setMarkerStyle(EMarkerStyle style) { m_markerStyle = style; }
    /// The points' colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuPoints& other) const;
    bool operator!=(const ExcVisuPoints& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::vector<float> m_points;
    std::vector<int32_t> m_pointIndices;
    EMarkerStyle m_markerStyle = EMarkerStyle::NotUsed;
    ExcColor m_color;
};

/// A placed text: {"text", "anchor_point", "direction", "normal", "color", "font"}; the font
/// is shared and may be null.
class HRM_API ExcVisuText : public IJsonObject
{
public:
    /// The text itself.
    const std::wstring& text() const { return m_text; }
    void setText(const std::wstring& text) { m_text = text; }
    /// Where the text is anchored.
    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }
    /// The direction the text runs in.
    const ExcVector3d& direction() const { return m_direction; }
    void setDirection(const ExcVector3d& direction) { m_direction = direction; }
    /// The normal of the text's plane.
    const ExcVector3d& normal() const { return m_normal; }
    void setNormal(const ExcVector3d& normal) { m_normal = normal; }
    /// The text's colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// The font; null for the viewer's default.
    const std::shared_ptr<ExcVisuFont>& font() const { return m_font; }
    void setFont(std::shared_ptr<ExcVisuFont> font) { m_font = std::move(font); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuText& other) const;
    bool operator!=(const ExcVisuText& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_text;
    ExcVector3d m_anchorPoint;
    ExcVector3d m_direction;
    ExcVector3d m_normal;
    ExcColor m_color;
    std::shared_ptr<ExcVisuFont> m_font;
};

/// The faces of a mesh.
using ExcVisuFaces = std::vector<std::shared_ptr<ExcVisuFace>>;
/// The edges of a mesh, wire or PMI graphic.
using ExcVisuEdges = std::vector<std::shared_ptr<ExcVisuEdge>>;
/// The point sets of a point-set leaf.
using ExcVisuPointsList = std::vector<std::shared_ptr<ExcVisuPoints>>;
/// The texts of a PMI graphic.
using ExcVisuTexts = std::vector<std::shared_ptr<ExcVisuText>>;

/// A named item with a geometry type: "geometry_type" after the item's keys.
class HRM_API ExcVisuGeometry : public ExcVisuItem
{
public:
    /// What the geometry is for.
    EVisuGeometryType geometryType() const { return m_geometryType; }
    void setGeometryType(EVisuGeometryType type) { m_geometryType = type; }

protected:
    ExcVisuGeometry() = default;
    HRM_MEMBER_LIST;

private:
    EVisuGeometryType m_geometryType = EVisuGeometryType::Unknown;
};

/// A tessellated body or surface: the geometry keys, then "faces" and "edges".
class HRM_API ExcVisuMesh : public ExcVisuGeometry
{
public:
    /// The faces.
    const ExcVisuFaces& faces() const { return m_faces; }
    /// A null face is refused with a warning.
    void addFace(const std::shared_ptr<ExcVisuFace>& face);
    /// Appends faces; null ones are refused with a warning.
    void addFaces(const ExcVisuFaces& faces);
    /// Replaces the faces.
    void setFaces(ExcVisuFaces faces) { m_faces = std::move(faces); }
    /// The edges.
    const ExcVisuEdges& edges() const { return m_edges; }
    /// A null edge is refused with a warning.
    void addEdge(const std::shared_ptr<ExcVisuEdge>& edge);
    /// Appends edges; null ones are refused with a warning.
    void addEdges(const ExcVisuEdges& edges);
    /// Replaces the edges.
    void setEdges(ExcVisuEdges edges) { m_edges = std::move(edges); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuMesh& other) const;
    bool operator!=(const ExcVisuMesh& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVisuFaces m_faces;
    ExcVisuEdges m_edges;
};

/// Curves without a surface: the geometry keys, then "edges".
class HRM_API ExcVisuWire : public ExcVisuGeometry
{
public:
    /// The edges.
    const ExcVisuEdges& edges() const { return m_edges; }
    /// A null edge is refused with a warning.
    void addEdge(const std::shared_ptr<ExcVisuEdge>& edge);
    /// Appends edges; null ones are refused with a warning.
    void addEdges(const ExcVisuEdges& edges);
    /// Replaces the edges.
    void setEdges(ExcVisuEdges edges) { m_edges = std::move(edges); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuWire& other) const;
    bool operator!=(const ExcVisuWire& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVisuEdges m_edges;
};

/// Marked points: the geometry keys, then "points".
class HRM_API ExcVisuPointSet : public ExcVisuGeometry
{
public:
    /// The point sets.
    const ExcVisuPointsList& points() const { return m_points; }
    /// Null points are refused with a warning.
    void addPoints(const std::shared_ptr<ExcVisuPoints>& points);
    /// Appends point sets; null ones are refused with a warning.
    void addPointsList(const ExcVisuPointsList& points);
    /// Replaces the point sets.
    void setPoints(ExcVisuPointsList points) { m_points = std::move(points); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuPointSet& other) const;
    bool operator!=(const ExcVisuPointSet& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVisuPointsList m_points;
};

/// The graphics of a PMI annotation: the item's keys, then "edges" and "texts".
class HRM_API ExcVisuPMI : public ExcVisuItem
{
public:
    /// The edges.
    const ExcVisuEdges& edges() const { return m_edges; }
    /// A null edge is refused with a warning.
    void addEdge(const std::shared_ptr<ExcVisuEdge>& edge);
    /// Appends edges; null ones are refused with a warning.
    void addEdges(const ExcVisuEdges& edges);
    /// Replaces the edges.
    void setEdges(ExcVisuEdges edges) { m_edges = std::move(edges); }
    /// The texts.
    const ExcVisuTexts& texts() const { return m_texts; }
    /// A null text is refused with a warning.
    void addText(const std::shared_ptr<ExcVisuText>& text);
    /// Appends texts; null ones are refused with a warning.
    void addTexts(const ExcVisuTexts& texts);
    /// Replaces the texts.
    void setTexts(ExcVisuTexts texts) { m_texts = std::move(texts); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuPMI& other) const;
    bool operator!=(const ExcVisuPMI& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVisuEdges m_edges;
    ExcVisuTexts m_texts;
};

class ExcVisuNode;
/// The children of a node, or the roots of a scene.
using ExcVisuNodes = std::vector<std::shared_ptr<ExcVisuNode>>;

/// One node of the scene graph: {"is_leaf", "type", "group_name", "attributes",
/// "transformation", "mesh", "wire", "pmi", "point_set", "child_nodes"}. Every single child is
/// shared, may be null, and is left out when null; "child_nodes" is left out when there are no
/// children. Reading appends the children read to those the node holds.
class HRM_API ExcVisuNode : public IJsonObject
{
public:
    /// What the node stands for; the PMI types follow the PMI annotation families.
    enum class HRM_API_TYPE EType : int32_t
    {
        Undefined = 0,
        Root = 1,
        Group = 2,
        Geometry = 3,
        Meshes = 4,
        Mesh = 5,
        Wires = 6,
        Wire = 7,
        Points = 8,
        PointSet = 9,
        Pmi = 10,
        FtaConstructedGeometry = 11,
        Notes = 12,
        Note = 13,
        FlagNote = 14,
        Noa = 15,
        Datums = 16,
        DatumSimple = 17,
        DatumTarget = 18,
        DatumUnknown = 19,
        Dimensions = 20,
        DimensionBasic = 21,
        DimensionLength = 22,
        DimensionDistance = 23,
        DimensionLinear = 24,
        DimensionOrientedLinear = 25,
        DimensionDiameter = 26,
        DimensionRadius = 27,
        DimensionAngle = 28,
        DimensionOrientedAngle = 29,
        DimensionCoordinate3d = 30,
        DimensionChamfer = 31,
        DimensionUnknown = 32,
        GeomTols = 33,
        GeomTolStraightness = 34,
        GeomTolFlatness = 35,
        GeomTolCircularity = 36,
        GeomTolCylindricity = 37,
        GeomTolProfileLine = 38,
        GeomTolProfileSurface = 39,
        GeomTolCompProfileSurface = 40,
        GeomTolPatternLocation = 41,
        GeomTolParallelism = 42,
        GeomTolAngularity = 43,
        GeomTolPerpendicularity = 44,
        GeomTolPosition = 45,
        GeomTolPositionLine = 46,
        GeomTolPositionSurface = 47,
        GeomTolCompPosition = 48,
        GeomTolTolerance = 49,
        GeomTolConcentricity = 50,
        GeomTolSymmetry = 51,
        GeomTolRunoutCircular = 52,
        GeomTolRunoutTotal = 53,
        GeomTolNoteOnly = 54,
        GeomTolUnknown = 55,
        Roughnesses = 56,
        Roughness = 57,
        DrawingSheet = 58,
        ActiveDrawingSheet = 59,
        DrawingSheets = 60,
    };

    /// Whether the node is a leaf of the scene graph.
    bool isLeaf() const { return m_leaf; }
    void setLeaf(bool leaf) { m_leaf = leaf; }
    /// What the node stands for.
    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }
    /// The name of the group the node stands for.
    const std::wstring& groupName() const { return m_groupName; }
    void setGroupName(const std::wstring& name) { m_groupName = name; }
    /// How the node and its subtree look; null for as the parent does.
    const std::shared_ptr<ExcVisuAttributes>& attributes() const { return m_attributes; }
    void setAttributes(std::shared_ptr<ExcVisuAttributes> attributes) { m_attributes = std::move(attributes); }
    /// Where the node's subtree lies relative to its parent; null for no change.
    const std::shared_ptr<ExcTransformation>& transformation() const { return m_transformation; }
    void setTransformation(std::shared_ptr<ExcTransformation> transformation) { m_transformation = std::move(transformation); }
    /// The mesh the node shows, or null.
    const std::shared_ptr<ExcVisuMesh>& mesh() const { return m_mesh; }
    void setMesh(std::shared_ptr<ExcVisuMesh> mesh) { m_mesh = std::move(mesh); }
    /// The wire the node shows, or null.
    const std::shared_ptr<ExcVisuWire>& wire() const { return m_wire; }
    void setWire(std::shared_ptr<ExcVisuWire> wire) { m_wire = std::move(wire); }
    /// The PMI graphic the node shows, or null.
    const std::shared_ptr<ExcVisuPMI>& pmi() const { return m_pmi; }
    void setPmi(std::shared_ptr<ExcVisuPMI> pmi) { m_pmi = std::move(pmi); }
    /// The point set the node shows, or null.
    const std::shared_ptr<ExcVisuPointSet>& pointSet() const { return m_pointSet; }
    void setPointSet(std::shared_ptr<ExcVisuPointSet> pointSet) { m_pointSet = std::move(pointSet); }
    /// The node's children.
    const ExcVisuNodes& childNodes() const { return m_childNodes; }
    /// A null child is refused with a warning.
    void addChildNode(const std::shared_ptr<ExcVisuNode>& child);
    /// Appends children; null ones are refused with a warning.
    void addChildNodes(const ExcVisuNodes& children);
    /// Replaces the children.
    void setChildNodes(ExcVisuNodes children) { m_childNodes = std::move(children); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisuNode& other) const;
    bool operator!=(const ExcVisuNode& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    bool m_leaf = false;
    EType m_type = EType::Undefined;
    std::wstring m_groupName;
    std::shared_ptr<ExcVisuAttributes> m_attributes;
    std::shared_ptr<ExcTransformation> m_transformation;
    std::shared_ptr<ExcVisuMesh> m_mesh;
    std::shared_ptr<ExcVisuWire> m_wire;
    std::shared_ptr<ExcVisuPMI> m_pmi;
    std::shared_ptr<ExcVisuPointSet> m_pointSet;
    ExcVisuNodes m_childNodes;
};

/// The views of a picture.
using ExcVisuViews = std::vector<std::shared_ptr<ExcVisuView>>;
/// The captures of a picture.
using ExcVisuCaptures = std::vector<std::shared_ptr<ExcVisuCapture>>;

/// The picture itself: {"scene_root_nodes", "units", "views", "captures"}. Units are the
/// length unit of every coordinate, millimetres by default.
class HRM_API ExcVisualizationData : public IJsonObject
{
public:
    /// The roots of the scene graph.
    const ExcVisuNodes& sceneRootNodes() const { return m_sceneRootNodes; }
    /// A null node is refused with a warning.
    void addSceneRootNode(const std::shared_ptr<ExcVisuNode>& node);
    /// Appends roots; null ones are refused with a warning.
    void addSceneRootNodes(const ExcVisuNodes& nodes);
    /// Replaces the roots.
    void setSceneRootNodes(ExcVisuNodes nodes) { m_sceneRootNodes = std::move(nodes); }
    /// The length unit of every coordinate.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType units) { m_units = units; }
    /// The views the model was saved with.
    const ExcVisuViews& views() const { return m_views; }
    /// A null view is refused with a warning.
    void addView(const std::shared_ptr<ExcVisuView>& view);
    /// Appends views; null ones are refused with a warning.
    void addViews(const ExcVisuViews& views);
    /// Replaces the views.
    void setViews(ExcVisuViews views) { m_views = std::move(views); }
    /// The captures the model was saved with.
    const ExcVisuCaptures& captures() const { return m_captures; }
    /// A null capture is refused with a warning.
    void addCapture(const std::shared_ptr<ExcVisuCapture>& capture);
    /// Appends captures; null ones are refused with a warning.
    void addCaptures(const ExcVisuCaptures& captures);
    /// Replaces the captures.
    void setCaptures(ExcVisuCaptures captures) { m_captures = std::move(captures); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcVisualizationData& other) const;
    bool operator!=(const ExcVisualizationData& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVisuNodes m_sceneRootNodes;
    ELengthUnitType m_units = ELengthUnitType::Millimeter;
    ExcVisuViews m_views;
    ExcVisuCaptures m_captures;
};

/// What both visualization exchange objects are: binary and compressed whatever happens, and
/// holding one picture ("visualization_data", shared, null until set or read).
class HRM_API ExcVisualizationObject : public IExchangeObject
{
public:
    bool binary() const final { return true; }
    bool compress() const final { return true; }

    /// The picture; null until set or read.
    const std::shared_ptr<ExcVisualizationData>& visualizationData() const { return m_visualizationData; }
    void setVisualizationData(std::shared_ptr<ExcVisualizationData> data) { m_visualizationData = std::move(data); }

protected:
    ExcVisualizationObject() = default;

    std::shared_ptr<ExcVisualizationData> m_visualizationData; ///< See visualizationData().
};

/// The picture of one block of the product structure: {"block_id", "visualization_data"}.
class HRM_API ExcBlockVisualization : public ExchangeObjectType<ExcBlockVisualization, ExcVisualizationObject>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_block_visualization";

    /// The id of the block (ExcBlock) the picture belongs to.
    uint64_t blockId() const { return m_blockId; }
    void setBlockId(uint64_t id) { m_blockId = id; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcBlockVisualization& other) const;
    bool operator!=(const ExcBlockVisualization& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    uint64_t m_blockId = 0;
};

/// The picture of the assembly as a whole: {"visualization_data"}.
class HRM_API ExcRootAssemblyVisualization : public ExchangeObjectType<ExcRootAssemblyVisualization, ExcVisualizationObject>
{
public:
    static constexpr wchar_t s_objectName[] = L"exc_root_assembly_visualization";

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON (packed arrays compare bit for bit).
    bool operator==(const ExcRootAssemblyVisualization& other) const;
    bool operator!=(const ExcRootAssemblyVisualization& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::EVisuGeometryType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuEdge::ELineType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuPoints::EMarkerStyle)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuNode::EType)
