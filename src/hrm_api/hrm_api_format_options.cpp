#include <hrm_api/hrm_api_format_options.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

HRM_ENUM_STRINGS(EPersistentNameProcessingModeType,
    {EPersistentNameProcessingModeType::Unknown, L"unknown"},
    {EPersistentNameProcessingModeType::Bodies, L"bodies"},
    {EPersistentNameProcessingModeType::Faces, L"faces"},
    {EPersistentNameProcessingModeType::Edges, L"edges"},
    {EPersistentNameProcessingModeType::Vertices, L"vertices"})

template <class Members>
void OptionsGeneral::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"log_event_level_type", m_logEventLevel)
        .enumeration(L"log_file_encoding_type", m_logFileEncoding)
        .string(L"log_file_name", m_logFileName)
        .enumeration(L"logging_mode_type", m_loggingMode)
        .string(L"logging_output_directory", m_loggingOutputDirectory)
        .enumeration(L"memory_management_mode", m_memoryManagementMode);
}
HRM_MEMBER_IO(OptionsGeneral, "OptionsGeneral")

template <class Members>
void OptionsGraphical::members(Members& m)
{
    IFormatOptions::members(m);
    m.storedDouble(L"tesselation_2d_sag_value", m_tessellation2dSagValue)
        .storedDouble(L"tesselation_3d_sag_value", m_tessellation3dSagValue)
        .enumeration(L"translate_reference_geometry_mode", m_translateReferenceGeometryMode)
        .enumeration(L"visu_brep_tesselation_mode", m_visuBRepTessellationMode)
        .enumeration(L"visu_text_data_mode", m_visuTextDataMode)
        .enumeration(L"visu_text_stroking_mode", m_visuTextStrokingMode);
}
HRM_MEMBER_IO(OptionsGraphical, "OptionsGraphical")

template <class Members>
void OptionsMechanical::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"feature_tolerance_processing_mode", m_featureToleranceProcessingMode)
        .enumeration(L"misc_data_processing_mode", m_miscDataProcessingMode);
}
HRM_MEMBER_IO(OptionsMechanical, "OptionsMechanical")

template <class Members>
void OptionsModeler::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"acis_spline_resurfacing_mode", m_splineResurfacingMode)
        .storedDouble(L"acis_spline_resurfacing_tolerance", m_splineResurfacingTolerance)
        .enumeration(L"attribute_processing_mode", m_attributeProcessingMode)
        .enumeration(L"acis_heal_type", m_healType)
        .enumeration(L"length_unit_type", m_lengthUnit)
        .enumeration(L"preserve_mfg_mode", m_preserveMfgMode)
        .enumeration(L"preserve_model_associativity_mode", m_preserveModelAssociativityMode)
        .enumeration(L"preserve_pmi_mode", m_preservePMIMode)
        .enumeration(L"topological_entity_inspector_mode", m_topologicalEntityInspectorMode);
}
HRM_MEMBER_IO(OptionsModeler, "OptionsModeler")

namespace imp {

template <class Members>
void Options3DXML::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"visu_pmi_mode", m_visuPMIMode);
}
HRM_MEMBER_IO(Options3DXML, "Options3DXML")

template <class Members>
void OptionsCatiaV4::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"import_entities", m_importEntities)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .string(L"layer_filter", m_layerFilter);
}
HRM_MEMBER_IO(OptionsCatiaV4, "OptionsCatiaV4")

template <class Members>
void OptionsCatiaV5::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"assembly_path_pref", m_assemblyPathPref)
        .enumeration(L"in_work_object_mode", m_inWorkObjectMode)
        .enumeration(L"name_processing_mode", m_nameProcessingMode)
        .enumeration(L"assembly_unfolded_view_mode", m_assemblyUnfoldedViewMode)
        .enumeration(L"mfg_processing_mode", m_mfgProcessingMode)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"suppressed_entities_mode", m_suppressedEntitiesMode)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .enumeration(L"mfg_data_mode", m_mfgDataMode)
        .enumeration(L"doc_delay_loading_mode", m_docDelayLoadingMode)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .boolean(L"import_preview_graphics", m_importPreviewGraphics)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsCatiaV5, "OptionsCatiaV5")

template <class Members>
void OptionsCatiaV5Drawing::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode);
}
HRM_MEMBER_IO(OptionsCatiaV5Drawing, "OptionsCatiaV5Drawing")

