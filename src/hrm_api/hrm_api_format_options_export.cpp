#include <hrm_api/hrm_api_format_options_export.h>

#include "hrm_api/hrm_api_options_keys.h"

namespace hrm::exp {

const OptionsKeyTable& Options3DXML::keyTable()
{
    using O = Options3DXML;
    static const OptionsKeyTable table = OptionsKeys<O>("Options3DXML")
        .key(L"default_color_mode", &O::m_defaultColorMode)
        .key(L"graphical_pmi_container_mode", &O::m_graphicalPMIContainerMode);
    return table;
}

const OptionsKeyTable& OptionsAcis::keyTable()
{
    using O = OptionsAcis;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsAcis")
        .key(L"units", &O::m_units);
    return table;
}

const OptionsKeyTable& OptionsCatiaV4::keyTable()
{
    using O = OptionsCatiaV4;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCatiaV4")
        .key(L"author_name", &O::m_authorName)
        .key(L"model_name", &O::m_modelName)
        .key(L"version", &O::m_version)
        .key(L"edge_curve_mode", &O::m_edgeCurveMode);
    return table;
}

const OptionsKeyTable& OptionsCatiaV5::keyTable()
{
    using O = OptionsCatiaV5;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCatiaV5")
        .key(L"default_color_mode", &O::m_defaultColorMode)
        .key(L"cgr_compatibility_mode", &O::m_cgrCompatibilityMode);
    return table;
}

const OptionsKeyTable& OptionsIGES::keyTable()
{
    using O = OptionsIGES;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsIGES")
        .key(L"units", &O::m_units);
    return table;
}

const OptionsKeyTable& OptionsParasolid::keyTable()
{
    static const OptionsKeyTable table = OptionsKeys<OptionsParasolid>("OptionsParasolid");
    return table;
}

const OptionsKeyTable& OptionsSTEP::keyTable()
{
    using O = OptionsSTEP;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsSTEP")
        .key(L"units", &O::m_units)
        .key(L"version", &O::m_version)
        .key(L"tolerance", &O::m_fileTolerance)
        .key(L"layer_name_mode", &O::m_layerNameMode);
    return table;
}

const OptionsKeyTable& OptionsXCGM::keyTable()
{
    using O = OptionsXCGM;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsXCGM")
        .key(L"default_color_mode", &O::m_defaultColorMode)
        .key(L"graphical_pmi_container_mode", &O::m_graphicalPMIContainerMode);
    return table;
}

const OptionsKeyTable& OptionsSTL::keyTable()
{
    using O = OptionsSTL;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsSTL")
        .key(L"save_mode", &O::m_saveMode);
    return table;
}

const OptionsKeyTable& OptionsPDF::keyTable()
{
    using O = OptionsPDF;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsPDF")
        .key(L"title", &O::m_title)
        .key(L"author_name", &O::m_authorName)
        .key(L"units", &O::m_units)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"background_color", &O::m_backgroundColor);
    return table;
}

} // namespace hrm::exp
