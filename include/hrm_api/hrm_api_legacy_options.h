#pragma once

/// @file
/// The options of import and export commands sent to the service's legacy interface.

#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_export.h>
#include <hrm_api/hrm_api_enums_legacy.h>
#include <hrm_api/hrm_api_enums_options.h>
#include <hrm_api/hrm_api_export.h>

#include <string>

namespace hrm {

/// The options of an import command over the legacy interface, which produces a drawing.
class HRM_API LegacyImportOptions : public HermetorOptions
{
public:
    EOperationType operationType() const override { return EOperationType::Import; }

    /// The path of the file to import.
    virtual const std::wstring& file() const = 0;
    virtual void setFile(const std::wstring& file) = 0;
    /// Where the legacy translator leaves the drawing it produces.
    virtual const std::wstring& temporaryDwg() const = 0;
    virtual void setTemporaryDwg(const std::wstring& path) = 0;
    /// Whether the translator is to run in multi-process mode.
    virtual bool useInteropMP() const = 0;
    virtual void setUseInteropMP(bool value) = 0;
    /// How PMI is imported.
    virtual ELegacyPMIMode pmiMode() const = 0;
    virtual void setPmiMode(ELegacyPMIMode value) = 0;
    /// How the product structure is imported.
    virtual ELegacyProductStructureMode productStructureMode() const = 0;
    virtual void setProductStructureMode(ELegacyProductStructureMode value) = 0;
    /// How colours are matched to the drawing's.
    virtual ELegacyColorsMode colorsMode() const = 0;
    virtual void setColorsMode(ELegacyColorsMode value) = 0;
    /// Whether and how hidden parts are imported.
    virtual ELegacyHiddenPartsImportMode hiddenPartsMode() const = 0;
    virtual void setHiddenPartsMode(ELegacyHiddenPartsImportMode value) = 0;
    /// The units the source file's insertion units are taken for.
    virtual ELegacyInsertionUnits insertionUnitsSource() const = 0;
    virtual void setInsertionUnitsSource(ELegacyInsertionUnits value) = 0;
    /// Whether the model is scaled from its insertion units to the drawing's.
    virtual bool insertionUnitsScaling() const = 0;
    virtual void setInsertionUnitsScaling(bool value) = 0;
    /// Whether ACIS files are imported by the host itself.
    virtual bool importAcisWithArdenix() const = 0;
    virtual void setImportAcisWithArdenix(bool value) = 0;
    /// Whether STEP models are turned from Y up to Z up.
    virtual bool stepRotateYZ() const = 0;
    virtual void setStepRotateYZ(bool value) = 0;
    /// Whether SolidWorks models are turned from Y up to Z up.
    virtual bool solidWorksRotateYZ() const = 0;
    virtual void setSolidWorksRotateYZ(bool value) = 0;
    /// Which edges carry attributes.
    virtual EEdgeAttributeModeType edgeAttributeMode() const = 0;
    virtual void setEdgeAttributeMode(EEdgeAttributeModeType value) = 0;
    /// Further folders where the files of an assembly's parts are looked for.
    virtual const std::wstring& alternateSearchPaths() const = 0;
    virtual void setAlternateSearchPaths(const std::wstring& paths) = 0;
    /// Whether the translator writes a debug log.
    virtual bool debugLog() const = 0;
    virtual void setDebugLog(bool value) = 0;
};

/// The options of an export command over the legacy interface, which writes the host's drawing.
class HRM_API LegacyExportOptions : public HermetorOptions
{
public:
    EOperationType operationType() const override { return EOperationType::Export; }

