#pragma once

// The parts manufacturing features are described by: threads, the five kinds of hole, and the
// patterns in which features repeat (rectangular, circular, user-defined). The features
// themselves are in hrm_api_exchange_mechanical_mfg.h.
//
// Reading and writing follow the rules of the mechanical data (hrm_api_exchange_mechanical_misc.h):
// lenient reading, "<class> object should have a JSON object type." for a value of the wrong
// kind, unknown words read as their table's alphabetically first word, lists read appended to
// those held, equality as the same JSON.

#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_mechanical_misc.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

/// What every thread description has: {"diameter", "depth", "pitch", "orientation",
/// "designation", "designation_system_type"}.
class HRM_API ExcMfgThreading : public IJsonObject
{
public:
    /// The hand of the thread. Travels as "unknown", "right_handed", "left_handed".
    enum class HRM_API_TYPE EOrientation : int32_t
    {
        Unknown = 0,
        RightHanded = 1,
        LeftHanded = 2,
    };
    /// The standard the designation follows. Travels as "unknown", "metric", "american", "british".
    enum class HRM_API_TYPE EDesignationSystemType : int32_t
    {
        Unknown = 0,
        Metric = 1,
        American = 2,
        British = 3,
    };

    /// The diameter.
    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }
    /// The depth.
    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }
    /// The pitch.
    double pitch() const { return m_pitch; }
    void setPitch(double pitch) { m_pitch = pitch; }
    /// The hand of the thread.
    EOrientation orientation() const { return m_orientation; }
    void setOrientation(EOrientation orientation) { m_orientation = orientation; }
    /// The designation (M8x1.25, ...).
    const std::wstring& designation() const { return m_designation; }
    void setDesignation(const std::wstring& designation) { m_designation = designation; }
    /// The standard the designation follows.
    EDesignationSystemType designationSystemType() const { return m_designationSystemType; }
    void setDesignationSystemType(EDesignationSystemType type) { m_designationSystemType = type; }

protected:
    ExcMfgThreading() = default;
    HRM_MEMBER_LIST;

private:
    double m_diameter = 0.0;
    double m_depth = 0.0;
    double m_pitch = 0.0;
    EOrientation m_orientation = EOrientation::Unknown;
    std::wstring m_designation;
    EDesignationSystemType m_designationSystemType = EDesignationSystemType::Unknown;
};

/// The thread of a thread feature: the threading keys, then "support_diameter",
/// "support_depth", "bottom_type".
class HRM_API ExcMfgThread : public ExcMfgThreading
{
public:
    /// How the thread ends. Travels as "unknown", "dimension", "support_depth",
    /// "support_up_to_plane".
    enum class HRM_API_TYPE EBottomType : int32_t
    {
        Unknown = 0,
        Dimension = 1,
        SupportDepth = 2,
        SupportUpToPlane = 3,
    };

    /// The diameter of the support (the core hole).
    double supportDiameter() const { return m_supportDiameter; }
    void setSupportDiameter(double diameter) { m_supportDiameter = diameter; }
    /// The depth of the support.
    double supportDepth() const { return m_supportDepth; }
    void setSupportDepth(double depth) { m_supportDepth = depth; }
    /// How the thread ends.
    EBottomType bottomType() const { return m_bottomType; }
    void setBottomType(EBottomType type) { m_bottomType = type; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgThread& other) const;
    bool operator!=(const ExcMfgThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_supportDiameter = 0.0;
    double m_supportDepth = 0.0;
    EBottomType m_bottomType = EBottomType::Unknown;
};

/// The thread of a hole: the threading keys, then "standart" (the standard's name; the key and
/// the accessors are spelt so), "min_tol", "max_tol".
class HRM_API ExcMfgHoleThread : public ExcMfgThreading
{
public:
    /// The name of the thread's standard (spelt so).
    const std::wstring& standart() const { return m_standart; }
    void setStandart(const std::wstring& standart) { m_standart = standart; }
    /// The lower tolerance.
    double minimalTolerance() const { return m_minimalTolerance; }
    void setMinimalTolerance(double tolerance) { m_minimalTolerance = tolerance; }
    /// The upper tolerance.
    double maximalTolerance() const { return m_maximalTolerance; }
    void setMaximalTolerance(double tolerance) { m_maximalTolerance = tolerance; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgHoleThread& other) const;
    bool operator!=(const ExcMfgHoleThread& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_standart;
    double m_minimalTolerance = 0.0;
    double m_maximalTolerance = 0.0;
};

/// What every hole has: {"name", "primary_diameter", "primary_diameter_max_tol",
/// "primary_diameter_min_tol", "primary_depth", "tip_angle_degrees", "bottom_limit_extent_type",
/// "center", "direction", "hole_thread" (only when there is one)}.
class HRM_API ExcMfgHole : public IJsonObject
{
public:
    /// How far the hole goes. Travels as "unknown", "blind", "up_to_last", "up_to_plane",
    /// "up_to_surface", "up_to_next".
    enum class HRM_API_TYPE EBottomLimitExtentType : int32_t
    {
        Unknown = 0,
        Blind = 1,
        UpToLast = 2,
        UpToPlane = 3,
        UpToSurface = 4,
        UpToNext = 5,
    };

