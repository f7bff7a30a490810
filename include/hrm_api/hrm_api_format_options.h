#pragma once

/// @file
/// The format options of the common aspects (hrm::Options...) and of the import formats
/// (hrm::imp::Options...). Each class lists its JSON keys in the order written and read, after
/// the head "operation_type", "format_type". Enumerations travel as their words; a key that is
/// missing or mistyped on reading leaves its field as it is.

#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_options.h>
#include <hrm_api/hrm_api_export.h>

#include <cstdint>
#include <set>
#include <string>
#include <utility>

namespace hrm {

/// Which topological entities receive persistent names on import. Travels as "unknown",
/// "bodies", "faces", "edges", "vertices".
enum class HRM_API_TYPE EPersistentNameProcessingModeType : int32_t
{
    Unknown = 0,
    Bodies = 1,
    Faces = 2,
    Edges = 3,
    Vertices = 4,
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::EPersistentNameProcessingModeType)

namespace hrm {

/// Keys: "log_event_level_type", "log_file_encoding_type", "log_file_name", "logging_mode_type",
/// "logging_output_directory", "memory_management_mode".
class HRM_API OptionsGeneral final : public FormatOptionsBase<OptionsGeneral, CommonFormatOptions, EFormatType::General>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// How much the translator logs.
    ELogEventLevelType logEventLevel() const { return m_logEventLevel; }
    void setLogEventLevel(ELogEventLevelType value) { m_logEventLevel = value; }
    /// The character encoding of the translator's log file.
    ELogFileEncodingType logFileEncoding() const { return m_logFileEncoding; }
    void setLogFileEncoding(ELogFileEncodingType value) { m_logFileEncoding = value; }
    /// The name of the translator's log file.
    const std::wstring& logFileName() const { return m_logFileName; }
    void setLogFileName(const std::wstring& value) { m_logFileName = value; }
    /// Whether the log file is written anew or appended to.
    ELoggingModeType loggingMode() const { return m_loggingMode; }
    void setLoggingMode(ELoggingModeType value) { m_loggingMode = value; }
    /// The folder the translator writes its log into.
    const std::wstring& loggingOutputDirectory() const { return m_loggingOutputDirectory; }
    void setLoggingOutputDirectory(const std::wstring& value) { m_loggingOutputDirectory = value; }
    /// Which translated data the translator keeps in memory.
    EMemoryManagementModeFlags memoryManagementMode() const { return m_memoryManagementMode; }
    void setMemoryManagementMode(EMemoryManagementModeFlags value) { m_memoryManagementMode = value; }

private:
    HRM_MEMBER_LIST;

    ELogEventLevelType m_logEventLevel{};
    ELogFileEncodingType m_logFileEncoding{};
    std::wstring m_logFileName;
    ELoggingModeType m_loggingMode{};
    std::wstring m_loggingOutputDirectory;
    EMemoryManagementModeFlags m_memoryManagementMode = EMemoryManagementModeFlags::Unknown;
};

/// Keys: "tesselation_2d_sag_value", "tesselation_3d_sag_value",
/// "translate_reference_geometry_mode", "visu_brep_tesselation_mode", "visu_text_data_mode",
/// "visu_text_stroking_mode".
class HRM_API OptionsGraphical final
    : public FormatOptionsBase<OptionsGraphical, CommonFormatOptions, EFormatType::Graphical>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The largest distance between a curve and its tessellation ("tesselation_2d_sag_value").
    double tessellation2dSagValue() const { return m_tessellation2dSagValue; }
    void setTessellation2dSagValue(double value) { m_tessellation2dSagValue = value; }
    /// The largest distance between a surface and its tessellation ("tesselation_3d_sag_value").
    double tessellation3dSagValue() const { return m_tessellation3dSagValue; }
    void setTessellation3dSagValue(double value) { m_tessellation3dSagValue = value; }
    /// Whether reference geometry is shown.
    ETranslateReferenceGeometryMode translateReferenceGeometryMode() const { return m_translateReferenceGeometryMode; }
    void setTranslateReferenceGeometryMode(ETranslateReferenceGeometryMode value) { m_translateReferenceGeometryMode = value; }
    /// When bodies are tessellated for display.
    EVisuBRepTessellationModeType visuBRepTessellationMode() const { return m_visuBRepTessellationMode; }
    void setVisuBRepTessellationMode(EVisuBRepTessellationModeType value) { m_visuBRepTessellationMode = value; }
    /// Whether texts are shown as strings or as strokes.
    EVisuTextDataMode visuTextDataMode() const { return m_visuTextDataMode; }
    void setVisuTextDataMode(EVisuTextDataMode value) { m_visuTextDataMode = value; }
    /// Where the strokes of stroked texts come from.
    EVisuTextStrokingMode visuTextStrokingMode() const { return m_visuTextStrokingMode; }
    void setVisuTextStrokingMode(EVisuTextStrokingMode value) { m_visuTextStrokingMode = value; }

private:
    HRM_MEMBER_LIST;

