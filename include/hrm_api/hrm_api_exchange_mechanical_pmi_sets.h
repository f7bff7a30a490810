#pragma once

/// @file
/// How PMI annotations are grouped for the host: an annotation view is one annotation plane with
/// the annotations that lie in it; a capture is a saved presentation state (camera, clipping
/// plane, the annotations and bodies shown); an annotation set gathers the views and captures of
/// one block; ExcPMIData is the list of annotation sets of a model, what the mechanical data
/// roots carry. They read and write as the annotations do (hrm_api_exchange_mechanical_pmi.h).

#include <hrm_api/hrm_api_exchange_mechanical_pmi.h>
#include <hrm_api/hrm_api_exchange_mechanical_pmi_tolerances.h>
#include <hrm_api/hrm_api_exchange_visualization_attributes.h>

#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// One annotation plane (an origin and two in-plane axes) with the annotations in it. Keys:
/// "origin", "u", "v", "notes", "datum" (singular, unlike the others), "datum_targets", "GDTs",
/// "dimensions", "roughness". Every annotation added or read is also registered under its id in
/// one index over all six kinds, where the first one of an id stays: adding a second one logs
/// "Duplicated PMI annotation id: <id>" (reading one does not) and keeps it in its list.
class HRM_API ExcPMIAnnotationView : public IJsonObject
{
public:
    /// The notes of a view.
    using Notes = std::vector<std::shared_ptr<ExcPMINote>>;
    /// The datums of a view.
    using Datums = std::vector<std::shared_ptr<ExcPMIDatum>>;
    /// The datum targets of a view.
    using DatumTargets = std::vector<std::shared_ptr<ExcPMIDatumTarget>>;
    /// The geometric tolerances of a view.
    using GDTs = std::vector<std::shared_ptr<ExcPMIGDT>>;
    /// The dimensions of a view.
    using Dimensions = std::vector<std::shared_ptr<ExcPMIDimension>>;
    /// The roughness symbols of a view.
    using Roughnesses = std::vector<std::shared_ptr<ExcPMIRoughness>>;

    /// A point of the annotation plane.
    const ExcVector3d& origin() const { return m_origin; }
    void setOrigin(const ExcVector3d& origin) { m_origin = origin; }
    /// The plane's first axis ("u").
    const ExcVector3d& vectorU() const { return m_vectorU; }
    void setVectorU(const ExcVector3d& u) { m_vectorU = u; }
    /// The plane's second axis ("v").
    const ExcVector3d& vectorV() const { return m_vectorV; }
    void setVectorV(const ExcVector3d& v) { m_vectorV = v; }

    /// The notes in the plane.
    const Notes& notes() const { return m_notes; }
    /// The datums in the plane ("datum").
    const Datums& datums() const { return m_datums; }
    /// The datum targets in the plane.
    const DatumTargets& datumTargets() const { return m_datumTargets; }
    /// The geometric tolerances in the plane ("GDTs").
    const GDTs& gdts() const { return m_gdts; }
    /// The dimensions in the plane.
    const Dimensions& dimensions() const { return m_dimensions; }
    /// The roughness symbols in the plane.
    const Roughnesses& roughness() const { return m_roughness; }

    /// Each adder refuses a null annotation with a warning, appends any other to its list and
    /// registers it under its id unless the id is taken.
    void addNote(const std::shared_ptr<ExcPMINote>& note);
    /// Adds a datum, as addNote adds a note.
    void addDatum(const std::shared_ptr<ExcPMIDatum>& datum);
    /// Adds a datum target, as addNote adds a note.
    void addDatumTarget(const std::shared_ptr<ExcPMIDatumTarget>& target);
    /// Adds a geometric tolerance, as addNote adds a note.
    void addGdt(const std::shared_ptr<ExcPMIGDT>& gdt);
    /// Adds a dimension, as addNote adds a note.
    void addDimension(const std::shared_ptr<ExcPMIDimension>& dimension);
    /// Adds a roughness symbol, as addNote adds a note.
    void addRoughness(const std::shared_ptr<ExcPMIRoughness>& roughness);

    /// The annotation registered under `id` (the first added or read with it), or null.
    std::shared_ptr<ExcPMIAnnotation> getAnnotationById(const std::wstring& id) const;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIAnnotationView& other) const;
    bool operator!=(const ExcPMIAnnotationView& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    template <class T>
    void add(std::vector<std::shared_ptr<T>>& list, const std::shared_ptr<T>& annotation, const char* nullMessage);
    /// Registers `annotation` under its id unless the id is taken; answers whether it was.
    bool registerId(const std::shared_ptr<ExcPMIAnnotation>& annotation);
    /// The sink that appends each annotation read to `list` and registers it.
    template <class T>
    auto reading(std::vector<std::shared_ptr<T>>& list);

    ExcVector3d m_origin;
    ExcVector3d m_vectorU;
    ExcVector3d m_vectorV;
    Notes m_notes;
    Datums m_datums;
    DatumTargets m_datumTargets;
    GDTs m_gdts;
    Dimensions m_dimensions;
    Roughnesses m_roughness;
    std::map<std::wstring, std::shared_ptr<ExcPMIAnnotation>> m_annotationsById;
};

/// A saved presentation state. Keys: "capture_hidden", "current", "hidden_text",
/// "manage_hide_show", "camera" and "clipping_plane" (each when there is one), "annotation_ids"
/// (the ids of the annotations shown), "constructed_geometry", "bodies". "manage_hide_show" is
/// read last.
class HRM_API ExcPMICapture : public IJsonObject
{
public:
    /// Model entities a capture shows.
    using Entities = std::vector<std::shared_ptr<ExcEntity>>;

