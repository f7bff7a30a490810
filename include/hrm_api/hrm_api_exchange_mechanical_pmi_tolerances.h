#pragma once

/// @file
/// The three richest PMI annotations: the geometric tolerance with its feature control frame
/// (ExcPMIGDT), the dimension (ExcPMIDimension) and the surface roughness symbol
/// (ExcPMIRoughness). They read and write as the annotations of hrm_api_exchange_mechanical_pmi.h
/// do, the annotation's keys first. What they add are arrays of exactly two elements: an array
/// of another size is logged as a warning and leaves both fields; in an array of two, a number
/// slot whose element is not a number becomes 0 and a word or string slot keeps its value.

#include <hrm_api/hrm_api_exchange_mechanical_pmi.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// A geometric tolerance. Keys after the annotation's: "tolerance_type", "tolerance_value_type",
/// "tolerance_value", "refine_tolerance", "rate_unit" [2 numbers], "proj_tol_zone_length",
/// "shift_value", "all_around", "note", "zone_modifiers" [2 words], "ref_frame" (when there is
/// one), "composite_data" (when composite: the lower segment of a composite frame, with
/// "tolerance_value_type", "tolerance_value", "rate_unit" [2 numbers], "zone_modifiers" (one
/// word, not an array: the lower segment has one where the upper has two) and "ref_frame" (when
/// there is one)). Reading a document without "composite_data" turns composite off.
class HRM_API ExcPMIGDT : public ExcPMIAnnotation
{
public:
    /// What the tolerance controls. "Location_position_of_a_surface" is written with a capital L.
    enum class HRM_API_TYPE EToleranceType : int32_t
    {
        Unknown = 0,
        FormStraightness = 1,
        FormFlatness = 2,
        FormCircularity = 3,
        FormCylindricity = 4,
        FormProfileAnyLine = 5,
        FormProfileAnySurface = 6,
        OrientationParallelism = 7,
        OrientationPerpendicularity = 8,
        OrientationAngularity = 9,
        LocationTruePosition = 10,
        LocationConcentricity = 11,
        LocationCoaxiality = 12,
        LocationSymmetry = 13,
        LocationPositionOfAnyLine = 14,
        LocationPositionOfASurface = 15,
        RunOutCircular = 16,
        RunOutTotal = 17,
    };
    /// The shape of the tolerance zone.
    enum class HRM_API_TYPE EToleranceValueType : int32_t
    {
        None = 0,
        Diameter = 1,
        Radius = 2,
        Spherical = 3,
        Square = 4,
    };
    /// A modifier of a zone or a datum. Three words say "tangent_plant", as the format has it.
    enum class HRM_API_TYPE EToleranceModifier : int32_t
    {
        NoModifier = 0,
        MaterialConditionUnsupported = 1,
        MaterialConditionNoModifier = 2,
        MaterialConditionMaximum = 3,
        MaterialConditionLeast = 4,
        MaterialConditionRegardlessOfFeatureSize = 5,
        TangentPlaneUnsupported = 6,
        TangentPlaneNonTangent = 7,
        TangentPlaneTangent = 8,
        FreeStateUnsupported = 9,
        FreeStateFree = 10,
        FreeStateNotFree = 11,
        StatisticalSymbol = 12,
        CommonZone = 13,
    };

    /// A datum of a compartment with its modifier: {"datum_id", "tolerance_modifier"}.
    class HRM_API ModifiedDatum : public IJsonObject
    {
    public:
        /// The label of the datum referred to.
        const std::wstring& datumId() const { return m_datumId; }
        void setDatumId(const std::wstring& id) { m_datumId = id; }
        /// The modifier that applies to the datum.
        EToleranceModifier modifier() const { return m_modifier; }
        void setModifier(EToleranceModifier modifier) { m_modifier = modifier; }

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const ModifiedDatum& other) const;
        bool operator!=(const ModifiedDatum& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;

        std::wstring m_datumId;
        EToleranceModifier m_modifier = EToleranceModifier::NoModifier;
    };

