#include <hrm_api/hrm_api_exchange_mechanical_pmi_tolerances.h>

#include "hrm_api/hrm_api_enum_table.h"
#include "hrm_api/hrm_api_json_members.h"

namespace hrm {

// "Location_position_of_a_surface" is spelled with a capital L: it is its own table's
// alphabetically first word, so every unknown word reads as it.
HRM_ENUM_STRINGS(ExcPMIGDT::EToleranceType,
    {ExcPMIGDT::EToleranceType::Unknown, L"unknown"},
    {ExcPMIGDT::EToleranceType::FormStraightness, L"form_straightness"},
    {ExcPMIGDT::EToleranceType::FormFlatness, L"form_flatness"},
    {ExcPMIGDT::EToleranceType::FormCircularity, L"form_circularity"},
    {ExcPMIGDT::EToleranceType::FormCylindricity, L"form_cylindricity"},
    {ExcPMIGDT::EToleranceType::FormProfileAnyLine, L"form_profile_any_line"},
    {ExcPMIGDT::EToleranceType::FormProfileAnySurface, L"form_profile_any_surface"},
    {ExcPMIGDT::EToleranceType::OrientationParallelism, L"orientation_parallelism"},
    {ExcPMIGDT::EToleranceType::OrientationPerpendicularity, L"orientation_perpendicularity"},
    {ExcPMIGDT::EToleranceType::OrientationAngularity, L"orientation_angularity"},
    {ExcPMIGDT::EToleranceType::LocationTruePosition, L"location_true_position"},
    {ExcPMIGDT::EToleranceType::LocationConcentricity, L"location_concentricity"},
    {ExcPMIGDT::EToleranceType::LocationCoaxiality, L"location_coaxiality"},
    {ExcPMIGDT::EToleranceType::LocationSymmetry, L"location_symmetry"},
    {ExcPMIGDT::EToleranceType::LocationPositionOfAnyLine, L"location_position_of_any_line"},
    {ExcPMIGDT::EToleranceType::LocationPositionOfASurface, L"Location_position_of_a_surface"},
    {ExcPMIGDT::EToleranceType::RunOutCircular, L"run_out_circular"},
    {ExcPMIGDT::EToleranceType::RunOutTotal, L"run_out_total"})

HRM_ENUM_STRINGS(ExcPMIGDT::EToleranceValueType,
    {ExcPMIGDT::EToleranceValueType::None, L"none"},
    {ExcPMIGDT::EToleranceValueType::Diameter, L"diameter"},
    {ExcPMIGDT::EToleranceValueType::Radius, L"radius"},
    {ExcPMIGDT::EToleranceValueType::Spherical, L"spherical"},
    {ExcPMIGDT::EToleranceValueType::Square, L"square"})

// "plant" in three words is part of the format.
HRM_ENUM_STRINGS(ExcPMIGDT::EToleranceModifier,
    {ExcPMIGDT::EToleranceModifier::NoModifier, L"no_modifier"},
    {ExcPMIGDT::EToleranceModifier::MaterialConditionUnsupported, L"material_condition_unsupported"},
    {ExcPMIGDT::EToleranceModifier::MaterialConditionNoModifier, L"material_condition_no_modifier"},
    {ExcPMIGDT::EToleranceModifier::MaterialConditionMaximum, L"material_condition_maximum"},
    {ExcPMIGDT::EToleranceModifier::MaterialConditionLeast, L"material_condition_least"},
    {ExcPMIGDT::EToleranceModifier::MaterialConditionRegardlessOfFeatureSize, L"material_condition_regardless_of_feature_size"},
    {ExcPMIGDT::EToleranceModifier::TangentPlaneUnsupported, L"tangent_plant_unsupported"},
    {ExcPMIGDT::EToleranceModifier::TangentPlaneNonTangent, L"tangent_plant_non_tangent"},
    {ExcPMIGDT::EToleranceModifier::TangentPlaneTangent, L"tangent_plant_tangent"},
    {ExcPMIGDT::EToleranceModifier::FreeStateUnsupported, L"free_state_unsupported"},
    {ExcPMIGDT::EToleranceModifier::FreeStateFree, L"free_state_free"},
    {ExcPMIGDT::EToleranceModifier::FreeStateNotFree, L"free_state_not_free"},
    {ExcPMIGDT::EToleranceModifier::StatisticalSymbol, L"statistical_symbol"},
    {ExcPMIGDT::EToleranceModifier::CommonZone, L"common_zone"})

HRM_ENUM_STRINGS(ExcPMIDimension::EMainType,
    {ExcPMIDimension::EMainType::Unknown, L"unknown"},
    {ExcPMIDimension::EMainType::Basic, L"basic"},
    {ExcPMIDimension::EMainType::Reference, L"reference"},
    {ExcPMIDimension::EMainType::Tolerance, L"tolerance"},
    {ExcPMIDimension::EMainType::CoordDim, L"coord_dim"},
    {ExcPMIDimension::EMainType::HoleCallout, L"hole_callout"})

HRM_ENUM_STRINGS(ExcPMIDimension::ESubType,
    {ExcPMIDimension::ESubType::Distance, L"distance"},
    {ExcPMIDimension::ESubType::DistanceOffset, L"distance_offset"},
    {ExcPMIDimension::ESubType::Length, L"length"},
    {ExcPMIDimension::ESubType::LengthOrDistance, L"length_or_distance"},
    {ExcPMIDimension::ESubType::LengthCurvilinear, L"length_curvilinear"},
    {ExcPMIDimension::ESubType::Angle, L"angle"},
    {ExcPMIDimension::ESubType::Radius, L"radius"},
    {ExcPMIDimension::ESubType::RadiusTangent, L"radius_tangent"},
    {ExcPMIDimension::ESubType::RadiusCylinder, L"radius_cylinder"},
    {ExcPMIDimension::ESubType::RadiusEdge, L"radius_edge"},
    {ExcPMIDimension::ESubType::Diameter, L"diameter"},
    {ExcPMIDimension::ESubType::DiameterTangent, L"diameter_tangent"},
    {ExcPMIDimension::ESubType::DiameterCylinder, L"diameter_cylinder"},
    {ExcPMIDimension::ESubType::DiameterEdge, L"diameter_edge"},
    {ExcPMIDimension::ESubType::DiameterCone, L"diameter_cone"},
    {ExcPMIDimension::ESubType::Chamfer, L"chamfer"},
    {ExcPMIDimension::ESubType::Slope, L"slope"},
    {ExcPMIDimension::ESubType::DimGdt, L"dim_gdt"},
    {ExcPMIDimension::ESubType::DimDatumFeature, L"dim_datum_feature"},
    {ExcPMIDimension::ESubType::DimDatumTarget, L"dim_datum_target"},
    {ExcPMIDimension::ESubType::DimBalloon, L"dim_balloon"},
    {ExcPMIDimension::ESubType::NoDim, L"no_dim"},
    {ExcPMIDimension::ESubType::AngleArc, L"angle_arc"},
    {ExcPMIDimension::ESubType::LengthCircular, L"length_circular"},
    {ExcPMIDimension::ESubType::Fillet, L"fillet"},
    {ExcPMIDimension::ESubType::CoordDimension2d, L"coord_dimension_2d"},
    {ExcPMIDimension::ESubType::CoordDimension3d, L"coord_dimension_3d"})

HRM_ENUM_STRINGS(ExcPMIDimension::EDimUnit,
    {ExcPMIDimension::EDimUnit::None, L"none"},
    {ExcPMIDimension::EDimUnit::Mm, L"mm"},
    {ExcPMIDimension::EDimUnit::Inch, L"inch"},
    {ExcPMIDimension::EDimUnit::Meter, L"meter"},
    {ExcPMIDimension::EDimUnit::Cm, L"cm"},
    {ExcPMIDimension::EDimUnit::Km, L"km"},
    {ExcPMIDimension::EDimUnit::Foot, L"foot"},
    {ExcPMIDimension::EDimUnit::FootInchFraction64, L"f_i_f64"},
    {ExcPMIDimension::EDimUnit::FootInchFraction16, L"f_i_f16"},
    {ExcPMIDimension::EDimUnit::FootInchDecimal, L"f_i_dec"},
    {ExcPMIDimension::EDimUnit::Degree, L"degree"},
    {ExcPMIDimension::EDimUnit::Minute, L"minute"},
    {ExcPMIDimension::EDimUnit::Second, L"second"},
    {ExcPMIDimension::EDimUnit::Radian, L"radian"},
    {ExcPMIDimension::EDimUnit::Grade, L"grade"})

HRM_ENUM_STRINGS(ExcPMIDimension::EArrowSymbol,
    {ExcPMIDimension::EArrowSymbol::NotUsed, L"not_used"},
    {ExcPMIDimension::EArrowSymbol::Cross, L"cross"},
    {ExcPMIDimension::EArrowSymbol::Plus, L"plus"},
    {ExcPMIDimension::EArrowSymbol::Concentric, L"concentric"},
    {ExcPMIDimension::EArrowSymbol::Coincident, L"coincident"},
    {ExcPMIDimension::EArrowSymbol::FullCircle, L"full_circle"},
    {ExcPMIDimension::EArrowSymbol::FullSquare, L"full_square"},
    {ExcPMIDimension::EArrowSymbol::FullStar, L"full_star"},
    {ExcPMIDimension::EArrowSymbol::Dot, L"dot"},
    {ExcPMIDimension::EArrowSymbol::SmallDot, L"small_dot"},
    {ExcPMIDimension::EArrowSymbol::Misc1, L"misc1"},
    {ExcPMIDimension::EArrowSymbol::Misc2, L"misc2"},
    {ExcPMIDimension::EArrowSymbol::FullCircle2, L"full_circle2"},
    {ExcPMIDimension::EArrowSymbol::FullSquare2, L"full_square2"},
    {ExcPMIDimension::EArrowSymbol::OpenArrow, L"open_arrow"},
    {ExcPMIDimension::EArrowSymbol::UnfilledArrow, L"unfilled_arrow"},
    {ExcPMIDimension::EArrowSymbol::BlankedArrow, L"blanked_arrow"},
    {ExcPMIDimension::EArrowSymbol::FilledArrow, L"filled_arrow"},
    {ExcPMIDimension::EArrowSymbol::UnfilledCircle, L"unfilled_circle"},
    {ExcPMIDimension::EArrowSymbol::BlankedCircle, L"blanked_circle"},
    {ExcPMIDimension::EArrowSymbol::FilledCircle, L"filled_circle"},
    {ExcPMIDimension::EArrowSymbol::CrossedCircle, L"crossed_circle"},
    {ExcPMIDimension::EArrowSymbol::BlankedSquare, L"blanked_square"},
    {ExcPMIDimension::EArrowSymbol::FilledSquare, L"filled_square"},
    {ExcPMIDimension::EArrowSymbol::BlankedTriangle, L"blanked_triangle"},
    {ExcPMIDimension::EArrowSymbol::FilledTriangle, L"filled_triangle"},
    {ExcPMIDimension::EArrowSymbol::ManipulatorSquare, L"manipulator_square"},
    {ExcPMIDimension::EArrowSymbol::ManipulatorDiamond, L"manipulator_diamond"},
    {ExcPMIDimension::EArrowSymbol::ManipulatorCircle, L"manipulator_circle"},
    {ExcPMIDimension::EArrowSymbol::ManipulatorTriangle, L"manipulator_triangle"},
    {ExcPMIDimension::EArrowSymbol::DoubleOpenArrow, L"double_open_arrow"},
    {ExcPMIDimension::EArrowSymbol::Wave, L"wave"})

HRM_ENUM_STRINGS(ExcPMIDimension::ECalloutFeatureAnnotationType,
    {ExcPMIDimension::ECalloutFeatureAnnotationType::Unknown, L"unknown"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleUnknown, L"hole_unknown"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutFit, L"hole_callout_fit"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutDepth, L"hole_callout_depth"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutDiameter, L"hole_callout_diameter"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutScrewSize, L"hole_callout_screw_size"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutCounterBoreDepth, L"hole_callout_counter_bore_depth"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutCounterBoreDiameter, L"hole_callout_counter_bore_diameter"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutPatternCount, L"hole_callout_pattern_count"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutPitch, L"hole_callout_pitch"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutAngle, L"hole_callout_angle"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutPatTaperAngle, L"hole_callout_pat_taper_angle"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutCounterSinkDiameter, L"hole_callout_counter_sink_diameter"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutCounterSinkAngle, L"hole_callout_counter_sink_angle"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutThreadDepth, L"hole_callout_thread_depth"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutThreadSize, L"hole_callout_thread_size"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutThreadMinorDia, L"hole_callout_thread_minor_dia"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutThreadMajorDia, L"hole_callout_thread_major_dia"},
    {ExcPMIDimension::ECalloutFeatureAnnotationType::HoleCalloutTapDrillDia, L"hole_callout_tap_drill_dia"})

HRM_ENUM_STRINGS(ExcPMIRoughness::EObtentionType,
    {ExcPMIRoughness::EObtentionType::Unsupported, L"unsupported"},
    {ExcPMIRoughness::EObtentionType::NotDefined, L"not_defined"},
    {ExcPMIRoughness::EObtentionType::MatchingMandatory, L"matching_mandatory"},
    {ExcPMIRoughness::EObtentionType::MatchingForbidden, L"matching_forbidden"})

HRM_ENUM_STRINGS(ExcPMIRoughness::EApplicabilityType,
    {ExcPMIRoughness::EApplicabilityType::Unsupported, L"unsupported"},
    {ExcPMIRoughness::EApplicabilityType::SpecifiedSurfaceOnly, L"specified_surface_only"},
    {ExcPMIRoughness::EApplicabilityType::AllPartSurfaces, L"all_part_surfaces"},
    {ExcPMIRoughness::EApplicabilityType::BasicSurface, L"basic_surface"})

template <class Members>
void ExcPMIGDT::ModifiedDatum::members(Members& m)
{
    m.string(L"datum_id", m_datumId).enumeration(L"tolerance_modifier", m_modifier);
}
HRM_MEMBER_IO(ExcPMIGDT::ModifiedDatum, "ExcPMIGDT::ModifiedDatum")
HRM_EQUALITY_AS_JSON(ExcPMIGDT::ModifiedDatum)

template <class Members>
void ExcPMIGDT::DatumRef::members(Members& m)
{
    m.string(L"label", m_label).values(L"modified_datums", m_modifiedDatums);
}
HRM_MEMBER_IO(ExcPMIGDT::DatumRef, "ExcPMIGDT::DatumRef")
HRM_EQUALITY_AS_JSON(ExcPMIGDT::DatumRef)

template <class Members>
void ExcPMIGDT::Frame::members(Members& m)
{
    m.string(L"label", m_label).values(L"datum_refs", m_datumRefs);
}
HRM_MEMBER_IO(ExcPMIGDT::Frame, "ExcPMIGDT::Frame")
HRM_EQUALITY_AS_JSON(ExcPMIGDT::Frame)

void ExcPMIGDT::rateUnits(double& first, double& second) const
{
    first = m_rateUnits[0];
    second = m_rateUnits[1];
}

void ExcPMIGDT::zoneModifiers(EToleranceModifier& first, EToleranceModifier& second) const
{
    first = m_zoneModifiers[0];
    second = m_zoneModifiers[1];
}

void ExcPMIGDT::compositeRateUnits(double& first, double& second) const
{
    first = m_compositeRateUnits[0];
    second = m_compositeRateUnits[1];
}

template <class Members>
void ExcPMIGDT::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.enumeration(L"tolerance_type", m_toleranceType)
        .enumeration(L"tolerance_value_type", m_toleranceValueType)
        .number(L"tolerance_value", m_toleranceValue)
        .number(L"refine_tolerance", m_refineTolerance)
        .exactly(L"rate_unit", m_rateUnits, "ExcPMIGDT: invalid size of rate_unit array")
        .number(L"proj_tol_zone_length", m_projectionToleranceZoneLength)
        .number(L"shift_value", m_shiftValue)
        .number(L"all_around", m_allAround)
        .string(L"note", m_note)
        .exactly(L"zone_modifiers", m_zoneModifiers, "ExcPMIGDT: invalid size of zone_modifiers array")
        .child(L"ref_frame", m_referenceFrame)
        .section(L"composite_data", m_composite, [this](auto& composite) {
            composite.enumeration(L"tolerance_value_type", m_compositeToleranceValueType)
                .number(L"tolerance_value", m_compositeToleranceValue)
                .exactly(L"rate_unit", m_compositeRateUnits, "ExcPMIGDT: invalid size of composite rate_unit array.")
                .enumeration(L"zone_modifiers", m_compositeZoneModifier)
                .child(L"ref_frame", m_compositeReferenceFrame);
        });
}
HRM_MEMBER_IO(ExcPMIGDT, "ExcPMIGDT")
HRM_EQUALITY_AS_JSON(ExcPMIGDT)

