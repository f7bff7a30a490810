#include <hrm_api/hrm_api_exchange_mechanical_mfg.h>

#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

HRM_CHILD_ADDER(ExcMfgObject, ExcEntity, addLinkedElement, m_linkedElements, "Linked Element")

template <class Members>
void ExcMfgObject::members(Members& m)
{
    m.string(L"id", m_id).children(L"linked_elements", m_linkedElements);
}

template <class Members>
void ExcMfgFeature::members(Members& m)
{
    ExcMfgObject::members(m);
    m.string(L"name", m_name).child(L"pattern", m_pattern, &ExcMfgPattern::readPattern);
}

HRM_CHILD_ADDER(ExcMfgFeatureHole, ExcEntity, addLimitingGeometry, m_limitingGeometry, "Limiting Geometry Entity")
HRM_CHILD_ADDER(ExcMfgFeatureHole, ExcEntity, addDefiningGeometry, m_definingGeometry, "Defining Geometry Entity")

// Not the feature's keys: a hole travels without its id, linked elements, name and pattern.
template <class Members>
void ExcMfgFeatureHole::members(Members& m)
{
    m.children(L"limiting", m_limitingGeometry).children(L"defining", m_definingGeometry);
}

template <class Hole>
template <class Members>
void ExcMfgFeatureHoleType<Hole>::members(Members& m)
{
    ExcMfgFeatureHole::members(m);
    m.nullableChild(L"hole_data", m_hole);
}

template <class Hole>
void ExcMfgFeatureHoleType<Hole>::readObject(const JsonValue& value)
{
    HRM_TRACE();
    readMembers(*this, value, "ExcMfgFeatureHoleType");
}

template <class Hole>
void ExcMfgFeatureHoleType<Hole>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    writeMembers(*this, value, allocator);
}

template <class Hole>
bool ExcMfgFeatureHoleType<Hole>::operator==(const ExcMfgFeatureHoleType& other) const
{
    return writeSameJson(*this, other);
}

template class ExcMfgFeatureHoleType<ExcMfgSimpleHole>;
template class ExcMfgFeatureHoleType<ExcMfgTaperHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>;
template class ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>;

HRM_CHILD_ADDER(ExcMfgFeatureThread, ExcEntity, addSideFace, m_sideFaces, "Side Face Entity")
HRM_CHILD_ADDER(ExcMfgFeatureThread, ExcEntity, addTopFace, m_topFaces, "Top Face Entity")
HRM_CHILD_ADDER(ExcMfgFeatureThread, ExcEntity, addBottomFace, m_bottomFaces, "Bottom Face Entity")

template <class Members>
void ExcMfgFeatureThread::members(Members& m)
{
    ExcMfgFeature::members(m);
    m.child(L"thread_data", m_thread)
        .children(L"side_faces", m_sideFaces)
        .children(L"top_faces", m_topFaces)
        .children(L"bottom_faces", m_bottomFaces);
}

template <class Members>
void ExcMfgFeatureInternalThread::members(Members& m)
{
    ExcMfgFeatureThread::members(m);
}
HRM_MEMBER_IO(ExcMfgFeatureInternalThread, "ExcMfgFeatureInternalThread")
HRM_EQUALITY_AS_JSON(ExcMfgFeatureInternalThread)

template <class Members>
void ExcMfgFeatureExternalThread::members(Members& m)
{
    ExcMfgFeatureThread::members(m);
}
HRM_MEMBER_IO(ExcMfgFeatureExternalThread, "ExcMfgFeatureExternalThread")
HRM_EQUALITY_AS_JSON(ExcMfgFeatureExternalThread)

template <class Members>
void ExcMfgFeatureUnclassified::members(Members& m)
{
    ExcMfgFeature::members(m);
}
HRM_MEMBER_IO(ExcMfgFeatureUnclassified, "ExcMfgFeatureUnclassified")
HRM_EQUALITY_AS_JSON(ExcMfgFeatureUnclassified)

HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureSimpleHole, addSimpleHole, m_simpleHoles, "Simple Hole")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureTaperHole, addTaperHole, m_taperHoles, "Taper Hole")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureCounterBoreHole, addCounterBoreHole, m_counterBoreHoles, "Counter Bore Hole")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureCounterSinkHole, addCounterSinkHole, m_counterSinkHoles, "Counter Sink Hole")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureCounterDrillHole, addCounterDrillHole, m_counterDrillHoles, "Counter Drill Hole")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureInternalThread, addInternalThread, m_internalThreads, "Internal Thread")
// "thread" in lower case: kept as it is.
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureExternalThread, addExternalThread, m_externalThreads, "External thread")
HRM_CHILD_ADDER(ExcMfgData, ExcMfgFeatureUnclassified, addUnclassifiedFeature, m_unclassifiedFeatures,
                "Unclassified Feature")

template <class Members>
void ExcMfgData::members(Members& m)
{
    m.boolean(L"has_data", m_hasData)
        .children(L"simple_holes", m_simpleHoles)
        .children(L"taper_holes", m_taperHoles)
        .children(L"counter_bore_holes", m_counterBoreHoles)
        .children(L"counter_sink_holes", m_counterSinkHoles)
        .children(L"counter_drill_holes", m_counterDrillHoles)
        .children(L"internal_threads", m_internalThreads)
        .children(L"external_threads", m_externalThreads)
        .children(L"unclassified_features", m_unclassifiedFeatures);
}
HRM_MEMBER_IO(ExcMfgData, "ExcMfgData")
HRM_EQUALITY_AS_JSON(ExcMfgData)

} // namespace hrm
