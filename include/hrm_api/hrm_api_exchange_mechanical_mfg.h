#pragma once

// Manufacturing features recognised in a part: holes of five kinds, internal and external
// threads, features that fit no class, each naming the model entities that make it up, and
// ExcMfgData, which carries them all for one block. Threads, holes and patterns are in
// hrm_api_exchange_mechanical_mfg_parts.h.
//
// Reading and writing follow the rules of the mechanical data (hrm_api_exchange_mechanical_misc.h).
// A hole feature travels without the keys of the features it derives from: its id, linked
// elements, name and pattern stay on the side that set them.

#include <hrm_api/hrm_api_exchange_mechanical_mfg_parts.h>
#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// What every manufacturing object has: {"id", "linked_elements"}.
class HRM_API ExcMfgObject : public IJsonObject
{
public:
    /// The id.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    /// The model entities it refers to.
    const ExcEntities& linkedElements() const { return m_linkedElements; }
    /// Appends a linked element; a null one is refused with a warning.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void setLinkedElements(ExcEntities elements) { m_linkedElements = std::move(elements); }

protected:
    ExcMfgObject() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_id;
    ExcEntities m_linkedElements;
};

/// A feature: the object keys, then "name" and "pattern" (only when the feature repeats in one;
/// read through ExcMfgPattern::readPattern, so an unreadable pattern reads as none).
class HRM_API ExcMfgFeature : public ExcMfgObject
{
public:
    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The pattern the feature repeats in, or null.
    const std::shared_ptr<ExcMfgPattern>& pattern() const { return m_pattern; }
    void setPattern(std::shared_ptr<ExcMfgPattern> pattern) { m_pattern = std::move(pattern); }

protected:
    ExcMfgFeature() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_name;
    std::shared_ptr<ExcMfgPattern> m_pattern;
};

/// What every hole feature has: {"limiting", "defining"}, and no keys of the features it
/// derives from ("id", "linked_elements", "name" and "pattern" do not travel with a hole).
class HRM_API ExcMfgFeatureHole : public ExcMfgFeature
{
public:
    /// The entities that limit the hole.
    const ExcEntities& limitingGeometry() const { return m_limitingGeometry; }
    /// Appends an entity; a null one is refused with a warning.
    void addLimitingGeometry(const std::shared_ptr<ExcEntity>& entity);
    /// The entities that define the hole.
    const ExcEntities& definingGeometry() const { return m_definingGeometry; }
    /// Appends an entity; a null one is refused with a warning.
    void addDefiningGeometry(const std::shared_ptr<ExcEntity>& entity);

protected:
    ExcMfgFeatureHole() = default;
    HRM_MEMBER_LIST;

private:
    ExcEntities m_limitingGeometry;
    ExcEntities m_definingGeometry;
};