    /// The name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The diameter of the hole.
    double primaryDiameter() const { return m_primaryDiameter; }
    void setPrimaryDiameter(double diameter) { m_primaryDiameter = diameter; }
    /// The upper tolerance of that diameter.
    double primaryDiameterMaxTol() const { return m_primaryDiameterMaxTol; }
    void setPrimaryDiameterMaxTol(double tolerance) { m_primaryDiameterMaxTol = tolerance; }
    /// The lower tolerance of that diameter.
    double primaryDiameterMinTol() const { return m_primaryDiameterMinTol; }
    void setPrimaryDiameterMinTol(double tolerance) { m_primaryDiameterMinTol = tolerance; }
    /// The depth of the hole.
    double primaryDepth() const { return m_primaryDepth; }
    void setPrimaryDepth(double depth) { m_primaryDepth = depth; }
    /// The angle of the drill tip, in degrees.
    double tipAngleDegrees() const { return m_tipAngleDegrees; }
    void setTipAngleDegrees(double angle) { m_tipAngleDegrees = angle; }
    /// How far the hole goes.
    EBottomLimitExtentType bottomLimitExtentType() const { return m_bottomLimitExtentType; }
    void setBottomLimitExtentType(EBottomLimitExtentType type) { m_bottomLimitExtentType = type; }
    /// The centre of the hole at its start.
    const ExcVector3d& center() const { return m_center; }
    void setCenter(const ExcVector3d& center) { m_center = center; }
    /// The direction the hole goes in.
    const ExcVector3d& direction() const { return m_direction; }
    void setDirection(const ExcVector3d& direction) { m_direction = direction; }
    /// The thread of the hole, or null.
    const std::shared_ptr<ExcMfgHoleThread>& holeThread() const { return m_holeThread; }
    void setHoleThread(std::shared_ptr<ExcMfgHoleThread> thread) { m_holeThread = std::move(thread); }

protected:
    ExcMfgHole() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_name;
    double m_primaryDiameter = 0.0;
    double m_primaryDiameterMaxTol = 0.0;
    double m_primaryDiameterMinTol = 0.0;
    double m_primaryDepth = 0.0;
    double m_tipAngleDegrees = 0.0;
    EBottomLimitExtentType m_bottomLimitExtentType = EBottomLimitExtentType::Unknown;
    ExcVector3d m_center;
    ExcVector3d m_direction;
    std::shared_ptr<ExcMfgHoleThread> m_holeThread;
};

/// A plain drilled hole: the hole keys only.
class HRM_API ExcMfgSimpleHole : public ExcMfgHole
{
public:
    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgSimpleHole& other) const;
    bool operator!=(const ExcMfgSimpleHole& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;
};

/// A tapered hole: the hole keys, then "angle".
class HRM_API ExcMfgTaperHole : public ExcMfgHole
{
public:
    /// The taper angle.
    double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgTaperHole& other) const;
    bool operator!=(const ExcMfgTaperHole& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_angle = 0.0;
};

/// What the counter bore, counter sink and counter drill holes add first: the diameter of the
/// wider part and its tolerances, "diameter", "max_tol", "min_tol".
class HRM_API ExcMfgCounterHole : public ExcMfgHole
{
public:
    /// The diameter.
    double diameter() const { return m_diameter; }
    void setDiameter(double diameter) { m_diameter = diameter; }
    /// The upper tolerance of the wider diameter.
    double maximumTolerance() const { return m_maximumTolerance; }
    void setMaximumTolerance(double tolerance) { m_maximumTolerance = tolerance; }
    /// The lower tolerance of the wider diameter.
    double minimumTolerance() const { return m_minimumTolerance; }
    void setMinimumTolerance(double tolerance) { m_minimumTolerance = tolerance; }

protected:
    ExcMfgCounterHole() = default;
    HRM_MEMBER_LIST;

private:
    double m_diameter = 0.0;
    double m_maximumTolerance = 0.0;
    double m_minimumTolerance = 0.0;
};

/// A counter-bored hole: the counter hole keys, then "depth".
class HRM_API ExcMfgCounterBoreHole : public ExcMfgCounterHole
{
public:
    /// The depth.
    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgCounterBoreHole& other) const;
    bool operator!=(const ExcMfgCounterBoreHole& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_depth = 0.0;
};

/// A countersunk hole: the counter hole keys, then "angle" (the taper angle).
class HRM_API ExcMfgCounterSinkHole : public ExcMfgCounterHole
{
public:
    /// The taper angle.
    double taperAngle() const { return m_taperAngle; }
    void setTaperAngle(double angle) { m_taperAngle = angle; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgCounterSinkHole& other) const;
    bool operator!=(const ExcMfgCounterSinkHole& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_taperAngle = 0.0;
};

/// A counter-drilled hole: the counter hole keys, then "depth", "sink_diameter", "angle" (the
/// taper angle).
class HRM_API ExcMfgCounterDrillHole : public ExcMfgCounterHole
{
public:
    /// The depth.
    double depth() const { return m_depth; }
    void setDepth(double depth) { m_depth = depth; }
    /// The diameter of the countersink.
    double sinkDiameter() const { return m_sinkDiameter; }
    void setSinkDiameter(double diameter) { m_sinkDiameter = diameter; }
    /// The taper angle.
    double taperAngle() const { return m_taperAngle; }
    void setTaperAngle(double angle) { m_taperAngle = angle; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgCounterDrillHole& other) const;
    bool operator!=(const ExcMfgCounterDrillHole& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    double m_depth = 0.0;
    double m_sinkDiameter = 0.0;
    double m_taperAngle = 0.0;
};

/// A pattern in which a feature repeats: {"type", then the keys of its kind}. "type" is written
/// from type() and not read back: ExcMfgPattern::readPattern chooses the class from it. Every
/// pattern has an anchor point and may have a base instance.
class HRM_API ExcMfgPattern : public IJsonObject
{
public:
    /// The kind of pattern. Travels as "unknown", "none", "rectangular", "circular",
    /// "user_defined".
    enum class HRM_API_TYPE EType : int32_t
    {
        Unknown = 0,
        None = 1,
        Rectangular = 2,
        Circular = 3,
        UserDefined = 4,
    };

