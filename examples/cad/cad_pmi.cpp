// The semantic PMI of the document: datums, dimensions and geometric tolerances with the
// topology they apply to.

#include "cad_document_impl.h"

#include <TopExp.hxx>
#include <XCAFDimTolObjects_DatumObject.hxx>
#include <XCAFDimTolObjects_DimensionObject.hxx>
#include <XCAFDimTolObjects_GeomToleranceObject.hxx>
#include <XCAFDoc_Datum.hxx>
#include <XCAFDoc_Dimension.hxx>
#include <XCAFDoc_DimTolTool.hxx>
#include <XCAFDoc_DocumentTool.hxx>
#include <XCAFDoc_GeomTolerance.hxx>

namespace cad {
namespace {

std::string text(const Handle(TCollection_HAsciiString)& string)
{
    return string.IsNull() ? std::string() : std::string(string->ToCString());
}

class PmiReader
{
public:
    explicit PmiReader(const Document::Impl& impl)
        : m_impl(impl), m_tool(XCAFDoc_DocumentTool::DimTolTool(impl.document->Main()))
    {
    }

    Pmi read() const
    {
        Pmi pmi;
        TDF_LabelSequence labels;
        m_tool->GetDatumLabels(labels);
        for (const TDF_Label& label : labels) {
            if (std::optional<Datum> datum = datumOf(label))
                pmi.datums.push_back(std::move(*datum));
        }
        labels.Clear();
        m_tool->GetDimensionLabels(labels);
        for (const TDF_Label& label : labels) {
            if (std::optional<Dimension> dimension = dimensionOf(label))
                pmi.dimensions.push_back(std::move(*dimension));
        }
        labels.Clear();
        m_tool->GetGeomToleranceLabels(labels);
        for (const TDF_Label& label : labels) {
            if (std::optional<GeomTolerance> tolerance = toleranceOf(label))
                pmi.tolerances.push_back(std::move(*tolerance));
        }
        return pmi;
    }

private:
    std::optional<Datum> datumOf(const TDF_Label& label) const
    {
        Handle(XCAFDoc_Datum) attribute;
        if (!label.FindAttribute(XCAFDoc_Datum::GetID(), attribute))
            return std::nullopt;
        const Handle(XCAFDimTolObjects_DatumObject) object = attribute->GetObject();
        Datum datum;
        datum.entry = entryOf(label);
        datum.label = text(object->GetName());
        datum.shapes = shapesOf(label);
        return datum;
    }

    std::optional<Dimension> dimensionOf(const TDF_Label& label) const
    {
        Handle(XCAFDoc_Dimension) attribute;
        if (!label.FindAttribute(XCAFDoc_Dimension::GetID(), attribute))
            return std::nullopt;
        const Handle(XCAFDimTolObjects_DimensionObject) object = attribute->GetObject();
        Dimension dimension;
        dimension.entry = entryOf(label);
        dimension.type = object->GetType();
        dimension.qualifier = object->GetQualifier();
        dimension.value = object->GetValue();
        dimension.hasPlusMinus = object->IsDimWithPlusMinusTolerance();
        if (dimension.hasPlusMinus) {
            dimension.upperTolerance = object->GetUpperTolValue();
            dimension.lowerTolerance = object->GetLowerTolValue();
        }
        dimension.hasRange = object->IsDimWithRange();
        if (dimension.hasRange) {
            dimension.lowerBound = object->GetLowerBound();
            dimension.upperBound = object->GetUpperBound();
        }
        Standard_Integer left = 0, right = 0;
        object->GetNbOfDecimalPlaces(left, right);
        if (left > 0 || right > 0)
            dimension.decimals = right;
        dimension.shapes = shapesOf(label);
        return dimension;
    }