    /// One compartment of a frame: {"label", "modified_datums"}.
    class HRM_API DatumRef : public IJsonObject
    {
    public:
        /// The compartment's label.
        const std::wstring& label() const { return m_label; }
        void setLabel(const std::wstring& label) { m_label = label; }
        /// The datums of the compartment with their modifiers.
        const std::vector<ModifiedDatum>& modifiedDatums() const { return m_modifiedDatums; }
        /// Appends a datum.
        void addModifiedDatum(const ModifiedDatum& datum) { m_modifiedDatums.push_back(datum); }
        void addModifiedDatum(ModifiedDatum&& datum) { m_modifiedDatums.push_back(std::move(datum)); }

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const DatumRef& other) const;
        bool operator!=(const DatumRef& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;

        std::wstring m_label;
        std::vector<ModifiedDatum> m_modifiedDatums;
    };

    /// A datum reference frame: {"label", "datum_refs"}, the primary, secondary and tertiary
    /// compartments in order.
    class HRM_API Frame : public IJsonObject
    {
    public:
        /// The frame's label.
        const std::wstring& label() const { return m_label; }
        void setLabel(const std::wstring& label) { m_label = label; }
        /// The compartments: primary, secondary, tertiary.
        const std::vector<DatumRef>& datumRefs() const { return m_datumRefs; }
        /// Appends a compartment.
        void addDatumRef(const DatumRef& ref) { m_datumRefs.push_back(ref); }
        void addDatumRef(DatumRef&& ref) { m_datumRefs.push_back(std::move(ref)); }

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const Frame& other) const;
        bool operator!=(const Frame& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;

        std::wstring m_label;
        std::vector<DatumRef> m_datumRefs;
    };

    EPMIAnnotationType type() const override { return EPMIAnnotationType::GDT; }

    /// The geometric characteristic toleranced (flatness, position, ...).
    EToleranceType toleranceType() const { return m_toleranceType; }
    void setToleranceType(EToleranceType type) { m_toleranceType = type; }
    /// How the tolerance value is given (a width, a diameter, ...).
    EToleranceValueType toleranceValueType() const { return m_toleranceValueType; }
    void setToleranceValueType(EToleranceValueType type) { m_toleranceValueType = type; }
    /// The width of the tolerance zone.
    double toleranceValue() const { return m_toleranceValue; }
    void setToleranceValue(double value) { m_toleranceValue = value; }
    /// A refinement of the tolerance within the zone.
    double refineTolerance() const { return m_refineTolerance; }
    void setRefineTolerance(double value) { m_refineTolerance = value; }
    /// The unit area or length a per-unit tolerance applies to ("rate_unit"), into `first` and `second`.
    void rateUnits(double& first, double& second) const;
    /// Sets the unit area or length a per-unit tolerance applies to.
    void setRateUnit(double first, double second) { m_rateUnits = {first, second}; }
    /// The length of a projected tolerance zone.
    double projectionToleranceZoneLength() const { return m_projectionToleranceZoneLength; }
    void setProjectionToleranceZoneLength(double length) { m_projectionToleranceZoneLength = length; }
    /// The shift of the tolerance zone.
    double shiftValue() const { return m_shiftValue; }
    void setShiftValue(double value) { m_shiftValue = value; }
    /// A number, not a flag.
    double allAround() const { return m_allAround; }
    void setAllAround(double value) { m_allAround = value; }
    /// A note shown with the tolerance.
    const std::wstring& note() const { return m_note; }
    void setNote(const std::wstring& note) { m_note = note; }
    /// The two modifiers of the tolerance zone, into `first` and `second`.
    void zoneModifiers(EToleranceModifier& first, EToleranceModifier& second) const;
    void setZoneModifiers(EToleranceModifier first, EToleranceModifier second) { m_zoneModifiers = {first, second}; }
    /// May be null.
    const std::shared_ptr<Frame>& referenceFrame() const { return m_referenceFrame; }
    void setReferenceFrame(std::shared_ptr<Frame> frame) { m_referenceFrame = std::move(frame); }

