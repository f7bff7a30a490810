#pragma once

/// @file
/// The command document: the request the host sends to the translator service.

#include <hrm_api/hrm_api_command_options.h>
#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_legacy_options.h>
#include <mp/mp_serializable.h>

#include <cstdint>
#include <memory>

namespace hrm {

/// Which of the service's interfaces a command addresses (and an info document announces).
/// Travels as "uconnect", "connect" or "legacy"; any other value is written as "uconnect".
enum class HRM_API_TYPE EHermetorInterface : int32_t
{
    UConnect = 0,
    Connect = 1,
    Legacy = 2,
};

/// One request: describe yourself, answer if alive, import or export. Written to and read from
/// a wide text stream as one JSON object:
///   "hermetor_interface", "command", "options" (import and export only), "mt_mode".
/// Copies share the options objects.
class HRM_API Command : public mp::ISerializable
{
public:
    /// Travels as "unknown", "info", "import", "export", "ping"; any other value as "unknown".
    enum class HRM_API_TYPE EType : int32_t
    {
        Unknown = 0,
        Info = 1,
        Import = 2,
        Export = 3,
        Ping = 4,
    };

    /// A command of unknown type, for the UConnect interface, without options.
    Command() = default;
    /// Copies share the options objects.
    Command(const Command&) = default;
    /// Copies share the options objects.
    Command& operator=(const Command&) = default;

    /// What the command asks for.
    EType type() const { return m_type; }
    void setType(EType type) { m_type = type; }
    /// The interface of the service the command addresses ("hermetor_interface").
    EHermetorInterface internalInterface() const { return m_internalInterface; }
    void setInternalInterface(EHermetorInterface value) { m_internalInterface = value; }
    /// Whether the translator may use several threads ("mt_mode").
    bool useMultiThreading() const { return m_useMultiThreading; }
    void setUseMultiThreading(bool value) { m_useMultiThreading = value; }

    /// New default options objects of the only implementations.
    static std::shared_ptr<ImportOptions> newImportOptions();
    /// A new default ExportOptionsImpl.
    static std::shared_ptr<ExportOptions> newExportOptions();
    /// A new default LegacyImportOptionsImpl.
    static std::shared_ptr<LegacyImportOptions> newLegacyImportOptions();
    /// A new default LegacyExportOptionsImpl.
    static std::shared_ptr<LegacyExportOptions> newLegacyExportOptions();

    /// Accepts only an ImportOptionsImpl; anything else (an empty pointer included) throws
    /// std::invalid_argument("Wrong implementation of ImportOptions interface.").
    void setImportOptions(const std::shared_ptr<ImportOptions>& options);
    /// The options of an import command over the UConnect or Connect interface.
    const std::shared_ptr<ImportOptions>& importOptions() const { return m_importOptions; }
    /// Accepts only an ExportOptionsImpl; anything else throws
    /// std::invalid_argument("Wrong implementation of ExportOptions interface").
    void setExportOptions(const std::shared_ptr<ExportOptions>& options);
    /// The options of an export command over the UConnect or Connect interface.
    const std::shared_ptr<ExportOptions>& exportOptions() const { return m_exportOptions; }
    /// The options of an import command over the legacy interface.
    void setLegacyImportOptions(const std::shared_ptr<LegacyImportOptions>& options) { m_legacyImportOptions = options; }
    /// The options of an import command over the legacy interface.
    const std::shared_ptr<LegacyImportOptions>& legacyImportOptions() const { return m_legacyImportOptions; }
    /// The options of an export command over the legacy interface.
    void setLegacyExportOptions(const std::shared_ptr<LegacyExportOptions>& options) { m_legacyExportOptions = options; }
    /// The options of an export command over the legacy interface.
    const std::shared_ptr<LegacyExportOptions>& legacyExportOptions() const { return m_legacyExportOptions; }

    /// Writes the document in the pretty form. An import or export command writes the options
    /// object of its interface and throws std::invalid_argument when it holds none; the stream
    /// is untouched by a command that throws.
    void writeObject(std::wostream& out) const override;
    /// Replaces what the document mentions. Throws std::invalid_argument for a document that
    /// is no JSON object ("Invalid json document"), has no "command" string ("Json document
    /// has no command type.") or is an import or export without an "options" object. Whatever
    /// was read before the failure stays read.
    void readObject(std::wistream& in) override;

private:
    EType m_type = EType::Unknown;
    EHermetorInterface m_internalInterface = EHermetorInterface::UConnect;
    std::shared_ptr<ImportOptions> m_importOptions;
    std::shared_ptr<ExportOptions> m_exportOptions;
    std::shared_ptr<LegacyImportOptions> m_legacyImportOptions;
    std::shared_ptr<LegacyExportOptions> m_legacyExportOptions;
    bool m_useMultiThreading = false;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::EHermetorInterface)
HRM_DECLARE_ENUM_STRINGS(hrm::Command::EType)
