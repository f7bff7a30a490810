#pragma once

/// @file
/// Display attributes, views and captures of the visualization scene graph: fonts, line
/// attributes, textures, materials, views, cameras, clipping planes and captures, and the named
/// item every leaf, view and capture is. The scene graph itself is in
/// hrm_api_exchange_visualization.h.
///
/// Every class reads and writes itself as a JSON object and reads leniently: a missing member,
/// or one of the wrong JSON kind, keeps its field; a value that is no object is logged
/// ("<class> object should have a JSON object type.") and changes nothing. Numbers are written
/// as doubles and read from any JSON number. Lists and single children are shared; a null
/// single child and an empty list are not written, and lists read are appended to those held.
/// Two objects are equal when they write the same JSON.

#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// What every named item of a picture carries: "display_name", "id" and "mechanical_id" (the
/// id of the matching entity of the mechanical data).
class HRM_API ExcVisuItem : public IJsonObject
{
public:
    /// The name the user sees.
    const std::wstring& displayName() const { return m_displayName; }
    void setDisplayName(const std::wstring& name) { m_displayName = name; }
    /// The item's own id.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    /// The id of the matching entity of the mechanical data.
    const std::wstring& mechanicalId() const { return m_mechanicalId; }
    void setMechanicalId(const std::wstring& id) { m_mechanicalId = id; }

protected:
    ExcVisuItem() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_displayName;
    std::wstring m_id;
    std::wstring m_mechanicalId;
};

/// A text font: {"name", "text_height", "font_pitch", "spacing_factor", "width_scaling_factor"}.
/// The factors are 1 by default, the height 0 (the viewer's choice).
class HRM_API ExcVisuFont : public IJsonObject
{
public:
    /// Character widths. Travels as "unknown", "fixed", "variable".
    enum class HRM_API_TYPE EPitch : int32_t
    {
        Unknown = 0,
        Fixed = 1,
        Variable = 2,
    };

    /// The font's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The height of the characters; 0 for the viewer's choice.
    double textHeight() const { return m_textHeight; }
    void setTextHeight(double height) { m_textHeight = height; }
    /// Whether characters are of fixed or variable width.
    EPitch fontPitch() const { return m_fontPitch; }
    void setFontPitch(EPitch pitch) { m_fontPitch = pitch; }
    /// The spacing between characters, as a factor.
    double spacingFactor() const { return m_spacingFactor; }
    void setSpacingFactor(double factor) { m_spacingFactor = factor; }
    /// The width of the characters, as a factor.
    double widthScalingFactor() const { return m_widthScalingFactor; }
    void setWidthScalingFactor(double factor) { m_widthScalingFactor = factor; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuFont& other) const;
    bool operator!=(const ExcVisuFont& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    double m_textHeight = 0.0;
    EPitch m_fontPitch = EPitch::Unknown;
    double m_spacingFactor = 1.0;
    double m_widthScalingFactor = 1.0;
};

/// How lines are drawn: {"line_weight", "line_style"}.
class HRM_API ExcVisuLineAttribute : public IJsonObject
{
public:
    /// Value 7 has no word and stays free: it writes as "undefined", and no word reads as 7.
    enum class HRM_API_TYPE ELineStyle : int32_t
    {
        Undefined = 0,
        SolidLine = 1,
        DashDotLine = 2,
        DashLine = 3,
        DotLine = 4,
        DashDotDotLine = 5,
        DashDotDotDotLine = 6,
        CenterLine = 8,
        PhantomLine = 9,
    };

