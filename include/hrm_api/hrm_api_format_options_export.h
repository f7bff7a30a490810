#pragma once

/// @file
/// The format options of the export formats (hrm::exp::Options...). Each class lists its JSON
/// keys in the order written and read, after the head "operation_type", "format_type".

#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_enums_export.h>
#include <hrm_api/hrm_api_enums_options.h>
#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_export.h>

#include <string>

namespace hrm::exp {

/// Keys: "default_color_mode", "graphical_pmi_container_mode".
class HRM_API Options3DXML final : public FormatOptionsBase<Options3DXML, exp::FormatOptions, EFormatType::XML3D>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// How entities without a colour of their own are coloured.
    EDefaultColorMode defaultColorMode() const { return m_defaultColorMode; }
    void setDefaultColorMode(EDefaultColorMode value) { m_defaultColorMode = value; }
    /// Whether graphical PMI is written into a container.
    EGraphicalPMIContainerMode graphicalPMIContainerMode() const { return m_graphicalPMIContainerMode; }
    void setGraphicalPMIContainerMode(EGraphicalPMIContainerMode value) { m_graphicalPMIContainerMode = value; }

private:
    HRM_MEMBER_LIST;

    EDefaultColorMode m_defaultColorMode{};
    EGraphicalPMIContainerMode m_graphicalPMIContainerMode{};
};

/// Keys: "units".
class HRM_API OptionsAcis final : public FormatOptionsBase<OptionsAcis, exp::FormatOptions, EFormatType::ACIS>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The length unit of the written file.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType value) { m_units = value; }

private:
    HRM_MEMBER_LIST;

    ELengthUnitType m_units{};
};

/// Keys: "author_name", "model_name", "version", "edge_curve_mode".
class HRM_API OptionsCatiaV4 final : public FormatOptionsBase<OptionsCatiaV4, exp::FormatOptions, EFormatType::CatiaV4>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The author written into the file.
    const std::wstring& authorName() const { return m_authorName; }
    void setAuthorName(const std::wstring& value) { m_authorName = value; }
    /// The model name written into the file.
    const std::wstring& modelName() const { return m_modelName; }
    void setModelName(const std::wstring& value) { m_modelName = value; }
    /// The version of the format to write.
    EExportVersionCatiaV4 version() const { return m_version; }
    void setVersion(EExportVersionCatiaV4 value) { m_version = value; }
    /// Which curves of an edge are written.
    EEdgeCurveMode edgeCurveMode() const { return m_edgeCurveMode; }
    void setEdgeCurveMode(EEdgeCurveMode value) { m_edgeCurveMode = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_authorName;
    std::wstring m_modelName;
    EExportVersionCatiaV4 m_version{};
    EEdgeCurveMode m_edgeCurveMode{};
};

/// Keys: "default_color_mode", "cgr_compatibility_mode".
class HRM_API OptionsCatiaV5 final : public FormatOptionsBase<OptionsCatiaV5, exp::FormatOptions, EFormatType::CatiaV5>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// How entities without a colour of their own are coloured.
    EDefaultColorMode defaultColorMode() const { return m_defaultColorMode; }
    void setDefaultColorMode(EDefaultColorMode value) { m_defaultColorMode = value; }
    /// The application the written CGR file is to be compatible with.
    EExportCgrCompatibilityMode cgrCompatibilityMode() const { return m_cgrCompatibilityMode; }
    void setCgrCompatibilityMode(EExportCgrCompatibilityMode value) { m_cgrCompatibilityMode = value; }

private:
    HRM_MEMBER_LIST;

    EDefaultColorMode m_defaultColorMode{};
    EExportCgrCompatibilityMode m_cgrCompatibilityMode{};
};

/// Keys: "units".
class HRM_API OptionsIGES final : public FormatOptionsBase<OptionsIGES, exp::FormatOptions, EFormatType::IGES>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The length unit of the written file.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType value) { m_units = value; }

private:
    HRM_MEMBER_LIST;

    ELengthUnitType m_units{};
};

