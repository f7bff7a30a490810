#include <hrm_api/hrm_api_legacy_options.h>

#include "hrm_api/hrm_api_options_keys.h"

namespace hrm {

// "file" and "temporary_dwg" are written and read by hand: both are required.
const OptionsKeyTable& LegacyImportOptionsImpl::keyTable()
{
    using O = LegacyImportOptionsImpl;
    static const OptionsKeyTable table = OptionsKeys<O>("LegacyImportOptions")
        .key(L"use_interop_mp", &O::m_useInteropMP)
        .key(L"pmi_mode", &O::m_pmiMode)
        .key(L"product_structure_mode", &O::m_productStructureMode)
        .key(L"colors_mode", &O::m_colorsMode)
        .key(L"hidden_parts_mode", &O::m_hiddenPartsMode)
        .key(L"ins_units_def_source", &O::m_insertionUnitsSource)
        .key(L"ins_units_scaling", &O::m_insertionUnitsScaling)
        .key(L"import_acis_with_ardenix", &O::m_importAcisWithArdenix)
        .key(L"step_rotate_yz", &O::m_stepRotateYZ)
        .key(L"solidworks_rotate_yz", &O::m_solidWorksRotateYZ)
        .key(L"edge_attribute_mode", &O::m_edgeAttributeMode)
        .key(L"alternate_search_paths", &O::m_alternateSearchPaths)
        .key(L"debug_log", &O::m_debugLog);
    return table;
}

void LegacyImportOptionsImpl::readObject(const JsonValue& value)
{
    JsonObjectReader in = strictOptionsReader(value);
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    m_temporaryDwg = requiredString(in, L"temporary_dwg", "Json document has no valid temporary dwg path.");
    keyTable().read(in, *this);
}

void LegacyImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    JsonObjectWriter out(value, allocator);
    out.string(L"file", m_file).string(L"temporary_dwg", m_temporaryDwg);
    keyTable().write(out, *this);
}

bool LegacyImportOptionsImpl::operator==(const LegacyImportOptionsImpl& other) const
{
    return writeSameJson(*this, other);
}

// "file" is written and read by hand: it is required.
const OptionsKeyTable& LegacyExportOptionsImpl::keyTable()
{
    using O = LegacyExportOptionsImpl;
    static const OptionsKeyTable table = OptionsKeys<O>("LegacyExportOptions")
        .key(L"ins_units_def_target", &O::m_insertionUnitsTarget)
        .key(L"selection_set", &O::m_selectionSet)
        .key(L"component_names", &O::m_componentNames)
        .key(L"hidden_components", &O::m_hiddenComponents)
        .key(L"acis_format_version", &O::m_acisFormatVersion)
        .key(L"parasolid_format_version", &O::m_parasolidFormatVersion)
        .key(L"catiav4_format_version", &O::m_catiaV4FormatVersion)
        .key(L"catiav5_format_version", &O::m_catiaV5FormatVersion)
        .key(L"step_format_version", &O::m_stepFormatVersion)
        .key(L"xcgm_format_version", &O::m_xcgmFormatVersion);
    return table;
}

void LegacyExportOptionsImpl::readObject(const JsonValue& value)
{
    JsonObjectReader in = strictOptionsReader(value);
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    keyTable().read(in, *this);
}

void LegacyExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    JsonObjectWriter out(value, allocator);
    out.string(L"file", m_file);
    keyTable().write(out, *this);
}

bool LegacyExportOptionsImpl::operator==(const LegacyExportOptionsImpl& other) const
{
    return writeSameJson(*this, other);
}

} // namespace hrm