    /// Whether the lower segment of a composite frame below is present.
    bool isComposite() const { return m_composite; }
    void setComposite(bool composite) { m_composite = composite; }
    /// How the lower segment's tolerance value is given.
    EToleranceValueType compositeToleranceValueType() const { return m_compositeToleranceValueType; }
    void setCompositeToleranceValueType(EToleranceValueType type) { m_compositeToleranceValueType = type; }
    /// The lower segment's tolerance value.
    double compositeToleranceValue() const { return m_compositeToleranceValue; }
    void setCompositeToleranceValue(double value) { m_compositeToleranceValue = value; }
    /// The lower segment's per-unit area or length, into `first` and `second`.
    void compositeRateUnits(double& first, double& second) const;
    void setCompositeRateUnits(double first, double second) { m_compositeRateUnits = {first, second}; }
    /// The lower segment's zone modifier.
    EToleranceModifier compositeZoneModifier() const { return m_compositeZoneModifier; }
    void setCompositeZoneModifier(EToleranceModifier modifier) { m_compositeZoneModifier = modifier; }
    /// May be null.
    const std::shared_ptr<Frame>& compositeReferenceFrame() const { return m_compositeReferenceFrame; }
    void setCompositeReferenceFrame(std::shared_ptr<Frame> frame) { m_compositeReferenceFrame = std::move(frame); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIGDT& other) const;
    bool operator!=(const ExcPMIGDT& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    EToleranceType m_toleranceType = EToleranceType::Unknown;
    EToleranceValueType m_toleranceValueType = EToleranceValueType::None;
    double m_toleranceValue = 0.0;
    double m_refineTolerance = 0.0;
    std::array<double, 2> m_rateUnits{};
    double m_projectionToleranceZoneLength = 0.0;
    double m_shiftValue = 0.0;
    double m_allAround = 0.0;
    std::wstring m_note;
    std::array<EToleranceModifier, 2> m_zoneModifiers{};
    std::shared_ptr<Frame> m_referenceFrame;
    bool m_composite = false;
    EToleranceValueType m_compositeToleranceValueType = EToleranceValueType::None;
    double m_compositeToleranceValue = 0.0;
    std::array<double, 2> m_compositeRateUnits{};
    EToleranceModifier m_compositeZoneModifier = EToleranceModifier::NoModifier;
    std::shared_ptr<Frame> m_compositeReferenceFrame;
};

/// A dimension. Keys after the annotation's: "main_type", "sub_type",
/// "callout_feature_annotation_type", "coord", "value", "unit", "value_precision",
/// "tolerance_precision_value", "numerical_tolerance" [upper, lower],
/// "alphanumerical_tolerance" [upper, lower], "texts" [prefix, suffix, before, after, upper,
/// lower, callout text, below], "fake_numerical_value" and "fake_alphanumerical_value" (each
/// only when the dimension has one), "is_driving", "line" [start, end], "arrows" [start, end],
/// "is_symbol_outside". Reading "texts" takes at most its first eight elements, one per text in
/// order; an element that is not a string leaves its text. Reading a fake value sets its flag.
class HRM_API ExcPMIDimension : public ExcPMIAnnotation
{
public:
    /// The family of the dimension.
    enum class HRM_API_TYPE EMainType : int32_t
    {
        Unknown = 0,
        Basic = 1,
        Reference = 2,
        Tolerance = 3,
        CoordDim = 4,
        HoleCallout = 5,
    };
    /// What the dimension measures.
    enum class HRM_API_TYPE ESubType : int32_t
    {
        Distance = 0,
        DistanceOffset = 1,
        Length = 2,
        LengthOrDistance = 3,
        LengthCurvilinear = 4,
        Angle = 5,
        Radius = 6,
        RadiusTangent = 7,
        RadiusCylinder = 8,
        RadiusEdge = 9,
        Diameter = 10,
        DiameterTangent = 11,
        DiameterCylinder = 12,
        DiameterEdge = 13,
        DiameterCone = 14,
        Chamfer = 15,
        Slope = 16,
        DimGdt = 17,
        DimDatumFeature = 18,
        DimDatumTarget = 19,
        DimBalloon = 20,
        NoDim = 21,
        AngleArc = 22,
        LengthCircular = 23,
        Fillet = 24,
        CoordDimension2d = 25,
        CoordDimension3d = 26,
    };
    /// The unit the value is shown in.
    enum class HRM_API_TYPE EDimUnit : int32_t
    {
        None = 0,
        Mm = 1,
        Inch = 2,
        Meter = 3,
        Cm = 4,
        Km = 5,
        Foot = 6,
        FootInchFraction64 = 7,
        FootInchFraction16 = 8,
        FootInchDecimal = 9,
        Degree = 10,
        Minute = 11,
        Second = 12,
        Radian = 13,
        Grade = 14,
    };
    /// The symbol at an end of the dimension line.
    enum class HRM_API_TYPE EArrowSymbol : int32_t
    {
        NotUsed = 0,
        Cross = 1,
        Plus = 2,
        Concentric = 3,
        Coincident = 4,
        FullCircle = 5,
        FullSquare = 6,
        FullStar = 7,
        Dot = 8,
        SmallDot = 9,
        Misc1 = 10,
        Misc2 = 11,
        FullCircle2 = 12,
        FullSquare2 = 13,
        OpenArrow = 14,
        UnfilledArrow = 15,
        BlankedArrow = 16,
        FilledArrow = 17,
        UnfilledCircle = 18,
        BlankedCircle = 19,
        FilledCircle = 20,
        CrossedCircle = 21,
        BlankedSquare = 22,
        FilledSquare = 23,
        BlankedTriangle = 24,
        FilledTriangle = 25,
        ManipulatorSquare = 26,
        ManipulatorDiamond = 27,
        ManipulatorCircle = 28,
        ManipulatorTriangle = 29,
        DoubleOpenArrow = 30,
        Wave = 31,
    };
    /// What a hole callout annotates.
    enum class HRM_API_TYPE ECalloutFeatureAnnotationType : int32_t
    {
        Unknown = 0,
        HoleUnknown = 1,
        HoleCalloutFit = 2,
        HoleCalloutDepth = 3,
        HoleCalloutDiameter = 4,
        HoleCalloutScrewSize = 5,
        HoleCalloutCounterBoreDepth = 6,
        HoleCalloutCounterBoreDiameter = 7,
        HoleCalloutPatternCount = 8,
        HoleCalloutPitch = 9,
        HoleCalloutAngle = 10,
        HoleCalloutPatTaperAngle = 11,
        HoleCalloutCounterSinkDiameter = 12,
        HoleCalloutCounterSinkAngle = 13,
        HoleCalloutThreadDepth = 14,
        HoleCalloutThreadSize = 15,
        HoleCalloutThreadMinorDia = 16,
        HoleCalloutThreadMajorDia = 17,
        HoleCalloutTapDrillDia = 18,
    };

