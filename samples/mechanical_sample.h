#pragma once

// One small object of every class of the miscellaneous mechanical data, the manufacturing
// features and the entity information, with every member set away from its default, and both
// mechanical roots (the block holding every kind of child, the PMI of samples::pmi), for the
// tests, the fuzz seeds, the two-process test and anyone who needs a filled example:
//
//   auto data = hrm::samples::mechanical::mfgData();   // every kind of feature
//
// Header-only and deterministic.

#include <hrm_api/hrm_api_exchange_mechanical_mfg.h>
#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_exchange_mechanical_roots.h>
#include <hrm_api/hrm_api_exchange_mechanical_topology.h>

#include "common_sample.h"
#include "pmi_sample.h"

#include <memory>
#include <string>

namespace hrm::samples::mechanical {

// An entity named `id`, a face of an instance.
inline std::shared_ptr<ExcEntity> entity(const std::wstring& id)
{
    auto entity = std::make_shared<ExcEntity>();
    entity->setId(id);
    entity->setType(ExcEntity::EType::Fsp);
    entity->setFsp(full::subentPath());
    entity->setDescription(L"face of " + id);
    return entity;
}

inline std::shared_ptr<ExcMiscWCS> wcs()
{
    auto wcs = std::make_shared<ExcMiscWCS>();
    wcs->setOrigin(ExcVector3d(10.0, 20.0, 30.0));
    wcs->setX(ExcVector3d(0.0, 1.0, 0.0));
    wcs->setY(ExcVector3d(-1.0, 0.0, 0.0));
    wcs->setZ(ExcVector3d(0.0, 0.0, 1.0));
    wcs->setColor(ExcColor(255, 128, 0));
    wcs->setActive(true);
    wcs->setId(L"wcs-1");
    wcs->setName(L"Fixture \u00e9");
    wcs->setShown(true);
    wcs->setLayerId(7);
    return wcs;
}

inline std::shared_ptr<ExcMiscLayer> layer()
{
    auto layer = std::make_shared<ExcMiscLayer>();
    layer->setId(7);
    layer->setName(L"Construction");
    layer->setCurrent(true);
    layer->setColor(ExcColor(0, 0, 255, 128));
    layer->addEntity(entity(L"layer-face"));
    return layer;
}

inline std::shared_ptr<ExcMiscLayerFilter> layerFilter()
{
    auto filter = std::make_shared<ExcMiscLayerFilter>();
    filter->setName(L"Visible");
    filter->setType(ExcMiscLayerFilter::EType::LayCur);
    filter->setCurrent(true);
    filter->setLayerIds({1, 7, -3});
    return filter;
}

inline std::shared_ptr<ExcMiscNoteParameters> noteParameters()
{
    auto parameters = std::make_shared<ExcMiscNoteParameters>();
    parameters->setName(L"Title block");
    parameters->setProperties(*full::propertiesGroup());
    return parameters;
}

inline ExcMiscMaterialPropertyUnit propertyUnit(const std::wstring& units)
{
    ExcMiscMaterialPropertyUnit unit;
    unit.setUnits(units);
    unit.setUnitSystem(EUnitSystemType::Mmks);
    return unit;
}

inline std::shared_ptr<ExcMiscMaterialPropertyUnit> materialPropertyUnit()
{
    return std::make_shared<ExcMiscMaterialPropertyUnit>(propertyUnit(L"kg"));
}

inline std::shared_ptr<ExcMiscMaterialProperty> materialProperty(double value = 7.85e-6)
{
    auto property = std::make_shared<ExcMiscMaterialProperty>();
    property->setValue(value);
    property->unit().mass = propertyUnit(L"kg");
    property->unit().length = propertyUnit(L"mm");
    property->unit().time = propertyUnit(L"s");
    property->unit().temperature = propertyUnit(L"K");
    return property;
}

inline std::shared_ptr<ExcMiscMaterial> material()
{
    auto material = std::make_shared<ExcMiscMaterial>();
    material->setName(L"Steel S235");
    material->set(ExcMiscMaterial::EProperty::ShearModulus, materialProperty(81000.0));
    material->set(ExcMiscMaterial::EProperty::Density, materialProperty());
    material->addLinkedElement(entity(L"body-1"));
    material->setPartLevelMaterial(true);
    return material;
}

inline std::shared_ptr<ExcMiscSymmetry> symmetry()
{
    auto symmetry = std::make_shared<ExcMiscSymmetry>();
    symmetry->setTransformMode(ExcMiscSymmetry::ETransformMode::Opposite);
    ExcTransformation mirror;
    mirror.affine()[0][0] = -1.0;
    mirror.translation() = ExcVector3d(50.0, 0.0, 0.0);
    symmetry->setTransformation(mirror);
    symmetry->setLinkedEntity(entity(L"mirrored-body"));
    return symmetry;
}

inline std::shared_ptr<ExcMiscDisplaySet> displaySet()
{
    auto set = std::make_shared<ExcMiscDisplaySet>();
    set->setName(L"Machined faces");
    set->setActive(true);
    set->addEntity(entity(L"set-face"));
    return set;
}

inline std::shared_ptr<ExcMechanicalMiscData> miscData()
{
    auto data = std::make_shared<ExcMechanicalMiscData>();
    data->setMiscData(*full::miscData());
    data->addWorldCoordinateSystem(wcs());
    data->addLayer(layer());
    data->addLayerFilter(layerFilter());
    data->addMaterial(material());
    data->addNoteParameters(noteParameters());
    data->addSymmetry(symmetry());
    data->addDisplaySet(displaySet());
    return data;
}

inline std::shared_ptr<ExcMappingData> mapping()
{
    auto mapping = std::make_shared<ExcMappingData>();
    mapping->add(entity(L"imported-1"), entity(L"original-1"));
    mapping->add(entity(L"imported-2"), entity(L"original-2"));
    return mapping;
}

// ---- Manufacturing features --------------------------------------------------------------

// Sets the threading members shared by both thread classes.
template <class Thread>
void setThreading(Thread& thread)
{
    thread.setDiameter(8.0);
    thread.setDepth(12.0);
    thread.setPitch(1.25);
    thread.setOrientation(ExcMfgThreading::EOrientation::LeftHanded);
    thread.setDesignation(L"M8x1.25");
    thread.setDesignationSystemType(ExcMfgThreading::EDesignationSystemType::Metric);
}

inline std::shared_ptr<ExcMfgThread> thread()
{
    auto thread = std::make_shared<ExcMfgThread>();
    setThreading(*thread);
    thread->setSupportDiameter(6.8);
    thread->setSupportDepth(15.0);
    thread->setBottomType(ExcMfgThread::EBottomType::SupportUpToPlane);
    return thread;
}

inline std::shared_ptr<ExcMfgHoleThread> holeThread()
{
    auto thread = std::make_shared<ExcMfgHoleThread>();
    setThreading(*thread);
    thread->setStandart(L"ISO 262");
    thread->setMinimalTolerance(-0.1);
    thread->setMaximalTolerance(0.15);
    return thread;
}

// Sets the members every hole has.
inline void setHole(ExcMfgHole& hole)
{
    hole.setName(L"Hole \u00f8");
    hole.setPrimaryDiameter(6.8);
    hole.setPrimaryDiameterMaxTol(0.05);
    hole.setPrimaryDiameterMinTol(-0.02);
    hole.setPrimaryDepth(20.0);
    hole.setTipAngleDegrees(118.0);
    hole.setBottomLimitExtentType(ExcMfgHole::EBottomLimitExtentType::UpToNext);
    hole.setCenter(ExcVector3d(5.0, 5.0, 0.0));
    hole.setDirection(ExcVector3d(0.0, 0.0, -1.0));
    hole.setHoleThread(holeThread());
}

// Sets the members the counter holes add.
inline void setCounterHole(ExcMfgCounterHole& hole)
{
    setHole(hole);
    hole.setDiameter(11.0);
    hole.setMaximumTolerance(0.1);
    hole.setMinimumTolerance(-0.05);
}

inline std::shared_ptr<ExcMfgSimpleHole> simpleHole()
{
    auto hole = std::make_shared<ExcMfgSimpleHole>();
    setHole(*hole);
    return hole;
}

inline std::shared_ptr<ExcMfgTaperHole> taperHole()
{
    auto hole = std::make_shared<ExcMfgTaperHole>();
    setHole(*hole);
    hole->setAngle(3.5);
    return hole;
}

inline std::shared_ptr<ExcMfgCounterBoreHole> counterBoreHole()
{
    auto hole = std::make_shared<ExcMfgCounterBoreHole>();
    setCounterHole(*hole);
    hole->setDepth(6.5);
    return hole;
}

inline std::shared_ptr<ExcMfgCounterSinkHole> counterSinkHole()
{
    auto hole = std::make_shared<ExcMfgCounterSinkHole>();
    setCounterHole(*hole);
    hole->setTaperAngle(90.0);
    return hole;
}

inline std::shared_ptr<ExcMfgCounterDrillHole> counterDrillHole()
{
    auto hole = std::make_shared<ExcMfgCounterDrillHole>();
    setCounterHole(*hole);
    hole->setDepth(4.0);
    hole->setSinkDiameter(12.0);
    hole->setTaperAngle(60.0);
    return hole;
}

inline std::shared_ptr<ExcMfgPattern::Instance> instance()
{
    auto instance = std::make_shared<ExcMfgPattern::Instance>();
    instance->setBaseInstance(true);
    instance->addLimiting(entity(L"limiting-face"));
    instance->addDefining(entity(L"defining-face"));
    return instance;
}

inline std::shared_ptr<ExcMfgPatternRectangular> rectangularPattern()
{
    auto pattern = std::make_shared<ExcMfgPatternRectangular>();
    pattern->setAnchorPoint(ExcVector3d(5.0, 5.0, 0.0));
    pattern->setAlignmentPrimaryDirection(ExcVector3d(1.0, 0.0, 0.0));
    pattern->setAlignmentSecondaryDirection(ExcVector3d(0.0, 1.0, 0.0));
    pattern->setPrimaryInstanceCount(4);
    pattern->setSecondaryInstanceCount(2);
    pattern->setPrimarySpacing(25.0);
    pattern->setSecondarySpacing(40.0);
    pattern->setBaseInstance(instance());
    pattern->setSimplified(true);
    pattern->setVisibleInstances({{0, 0}, {1, 0}, {3, 1}});
    pattern->setDeactivatedInstances({{2, 1}});
    return pattern;
}

inline std::shared_ptr<ExcMfgPatternCircular> circularPattern()
{
    auto pattern = std::make_shared<ExcMfgPatternCircular>();
    pattern->setAnchorPoint(ExcVector3d(40.0, 0.0, 0.0));
    pattern->setCenterOfRotation(ExcVector3d(0.0, 5.0, 0.0));
    pattern->setAxisOfRotation(ExcVector3d(0.0, 0.0, 1.0));
    pattern->setAxialInstanceCount(6);
    pattern->setRadialInstanceCount(1);
    pattern->setAxialDistanceDegrees(60.0);
    pattern->setRadialDistance(12.5);
    pattern->setFixedRotationOrientation(true);
    pattern->setBaseInstance(instance());
    pattern->setSimplified(true);
    pattern->setVisibleInstances({{0, 0}, {5, 0}});
    pattern->setDeactivatedInstances({{3, 0}});
    return pattern;
}

inline std::shared_ptr<ExcMfgPatternUserDefined> userDefinedPattern()
{
    auto pattern = std::make_shared<ExcMfgPatternUserDefined>();
    pattern->setAnchorPoint(ExcVector3d(1.0, 2.0, 3.0));
    pattern->setBaseInstance(instance());
    pattern->setInstancePositions({ExcVector3d(1.0, 2.0, 3.0), ExcVector3d(11.0, 2.0, 3.0)});
    pattern->setDeactivatedPositions({ExcVector3d(21.0, 2.0, 3.0)});
    return pattern;
}

// A hole feature of the given hole. Its feature members do not travel and are left unset.
template <class Hole>
std::shared_ptr<ExcMfgFeatureHoleType<Hole>> holeFeature(std::shared_ptr<Hole> hole)
{
    auto feature = std::make_shared<ExcMfgFeatureHoleType<Hole>>();
    feature->addLimitingGeometry(entity(L"hole-bottom"));
    feature->addDefiningGeometry(entity(L"hole-wall"));
    feature->setHole(std::move(hole));
    return feature;
}

// Sets the members every feature has.
inline void setFeature(ExcMfgFeature& feature, const std::wstring& id, std::shared_ptr<ExcMfgPattern> pattern)
{
    feature.setId(id);
    feature.addLinkedElement(entity(id + L"-face"));
    feature.setName(L"Feature " + id);
    feature.setPattern(std::move(pattern));
}

template <class Thread>
std::shared_ptr<Thread> threadFeature(const std::wstring& id)
{
    auto feature = std::make_shared<Thread>();
    setFeature(*feature, id, rectangularPattern());
    feature->setThread(thread());
    feature->addSideFace(entity(id + L"-side"));
    feature->addTopFace(entity(id + L"-top"));
    feature->addBottomFace(entity(id + L"-bottom"));
    return feature;
}

inline std::shared_ptr<ExcMfgFeatureInternalThread> internalThread()
{
    return threadFeature<ExcMfgFeatureInternalThread>(L"thread-in");
}

inline std::shared_ptr<ExcMfgFeatureExternalThread> externalThread()
{
    return threadFeature<ExcMfgFeatureExternalThread>(L"thread-out");
}

inline std::shared_ptr<ExcMfgFeatureUnclassified> unclassifiedFeature()
{
    auto feature = std::make_shared<ExcMfgFeatureUnclassified>();
    setFeature(*feature, L"pocket", circularPattern());
    return feature;
}

inline std::shared_ptr<ExcMfgData> mfgData()
{
    auto data = std::make_shared<ExcMfgData>();
    data->setHasData(true);
    data->addSimpleHole(holeFeature(simpleHole()));
    data->addTaperHole(holeFeature(taperHole()));
    data->addCounterBoreHole(holeFeature(counterBoreHole()));
    data->addCounterSinkHole(holeFeature(counterSinkHole()));
    data->addCounterDrillHole(holeFeature(counterDrillHole()));
    data->addInternalThread(internalThread());
    data->addExternalThread(externalThread());
    data->addUnclassifiedFeature(unclassifiedFeature());
    auto patterned = unclassifiedFeature();
    patterned->setPattern(userDefinedPattern());
    data->addUnclassifiedFeature(patterned);
    return data;
}

// ---- Entity information ------------------------------------------------------------------

inline std::shared_ptr<ExcTopologicalEntityInformation> entityInformation()
{
    auto information = std::make_shared<ExcTopologicalEntityInformation>();
    information->setEntity(entity(L"edge-9"));
    information->setPersistentNames({L"E:9", L"E:9/1"});
    information->setName(L"Hidden edge");
    information->setHidden(true);
    information->setLineType(ExcTopologicalEntityInformation::ELineType::MediumDashShortDashShortDash);
    information->setLineThickness(0.35);
    return information;
}

inline std::shared_ptr<ExcEntityData> entityData()
{
    auto data = std::make_shared<ExcEntityData>();
    data->addData(entityInformation());
    auto plain = std::make_shared<ExcTopologicalEntityInformation>();
    plain->setName(L"plain");
    data->addData(plain);
    return data;
}

// ---- The two roots ----------------------------------------------------------------------

inline std::shared_ptr<ExcRootMechanicalData> root()
{
    auto root = std::make_shared<ExcRootMechanicalData>();
    root->setPMIData(pmi::data());
    root->setLogFile(L"C:\\temp\\translation \u00e9.log");
    return root;
}

// A block with every kind of child.
inline std::shared_ptr<ExcBlockMechanicalData> block()
{
    auto block = std::make_shared<ExcBlockMechanicalData>();
    block->setBlockId(0x1234567890ull);
    block->setLogFile(L"/tmp/translation.log");
    block->setPMIData(pmi::data());
    block->setMiscData(miscData());
    block->setMappingData(mapping());
    block->setManufacturingData(mfgData());
    block->setEntityData(entityData());
    return block;
}

} // namespace hrm::samples::mechanical