    /// The path of the file to write.
    virtual const std::wstring& file() const = 0;
    virtual void setFile(const std::wstring& file) = 0;
    /// The units the written file's insertion units are set to.
    virtual ELegacyInsertionUnits insertionUnitsTarget() const = 0;
    virtual void setInsertionUnitsTarget(ELegacyInsertionUnits value) = 0;
    /// The name of the host's selection set to export; empty: the whole model.
    virtual const std::wstring& selectionSet() const = 0;
    virtual void setSelectionSet(const std::wstring& name) = 0;
    /// Whether components keep their names in the written file.
    virtual bool componentNames() const = 0;
    virtual void setComponentNames(bool value) = 0;
    /// Whether and how hidden components are exported.
    virtual ELegacyHiddenComponentsExportMode hiddenComponents() const = 0;
    virtual void setHiddenComponents(ELegacyHiddenComponentsExportMode value) = 0;
    /// The ACIS version to write.
    virtual EExportVersionAcis acisFormatVersion() const = 0;
    virtual void setAcisFormatVersion(EExportVersionAcis value) = 0;
    /// The Parasolid version to write.
    virtual EExportVersionParasolid parasolidFormatVersion() const = 0;
    virtual void setParasolidFormatVersion(EExportVersionParasolid value) = 0;
    /// The CATIA V4 version to write.
    virtual EExportVersionCatiaV4 catiaV4FormatVersion() const = 0;
    virtual void setCatiaV4FormatVersion(EExportVersionCatiaV4 value) = 0;
    /// The CATIA V5 version to write.
    virtual EExportVersionCatiaV5 catiaV5FormatVersion() const = 0;
    virtual void setCatiaV5FormatVersion(EExportVersionCatiaV5 value) = 0;
    /// The STEP application protocol to write.
    virtual EExportVersionStep stepFormatVersion() const = 0;
    virtual void setStepFormatVersion(EExportVersionStep value) = 0;
    /// The XCGM version to write.
    virtual EExportVersionXCGM xcgmFormatVersion() const = 0;
    virtual void setXcgmFormatVersion(EExportVersionXCGM value) = 0;
};

/// Keys: "file", "temporary_dwg", "use_interop_mp", "pmi_mode", "product_structure_mode",
/// "colors_mode", "hidden_parts_mode", "ins_units_def_source", "ins_units_scaling",
/// "import_acis_with_ardenix", "step_rotate_yz", "solidworks_rotate_yz", "edge_attribute_mode",
/// "alternate_search_paths", "debug_log".
class HRM_API LegacyImportOptionsImpl : public LegacyImportOptions
{
public:
    const std::wstring& file() const override { return m_file; }
    void setFile(const std::wstring& file) override { m_file = file; }
    const std::wstring& temporaryDwg() const override { return m_temporaryDwg; }
    void setTemporaryDwg(const std::wstring& path) override { m_temporaryDwg = path; }
    bool useInteropMP() const override { return m_useInteropMP; }
    void setUseInteropMP(bool value) override { m_useInteropMP = value; }
    ELegacyPMIMode pmiMode() const override { return m_pmiMode; }
    void setPmiMode(ELegacyPMIMode value) override { m_pmiMode = value; }
    ELegacyProductStructureMode productStructureMode() const override { return m_productStructureMode; }
    void setProductStructureMode(ELegacyProductStructureMode value) override { m_productStructureMode = value; }
    ELegacyColorsMode colorsMode() const override { return m_colorsMode; }
    void setColorsMode(ELegacyColorsMode value) override { m_colorsMode = value; }
    ELegacyHiddenPartsImportMode hiddenPartsMode() const override { return m_hiddenPartsMode; }
    void setHiddenPartsMode(ELegacyHiddenPartsImportMode value) override { m_hiddenPartsMode = value; }
    ELegacyInsertionUnits insertionUnitsSource() const override { return m_insertionUnitsSource; }
    void setInsertionUnitsSource(ELegacyInsertionUnits value) override { m_insertionUnitsSource = value; }
    bool insertionUnitsScaling() const override { return m_insertionUnitsScaling; }
    void setInsertionUnitsScaling(bool value) override { m_insertionUnitsScaling = value; }
    bool importAcisWithArdenix() const override { return m_importAcisWithArdenix; }
    void setImportAcisWithArdenix(bool value) override { m_importAcisWithArdenix = value; }
    bool stepRotateYZ() const override { return m_stepRotateYZ; }
    void setStepRotateYZ(bool value) override { m_stepRotateYZ = value; }
    bool solidWorksRotateYZ() const override { return m_solidWorksRotateYZ; }
    void setSolidWorksRotateYZ(bool value) override { m_solidWorksRotateYZ = value; }
    EEdgeAttributeModeType edgeAttributeMode() const override { return m_edgeAttributeMode; }
    void setEdgeAttributeMode(EEdgeAttributeModeType value) override { m_edgeAttributeMode = value; }
    const std::wstring& alternateSearchPaths() const override { return m_alternateSearchPaths; }
    void setAlternateSearchPaths(const std::wstring& paths) override { m_alternateSearchPaths = paths; }
    bool debugLog() const override { return m_debugLog; }
    void setDebugLog(bool value) override { m_debugLog = value; }

