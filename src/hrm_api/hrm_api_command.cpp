#include <hrm_api/hrm_api_command.h>

#include "hrm_api/hrm_api_command_words.h"
#include "hrm_api/hrm_api_json_members.h"

#include <stdexcept>

namespace hrm {
namespace {

const wchar_t* commandWord(Command::EType type)
{
    switch (type) {
    case Command::EType::Info: return L"info";
    case Command::EType::Import: return L"import";
    case Command::EType::Export: return L"export";
    case Command::EType::Ping: return L"ping";
    default: return L"unknown";
    }
}

// Exact words only; any other word is an Unknown command, not an error.
Command::EType commandType(const std::wstring& word)
{
    for (const auto type : {Command::EType::Ping, Command::EType::Info, Command::EType::Import, Command::EType::Export}) {
        if (word == commandWord(type))
            return type;
    }
    return Command::EType::Unknown;
}

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

// A new options object of class Impl, read from `value`.
template <class Impl>
std::shared_ptr<Impl> readOptions(const JsonValue& value)
{
    auto options = std::make_shared<Impl>();
    options->readObject(value);
    return options;
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
    JsonDocument document;
    JsonObjectWriter root(document, document.GetAllocator());
    root.string(L"hermetor_interface", interfaceWord(m_internalInterface)).string(L"command", commandWord(m_type));
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
    JsonObjectReader members(document);

    if (const JsonValue* word = members.find(L"hermetor_interface"); word && word->IsString())
        m_internalInterface = interfaceFromWord(wideString(*word));

    const JsonValue* command = members.find(L"command");
    if (!command || !command->IsString())
        throw std::invalid_argument("Json document has no command type.");
    m_type = commandType(wideString(*command));

    const bool legacy = m_internalInterface == EHermetorInterface::Legacy;
    if (m_type == EType::Import || m_type == EType::Export) {
        const JsonValue* options = members.find(L"options");
        if (!options || !options->IsObject())
            throw std::invalid_argument(m_type == EType::Import ? "Import command should contain options."
                                                                : "Export command should contain options.");
        if (m_type == EType::Import && legacy)
            m_legacyImportOptions = readOptions<LegacyImportOptionsImpl>(*options);
        else if (m_type == EType::Import)
            m_importOptions = readOptions<ImportOptionsImpl>(*options);
        else if (legacy)
            m_legacyExportOptions = readOptions<LegacyExportOptionsImpl>(*options);
        else
            m_exportOptions = readOptions<ExportOptionsImpl>(*options);
    }

    members.boolean(L"mt_mode", m_useMultiThreading);
}

} // namespace hrm
