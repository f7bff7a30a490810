#pragma once

// The state a cad::Document keeps between its steps, shared by its three sources (reading and
// the tree, tessellation, PMI).

#include "cad_document.h"

#include <Message_ProgressIndicator.hxx>
#include <Message_ProgressScope.hxx>
#include <TDF_Label.hxx>
#include <TDocStd_Document.hxx>
#include <TopTools_IndexedMapOfShape.hxx>
#include <TopoDS_Shape.hxx>
#include <XCAFDoc_ColorTool.hxx>
#include <XCAFDoc_ShapeTool.hxx>

#include <map>
#include <string>
#include <vector>

namespace cad {

// One block's shape with its faces, edges and vertices numbered from 1, as the model numbers them.
struct BlockShape
{
    TDF_Label label;
    TopoDS_Shape shape;
    TopTools_IndexedMapOfShape faces;
    TopTools_IndexedMapOfShape edges;
    TopTools_IndexedMapOfShape vertices;
};

struct Document::Impl
{
    Handle(TDocStd_Document) document;
    Handle(XCAFDoc_ShapeTool) shapeTool;
    Handle(XCAFDoc_ColorTool) colorTool;
    Structure structure;
    std::vector<BlockShape> shapes;              // parallel to structure.blocks
    std::map<std::string, std::size_t> blockByEntry;
};

// Hands OpenCASCADE's progress to a callback, and the callback's wish to stop back to it.
class ProgressForwarder : public Message_ProgressIndicator
{
public:
    explicit ProgressForwarder(const ProgressCallback& callback) : m_callback(callback) {}

    Standard_Boolean UserBreak() override { return m_stopped; }

protected:
    void Show(const Message_ProgressScope&, const Standard_Boolean) override
    {
        if (m_callback && !m_callback(GetPosition()))
            m_stopped = true;
    }

private:
    const ProgressCallback& m_callback;
    bool m_stopped = false;
};

// The label's entry ("0:1:1:2").
std::string entryOf(const TDF_Label& label);
// The colour set on a label (surface colour first, then the generic one).
std::optional<Rgba> colorOf(const XCAFDoc_ColorTool& colors, const TDF_Label& label);

} // namespace cad