    double m_tessellation2dSagValue = 0.0;
    double m_tessellation3dSagValue = 0.0;
    ETranslateReferenceGeometryMode m_translateReferenceGeometryMode{};
    EVisuBRepTessellationModeType m_visuBRepTessellationMode{};
    EVisuTextDataMode m_visuTextDataMode = EVisuTextDataMode::AsString;
    EVisuTextStrokingMode m_visuTextStrokingMode{};
};

/// Keys: "feature_tolerance_processing_mode", "misc_data_processing_mode".
class HRM_API OptionsMechanical final
    : public FormatOptionsBase<OptionsMechanical, CommonFormatOptions, EFormatType::Mechanical>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether feature tolerances are translated.
    EFeatureToleranceProcessingModeType featureToleranceProcessingMode() const { return m_featureToleranceProcessingMode; }
    void setFeatureToleranceProcessingMode(EFeatureToleranceProcessingModeType value) { m_featureToleranceProcessingMode = value; }
    /// Whether miscellaneous data is translated.
    EMiscDataProcessingModeType miscDataProcessingMode() const { return m_miscDataProcessingMode; }
    void setMiscDataProcessingMode(EMiscDataProcessingModeType value) { m_miscDataProcessingMode = value; }

private:
    HRM_MEMBER_LIST;

    EFeatureToleranceProcessingModeType m_featureToleranceProcessingMode{};
    EMiscDataProcessingModeType m_miscDataProcessingMode{};
};

/// Keys: "acis_spline_resurfacing_mode", "acis_spline_resurfacing_tolerance",
/// "attribute_processing_mode", "acis_heal_type", "length_unit_type", "preserve_mfg_mode",
/// "preserve_model_associativity_mode", "preserve_pmi_mode", "topological_entity_inspector_mode".
class HRM_API OptionsModeler final : public FormatOptionsBase<OptionsModeler, CommonFormatOptions, EFormatType::Modeler>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Which spline surfaces the solid modeler fits anew.
    EAcisSplineResurfacingModeType splineResurfacingMode() const { return m_splineResurfacingMode; }
    void setSplineResurfacingMode(EAcisSplineResurfacingModeType value) { m_splineResurfacingMode = value; }
    /// The tolerance of fitting spline surfaces anew ("acis_spline_resurfacing_tolerance").
    double splineResurfacingTolerance() const { return m_splineResurfacingTolerance; }
    void setSplineResurfacingTolerance(double value) { m_splineResurfacingTolerance = value; }
    /// Whether the source's attributes are translated.
    EAttributeProcessingModeType attributeProcessingMode() const { return m_attributeProcessingMode; }
    void setAttributeProcessingMode(EAttributeProcessingModeType value) { m_attributeProcessingMode = value; }
    /// How much the solid modeler heals the translated bodies.
    EAcisHealType healType() const { return m_healType; }
    void setHealType(EAcisHealType value) { m_healType = value; }
    /// The length unit of the translated model.
    ELengthUnitType lengthUnit() const { return m_lengthUnit; }
    void setLengthUnit(ELengthUnitType value) { m_lengthUnit = value; }
    /// Whether manufacturing data is kept on the bodies as attributes.
    EPreserveMfgModeType preserveMfgMode() const { return m_preserveMfgMode; }
    void setPreserveMfgMode(EPreserveMfgModeType value) { m_preserveMfgMode = value; }
    /// Whether links between the model and its data are kept on the bodies as attributes.
    EPreserveModelAssociativityModeType preserveModelAssociativityMode() const { return m_preserveModelAssociativityMode; }
    void setPreserveModelAssociativityMode(EPreserveModelAssociativityModeType value) { m_preserveModelAssociativityMode = value; }
    /// Whether PMI is kept on the bodies as attributes.
    EPreservePMIModeType preservePMIMode() const { return m_preservePMIMode; }
    void setPreservePMIMode(EPreservePMIModeType value) { m_preservePMIMode = value; }
    /// Whether the topological entity inspector runs.
    ETopologicalEntityInspectorModeType topologicalEntityInspectorMode() const { return m_topologicalEntityInspectorMode; }
    void setTopologicalEntityInspectorMode(ETopologicalEntityInspectorModeType value) { m_topologicalEntityInspectorMode = value; }

