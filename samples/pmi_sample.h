#pragma once

// PMI made the way a translator makes it, for the tests, the fuzz seeds, the mechanical data
// roots and anyone who needs annotations to send:
//
//   auto pmi = hrm::samples::pmi::data();   // two annotation sets, every kind of annotation
//
// Each function returns one small object of its class with every member away from its default
// (children included), so that a test that drops or mistypes any member sees a difference.
// Header-only and deterministic.

#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>

#include "common_sample.h"
#include "visualization_sample.h"

#include <memory>
#include <string>

namespace hrm::samples::pmi {

// A model face an annotation points at, with its path.
inline std::shared_ptr<ExcEntity> entity(const std::wstring& id)
{
    auto entity = samples::full::entity();
    entity->setId(id);
    return entity;
}

inline std::shared_ptr<ExcPMILeader> leader()
{
    auto leader = std::make_shared<ExcPMILeader>();
    leader->addPoint(ExcVector2d(12.5, 40.25));
    leader->addPoint(ExcVector2d(30.0, 52.75));
    return leader;
}

// The members every annotation has, set on `annotation` under `id`.
template <class T>
std::shared_ptr<T> annotation(const std::wstring& id)
{
    auto annotation = std::make_shared<T>();
    annotation->setName(L"PMI " + id);
    annotation->setId(id);
    annotation->setHidden(true);
    annotation->setPosition(ExcVector2d(25.5, -10.25));
    annotation->setOrientation(EPMIOrientation::Parallel);
    annotation->setAngle(0.5);
    annotation->setZDepth(1.5);
    annotation->addLinkedElement(entity(L"face:" + id));
    annotation->addLeader(leader());
    return annotation;
}

inline std::shared_ptr<ExcPMINote::Text> text()
{
    auto text = std::make_shared<ExcPMINote::Text>();
    text->setLabel(L"ALL FILLETS R2 \u00b10.1");
    text->setFontName(L"Monospac821 BT");
    text->setFontType(ExcPMINote::Text::EFontType::ISO);
    text->setFixedPitch(true);
    text->setHeight(3.5);
    text->setBold(true);
    text->setItalic(true);
    text->setUnderline(true);
    text->setStrikeThrough(true);
    text->setOverline(true);
    text->setRatio(0.75);
    text->setSlant(0.25);
    text->setRGBA(0.25, 0.5, 0.75, 0.5);
    return text;
}

inline std::shared_ptr<ExcPMINote> note(const std::wstring& id = L"note-1")
{
    auto note = annotation<ExcPMINote>(id);
    note->addText(text());
    note->setFlagNote(true);
    note->setNOA(true);
    return note;
}

inline std::shared_ptr<ExcPMIDatum> datum(const std::wstring& id = L"datum-A")
{
    auto datum = annotation<ExcPMIDatum>(id);
    datum->setLabel(L"A");
    datum->addTargetId(L"target-A1");
    datum->addTargetId(L"target-A2");
    return datum;
}

inline std::shared_ptr<ExcPMIDatumTarget> datumTarget(const std::wstring& id = L"target-A1")
{
    auto target = annotation<ExcPMIDatumTarget>(id);
    target->setLabel(L"A1");
    target->setTargetType(ExcPMIDatumTarget::EType::AreaCircular);
    target->setHasDiameter(true);
    target->setUpperText(L"\u00d86");
    target->setLowerText(L"A1");
    target->setZonePoint1(ExcVector3d(1.5, 2.5, 3.5));
    target->setZonePoint2(ExcVector3d(7.5, 2.5, 3.5));
    return target;
}

inline ExcPMIGDT::ModifiedDatum modifiedDatum(const std::wstring& label = L"A")
{
    ExcPMIGDT::ModifiedDatum datum;
    datum.setDatumId(label);
    datum.setModifier(ExcPMIGDT::EToleranceModifier::MaterialConditionMaximum);
    return datum;
}

inline ExcPMIGDT::DatumRef datumRef(const std::wstring& label = L"A")
{
    ExcPMIGDT::DatumRef ref;
    ref.setLabel(label);
    ref.addModifiedDatum(modifiedDatum(label));
    return ref;
}

inline std::shared_ptr<ExcPMIGDT::Frame> frame(const std::wstring& label = L"A|B")
{
    auto frame = std::make_shared<ExcPMIGDT::Frame>();
    frame->setLabel(label);
    frame->addDatumRef(datumRef(L"A"));
    frame->addDatumRef(datumRef(L"B"));
    return frame;
}

// A composite position tolerance: the upper segment to A|B, the lower one to A.
inline std::shared_ptr<ExcPMIGDT> gdt(const std::wstring& id = L"gdt-1")
{
    using Modifier = ExcPMIGDT::EToleranceModifier;
    auto gdt = annotation<ExcPMIGDT>(id);
    gdt->setToleranceType(ExcPMIGDT::EToleranceType::LocationTruePosition);
    gdt->setToleranceValueType(ExcPMIGDT::EToleranceValueType::Diameter);
    gdt->setToleranceValue(0.25);
    gdt->setRefineTolerance(0.125);
    gdt->setRateUnit(10.5, 20.5);
    gdt->setProjectionToleranceZoneLength(12.5);
    gdt->setShiftValue(0.5);
    gdt->setAllAround(1.0);
    gdt->setNote(L"4X");
    gdt->setZoneModifiers(Modifier::MaterialConditionMaximum, Modifier::TangentPlaneTangent);
    gdt->setReferenceFrame(frame());
    gdt->setComposite(true);
    gdt->setCompositeToleranceValueType(ExcPMIGDT::EToleranceValueType::Spherical);
    gdt->setCompositeToleranceValue(0.05);
    gdt->setCompositeRateUnits(5.5, 6.5);
    gdt->setCompositeZoneModifier(Modifier::FreeStateFree);
    gdt->setCompositeReferenceFrame(frame(L"A"));
    return gdt;
}

inline std::shared_ptr<ExcPMIDimension> dimension(const std::wstring& id = L"dim-1")
{
    using Arrow = ExcPMIDimension::EArrowSymbol;
    auto dimension = annotation<ExcPMIDimension>(id);
    dimension->setMainType(ExcPMIDimension::EMainType::Tolerance);
    dimension->setSubType(ExcPMIDimension::ESubType::DiameterCylinder);
    dimension->setCalloutFeatureAnnotationType(ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutDepth);
    dimension->setCoord(ExcVector3d(10.5, 20.5, 30.5));
    dimension->setValue(12.7);
    dimension->setUnit(ExcPMIDimension::EDimUnit::Mm);
    dimension->setValuePrecision(2.0);
    dimension->setTolerancePrecisionValue(3.0);
    dimension->setNumericalToleranceUpper(0.1);
    dimension->setNumericalToleranceLower(-0.05);
    dimension->setAlphanumericalToleranceUpper(L"H7");
    dimension->setAlphanumericalToleranceLower(L"g6");
    dimension->setPrefix(L"\u00d8");
    dimension->setSuffix(L"THRU");
    dimension->setBefore(L"2X");
    dimension->setAfter(L"EQ SP");
    dimension->setUpper(L"+0.1");
    dimension->setLower(L"-0.05");
    dimension->setCalloutText(L"\u2334 8");
    dimension->setBelow(L"BOTH SIDES");
    dimension->setHasFakeNumericalValue(true);
    dimension->setFakeNumericalValue(12.75);
    dimension->setHasFakeAlphanumericalValue(true);
    dimension->setFakeAlphanumericalValue(L"1/2\"");
    dimension->setDriving(true);
    dimension->setLineStart(ExcVector2d(0.5, 1.5));
    dimension->setLineEnd(ExcVector2d(40.5, 1.5));
    dimension->setArrowSymbolStart(Arrow::FilledArrow);
    dimension->setArrowSymbolEnd(Arrow::OpenArrow);
    dimension->setSymbolOutside(true);
    return dimension;
}

inline std::shared_ptr<ExcPMIRoughness> roughness(const std::wstring& id = L"rough-1")
{
    auto roughness = annotation<ExcPMIRoughness>(id);
    roughness->setObtentionType(ExcPMIRoughness::EObtentionType::MatchingMandatory);
    roughness->setApplicabilityType(ExcPMIRoughness::EApplicabilityType::AllPartSurfaces);
    roughness->addField(L"Ra 1.6");
    roughness->addField(L"grinded");
    return roughness;
}

// A view of every kind of annotation, their ids prefixed with `prefix`.
inline std::shared_ptr<ExcPMIAnnotationView> view(const std::wstring& prefix = L"")
{
    auto view = std::make_shared<ExcPMIAnnotationView>();
    view->setOrigin(ExcVector3d(0.5, 1.5, 2.5));
    view->setVectorU(ExcVector3d(1.0, 0.0, 0.0));
    view->setVectorV(ExcVector3d(0.0, 1.0, 0.0));
    view->addNote(note(prefix + L"note-1"));
    view->addDatum(datum(prefix + L"datum-A"));
    view->addDatumTarget(datumTarget(prefix + L"target-A1"));
    view->addGdt(gdt(prefix + L"gdt-1"));
    view->addDimension(dimension(prefix + L"dim-1"));
    view->addRoughness(roughness(prefix + L"rough-1"));
    return view;
}

inline std::shared_ptr<ExcPMICapture> capture(const std::wstring& prefix = L"")
{
    auto capture = std::make_shared<ExcPMICapture>();
    capture->setCaptureHidden(true);
    capture->setCurrent(true);
    capture->setHiddenText(L"hidden in the front view");
    capture->setManageHideShow(true);
    capture->setCamera(samples::full::camera());
    capture->setClippingPlane(samples::full::clippingPlane());
    capture->addAnnotationId(prefix + L"gdt-1");
    capture->addAnnotationId(prefix + L"dim-1");
    capture->addConstructedGeometry(entity(L"axis:1"));
    capture->addBody(entity(L"body:1"));
    return capture;
}

inline std::shared_ptr<ExcPMIAnnotationSet> annotationSet(uint64_t blockId = 7, const std::wstring& prefix = L"")
{
    auto set = std::make_shared<ExcPMIAnnotationSet>();
    set->setBlockId(blockId);
    set->setName(L"Annotation Set.1");
    set->setHidden(true);
    set->setStandart(L"ASME");
    set->addView(view(prefix));
    set->addCapture(capture(prefix));
    set->addConstructedGeometry(entity(L"plane:1"));
    return set;
}

// Two annotation sets, of blocks 7 and 8.
inline std::shared_ptr<ExcPMIData> data()
{
    auto data = std::make_shared<ExcPMIData>();
    data->addAnnotationSet(annotationSet(7, L"p1:"));
    data->addAnnotationSet(annotationSet(8, L"p2:"));
    return data;
}

} // namespace hrm::samples::pmi
