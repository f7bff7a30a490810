// Reading a file into the XDE document and walking its assembly tree.

#include "cad_document_impl.h"

#include <IFSelect_ReturnStatus.hxx>
#include <IGESCAFControl_Reader.hxx>
#include <Message.hxx>
#include <Message_Messenger.hxx>
#include <Message_Printer.hxx>
#include <Quantity_ColorRGBA.hxx>
#include <STEPCAFControl_Reader.hxx>
#include <Standard_Failure.hxx>
#include <Standard_Version.hxx>
#include <TDF_Tool.hxx>
#include <TDataStd_Name.hxx>
#include <TopExp.hxx>
#include <XCAFApp_Application.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <gp_Trsf.hxx>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <mutex>
#include <set>

namespace cad {
namespace {

// Keeps OpenCASCADE's messages of warning level and above for the translator instead of
// printing them: the translator's standard output carries its answers.
class WarningCollector : public Message_Printer
{
public:
    WarningCollector() { SetTraceLevel(Message_Warning); }

    std::vector<std::string> take()
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        std::vector<std::string> lines;
        lines.swap(m_lines);
        m_seen.clear();
        return lines;
    }

    // The first message of fail level since the last take(), or an empty string.
    std::string firstFailure() const
    {
        std::lock_guard<std::mutex> lock(m_mutex);
        return m_firstFailure;
    }

protected:
    void send(const TCollection_AsciiString& text, const Message_Gravity gravity) const override
    {
        if (gravity < Message_Warning)
            return;
        std::string line = cleaned(text.ToCString());
        if (line.empty())
            return;
        std::lock_guard<std::mutex> lock(m_mutex);
        if (gravity >= Message_Fail && m_firstFailure.empty())
            m_firstFailure = line;
        if (m_seen.insert(line).second && m_lines.size() < maxLines)
            m_lines.push_back(line);
    }

private:
    static constexpr std::size_t maxLines = 1000;

    // The text without the stars and blanks OpenCASCADE frames some messages with.
    static std::string cleaned(std::string line)
    {
        const auto isFrame = [](unsigned char c) { return c == '*' || std::isspace(c); };
        while (!line.empty() && isFrame(static_cast<unsigned char>(line.back())))
            line.pop_back();
        std::size_t start = 0;
        while (start < line.size() && isFrame(static_cast<unsigned char>(line[start])))
            ++start;
        return line.substr(start);
    }

    mutable std::mutex m_mutex;
    mutable std::vector<std::string> m_lines;
    mutable std::set<std::string> m_seen;
    mutable std::string m_firstFailure;
};

// The one collector of the process, installed in place of OpenCASCADE's printers on first use.
WarningCollector& warnings()
{
    static Handle(WarningCollector) collector = [] {
        Handle(WarningCollector) created = new WarningCollector();
        const Handle(Message_Messenger)& messenger = Message::DefaultMessenger();
        messenger->ChangePrinters().Clear();
        messenger->AddPrinter(created);
        return created;
    }();
    return *collector;
}

std::string lowercase(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return text;
}

std::string nameOf(const TDF_Label& label)
{
    Handle(TDataStd_Name) name;
    if (!label.FindAttribute(TDataStd_Name::GetID(), name))
        return {};
    return TCollection_AsciiString(name->Get(), '?').ToCString();
}

Placement placementOf(const TopLoc_Location& location)
{
    const gp_Trsf transformation = location.Transformation();
    Placement placement;
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column)
            placement.rotation[3 * row + column] = transformation.Value(row + 1, column + 1);
        placement.translation[row] = transformation.Value(row + 1, 4);
    }
    return placement;
}

// Checks what can be checked before OpenCASCADE sees the file, with messages for a person.
Format checkedFormat(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    if (!fs::exists(path, error))
        throw Error("File not found: " + path);
    if (!fs::is_regular_file(path, error))
        throw Error("Not a file: " + path);
    if (!std::ifstream(path, std::ios::binary))
        throw Error("Cannot open file for reading: " + path);
    const std::optional<Format> format = formatOf(path);
    if (!format) {
        const std::string extension = fs::path(path).extension().string();
        throw Error("Unsupported file format" + (extension.empty() ? std::string() : " '" + extension + "'") +
                    ": " + path + " (STEP: .stp, .step, .p21; IGES: .igs, .iges)");
    }
    return *format;
}

template <class Reader>
void readInto(Reader& reader, const std::string& path, const char* formatName, Handle(TDocStd_Document)& document,
              const ProgressCallback& progress)
{
    reader.SetColorMode(true);
    reader.SetNameMode(true);
    reader.SetLayerMode(true);
    if (reader.ReadFile(path.c_str()) != IFSelect_RetDone) {
        const std::string reason = warnings().firstFailure();
        throw Error(std::string("Cannot read ") + formatName + " file " + path + (reason.empty() ? "" : ": " + reason));
    }
    Handle(ProgressForwarder) indicator = new ProgressForwarder(progress);
    if (!reader.Transfer(document, indicator->Start()))
        throw Error(std::string("No shape could be translated from ") + formatName + " file " + path);
}

// Walks the tree below the shape definitions at the top, giving each definition one block.
class TreeWalker
{
public:
    explicit TreeWalker(Document::Impl& impl) : m_impl(impl) {}