private:
    HRM_MEMBER_LIST;

    EAcisSplineResurfacingModeType m_splineResurfacingMode{};
    double m_splineResurfacingTolerance = 0.0;
    EAttributeProcessingModeType m_attributeProcessingMode{};
    EAcisHealType m_healType{};
    ELengthUnitType m_lengthUnit{};
    EPreserveMfgModeType m_preserveMfgMode{};
    EPreserveModelAssociativityModeType m_preserveModelAssociativityMode{};
    EPreservePMIModeType m_preservePMIMode{};
    ETopologicalEntityInspectorModeType m_topologicalEntityInspectorMode{};
};

namespace imp {

// Switches and sets shared by several import formats. Their keys follow a class's own keys,
// in this order: "import_geometry", "import_visualization", "import_root_visualization",
// "import_preview_graphics", "pname_modes".

/// The "import_geometry" switch of the import formats that have it.
class GeometrySwitch
{
public:
    /// Whether geometry is imported ("import_geometry").
    bool importGeometry() const { return m_importGeometry; }
    void setImportGeometry(bool value) { m_importGeometry = value; }

protected:
    bool m_importGeometry = true; ///< See importGeometry().
};

/// The "import_visualization" and "import_root_visualization" switches of the import formats that have them.
class VisualizationSwitches
{
public:
    /// Whether the visualization of the blocks is imported ("import_visualization").
    bool importVisualization() const { return m_importVisualization; }
    void setImportVisualization(bool value) { m_importVisualization = value; }
    /// Whether the visualization of the whole assembly is imported ("import_root_visualization").
    bool importRootVisualization() const { return m_importRootVisualization; }
    void setImportRootVisualization(bool value) { m_importRootVisualization = value; }

protected:
    bool m_importVisualization = true; ///< See importVisualization().
    bool m_importRootVisualization = true; ///< See importRootVisualization().
};

/// The "import_preview_graphics" switch of the import formats that have it.
class PreviewGraphicsSwitch
{
public:
    /// Whether preview graphics are imported ("import_preview_graphics").
    bool importPreviewGraphics() const { return m_importPreviewGraphics; }
    void setImportPreviewGraphics(bool value) { m_importPreviewGraphics = value; }

protected:
    bool m_importPreviewGraphics = false; ///< See importPreviewGraphics().
};

/// "pname_modes": an array of words, in ascending order of value.
class PersistentNameModes
{
public:
    /// How persistent names are processed ("pname_modes").
    const std::set<EPersistentNameProcessingModeType>& persistentNameModes() const { return m_persistentNameModes; }
    void setPersistentNameModes(std::set<EPersistentNameProcessingModeType> modes) { m_persistentNameModes = std::move(modes); }
    /// Adds one mode.
    void addPersistentNameMode(EPersistentNameProcessingModeType mode) { m_persistentNameModes.insert(mode); }

protected:
    std::set<EPersistentNameProcessingModeType> m_persistentNameModes; ///< See persistentNameModes().
};

/// Keys: "visu_pmi_mode".
class HRM_API Options3DXML final : public FormatOptionsBase<Options3DXML, imp::FormatOptions, EFormatType::XML3D>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    EVisuPMIProcessingMode m_visuPMIMode{};
};

