#include <hrm_api/hrm_api_exchange_mechanical_mfg_parts.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

HRM_ENUM_STRINGS(ExcMfgThreading::EOrientation,
    {ExcMfgThreading::EOrientation::Unknown, L"unknown"},
    {ExcMfgThreading::EOrientation::RightHanded, L"right_handed"},
    {ExcMfgThreading::EOrientation::LeftHanded, L"left_handed"})

HRM_ENUM_STRINGS(ExcMfgThreading::EDesignationSystemType,
    {ExcMfgThreading::EDesignationSystemType::Unknown, L"unknown"},
    {ExcMfgThreading::EDesignationSystemType::Metric, L"metric"},
    {ExcMfgThreading::EDesignationSystemType::American, L"american"},
    {ExcMfgThreading::EDesignationSystemType::British, L"british"})

HRM_ENUM_STRINGS(ExcMfgThread::EBottomType,
    {ExcMfgThread::EBottomType::Unknown, L"unknown"},
    {ExcMfgThread::EBottomType::Dimension, L"dimension"},
    {ExcMfgThread::EBottomType::SupportDepth, L"support_depth"},
    {ExcMfgThread::EBottomType::SupportUpToPlane, L"support_up_to_plane"})

HRM_ENUM_STRINGS(ExcMfgHole::EBottomLimitExtentType,
    {ExcMfgHole::EBottomLimitExtentType::Unknown, L"unknown"},
    {ExcMfgHole::EBottomLimitExtentType::Blind, L"blind"},
    {ExcMfgHole::EBottomLimitExtentType::UpToLast, L"up_to_last"},
    {ExcMfgHole::EBottomLimitExtentType::UpToPlane, L"up_to_plane"},
    {ExcMfgHole::EBottomLimitExtentType::UpToSurface, L"up_to_surface"},
    {ExcMfgHole::EBottomLimitExtentType::UpToNext, L"up_to_next"})

HRM_ENUM_STRINGS(ExcMfgPattern::EType,
    {ExcMfgPattern::EType::Unknown, L"unknown"},
    {ExcMfgPattern::EType::None, L"none"},
    {ExcMfgPattern::EType::Rectangular, L"rectangular"},
    {ExcMfgPattern::EType::Circular, L"circular"},
    {ExcMfgPattern::EType::UserDefined, L"user_defined"})

// ---- Threads -------------------------------------------------------------------------------

template <class Members>
void ExcMfgThreading::members(Members& m)
{
    m.number(L"diameter", m_diameter)
        .number(L"depth", m_depth)
        .number(L"pitch", m_pitch)
        .enumeration(L"orientation", m_orientation)
        .string(L"designation", m_designation)
        .enumeration(L"designation_system_type", m_designationSystemType);
}

template <class Members>
void ExcMfgThread::members(Members& m)
{
    ExcMfgThreading::members(m);
    m.number(L"support_diameter", m_supportDiameter)
        .number(L"support_depth", m_supportDepth)
        .enumeration(L"bottom_type", m_bottomType);
}
HRM_MEMBER_IO(ExcMfgThread, "ExcMfgThread")
HRM_EQUALITY_AS_JSON(ExcMfgThread)

template <class Members>
void ExcMfgHoleThread::members(Members& m)
{
    ExcMfgThreading::members(m);
    m.string(L"standart", m_standart).number(L"min_tol", m_minimalTolerance).number(L"max_tol", m_maximalTolerance);
}
HRM_MEMBER_IO(ExcMfgHoleThread, "ExcMfgHoleThread")
HRM_EQUALITY_AS_JSON(ExcMfgHoleThread)

// ---- Holes ---------------------------------------------------------------------------------

template <class Members>
void ExcMfgHole::members(Members& m)
{
    m.string(L"name", m_name)
        .number(L"primary_diameter", m_primaryDiameter)
        .number(L"primary_diameter_max_tol", m_primaryDiameterMaxTol)
        .number(L"primary_diameter_min_tol", m_primaryDiameterMinTol)
        .number(L"primary_depth", m_primaryDepth)
        .number(L"tip_angle_degrees", m_tipAngleDegrees)
        .enumeration(L"bottom_limit_extent_type", m_bottomLimitExtentType)
        .object(L"center", m_center)
        .object(L"direction", m_direction)
        .child(L"hole_thread", m_holeThread);
}

template <class Members>
void ExcMfgSimpleHole::members(Members& m)
{
    ExcMfgHole::members(m);
}
HRM_MEMBER_IO(ExcMfgSimpleHole, "ExcMfgSimpleHole")
HRM_EQUALITY_AS_JSON(ExcMfgSimpleHole)

template <class Members>
void ExcMfgTaperHole::members(Members& m)
{
    ExcMfgHole::members(m);
    m.number(L"angle", m_angle);
}
HRM_MEMBER_IO(ExcMfgTaperHole, "ExcMfgTaperHole")
HRM_EQUALITY_AS_JSON(ExcMfgTaperHole)

template <class Members>
void ExcMfgCounterHole::members(Members& m)
{
    ExcMfgHole::members(m);
    m.number(L"diameter", m_diameter).number(L"max_tol", m_maximumTolerance).number(L"min_tol", m_minimumTolerance);
}

template <class Members>
void ExcMfgCounterBoreHole::members(Members& m)
{
    ExcMfgCounterHole::members(m);
    m.number(L"depth", m_depth);
}
HRM_MEMBER_IO(ExcMfgCounterBoreHole, "ExcMfgCounterBoreHole")
HRM_EQUALITY_AS_JSON(ExcMfgCounterBoreHole)