    std::optional<GeomTolerance> toleranceOf(const TDF_Label& label) const
    {
        Handle(XCAFDoc_GeomTolerance) attribute;
        if (!label.FindAttribute(XCAFDoc_GeomTolerance::GetID(), attribute))
            return std::nullopt;
        const Handle(XCAFDimTolObjects_GeomToleranceObject) object = attribute->GetObject();
        GeomTolerance tolerance;
        tolerance.entry = entryOf(label);
        tolerance.type = object->GetType();
        tolerance.valueType = object->GetTypeOfValue();
        tolerance.value = object->GetValue();
        tolerance.materialModifier = object->GetMaterialRequirementModifier();
        tolerance.zoneModifier = object->GetZoneModifier();
        tolerance.zoneValue = object->GetValueOfZoneModifier();
        for (const XCAFDimTolObjects_GeomToleranceModif modifier : object->GetModifiers())
            tolerance.modifiers.push_back(modifier);

        TDF_LabelSequence datumLabels;
        m_tool->GetDatumWithObjectOfTolerLabels(label, datumLabels);
        for (const TDF_Label& datumLabel : datumLabels) {
            Handle(XCAFDoc_Datum) datum;
            if (!datumLabel.FindAttribute(XCAFDoc_Datum::GetID(), datum))
                continue;
            const Handle(XCAFDimTolObjects_DatumObject) datumObject = datum->GetObject();
            DatumReference reference;
            reference.label = text(datumObject->GetName());
            reference.position = datumObject->GetPosition();
            for (const XCAFDimTolObjects_DatumSingleModif modifier : datumObject->GetModifiers())
                reference.modifiers.push_back(modifier);
            tolerance.datums.push_back(std::move(reference));
        }
        tolerance.shapes = shapesOf(label);
        return tolerance;
    }

    // The faces, edges, vertices or whole bodies an annotation refers to, each once.
    std::vector<ShapeRef> shapesOf(const TDF_Label& label) const
    {
        TDF_LabelSequence first, second;
        m_tool->GetRefShapeLabel(label, first, second);
        first.Append(second);
        std::vector<ShapeRef> shapes;
        const auto add = [&shapes](const ShapeRef& ref) {
            for (const ShapeRef& known : shapes) {
                if (known.block == ref.block && known.kind == ref.kind && known.index == ref.index)
                    return;
            }
            shapes.push_back(ref);
        };
        for (const TDF_Label& shapeLabel : first) {
            if (XCAFDoc_ShapeTool::IsSubShape(shapeLabel)) {
                const auto block = m_impl.blockByEntry.find(entryOf(shapeLabel.Father()));
                if (block == m_impl.blockByEntry.end())
                    continue;
                for (const ShapeRef& ref : subShapesOf(block->second, XCAFDoc_ShapeTool::GetShape(shapeLabel)))
                    add(ref);
                continue;
            }
            TDF_Label definition = shapeLabel;
            XCAFDoc_ShapeTool::GetReferredShape(shapeLabel, definition);
            const auto block = m_impl.blockByEntry.find(entryOf(definition));
            if (block != m_impl.blockByEntry.end())
                add(ShapeRef{block->second, ShapeRef::Kind::Body, 0});
        }
        return shapes;
    }

    // The faces of `shape` in the block's numbering; its edges, or its vertices, when it has
    // no faces.
    std::vector<ShapeRef> subShapesOf(std::size_t block, const TopoDS_Shape& shape) const
    {
        const BlockShape& owner = m_impl.shapes[block];
        std::vector<ShapeRef> refs;
        const auto collect = [&](TopAbs_ShapeEnum type, const TopTools_IndexedMapOfShape& numbering, ShapeRef::Kind kind) {
            TopTools_IndexedMapOfShape found;
            TopExp::MapShapes(shape, type, found);
            for (int i = 1; i <= found.Extent(); ++i) {
                const int index = numbering.FindIndex(found(i));
                if (index > 0)
                    refs.push_back(ShapeRef{block, kind, index});
            }
        };
        collect(TopAbs_FACE, owner.faces, ShapeRef::Kind::Face);
        if (refs.empty())
            collect(TopAbs_EDGE, owner.edges, ShapeRef::Kind::Edge);
        if (refs.empty())
            collect(TopAbs_VERTEX, owner.vertices, ShapeRef::Kind::Vertex);
        return refs;
    }

    const Document::Impl& m_impl;
    Handle(XCAFDoc_DimTolTool) m_tool;
};

} // namespace

Pmi Document::pmi() const
{
    if (!XCAFDoc_DocumentTool::CheckDimTolTool(m_impl->document->Main()))
        return {};
    return PmiReader(*m_impl).read();
}

} // namespace cad