/// Keys: "import_entities", "hidden_entities_mode", "layer_filter".
class HRM_API OptionsCatiaV4 final : public FormatOptionsBase<OptionsCatiaV4, imp::FormatOptions, EFormatType::CatiaV4>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Which entities of the file are imported.
    EImportEntities importEntities() const { return m_importEntities; }
    void setImportEntities(EImportEntities value) { m_importEntities = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// The layers whose entities are imported.
    const std::wstring& layerFilter() const { return m_layerFilter; }
    void setLayerFilter(const std::wstring& value) { m_layerFilter = value; }

private:
    HRM_MEMBER_LIST;

    EImportEntities m_importEntities{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    std::wstring m_layerFilter;
};

/// Keys: "assembly_path_pref", "in_work_object_mode", "name_processing_mode",
/// "assembly_unfolded_view_mode", "mfg_processing_mode", "hidden_entities_mode",
/// "suppressed_entities_mode", "visu_pmi_mode", "mfg_data_mode", "doc_delay_loading_mode",
/// "import_visualization", "import_root_visualization", "import_preview_graphics", "pname_modes".
class HRM_API OptionsCatiaV5 final : public FormatOptionsBase<OptionsCatiaV5, imp::FormatOptions, EFormatType::CatiaV5>,
                                     public VisualizationSwitches,
                                     public PreviewGraphicsSwitch,
                                     public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Where the files of an assembly's parts are looked for first.
    EAssemblyPathPrefType assemblyPathPref() const { return m_assemblyPathPref; }
    void setAssemblyPathPref(EAssemblyPathPrefType value) { m_assemblyPathPref = value; }
    /// Whether the part's "in work object" is processed.
    EProcessInWorkObjectModeType inWorkObjectMode() const { return m_inWorkObjectMode; }
    void setInWorkObjectMode(EProcessInWorkObjectModeType value) { m_inWorkObjectMode = value; }
    /// Whether entities get short or long names.
    ENameProcessingModeType nameProcessingMode() const { return m_nameProcessingMode; }
    void setNameProcessingMode(ENameProcessingModeType value) { m_nameProcessingMode = value; }
    /// Whether the assembly's unfolded view is translated.
    EAssemblyUnfoldedViewMode assemblyUnfoldedViewMode() const { return m_assemblyUnfoldedViewMode; }
    void setAssemblyUnfoldedViewMode(EAssemblyUnfoldedViewMode value) { m_assemblyUnfoldedViewMode = value; }
    /// Whether manufacturing features or their results are imported.
    EImportMfgProcessingModeType mfgProcessingMode() const { return m_mfgProcessingMode; }
    void setMfgProcessingMode(EImportMfgProcessingModeType value) { m_mfgProcessingMode = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Which suppressed entities are translated.
    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType value) { m_suppressedEntitiesMode = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }
    /// Whether manufacturing data is processed.
    EProcessMfgDataModeType mfgDataMode() const { return m_mfgDataMode; }
    void setMfgDataMode(EProcessMfgDataModeType value) { m_mfgDataMode = value; }
    /// Which documents are loaded only when needed.
    EDocumentDelayLoadingMode docDelayLoadingMode() const { return m_docDelayLoadingMode; }
    void setDocDelayLoadingMode(EDocumentDelayLoadingMode value) { m_docDelayLoadingMode = value; }

private:
    HRM_MEMBER_LIST;

    EAssemblyPathPrefType m_assemblyPathPref{};
    EProcessInWorkObjectModeType m_inWorkObjectMode{};
    ENameProcessingModeType m_nameProcessingMode{};
    EAssemblyUnfoldedViewMode m_assemblyUnfoldedViewMode{};
    EImportMfgProcessingModeType m_mfgProcessingMode{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIMode{};
    EProcessMfgDataModeType m_mfgDataMode{};
    EDocumentDelayLoadingMode m_docDelayLoadingMode{};
};

/// Keys: "hidden_entities_mode", "visu_pmi_mode".
class HRM_API OptionsCatiaV5Drawing final
    : public FormatOptionsBase<OptionsCatiaV5Drawing, imp::FormatOptions, EFormatType::CatiaV5Drawing>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIMode{};
};

