#include <hrm_api/hrm_api_exchange_mechanical_pmi.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

HRM_ENUM_STRINGS(EPMIAnnotationType,
    {EPMIAnnotationType::Unknown, L"unknown"},
    {EPMIAnnotationType::Datum, L"datum"},
    {EPMIAnnotationType::DatumTarget, L"datum_target"},
    {EPMIAnnotationType::Note, L"note"},
    {EPMIAnnotationType::FlagNote, L"flag_note"},
    {EPMIAnnotationType::NOA, L"NOA"},
    {EPMIAnnotationType::Roughness, L"roughness"},
    {EPMIAnnotationType::GDT, L"GDT"},
    {EPMIAnnotationType::Dimension, L"dimension"})

HRM_ENUM_STRINGS(EPMIOrientation,
    {EPMIOrientation::Horizontal, L"horizontal"},
    {EPMIOrientation::Vertical, L"vertical"},
    {EPMIOrientation::Parallel, L"parallel"},
    {EPMIOrientation::Perpendicular, L"perpendicular"},
    {EPMIOrientation::DimAngle, L"dim_angle"})

HRM_ENUM_STRINGS(ExcPMINote::Text::EFontType,
    {ExcPMINote::Text::EFontType::Simplex, L"simplex"},
    {ExcPMINote::Text::EFontType::Din, L"din"},
    {ExcPMINote::Text::EFontType::Military, L"military"},
    {ExcPMINote::Text::EFontType::ISO, L"ISO"},
    {ExcPMINote::Text::EFontType::LightLine, L"light_line"},
    {ExcPMINote::Text::EFontType::Century, L"century"},
    {ExcPMINote::Text::EFontType::IGES1001, L"IGES_1001"},
    {ExcPMINote::Text::EFontType::IGES1002, L"IGES_1002"},
    {ExcPMINote::Text::EFontType::IGES1003, L"IGES_1003"})

HRM_ENUM_STRINGS(ExcPMIDatumTarget::EType,
    {ExcPMIDatumTarget::EType::Unknown, L"unknown"},
    {ExcPMIDatumTarget::EType::Point, L"point"},
    {ExcPMIDatumTarget::EType::Line, L"line"},
    {ExcPMIDatumTarget::EType::AreaCircular, L"area_circular"},
    {ExcPMIDatumTarget::EType::AreaRectangular, L"area_rectangular"},
    {ExcPMIDatumTarget::EType::AreaFace, L"area_face"},
    {ExcPMIDatumTarget::EType::Feature, L"feature"},
    {ExcPMIDatumTarget::EType::UserDefined, L"user_defined"})

template <class Members>
void ExcPMILeader::members(Members& m)
{
    m.values(L"points", m_points);
}
HRM_MEMBER_IO(ExcPMILeader, "ExcPMILeader")
HRM_EQUALITY_AS_JSON(ExcPMILeader)

template <class Members>
void ExcPMIObject::members(Members& m)
{
    m.string(L"name", m_name).string(L"id", m_id).boolean(L"hidden", m_hidden);
}
HRM_MEMBER_IO(ExcPMIObject, "ExcPMIObject")

void ExcPMIAnnotation::addLinkedElement(const std::shared_ptr<ExcEntity>& element)
{
    appendChild(m_linkedElements, element, "ExcPMIAnnotation: attempt to add null linked element");
}

void ExcPMIAnnotation::addLinkedElements(const Entities& elements)
{
    for (const auto& element : elements)
        addLinkedElement(element);
}

void ExcPMIAnnotation::addLeader(const std::shared_ptr<ExcPMILeader>& leader)
{
    appendChild(m_leaders, leader, "ExcPMIAnnotation: attempt to add null PMI leader.");
}

void ExcPMIAnnotation::addLeaders(const Leaders& leaders)
{
    for (const auto& leader : leaders)
        addLeader(leader);
}

template <class Members>
void ExcPMIAnnotation::members(Members& m)
{
    ExcPMIObject::members(m);
    // "type" is the class's to decide: written, never read. "position" is read first and
    // written after "z_depth".
    if constexpr (Members::reading)
        m.object(L"position", m_position);
    else
        m.enumeration(L"type", type());
    m.enumeration(L"orientation", m_orientation).number(L"angle", m_angle).number(L"z_depth", m_zDepth);
    if constexpr (!Members::reading)
        m.object(L"position", m_position);
    m.children(L"linked_elements", m_linkedElements).children(L"leaders", m_leaders);
}
HRM_MEMBER_IO(ExcPMIAnnotation, "ExcPMIAnnotation")

void ExcPMINote::Text::getRGBA(double& red, double& green, double& blue, double& alpha) const
{
    red = m_rgba[0];
    green = m_rgba[1];
    blue = m_rgba[2];
    alpha = m_rgba[3];
}

template <class Members>
void ExcPMINote::Text::members(Members& m)
{
    m.string(L"label", m_label)
        .string(L"font_name", m_fontName)
        .enumeration(L"font_type", m_fontType)
        .boolean(L"fixed_pitch", m_fixedPitch)
        .boolean(L"bold", m_bold)
        .boolean(L"italic", m_italic)
        .boolean(L"underline", m_underline)
        .boolean(L"strike_through", m_strikeThrough)
        .boolean(L"overline", m_overline)
        .number(L"height", m_height)
        .number(L"ratio", m_ratio)
        .number(L"slant", m_slant)
        .leading(L"color", m_rgba);
}
HRM_MEMBER_IO(ExcPMINote::Text, "ExcPMINote::Text")
HRM_EQUALITY_AS_JSON(ExcPMINote::Text)

void ExcPMINote::addText(const std::shared_ptr<Text>& text)
{
    appendChild(m_texts, text, "ExcPMINote: attempt to add null text.");
}

void ExcPMINote::addTexts(const Texts& texts)
{
    for (const auto& text : texts)
        addText(text);
}

template <class Members>
void ExcPMINote::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.children(L"texts", m_texts).boolean(L"is_flag_note", m_flagNote).boolean(L"is_noa", m_noa);
}
HRM_MEMBER_IO(ExcPMINote, "ExcPMINote")
HRM_EQUALITY_AS_JSON(ExcPMINote)

template <class Members>
void ExcPMIDatum::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.string(L"label", m_label).strings(L"target_ids", m_targetIds);
}
HRM_MEMBER_IO(ExcPMIDatum, "ExcPMIDatum")
HRM_EQUALITY_AS_JSON(ExcPMIDatum)

template <class Members>
void ExcPMIDatumTarget::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.string(L"label", m_label)
        .enumeration(L"target_type", m_targetType)
        .boolean(L"has_diameter", m_hasDiameter)
        .string(L"upper_text", m_upperText)
        .string(L"lower_text", m_lowerText)
        .leading(L"target_zone", m_zone);
}
HRM_MEMBER_IO(ExcPMIDatumTarget, "ExcPMIDatumTarget")
HRM_EQUALITY_AS_JSON(ExcPMIDatumTarget)

} // namespace hrm