    /// One instance of the pattern: {"is_base", "limiting", "defining"}.
    class HRM_API Instance : public IJsonObject
    {
    public:
        /// Whether this is the base instance.
        bool isBaseInstance() const { return m_baseInstance; }
        void setBaseInstance(bool base) { m_baseInstance = base; }
        /// The limiting entities (the accessor is spelt so).
        const ExcEntities& limitng() const { return m_limiting; }
        /// Appends an entity; a null one is refused with a warning.
        void addLimiting(const std::shared_ptr<ExcEntity>& entity);
        /// The defining entities.
        const ExcEntities& defining() const { return m_defining; }
        /// Appends an entity; a null one is refused with a warning.
        void addDefining(const std::shared_ptr<ExcEntity>& entity);

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const Instance& other) const;
        bool operator!=(const Instance& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;

        bool m_baseInstance = false;
        ExcEntities m_limiting;
        ExcEntities m_defining;
    };

    /// The kind of pattern, written as "type".
    virtual EType type() const = 0;

    /// The point the pattern is anchored at.
    const ExcVector3d& anchorPoint() const { return m_anchorPoint; }
    void setAnchorPoint(const ExcVector3d& point) { m_anchorPoint = point; }
    /// The base instance, or null.
    const std::shared_ptr<Instance>& baseInstance() const { return m_baseInstance; }
    void setBaseInstance(std::shared_ptr<Instance> instance) { m_baseInstance = std::move(instance); }

