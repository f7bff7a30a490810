#pragma once

/// @file
/// The options of import and export commands, and the base of the per-format options they
/// hold (hrm_api_format_options.h).

#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>

namespace hrm {

/// How one file format (or one common aspect: general, graphical, mechanical, modeler) is to be
/// translated. The object's JSON starts with its head, "operation_type" and "format_type".
class HRM_API IFormatOptions : public IJsonObject
{
public:
    ~IFormatOptions() override;
    /// Reads the head and checks it against this object's types; a mismatch is only logged.
    void readObject(const JsonValue& value) override;
    /// Makes `value` an object holding the head.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// The format the options are for ("format_type").
    virtual EFormatType formatType() const = 0;
    /// Whether they are common, import or export options ("operation_type").
    virtual EOperationType operationType() const = 0;

    /// A new options object of the class that the value's head names, filled from the value;
    /// empty (with a log line) when the value names no options class.
    static std::shared_ptr<IFormatOptions> readOptions(const JsonValue& value);

protected:
    /// The head, the first members of every options class.
    HRM_MEMBER_LIST;
};

/// Two options objects are equal when they write the same JSON.
HRM_API bool operator==(const IFormatOptions& a, const IFormatOptions& b);
inline bool operator!=(const IFormatOptions& a, const IFormatOptions& b) { return !(a == b); }

/// The base of the options that hold for every format (general, graphical, mechanical, modeler).
class HRM_API CommonFormatOptions : public IFormatOptions
{
public:
    EOperationType operationType() const override { return EOperationType::Options; }
};

namespace imp {
/// The base of the options of one import format.
class HRM_API FormatOptions : public IFormatOptions
{
public:
    EOperationType operationType() const override { return EOperationType::Import; }
};
} // namespace imp

namespace exp {
/// The base of the options of one export format.
class HRM_API FormatOptions : public IFormatOptions
{
public:
    EOperationType operationType() const override { return EOperationType::Export; }
};
} // namespace exp

/// Gives an options class its format: every one derives from
/// FormatOptionsBase<itself, CommonFormatOptions, imp::FormatOptions or exp::FormatOptions,
/// format>. Its members (the head, then its own keys) are listed in the library's sources.
template <class Derived, class Interface, EFormatType Format>
class FormatOptionsBase : public Interface
{
public:
    /// The format type of every object of the class, for typed look-ups.
    static constexpr EFormatType s_formatType = Format;

    /// Format, the format type of every object of the class.
    EFormatType formatType() const override { return Format; }
};

/// The at most one options object per format that an import or export carries.
using FormatOptionsMap = std::map<EFormatType, std::shared_ptr<IFormatOptions>>;

/// The options object of an import or export command.
class HRM_API HermetorOptions : public IJsonObject
{
public:
    ~HermetorOptions() override;
    /// Whether the options are those of an import or an export.
    virtual EOperationType operationType() const = 0;
};

/// The options of a command that carries per-format options: an import or an export.
class HRM_API FormatOptionsHolder : public HermetorOptions
{
public:
    ~FormatOptionsHolder() override;

    /// The options stored for `type`, or an empty pointer.
    virtual std::shared_ptr<IFormatOptions> formatOptions(EFormatType type) = 0;
    /// The options stored for `type`, read-only, or an empty pointer.
    virtual std::shared_ptr<const IFormatOptions> formatOptions(EFormatType type) const = 0;
    /// Stores `options` under its format type, replacing an earlier one; an empty pointer is ignored.
    virtual void setFormatOptions(std::shared_ptr<IFormatOptions> options) = 0;

    /// The options stored for the format of Options, when they are an Options:
    /// `importOptions.formatOptions<imp::OptionsSTEP>()`. Null when none are stored, or when
    /// those stored are of another class (exp::OptionsSTEP in an import).
    template <class Options>
    std::shared_ptr<Options> formatOptions()
    {
        return std::dynamic_pointer_cast<Options>(formatOptions(Options::s_formatType));
    }
    /// The same, read-only.
    template <class Options>
    std::shared_ptr<const Options> formatOptions() const
    {
        return std::dynamic_pointer_cast<const Options>(formatOptions(Options::s_formatType));
    }
};

/// The options of an import: the file to read, switches for every format, and per-format options.
class HRM_API ImportOptions : public FormatOptionsHolder
{
public:
    EOperationType operationType() const override { return EOperationType::Import; }

