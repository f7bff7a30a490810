#include <hrm_api/hrm_api_exchange_visualization.h>

#include "support/expect_message.h"
#include "support/log_capture.h"
#include "support/member_suite.h"
#include "support/read_text.h"
#include "support/round_trip.h"
#include "visualization_sample.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <vector>

namespace hrm {
namespace {

using test::LogCapture;
using test::readText;
using test::toText;
using Messages = std::vector<std::string>;
using Polygon = ExcVisuFace::Polygon;

std::vector<Polygon> polygonsRead(const std::wstring& packed)
{
    ExcVisuFace face;
    return readText(face, L"{\"polygons\":\"" + packed + L"\"}").polygons();
}

TEST(ExcVisuFace, PackedArraysAreLittleEndianBase64)
{
    ExcVisuFace face;
    face.setVertices({1.0f, -2.0f, 0.5f});
    face.setPolygons({{7, {0, 1, 2}}, {9, {0, 2, 3, 1}}}); // 2 x 2 + 7 integers, 44 bytes
    EXPECT_EQ(toText(face), L"{\"vertices\":\"AACAPwAAAMAAAAA/\","
                            L"\"polygons\":\"BwAAAAMAAAAAAAAAAQAAAAIAAAAJAAAABAAAAAAAAAACAAAAAwAAAAEAAAA=\","
                            L"\"color\":null,\"mechanical_id\":\"\",\"id\":\"\"}");
    EXPECT_EQ(test::roundTripText(face), face);

    ExcVisuEdge edge;
    edge.setLineIndices({1, -1, 65536});
    EXPECT_EQ(toText(edge), L"{\"line_indices\":\"AQAAAP////8AAAEA\",\"line_type\":\"unknown\",\"color\":null,"
                            L"\"mechanical_id\":\"\"}");
}

TEST(ExcVisuFace, PolygonsReadBackWithTheKeptAsymmetry)
{
    // A last polygon without indices is not read back, alone or after another.
    ExcVisuFace face;
    face.setPolygons({{5, {}}});
    EXPECT_EQ(toText(face), L"{\"polygons\":\"BQAAAAAAAAA=\",\"color\":null,\"mechanical_id\":\"\",\"id\":\"\"}");
    EXPECT_TRUE(test::roundTripText(face).polygons().empty());
    face.setPolygons({{1, {0, 1, 2}}, {2, {}}});
    EXPECT_EQ(test::roundTripText(face).polygons(), (std::vector<Polygon>{{1, {0, 1, 2}}}));

    // One integer reads no polygon; a count that is negative or runs past the end ends the reading.
    EXPECT_TRUE(polygonsRead(L"BQAAAA==").empty());
    EXPECT_EQ(polygonsRead(L"AQAAAP////8AAAAAAgAAAAUAAAA="), std::vector<Polygon>{});
    EXPECT_EQ(polygonsRead(L"BQAAAAAAAAABAAAAAQAAAAcAAAA="), (std::vector<Polygon>{{5, {}}, {1, {7}}}));
    EXPECT_EQ(polygonsRead(L"AQAAAAIAAAAAAAAAAQAAAAIAAAAFAAAAAAAAAA=="), (std::vector<Polygon>{{1, {0, 1}}}));

    // A face without tessellation writes none of its packed keys and reads back empty.
    face = ExcVisuFace();
    face.setId(L"f");
    EXPECT_EQ(toText(face), L"{\"color\":null,\"mechanical_id\":\"\",\"id\":\"f\"}");
    ExcVisuFace filled;
    filled.setVertices({1.0f});
    EXPECT_EQ(readText(filled, L"{\"vertices\":\"\"}").vertices(), std::vector<float>{});
}

template <class E>
std::wstring word(E value)
{
    return enumToString(value);
}

TEST(VisualizationTables, KeepTheirOddCorners)
{
    using Marker = ExcVisuPoints::EMarkerStyle;
    EXPECT_EQ(word(Marker::FullCircleBlackBorder), L"FULLCIRCLEBLACKBORDER");
    EXPECT_EQ(word(Marker::Integral), L"INTEGRAL");
    EXPECT_EQ(enumFromString<Marker>(L"INTEGRAL"), Marker(2005));
    EXPECT_EQ(enumFromString<Marker>(L"DOUBLE_UNFILLED_ARROW"), Marker(2001));
    EXPECT_EQ(word(Marker(37)), L"NOTUSED"); // between the two runs: no value

    using Style = ExcVisuLineAttribute::ELineStyle;
    EXPECT_EQ(enumFromString<Style>(L"center_line"), Style(8));
    EXPECT_EQ(word(Style(7)), L"undefined");
    for (const wchar_t* text : {L"solid_line", L"dash_dot_dot_dot_line", L"phantom_line", L"", L"7"})
        EXPECT_NE(enumFromString<Style>(text), Style(7)) << toNarrow(text);

    // The texture tables start at 1: 0 writes the first word, an unknown word reads as the
    // alphabetically first.
    EXPECT_EQ(word(ExcVisuTexture::EMethod(0)), L"decal");
    EXPECT_EQ(enumFromString<ExcVisuTexture::EMethod>(L"?"), ExcVisuTexture::EMethod::Add);
    EXPECT_EQ(word(ExcVisuTexture::EWrapMode(0)), L"repeat");
    EXPECT_EQ(word(ExcVisuTexture::EMappingMode::EnvironmentCubic), L"environment_cubic");
    EXPECT_EQ(word(ExcVisuTexture::EFilter::LinearMipmapNearest), L"linear_mipmap_nearest");

    EXPECT_EQ(word(ExcVisuNode::EType::DrawingSheets), L"DRAWINGSHEETS");
    EXPECT_EQ(word(ExcVisuNode::EType::DimensionCoordinate3d), L"DIMENSION_COORDINATE_3D");
    EXPECT_EQ(word(ExcVisuNode::EType(61)), L"UNDEFINED");
    EXPECT_EQ(word(ExcVisuMaterial::ETextureType::Normal), L"normal");
}

TEST(ExcVisuTexture, DirectionsOutsideTheirRangeThrow)
{
    ExcVisuTexture texture;
    const auto throws = [](std::function<void()> operation, const char* message) {
        test::expectMessage<std::invalid_argument>(operation, message);
    };
    const char* wrap = "Texture wrap mode has only 0 (U) and 1 (V) directions.";
    const char* scale = "Texture scale has only 0 (U) and 1 (V) directions.";
    const char* translation = "Texture translation has only 0 (U) and 1 (V) directions.";
    const char* rotation = "Texture rotation has only 0 (U), 1 (V) and 2 (W) directions.";
    throws([&] { texture.wrapMode(2); }, wrap);
    throws([&] { texture.setWrapMode(2, ExcVisuTexture::EWrapMode::Clamp); }, wrap);
    throws([&] { texture.uvScale(2); }, scale);
    throws([&] { texture.setUVScale(5, 1.0); }, scale);
    throws([&] { texture.uvTranslation(2); }, translation);
    throws([&] { texture.setUVTranslation(2, 1.0); }, translation);
    throws([&] { texture.uvRotation(3); }, rotation);
    throws([&] { texture.setUVRotation(3, 1.0); }, rotation);
    texture.setUVRotation(2, 0.5);
    EXPECT_EQ(texture.uvRotation(2), 0.5);
}

TEST(ExcVisuMaterial, MalformedEntriesAreLoggedAndSkipped)
{
    LogCapture log;
    ExcVisuMaterial material;
    material.addTexture(ExcVisuMaterial::ETextureType::Normal, nullptr);
    EXPECT_TRUE(material.textures().empty());
    EXPECT_EQ(log.messages(ax_herm::Warning), Messages{"ExcVisuMaterial: attempt to add null Texture object."});

    readText(material, LR"({"colors":[{"type":"diffuse","value":[1,0.5,"x",1,9]},{"type":3,"value":[1,1,1,1]},
        {"type":"ambient","value":[1,1,1]},[],{"type":"emissive","value":[0,0,0,1]}],
        "textures":[{"type":"normal","value":[{"name":"n"}]},{"type":"normal"},{"type":"normal","value":[{"name":"m"}]}]})");
    EXPECT_EQ(material.colors(), (ExcVisuMaterial::Colors{{ExcVisuMaterial::EColorType::Diffuse, {1, 0.5, 0, 1}},
                                                          {ExcVisuMaterial::EColorType::Emissive, {0, 0, 0, 1}}}));
    ASSERT_EQ(material.textures().size(), 1u);
    EXPECT_EQ(material.textures().begin()->second.size(), 2u);
    const std::string color = "ExcVisuMaterial: !colorType.IsString() || !colorValue.IsArray() || colorValue.GetArray().Size() < 4";
    EXPECT_EQ(log.messages(ax_herm::Error),
              (Messages{color, color, color, "ExcVisuMaterial: !textureType.IsString() || !textureArray.IsArray()"}));
}