    /// The pattern a "pattern" member describes, of the class its "type" names, or null: for a
    /// value that is no object ("ExcMfgPattern object should have a JSON object type."), one
    /// without a string "type" ("ExcMfgPattern should have a type."), the type "unknown"
    /// ("ExcMfgPattern: unknown type."), each logged at the error level, and silently for the
    /// type "none". A word that is not a type reads as the alphabetically first, "circular".
    static std::shared_ptr<ExcMfgPattern> readPattern(const JsonValue& value);

protected:
    ExcMfgPattern() = default;
    HRM_MEMBER_LIST;

    ExcVector3d m_anchorPoint;                ///< The point the pattern is anchored at.
    std::shared_ptr<Instance> m_baseInstance; ///< The base instance, or null.
};

/// What the rectangular and circular patterns share besides the anchor point and base
/// instance: whether the pattern is simplified, and the grid positions (i, j) of its visible and
/// deactivated instances, travelling as arrays of [i, j] pairs.
class HRM_API ExcMfgGridPattern : public ExcMfgPattern
{
public:
    /// Grid positions (i, j) of instances.
    using Positions = std::vector<std::pair<int32_t, int32_t>>;

    /// Whether the pattern is simplified.
    bool isSimplified() const { return m_simplified; }
    void setSimplified(bool simplified) { m_simplified = simplified; }
    /// The grid positions (i, j) of the visible instances.
    const Positions& visibleInstances() const { return m_visibleInstances; }
    void setVisibleInstances(Positions positions) { m_visibleInstances = std::move(positions); }
    /// The grid positions (i, j) of the deactivated instances.
    const Positions& deactivatedInstances() const { return m_deactivatedInstances; }
    void setDeactivatedInstances(Positions positions) { m_deactivatedInstances = std::move(positions); }

protected:
    ExcMfgGridPattern() = default;

    /// "base_instance" (only when there is one), "simplified", "visible_instances",
    /// "deactivated_instances": the keys that end both grid patterns. A pair of another size is skipped with the warning given.
    template <class Members>
    void gridMembers(Members& m, const char* invalidVisiblePair, const char* invalidDeactivatedPair);

    bool m_simplified = false;       ///< Whether the pattern is simplified.
    Positions m_visibleInstances;     ///< The grid positions of the visible instances.
    Positions m_deactivatedInstances; ///< The grid positions of the deactivated instances.
};

/// Instances in rows and columns: {"type", "anchor_point", "align_primary_dir",
/// "align_secondary_dir", "primary_inst_count", "secondary_inst_count", "primary_spacing",
/// "secondary_spacing", "base_instance", "simplified", "visible_instances",
/// "deactivated_instances"}.
class HRM_API ExcMfgPatternRectangular : public ExcMfgGridPattern
{
public:
    /// The kind of pattern.
    EType type() const override { return EType::Rectangular; }

    /// The direction of the rows.
    const ExcVector3d& alignmentPrimaryDirection() const { return m_alignmentPrimaryDirection; }
    void setAlignmentPrimaryDirection(const ExcVector3d& direction) { m_alignmentPrimaryDirection = direction; }
    /// The direction of the columns.
    const ExcVector3d& alignmentSecondaryDirection() const { return m_alignmentSecondaryDirection; }
    void setAlignmentSecondaryDirection(const ExcVector3d& direction) { m_alignmentSecondaryDirection = direction; }
    /// The number of instances along the rows.
    int32_t primaryInstanceCount() const { return m_primaryInstanceCount; }
    void setPrimaryInstanceCount(int32_t count) { m_primaryInstanceCount = count; }
    /// The number of instances along the columns.
    int32_t secondaryInstanceCount() const { return m_secondaryInstanceCount; }
    void setSecondaryInstanceCount(int32_t count) { m_secondaryInstanceCount = count; }
    /// The spacing along the rows.
    double primarySpacing() const { return m_primarySpacing; }
    void setPrimarySpacing(double spacing) { m_primarySpacing = spacing; }
    /// The spacing along the columns.
    double secondarySpacing() const { return m_secondarySpacing; }
    void setSecondarySpacing(double spacing) { m_secondarySpacing = spacing; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgPatternRectangular& other) const;
    bool operator!=(const ExcMfgPatternRectangular& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVector3d m_alignmentPrimaryDirection;
    ExcVector3d m_alignmentSecondaryDirection;
    int32_t m_primaryInstanceCount = 0;
    int32_t m_secondaryInstanceCount = 0;
    double m_primarySpacing = 0.0;
    double m_secondarySpacing = 0.0;
};

/// Instances around an axis: {"type", "anchor_point", "center_of_rotation", "axis_of_rotation",
/// "axial_inst_count", "radial_inst_count", "axial_dist_degrees", "radial_dist",
/// "fixed_rot_orient", "base_instance", "simplified", "visible_instances",
/// "deactivated_instances"}.
class HRM_API ExcMfgPatternCircular : public ExcMfgGridPattern
{
public:
    /// The kind of pattern.
    EType type() const override { return EType::Circular; }