    /// The width of lines.
    double lineWeight() const { return m_lineWeight; }
    void setLineWeight(double weight) { m_lineWeight = weight; }
    /// The pattern of lines.
    ELineStyle lineStyle() const { return m_lineStyle; }
    void setLineStyle(ELineStyle style) { m_lineStyle = style; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuLineAttribute& other) const;
    bool operator!=(const ExcVisuLineAttribute& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_lineWeight = 0.0;
    ELineStyle m_lineStyle = ELineStyle::Undefined;
};

/// An image laid on a surface. Per-direction settings travel as arrays: "wrap_mode" [U, V],
/// "uv_translation" and "uv_scale" [U, V], "uv_rotation" [U, V, W]; reading takes their
/// leading elements. Indexing a direction outside them throws std::invalid_argument. Defaults
/// are what a renderer assumes when told nothing: modulate, repeat, UV mapping, linear
/// filtering, alpha 1, scale 1, no translation or rotation.
class HRM_API ExcVisuTexture : public IJsonObject
{
public:
    /// How the texture combines with the surface colour.
    enum class HRM_API_TYPE EMethod : int32_t
    {
        Decal = 1,
        Modulate = 2,
        Add = 3,
        Replace = 4,
    };
    /// What lies outside the image, per direction.
    enum class HRM_API_TYPE EWrapMode : int32_t
    {
        Repeat = 1,
        Clamp = 2,
        Border = 3,
        Edge = 4,
        Mirror = 5,
    };
    /// How surface points find their place in the image.
    enum class HRM_API_TYPE EMappingMode : int32_t
    {
        Uv = 1,
        Planar = 2,
        Spherical = 3,
        Cylindrical = 4,
        EnvironmentSpherical = 5,
        EnvironmentCubic = 6,
    };
    /// How the image is sampled.
    enum class HRM_API_TYPE EFilter : int32_t
    {
        Nearest = 1,
        Linear = 2,
        NearestMipmapNearest = 3,
        NearestMipmapLinear = 4,
        LinearMipmapLinear = 5,
        LinearMipmapNearest = 6,
    };

    /// The texture's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether U and V are swapped.
    bool swapUV() const { return m_swapUV; }
    void setSwapUV(bool swap) { m_swapUV = swap; }
    /// How the texture combines with the surface's colour.
    EMethod method() const { return m_method; }
    void setMethod(EMethod method) { m_method = method; }
    /// Direction 0 (U) or 1 (V).
    EWrapMode wrapMode(std::size_t direction) const;
    void setWrapMode(std::size_t direction, EWrapMode mode);
    /// How texture coordinates are found.
    EMappingMode mappingMode() const { return m_mappingMode; }
    void setMappingMode(EMappingMode mode) { m_mappingMode = mode; }
    /// How the image is sampled.
    EFilter filter() const { return m_filter; }
    void setFilter(EFilter filter) { m_filter = filter; }
    /// The texture's opacity.
    double alpha() const { return m_alpha; }
    void setAlpha(double alpha) { m_alpha = alpha; }
    /// The image file.
    const std::wstring& file() const { return m_file; }
    void setFile(const std::wstring& file) { m_file = file; }
    /// The name of the UV set the texture uses.
    const std::wstring& nameUV() const { return m_nameUV; }
    void setNameUV(const std::wstring& name) { m_nameUV = name; }
    /// Direction 0 (U) or 1 (V).
    double uvTranslation(std::size_t direction) const;
    void setUVTranslation(std::size_t direction, double translation);
    /// Direction 0 (U) or 1 (V).
    double uvScale(std::size_t direction) const;
    void setUVScale(std::size_t direction, double scale);
    /// Direction 0 (U), 1 (V) or 2 (W).
    double uvRotation(std::size_t direction) const;
    void setUVRotation(std::size_t direction, double rotation);
    /// Whether the material's colours apply under the texture.
    bool useMaterial() const { return m_useMaterial; }
    void setUseMaterial(bool use) { m_useMaterial = use; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuTexture& other) const;
    bool operator!=(const ExcVisuTexture& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    bool m_swapUV = false;
    EMethod m_method = EMethod::Modulate;
    std::array<EWrapMode, 2> m_wrapMode{EWrapMode::Repeat, EWrapMode::Repeat};
    EMappingMode m_mappingMode = EMappingMode::Uv;
    EFilter m_filter = EFilter::Linear;
    double m_alpha = 1.0;
    std::wstring m_file;
    std::wstring m_nameUV;
    std::array<double, 2> m_uvTranslation{};
    std::array<double, 2> m_uvScale{1.0, 1.0};
    std::array<double, 3> m_uvRotation{};
    bool m_useMaterial = false;
};

/// The textures of one type of a material.
using ExcVisuTextures = std::vector<std::shared_ptr<ExcVisuTexture>>;

/// A surface material: {"name", "colors", "shininess", "bump", "bump_factor", "normal_map",
/// "textures"}. Colours and textures are typed; each type has one colour (red, green, blue,
/// alpha, usually 0 to 1) and a list of textures. They travel as arrays of typed entries in
/// ascending type order:
///   "colors":   [{"type": "diffuse", "value": [0.8, 0.8, 0.8, 1.0]}, ...]
///   "textures": [{"type": "diffuse_color", "value": [{texture}, ...]}, ...]
/// A colour entry needs a type word and an array of at least 4 values (an element that is no
/// number reads as 0; later elements are ignored), a texture entry a type word and an array;
/// other entries are logged and skipped. A colour read replaces the colour of its type;
/// textures read are appended to those of their type.
class HRM_API ExcVisuMaterial : public IJsonObject
{
public:
    /// What a colour stands for.
    enum class HRM_API_TYPE EColorType : int32_t
    {
        Unknown = 0,
        Ambient = 1,
        Diffuse = 2,
        Specular = 3,
        Emissive = 4,
        Transparency = 5,
        Reflection = 6,
    };
    /// What a texture modulates.
    enum class HRM_API_TYPE ETextureType : int32_t
    {
        Unknown = 0,
        AmbientColor = 1,
        AmbientCoefficient = 2,
        DiffuseColor = 3,
        DiffuseCoefficient = 4,
        SpecularColor = 5,
        SpecularCoefficient = 6,
        EmissiveColor = 7,
        EmissiveCoefficient = 8,
        Normal = 9,
    };
    /// A colour: red, green, blue, alpha.
    using Rgba = std::array<double, 4>;
    /// The colour of each type.
    using Colors = std::map<EColorType, Rgba>;
    /// The textures of each type.
    using Textures = std::map<ETextureType, ExcVisuTextures>;