TEST(ExcVisuNode, KeysWithAndWithoutChildren)
{
    ExcVisuNode node;
    EXPECT_EQ(toText(node), L"{\"is_leaf\":false,\"type\":\"UNDEFINED\",\"group_name\":\"\"}");
    node.addChildNode(std::make_shared<ExcVisuNode>());
    node.setMesh(std::make_shared<ExcVisuMesh>());
    EXPECT_EQ(toText(node), L"{\"is_leaf\":false,\"type\":\"UNDEFINED\",\"group_name\":\"\",\"mesh\":"
                            L"{\"display_name\":\"\",\"id\":\"\",\"mechanical_id\":\"\",\"geometry_type\":\"unknown\"},"
                            L"\"child_nodes\":[{\"is_leaf\":false,\"type\":\"UNDEFINED\",\"group_name\":\"\"}]}");

    // Reading appends to the children held; a null child is refused.
    LogCapture log;
    node.addChildNode(nullptr);
    EXPECT_EQ(log.messages(ax_herm::Warning), Messages{"ExcVisuNode: attempt to add null Node object."});
    readText(node, LR"({"child_nodes":[{"type":"ROOT"}]})");
    ASSERT_EQ(node.childNodes().size(), 2u);
    EXPECT_EQ(node.childNodes()[1]->type(), ExcVisuNode::EType::Root);
}