    /// The centre of rotation.
    const ExcVector3d& centerOfRotation() const { return m_centerOfRotation; }
    void setCenterOfRotation(const ExcVector3d& center) { m_centerOfRotation = center; }
    /// The axis of rotation.
    const ExcVector3d& axisOfRotation() const { return m_axisOfRotation; }
    void setAxisOfRotation(const ExcVector3d& axis) { m_axisOfRotation = axis; }
    /// The number of instances around the axis.
    int32_t axialInstanceCount() const { return m_axialInstanceCount; }
    void setAxialInstanceCount(int32_t count) { m_axialInstanceCount = count; }
    /// The number of instances outwards.
    int32_t radialInstanceCount() const { return m_radialInstanceCount; }
    void setRadialInstanceCount(int32_t count) { m_radialInstanceCount = count; }
    /// The angle between neighbouring instances, in degrees.
    double axialDistanceDegrees() const { return m_axialDistanceDegrees; }
    void setAxialDistanceDegrees(double degrees) { m_axialDistanceDegrees = degrees; }
    /// The distance between the rings of instances.
    double radialDistance() const { return m_radialDistance; }
    void setRadialDistance(double distance) { m_radialDistance = distance; }
    /// Whether the instances keep their orientation as they turn.
    bool isFixedRotationOrientation() const { return m_fixedRotationOrientation; }
    void setFixedRotationOrientation(bool fixed) { m_fixedRotationOrientation = fixed; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgPatternCircular& other) const;
    bool operator!=(const ExcMfgPatternCircular& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcVector3d m_centerOfRotation;
    ExcVector3d m_axisOfRotation;
    int32_t m_axialInstanceCount = 0;
    int32_t m_radialInstanceCount = 0;
    double m_axialDistanceDegrees = 0.0;
    double m_radialDistance = 0.0;
    bool m_fixedRotationOrientation = false;
};

/// Instances at given places: {"type", "anchor_point", "base_instance" (null when there is none),
/// "instance_positions", "deactivated_positions"}, the positions as arrays of vectors.
class HRM_API ExcMfgPatternUserDefined : public ExcMfgPattern
{
public:
    /// The kind of pattern.
    EType type() const override { return EType::UserDefined; }

    /// The positions of the instances.
    const std::vector<ExcVector3d>& instancePositions() const { return m_instancePositions; }
    /// Appends an instance position.
    void addInstancePosition(const ExcVector3d& position) { m_instancePositions.push_back(position); }
    void setInstancePositions(std::vector<ExcVector3d> positions) { m_instancePositions = std::move(positions); }
    /// The positions of the deactivated instances.
    const std::vector<ExcVector3d>& deactivatedPositions() const { return m_deactivatedPositions; }
    /// Appends a deactivated position.
    void addDeactivatedPosition(const ExcVector3d& position) { m_deactivatedPositions.push_back(position); }
    void setDeactivatedPositions(std::vector<ExcVector3d> positions) { m_deactivatedPositions = std::move(positions); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcMfgPatternUserDefined& other) const;
    bool operator!=(const ExcMfgPatternUserDefined& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::vector<ExcVector3d> m_instancePositions;
    std::vector<ExcVector3d> m_deactivatedPositions;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcMfgThreading::EOrientation)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMfgThreading::EDesignationSystemType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMfgThread::EBottomType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMfgHole::EBottomLimitExtentType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcMfgPattern::EType)