/// Keys: "search_paths", "configuration_name", "hidden_entities_mode", "suppressed_entities_mode",
/// "visu_pmi_mode", "driving_dimensions_type", "construction_geom_mode", "reference_geom_mode",
/// "import_visualization", "import_root_visualization", "import_preview_graphics", "pname_modes".
class HRM_API OptionsCreo final : public FormatOptionsBase<OptionsCreo, imp::FormatOptions, EFormatType::Creo>,
                                  public VisualizationSwitches,
                                  public PreviewGraphicsSwitch,
                                  public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Further folders where the files of an assembly's parts are looked for ("search_paths").
    const std::wstring& alternateSearchPaths() const { return m_alternateSearchPaths; }
    void setAlternateSearchPaths(const std::wstring& value) { m_alternateSearchPaths = value; }
    /// The configuration of the model to translate; empty for the active one.
    const std::wstring& configurationName() const { return m_configurationName; }
    void setConfigurationName(const std::wstring& value) { m_configurationName = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Which suppressed entities are translated.
    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType value) { m_suppressedEntitiesMode = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }
    /// Whether driving dimensions are translated.
    ETranslateDrivingDimensionsModeType drivingDimensionsMode() const { return m_drivingDimensionsMode; }
    void setDrivingDimensionsMode(ETranslateDrivingDimensionsModeType value) { m_drivingDimensionsMode = value; }
    /// Whether construction geometry is translated.
    ETranslateConstructionGeometriesModeType constructionGeometryMode() const { return m_constructionGeometryMode; }
    void setConstructionGeometryMode(ETranslateConstructionGeometriesModeType value) { m_constructionGeometryMode = value; }
    /// Whether reference geometry is translated.
    ETranslateReferenceGeometryMode referenceGeometryMode() const { return m_referenceGeometryMode; }
    void setReferenceGeometryMode(ETranslateReferenceGeometryMode value) { m_referenceGeometryMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_alternateSearchPaths;
    std::wstring m_configurationName;
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIMode{};
    ETranslateDrivingDimensionsModeType m_drivingDimensionsMode{};
    ETranslateConstructionGeometriesModeType m_constructionGeometryMode{};
    ETranslateReferenceGeometryMode m_referenceGeometryMode{};
};

