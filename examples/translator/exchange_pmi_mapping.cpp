// The semantic PMI as the PMI family's annotations, grouped by the block they annotate.

#include "exchange_mapping.h"

#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>

#include <algorithm>
#include <map>

namespace translator {
namespace {

using Gdt = hrm::ExcPMIGDT;
using Dimension = hrm::ExcPMIDimension;

Gdt::EToleranceType toleranceTypeOf(XCAFDimTolObjects_GeomToleranceType type)
{
    switch (type) {
    case XCAFDimTolObjects_GeomToleranceType_Angularity: return Gdt::EToleranceType::OrientationAngularity;
    case XCAFDimTolObjects_GeomToleranceType_CircularRunout: return Gdt::EToleranceType::RunOutCircular;
    case XCAFDimTolObjects_GeomToleranceType_CircularityOrRoundness: return Gdt::EToleranceType::FormCircularity;
    case XCAFDimTolObjects_GeomToleranceType_Coaxiality: return Gdt::EToleranceType::LocationCoaxiality;
    case XCAFDimTolObjects_GeomToleranceType_Concentricity: return Gdt::EToleranceType::LocationConcentricity;
    case XCAFDimTolObjects_GeomToleranceType_Cylindricity: return Gdt::EToleranceType::FormCylindricity;
    case XCAFDimTolObjects_GeomToleranceType_Flatness: return Gdt::EToleranceType::FormFlatness;
    case XCAFDimTolObjects_GeomToleranceType_Parallelism: return Gdt::EToleranceType::OrientationParallelism;
    case XCAFDimTolObjects_GeomToleranceType_Perpendicularity: return Gdt::EToleranceType::OrientationPerpendicularity;
    case XCAFDimTolObjects_GeomToleranceType_Position: return Gdt::EToleranceType::LocationTruePosition;
    case XCAFDimTolObjects_GeomToleranceType_ProfileOfLine: return Gdt::EToleranceType::FormProfileAnyLine;
    case XCAFDimTolObjects_GeomToleranceType_ProfileOfSurface: return Gdt::EToleranceType::FormProfileAnySurface;
    case XCAFDimTolObjects_GeomToleranceType_Straightness: return Gdt::EToleranceType::FormStraightness;
    case XCAFDimTolObjects_GeomToleranceType_Symmetry: return Gdt::EToleranceType::LocationSymmetry;
    case XCAFDimTolObjects_GeomToleranceType_TotalRunout: return Gdt::EToleranceType::RunOutTotal;
    default: return Gdt::EToleranceType::Unknown;
    }
}

Gdt::EToleranceValueType valueTypeOf(XCAFDimTolObjects_GeomToleranceTypeValue type)
{
    switch (type) {
    case XCAFDimTolObjects_GeomToleranceTypeValue_Diameter: return Gdt::EToleranceValueType::Diameter;
    case XCAFDimTolObjects_GeomToleranceTypeValue_SphericalDiameter: return Gdt::EToleranceValueType::Spherical;
    default: return Gdt::EToleranceValueType::None;
    }
}

// The modifier of the tolerance zone beside the material condition: the first of the frame's
// modifiers that the format can say.
Gdt::EToleranceModifier zoneModifierOf(const std::vector<XCAFDimTolObjects_GeomToleranceModif>& modifiers)
{
    for (const XCAFDimTolObjects_GeomToleranceModif modifier : modifiers) {
        switch (modifier) {
        case XCAFDimTolObjects_GeomToleranceModif_Tangent_Plane: return Gdt::EToleranceModifier::TangentPlaneTangent;
        case XCAFDimTolObjects_GeomToleranceModif_Free_State: return Gdt::EToleranceModifier::FreeStateFree;
        case XCAFDimTolObjects_GeomToleranceModif_Statistical_Tolerance: return Gdt::EToleranceModifier::StatisticalSymbol;
        case XCAFDimTolObjects_GeomToleranceModif_Common_Zone: return Gdt::EToleranceModifier::CommonZone;
        default: break;
        }
    }
    return Gdt::EToleranceModifier::NoModifier;
}

Gdt::EToleranceModifier materialModifierOf(XCAFDimTolObjects_GeomToleranceMatReqModif modifier)
{
    switch (modifier) {
    case XCAFDimTolObjects_GeomToleranceMatReqModif_M: return Gdt::EToleranceModifier::MaterialConditionMaximum;
    case XCAFDimTolObjects_GeomToleranceMatReqModif_L: return Gdt::EToleranceModifier::MaterialConditionLeast;
    default: return Gdt::EToleranceModifier::NoModifier;
    }
}

Gdt::EToleranceModifier datumModifierOf(const std::vector<XCAFDimTolObjects_DatumSingleModif>& modifiers)
{
    for (const XCAFDimTolObjects_DatumSingleModif modifier : modifiers) {
        switch (modifier) {
        case XCAFDimTolObjects_DatumSingleModif_MaximumMaterialRequirement: return Gdt::EToleranceModifier::MaterialConditionMaximum;
        case XCAFDimTolObjects_DatumSingleModif_LeastMaterialRequirement: return Gdt::EToleranceModifier::MaterialConditionLeast;
        case XCAFDimTolObjects_DatumSingleModif_FreeState: return Gdt::EToleranceModifier::FreeStateFree;
        default: break;
        }
    }
    return Gdt::EToleranceModifier::NoModifier;
}

bool isAngular(XCAFDimTolObjects_DimensionType type)
{
    return type == XCAFDimTolObjects_DimensionType_Location_Angular || type == XCAFDimTolObjects_DimensionType_Size_Angular;
}

Dimension::ESubType subTypeOf(XCAFDimTolObjects_DimensionType type)
{
    switch (type) {
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromCenterToOuter:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromCenterToInner:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromOuterToCenter:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromOuterToOuter:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromOuterToInner:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromInnerToCenter:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromInnerToOuter:
    case XCAFDimTolObjects_DimensionType_Location_LinearDistance_FromInnerToInner:
    case XCAFDimTolObjects_DimensionType_Location_Oriented:
        return Dimension::ESubType::Distance;
    case XCAFDimTolObjects_DimensionType_Location_CurvedDistance:
    case XCAFDimTolObjects_DimensionType_Location_WithPath:
    case XCAFDimTolObjects_DimensionType_Size_CurveLength:
    case XCAFDimTolObjects_DimensionType_Size_WithPath:
        return Dimension::ESubType::LengthCurvilinear;
    case XCAFDimTolObjects_DimensionType_Location_Angular:
    case XCAFDimTolObjects_DimensionType_Size_Angular:
        return Dimension::ESubType::Angle;
    case XCAFDimTolObjects_DimensionType_Size_Diameter:
    case XCAFDimTolObjects_DimensionType_Size_SphericalDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMinorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMajorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalHighMajorDiameter:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalLowMajorDiameter:
        return Dimension::ESubType::Diameter;
    case XCAFDimTolObjects_DimensionType_Size_Radius:
    case XCAFDimTolObjects_DimensionType_Size_SphericalRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMinorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalMajorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalHighMajorRadius:
    case XCAFDimTolObjects_DimensionType_Size_ToroidalLowMajorRadius:
        return Dimension::ESubType::Radius;
    case XCAFDimTolObjects_DimensionType_Size_Thickness:
        return Dimension::ESubType::Length;
    default:
        return Dimension::ESubType::NoDim;
    }
}

// Where the annotations of one import go: the paths from the top to one instance of each block,
// for annotations that are not the affair of a single block.
class PmiMapper
{
public:
    explicit PmiMapper(const cad::Structure& structure) : m_structure(structure)
    {
        for (const cad::Component& root : structure.roots)
            findPaths(root, {});
    }

