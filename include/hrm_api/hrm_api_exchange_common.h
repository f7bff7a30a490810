#pragma once

/// @file
/// The small value objects every exchange document is built from: 2D and 3D vectors, a 3x3
/// matrix, an affine transformation, an RGB/alpha colour and a unit component. All are
/// copyable values that read and write themselves as JSON. Reading never throws: a value of
/// the wrong JSON kind is logged or ignored and leaves the object as it was.

#include <hrm_api/hrm_api_enums.h>
#include <hrm_api/hrm_api_export.h>
#include <hrm_api/hrm_api_json.h>

#include <array>
#include <cstddef>
#include <cstdint>

namespace hrm {

// The class templates are exported with the class and instantiated in the library only, for
// the arguments declared below them.

/// N doubles, written as a JSON array of N doubles. Reading takes the leading elements that
/// are stored as doubles and stops at the first one that is not (an integer such as 7
/// included), silently; elements beyond N are ignored. A value that is not an array is logged
/// at the error level and ignored.
template <std::size_t N>
class HRM_API ExcVectorBase : public IJsonObject
{
public:
    /// Throw std::invalid_argument("out of range") when i >= N.
    double& operator[](std::size_t i);
    double operator[](std::size_t i) const;

    /// Takes the leading elements stored as doubles (see the class).
    void readObject(const JsonValue& value) override;
    /// Writes the N doubles as an array.
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether all N values are equal.
    bool operator==(const ExcVectorBase& other) const { return m_values == other.m_values; }
    bool operator!=(const ExcVectorBase& other) const { return !(*this == other); }

protected:
    std::array<double, N> m_values{}; ///< The values.
};

extern template class ExcVectorBase<2>;
extern template class ExcVectorBase<3>;

/// A point or direction in the plane: [x, y].
class HRM_API ExcVector2d : public ExcVectorBase<2>
{
public:
    ExcVector2d() = default;
    ExcVector2d(double x, double y) { set(x, y); }

    /// Sets both coordinates.
    void set(double x, double y) { m_values = {x, y}; }

    /// The first coordinate.
    double x() const { return m_values[0]; }
    /// The second coordinate.
    double y() const { return m_values[1]; }
    /// The first coordinate, to change.
    double& x() { return m_values[0]; }
    /// The second coordinate, to change.
    double& y() { return m_values[1]; }
};

/// A point or direction in space: [x, y, z].
class HRM_API ExcVector3d : public ExcVectorBase<3>
{
public:
    ExcVector3d() = default;
    ExcVector3d(double x, double y, double z) { set(x, y, z); }

    /// Sets the three coordinates.
    void set(double x, double y, double z) { m_values = {x, y, z}; }

    /// The first coordinate.
    double x() const { return m_values[0]; }
    /// The second coordinate.
    double y() const { return m_values[1]; }
    /// The third coordinate.
    double z() const { return m_values[2]; }
    /// The first coordinate, to change.
    double& x() { return m_values[0]; }
    /// The second coordinate, to change.
    double& y() { return m_values[1]; }
    /// The third coordinate, to change.
    double& z() { return m_values[2]; }
};

/// Three rows, written as a JSON array of three vectors. The identity by default. Reading takes
/// the leading rows and stops silently at the first element that is not an array; each row
/// reads with the vector's rules.
class HRM_API ExcMatrix3d : public IJsonObject
{
public:
    ExcMatrix3d();