/// Keys: "import_entities", "hidden_entities_mode", "copious_data_mode", "trim_curve_import_pref_mode".
class HRM_API OptionsIGES final : public FormatOptionsBase<OptionsIGES, imp::FormatOptions, EFormatType::IGES>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Which entities of the file are imported.
    EImportEntities importEntities() const { return m_importEntities; }
    void setImportEntities(EImportEntities value) { m_importEntities = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// How copious data (point and line sets) is imported.
    ECopiousDataModeType copiousDataMode() const { return m_copiousDataMode; }
    void setCopiousDataMode(ECopiousDataModeType value) { m_copiousDataMode = value; }
    /// Which trimming curves are preferred: 2D, 3D, or as the source has them.
    ETrimCurveImportPreferenceModeType trimCurveImportPreference() const { return m_trimCurveImportPreference; }
    void setTrimCurveImportPreference(ETrimCurveImportPreferenceModeType value) { m_trimCurveImportPreference = value; }

private:
    HRM_MEMBER_LIST;

    EImportEntities m_importEntities{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ECopiousDataModeType m_copiousDataMode{};
    ETrimCurveImportPreferenceModeType m_trimCurveImportPreference{};
};

/// Keys: "search_paths", "assembly_path_pref", "hidden_entities_mode", "suppressed_entities_mode",
/// "active_state_mode", "import_visualization", "import_root_visualization",
/// "import_preview_graphics", "pname_modes".
class HRM_API OptionsInventor final : public FormatOptionsBase<OptionsInventor, imp::FormatOptions, EFormatType::Inventor>,
                                      public VisualizationSwitches,
                                      public PreviewGraphicsSwitch,
                                      public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Folders where the files of an assembly's parts are looked for ("search_paths").
    const std::wstring& searchPaths() const { return m_searchPaths; }
    void setSearchPaths(const std::wstring& value) { m_searchPaths = value; }
    /// Where the files of an assembly's parts are looked for first.
    EAssemblyPathPrefType assemblyPathPref() const { return m_assemblyPathPref; }
    void setAssemblyPathPref(EAssemblyPathPrefType value) { m_assemblyPathPref = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Which suppressed entities are translated.
    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType value) { m_suppressedEntitiesMode = value; }
    /// Whether only the active state of the model is processed.
    EActiveStateProcessingModeType activeStateMode() const { return m_activeStateMode; }
    void setActiveStateMode(EActiveStateProcessingModeType value) { m_activeStateMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_searchPaths;
    EAssemblyPathPrefType m_assemblyPathPref{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EActiveStateProcessingModeType m_activeStateMode{};
};

/// Keys: "user_prop_mode", "import_visu_lod", "import_geometry", "import_visualization",
/// "import_root_visualization".
class HRM_API OptionsJT final : public FormatOptionsBase<OptionsJT, imp::FormatOptions, EFormatType::JT>,
                                public GeometrySwitch,
                                public VisualizationSwitches
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether user properties are translated.
    EUserPropertiesModeType userPropertiesMode() const { return m_userPropertiesMode; }
    void setUserPropertiesMode(EUserPropertiesModeType value) { m_userPropertiesMode = value; }
    /// The level of detail whose visualization is imported.
    const std::wstring& importVisuLOD() const { return m_importVisuLOD; }
    void setImportVisuLOD(const std::wstring& value) { m_importVisuLOD = value; }

private:
    HRM_MEMBER_LIST;

    EUserPropertiesModeType m_userPropertiesMode{};
    std::wstring m_importVisuLOD;
};

/// Keys: "search_paths", "assembly_path_pref", "configuration_name", "hidden_entities_mode",
/// "suppressed_entities_mode", "translate_free_curves_mode", "translate_free_points_mode",
/// "visu_pmi_mode", "import_geometry", "import_visualization", "import_root_visualization",
/// "pname_modes".
/// Both free-curves and free-points keys carry the free-curves mode, in both directions: the
/// free-points mode is kept on this object only and never travels.
class HRM_API OptionsNX final : public FormatOptionsBase<OptionsNX, imp::FormatOptions, EFormatType::NX>,
                                public GeometrySwitch,
                                public VisualizationSwitches,
                                public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Folders where the files of an assembly's parts are looked for ("search_paths").
    const std::wstring& searchPaths() const { return m_searchPaths; }
    void setSearchPaths(const std::wstring& value) { m_searchPaths = value; }
    /// Where the files of an assembly's parts are looked for first.
    EAssemblyPathPrefType assemblyPathPref() const { return m_assemblyPathPref; }
    void setAssemblyPathPref(EAssemblyPathPrefType value) { m_assemblyPathPref = value; }
    /// The configuration of the model to translate; empty for the active one.
    const std::wstring& configurationName() const { return m_configurationName; }
    void setConfigurationName(const std::wstring& value) { m_configurationName = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Which suppressed entities are translated.
    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType value) { m_suppressedEntitiesMode = value; }
    /// Whether free curves are translated.
    ETranslateFreeCurvesModeType freeCurvesMode() const { return m_freeCurvesMode; }
    void setFreeCurvesMode(ETranslateFreeCurvesModeType value) { m_freeCurvesMode = value; }
    /// Whether free points are translated.
    ETranslateFreePointsModeType freePointsMode() const { return m_freePointsMode; }
    void setFreePointsMode(ETranslateFreePointsModeType value) { m_freePointsMode = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_searchPaths;
    EAssemblyPathPrefType m_assemblyPathPref{};
    std::wstring m_configurationName;
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    ETranslateFreeCurvesModeType m_freeCurvesMode{};
    ETranslateFreePointsModeType m_freePointsMode{};
    EVisuPMIProcessingMode m_visuPMIMode{};
};

/// Keys: "hidden_entities_mode".
class HRM_API OptionsParasolid final
    : public FormatOptionsBase<OptionsParasolid, imp::FormatOptions, EFormatType::Parasolid>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }

private:
    HRM_MEMBER_LIST;

    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
};