TEST(VisualizationRoots, AlwaysTravelBinaryAndCompressed)
{
    for (const wchar_t* name : {L"exc_block_visualization", L"exc_root_assembly_visualization"}) {
        const auto object = ExchangeObjectRegistry::instance().get(name);
        ASSERT_TRUE(object) << toNarrow(name);
        EXPECT_TRUE(object->binary() && object->compress()) << toNarrow(name);
    }
}

} // namespace
} // namespace hrm

// ---- Every class through the typed member suite -------------------------------------------

namespace hrm::test {


#define HRM_VISU_CASE(T, make, ...)                                                      \
    template <>                                                                          \
    struct MemberCase<T> : MemberCaseDefaults                                            \
    {                                                                                    \
        static constexpr const char* wrongKindMessage = #T " object should have a JSON object type."; \
        static T sample() { return *samples::full::make(); }                                    \
        static std::vector<std::wstring> keys() { return {__VA_ARGS__}; }              \
        static std::vector<std::wstring> anyKind()                                       \
        {                                                                                \
            return {L"color", L"font", L"attributes", L"transformation", L"mesh", L"wire", L"pmi", \
                    L"point_set", L"line_attribute", L"clipping_plane", L"camera", L"visualization_data"}; \
        }                                                                                \
    };

#define HRM_ITEM_KEYS L"display_name", L"id", L"mechanical_id"

HRM_VISU_CASE(ExcVisuFont, font, L"name", L"text_height", L"font_pitch", L"spacing_factor", L"width_scaling_factor")
HRM_VISU_CASE(ExcVisuLineAttribute, lineAttribute, L"line_weight", L"line_style")
HRM_VISU_CASE(ExcVisuTexture, texture, L"name", L"swap_uv", L"method", L"wrap_mode", L"mapping_mode", L"filter", L"alpha",
              L"file", L"name_uv", L"uv_translation", L"uv_scale", L"uv_rotation", L"use_material")
HRM_VISU_CASE(ExcVisuMaterial, material, L"name", L"colors", L"shininess", L"bump", L"bump_factor", L"normal_map", L"textures")
HRM_VISU_CASE(ExcVisuAttributes, attributes, L"font", L"color", L"hidden", L"materials", L"line_attribute")
HRM_VISU_CASE(ExcVisuView, view, HRM_ITEM_KEYS, L"hidden", L"origin", L"direction_u", L"direction_v", L"annotation_ids")
HRM_VISU_CASE(ExcCamera, camera, L"type", L"name", L"perspective_view_angle", L"orthographic_zoom_factor", L"eye", L"target", L"up")
HRM_VISU_CASE(ExcClippingPlane, clippingPlane, L"origin", L"u", L"v", L"plane_coefficients")
HRM_VISU_CASE(ExcVisuCapture, capture, HRM_ITEM_KEYS, L"hidden", L"active", L"hidden_text", L"clipping_plane", L"camera",
              L"annotation_ids", L"fta_constructed_geometry_ids", L"bodies")
HRM_VISU_CASE(ExcVisuFace, face, L"vertices", L"normals", L"polygons", L"color", L"mechanical_id", L"id")
HRM_VISU_CASE(ExcVisuEdge, edge, L"points", L"line_indices", L"line_type", L"color", L"mechanical_id")
HRM_VISU_CASE(ExcVisuPoints, points, L"points", L"point_indices", L"marker_style", L"color")
HRM_VISU_CASE(ExcVisuText, text, L"text", L"anchor_point", L"direction", L"normal", L"color", L"font")
HRM_VISU_CASE(ExcVisuMesh, mesh, HRM_ITEM_KEYS, L"geometry_type", L"faces", L"edges")
HRM_VISU_CASE(ExcVisuWire, wire, HRM_ITEM_KEYS, L"geometry_type", L"edges")
HRM_VISU_CASE(ExcVisuPointSet, pointSet, HRM_ITEM_KEYS, L"geometry_type", L"points")
HRM_VISU_CASE(ExcVisuPMI, pmi, HRM_ITEM_KEYS, L"edges", L"texts")
HRM_VISU_CASE(ExcVisuNode, node, L"is_leaf", L"type", L"group_name", L"attributes", L"transformation", L"mesh", L"wire", L"pmi",
              L"point_set", L"child_nodes")
HRM_VISU_CASE(ExcVisualizationData, data, L"scene_root_nodes", L"units", L"views", L"captures")


HRM_VISU_CASE(ExcBlockVisualization, block, L"block_id", L"visualization_data")
HRM_VISU_CASE(ExcRootAssemblyVisualization, assembly, L"visualization_data")

using VisualizationTypes =
    ::testing::Types<ExcVisuFont, ExcVisuLineAttribute, ExcVisuTexture, ExcVisuMaterial, ExcVisuAttributes, ExcVisuView,
                     ExcCamera, ExcClippingPlane, ExcVisuCapture, ExcVisuFace, ExcVisuEdge, ExcVisuPoints, ExcVisuText,
                     ExcVisuMesh, ExcVisuWire, ExcVisuPointSet, ExcVisuPMI, ExcVisuNode, ExcVisualizationData,
                     ExcBlockVisualization, ExcRootAssemblyVisualization>;
INSTANTIATE_TYPED_TEST_SUITE_P(Visualization, MemberSuite, VisualizationTypes);

} // namespace hrm::test
