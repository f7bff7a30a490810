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

// What every manufacturing object has: {"id", "linked_elements"}.
class HRM_API ExcMfgObject : public IJsonObject
{
public:
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    const ExcEntities& linkedElements() const { return m_linkedElements; }
    // A null element is refused with a warning.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    void setLinkedElements(ExcEntities elements) { m_linkedElements = std::move(elements); }

protected:
    ExcMfgObject() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_id;
    ExcEntities m_linkedElements;
};

// A feature: the object keys, then "name" and "pattern" (only when the feature repeats in one;
// read through ExcMfgPattern::readPattern, so an unreadable pattern reads as none).
class HRM_API ExcMfgFeature : public ExcMfgObject
{
public:
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    const std::shared_ptr<ExcMfgPattern>& pattern() const { return m_pattern; }
    void setPattern(std::shared_ptr<ExcMfgPattern> pattern) { m_pattern = std::move(pattern); }

protected:
    ExcMfgFeature() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_name;
    std::shared_ptr<ExcMfgPattern> m_pattern;
};

// What every hole feature has: {"limiting", "defining"}, and no keys of the features it
// derives from ("id", "linked_elements", "name" and "pattern" do not travel with a hole).
class HRM_API ExcMfgFeatureHole : public ExcMfgFeature
{
public:
    const ExcEntities& limitingGeometry() const { return m_limitingGeometry; }
    // A null entity is refused with a warning.
    void addLimitingGeometry(const std::shared_ptr<ExcEntity>& entity);
    const ExcEntities& definingGeometry() const { return m_definingGeometry; }
    // A null entity is refused with a warning.
    void addDefiningGeometry(const std::shared_ptr<ExcEntity>& entity);

protected:
    ExcMfgFeatureHole() = default;
    HRM_MEMBER_LIST;

private:
    ExcEntities m_limitingGeometry;
    ExcEntities m_definingGeometry;
};

// A hole feature of one kind: the hole feature keys, then "hole_data" (the Hole, null when there
// is none). Instantiated for the five kinds of hole.
template <class Hole>
class HRM_API ExcMfgFeatureHoleType : public ExcMfgFeatureHole
{
public:
    const std::shared_ptr<Hole>& hole() const { return m_hole; }
    void setHole(std::shared_ptr<Hole> hole) { m_hole = std::move(hole); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
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

using ExcMfgFeatureSimpleHole = ExcMfgFeatureHoleType<ExcMfgSimpleHole>;
using ExcMfgFeatureTaperHole = ExcMfgFeatureHoleType<ExcMfgTaperHole>;
using ExcMfgFeatureCounterBoreHole = ExcMfgFeatureHoleType<ExcMfgCounterBoreHole>;
using ExcMfgFeatureCounterSinkHole = ExcMfgFeatureHoleType<ExcMfgCounterSinkHole>;
using ExcMfgFeatureCounterDrillHole = ExcMfgFeatureHoleType<ExcMfgCounterDrillHole>;

// What both thread features have: the feature keys, then "thread_data" (only when set),
// "side_faces", "top_faces", "bottom_faces".
class HRM_API ExcMfgFeatureThread : public ExcMfgFeature
{
public:
    const std::shared_ptr<ExcMfgThread>& thread() const { return m_thread; }
    void setThread(std::shared_ptr<ExcMfgThread> thread) { m_thread = std::move(thread); }
    // Null faces are refused with a warning by every adder.
    const ExcEntities& sideFaces() const { return m_sideFaces; }
    void addSideFace(const std::shared_ptr<ExcEntity>& face);
    const ExcEntities& topFaces() const { return m_topFaces; }
    void addTopFace(const std::shared_ptr<ExcEntity>& face);
    const ExcEntities& bottomFaces() const { return m_bottomFaces; }
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

// A thread cut into a hole: the thread feature keys.
class HRM_API ExcMfgFeatureInternalThread : public ExcMfgFeatureThread
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    bool operator==(const ExcMfgFeatureInternalThread& other) const;
    bool operator!=(const ExcMfgFeatureInternalThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

// A thread on a shaft: the thread feature keys.
class HRM_API ExcMfgFeatureExternalThread : public ExcMfgFeatureThread
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    bool operator==(const ExcMfgFeatureExternalThread& other) const;
    bool operator!=(const ExcMfgFeatureExternalThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

// A feature of no known class: the feature keys {"id", "linked_elements", "name", "pattern"}.
class HRM_API ExcMfgFeatureUnclassified : public ExcMfgFeature
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    bool operator==(const ExcMfgFeatureUnclassified& other) const;
    bool operator!=(const ExcMfgFeatureUnclassified& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

// The manufacturing features of one block: {"has_data", "simple_holes", "taper_holes",
// "counter_bore_holes", "counter_sink_holes", "counter_drill_holes", "internal_threads",
// "external_threads", "unclassified_features"}, every list written also when empty.
class HRM_API ExcMfgData : public IJsonObject
{
public:
    // The list of one kind of feature.
    template <class Feature>
    using Features = std::vector<std::shared_ptr<Feature>>;

    bool hasData() const { return m_hasData; }
    void setHasData(bool hasData) { m_hasData = hasData; }

    // Null features are refused with a warning by every adder.
    const Features<ExcMfgFeatureSimpleHole>& simpleHoles() const { return m_simpleHoles; }
    void addSimpleHole(const std::shared_ptr<ExcMfgFeatureSimpleHole>& hole);
    const Features<ExcMfgFeatureTaperHole>& taperHoles() const { return m_taperHoles; }
    void addTaperHole(const std::shared_ptr<ExcMfgFeatureTaperHole>& hole);
    const Features<ExcMfgFeatureCounterBoreHole>& counterBoreHoles() const { return m_counterBoreHoles; }
    void addCounterBoreHole(const std::shared_ptr<ExcMfgFeatureCounterBoreHole>& hole);
    const Features<ExcMfgFeatureCounterSinkHole>& counterSinkHoles() const { return m_counterSinkHoles; }
    void addCounterSinkHole(const std::shared_ptr<ExcMfgFeatureCounterSinkHole>& hole);
    const Features<ExcMfgFeatureCounterDrillHole>& counterDrillHoles() const { return m_counterDrillHoles; }
    void addCounterDrillHole(const std::shared_ptr<ExcMfgFeatureCounterDrillHole>& hole);
    const Features<ExcMfgFeatureInternalThread>& internalThreads() const { return m_internalThreads; }
    void addInternalThread(const std::shared_ptr<ExcMfgFeatureInternalThread>& thread);
    const Features<ExcMfgFeatureExternalThread>& externalThreads() const { return m_externalThreads; }
    void addExternalThread(const std::shared_ptr<ExcMfgFeatureExternalThread>& thread);
    const Features<ExcMfgFeatureUnclassified>& unclassifiedFeatures() const { return m_unclassifiedFeatures; }
    void addUnclassifiedFeature(const std::shared_ptr<ExcMfgFeatureUnclassified>& feature);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
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
