#include <hrm_api/hrm_api_legacy_options.h>

#include "hrm_api/hrm_api_json_members.h"

#include <stdexcept>

namespace hrm {

template <class Members>
void LegacyImportOptionsImpl::members(Members& m)
{
    // Both paths are required: readObject reads them before the list.
    if constexpr (!Members::reading)
        m.string(L"file", m_file).string(L"temporary_dwg", m_temporaryDwg);
    m.boolean(L"use_interop_mp", m_useInteropMP)
        .enumeration(L"pmi_mode", m_pmiMode)
        .enumeration(L"product_structure_mode", m_productStructureMode)
        .enumeration(L"colors_mode", m_colorsMode)
        .enumeration(L"hidden_parts_mode", m_hiddenPartsMode)
        .enumeration(L"ins_units_def_source", m_insertionUnitsSource)
        .boolean(L"ins_units_scaling", m_insertionUnitsScaling)
        .boolean(L"import_acis_with_ardenix", m_importAcisWithArdenix)
        .boolean(L"step_rotate_yz", m_stepRotateYZ)
        .boolean(L"solidworks_rotate_yz", m_solidWorksRotateYZ)
        .enumeration(L"edge_attribute_mode", m_edgeAttributeMode)
        .string(L"alternate_search_paths", m_alternateSearchPaths)
        .boolean(L"debug_log", m_debugLog);
}

void LegacyImportOptionsImpl::readObject(const JsonValue& value)
{
    MemberReader in = strictReader(value, "!object.IsObject()");
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    m_temporaryDwg = requiredString(in, L"temporary_dwg", "Json document has no valid temporary dwg path.");
    members(in);
}

void LegacyImportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

bool LegacyImportOptionsImpl::operator==(const LegacyImportOptionsImpl& other) const
{
    return writeSameJson(*this, other);
}

template <class Members>
void LegacyExportOptionsImpl::members(Members& m)
{
    // The path is required: readObject reads it before the list.
    if constexpr (!Members::reading)
        m.string(L"file", m_file);
    m.enumeration(L"ins_units_def_target", m_insertionUnitsTarget)
        .string(L"selection_set", m_selectionSet)
        .boolean(L"component_names", m_componentNames)
        .enumeration(L"hidden_components", m_hiddenComponents)
        .enumeration(L"acis_format_version", m_acisFormatVersion)
        .enumeration(L"parasolid_format_version", m_parasolidFormatVersion)
        .enumeration(L"catiav4_format_version", m_catiaV4FormatVersion)
        .enumeration(L"catiav5_format_version", m_catiaV5FormatVersion)
        .enumeration(L"step_format_version", m_stepFormatVersion)
        .enumeration(L"xcgm_format_version", m_xcgmFormatVersion);
}

void LegacyExportOptionsImpl::readObject(const JsonValue& value)
{
    MemberReader in = strictReader(value, "!object.IsObject()");
    m_file = requiredString(in, L"file", "Json document has no valid file path.");
    members(in);
}

void LegacyExportOptionsImpl::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    writeMembers(*this, value, allocator);
}

bool LegacyExportOptionsImpl::operator==(const LegacyExportOptionsImpl& other) const
{
    return writeSameJson(*this, other);
}

} // namespace hrm