    /// Throws std::invalid_argument for a value that is no object ("!object.IsObject()"), has
    /// no "file" string ("Json document has no valid file path.") or no "temporary_dwg"
    /// string ("Json document has no valid temporary dwg path."); the other keys are lenient.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Equal when both write the same JSON.
    bool operator==(const LegacyImportOptionsImpl& other) const;
    bool operator!=(const LegacyImportOptionsImpl& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_file;
    std::wstring m_temporaryDwg;
    bool m_useInteropMP = false;
    ELegacyPMIMode m_pmiMode{};
    ELegacyProductStructureMode m_productStructureMode{};
    ELegacyColorsMode m_colorsMode{};
    ELegacyHiddenPartsImportMode m_hiddenPartsMode{};
    ELegacyInsertionUnits m_insertionUnitsSource{};
    bool m_insertionUnitsScaling = false;
    bool m_importAcisWithArdenix = false;
    bool m_stepRotateYZ = false;
    bool m_solidWorksRotateYZ = false;
    EEdgeAttributeModeType m_edgeAttributeMode{};
    std::wstring m_alternateSearchPaths;
    bool m_debugLog = false;
};

/// Keys: "file", "ins_units_def_target", "selection_set", "component_names",
/// "hidden_components", "acis_format_version", "parasolid_format_version",
/// "catiav4_format_version", "catiav5_format_version", "step_format_version",
/// "xcgm_format_version".
class HRM_API LegacyExportOptionsImpl : public LegacyExportOptions
{
public:
    const std::wstring& file() const override { return m_file; }
    void setFile(const std::wstring& file) override { m_file = file; }
    ELegacyInsertionUnits insertionUnitsTarget() const override { return m_insertionUnitsTarget; }
    void setInsertionUnitsTarget(ELegacyInsertionUnits value) override { m_insertionUnitsTarget = value; }
    const std::wstring& selectionSet() const override { return m_selectionSet; }
    void setSelectionSet(const std::wstring& name) override { m_selectionSet = name; }
    bool componentNames() const override { return m_componentNames; }
    void setComponentNames(bool value) override { m_componentNames = value; }
    ELegacyHiddenComponentsExportMode hiddenComponents() const override { return m_hiddenComponents; }
    void setHiddenComponents(ELegacyHiddenComponentsExportMode value) override { m_hiddenComponents = value; }
    EExportVersionAcis acisFormatVersion() const override { return m_acisFormatVersion; }
    void setAcisFormatVersion(EExportVersionAcis value) override { m_acisFormatVersion = value; }
    EExportVersionParasolid parasolidFormatVersion() const override { return m_parasolidFormatVersion; }
    void setParasolidFormatVersion(EExportVersionParasolid value) override { m_parasolidFormatVersion = value; }
    EExportVersionCatiaV4 catiaV4FormatVersion() const override { return m_catiaV4FormatVersion; }
    void setCatiaV4FormatVersion(EExportVersionCatiaV4 value) override { m_catiaV4FormatVersion = value; }
    EExportVersionCatiaV5 catiaV5FormatVersion() const override { return m_catiaV5FormatVersion; }
    void setCatiaV5FormatVersion(EExportVersionCatiaV5 value) override { m_catiaV5FormatVersion = value; }
    EExportVersionStep stepFormatVersion() const override { return m_stepFormatVersion; }
    void setStepFormatVersion(EExportVersionStep value) override { m_stepFormatVersion = value; }
    EExportVersionXCGM xcgmFormatVersion() const override { return m_xcgmFormatVersion; }
    void setXcgmFormatVersion(EExportVersionXCGM value) override { m_xcgmFormatVersion = value; }

    /// Throws std::invalid_argument for a value that is no object ("!object.IsObject()") or
    /// has no "file" string ("Json document has no valid file path."); the other keys are lenient.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether all fields are equal.
    bool operator==(const LegacyExportOptionsImpl& other) const;
    bool operator!=(const LegacyExportOptionsImpl& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_file;
    ELegacyInsertionUnits m_insertionUnitsTarget{};
    std::wstring m_selectionSet;
    bool m_componentNames = false;
    ELegacyHiddenComponentsExportMode m_hiddenComponents{};
    EExportVersionAcis m_acisFormatVersion{};
    EExportVersionParasolid m_parasolidFormatVersion{};
    EExportVersionCatiaV4 m_catiaV4FormatVersion{};
    EExportVersionCatiaV5 m_catiaV5FormatVersion{};
    EExportVersionStep m_stepFormatVersion{};
    EExportVersionXCGM m_xcgmFormatVersion{};
};

} // namespace hrm