    /// The material's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The colour of each type.
    const Colors& colors() const { return m_colors; }
    /// Sets the colour of `type`, replacing an earlier one.
    void setColor(EColorType type, const Rgba& color) { m_colors[type] = color; }
    void setColors(Colors colors) { m_colors = std::move(colors); }
    /// How shiny the surface is.
    double shininess() const { return m_shininess; }
    void setShininess(double shininess) { m_shininess = shininess; }
    /// The bump map.
    const std::wstring& bump() const { return m_bump; }
    void setBump(const std::wstring& bump) { m_bump = bump; }
    /// How strongly the bump map acts.
    double bumpFactor() const { return m_bumpFactor; }
    void setBumpFactor(double factor) { m_bumpFactor = factor; }
    /// The normal map.
    const std::wstring& normalMap() const { return m_normalMap; }
    void setNormalMap(const std::wstring& normalMap) { m_normalMap = normalMap; }
    /// The textures of each type.
    const Textures& textures() const { return m_textures; }
    /// Appends `texture` to those of `type`; a null texture is refused with a warning.
    void addTexture(ETextureType type, const std::shared_ptr<ExcVisuTexture>& texture);
    void setTextures(Textures textures) { m_textures = std::move(textures); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuMaterial& other) const;
    bool operator!=(const ExcVisuMaterial& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
    template <class Members>
    void typedColors(Members& m);
    template <class Members>
    void typedTextures(Members& m);

    std::wstring m_name;
    Colors m_colors;
    double m_shininess = 0.0;
    std::wstring m_bump;
    double m_bumpFactor = 1.0;
    std::wstring m_normalMap;
    Textures m_textures;
};

/// The materials of an item's attributes.
using ExcVisuMaterials = std::vector<std::shared_ptr<ExcVisuMaterial>>;

/// The display attributes of a node: {"font", "color", "hidden", "materials", "line_attribute"}.
/// The font and the line attribute are shared and may be null.
class HRM_API ExcVisuAttributes : public IJsonObject
{
public:
    /// The font of texts; null for the viewer's default.
    const std::shared_ptr<ExcVisuFont>& font() const { return m_font; }
    void setFont(std::shared_ptr<ExcVisuFont> font) { m_font = std::move(font); }
    /// The colour.
    const ExcColor& color() const { return m_color; }
    void setColor(const ExcColor& color) { m_color = color; }
    /// Whether the item is hidden.
    bool hidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// The surface materials.
    const ExcVisuMaterials& materials() const { return m_materials; }
    /// A null material is refused with a warning.
    void addMaterial(const std::shared_ptr<ExcVisuMaterial>& material);
    /// Appends materials; null ones are refused with a warning.
    void addMaterials(const ExcVisuMaterials& materials);
    /// Replaces the materials.
    void setMaterials(ExcVisuMaterials materials) { m_materials = std::move(materials); }
    /// How lines are drawn; null for the viewer's default.
    const std::shared_ptr<ExcVisuLineAttribute>& lineAttribute() const { return m_lineAttribute; }
    void setLineAttribute(std::shared_ptr<ExcVisuLineAttribute> attribute) { m_lineAttribute = std::move(attribute); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuAttributes& other) const;
    bool operator!=(const ExcVisuAttributes& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::shared_ptr<ExcVisuFont> m_font;
    ExcColor m_color;
    bool m_hidden = false;
    ExcVisuMaterials m_materials;
    std::shared_ptr<ExcVisuLineAttribute> m_lineAttribute;
};

/// A named view: an annotation plane (origin and two in-plane directions) with the ids of the
/// annotations that lie in it. Keys after the item's: "hidden", "origin", "direction_u",
/// "direction_v", "annotation_ids".
class HRM_API ExcVisuView : public ExcVisuItem
{
public:
    /// Whether the view is hidden.
    bool hidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// A point of the annotation plane.
    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }
    /// The first direction in the plane.
    const ExcVector3d& directionU() const { return m_directionU; }
    void setDirectionU(const ExcVector3d& direction) { m_directionU = direction; }
    /// The second direction in the plane.
    const ExcVector3d& directionV() const { return m_directionV; }
    void setDirectionV(const ExcVector3d& direction) { m_directionV = direction; }
    /// The ids of the annotations in the plane.
    const std::vector<std::wstring>& annotationIds() const { return m_annotationIds; }
    /// Appends an annotation id.
    void addAnnotationId(const std::wstring& id) { m_annotationIds.push_back(id); }
    void setAnnotationIds(std::vector<std::wstring> ids) { m_annotationIds = std::move(ids); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuView& other) const;
    bool operator!=(const ExcVisuView& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    bool m_hidden = false;
    ExcVector3d m_origin;
    ExcVector3d m_directionU;
    ExcVector3d m_directionV;
    std::vector<std::wstring> m_annotationIds;
};

/// A camera: {"type", "name", "perspective_view_angle", "orthographic_zoom_factor", "eye",
/// "target", "up"}. The zoom factor is 1 by default.
class HRM_API ExcCamera : public IJsonObject
{
public:
    /// The projection.
    enum class HRM_API_TYPE EType : int32_t
    {
        Undefined = 0,
        Perspective = 1,
        Orthographic = 2,
    };