    /// Whether the capture is hidden.
    bool isCaptureHidden() const { return m_captureHidden; }
    void setCaptureHidden(bool hidden) { m_captureHidden = hidden; }
    /// Whether the capture is the current one.
    bool isCurrent() const { return m_current; }
    void setCurrent(bool current) { m_current = current; }
    /// The text shown for the capture while hidden.
    const std::wstring& hiddenText() const { return m_hiddenText; }
    void setHiddenText(const std::wstring& text) { m_hiddenText = text; }
    /// Whether showing the capture hides what it does not show.
    bool manageHideShow() const { return m_manageHideShow; }
    void setManageHideShow(bool manage) { m_manageHideShow = manage; }
    /// May be null.
    const std::shared_ptr<ExcCamera>& camera() const { return m_camera; }
    void setCamera(std::shared_ptr<ExcCamera> camera) { m_camera = std::move(camera); }
    /// May be null.
    const std::shared_ptr<ExcClippingPlane>& clippingPlane() const { return m_clippingPlane; }
    void setClippingPlane(std::shared_ptr<ExcClippingPlane> plane) { m_clippingPlane = std::move(plane); }

    /// The ids of the annotations shown.
    const std::vector<std::wstring>& annotationIds() const { return m_annotationIds; }
    void setAnnotationIds(std::vector<std::wstring> ids) { m_annotationIds = std::move(ids); }
    /// Appends, duplicates included.
    void addAnnotationId(const std::wstring& id) { m_annotationIds.push_back(id); }
    /// The constructed geometry shown.
    const Entities& constructedGeometry() const { return m_constructedGeometry; }
    /// Refuses a null entity with a warning.
    void addConstructedGeometry(const std::shared_ptr<ExcEntity>& entity);
    /// The bodies shown.
    const Entities& bodies() const { return m_bodies; }
    /// Refuses a null body with a warning.
    void addBody(const std::shared_ptr<ExcEntity>& body);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMICapture& other) const;
    bool operator!=(const ExcPMICapture& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    bool m_captureHidden = false;
    bool m_current = false;
    std::wstring m_hiddenText;
    bool m_manageHideShow = false;
    std::shared_ptr<ExcCamera> m_camera;
    std::shared_ptr<ExcClippingPlane> m_clippingPlane;
    std::vector<std::wstring> m_annotationIds;
    Entities m_constructedGeometry;
    Entities m_bodies;
};

/// The annotation views and captures of one block. Keys: "block_id" (the block of the product
/// structure), "name", "hidden", "standart" (the drafting standard; spelled so, as its accessors
/// are), "annotation_views", "captures", "constructed_geometry".
class HRM_API ExcPMIAnnotationSet : public IJsonObject
{
public:
    /// The annotation views of a set.
    using Views = std::vector<std::shared_ptr<ExcPMIAnnotationView>>;
    /// The captures of a set.
    using Captures = std::vector<std::shared_ptr<ExcPMICapture>>;
    /// Model entities of a set.
    using Entities = std::vector<std::shared_ptr<ExcEntity>>;

    /// The id of the block (ExcBlock) the set belongs to.
    uint64_t blockId() const { return m_blockId; }
    void setBlockId(uint64_t id) { m_blockId = id; }
    /// The set's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// Whether the set is hidden.
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }
    /// The drafting standard.
    const std::wstring& standart() const { return m_standard; }
    void setStandart(const std::wstring& standard) { m_standard = standard; }

    /// The annotation planes.
    const Views& views() const { return m_views; }
    /// Refuses a null view with a warning.
    void addView(const std::shared_ptr<ExcPMIAnnotationView>& view);
    /// The saved presentation states.
    const Captures& captures() const { return m_captures; }
    /// Refuses a null capture with a warning.
    void addCapture(const std::shared_ptr<ExcPMICapture>& capture);
    /// The constructed geometry of the block.
    const Entities& constructedGeometry() const { return m_constructedGeometry; }
    /// Refuses a null entity with a warning.
    void addConstructedGeometry(const std::shared_ptr<ExcEntity>& entity);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIAnnotationSet& other) const;
    bool operator!=(const ExcPMIAnnotationSet& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    uint64_t m_blockId = 0;
    std::wstring m_name;
    bool m_hidden = false;
    std::wstring m_standard;
    Views m_views;
    Captures m_captures;
    Entities m_constructedGeometry;
};

/// The PMI of a model: its annotation sets, written as a JSON array of set objects. Reading a
/// value that is no array logs "ExcPMIData object should have a JSON array type." and reads
/// nothing; the sets of an array are appended to those held.
class HRM_API ExcPMIData : public IJsonObject
{
public:
    /// The annotation sets of a model.
    using AnnotationSets = std::vector<std::shared_ptr<ExcPMIAnnotationSet>>;

    /// The annotation sets, one per block.
    const AnnotationSets& annotationSets() const { return m_annotationSets; }
    /// Refuses a null set with a warning.
    void addAnnotationSet(const std::shared_ptr<ExcPMIAnnotationSet>& set);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIData& other) const;
    bool operator!=(const ExcPMIData& other) const { return !(*this == other); }

private:
    AnnotationSets m_annotationSets;
};

} // namespace hrm