template <class Members>
void OptionsCreo::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"search_paths", m_alternateSearchPaths)
        .string(L"configuration_name", m_configurationName)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"suppressed_entities_mode", m_suppressedEntitiesMode)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .enumeration(L"driving_dimensions_type", m_drivingDimensionsMode)
        .enumeration(L"construction_geom_mode", m_constructionGeometryMode)
        .enumeration(L"reference_geom_mode", m_referenceGeometryMode)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .boolean(L"import_preview_graphics", m_importPreviewGraphics)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsCreo, "OptionsCreo")

template <class Members>
void OptionsIGES::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"import_entities", m_importEntities)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"copious_data_mode", m_copiousDataMode)
        .enumeration(L"trim_curve_import_pref_mode", m_trimCurveImportPreference);
}
HRM_MEMBER_IO(OptionsIGES, "OptionsIGES")

template <class Members>
void OptionsInventor::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"search_paths", m_searchPaths)
        .enumeration(L"assembly_path_pref", m_assemblyPathPref)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"suppressed_entities_mode", m_suppressedEntitiesMode)
        .enumeration(L"active_state_mode", m_activeStateMode)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .boolean(L"import_preview_graphics", m_importPreviewGraphics)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsInventor, "OptionsInventor")

template <class Members>
void OptionsJT::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"user_prop_mode", m_userPropertiesMode)
        .string(L"import_visu_lod", m_importVisuLOD)
        .boolean(L"import_geometry", m_importGeometry)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization);
}
HRM_MEMBER_IO(OptionsJT, "OptionsJT")

// Both free-curves and free-points keys are bound to the free-curves field.
template <class Members>
void OptionsNX::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"search_paths", m_searchPaths)
        .enumeration(L"assembly_path_pref", m_assemblyPathPref)
        .string(L"configuration_name", m_configurationName)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"suppressed_entities_mode", m_suppressedEntitiesMode)
        .enumeration(L"translate_free_curves_mode", m_freeCurvesMode)
        .enumeration(L"translate_free_points_mode", m_freeCurvesMode)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .boolean(L"import_geometry", m_importGeometry)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsNX, "OptionsNX")

template <class Members>
void OptionsParasolid::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode);
}
HRM_MEMBER_IO(OptionsParasolid, "OptionsParasolid")

template <class Members>
void OptionsSolidEdge::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"search_paths", m_assemblySearchPaths)
        .enumeration(L"assembly_path_pref", m_assemblyPathPref)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .boolean(L"import_preview_graphics", m_importPreviewGraphics)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsSolidEdge, "OptionsSolidEdge")

template <class Members>
void OptionsSolidWorks::members(Members& m)
{
    IFormatOptions::members(m);
    m.string(L"search_paths", m_searchPaths)
        .enumeration(L"assembly_path_pref", m_assemblyPathPref)
        .string(L"configuration_name", m_configurationName)
        .enumeration(L"hidden_entities_mode", m_hiddenEntitiesMode)
        .enumeration(L"suppressed_entities_mode", m_suppressedEntitiesMode)
        .enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization)
        .boolean(L"import_preview_graphics", m_importPreviewGraphics)
        .enumerations(L"pname_modes", m_persistentNameModes);
}
HRM_MEMBER_IO(OptionsSolidWorks, "OptionsSolidWorks")

template <class Members>
void OptionsSolidWorksDrawing::members(Members& m)
{
    IFormatOptions::members(m);
}
HRM_MEMBER_IO(OptionsSolidWorksDrawing, "OptionsSolidWorksDrawing")

template <class Members>
void OptionsSTEP::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .boolean(L"import_geometry", m_importGeometry)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization);
}
HRM_MEMBER_IO(OptionsSTEP, "OptionsSTEP")

template <class Members>
void OptionsXCGM::members(Members& m)
{
    IFormatOptions::members(m);
    m.enumeration(L"visu_pmi_mode", m_visuPMIMode)
        .boolean(L"import_geometry", m_importGeometry)
        .boolean(L"import_visualization", m_importVisualization)
        .boolean(L"import_root_visualization", m_importRootVisualization);
}
HRM_MEMBER_IO(OptionsXCGM, "OptionsXCGM")

} // namespace imp
} // namespace hrm
