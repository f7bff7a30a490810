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

// Translator: reads the command and answers with the face it tessellated (moved in, not
// copied), as an envelope text; the object itself waits in shared memory.
std::wstring translate(const std::wstring& request, std::vector<float> vertices)
{
    const auto command = mp::fromText<hrm::Command>(request);
    const auto step = command.importOptions()->formatOptions<hrm::imp::OptionsSTEP>();
    if (!step || !step->importVisualization())
        return hrm::toEnvelope(hrm::ExcMessage(L"nothing to show"));
    auto face = std::make_shared<hrm::ExcVisuFace>();
    face->setVertices(std::move(vertices));
    auto mesh = std::make_shared<hrm::ExcVisuMesh>();
    mesh->addFace(face);
    auto node = std::make_shared<hrm::ExcVisuNode>();
    node->setMesh(mesh);
    auto picture = std::make_shared<hrm::ExcVisualizationData>();
    picture->addSceneRootNode(node);
    hrm::ExcBlockVisualization block;
    block.setVisualizationData(picture);
    return hrm::toEnvelope(block);
}

// Host: the object out of the envelope, loaded; null for any other type (a message).
std::shared_ptr<hrm::ExcBlockVisualization> receive(const std::wstring& envelope)
{
    return hrm::fromEnvelope(envelope).get<hrm::ExcBlockVisualization>();
}