/// Keys: "search_paths", "assembly_path_pref", "hidden_entities_mode", "import_visualization",
/// "import_root_visualization", "import_preview_graphics", "pname_modes".
class HRM_API OptionsSolidEdge final : public FormatOptionsBase<OptionsSolidEdge, imp::FormatOptions, EFormatType::SolidEdge>,
                                       public VisualizationSwitches,
                                       public PreviewGraphicsSwitch,
                                       public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Folders where the files of an assembly's parts are looked for ("search_paths").
    const std::wstring& assemblySearchPaths() const { return m_assemblySearchPaths; }
    void setAssemblySearchPaths(const std::wstring& value) { m_assemblySearchPaths = value; }
    /// Where the files of an assembly's parts are looked for first.
    EAssemblyPathPrefType assemblyPathPref() const { return m_assemblyPathPref; }
    void setAssemblyPathPref(EAssemblyPathPrefType value) { m_assemblyPathPref = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_assemblySearchPaths;
    EAssemblyPathPrefType m_assemblyPathPref{};
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
};

/// Keys: "search_paths", "assembly_path_pref", "configuration_name", "hidden_entities_mode",
/// "suppressed_entities_mode", "visu_pmi_mode", "import_visualization",
/// "import_root_visualization", "import_preview_graphics", "pname_modes".
class HRM_API OptionsSolidWorks final
    : public FormatOptionsBase<OptionsSolidWorks, imp::FormatOptions, EFormatType::SolidWorks>,
      public VisualizationSwitches,
      public PreviewGraphicsSwitch,
      public PersistentNameModes
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Folders where the files of an assembly's parts are looked for ("search_paths").
    const std::wstring& searchPaths() const { return m_searchPaths; }
    void setSearchPaths(const std::wstring& value) { m_searchPaths = value; }
    /// Where the files of an assembly's parts are looked for first.
    EAssemblyPathPrefType assemblyPathPref() const { return m_assemblyPathPref; }
    void setAssemblyPathPref(EAssemblyPathPrefType value) { m_assemblyPathPref = value; }
    /// The configuration of the model to translate; empty for the active one.
    const std::wstring& configurationName() const { return m_configurationName; }
    void setConfigurationName(const std::wstring& value) { m_configurationName = value; }
    /// Which hidden entities are translated.
    ETranslateHiddenEntitiesModeType hiddenEntitiesMode() const { return m_hiddenEntitiesMode; }
    void setHiddenEntitiesMode(ETranslateHiddenEntitiesModeType value) { m_hiddenEntitiesMode = value; }
    /// Which suppressed entities are translated.
    ETranslateSuppressedEntitiesModeType suppressedEntitiesMode() const { return m_suppressedEntitiesMode; }
    void setSuppressedEntitiesMode(ETranslateSuppressedEntitiesModeType value) { m_suppressedEntitiesMode = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_searchPaths;
    EAssemblyPathPrefType m_assemblyPathPref{};
    std::wstring m_configurationName;
    ETranslateHiddenEntitiesModeType m_hiddenEntitiesMode{};
    ETranslateSuppressedEntitiesModeType m_suppressedEntitiesMode{};
    EVisuPMIProcessingMode m_visuPMIMode{};
};

/// No keys of its own.
class HRM_API OptionsSolidWorksDrawing final
    : public FormatOptionsBase<OptionsSolidWorksDrawing, imp::FormatOptions, EFormatType::SolidWorksDrawing>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    HRM_MEMBER_LIST;
};

/// Keys: "visu_pmi_mode", "import_geometry", "import_visualization", "import_root_visualization".
class HRM_API OptionsSTEP final : public FormatOptionsBase<OptionsSTEP, imp::FormatOptions, EFormatType::STEP>,
                                  public GeometrySwitch,
                                  public VisualizationSwitches
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    EVisuPMIProcessingMode m_visuPMIMode{};
};

/// Keys: "visu_pmi_mode", "import_geometry", "import_visualization", "import_root_visualization".
class HRM_API OptionsXCGM final : public FormatOptionsBase<OptionsXCGM, imp::FormatOptions, EFormatType::XCGM>,
                                  public GeometrySwitch,
                                  public VisualizationSwitches
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }

private:
    HRM_MEMBER_LIST;

    EVisuPMIProcessingMode m_visuPMIMode{};
};

} // namespace imp
} // namespace hrm