    /// The path of the file to import.
    virtual const std::wstring& file() const = 0;
    virtual void setFile(const std::wstring& file) = 0;
    /// Whether the translator is to run in multi-process mode.
    virtual bool forceMPMode() const = 0;
    virtual void setForceMPMode(bool value) = 0;
    /// Whether the model's world orientation is to be translated.
    virtual bool translateWorldOrientation() const = 0;
    virtual void setTranslateWorldOrientation(bool value) = 0;
    /// Whether miscellaneous data (properties and the like) is to be translated.
    virtual bool translateMiscData() const = 0;
    virtual void setTranslateMiscData(bool value) = 0;
    /// The version of the solid modeler the results are to be made for.
    virtual int32_t modelerVersion() const = 0;
    virtual void setModelerVersion(int32_t value) = 0;
};

/// The options of an export: the file to write, its format version, geometry flags and per-format options.
class HRM_API ExportOptions : public FormatOptionsHolder
{
public:
    EOperationType operationType() const override { return EOperationType::Export; }

    /// The path of the file to write.
    virtual const std::wstring& file() const = 0;
    virtual void setFile(const std::wstring& file) = 0;
    /// The version of the format to write; empty for the translator's default.
    virtual const std::wstring& formatVersion() const = 0;
    virtual void setFormatVersion(const std::wstring& value) = 0;
    /// Bits that choose which geometry is exported (their meaning is the translator's).
    virtual int32_t geometryFlags() const = 0;
    virtual void setGeometryFlags(int32_t value) = 0;
};

/// Keys: "file", "force_mp_mode", "translate_world_orientation", "translate_misc_data",
/// "format_options" (only when some are stored), "modeler_version".
class HRM_API ImportOptionsImpl : public ImportOptions
{
public:
    const std::wstring& file() const override { return m_file; }
    void setFile(const std::wstring& file) override { m_file = file; }
    bool forceMPMode() const override { return m_forceMPMode; }
    void setForceMPMode(bool value) override { m_forceMPMode = value; }
    bool translateWorldOrientation() const override { return m_translateWorldOrientation; }
    void setTranslateWorldOrientation(bool value) override { m_translateWorldOrientation = value; }
    bool translateMiscData() const override { return m_translateMiscData; }
    void setTranslateMiscData(bool value) override { m_translateMiscData = value; }
    int32_t modelerVersion() const override { return m_modelerVersion; }
    void setModelerVersion(int32_t value) override { m_modelerVersion = value; }
    using FormatOptionsHolder::formatOptions;
    std::shared_ptr<IFormatOptions> formatOptions(EFormatType type) override;
    std::shared_ptr<const IFormatOptions> formatOptions(EFormatType type) const override;
    void setFormatOptions(std::shared_ptr<IFormatOptions> options) override;

    /// Throws std::invalid_argument for a value that is no object ("!object.IsObject()") or
    /// has no "file" string ("Json document has no valid file path.").
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Equal fields, and format options that are equal type by type.
    bool operator==(const ImportOptionsImpl& other) const;
    bool operator!=(const ImportOptionsImpl& other) const { return !(*this == other); }

private:
    std::wstring m_file;
    bool m_forceMPMode = false;
    bool m_translateWorldOrientation = false;
    bool m_translateMiscData = false;
    FormatOptionsMap m_formatOptions;
    int32_t m_modelerVersion = 31;
};

/// Keys: "file", "format_version" (only when not empty), "geometry_flags", "format_options"
/// (only when some are stored).
class HRM_API ExportOptionsImpl : public ExportOptions
{
public:
    const std::wstring& file() const override { return m_file; }
    void setFile(const std::wstring& file) override { m_file = file; }
    const std::wstring& formatVersion() const override { return m_formatVersion; }
    void setFormatVersion(const std::wstring& value) override { m_formatVersion = value; }
    int32_t geometryFlags() const override { return m_geometryFlags; }
    void setGeometryFlags(int32_t value) override { m_geometryFlags = value; }
    using FormatOptionsHolder::formatOptions;
    std::shared_ptr<IFormatOptions> formatOptions(EFormatType type) override;
    std::shared_ptr<const IFormatOptions> formatOptions(EFormatType type) const override;
    void setFormatOptions(std::shared_ptr<IFormatOptions> options) override;

    /// Throws as ImportOptionsImpl::readObject does.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Equal fields, and format options that are equal type by type.
    bool operator==(const ExportOptionsImpl& other) const;
    bool operator!=(const ExportOptionsImpl& other) const { return !(*this == other); }

private:
    void logFields() const;

    std::wstring m_file;
    std::wstring m_formatVersion;
    int32_t m_geometryFlags = 0;
    FormatOptionsMap m_formatOptions;
};

} // namespace hrm