    EPMIAnnotationType type() const override { return EPMIAnnotationType::Dimension; }

    /// What the dimension measures.
    EMainType mainType() const { return m_mainType; }
    void setMainType(EMainType type) { m_mainType = type; }
    /// `no_dim` by default.
    ESubType subType() const { return m_subType; }
    void setSubType(ESubType type) { m_subType = type; }
    /// `hole_unknown` by default.
    ECalloutFeatureAnnotationType calloutFeatureAnnotationType() const { return m_calloutFeatureAnnotationType; }
    void setCalloutFeatureAnnotationType(ECalloutFeatureAnnotationType type) { m_calloutFeatureAnnotationType = type; }
    /// The dimension's point in space.
    const ExcVector3d& coord() const { return m_coord; }
    void setCoord(const ExcVector3d& coord) { m_coord = coord; }
    /// The dimension's value.
    double value() const { return m_value; }
    void setValue(double value) { m_value = value; }
    /// The unit of the value.
    EDimUnit unit() const { return m_unit; }
    void setUnit(EDimUnit unit) { m_unit = unit; }
    /// The precision the value is shown with.
    double valuePrecision() const { return m_valuePrecision; }
    void setValuePrecision(double precision) { m_valuePrecision = precision; }
    /// The precision the tolerances are shown with.
    double tolerancePrecisionValue() const { return m_tolerancePrecisionValue; }
    void setTolerancePrecisionValue(double precision) { m_tolerancePrecisionValue = precision; }