    /// The projection.
    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }
    /// The camera's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The field of view of a perspective camera.
    double perspectiveViewAngle() const { return m_perspectiveViewAngle; }
    void setPerspectiveViewAngle(double angle) { m_perspectiveViewAngle = angle; }
    /// The zoom of an orthographic camera.
    double orthographicZoomFactor() const { return m_orthographicZoomFactor; }
    void setOrthographicZoomFactor(double factor) { m_orthographicZoomFactor = factor; }
    /// Where the camera is.
    const ExcVector3d& eye() const { return m_eye; }
    void setEye(const ExcVector3d& eye) { m_eye = eye; }
    /// The point the camera looks at.
    const ExcVector3d& target() const { return m_target; }
    void setTarget(const ExcVector3d& target) { m_target = target; }
    /// Which way is up.
    const ExcVector3d& up() const { return m_up; }
    void setUp(const ExcVector3d& up) { m_up = up; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcCamera& other) const;
    bool operator!=(const ExcCamera& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    EType m_type = EType::Undefined;
    std::wstring m_name;
    double m_perspectiveViewAngle = 0.0;
    double m_orthographicZoomFactor = 1.0;
    ExcVector3d m_eye;
    ExcVector3d m_target;
    ExcVector3d m_up;
};

/// A clipping plane: {"origin", "u", "v", "plane_coefficients"}. The coefficients (a, b, c, d
/// of ax + by + cz + d = 0) are written only when set; reading an array of them sets them
/// (its leading numbers, at most four).
class HRM_API ExcClippingPlane : public IJsonObject
{
public:
    /// a, b, c, d of the plane ax + by + cz + d = 0.
    using Coefficients = std::array<double, 4>;

