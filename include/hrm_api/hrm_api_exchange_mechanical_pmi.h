#pragma once

/// @file
/// Product and manufacturing information (PMI): the common bases of every annotation, the leader
/// polyline, and the three simplest annotations (notes with their text runs, datums, datum
/// targets). Tolerances, dimensions and roughness are in hrm_api_exchange_mechanical_pmi_tolerances.h;
/// the views, captures and sets that group annotations in hrm_api_exchange_mechanical_pmi_sets.h.
///
/// Every class reads and writes itself as a JSON object, the keys of its base first. Reading is
/// lenient: a missing member, or one of another JSON kind, keeps its field; a value that is no
/// object is logged ("<class> object should have a JSON object type.") and changes nothing.
/// Numbers are written as doubles and read from any JSON number. A word missing from its table
/// reads as the value of the table's alphabetically first word. Lists read are appended to the
/// lists held (read into a fresh object to get exactly what a document holds). Two objects are
/// equal when they write the same JSON.

#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_exchange_common.h>
#include <hrm_api/hrm_api_exchange_common_entity.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace hrm {

/// The kind of an annotation, as its "type" key names it.
enum class HRM_API_TYPE EPMIAnnotationType : int32_t
{
    Unknown = 0,
    Datum = 1,
    DatumTarget = 2,
    Note = 3,
    FlagNote = 4,
    NOA = 5,
    Roughness = 6,
    GDT = 7,
    Dimension = 8,
};

/// How an annotation's text lies in its plane.
enum class HRM_API_TYPE EPMIOrientation : int32_t
{
    Horizontal = 0,
    Vertical = 1,
    Parallel = 2,
    Perpendicular = 3,
    DimAngle = 4,
};

/// A leader polyline in the annotation plane: {"points": [[x, y], ...]}.
class HRM_API ExcPMILeader : public IJsonObject
{
public:
    /// The points of the polyline, in the annotation plane.
    const std::vector<ExcVector2d>& points() const { return m_points; }
    void setPoints(std::vector<ExcVector2d> points) { m_points = std::move(points); }
    /// Appends a point.
    void addPoint(const ExcVector2d& point) { m_points.push_back(point); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMILeader& other) const;
    bool operator!=(const ExcPMILeader& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::vector<ExcVector2d> m_points;
};

/// What every PMI object carries: {"name", "id", "hidden"}. The id is the key by which views and
/// captures refer to the object.
class HRM_API ExcPMIObject : public IJsonObject
{
public:
    /// The object's name.
    const std::wstring& name() const { return m_name; }
    void setName(const std::wstring& name) { m_name = name; }
    /// The id by which views and captures refer to the object.
    const std::wstring& id() const { return m_id; }
    void setId(const std::wstring& id) { m_id = id; }
    /// Whether the object is hidden.
    bool isHidden() const { return m_hidden; }
    void setHidden(bool hidden) { m_hidden = hidden; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

protected:
    ExcPMIObject() = default;
    HRM_MEMBER_LIST;

private:
    std::wstring m_name;
    std::wstring m_id;
    bool m_hidden = false;
};

/// An annotation placed in its annotation plane. Keys after the object's: "type" (what type()
/// says: written, never read), "orientation", "angle", "z_depth", "position", "linked_elements"
/// (the model entities it refers to), "leaders". "position" is read first.
class HRM_API ExcPMIAnnotation : public ExcPMIObject
{
public:
    /// Model entities an annotation refers to.
    using Entities = std::vector<std::shared_ptr<ExcEntity>>;
    /// The leaders of an annotation.
    using Leaders = std::vector<std::shared_ptr<ExcPMILeader>>;

    /// The kind of annotation, decided by the class.
    virtual EPMIAnnotationType type() const = 0;

    /// Where the annotation lies in its plane.
    const ExcVector2d& position() const { return m_position; }
    void setPosition(const ExcVector2d& position) { m_position = position; }
    /// How its text lies in the plane.
    EPMIOrientation orientation() const { return m_orientation; }
    void setOrientation(EPMIOrientation orientation) { m_orientation = orientation; }
    /// The angle of its text in the plane.
    double angle() const { return m_angle; }
    void setAngle(double angle) { m_angle = angle; }
    /// Its depth above the plane, for the order of drawing.
    double zDepth() const { return m_zDepth; }
    void setZDepth(double depth) { m_zDepth = depth; }

    /// The model entities the annotation refers to.
    const Entities& linkedElements() const { return m_linkedElements; }
    /// Replaces the list as given, nulls included (they are not written).
    void setLinkedElements(Entities elements) { m_linkedElements = std::move(elements); }
    /// Refuses a null element with a warning.
    void addLinkedElement(const std::shared_ptr<ExcEntity>& element);
    /// Appends elements, refusing null ones with a warning.
    void addLinkedElements(const Entities& elements);