template <class Members>
void ExcMfgCounterSinkHole::members(Members& m)
{
    ExcMfgCounterHole::members(m);
    m.number(L"angle", m_taperAngle);
}
HRM_MEMBER_IO(ExcMfgCounterSinkHole, "ExcMfgCounterSinkHole")
HRM_EQUALITY_AS_JSON(ExcMfgCounterSinkHole)

template <class Members>
void ExcMfgCounterDrillHole::members(Members& m)
{
    ExcMfgCounterHole::members(m);
    m.number(L"depth", m_depth).number(L"sink_diameter", m_sinkDiameter).number(L"angle", m_taperAngle);
}
HRM_MEMBER_IO(ExcMfgCounterDrillHole, "ExcMfgCounterDrillHole")
HRM_EQUALITY_AS_JSON(ExcMfgCounterDrillHole)

// ---- Patterns ------------------------------------------------------------------------------

HRM_CHILD_ADDER(ExcMfgPattern::Instance, ExcEntity, addLimiting, m_limiting, "Limiting Entity")
HRM_CHILD_ADDER(ExcMfgPattern::Instance, ExcEntity, addDefining, m_defining, "Defining Entity")

template <class Members>
void ExcMfgPattern::Instance::members(Members& m)
{
    m.boolean(L"is_base", m_baseInstance).children(L"limiting", m_limiting).children(L"defining", m_defining);
}
HRM_MEMBER_IO(ExcMfgPattern::Instance, "ExcMfgPattern::Instance")
HRM_EQUALITY_AS_JSON(ExcMfgPattern::Instance)

// "type" is the class's own and is not read back: readPattern has chosen the class by it.
template <class Members>
void ExcMfgPattern::members(Members& m)
{
    if constexpr (!Members::reading)
        m.enumeration(L"type", type());
    m.object(L"anchor_point", m_anchorPoint);
}

std::shared_ptr<ExcMfgPattern> ExcMfgPattern::readPattern(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsObject()) {
        HRM_LOG(ax_herm::Error) << "ExcMfgPattern object should have a JSON object type.";
        return nullptr;
    }
    const auto type = value.FindMember(L"type");
    if (type == value.MemberEnd() || !type->value.IsString()) {
        HRM_LOG(ax_herm::Error) << "ExcMfgPattern should have a type.";
        return nullptr;
    }
    std::shared_ptr<ExcMfgPattern> pattern;
    switch (enumFromJson<EType>(type->value)) {
    case EType::None:
        return nullptr;
    case EType::Rectangular:
        pattern = std::make_shared<ExcMfgPatternRectangular>();
        break;
    case EType::Circular:
        pattern = std::make_shared<ExcMfgPatternCircular>();
        break;
    case EType::UserDefined:
        pattern = std::make_shared<ExcMfgPatternUserDefined>();
        break;
    case EType::Unknown:
    default:
        HRM_LOG(ax_herm::Error) << "ExcMfgPattern: unknown type.";
        return nullptr;
    }
    pattern->readObject(value);
    return pattern;
}

template <class Members>
void ExcMfgGridPattern::gridMembers(Members& m, const char* invalidVisiblePair, const char* invalidDeactivatedPair)
{
    m.child(L"base_instance", m_baseInstance)
        .boolean(L"simplified", m_simplified)
        .intPairs(L"visible_instances", m_visibleInstances, invalidVisiblePair)
        .intPairs(L"deactivated_instances", m_deactivatedInstances, invalidDeactivatedPair);
}

template <class Members>
void ExcMfgPatternRectangular::members(Members& m)
{
    ExcMfgPattern::members(m);
    m.object(L"align_primary_dir", m_alignmentPrimaryDirection)
        .object(L"align_secondary_dir", m_alignmentSecondaryDirection)
        .int32(L"primary_inst_count", m_primaryInstanceCount)
        .int32(L"secondary_inst_count", m_secondaryInstanceCount)
        .number(L"primary_spacing", m_primarySpacing)
        .number(L"secondary_spacing", m_secondarySpacing);
    // The second text names its key with a space: kept as it is.
    gridMembers(m, "ExcMfgPatternRectangular: invalid size of visible_instances array item (pair).",
                "ExcMfgPatternRectangular: invalid size of deactivated instances array item (pair).");
}
HRM_MEMBER_IO(ExcMfgPatternRectangular, "ExcMfgPatternRectangular")
HRM_EQUALITY_AS_JSON(ExcMfgPatternRectangular)

template <class Members>
void ExcMfgPatternCircular::members(Members& m)
{
    ExcMfgPattern::members(m);
    m.object(L"center_of_rotation", m_centerOfRotation)
        .object(L"axis_of_rotation", m_axisOfRotation)
        .int32(L"axial_inst_count", m_axialInstanceCount)
        .int32(L"radial_inst_count", m_radialInstanceCount)
        .number(L"axial_dist_degrees", m_axialDistanceDegrees)
        .number(L"radial_dist", m_radialDistance)
        .boolean(L"fixed_rot_orient", m_fixedRotationOrientation);
    gridMembers(m, "ExcMfgPatternCircular: invalid size of visible_instances array item (pair).",
                "ExcMfgPatternCircular: invalid size of deactivated_instances array item (pair).");
}
HRM_MEMBER_IO(ExcMfgPatternCircular, "ExcMfgPatternCircular")
HRM_EQUALITY_AS_JSON(ExcMfgPatternCircular)

template <class Members>
void ExcMfgPatternUserDefined::members(Members& m)
{
    ExcMfgPattern::members(m);
    m.nullableChild(L"base_instance", m_baseInstance)
        .values(L"instance_positions", m_instancePositions)
        .values(L"deactivated_positions", m_deactivatedPositions);
}
HRM_MEMBER_IO(ExcMfgPatternUserDefined, "ExcMfgPatternUserDefined")
HRM_EQUALITY_AS_JSON(ExcMfgPatternUserDefined)

} // namespace hrm