    /// A point of the plane.
    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }
    /// The first direction in the plane.
    const ExcVector3d& u() const { return m_u; }
    void setU(const ExcVector3d& u) { m_u = u; }
    /// The second direction in the plane.
    const ExcVector3d& v() const { return m_v; }
    void setV(const ExcVector3d& v) { m_v = v; }
    /// Whether the coefficients are set (and written).
    bool hasCoefficients() const { return m_hasCoefficients; }
    /// The plane's coefficients, when set.
    const Coefficients& coefficients() const { return m_coefficients; }
    void setCoefficients(const Coefficients& coefficients);
    /// Unsets the coefficients.
    void clearCoefficients() { m_hasCoefficients = false; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcClippingPlane& other) const;
    bool operator!=(const ExcClippingPlane& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVector3d m_origin;
    ExcVector3d m_u;
    ExcVector3d m_v;
    bool m_hasCoefficients = false;
    Coefficients m_coefficients{};
};

/// A saved presentation state. Keys after the item's: "hidden", "active", "hidden_text",
/// "clipping_plane", "camera" (both shared, may be null), "annotation_ids",
/// "fta_constructed_geometry_ids", "bodies".
class HRM_API ExcVisuCapture : public ExcVisuItem
{
public:
    /// Whether the capture is hidden.
    bool hidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// Whether the capture is the active one.
    bool active() const { return m_active; }
    void setActive(bool active) { m_active = active; }
    /// The text shown for the capture while hidden.
    const std::wstring& hiddenText() const { return m_hiddenText; }
    void setHiddenText(const std::wstring& text) { m_hiddenText = text; }
    /// The capture's clipping plane, or null.
    const std::shared_ptr<ExcClippingPlane>& clippingPlane() const { return m_clippingPlane; }
    void setClippingPlane(std::shared_ptr<ExcClippingPlane> plane) { m_clippingPlane = std::move(plane); }
    /// The capture's camera, or null.
    const std::shared_ptr<ExcCamera>& camera() const { return m_camera; }
    void setCamera(std::shared_ptr<ExcCamera> camera) { m_camera = std::move(camera); }
    /// The ids of the annotations shown.
    const std::vector<std::wstring>& annotationIds() const { return m_annotationIds; }
    /// Appends an annotation id.
    void addAnnotationId(const std::wstring& id) { m_annotationIds.push_back(id); }
    void setAnnotationIds(std::vector<std::wstring> ids) { m_annotationIds = std::move(ids); }
    /// The ids of the constructed geometry shown.
    const std::vector<std::wstring>& ftaConstructedGeometryIds() const { return m_ftaConstructedGeometryIds; }
    /// Appends a constructed-geometry id.
    void addFtaConstructedGeometryId(const std::wstring& id) { m_ftaConstructedGeometryIds.push_back(id); }
    void setFtaConstructedGeometryIds(std::vector<std::wstring> ids) { m_ftaConstructedGeometryIds = std::move(ids); }
    /// The ids of the bodies shown.
    const std::vector<std::wstring>& bodies() const { return m_bodies; }
    /// Appends a body id.
    void addBody(const std::wstring& id) { m_bodies.push_back(id); }
    void setBodies(std::vector<std::wstring> ids) { m_bodies = std::move(ids); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcVisuCapture& other) const;
    bool operator!=(const ExcVisuCapture& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    bool m_hidden = false;
    bool m_active = false;
    std::wstring m_hiddenText;
    std::shared_ptr<ExcClippingPlane> m_clippingPlane;
    std::shared_ptr<ExcCamera> m_camera;
    std::vector<std::wstring> m_annotationIds;
    std::vector<std::wstring> m_ftaConstructedGeometryIds;
    std::vector<std::wstring> m_bodies;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuFont::EPitch)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuLineAttribute::ELineStyle)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuTexture::EMethod)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuTexture::EWrapMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuTexture::EMappingMode)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuTexture::EFilter)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuMaterial::EColorType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcVisuMaterial::ETextureType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcCamera::EType)