    std::size_t blockOf(const TDF_Label& label)
    {
        const std::string entry = entryOf(label);
        const auto found = m_impl.blockByEntry.find(entry);
        if (found != m_impl.blockByEntry.end())
            return found->second;

        const std::size_t index = m_impl.structure.blocks.size();
        m_impl.blockByEntry.emplace(entry, index);
        m_impl.structure.blocks.emplace_back();
        m_impl.shapes.emplace_back();
        {
            Block& block = m_impl.structure.blocks[index];
            block.entry = entry;
            block.name = nameOf(label);
            block.isAssembly = XCAFDoc_ShapeTool::IsAssembly(label);
            block.color = colorOf(*m_impl.colorTool, label);
            BlockShape& shape = m_impl.shapes[index];
            shape.label = label;
            if (!block.isAssembly) {
                shape.shape = XCAFDoc_ShapeTool::GetShape(label);
                TopExp::MapShapes(shape.shape, TopAbs_FACE, shape.faces);
                TopExp::MapShapes(shape.shape, TopAbs_EDGE, shape.edges);
                TopExp::MapShapes(shape.shape, TopAbs_VERTEX, shape.vertices);
                block.faceCount = static_cast<std::size_t>(shape.faces.Extent());
                block.edgeCount = static_cast<std::size_t>(shape.edges.Extent());
            }
        }
        if (m_impl.structure.blocks[index].isAssembly) {
            TDF_LabelSequence components;
            XCAFDoc_ShapeTool::GetComponents(label, components);
            std::vector<Component> children;
            for (const TDF_Label& component : components) {
                TDF_Label referred;
                if (!XCAFDoc_ShapeTool::GetReferredShape(component, referred))
                    continue;
                Component child = componentOf(component, blockOf(referred));
                child.placement = placementOf(XCAFDoc_ShapeTool::GetLocation(component));
                children.push_back(std::move(child));
            }
            m_impl.structure.blocks[index].components = std::move(children);
        }
        if (m_impl.structure.blocks[index].name.empty())
            m_impl.structure.blocks[index].name = (block(index).isAssembly ? "Assembly " : "Part ") + std::to_string(index + 1);
        return index;
    }

    Component componentOf(const TDF_Label& label, std::size_t block)
    {
        Component component;
        component.block = block;
        component.entry = entryOf(label);
        component.name = nameOf(label);
        if (component.name.empty())
            component.name = m_impl.structure.blocks[block].name;
        component.color = colorOf(*m_impl.colorTool, label);
        return component;
    }

private:
    const Block& block(std::size_t index) const { return m_impl.structure.blocks[index]; }

    Document::Impl& m_impl;
};

} // namespace

std::string entryOf(const TDF_Label& label)
{
    TCollection_AsciiString entry;
    TDF_Tool::Entry(label, entry);
    return entry.ToCString();
}

std::optional<Rgba> colorOf(const XCAFDoc_ColorTool& colors, const TDF_Label& label)
{
    Quantity_ColorRGBA color;
    // GetColor is not const in OpenCASCADE 7.6, though it changes nothing.
    auto& tool = const_cast<XCAFDoc_ColorTool&>(colors);
    if (!tool.GetColor(label, XCAFDoc_ColorSurf, color) && !tool.GetColor(label, XCAFDoc_ColorGen, color))
        return std::nullopt;
    Standard_Real red = 0, green = 0, blue = 0;
    color.GetRGB().Values(red, green, blue, Quantity_TOC_sRGB);
    return Rgba{static_cast<float>(red), static_cast<float>(green), static_cast<float>(blue), color.Alpha()};
}

std::optional<Format> formatOf(const std::string& path)
{
    const std::string extension = lowercase(std::filesystem::path(path).extension().string());
    if (extension == ".stp" || extension == ".step" || extension == ".p21")
        return Format::Step;
    if (extension == ".igs" || extension == ".iges")
        return Format::Iges;
    return std::nullopt;
}

std::string kernelVersion()
{
    return OCC_VERSION_COMPLETE;
}

Document::Document(const std::string& path, const ProgressCallback& progress) : m_impl(std::make_unique<Impl>())
{
    const Format format = checkedFormat(path);
    warnings().take();
    XCAFDoc_ShapeTool::SetAutoNaming(false);
    try {
        XCAFApp_Application::GetApplication()->NewDocument("MDTV-XCAF", m_impl->document);
        if (format == Format::Step) {
            STEPCAFControl_Reader reader;
            reader.SetGDTMode(true);
            reader.SetPropsMode(true);
            readInto(reader, path, "STEP", m_impl->document, progress);
        } else {
            IGESCAFControl_Reader reader;
            readInto(reader, path, "IGES", m_impl->document, progress);
        }
    } catch (const Standard_Failure& failure) {
        throw Error("OpenCASCADE failed reading " + path + ": " + failure.GetMessageString());
    }

    m_impl->shapeTool = XCAFDoc_DocumentTool::ShapeTool(m_impl->document->Main());
    m_impl->colorTool = XCAFDoc_DocumentTool::ColorTool(m_impl->document->Main());
    TDF_LabelSequence freeShapes;
    m_impl->shapeTool->GetFreeShapes(freeShapes);
    if (freeShapes.IsEmpty())
        throw Error("No shape found in " + path);

    TreeWalker walker(*m_impl);
    for (const TDF_Label& label : freeShapes)
        m_impl->structure.roots.push_back(walker.componentOf(label, walker.blockOf(label)));
    m_impl->structure.productName = m_impl->structure.roots.size() == 1 ? m_impl->structure.roots.front().name
                                                                         : std::filesystem::path(path).stem().string();
}

Document::~Document() = default;

const Structure& Document::structure() const
{
    return m_impl->structure;
}

std::vector<std::string> Document::takeWarnings()
{
    return warnings().take();
}

} // namespace cad