    /// The annotation's leaders.
    const Leaders& leaders() const { return m_leaders; }
    /// Replaces the list as given, nulls included (they are not written).
    void setLeaders(Leaders leaders) { m_leaders = std::move(leaders); }
    /// Refuses a null leader with a warning.
    void addLeader(const std::shared_ptr<ExcPMILeader>& leader);
    /// Appends leaders, refusing null ones with a warning.
    void addLeaders(const Leaders& leaders);

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

protected:
    ExcPMIAnnotation() = default;
    HRM_MEMBER_LIST;

private:
    ExcVector2d m_position;
    EPMIOrientation m_orientation = EPMIOrientation::Horizontal;
    double m_angle = 0.0;
    double m_zDepth = 0.0;
    Entities m_linkedElements;
    Leaders m_leaders;
};

/// A note: its text runs, and whether it is a flag note or applies to the whole part (NOA).
/// Keys after the annotation's: "texts", "is_flag_note", "is_noa". Its type is always `note`.
class HRM_API ExcPMINote : public ExcPMIAnnotation
{
public:
    /// One run of text with its font. Keys: "label", "font_name", "font_type", "fixed_pitch",
    /// "bold", "italic", "underline", "strike_through", "overline", "height", "ratio", "slant",
    /// "color" (red, green, blue, alpha from 0 to 1; opaque white by default, and read up to the
    /// first element that is not a number).
    class HRM_API Text : public IJsonObject
    {
    public:
        /// The font family of a run.
        enum class HRM_API_TYPE EFontType : int32_t
        {
            Simplex = 0,
            Din = 1,
            Military = 2,
            ISO = 3,
            LightLine = 4,
            Century = 5,
            IGES1001 = 6,
            IGES1002 = 7,
            IGES1003 = 8,
        };
        /// A colour: red, green, blue, alpha, each from 0 to 1.
        using RGBA = std::array<double, 4>;

        /// The text itself.
        const std::wstring& label() const { return m_label; }
        void setLabel(const std::wstring& label) { m_label = label; }
        /// The font's name.
        const std::wstring& fontName() const { return m_fontName; }
        void setFontName(const std::wstring& name) { m_fontName = name; }
        /// The font family.
        EFontType fontType() const { return m_fontType; }
        void setFontType(EFontType type) { m_fontType = type; }
        /// Whether all characters have one width.
        bool fixedPitch() const { return m_fixedPitch; }
        void setFixedPitch(bool fixed) { m_fixedPitch = fixed; }
        /// The height of the characters.
        double height() const { return m_height; }
        void setHeight(double height) { m_height = height; }
        /// Whether the run is bold.
        bool bold() const { return m_bold; }
        void setBold(bool bold) { m_bold = bold; }
        /// Whether the run is italic.
        bool italic() const { return m_italic; }
        void setItalic(bool italic) { m_italic = italic; }
        /// Whether the run is underlined.
        bool underline() const { return m_underline; }
        void setUnderline(bool underline) { m_underline = underline; }
        /// Whether the run is struck through.
        bool strikeThrough() const { return m_strikeThrough; }
        void setStrikeThrough(bool strikeThrough) { m_strikeThrough = strikeThrough; }
        /// Whether the run has a line above it.
        bool overline() const { return m_overline; }
        void setOverline(bool overline) { m_overline = overline; }
        /// Width to height.
        double ratio() const { return m_ratio; }
        void setRatio(double ratio) { m_ratio = ratio; }
        /// The slant of the characters.
        double slant() const { return m_slant; }
        void setSlant(double slant) { m_slant = slant; }
        /// Red, green, blue and alpha, each from 0 to 1.
        const RGBA& getRGBA() const { return m_rgba; }
        void getRGBA(double& red, double& green, double& blue, double& alpha) const;
        /// Sets the colour.
        void setRGBA(double red, double green, double blue, double alpha) { m_rgba = {red, green, blue, alpha}; }

        void readObject(const JsonValue& value) override;
        void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
        /// Whether both write the same JSON.
        bool operator==(const Text& other) const;
        bool operator!=(const Text& other) const { return !(*this == other); }

    private:
        HRM_MEMBER_LIST;

        std::wstring m_label;
        std::wstring m_fontName;
        EFontType m_fontType = EFontType::Simplex;
        bool m_fixedPitch = false;
        double m_height = 0.0;
        bool m_bold = false;
        bool m_italic = false;
        bool m_underline = false;
        bool m_strikeThrough = false;
        bool m_overline = false;
        double m_ratio = 0.0;
        double m_slant = 0.0;
        RGBA m_rgba{1.0, 1.0, 1.0, 1.0};
    };
    /// The text runs of a note.
    using Texts = std::vector<std::shared_ptr<Text>>;