    /// Row i; throw std::invalid_argument("out of range") when i >= 3.
    ExcVector3d& operator[](std::size_t i) { return row(i); }
    const ExcVector3d& operator[](std::size_t i) const { return row(i); }
    /// Row i; throws std::invalid_argument("out of range") when i >= 3.
    ExcVector3d& row(std::size_t i);
    const ExcVector3d& row(std::size_t i) const;

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether all rows are equal.
    bool operator==(const ExcMatrix3d& other) const { return m_rows == other.m_rows; }
    bool operator!=(const ExcMatrix3d& other) const { return !(*this == other); }

private:
    std::array<ExcVector3d, 3> m_rows;
};

/// An affine matrix and a translation, carried as they are: {"affine": ..., "translation": ...}.
/// A value that is not an object is ignored silently; a missing member keeps its field.
class HRM_API ExcTransformation : public IJsonObject
{
public:
    /// The linear part: rotation, scale and shear.
    const ExcMatrix3d& affine() const { return m_affine; }
    ExcMatrix3d& affine() { return m_affine; }
    /// The translation, applied after the linear part.
    const ExcVector3d& translation() const { return m_translation; }
    ExcVector3d& translation() { return m_translation; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether both parts are equal.
    bool operator==(const ExcTransformation& other) const
    {
        return m_affine == other.m_affine && m_translation == other.m_translation;
    }
    bool operator!=(const ExcTransformation& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    ExcMatrix3d m_affine;
    ExcVector3d m_translation;
};

/// Four 16-bit channels and two flags that say which of them are meaningful. The flags alone
/// decide what is written: null when neither is set, else {"rgb": [r, g, b]} and/or
/// {"alpha": a}. Reading sets each flag from the presence of its member and keeps the low 16
/// bits of every channel value (70000 reads as 4464), without a range check.
class HRM_API ExcColor : public IJsonObject
{
public:
    /// The four channels.
    enum class HRM_API_TYPE EChannel : int32_t
    {
        Red = 0,
        Green = 1,
        Blue = 2,
        Alpha = 3,
    };

    ExcColor() = default;
    /// An opaque RGB colour: hasRGB set, hasAlpha not, alpha 255.
    ExcColor(uint16_t red, uint16_t green, uint16_t blue);
    /// Both flags set.
    ExcColor(uint16_t red, uint16_t green, uint16_t blue, uint16_t alpha);

    /// Setting a channel leaves the flags as they are. The channel is not range-checked.
    uint16_t channel(EChannel c) const { return m_channels[static_cast<std::size_t>(c)]; }
    uint16_t& channel(EChannel c) { return m_channels[static_cast<std::size_t>(c)]; }
    /// The channel c.
    uint16_t operator[](EChannel c) const { return channel(c); }
    uint16_t& operator[](EChannel c) { return channel(c); }

    /// Whether red, green and blue are meaningful ("rgb" is written).
    bool hasRGB() const { return m_hasRGB; }
    void setHasRGB(bool hasRGB) { m_hasRGB = hasRGB; }
    /// Whether alpha is meaningful ("alpha" is written).
    bool hasAlpha() const { return m_hasAlpha; }
    void setHasAlpha(bool hasAlpha) { m_hasAlpha = hasAlpha; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether flags and channels are equal.
    bool operator==(const ExcColor& other) const
    {
        return m_hasRGB == other.m_hasRGB && m_hasAlpha == other.m_hasAlpha && m_channels == other.m_channels;
    }
    bool operator!=(const ExcColor& other) const { return !(*this == other); }

private:
    bool m_hasRGB = false;
    bool m_hasAlpha = false;
    std::array<uint16_t, 4> m_channels{0, 0, 0, 255};
};

/// One unit of a compound unit with its exponent: {"dimension": 2, "units": "meter"}. A value
/// that is not an object is logged at the error level and ignored.
template <class E>
class HRM_API ExcUnitComponent : public IJsonObject
{
public:
    /// The exponent of the unit ("dimension").
    int32_t dimension() const { return m_dimension; }
    void setDimension(int32_t dimension) { m_dimension = dimension; }
    /// The unit ("units").
    E units() const { return m_units; }
    void setUnits(E units) { m_units = units; }

    void readObject(const JsonValue& value) override;
    void writeObject(JsonValue& value, JsonAllocator& allocator) const override;

    /// Whether exponent and unit are equal.
    bool operator==(const ExcUnitComponent& other) const
    {
        return m_dimension == other.m_dimension && m_units == other.m_units;
    }
    bool operator!=(const ExcUnitComponent& other) const { return !(*this == other); }

private:
    HRM_MEMBER_LIST;

    int32_t m_dimension = 0;
    E m_units = static_cast<E>(0);
};

extern template class ExcUnitComponent<ELengthUnitType>;
extern template class ExcUnitComponent<EMassUnitType>;
extern template class ExcUnitComponent<ETimeUnitType>;
extern template class ExcUnitComponent<ETemperatureUnitType>;

} // namespace hrm