    /// The upper tolerance, as a number.
    double numericalToleranceUpper() const { return m_numericalTolerance[0]; }
    void setNumericalToleranceUpper(double value) { m_numericalTolerance[0] = value; }
    /// The lower tolerance, as a number.
    double numericalToleranceLower() const { return m_numericalTolerance[1]; }
    void setNumericalToleranceLower(double value) { m_numericalTolerance[1] = value; }
    /// The upper tolerance, as text.
    const std::wstring& alphanumericalToleranceUpper() const { return m_alphanumericalTolerance[0]; }
    void setAlphanumericalToleranceUpper(const std::wstring& text) { m_alphanumericalTolerance[0] = text; }
    /// The lower tolerance, as text.
    const std::wstring& alphanumericalToleranceLower() const { return m_alphanumericalTolerance[1]; }
    void setAlphanumericalToleranceLower(const std::wstring& text) { m_alphanumericalTolerance[1] = text; }

    /// The text before the value, such as a diameter sign.
    const std::wstring& prefix() const { return m_texts[Prefix]; }
    void setPrefix(const std::wstring& text) { m_texts[Prefix] = text; }
    /// The text after the value.
    const std::wstring& suffix() const { return m_texts[Suffix]; }
    void setSuffix(const std::wstring& text) { m_texts[Suffix] = text; }
    /// A text shown before the dimension.
    const std::wstring& before() const { return m_texts[Before]; }
    void setBefore(const std::wstring& text) { m_texts[Before] = text; }
    /// A text shown after the dimension.
    const std::wstring& after() const { return m_texts[After]; }
    void setAfter(const std::wstring& text) { m_texts[After] = text; }
    /// A text shown above the dimension.
    const std::wstring& upper() const { return m_texts[Upper]; }
    void setUpper(const std::wstring& text) { m_texts[Upper] = text; }
    /// A text shown under the dimension.
    const std::wstring& lower() const { return m_texts[Lower]; }
    void setLower(const std::wstring& text) { m_texts[Lower] = text; }
    /// The text of a hole callout.
    const std::wstring& calloutText() const { return m_texts[CalloutText]; }
    void setCalloutText(const std::wstring& text) { m_texts[CalloutText] = text; }
    /// A text shown below the dimension line.
    const std::wstring& below() const { return m_texts[Below]; }
    void setBelow(const std::wstring& text) { m_texts[Below] = text; }

    /// The fake values are written only while their flags are set; each setter sets its own field.
    bool hasFakeNumericalValue() const { return m_hasFakeNumericalValue; }
    void setHasFakeNumericalValue(bool has) { m_hasFakeNumericalValue = has; }
    /// The number shown instead of the measured value.
    double fakeNumericalValue() const { return m_fakeNumericalValue; }
    void setFakeNumericalValue(double value) { m_fakeNumericalValue = value; }
    /// Whether a text is shown instead of the measured value.
    bool hasFakeAlphanumericalValue() const { return m_hasFakeAlphanumericalValue; }
    void setHasFakeAlphanumericalValue(bool has) { m_hasFakeAlphanumericalValue = has; }
    /// The text shown instead of the measured value.
    const std::wstring& fakeAlphanumericalValue() const { return m_fakeAlphanumericalValue; }
    void setFakeAlphanumericalValue(const std::wstring& value) { m_fakeAlphanumericalValue = value; }

