#include <hrm_api/hrm_api_exchange_visualization_attributes.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_exchange_visualization_members.h"

#include <stdexcept>

namespace hrm {

HRM_ENUM_STRINGS(ExcVisuFont::EPitch,
    {ExcVisuFont::EPitch::Unknown, L"unknown"},
    {ExcVisuFont::EPitch::Fixed, L"fixed"},
    {ExcVisuFont::EPitch::Variable, L"variable"})

// 7 has no word: it writes as "undefined" and no word reads as 7.
HRM_ENUM_STRINGS(ExcVisuLineAttribute::ELineStyle,
    {ExcVisuLineAttribute::ELineStyle::Undefined, L"undefined"},
    {ExcVisuLineAttribute::ELineStyle::SolidLine, L"solid_line"},
    {ExcVisuLineAttribute::ELineStyle::DashDotLine, L"dash_dot_line"},
    {ExcVisuLineAttribute::ELineStyle::DashLine, L"dash_line"},
    {ExcVisuLineAttribute::ELineStyle::DotLine, L"dot_line"},
    {ExcVisuLineAttribute::ELineStyle::DashDotDotLine, L"dash_dot_dot_line"},
    {ExcVisuLineAttribute::ELineStyle::DashDotDotDotLine, L"dash_dot_dot_dot_line"},
    {ExcVisuLineAttribute::ELineStyle::CenterLine, L"center_line"},
    {ExcVisuLineAttribute::ELineStyle::PhantomLine, L"phantom_line"})

HRM_ENUM_STRINGS(ExcVisuTexture::EMethod,
    {ExcVisuTexture::EMethod::Decal, L"decal"},
    {ExcVisuTexture::EMethod::Modulate, L"modulate"},
    {ExcVisuTexture::EMethod::Add, L"add"},
    {ExcVisuTexture::EMethod::Replace, L"replace"})

HRM_ENUM_STRINGS(ExcVisuTexture::EWrapMode,
    {ExcVisuTexture::EWrapMode::Repeat, L"repeat"},
    {ExcVisuTexture::EWrapMode::Clamp, L"clamp"},
    {ExcVisuTexture::EWrapMode::Border, L"border"},
    {ExcVisuTexture::EWrapMode::Edge, L"edge"},
    {ExcVisuTexture::EWrapMode::Mirror, L"mirror"})

HRM_ENUM_STRINGS(ExcVisuTexture::EMappingMode,
    {ExcVisuTexture::EMappingMode::Uv, L"uv"},
    {ExcVisuTexture::EMappingMode::Planar, L"planar"},
    {ExcVisuTexture::EMappingMode::Spherical, L"spherical"},
    {ExcVisuTexture::EMappingMode::Cylindrical, L"cylindrical"},
    {ExcVisuTexture::EMappingMode::EnvironmentSpherical, L"environment_spherical"},
    {ExcVisuTexture::EMappingMode::EnvironmentCubic, L"environment_cubic"})

HRM_ENUM_STRINGS(ExcVisuTexture::EFilter,
    {ExcVisuTexture::EFilter::Nearest, L"nearest"},
    {ExcVisuTexture::EFilter::Linear, L"linear"},
    {ExcVisuTexture::EFilter::NearestMipmapNearest, L"nearest_mipmap_nearest"},
    {ExcVisuTexture::EFilter::NearestMipmapLinear, L"nearest_mipmap_linear"},
    {ExcVisuTexture::EFilter::LinearMipmapLinear, L"linear_mipmap_linear"},
    {ExcVisuTexture::EFilter::LinearMipmapNearest, L"linear_mipmap_nearest"})

HRM_ENUM_STRINGS(ExcVisuMaterial::EColorType,
    {ExcVisuMaterial::EColorType::Unknown, L"unknown"},
    {ExcVisuMaterial::EColorType::Ambient, L"ambient"},
    {ExcVisuMaterial::EColorType::Diffuse, L"diffuse"},
    {ExcVisuMaterial::EColorType::Specular, L"specular"},
    {ExcVisuMaterial::EColorType::Emissive, L"emissive"},
    {ExcVisuMaterial::EColorType::Transparency, L"transparency"},
    {ExcVisuMaterial::EColorType::Reflection, L"reflection"})

HRM_ENUM_STRINGS(ExcVisuMaterial::ETextureType,
    {ExcVisuMaterial::ETextureType::Unknown, L"unknown"},
    {ExcVisuMaterial::ETextureType::AmbientColor, L"ambient_color"},
    {ExcVisuMaterial::ETextureType::AmbientCoefficient, L"ambient_coefficient"},
    {ExcVisuMaterial::ETextureType::DiffuseColor, L"diffuse_color"},
    {ExcVisuMaterial::ETextureType::DiffuseCoefficient, L"diffuse_coefficient"},
    {ExcVisuMaterial::ETextureType::SpecularColor, L"specular_color"},
    {ExcVisuMaterial::ETextureType::SpecularCoefficient, L"specular_coefficient"},
    {ExcVisuMaterial::ETextureType::EmissiveColor, L"emissive_color"},
    {ExcVisuMaterial::ETextureType::EmissiveCoefficient, L"emissive_coefficient"},
    {ExcVisuMaterial::ETextureType::Normal, L"normal"})

HRM_ENUM_STRINGS(ExcCamera::EType,
    {ExcCamera::EType::Undefined, L"undefined"},
    {ExcCamera::EType::Perspective, L"perspective"},
    {ExcCamera::EType::Orthographic, L"orthographic"})

namespace {

// The setting of `direction` in `settings`, or std::invalid_argument(message).
template <class Settings>
auto& perDirection(Settings& settings, std::size_t direction, const char* message)
{
    if (direction >= settings.size())
        throw std::invalid_argument(message);
    return settings[direction];
}

constexpr const char* wrapModeDirections = "Texture wrap mode has only 0 (U) and 1 (V) directions.";
constexpr const char* scaleDirections = "Texture scale has only 0 (U) and 1 (V) directions.";
constexpr const char* translationDirections = "Texture translation has only 0 (U) and 1 (V) directions.";
constexpr const char* rotationDirections = "Texture rotation has only 0 (U), 1 (V) and 2 (W) directions.";

// The member `key` of `entry` when `entry` is an object that has it, else null.
const JsonValue* entryMember(const JsonValue& entry, const wchar_t* key)
{
    if (!entry.IsObject())
        return nullptr;
    const auto it = entry.FindMember(key);
    return it == entry.MemberEnd() ? nullptr : &it->value;
}

// One typed entry as written: {"type": word, "value": value}.
template <class E>
JsonValue typedEntry(E type, JsonValue&& value, JsonAllocator& allocator)
{
    JsonValue entry(rapidjson::kObjectType);
    entry.AddMember(L"type", members_detail::writeSlot(type, allocator), allocator);
    entry.AddMember(L"value", value, allocator);
    return entry;
}

} // namespace

template <class Members>
void ExcVisuItem::members(Members& m)
{
    m.string(L"display_name", m_displayName).string(L"id", m_id).string(L"mechanical_id", m_mechanicalId);
}
// Instantiated for the leaf classes of the scene graph, defined in another source.
template void ExcVisuItem::members<MemberReader>(MemberReader&);
template void ExcVisuItem::members<MemberWriter>(MemberWriter&);

template <class Members>
void ExcVisuFont::members(Members& m)
{
    m.string(L"name", m_name)
        .number(L"text_height", m_textHeight)
        .enumeration(L"font_pitch", m_fontPitch)
        .number(L"spacing_factor", m_spacingFactor)
        .number(L"width_scaling_factor", m_widthScalingFactor);
}
HRM_MEMBER_IO(ExcVisuFont, "ExcVisuFont")
HRM_EQUALITY_AS_JSON(ExcVisuFont)

template <class Members>
void ExcVisuLineAttribute::members(Members& m)
{
    m.number(L"line_weight", m_lineWeight).enumeration(L"line_style", m_lineStyle);
}
HRM_MEMBER_IO(ExcVisuLineAttribute, "ExcVisuLineAttribute")
HRM_EQUALITY_AS_JSON(ExcVisuLineAttribute)

ExcVisuTexture::EWrapMode ExcVisuTexture::wrapMode(std::size_t d) const
{
    return perDirection(m_wrapMode, d, wrapModeDirections);
}

void ExcVisuTexture::setWrapMode(std::size_t d, EWrapMode mode)
{
    perDirection(m_wrapMode, d, wrapModeDirections) = mode;
}

double ExcVisuTexture::uvTranslation(std::size_t d) const
{
    return perDirection(m_uvTranslation, d, translationDirections);
}

void ExcVisuTexture::setUVTranslation(std::size_t d, double translation)
{
    perDirection(m_uvTranslation, d, translationDirections) = translation;
}

double ExcVisuTexture::uvScale(std::size_t d) const
{
    return perDirection(m_uvScale, d, scaleDirections);
}

void ExcVisuTexture::setUVScale(std::size_t d, double scale)
{
    perDirection(m_uvScale, d, scaleDirections) = scale;
}

double ExcVisuTexture::uvRotation(std::size_t d) const
{
    return perDirection(m_uvRotation, d, rotationDirections);
}

void ExcVisuTexture::setUVRotation(std::size_t d, double rotation)
{
    perDirection(m_uvRotation, d, rotationDirections) = rotation;
}

template <class Members>
void ExcVisuTexture::members(Members& m)
{
    m.string(L"name", m_name)
        .boolean(L"swap_uv", m_swapUV)
        .enumeration(L"method", m_method)
        .leading(L"wrap_mode", m_wrapMode)
        .enumeration(L"mapping_mode", m_mappingMode)
        .enumeration(L"filter", m_filter)
        .number(L"alpha", m_alpha)
        .string(L"file", m_file)
        .string(L"name_uv", m_nameUV)
        .leading(L"uv_translation", m_uvTranslation)
        .leading(L"uv_scale", m_uvScale)
        .leading(L"uv_rotation", m_uvRotation)
        .boolean(L"use_material", m_useMaterial);
}
HRM_MEMBER_IO(ExcVisuTexture, "ExcVisuTexture")
HRM_EQUALITY_AS_JSON(ExcVisuTexture)

void ExcVisuMaterial::addTexture(ETextureType type, const std::shared_ptr<ExcVisuTexture>& texture)
{
    if (!texture) {
        HRM_LOG(ax_herm::Warning) << "ExcVisuMaterial: attempt to add null Texture object.";
        return;
    }
    m_textures[type].push_back(texture);
}

template <class Members>
void ExcVisuMaterial::typedColors(Members& m)
{
    if constexpr (Members::reading) {
        const JsonValue* colors = m.find(L"colors");
        if (!colors || !colors->IsArray())
            return;
        for (const JsonValue& entry : colors->GetArray()) {
            const JsonValue* type = entryMember(entry, L"type");
            const JsonValue* value = entryMember(entry, L"value");
            if (!type || !type->IsString() || !value || !value->IsArray() || value->Size() < 4) {
                HRM_LOG(ax_herm::Error)
                    << "ExcVisuMaterial: !colorType.IsString() || !colorValue.IsArray() || colorValue.GetArray().Size() < 4";
                continue;
            }
            Rgba& color = m_colors[enumFromJson<EColorType>(*type)];
            for (rapidjson::SizeType i = 0; i < 4; ++i)
                color[i] = (*value)[i].IsNumber() ? (*value)[i].GetDouble() : 0.0;
        }
    } else {
        JsonValue colors(rapidjson::kArrayType);
        for (const auto& [type, color] : m_colors)
            colors.PushBack(typedEntry(type, jsonDoubles(color.begin(), color.end(), m.allocator()), m.allocator()), m.allocator());
        m.writtenIf(!m_colors.empty()).add(L"colors", std::move(colors));
    }
}

template <class Members>
void ExcVisuMaterial::typedTextures(Members& m)
{
    if constexpr (Members::reading) {
        const JsonValue* textures = m.find(L"textures");
        if (!textures || !textures->IsArray())
            return;
        for (const JsonValue& entry : textures->GetArray()) {
            const JsonValue* type = entryMember(entry, L"type");
            const JsonValue* value = entryMember(entry, L"value");
            if (!type || !type->IsString() || !value || !value->IsArray()) {
                HRM_LOG(ax_herm::Error) << "ExcVisuMaterial: !textureType.IsString() || !textureArray.IsArray()";
                continue;
            }
            const ETextureType textureType = enumFromJson<ETextureType>(*type);
            readChildArray<ExcVisuTexture>(*value, [&](std::shared_ptr<ExcVisuTexture> texture) { addTexture(textureType, texture); });
        }
    } else {
        JsonValue textures(rapidjson::kArrayType);
        for (const auto& [type, list] : m_textures) {
            JsonValue array;
            writeChildArray(list, array, m.allocator());
            textures.PushBack(typedEntry(type, std::move(array), m.allocator()), m.allocator());
        }
        m.writtenIf(!m_textures.empty()).add(L"textures", std::move(textures));
    }
}

template <class Members>
void ExcVisuMaterial::members(Members& m)
{
    m.string(L"name", m_name);
    typedColors(m);
    m.number(L"shininess", m_shininess)
        .string(L"bump", m_bump)
        .number(L"bump_factor", m_bumpFactor)
        .string(L"normal_map", m_normalMap);
    typedTextures(m);
}
HRM_MEMBER_IO(ExcVisuMaterial, "ExcVisuMaterial")
HRM_EQUALITY_AS_JSON(ExcVisuMaterial)

HRM_VISU_ADDERS(ExcVisuAttributes, ExcVisuMaterial, addMaterial, addMaterials, m_materials, "Material")

template <class Members>
void ExcVisuAttributes::members(Members& m)
{
    m.child(L"font", m_font)
        .object(L"color", m_color)
        .boolean(L"hidden", m_hidden)
        .writtenIf(!m_materials.empty())
        .children(L"materials", m_materials)
        .child(L"line_attribute", m_lineAttribute);
}
HRM_MEMBER_IO(ExcVisuAttributes, "ExcVisuAttributes")
HRM_EQUALITY_AS_JSON(ExcVisuAttributes)

template <class Members>
void ExcVisuView::members(Members& m)
{
    ExcVisuItem::members(m);
    m.boolean(L"hidden", m_hidden)
        .object(L"origin", m_origin)
        .object(L"direction_u", m_directionU)
        .object(L"direction_v", m_directionV)
        .writtenIf(!m_annotationIds.empty())
        .strings(L"annotation_ids", m_annotationIds);
}
HRM_MEMBER_IO(ExcVisuView, "ExcVisuView")
HRM_EQUALITY_AS_JSON(ExcVisuView)

template <class Members>
void ExcCamera::members(Members& m)
{
    m.enumeration(L"type", m_type)
        .string(L"name", m_name)
        .number(L"perspective_view_angle", m_perspectiveViewAngle)
        .number(L"orthographic_zoom_factor", m_orthographicZoomFactor)
        .object(L"eye", m_eye)
        .object(L"target", m_target)
        .object(L"up", m_up);
}
HRM_MEMBER_IO(ExcCamera, "ExcCamera")
HRM_EQUALITY_AS_JSON(ExcCamera)

void ExcClippingPlane::setCoefficients(const Coefficients& coefficients)
{
    m_coefficients = coefficients;
    m_hasCoefficients = true;
}

template <class Members>
void ExcClippingPlane::members(Members& m)
{
    m.object(L"origin", m_origin).object(L"u", m_u).object(L"v", m_v);
    if constexpr (Members::reading) {
        if (const JsonValue* coefficients = m.find(L"plane_coefficients"); coefficients && coefficients->IsArray())
            m_hasCoefficients = true;
    }
    m.writtenIf(m_hasCoefficients).leading(L"plane_coefficients", m_coefficients);
}
HRM_MEMBER_IO(ExcClippingPlane, "ExcClippingPlane")
HRM_EQUALITY_AS_JSON(ExcClippingPlane)

template <class Members>
void ExcVisuCapture::members(Members& m)
{
    ExcVisuItem::members(m);
    m.boolean(L"hidden", m_hidden)
        .boolean(L"active", m_active)
        .string(L"hidden_text", m_hiddenText)
        .child(L"clipping_plane", m_clippingPlane)
        .child(L"camera", m_camera)
        .writtenIf(!m_annotationIds.empty())
        .strings(L"annotation_ids", m_annotationIds)
        .writtenIf(!m_ftaConstructedGeometryIds.empty())
        .strings(L"fta_constructed_geometry_ids", m_ftaConstructedGeometryIds)
        .writtenIf(!m_bodies.empty())
        .strings(L"bodies", m_bodies);
}
HRM_MEMBER_IO(ExcVisuCapture, "ExcVisuCapture")
HRM_EQUALITY_AS_JSON(ExcVisuCapture)

} // namespace hrm
