#include <hrm_api/hrm_api_command.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

#include <stdexcept>

namespace hrm {

// Exact words only: any other word is an Unknown command, not an error.
HRM_ENUM_STRINGS_UNKNOWN_AS(Command::EType, Command::EType::Unknown,
    {Command::EType::Unknown, L"unknown"},
    {Command::EType::Info, L"info"},
    {Command::EType::Import, L"import"},
    {Command::EType::Export, L"export"},
    {Command::EType::Ping, L"ping"})

// Every word but "connect" and "legacy" names UConnect; every other value is written as "uconnect".
HRM_ENUM_STRINGS_UNKNOWN_AS(EHermetorInterface, EHermetorInterface::UConnect,
    {EHermetorInterface::UConnect, L"uconnect"},
    {EHermetorInterface::Connect, L"connect"},
    {EHermetorInterface::Legacy, L"legacy"})

namespace {

// The options object of the interface, cast to its only implementation; throws `message`
// when there is none.
template <class Impl, class Interface>
const Impl& implementation(const std::shared_ptr<Interface>& options, const char* message)
{
    const auto* impl = dynamic_cast<const Impl*>(options.get());
    if (!impl)
        throw std::invalid_argument(message);
    return *impl;
}

} // namespace

std::shared_ptr<ImportOptions> Command::newImportOptions()
{
    return std::make_shared<ImportOptionsImpl>();
}

std::shared_ptr<ExportOptions> Command::newExportOptions()
{
    return std::make_shared<ExportOptionsImpl>();
}

std::shared_ptr<LegacyImportOptions> Command::newLegacyImportOptions()
{
    return std::make_shared<LegacyImportOptionsImpl>();
}

std::shared_ptr<LegacyExportOptions> Command::newLegacyExportOptions()
{
    return std::make_shared<LegacyExportOptionsImpl>();
}

void Command::setImportOptions(const std::shared_ptr<ImportOptions>& options)
{
    if (!dynamic_cast<const ImportOptionsImpl*>(options.get()))
        throw std::invalid_argument("Wrong implementation of ImportOptions interface.");
    m_importOptions = options;
}

void Command::setExportOptions(const std::shared_ptr<ExportOptions>& options)
{
    if (!dynamic_cast<const ExportOptionsImpl*>(options.get()))
        throw std::invalid_argument("Wrong implementation of ExportOptions interface");
    m_exportOptions = options;
}

void Command::writeObject(std::wostream& out) const
{
    HRM_TRACE();
    JsonDocument document(rapidjson::kObjectType);
    MemberWriter root(document, document.GetAllocator());
    root.enumeration(L"hermetor_interface", m_internalInterface).enumeration(L"command", m_type);
    const bool legacy = m_internalInterface == EHermetorInterface::Legacy;
    if (m_type == EType::Import) {
        if (legacy)
            root.object(L"options", implementation<LegacyImportOptionsImpl>(m_legacyImportOptions,
                                        "Import(LEGACY) command should contain import options(LEGACY)"));
        else
            root.object(L"options",
                        implementation<ImportOptionsImpl>(m_importOptions, "Import command should contain import options"));
    } else if (m_type == EType::Export) {
        if (legacy)
            root.object(L"options", implementation<LegacyExportOptionsImpl>(m_legacyExportOptions,
                                        "Export(LEGACY) command should contain export options(LEGACY)"));
        else
            root.object(L"options",
                        implementation<ExportOptionsImpl>(m_exportOptions, "Export command should contain export options"));
    }
    root.boolean(L"mt_mode", m_useMultiThreading);
    JsonTextIO::write(out, document, true);
}

void Command::readObject(std::wistream& in)
{
    HRM_TRACE();
    JsonDocument document;
    readObjectDocument(in, document);
    MemberReader members(document);

    members.enumeration(L"hermetor_interface", m_internalInterface);

    const JsonValue* command = members.find(L"command");
    if (!command || !command->IsString())
        throw std::invalid_argument("Json document has no command type.");
    m_type = enumFromJson<EType>(*command);

    const bool legacy = m_internalInterface == EHermetorInterface::Legacy;
    if (m_type == EType::Import || m_type == EType::Export) {
        const JsonValue* options = members.find(L"options");
        if (!options || !options->IsObject())
            throw std::invalid_argument(m_type == EType::Import ? "Import command should contain options."
                                                                : "Export command should contain options.");
        if (m_type == EType::Import && legacy)
            m_legacyImportOptions = readNew<LegacyImportOptionsImpl>(*options);
        else if (m_type == EType::Import)
            m_importOptions = readNew<ImportOptionsImpl>(*options);
        else if (legacy)
            m_legacyExportOptions = readNew<LegacyExportOptionsImpl>(*options);
        else
            m_exportOptions = readNew<ExportOptionsImpl>(*options);
    }

    members.boolean(L"mt_mode", m_useMultiThreading);
}

} // namespace hrm
