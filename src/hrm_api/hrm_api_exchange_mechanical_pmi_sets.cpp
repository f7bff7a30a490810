#include <hrm_api/hrm_api_exchange_mechanical_pmi_sets.h>

#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

bool ExcPMIAnnotationView::registerId(const std::shared_ptr<ExcPMIAnnotation>& annotation)
{
    return m_annotationsById.emplace(annotation->id(), annotation).second;
}

template <class T>
void ExcPMIAnnotationView::add(std::vector<std::shared_ptr<T>>& list, const std::shared_ptr<T>& annotation,
                               const char* nullMessage)
{
    appendChild(list, annotation, nullMessage);
    if (annotation && !registerId(annotation))
        HRM_LOG(ax_herm::Warning) << "Duplicated PMI annotation id: " << toNarrow(annotation->id());
}

template <class T>
auto ExcPMIAnnotationView::reading(std::vector<std::shared_ptr<T>>& list)
{
    return [this, &list](std::shared_ptr<T> annotation) {
        registerId(annotation);
        list.push_back(std::move(annotation));
    };
}

void ExcPMIAnnotationView::addNote(const std::shared_ptr<ExcPMINote>& note)
{
    add(m_notes, note, "ExcPMIAnnotationView: attempt to add null PMI Note object.");
}

void ExcPMIAnnotationView::addDatum(const std::shared_ptr<ExcPMIDatum>& datum)
{
    add(m_datums, datum, "ExcPMIAnnotationView: attempt to add null PMI Datum object.");
}

void ExcPMIAnnotationView::addDatumTarget(const std::shared_ptr<ExcPMIDatumTarget>& target)
{
    add(m_datumTargets, target, "ExcPMIAnnotationView: attempt to add null PMI Datum Target object.");
}

void ExcPMIAnnotationView::addGdt(const std::shared_ptr<ExcPMIGDT>& gdt)
{
    add(m_gdts, gdt, "ExcPMIAnnotationView: attempt ot add null PMI GDT object.");
}

void ExcPMIAnnotationView::addDimension(const std::shared_ptr<ExcPMIDimension>& dimension)
{
    add(m_dimensions, dimension, "ExcPMIAnnotationView: attempt to add null PMI Dimension object.");
}

void ExcPMIAnnotationView::addRoughness(const std::shared_ptr<ExcPMIRoughness>& roughness)
{
    add(m_roughness, roughness, "ExcPMIAnnotationView: attempt to add null PMI Roughness object.");
}

std::shared_ptr<ExcPMIAnnotation> ExcPMIAnnotationView::getAnnotationById(const std::wstring& id) const
{
    const auto it = m_annotationsById.find(id);
    return it == m_annotationsById.end() ? nullptr : it->second;
}

template <class Members>
void ExcPMIAnnotationView::members(Members& m)
{
    m.object(L"origin", m_origin)
        .object(L"u", m_vectorU)
        .object(L"v", m_vectorV)
        .children(L"notes", m_notes, reading(m_notes))
        .children(L"datum", m_datums, reading(m_datums))
        .children(L"datum_targets", m_datumTargets, reading(m_datumTargets))
        .children(L"GDTs", m_gdts, reading(m_gdts))
        .children(L"dimensions", m_dimensions, reading(m_dimensions))
        .children(L"roughness", m_roughness, reading(m_roughness));
}
HRM_MEMBER_IO(ExcPMIAnnotationView, "ExcPMIAnnotationView")
HRM_EQUALITY_AS_JSON(ExcPMIAnnotationView)

HRM_CHILD_ADDER(ExcPMICapture, ExcEntity, addConstructedGeometry, m_constructedGeometry, "Constructed Geometry Entity")

HRM_CHILD_ADDER(ExcPMICapture, ExcEntity, addBody, m_bodies, "Body")

template <class Members>
void ExcPMICapture::members(Members& m)
{
    m.boolean(L"capture_hidden", m_captureHidden).boolean(L"current", m_current).string(L"hidden_text", m_hiddenText);
    // "manage_hide_show" is written here and read last.
    if constexpr (!Members::reading)
        m.boolean(L"manage_hide_show", m_manageHideShow);
    m.child(L"camera", m_camera)
        .child(L"clipping_plane", m_clippingPlane)
        .strings(L"annotation_ids", m_annotationIds)
        .children(L"constructed_geometry", m_constructedGeometry)
        .children(L"bodies", m_bodies);
    if constexpr (Members::reading)
        m.boolean(L"manage_hide_show", m_manageHideShow);
}
HRM_MEMBER_IO(ExcPMICapture, "ExcPMICapture")
HRM_EQUALITY_AS_JSON(ExcPMICapture)

HRM_CHILD_ADDER(ExcPMIAnnotationSet, ExcPMIAnnotationView, addView, m_views, "View")

HRM_CHILD_ADDER(ExcPMIAnnotationSet, ExcPMICapture, addCapture, m_captures, "Capture")

HRM_CHILD_ADDER(ExcPMIAnnotationSet, ExcEntity, addConstructedGeometry, m_constructedGeometry, "Constructed Geometry Entity")

template <class Members>
void ExcPMIAnnotationSet::members(Members& m)
{
    m.uint64(L"block_id", m_blockId)
        .string(L"name", m_name)
        .boolean(L"hidden", m_hidden)
        .string(L"standart", m_standard)
        .children(L"annotation_views", m_views)
        .children(L"captures", m_captures)
        .children(L"constructed_geometry", m_constructedGeometry);
}
HRM_MEMBER_IO(ExcPMIAnnotationSet, "ExcPMIAnnotationSet")
HRM_EQUALITY_AS_JSON(ExcPMIAnnotationSet)

HRM_CHILD_ADDER(ExcPMIData, ExcPMIAnnotationSet, addAnnotationSet, m_annotationSets, "PMI Annotation Set")

// The data is the array itself, not an object of members.
void ExcPMIData::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsArray()) {
        HRM_LOG(ax_herm::Error) << "ExcPMIData object should have a JSON array type.";
        return;
    }
    readChildArray<ExcPMIAnnotationSet>(value, [this](std::shared_ptr<ExcPMIAnnotationSet> set) {
        m_annotationSets.push_back(std::move(set));
    });
}

void ExcPMIData::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    writeChildArray(m_annotationSets, value, allocator);
}
HRM_EQUALITY_AS_JSON(ExcPMIData)

} // namespace hrm