    /// Always `note`, also for a flag note.
    EPMIAnnotationType type() const override { return EPMIAnnotationType::Note; }

    /// The note's text runs.
    const Texts& texts() const { return m_texts; }
    /// Replaces the list as given, nulls included (they are not written).
    void setTexts(Texts texts) { m_texts = std::move(texts); }
    /// Refuses a null text with a warning.
    void addText(const std::shared_ptr<Text>& text);
    /// Appends texts, refusing null ones with a warning.
    void addTexts(const Texts& texts);
    /// Whether the note is a flag note.
    bool isFlagNote() const { return m_flagNote; }
    void setFlagNote(bool flagNote) { m_flagNote = flagNote; }
    /// Whether the note applies to the whole part.
    bool isNOA() const { return m_noa; }
    void setNOA(bool noa) { m_noa = noa; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMINote& other) const;
    bool operator!=(const ExcPMINote& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    Texts m_texts;
    bool m_flagNote = false;
    bool m_noa = false;
};

/// A datum: its letter and the ids of the datum targets that establish it. Keys after the
/// annotation's: "label", "target_ids".
class HRM_API ExcPMIDatum : public ExcPMIAnnotation
{
public:
    EPMIAnnotationType type() const override { return EPMIAnnotationType::Datum; }

    /// The datum's letter.
    const std::wstring& label() const { return m_label; }
    void setLabel(const std::wstring& label) { m_label = label; }
    /// The ids of the datum targets that establish the datum.
    const std::vector<std::wstring>& targetIds() const { return m_targetIds; }
    void setTargetIds(std::vector<std::wstring> ids) { m_targetIds = std::move(ids); }
    /// Appends, duplicates included.
    void addTargetId(const std::wstring& id) { m_targetIds.push_back(id); }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIDatum& other) const;
    bool operator!=(const ExcPMIDatum& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_label;
    std::vector<std::wstring> m_targetIds;
};

/// A datum target: a point, line or area of the part that establishes a datum. Keys after the
/// annotation's: "label", "target_type", "has_diameter", "upper_text", "lower_text",
/// "target_zone" ([zone point 1, zone point 2]: the corners or ends of the zone; its leading
/// elements are read).
class HRM_API ExcPMIDatumTarget : public ExcPMIAnnotation
{
public:
    /// The shape of the target.
    enum class HRM_API_TYPE EType : int32_t
    {
        Unknown = 0,
        Point = 1,
        Line = 2,
        AreaCircular = 3,
        AreaRectangular = 4,
        AreaFace = 5,
        Feature = 6,
        UserDefined = 7,
    };

    EPMIAnnotationType type() const override { return EPMIAnnotationType::DatumTarget; }

    /// The target's label.
    const std::wstring& label() const { return m_label; }
    void setLabel(const std::wstring& label) { m_label = label; }
    /// The shape of the target.
    EType targetType() const { return m_targetType; }
    void setTargetType(EType type) { m_targetType = type; }
    /// Whether the symbol shows a diameter.
    bool hasDiameter() const { return m_hasDiameter; }
    void setHasDiameter(bool hasDiameter) { m_hasDiameter = hasDiameter; }
    /// The upper half of the target symbol.
    const std::wstring& upperText() const { return m_upperText; }
    void setUpperText(const std::wstring& text) { m_upperText = text; }
    /// The lower half of the target symbol.
    const std::wstring& lowerText() const { return m_lowerText; }
    void setLowerText(const std::wstring& text) { m_lowerText = text; }
    /// The first corner or end of the target zone.
    const ExcVector3d& zonePoint1() const { return m_zone[0]; }
    void setZonePoint1(const ExcVector3d& point) { m_zone[0] = point; }
    /// The second corner or end of the target zone.
    const ExcVector3d& zonePoint2() const { return m_zone[1]; }
    void setZonePoint2(const ExcVector3d& point) { m_zone[1] = point; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;
    /// Whether both write the same JSON.
    bool operator==(const ExcPMIDatumTarget& other) const;
    bool operator!=(const ExcPMIDatumTarget& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    std::wstring m_label;
    EType m_targetType = EType::Unknown;
    bool m_hasDiameter = false;
    std::wstring m_upperText;
    std::wstring m_lowerText;
    std::array<ExcVector3d, 2> m_zone;
};

} // namespace hrm

HRM_DECLARE_ENUM_STRINGS(hrm::EPMIAnnotationType)
HRM_DECLARE_ENUM_STRINGS(hrm::EPMIOrientation)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMINote::Text::EFontType)
HRM_DECLARE_ENUM_STRINGS(hrm::ExcPMIDatumTarget::EType)