    // The entities an annotation links: a block's own elements when `block` is given, else
    // paths from the top.
    hrm::ExcPMIAnnotation::Entities linkedElements(const std::vector<cad::ShapeRef>& shapes, std::optional<std::size_t> block) const
    {
        hrm::ExcPMIAnnotation::Entities entities;
        for (const cad::ShapeRef& shape : shapes) {
            auto path = std::make_shared<hrm::ExcFullSubentPath>(static_cast<uint64_t>(shape.index));
            path->setSubentType(static_cast<hrm::ESubentType>(shape.kind));
            const std::wstring id = shape.kind == cad::ShapeRef::Kind::Body ? std::wstring() : elementId(shape.kind, shape.index);
            path->setVisuId(id);
            if (!block) {
                const auto found = m_paths.find(shape.block);
                if (found != m_paths.end())
                    path->refs() = found->second;
                path->setInstancePath(true);
            }
            auto entity = std::make_shared<hrm::ExcEntity>();
            entity->setType(hrm::ExcEntity::EType::Fsp);
            entity->setId(id.empty() ? L"block-" + std::to_wstring(blockId(shape.block)) : id);
            entity->setFsp(path);
            entities.push_back(entity);
        }
        return entities;
    }

private:
    void findPaths(const cad::Component& component, std::vector<std::wstring> path)
    {
        path.push_back(wide(component.entry));
        m_paths.emplace(component.block, path);
        for (const cad::Component& child : m_structure.blocks[component.block].components)
            findPaths(child, path);
    }

