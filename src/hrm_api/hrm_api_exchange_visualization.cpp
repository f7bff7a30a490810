#include <hrm_api/hrm_api_exchange_visualization.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_exchange_visualization_members.h"

#include <algorithm>
#include <cstddef>

namespace hrm {

HRM_ENUM_STRINGS(EVisuGeometryType,
    {EVisuGeometryType::Unknown, L"unknown"},
    {EVisuGeometryType::Part, L"part"},
    {EVisuGeometryType::Construction, L"construction"},
    {EVisuGeometryType::FtaConstructed, L"fta_constructed"})

HRM_ENUM_STRINGS(ExcVisuEdge::ELineType,
    {ExcVisuEdge::ELineType::Unknown, L"unknown"},
    {ExcVisuEdge::ELineType::LineStrip, L"line_strip"},
    {ExcVisuEdge::ELineType::LineLoop, L"line_loop"},
    {ExcVisuEdge::ELineType::LineLoopFilled, L"line_loop_filled"})

// The values jump from 36 to 2001.
HRM_ENUM_STRINGS(ExcVisuPoints::EMarkerStyle,
    {ExcVisuPoints::EMarkerStyle::NotUsed, L"NOTUSED"},
    {ExcVisuPoints::EMarkerStyle::Cross, L"CROSS"},
    {ExcVisuPoints::EMarkerStyle::Plus, L"PLUS"},
    {ExcVisuPoints::EMarkerStyle::Concentric, L"CONCENTRIC"},
    {ExcVisuPoints::EMarkerStyle::Coincident, L"COINCIDENT"},
    {ExcVisuPoints::EMarkerStyle::FullCircle, L"FULLCIRCLE"},
    {ExcVisuPoints::EMarkerStyle::FullSquare, L"FULLSQUARE"},
    {ExcVisuPoints::EMarkerStyle::Star, L"STAR"},
    {ExcVisuPoints::EMarkerStyle::Dot, L"DOT"},
    {ExcVisuPoints::EMarkerStyle::SmallDot, L"SMALLDOT"},
    {ExcVisuPoints::EMarkerStyle::Misc1, L"MISC1"},
    {ExcVisuPoints::EMarkerStyle::Misc2, L"MISC2"},
    {ExcVisuPoints::EMarkerStyle::FullCircle2, L"FULLCIRCLE2"},
    {ExcVisuPoints::EMarkerStyle::FullSquare2, L"FULLSQUARE2"},
    {ExcVisuPoints::EMarkerStyle::OpenArrow, L"OPEN_ARROW"},
    {ExcVisuPoints::EMarkerStyle::UnfilledArrow, L"UNFILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::BlankedArrow, L"BLANKED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::FilledArrow, L"FILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::UnfilledCircle, L"UNFILLED_CIRCLE"},
    {ExcVisuPoints::EMarkerStyle::BlankedCircle, L"BLANKED_CIRCLE"},
    {ExcVisuPoints::EMarkerStyle::FilledCircle, L"FILLED_CIRCLE"},
    {ExcVisuPoints::EMarkerStyle::CrossedCircle, L"CROSSED_CIRCLE"},
    {ExcVisuPoints::EMarkerStyle::BlankedSquare, L"BLANKED_SQUARE"},
    {ExcVisuPoints::EMarkerStyle::FilledSquare, L"FILLED_SQUARE"},
    {ExcVisuPoints::EMarkerStyle::BlankedTriangle, L"BLANKED_TRIANGLE"},
    {ExcVisuPoints::EMarkerStyle::FilledTriangle, L"FILLED_TRIANGLE"},
    {ExcVisuPoints::EMarkerStyle::ManipulatorSquare, L"MANIPULATOR_SQUARE"},
    {ExcVisuPoints::EMarkerStyle::ManipulatorDiamond, L"MANIPULATOR_DIAMOND"},
    {ExcVisuPoints::EMarkerStyle::ManipulatorCircle, L"MANIPULATOR_CIRCLE"},
    {ExcVisuPoints::EMarkerStyle::ManipulatorTriangle, L"MANIPULATOR_TRIANGLE"},
    {ExcVisuPoints::EMarkerStyle::DoubleOpenArrow, L"DOUBLE_OPEN_ARROW"},
    {ExcVisuPoints::EMarkerStyle::Wave, L"WAVE"},
    {ExcVisuPoints::EMarkerStyle::DoubleFilledArrow, L"DOUBLE_FILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::FullDoubleRotateArrowBlackBorder, L"FULLDOUBLEROTATEARROWBLACKBORDER"},
    {ExcVisuPoints::EMarkerStyle::FullSquareBlackBorder, L"FULLSQUAREBLACKBORDER"},
    {ExcVisuPoints::EMarkerStyle::FullDiamondBlackBorder, L"FULLDIAMONDBLACKBORDER"},
    {ExcVisuPoints::EMarkerStyle::FullCircleBlackBorder, L"FULLCIRCLEBLACKBORDER"},
    {ExcVisuPoints::EMarkerStyle::DoubleUnfilledArrow, L"DOUBLE_UNFILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::DoubleBlankedArrow, L"DOUBLE_BLANKED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::ForeSlash, L"FORE_SLASH"},
    {ExcVisuPoints::EMarkerStyle::BackSlash, L"BACK_SLASH"},
    {ExcVisuPoints::EMarkerStyle::Integral, L"INTEGRAL"},
    {ExcVisuPoints::EMarkerStyle::UnfilledDot, L"UNFILLED_DOT"},
    {ExcVisuPoints::EMarkerStyle::FilledDot, L"FILLED_DOT"},
    {ExcVisuPoints::EMarkerStyle::UnfilledSquare, L"UNFILLED_SQUARE"},
    {ExcVisuPoints::EMarkerStyle::TopOpenArrow, L"TOP_OPEN_ARROW"},
    {ExcVisuPoints::EMarkerStyle::BottomOpenArrow, L"BOTTOM_OPEN_ARROW"},
    {ExcVisuPoints::EMarkerStyle::TopFilledArrow, L"TOP_FILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::BottomFilledArrow, L"BOTTOM_FILLED_ARROW"},
    {ExcVisuPoints::EMarkerStyle::UnfilledTriangle, L"UNFILLED_TRIANGLE"})

HRM_ENUM_STRINGS(ExcVisuNode::EType,
    {ExcVisuNode::EType::Undefined, L"UNDEFINED"},
    {ExcVisuNode::EType::Root, L"ROOT"},
    {ExcVisuNode::EType::Group, L"GROUP"},
    {ExcVisuNode::EType::Geometry, L"GEOMETRY"},
    {ExcVisuNode::EType::Meshes, L"MESHES"},
    {ExcVisuNode::EType::Mesh, L"MESH"},
    {ExcVisuNode::EType::Wires, L"WIRES"},
    {ExcVisuNode::EType::Wire, L"WIRE"},
    {ExcVisuNode::EType::Points, L"POINTS"},
    {ExcVisuNode::EType::PointSet, L"POINTSET"},
    {ExcVisuNode::EType::Pmi, L"PMI"},
    {ExcVisuNode::EType::FtaConstructedGeometry, L"FTA_CONSTRUCTED_GEOMETRY"},
    {ExcVisuNode::EType::Notes, L"NOTES"},
    {ExcVisuNode::EType::Note, L"NOTE"},
    {ExcVisuNode::EType::FlagNote, L"FLAGNOTE"},
    {ExcVisuNode::EType::Noa, L"NOA"},
    {ExcVisuNode::EType::Datums, L"DATUMS"},
    {ExcVisuNode::EType::DatumSimple, L"DATUM_SIMPLE"},
    {ExcVisuNode::EType::DatumTarget, L"DATUM_TARGET"},
    {ExcVisuNode::EType::DatumUnknown, L"DATUM_UNKNOWN"},
    {ExcVisuNode::EType::Dimensions, L"DIMENSIONS"},
    {ExcVisuNode::EType::DimensionBasic, L"DIMENSION_BASIC"},
    {ExcVisuNode::EType::DimensionLength, L"DIMENSION_LENGTH"},
    {ExcVisuNode::EType::DimensionDistance, L"DIMENSION_DISTANCE"},
    {ExcVisuNode::EType::DimensionLinear, L"DIMENSION_LINEAR"},
    {ExcVisuNode::EType::DimensionOrientedLinear, L"DIMENSION_ORIENTED_LINEAR"},
    {ExcVisuNode::EType::DimensionDiameter, L"DIMENSION_DIAMETER"},
    {ExcVisuNode::EType::DimensionRadius, L"DIMENSION_RADIUS"},
    {ExcVisuNode::EType::DimensionAngle, L"DIMENSION_ANGLE"},
    {ExcVisuNode::EType::DimensionOrientedAngle, L"DIMENSION_ORIENTED_ANGLE"},
    {ExcVisuNode::EType::DimensionCoordinate3d, L"DIMENSION_COORDINATE_3D"},
    {ExcVisuNode::EType::DimensionChamfer, L"DIMENSION_CHAMFER"},
    {ExcVisuNode::EType::DimensionUnknown, L"DIMENSION_UNKNOWN"},
    {ExcVisuNode::EType::GeomTols, L"GEOMTOLS"},
    {ExcVisuNode::EType::GeomTolStraightness, L"GEOMTOL_STRAIGHTNESS"},
    {ExcVisuNode::EType::GeomTolFlatness, L"GEOMTOL_FLATNESS"},
    {ExcVisuNode::EType::GeomTolCircularity, L"GEOMTOL_CIRCULARITY"},
    {ExcVisuNode::EType::GeomTolCylindricity, L"GEOMTOL_CYLINDRICITY"},
    {ExcVisuNode::EType::GeomTolProfileLine, L"GEOMTOL_PROFILE_LINE"},
    {ExcVisuNode::EType::GeomTolProfileSurface, L"GEOMTOL_PROFILE_SURFACE"},
    {ExcVisuNode::EType::GeomTolCompProfileSurface, L"GEOMTOL_COMP_PROFILE_SURFACE"},
    {ExcVisuNode::EType::GeomTolPatternLocation, L"GEOMTOL_PATTERN_LOCATION"},
    {ExcVisuNode::EType::GeomTolParallelism, L"GEOMTOL_PARALLELISM"},
    {ExcVisuNode::EType::GeomTolAngularity, L"GEOMTOL_ANGULARITY"},
    {ExcVisuNode::EType::GeomTolPerpendicularity, L"GEOMTOL_PERPENDICULARITY"},
    {ExcVisuNode::EType::GeomTolPosition, L"GEOMTOL_POSITION"},
    {ExcVisuNode::EType::GeomTolPositionLine, L"GEOMTOL_POSITION_LINE"},
    {ExcVisuNode::EType::GeomTolPositionSurface, L"GEOMTOL_POSITION_SURFACE"},
    {ExcVisuNode::EType::GeomTolCompPosition, L"GEOMTOL_COMP_POSITION"},
    {ExcVisuNode::EType::GeomTolTolerance, L"GEOMTOL_TOLERANCE"},
    {ExcVisuNode::EType::GeomTolConcentricity, L"GEOMTOL_CONCENTRICITY"},
    {ExcVisuNode::EType::GeomTolSymmetry, L"GEOMTOL_SYMMETRY"},
    {ExcVisuNode::EType::GeomTolRunoutCircular, L"GEOMTOL_RUNOUT_CIRCULAR"},
    {ExcVisuNode::EType::GeomTolRunoutTotal, L"GEOMTOL_RUNOUT_TOTAL"},
    {ExcVisuNode::EType::GeomTolNoteOnly, L"GEOMTOL_NOTE_ONLY"},
    {ExcVisuNode::EType::GeomTolUnknown, L"GEOMTOL_UNKNOWN"},
    {ExcVisuNode::EType::Roughnesses, L"ROUGHNESSES"},
    {ExcVisuNode::EType::Roughness, L"ROUGHNESS"},
    {ExcVisuNode::EType::DrawingSheet, L"DRAWINGSHEET"},
    {ExcVisuNode::EType::ActiveDrawingSheet, L"ACTIVEDRAWINGSHEET"},
    {ExcVisuNode::EType::DrawingSheets, L"DRAWINGSHEETS"})

namespace {

// The polygons as one integer array: for each, its tag, its index count and its indices.
std::vector<int32_t> packPolygons(const std::vector<ExcVisuFace::Polygon>& polygons)
{
    size_t size = 0;
    for (const auto& polygon : polygons)
        size += 2 + polygon.indices.size();
    std::vector<int32_t> packed(size);
    auto out = packed.begin();
    for (const auto& polygon : polygons) {
        *out++ = polygon.tag;
        *out++ = static_cast<int32_t>(polygon.indices.size());
        out = std::copy(polygon.indices.begin(), polygon.indices.end(), out);
    }
    return packed;
}

// The polygons of a packed array. A polygon starts only where at least three integers remain
// (so a last polygon without indices is not read, and an array of 2 integers reads nothing);
// one whose count is negative or runs past the end ends the reading.
std::vector<ExcVisuFace::Polygon> unpackPolygons(const std::vector<int32_t>& packed)
{
    std::vector<ExcVisuFace::Polygon> polygons;
    for (size_t position = 0; position + 2 < packed.size();) {
        const int32_t count = packed[position + 1];
        const auto first = packed.begin() + static_cast<std::ptrdiff_t>(position + 2);
        if (count < 0 || static_cast<size_t>(count) > static_cast<size_t>(packed.end() - first))
            break;
        polygons.push_back({packed[position], std::vector<int32_t>(first, first + count)});
        position += 2 + static_cast<size_t>(count);
    }
    return polygons;
}

} // namespace

template <class Members>
void ExcVisuFace::packedPolygons(Members& m)
{
    std::vector<int32_t> packed;
    if constexpr (Members::reading) {
        if (const JsonValue* member = m.find(L"polygons"); member && member->IsString()) {
            m.packed(L"polygons", packed);
            m_polygons = unpackPolygons(packed);
        }
    } else {
        packed = packPolygons(m_polygons);
        m.packed(L"polygons", packed);
    }
}

template <class Members>
void ExcVisuFace::members(Members& m)
{
    m.packed(L"vertices", m_vertices).packed(L"normals", m_normals);
    packedPolygons(m);
    m.object(L"color", m_color).string(L"mechanical_id", m_mechanicalId).string(L"id", m_id);
}
HRM_MEMBER_IO(ExcVisuFace, "ExcVisuFace")
HRM_EQUALITY_AS_JSON(ExcVisuFace)

template <class Members>
void ExcVisuEdge::members(Members& m)
{
    m.packed(L"points", m_points)
        .packed(L"line_indices", m_lineIndices)
        .enumeration(L"line_type", m_lineType)
        .object(L"color", m_color)
        .string(L"mechanical_id", m_mechanicalId);
}
HRM_MEMBER_IO(ExcVisuEdge, "ExcVisuEdge")
HRM_EQUALITY_AS_JSON(ExcVisuEdge)

template <class Members>
void ExcVisuPoints::members(Members& m)
{
    m.packed(L"points", m_points)
        .packed(L"point_indices", m_pointIndices)
        .enumeration(L"marker_style", m_markerStyle)
        .object(L"color", m_color);
}
HRM_MEMBER_IO(ExcVisuPoints, "ExcVisuPoints")
HRM_EQUALITY_AS_JSON(ExcVisuPoints)

template <class Members>
void ExcVisuText::members(Members& m)
{
    m.string(L"text", m_text)
        .object(L"anchor_point", m_anchorPoint)
        .object(L"direction", m_direction)
        .object(L"normal", m_normal)
        .object(L"color", m_color)
        .child(L"font", m_font);
}
HRM_MEMBER_IO(ExcVisuText, "ExcVisuText")
HRM_EQUALITY_AS_JSON(ExcVisuText)

template <class Members>
void ExcVisuGeometry::members(Members& m)
{
    ExcVisuItem::members(m);
    m.enumeration(L"geometry_type", m_geometryType);
}

HRM_VISU_ADDERS(ExcVisuMesh, ExcVisuFace, addFace, addFaces, m_faces, "Face")
HRM_VISU_ADDERS(ExcVisuMesh, ExcVisuEdge, addEdge, addEdges, m_edges, "Edge")

template <class Members>
void ExcVisuMesh::members(Members& m)
{
    ExcVisuGeometry::members(m);
    m.writtenIf(!m_faces.empty()).children(L"faces", m_faces).writtenIf(!m_edges.empty()).children(L"edges", m_edges);
}
HRM_MEMBER_IO(ExcVisuMesh, "ExcVisuMesh")
HRM_EQUALITY_AS_JSON(ExcVisuMesh)

HRM_VISU_ADDERS(ExcVisuWire, ExcVisuEdge, addEdge, addEdges, m_edges, "Edge")

template <class Members>
void ExcVisuWire::members(Members& m)
{
    ExcVisuGeometry::members(m);
    m.writtenIf(!m_edges.empty()).children(L"edges", m_edges);
}
HRM_MEMBER_IO(ExcVisuWire, "ExcVisuWire")
HRM_EQUALITY_AS_JSON(ExcVisuWire)

HRM_VISU_ADDERS(ExcVisuPointSet, ExcVisuPoints, addPoints, addPointsList, m_points, "Points")

template <class Members>
void ExcVisuPointSet::members(Members& m)
{
    ExcVisuGeometry::members(m);
    m.writtenIf(!m_points.empty()).children(L"points", m_points);
}
HRM_MEMBER_IO(ExcVisuPointSet, "ExcVisuPointSet")
HRM_EQUALITY_AS_JSON(ExcVisuPointSet)

HRM_VISU_ADDERS(ExcVisuPMI, ExcVisuEdge, addEdge, addEdges, m_edges, "Edge")
HRM_VISU_ADDERS(ExcVisuPMI, ExcVisuText, addText, addTexts, m_texts, "Text")

template <class Members>
void ExcVisuPMI::members(Members& m)
{
    ExcVisuItem::members(m);
    m.writtenIf(!m_edges.empty()).children(L"edges", m_edges).writtenIf(!m_texts.empty()).children(L"texts", m_texts);
}
HRM_MEMBER_IO(ExcVisuPMI, "ExcVisuPMI")
HRM_EQUALITY_AS_JSON(ExcVisuPMI)

HRM_VISU_ADDERS(ExcVisuNode, ExcVisuNode, addChildNode, addChildNodes, m_childNodes, "Node")

template <class Members>
void ExcVisuNode::members(Members& m)
{
    m.boolean(L"is_leaf", m_leaf)
        .enumeration(L"type", m_type)
        .string(L"group_name", m_groupName)
        .child(L"attributes", m_attributes)
        .child(L"transformation", m_transformation)
        .child(L"mesh", m_mesh)
        .child(L"wire", m_wire)
        .child(L"pmi", m_pmi)
        .child(L"point_set", m_pointSet)
        .writtenIf(!m_childNodes.empty())
        .children(L"child_nodes", m_childNodes);
}
HRM_MEMBER_IO(ExcVisuNode, "ExcVisuNode")
HRM_EQUALITY_AS_JSON(ExcVisuNode)

HRM_VISU_ADDERS(ExcVisualizationData, ExcVisuNode, addSceneRootNode, addSceneRootNodes, m_sceneRootNodes, "Node")
HRM_VISU_ADDERS(ExcVisualizationData, ExcVisuView, addView, addViews, m_views, "View")
HRM_VISU_ADDERS(ExcVisualizationData, ExcVisuCapture, addCapture, addCaptures, m_captures, "Capture")

template <class Members>
void ExcVisualizationData::members(Members& m)
{
    m.writtenIf(!m_sceneRootNodes.empty())
        .children(L"scene_root_nodes", m_sceneRootNodes)
        .enumeration(L"units", m_units)
        .writtenIf(!m_views.empty())
        .children(L"views", m_views)
        .writtenIf(!m_captures.empty())
        .children(L"captures", m_captures);
}
HRM_MEMBER_IO(ExcVisualizationData, "ExcVisualizationData")
HRM_EQUALITY_AS_JSON(ExcVisualizationData)

template <class Members>
void ExcBlockVisualization::members(Members& m)
{
    m.uint64(L"block_id", m_blockId).child(L"visualization_data", m_visualizationData);
}
HRM_MEMBER_IO(ExcBlockVisualization, "ExcBlockVisualization")
HRM_EQUALITY_AS_JSON(ExcBlockVisualization)

template <class Members>
void ExcRootAssemblyVisualization::members(Members& m)
{
    m.child(L"visualization_data", m_visualizationData);
}
HRM_MEMBER_IO(ExcRootAssemblyVisualization, "ExcRootAssemblyVisualization")
HRM_EQUALITY_AS_JSON(ExcRootAssemblyVisualization)

} // namespace hrm
