#include <hrm_api/hrm_api_format_options.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_options_keys.h"

namespace hrm {

HRM_ENUM_STRINGS(EPersistentNameProcessingModeType,
    {{EPersistentNameProcessingModeType::Unknown, L"unknown"}, {EPersistentNameProcessingModeType::Bodies, L"bodies"},
     {EPersistentNameProcessingModeType::Faces, L"faces"}, {EPersistentNameProcessingModeType::Edges, L"edges"},
     {EPersistentNameProcessingModeType::Vertices, L"vertices"}})

const OptionsKeyTable& OptionsGeneral::keyTable()
{
    using O = OptionsGeneral;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsGeneral")
        .key(L"log_event_level_type", &O::m_logEventLevel)
        .key(L"log_file_encoding_type", &O::m_logFileEncoding)
        .key(L"log_file_name", &O::m_logFileName)
        .key(L"logging_mode_type", &O::m_loggingMode)
        .key(L"logging_output_directory", &O::m_loggingOutputDirectory)
        .key(L"memory_management_mode", &O::m_memoryManagementMode);
    return table;
}

const OptionsKeyTable& OptionsGraphical::keyTable()
{
    using O = OptionsGraphical;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsGraphical")
        .key(L"tesselation_2d_sag_value", &O::m_tessellation2dSagValue)
        .key(L"tesselation_3d_sag_value", &O::m_tessellation3dSagValue)
        .key(L"translate_reference_geometry_mode", &O::m_translateReferenceGeometryMode)
        .key(L"visu_brep_tesselation_mode", &O::m_visuBRepTessellationMode)
        .key(L"visu_text_data_mode", &O::m_visuTextDataMode)
        .key(L"visu_text_stroking_mode", &O::m_visuTextStrokingMode);
    return table;
}

const OptionsKeyTable& OptionsMechanical::keyTable()
{
    using O = OptionsMechanical;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsMechanical")
        .key(L"feature_tolerance_processing_mode", &O::m_featureToleranceProcessingMode)
        .key(L"misc_data_processing_mode", &O::m_miscDataProcessingMode);
    return table;
}

const OptionsKeyTable& OptionsModeler::keyTable()
{
    using O = OptionsModeler;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsModeler")
        .key(L"acis_spline_resurfacing_mode", &O::m_splineResurfacingMode)
        .key(L"acis_spline_resurfacing_tolerance", &O::m_splineResurfacingTolerance)
        .key(L"attribute_processing_mode", &O::m_attributeProcessingMode)
        .key(L"acis_heal_type", &O::m_healType)
        .key(L"length_unit_type", &O::m_lengthUnit)
        .key(L"preserve_mfg_mode", &O::m_preserveMfgMode)
        .key(L"preserve_model_associativity_mode", &O::m_preserveModelAssociativityMode)
        .key(L"preserve_pmi_mode", &O::m_preservePMIMode)
        .key(L"topological_entity_inspector_mode", &O::m_topologicalEntityInspectorMode);
    return table;
}

namespace imp {

const OptionsKeyTable& Options3DXML::keyTable()
{
    using O = Options3DXML;
    static const OptionsKeyTable table = OptionsKeys<O>("Options3DXML")
        .key(L"visu_pmi_mode", &O::m_visuPMIMode);
    return table;
}

const OptionsKeyTable& OptionsCatiaV4::keyTable()
{
    using O = OptionsCatiaV4;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCatiaV4")
        .key(L"import_entities", &O::m_importEntities)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"layer_filter", &O::m_layerFilter);
    return table;
}

const OptionsKeyTable& OptionsCatiaV5::keyTable()
{
    using O = OptionsCatiaV5;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCatiaV5")
        .key(L"assembly_path_pref", &O::m_assemblyPathPref)
        .key(L"in_work_object_mode", &O::m_inWorkObjectMode)
        .key(L"name_processing_mode", &O::m_nameProcessingMode)
        .key(L"assembly_unfolded_view_mode", &O::m_assemblyUnfoldedViewMode)
        .key(L"mfg_processing_mode", &O::m_mfgProcessingMode)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"suppressed_entities_mode", &O::m_suppressedEntitiesMode)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"mfg_data_mode", &O::m_mfgDataMode)
        .key(L"doc_delay_loading_mode", &O::m_docDelayLoadingMode)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"import_preview_graphics", &O::m_importPreviewGraphics)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsCatiaV5Drawing::keyTable()
{
    using O = OptionsCatiaV5Drawing;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCatiaV5Drawing")
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode);
    return table;
}