    const cad::Structure& m_structure;
    std::map<std::size_t, std::vector<std::wstring>> m_paths; // block -> entries of its first instance
};

// The block all of an annotation's shapes belong to, if there is one.
std::optional<std::size_t> ownerOf(const std::vector<cad::ShapeRef>& shapes)
{
    if (shapes.empty())
        return std::nullopt;
    for (const cad::ShapeRef& shape : shapes) {
        if (shape.block != shapes.front().block)
            return std::nullopt;
    }
    return shapes.front().block;
}

std::shared_ptr<hrm::ExcPMIDatum> datumOf(const cad::Datum& datum, const PmiMapper& mapper, std::optional<std::size_t> block)
{
    auto annotation = std::make_shared<hrm::ExcPMIDatum>();
    annotation->setId(wide(datum.entry));
    annotation->setName(L"Datum " + wide(datum.label));
    annotation->setLabel(wide(datum.label));
    annotation->setLinkedElements(mapper.linkedElements(datum.shapes, block));
    return annotation;
}

std::shared_ptr<Dimension> dimensionOf(const cad::Dimension& dimension, std::size_t number, const PmiMapper& mapper,
                                       std::optional<std::size_t> block)
{
    auto annotation = std::make_shared<Dimension>();
    annotation->setId(wide(dimension.entry));
    annotation->setName(L"Dimension " + std::to_wstring(number));
    annotation->setMainType(dimension.hasPlusMinus || dimension.hasRange ? Dimension::EMainType::Tolerance : Dimension::EMainType::Basic);
    annotation->setSubType(subTypeOf(dimension.type));
    annotation->setValue(dimension.value);
    annotation->setUnit(isAngular(dimension.type) ? Dimension::EDimUnit::Degree : Dimension::EDimUnit::Mm);
    if (dimension.decimals >= 0)
        annotation->setValuePrecision(dimension.decimals);
    // Tolerances as signed offsets from the value.
    if (dimension.hasPlusMinus) {
        annotation->setNumericalToleranceUpper(dimension.upperTolerance);
        annotation->setNumericalToleranceLower(-dimension.lowerTolerance);
    } else if (dimension.hasRange) {
        annotation->setNumericalToleranceUpper(dimension.upperBound - dimension.value);
        annotation->setNumericalToleranceLower(dimension.lowerBound - dimension.value);
    }
    annotation->setLinkedElements(mapper.linkedElements(dimension.shapes, block));
    return annotation;
}

// The datum reference frame: one compartment per position, its datums in order ("A", or "A-B"
// for a common datum).
std::shared_ptr<Gdt::Frame> frameOf(const std::vector<cad::DatumReference>& datums)
{
    std::map<int, std::vector<const cad::DatumReference*>> byPosition;
    for (const cad::DatumReference& datum : datums)
        byPosition[datum.position].push_back(&datum);
    auto frame = std::make_shared<Gdt::Frame>();
    for (const auto& [position, compartment] : byPosition) {
        Gdt::DatumRef reference;
        std::wstring label;
        for (const cad::DatumReference* datum : compartment) {
            label += (label.empty() ? L"" : L"-") + wide(datum->label);
            Gdt::ModifiedDatum modified;
            modified.setDatumId(wide(datum->label));
            modified.setModifier(datumModifierOf(datum->modifiers));
            reference.addModifiedDatum(std::move(modified));
        }
        reference.setLabel(label);
        frame->addDatumRef(std::move(reference));
    }
    return frame;
}

std::shared_ptr<Gdt> toleranceOf(const cad::GeomTolerance& tolerance, std::size_t number, const PmiMapper& mapper,
                                 std::optional<std::size_t> block)
{
    auto annotation = std::make_shared<Gdt>();
    annotation->setId(wide(tolerance.entry));
    annotation->setName(L"Geometric tolerance " + std::to_wstring(number));
    annotation->setToleranceType(toleranceTypeOf(tolerance.type));
    annotation->setToleranceValueType(valueTypeOf(tolerance.valueType));
    annotation->setToleranceValue(tolerance.value);
    annotation->setZoneModifiers(materialModifierOf(tolerance.materialModifier), zoneModifierOf(tolerance.modifiers));
    if (tolerance.zoneModifier == XCAFDimTolObjects_GeomToleranceZoneModif_Projected)
        annotation->setProjectionToleranceZoneLength(tolerance.zoneValue);
    if (std::find(tolerance.modifiers.begin(), tolerance.modifiers.end(), XCAFDimTolObjects_GeomToleranceModif_All_Around) !=
        tolerance.modifiers.end())
        annotation->setAllAround(1.0);
    if (!tolerance.datums.empty())
        annotation->setReferenceFrame(frameOf(tolerance.datums));
    annotation->setLinkedElements(mapper.linkedElements(tolerance.shapes, block));
    return annotation;
}

// The PMI data holding one annotation set with one view.
std::shared_ptr<hrm::ExcPMIAnnotationView> viewIn(std::map<std::optional<std::size_t>, std::shared_ptr<hrm::ExcPMIData>>& data,
                                                  std::optional<std::size_t> block)
{
    std::shared_ptr<hrm::ExcPMIData>& pmi = data[block];
    if (!pmi) {
        auto set = std::make_shared<hrm::ExcPMIAnnotationSet>();
        set->setBlockId(block ? blockId(*block) : 0);
        set->setName(L"Semantic PMI");
        set->addView(std::make_shared<hrm::ExcPMIAnnotationView>());
        pmi = std::make_shared<hrm::ExcPMIData>();
        pmi->addAnnotationSet(set);
    }
    return pmi->annotationSets().front()->views().front();
}

} // namespace

PmiByOwner pmiData(const cad::Structure& structure, const cad::Pmi& pmi)
{
    const PmiMapper mapper(structure);
    std::map<std::optional<std::size_t>, std::shared_ptr<hrm::ExcPMIData>> data;

    std::map<std::string, std::size_t> blockOfDatumLabel; // where the tolerances naming a datum went
    for (std::size_t i = 0; i < pmi.tolerances.size(); ++i) {
        const cad::GeomTolerance& tolerance = pmi.tolerances[i];
        const std::optional<std::size_t> block = ownerOf(tolerance.shapes);
        viewIn(data, block)->addGdt(toleranceOf(tolerance, i + 1, mapper, block));
        for (const cad::DatumReference& datum : tolerance.datums) {
            if (block)
                blockOfDatumLabel.emplace(datum.label, *block);
        }
    }
    for (std::size_t i = 0; i < pmi.dimensions.size(); ++i) {
        const std::optional<std::size_t> block = ownerOf(pmi.dimensions[i].shapes);
        viewIn(data, block)->addDimension(dimensionOf(pmi.dimensions[i], i + 1, mapper, block));
    }
    // A datum without shapes of its own goes where the tolerances that name it went.
    for (const cad::Datum& datum : pmi.datums) {
        std::optional<std::size_t> block = ownerOf(datum.shapes);
        const auto named = blockOfDatumLabel.find(datum.label);
        if (datum.shapes.empty() && named != blockOfDatumLabel.end())
            block = named->second;
        viewIn(data, block)->addDatum(datumOf(datum, mapper, block));
    }

    PmiByOwner result;
    for (auto& [block, pmiData] : data) {
        if (block)
            result.blocks.emplace(*block, pmiData);
        else
            result.root = pmiData;
    }
    return result;
}

} // namespace translator