/// A hole feature of one kind: the hole feature keys, then "hole_data" (the Hole, null when there
/// is none). Instantiated for the five kinds of hole.
template <class Hole>
class HRM_API ExcMfgFeatureHoleType : public ExcMfgFeatureHole
{
public:
    /// The hole, or null.
    const std::shared_ptr<Hole>& hole() const { return m_hole; }
    void setHole(std::shared_ptr<Hole> hole) { m_hole = std::move(hole); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgFeatureHoleType& other) const;
    bool operator!=(const ExcMfgFeatureHoleType& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::shared_ptr<Hole> m_hole;
};

extern template class ExcMfgFeatureHoleType<ExcMfgSimpleHole>;
extern template class ExcMfgFeatureHoleType<ExcMfgTaperHole>;
extern template class ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>;
extern template class ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>;
extern template class ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>;

using ExcMfgFeatureSimpleHole = ExcMfgFeatureHoleType<ExcMfgSimpleHole>;             ///< A simple hole feature.
using ExcMfgFeatureTaperHole = ExcMfgFeatureHoleType<ExcMfgTaperHole>;               ///< A taper hole feature.
using ExcMfgFeatureCounterBoreHole = ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>;   ///< A counter bore hole feature.
using ExcMfgFeatureCounterSinkHole = ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>;   ///< A counter sink hole feature.
using ExcMfgFeatureCounterDrillHole = ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>; ///< A counter drill hole feature.

/// What both thread features have: the feature keys, then "thread_data" (only when set),
/// "side_faces", "top_faces", "bottom_faces".
class HRM_API ExcMfgFeatureThread : public ExcMfgFeature
{
public:
    /// The thread, or null.
    const std::shared_ptr<ExcMfgThread>& thread() const { return m_thread; }
    void setThread(std::shared_ptr<ExcMfgThread> thread) { m_thread = std::move(thread); }
    /// The side faces of the thread.
    const ExcEntities& sideFaces() const { return m_sideFaces; }
    /// Appends a side face; a null one is refused with a warning.
    void addSideFace(const std::shared_ptr<ExcEntity>& face);
    /// The top faces of the thread.
    const ExcEntities& topFaces() const { return m_topFaces; }
    /// Appends a top face; a null one is refused with a warning.
    void addTopFace(const std::shared_ptr<ExcEntity>& face);
    /// The bottom faces of the thread.
    const ExcEntities& bottomFaces() const { return m_bottomFaces; }
    /// Appends a bottom face; a null one is refused with a warning.
    void addBottomFace(const std::shared_ptr<ExcEntity>& face);

protected:
    ExcMfgFeatureThread() = default;
    HRM_MEMBER_LIST;

private:
    std::shared_ptr<ExcMfgThread> m_thread;
    ExcEntities m_sideFaces;
    ExcEntities m_topFaces;
    ExcEntities m_bottomFaces;
};

/// A thread cut into a hole: the thread feature keys.
class HRM_API ExcMfgFeatureInternalThread : public ExcMfgFeatureThread
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgFeatureInternalThread& other) const;
    bool operator!=(const ExcMfgFeatureInternalThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

/// A thread on a shaft: the thread feature keys.
class HRM_API ExcMfgFeatureExternalThread : public ExcMfgFeatureThread
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgFeatureExternalThread& other) const;
    bool operator!=(const ExcMfgFeatureExternalThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

/// A feature of no known class: the feature keys {"id", "linked_elements", "name", "pattern"}.
class HRM_API ExcMfgFeatureUnclassified : public ExcMfgFeature
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgFeatureUnclassified& other) const;
    bool operator!=(const ExcMfgFeatureUnclassified& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

/// The manufacturing features of one block: {"has_data", "simple_holes", "taper_holes",
/// "counter_bore_holes", "counter_sink_holes", "counter_drill_holes", "internal_threads",
/// "external_threads", "unclassified_features"}, every list written also when empty.
class HRM_API ExcMfgData : public IJsonObject
{
public:
    /// The list of one kind of feature.
    template <class Feature>
    using Features = std::vector<std::shared_ptr<Feature>>;

    /// Whether the translator looked for features.
    bool hasData() const { return m_hasData; }
    void setHasData(bool hasData) { m_hasData = hasData; }

    /// The simple hole features.
    const Features<ExcMfgFeatureSimpleHole>& simpleHoles() const { return m_simpleHoles; }
    /// Appends a simple hole; a null one is refused with a warning.
    void addSimpleHole(const std::shared_ptr<ExcMfgFeatureSimpleHole>& hole);
    /// The taper hole features.
    const Features<ExcMfgFeatureTaperHole>& taperHoles() const { return m_taperHoles; }
    /// Appends a taper hole; a null one is refused with a warning.
    void addTaperHole(const std::shared_ptr<ExcMfgFeatureTaperHole>& hole);
    /// The counter bore hole features.
    const Features<ExcMfgFeatureCounterBoreHole>& counterBoreHoles() const { return m_counterBoreHoles; }
    /// Appends a counter bore hole; a null one is refused with a warning.
    void addCounterBoreHole(const std::shared_ptr<ExcMfgFeatureCounterBoreHole>& hole);
    /// The counter sink hole features.
    const Features<ExcMfgFeatureCounterSinkHole>& counterSinkHoles() const { return m_counterSinkHoles; }
    /// Appends a counter sink hole; a null one is refused with a warning.
    void addCounterSinkHole(const std::shared_ptr<ExcMfgFeatureCounterSinkHole>& hole);
    /// The counter drill hole features.
    const Features<ExcMfgFeatureCounterDrillHole>& counterDrillHoles() const { return m_counterDrillHoles; }
    /// Appends a counter drill hole; a null one is refused with a warning.
    void addCounterDrillHole(const std::shared_ptr<ExcMfgFeatureCounterDrillHole>& hole);
    /// The internal thread features.
    const Features<ExcMfgFeatureInternalThread>& internalThreads() const { return m_internalThreads; }
    /// Appends an internal thread; a null one is refused with a warning.
    void addInternalThread(const std::shared_ptr<ExcMfgFeatureInternalThread>& thread);
    /// The external thread features.
    const Features<ExcMfgFeatureExternalThread>& externalThreads() const { return m_externalThreads; }
    /// Appends an external thread; a null one is refused with a warning.
    void addExternalThread(const std::shared_ptr<ExcMfgFeatureExternalThread>& thread);
    /// The features of no known class.
    const Features<ExcMfgFeatureUnclassified>& unclassifiedFeatures() const { return m_unclassifiedFeatures; }
    /// Appends an unclassified feature; a null one is refused with a warning.
    void addUnclassifiedFeature(const std::shared_ptr<ExcMfgFeatureUnclassified>& feature);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgData& other) const;
    bool operator!=(const ExcMfgData& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    bool m_hasData = false;
    Features<ExcMfgFeatureSimpleHole> m_simpleHoles;
    Features<ExcMfgFeatureTaperHole> m_taperHoles;
    Features<ExcMfgFeatureCounterBoreHole> m_counterBoreHoles;
    Features<ExcMfgFeatureCounterSinkHole> m_counterSinkHoles;
    Features<ExcMfgFeatureCounterDrillHole> m_counterDrillHoles;
    Features<ExcMfgFeatureInternalThread> m_internalThreads;
    Features<ExcMfgFeatureExternalThread> m_externalThreads;
    Features<ExcMfgFeatureUnclassified> m_unclassifiedFeatures;
};

} // namespace hrm