const OptionsKeyTable& OptionsCreo::keyTable()
{
    using O = OptionsCreo;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsCreo")
        .key(L"search_paths", &O::m_alternateSearchPaths)
        .key(L"configuration_name", &O::m_configurationName)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"suppressed_entities_mode", &O::m_suppressedEntitiesMode)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"driving_dimensions_type", &O::m_drivingDimensionsMode)
        .key(L"construction_geom_mode", &O::m_constructionGeometryMode)
        .key(L"reference_geom_mode", &O::m_referenceGeometryMode)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"import_preview_graphics", &O::m_importPreviewGraphics)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsIGES::keyTable()
{
    using O = OptionsIGES;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsIGES")
        .key(L"import_entities", &O::m_importEntities)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"copious_data_mode", &O::m_copiousDataMode)
        .key(L"trim_curve_import_pref_mode", &O::m_trimCurveImportPreference);
    return table;
}

const OptionsKeyTable& OptionsInventor::keyTable()
{
    using O = OptionsInventor;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsInventor")
        .key(L"search_paths", &O::m_searchPaths)
        .key(L"assembly_path_pref", &O::m_assemblyPathPref)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"suppressed_entities_mode", &O::m_suppressedEntitiesMode)
        .key(L"active_state_mode", &O::m_activeStateMode)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"import_preview_graphics", &O::m_importPreviewGraphics)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsJT::keyTable()
{
    using O = OptionsJT;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsJT")
        .key(L"user_prop_mode", &O::m_userPropertiesMode)
        .key(L"import_visu_lod", &O::m_importVisuLOD)
        .key(L"import_geometry", &O::m_importGeometry)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization);
    return table;
}

// Both free-curves and free-points keys are bound to the free-curves field.
const OptionsKeyTable& OptionsNX::keyTable()
{
    using O = OptionsNX;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsNX")
        .key(L"search_paths", &O::m_searchPaths)
        .key(L"assembly_path_pref", &O::m_assemblyPathPref)
        .key(L"configuration_name", &O::m_configurationName)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"suppressed_entities_mode", &O::m_suppressedEntitiesMode)
        .key(L"translate_free_curves_mode", &O::m_freeCurvesMode)
        .key(L"translate_free_points_mode", &O::m_freeCurvesMode)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"import_geometry", &O::m_importGeometry)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsParasolid::keyTable()
{
    using O = OptionsParasolid;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsParasolid")
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode);
    return table;
}

const OptionsKeyTable& OptionsSolidEdge::keyTable()
{
    using O = OptionsSolidEdge;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsSolidEdge")
        .key(L"search_paths", &O::m_assemblySearchPaths)
        .key(L"assembly_path_pref", &O::m_assemblyPathPref)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"import_preview_graphics", &O::m_importPreviewGraphics)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsSolidWorks::keyTable()
{
    using O = OptionsSolidWorks;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsSolidWorks")
        .key(L"search_paths", &O::m_searchPaths)
        .key(L"assembly_path_pref", &O::m_assemblyPathPref)
        .key(L"configuration_name", &O::m_configurationName)
        .key(L"hidden_entities_mode", &O::m_hiddenEntitiesMode)
        .key(L"suppressed_entities_mode", &O::m_suppressedEntitiesMode)
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization)
        .key(L"import_preview_graphics", &O::m_importPreviewGraphics)
        .key(L"pname_modes", &O::m_persistentNameModes);
    return table;
}

const OptionsKeyTable& OptionsSolidWorksDrawing::keyTable()
{
    static const OptionsKeyTable table = OptionsKeys<OptionsSolidWorksDrawing>("OptionsSolidWorksDrawing");
    return table;
}

const OptionsKeyTable& OptionsSTEP::keyTable()
{
    using O = OptionsSTEP;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsSTEP")
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"import_geometry", &O::m_importGeometry)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization);
    return table;
}

const OptionsKeyTable& OptionsXCGM::keyTable()
{
    using O = OptionsXCGM;
    static const OptionsKeyTable table = OptionsKeys<O>("OptionsXCGM")
        .key(L"visu_pmi_mode", &O::m_visuPMIMode)
        .key(L"import_geometry", &O::m_importGeometry)
        .key(L"import_visualization", &O::m_importVisualization)
        .key(L"import_root_visualization", &O::m_importRootVisualization);
    return table;
}

} // namespace imp
} // namespace hrm