template <class Members>
void ExcPMIDimension::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.enumeration(L"main_type", m_mainType)
        .enumeration(L"sub_type", m_subType)
        .enumeration(L"callout_feature_annotation_type", m_calloutFeatureAnnotationType)
        .object(L"coord", m_coord)
        .number(L"value", m_value)
        .enumeration(L"unit", m_unit)
        .number(L"value_precision", m_valuePrecision)
        .number(L"tolerance_precision_value", m_tolerancePrecisionValue)
        .exactly(L"numerical_tolerance", m_numericalTolerance, "ExcPMIDimension: invalid size of numerical_tolerance array.")
        .exactly(L"alphanumerical_tolerance", m_alphanumericalTolerance,
                 "ExcPMIDimension: invalid size of alphanumerical_tolerance array.")
        .upTo(L"texts", m_texts)
        .optional(L"fake_numerical_value", m_fakeNumericalValue, m_hasFakeNumericalValue)
        .optional(L"fake_alphanumerical_value", m_fakeAlphanumericalValue, m_hasFakeAlphanumericalValue)
        .boolean(L"is_driving", m_driving)
        .exactly(L"line", m_line, "ExcPMIDimension: invalid size of line array.")
        .exactly(L"arrows", m_arrows, "ExcPMIDimension: invalid size of arrows array.")
        .boolean(L"is_symbol_outside", m_symbolOutside);
}
HRM_MEMBER_IO(ExcPMIDimension, "ExcPMIDimension")
HRM_EQUALITY_AS_JSON(ExcPMIDimension)

template <class Members>
void ExcPMIRoughness::members(Members& m)
{
    ExcPMIAnnotation::members(m);
    m.enumeration(L"obtention_type", m_obtentionType)
        .enumeration(L"applicability_type", m_applicabilityType)
        .strings(L"fields", m_fields);
}
HRM_MEMBER_IO(ExcPMIRoughness, "ExcPMIRoughness")
HRM_EQUALITY_AS_JSON(ExcPMIRoughness)

} // namespace hrm
