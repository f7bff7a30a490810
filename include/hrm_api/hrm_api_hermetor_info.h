#pragma once

/// @file
/// The translator's description of itself: the answer to an info command.

#include <hrm_api/hrm_api_command.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>
#include <mp/mp_serializable.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

/// How the translator handles Parasolid data. Travels as "direct" or "kernel".
enum class HRM_API_TYPE EParasolidMode : int32_t
{
    Direct = 0,
    Kernel = 1,
};

/// An external translation core the translator carries: {"name", "version"}.
class HRM_API ThirdpartyCore : public IJsonObject
{
public:
    /// The core's name.
    const std::wstring& name() const { return m_name; }
    ThirdpartyCore& setName(const std::wstring& name) { m_name = name; return *this; }
    /// The core's version.
    const std::wstring& version() const { return m_version; }
    ThirdpartyCore& setVersion(const std::wstring& version) { m_version = version; return *this; }

    /// Throws std::invalid_argument("ThirdpartyCore::readFrom > !jsonObject.IsObject()") for
    /// a value that is no object.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether name and version are equal.
    bool operator==(const ThirdpartyCore& other) const { return m_name == other.m_name && m_version == other.m_version; }
    bool operator!=(const ThirdpartyCore& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    std::wstring m_version;
};

/// A file format the translator reads or writes: {"description", "extensions", "filters"}.
/// Its regular expressions, which recognise its file names, stay with the side that built it.
class HRM_API Format : public IJsonObject
{
public:
    /// The format's name for the user, such as L"STEP files".
    const std::wstring& description() const { return m_description; }
    Format& setDescription(const std::wstring& description) { m_description = description; return *this; }
    /// Extensions without the dot, such as L"stp".
    const std::vector<std::wstring>& extensions() const { return m_extensions; }
    Format& setExtensions(std::vector<std::wstring> extensions) { m_extensions = std::move(extensions); return *this; }
    /// Appends one extension.
    Format& addExtension(const std::wstring& extension) { m_extensions.push_back(extension); return *this; }
    /// The extensions a file dialog offers, without the dot.
    const std::vector<std::wstring>& filterExtensions() const { return m_filterExtensions; }
    /// Appends extensions to those a file dialog offers.
    Format& addFilterExtensions(const std::vector<std::wstring>& extensions);
    /// One file-dialog filter per filter extension: "<description> (*.<extension>)", for
    /// example L"STEP files (*.stp)".
    std::vector<std::wstring> getFilters() const;

    /// ECMAScript regular expressions that a whole file name must match, ignoring case.
    const std::vector<std::wstring>& regexes() const { return m_regexes; }
    /// Replaces the regular expressions by `pattern`.
    Format& setRegex(const std::wstring& pattern) { m_regexes = {pattern}; return *this; }
    /// Appends a regular expression.
    Format& addRegex(const std::wstring& pattern) { m_regexes.push_back(pattern); return *this; }
    /// Whether `name` matches one of the regular expressions; false when there are none.
    /// A pattern that is no valid regular expression throws std::regex_error.
    bool is(const std::wstring& name) const;

    /// Throws std::invalid_argument("Format::readFrom > !jsonObject.IsObject()") for a value
    /// that is no object.
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether all fields, regular expressions included, are equal.
    bool operator==(const Format& other) const;
    bool operator!=(const Format& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_description;
    std::vector<std::wstring> m_extensions;
    std::vector<std::wstring> m_filterExtensions;
    std::vector<std::wstring> m_regexes;
};

/// The external translation cores a translator carries.
using ThirdpartyCores = std::vector<std::shared_ptr<ThirdpartyCore>>;
/// The formats a translator reads or writes.
using Formats = std::vector<std::shared_ptr<Format>>;

/// Written as "name", "version", "hermetor_interface", "thirdparty_cores" (when there are
/// cores), "parasolid_mode", "import_formats", "export_formats" (when there are formats),
/// "modeler_version".
class HRM_API HermetorInfo : public mp::ISerializable
{
public:
    /// The translator's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The translator's version.
    const std::wstring& version() const { return m_version; }
    void setVersion(const std::wstring& version) { m_version = version; }
    /// The interface the translator was asked about.
    EHermetorInterface requestedInterface() const { return m_requestedInterface; }
    void setRequestedInterface(EHermetorInterface value) { m_requestedInterface = value; }

    /// The external translation cores the translator carries.
    const ThirdpartyCores& thirdpartyCores() const { return m_thirdpartyCores; }
    /// Makes, appends and returns a new core.
    std::shared_ptr<ThirdpartyCore> newThirdpartyCore();
    /// Appends a core.
    void addThirdpartyCore(std::shared_ptr<ThirdpartyCore> core) { m_thirdpartyCores.push_back(std::move(core)); }

    /// How the translator handles Parasolid data.
    EParasolidMode parasolidMode() const { return m_parasolidMode; }
    void setParasolidMode(EParasolidMode mode) { m_parasolidMode = mode; }

    /// The formats the translator reads.
    const Formats& importFormats() const { return m_importFormats; }
    /// Makes, appends and returns a new import format.
    std::shared_ptr<Format> newImportFormat();
    /// Appends an import format.
    void addImportFormat(std::shared_ptr<Format> format) { m_importFormats.push_back(std::move(format)); }
    /// Appends import formats.
    void addImportFormats(const Formats& formats);
    /// The formats the translator writes.
    const Formats& exportFormats() const { return m_exportFormats; }
    /// Makes, appends and returns a new export format.
    std::shared_ptr<Format> newExportFormat();
    /// Appends an export format.
    void addExportFormat(std::shared_ptr<Format> format) { m_exportFormats.push_back(std::move(format)); }
    /// Appends export formats.
    void addExportFormats(const Formats& formats);

    /// The major version of the solid modeler the translator works with ("modeler_version").
    int32_t modelerMajorVersion() const { return m_modelerMajorVersion; }
    void setModelerMajorVersion(int32_t version) { m_modelerMajorVersion = version; }

    /// Throws std::runtime_error("Cannot write object into json document") when the writer
    /// fails; the stream is then untouched.
    void writeObject(std::wostream& out) const override;
    /// Throws std::invalid_argument("Invalid json document") for a document that is no JSON
    /// object, and passes on the exception of a core or format element that is no object.
    /// Cores and formats read are appended to those already held.
    void readObject(std::wistream& in) override;

    /// Equal fields, cores and formats compared by value (null entries equal each other).
    bool operator==(const HermetorInfo& other) const;
    bool operator!=(const HermetorInfo& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_name;
    std::wstring m_version;
    EHermetorInterface m_requestedInterface = EHermetorInterface::UConnect;
    ThirdpartyCores m_thirdpartyCores;
    EParasolidMode m_parasolidMode = EParasolidMode::Direct;
    Formats m_importFormats;
    Formats m_exportFormats;
    int32_t m_modelerMajorVersion = 31;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::EParasolidMode)
