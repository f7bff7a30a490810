#include <hrm_api/hrm_api.h>

// Host: a command asking for the import of a STEP file, as text for the translator.
std::wstring importRequest(const std::wstring& file)
{
    auto options = hrm::Command::newImportOptions();
    options->setFile(file);
    options->setFormatOptions(std::make_shared<hrm::imp::OptionsSTEP>());
    hrm::Command command;
    command.setType(hrm::Command::EType::Import);
    command.setImportOptions(options);
    return mp::toText(command);
}

// Translator: reads the command and answers with the model's product structure, as an
// envelope text; the structure itself waits in shared memory.
std::wstring translate(const std::wstring& request)
{
    const auto command = mp::fromText<hrm::Command>(request);
    const auto step = command.importOptions()->formatOptions<hrm::imp::OptionsSTEP>();
    if (!step)
        return hrm::toEnvelope(hrm::ExcMessage(L"STEP options missing"));
    auto part = std::make_shared<hrm::ExcBlock>();
    part->setId(1);
    part->setName(command.importOptions()->file());
    part->setPart(true);
    auto instance = std::make_shared<hrm::ExcBlockReference>();
    instance->setBlockId(part->id());
    hrm::ExcProductStructure structure;
    structure.addBlock(part);
    structure.addRootBlockReference(instance);
    return hrm::toEnvelope(structure);
}

// Host: the structure out of the envelope, loaded; null for any other type (a message).
std::shared_ptr<hrm::ExcProductStructure> receive(const std::wstring& envelope)
{
    return hrm::fromEnvelope(envelope).get<hrm::ExcProductStructure>();
}