    /// Whether the dimension drives the geometry.
    bool isDriving() const { return m_driving; }
    void setDriving(bool driving) { m_driving = driving; }
    /// Where the dimension line starts, in the annotation plane.
    const ExcVector2d& lineStart() const { return m_line[0]; }
    void setLineStart(const ExcVector2d& point) { m_line[0] = point; }
    /// Where the dimension line ends, in the annotation plane.
    const ExcVector2d& lineEnd() const { return m_line[1]; }
    void setLineEnd(const ExcVector2d& point) { m_line[1] = point; }
    /// The arrow at the start of the line.
    EArrowSymbol arrowSymbolStart() const { return m_arrows[0]; }
    void setArrowSymbolStart(EArrowSymbol symbol) { m_arrows[0] = symbol; }
    /// The arrow at the end of the line.
    EArrowSymbol arrowSymbolEnd() const { return m_arrows[1]; }
    void setArrowSymbolEnd(EArrowSymbol symbol) { m_arrows[1] = symbol; }
    /// Whether the arrows lie outside the extension lines.
    bool isSymbolOutside() const { return m_symbolOutside; }
    void setSymbolOutside(bool outside) { m_symbolOutside = outside; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIDimension& other) const;
    bool operator!=(const ExcPMIDimension& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    /// The places of the texts in "texts".
    enum TextIndex
    {
        Prefix,
        Suffix,
        Before,
        After,
        Upper,
        Lower,
        CalloutText,
        Below,
        TextCount
    };

    EMainType m_mainType = EMainType::Unknown;
    ESubType m_subType = ESubType::NoDim;
    ECalloutFeatureAnnotationType m_calloutFeatureAnnotationType = ECalloutFeatureAnnotationType::HoleUnknown;
    ExcVector3d m_coord;
    double m_value = 0.0;
    EDimUnit m_unit = EDimUnit::None;
    double m_valuePrecision = 0.0;
    double m_tolerancePrecisionValue = 0.0;
    std::array<double, 2> m_numericalTolerance{};
    std::array<std::wstring, 2> m_alphanumericalTolerance;
    std::array<std::wstring, TextCount> m_texts;
    bool m_hasFakeNumericalValue = false;
    double m_fakeNumericalValue = 0.0;
    bool m_hasFakeAlphanumericalValue = false;
    std::wstring m_fakeAlphanumericalValue;
    bool m_driving = false;
    std::array<ExcVector2d, 2> m_line;
    std::array<EArrowSymbol, 2> m_arrows{};
    bool m_symbolOutside = false;
};

/// A surface roughness symbol. Keys after the annotation's: "obtention_type",
/// "applicability_type", "fields" (the texts of the symbol's fields, in order).
class HRM_API ExcPMIRoughness : public ExcPMIAnnotation
{
public:
    /// How the surface is obtained.
    enum class HRM_API_TYPE EObtentionType : int32_t
    {
        Unsupported = 0,
        NotDefined = 1,
        MatchingMandatory = 2,
        MatchingForbidden = 3,
    };
    /// Which surfaces the symbol applies to.
    enum class HRM_API_TYPE EApplicabilityType : int32_t
    {
        Unsupported = 0,
        SpecifiedSurfaceOnly = 1,
        AllPartSurfaces = 2,
        BasicSurface = 3,
    };

    EPMIAnnotationType type() const override { return EPMIAnnotationType::Roughness; }

    /// How the surface is obtained.
    EObtentionType obtentionType() const { return m_obtentionType; }
    void setObtentionType(EObtentionType type) { m_obtentionType = type; }
    /// Which surfaces the symbol applies to.
    EApplicabilityType applicabilityType() const { return m_applicabilityType; }
    void setApplicabilityType(EApplicabilityType type) { m_applicabilityType = type; }
    /// The texts of the symbol's fields, in order.
    const std::vector<std::wstring>& fields() const { return m_fields; }
    void setFields(std::vector<std::wstring> fields) { m_fields = std::move(fields); }
    /// Appends, duplicates included.
    void addField(const std::wstring& field) { m_fields.push_back(field); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIRoughness& other) const;
    bool operator!=(const ExcPMIRoughness& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    EObtentionType m_obtentionType = EObtentionType::Unsupported;
    EApplicabilityType m_applicabilityType = EApplicabilityType::Unsupported;
    std::vector<std::wstring> m_fields;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIGDT::EToleranceType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIGDT::EToleranceValueType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIGDT::EToleranceModifier)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDimension::EMainType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDimension::ESubType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDimension::EDimUnit)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDimension::EArrowSymbol)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDimension::ECalloutFeatureAnnotationType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIRoughness::EObtentionType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIRoughness::EApplicabilityType)
