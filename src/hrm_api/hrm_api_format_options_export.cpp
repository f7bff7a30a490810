#include <hrm_api/hrm_api_format_options_export.h>

#include "hrm_api/hrm_api_json_members.h"

namespace hrm::exp {

template <class Members>
void Options3DXML::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"default_color_mode", m_defaultColorMode)
        .enumeration(L"graphical_pmi_container_mode", m_graphicalPMIContainerMode);
}
HRM_MEMBER_IO(Options3DXML, "Options3DXML")

template <class Members>
void OptionsAcis::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"units", m_units);
}
HRM_MEMBER_IO(OptionsAcis, "OptionsAcis")

template <class Members>
void OptionsCatiaV4::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"author_name", m_authorName)
        .string(L"model_name", m_modelName)
        .enumeration(L"version", m_version)
        .enumeration(L"edge_curve_mode", m_edgeCurveMode);
}
HRM_MEMBER_IO(OptionsCatiaV4, "OptionsCatiaV4")

template <class Members>
void OptionsCatiaV5::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"default_color_mode", m_defaultColorMode)
        .enumeration(L"cgr_compatibility_mode", m_cgrCompatibilityMode);
}
HRM_MEMBER_IO(OptionsCatiaV5, "OptionsCatiaV5")

template <class Members>
void OptionsIGES::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"units", m_units);
}
HRM_MEMBER_IO(OptionsIGES, "OptionsIGES")

template <class Members>
void OptionsParasolid::members(Members& m)
{
    IFormatOptions::members(m);
}
HRM_MEMBER_IO(OptionsParasolid, "OptionsParasolid")

template <class Members>
void OptionsSTEP::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"units", m_units)
        .enumeration(L"version", m_version)
        .storedDouble(L"tolerance", m_fileTolerance)
        .enumeration(L"layer_name_mode", m_layerNameMode);
}
HRM_MEMBER_IO(OptionsSTEP, "OptionsSTEP")

template <class Members>
void OptionsXCGM::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"default_color_mode", m_defaultColorMode)
        .enumeration(L"graphical_pmi_container_mode", m_graphicalPMIContainerMode);
}
HRM_MEMBER_IO(OptionsXCGM, "OptionsXCGM")

template <class Members>
void OptionsSTL::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"save_mode", m_saveMode);
}
HRM_MEMBER_IO(OptionsSTL, "OptionsSTL")

template <class Members>
void OptionsPDF::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"title", m_title)
        .string(L"author_name", m_authorName)
        .enumeration(L"units", m_units)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .object(L"background_color", m_backgroundColor, Nested::OnlyObjects);
}
HRM_MEMBER_IO(OptionsPDF, "OptionsPDF")

} // namespace hrm::exp