/// No keys of its own.
class HRM_API OptionsParasolid final
    : public FormatOptionsBase<OptionsParasolid, exp::FormatOptions, EFormatType::Parasolid>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

private:
    HRM_MEMBER_LIST;
};

/// Keys: "units", "version", "tolerance", "layer_name_mode".
class HRM_API OptionsSTEP final : public FormatOptionsBase<OptionsSTEP, exp::FormatOptions, EFormatType::STEP>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The length unit of the written file.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType value) { m_units = value; }
    /// The application protocol.
    EExportVersionStep version() const { return m_version; }
    void setVersion(EExportVersionStep value) { m_version = value; }
    /// The tolerance written into the file.
    double fileTolerance() const { return m_fileTolerance; }
    void setFileTolerance(double value) { m_fileTolerance = value; }
    /// Where the names of the written layers come from.
    ELayerNameProcessingModeType layerNameMode() const { return m_layerNameMode; }
    void setLayerNameMode(ELayerNameProcessingModeType value) { m_layerNameMode = value; }

private:
    HRM_MEMBER_LIST;

    ELengthUnitType m_units{};
    EExportVersionStep m_version{};
    double m_fileTolerance = 0.0;
    ELayerNameProcessingModeType m_layerNameMode{};
};

/// Keys: "default_color_mode", "graphical_pmi_container_mode".
class HRM_API OptionsXCGM final : public FormatOptionsBase<OptionsXCGM, exp::FormatOptions, EFormatType::XCGM>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// How entities without a colour of their own are coloured.
    EDefaultColorMode defaultColorMode() const { return m_defaultColorMode; }
    void setDefaultColorMode(EDefaultColorMode value) { m_defaultColorMode = value; }
    /// Whether graphical PMI is written into a container.
    EGraphicalPMIContainerMode graphicalPMIContainerMode() const { return m_graphicalPMIContainerMode; }
    void setGraphicalPMIContainerMode(EGraphicalPMIContainerMode value) { m_graphicalPMIContainerMode = value; }

private:
    HRM_MEMBER_LIST;

    EDefaultColorMode m_defaultColorMode{};
    EGraphicalPMIContainerMode m_graphicalPMIContainerMode{};
};

/// Keys: "save_mode".
class HRM_API OptionsSTL final : public FormatOptionsBase<OptionsSTL, exp::FormatOptions, EFormatType::STL>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether the file is written as text or as binary.
    EExportSaveMode saveMode() const { return m_saveMode; }
    void setSaveMode(EExportSaveMode value) { m_saveMode = value; }

private:
    HRM_MEMBER_LIST;

    EExportSaveMode m_saveMode{};
};

/// Keys: "title", "author_name", "units", "visu_pmi_mode", "background_color".
class HRM_API OptionsPDF final : public FormatOptionsBase<OptionsPDF, exp::FormatOptions, EFormatType::PDF3D>
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// The document's title and author, as its properties show them.
    const std::wstring& title() const { return m_title; }
    void setTitle(const std::wstring& value) { m_title = value; }
    /// The author written into the file.
    const std::wstring& authorName() const { return m_authorName; }
    void setAuthorName(const std::wstring& value) { m_authorName = value; }
    /// The length unit of the written file.
    ELengthUnitType units() const { return m_units; }
    void setUnits(ELengthUnitType value) { m_units = value; }
    /// Whether PMI is translated for display.
    EVisuPMIProcessingMode visuPMIMode() const { return m_visuPMIMode; }
    void setVisuPMIMode(EVisuPMIProcessingMode value) { m_visuPMIMode = value; }
    /// The colour behind the 3D view.
    const ExcColor& backgroundColor() const { return m_backgroundColor; }
    void setBackgroundColor(const ExcColor& value) { m_backgroundColor = value; }

private:
    HRM_MEMBER_LIST;

    std::wstring m_title;
    std::wstring m_authorName;
    ELengthUnitType m_units{};
    EVisuPMIProcessingMode m_visuPMIMode{};
    ExcColor m_backgroundColor;
};

} // namespace hrm::exp
