#include <hrm_api/hrm_api_exchange_common.h>

#include "hrm_api/hrm_api_json_members.h"

#include <logging/ax_herm_logger.h>

#include <stdexcept>

namespace hrm {
namespace {

std::size_t checkedIndex(std::size_t i, std::size_t size)
{
    if (i >= size)
        throw std::invalid_argument("out of range");
    return i;
}

// Element rule for colour channels: an unsigned 32-bit integer, of which the low 16 bits are kept.
bool readChannel(const JsonValue& element, uint16_t& field)
{
    if (!element.IsUint())
        return false;
    field = static_cast<uint16_t>(element.GetUint());
    return true;
}

// Element rule for matrix rows: an array, read with the vector's own rules.
bool readRow(const JsonValue& element, ExcVector3d& row)
{
    if (!element.IsArray())
        return false;
    row.readObject(element);
    return true;
}

} // namespace

template <std::size_t N>
double& ExcVectorBase<N>::operator[](std::size_t i)
{
    return m_values[checkedIndex(i, N)];
}

template <std::size_t N>
double ExcVectorBase<N>::operator[](std::size_t i) const
{
    return m_values[checkedIndex(i, N)];
}

template <std::size_t N>
void ExcVectorBase<N>::readObject(const JsonValue& value)
{
    HRM_TRACE();
    if (!value.IsArray()) {
        HRM_LOG(ax_herm::Error) << "Exchange vector/point (2D/3D) object should have a JSON array type.";
        return;
    }
    readLeadingElements(value, m_values.begin(), m_values.end(), readStoredDouble);
}

template <std::size_t N>
void ExcVectorBase<N>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value = jsonDoubles(m_values.begin(), m_values.end(), allocator);
}

template class ExcVectorBase<2>;
template class ExcVectorBase<3>;

ExcMatrix3d::ExcMatrix3d() : m_rows{ExcVector3d(1.0, 0.0, 0.0), ExcVector3d(0.0, 1.0, 0.0), ExcVector3d(0.0, 0.0, 1.0)}
{
}

ExcVector3d& ExcMatrix3d::row(std::size_t i)
{
    return m_rows[checkedIndex(i, m_rows.size())];
}

const ExcVector3d& ExcMatrix3d::row(std::size_t i) const
{
    return m_rows[checkedIndex(i, m_rows.size())];
}

void ExcMatrix3d::readObject(const JsonValue& value)
{
    HRM_TRACE();
    readLeadingElements(value, m_rows.begin(), m_rows.end(), readRow);
}

void ExcMatrix3d::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    value.SetArray();
    value.Reserve(static_cast<rapidjson::SizeType>(m_rows.size()), allocator);
    for (const ExcVector3d& row : m_rows) {
        JsonValue element;
        row.writeObject(element, allocator);
        value.PushBack(element, allocator);
    }
}

void ExcTransformation::readObject(const JsonValue& value)
{
    HRM_TRACE();
    JsonObjectReader(value).object(L"affine", m_affine).object(L"translation", m_translation);
}

void ExcTransformation::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    JsonObjectWriter(value, allocator).object(L"affine", m_affine).object(L"translation", m_translation);
}

ExcColor::ExcColor(uint16_t red, uint16_t green, uint16_t blue) : m_hasRGB(true), m_channels{red, green, blue, 255}
{
}

ExcColor::ExcColor(uint16_t red, uint16_t green, uint16_t blue, uint16_t alpha)
    : m_hasRGB(true), m_hasAlpha(true), m_channels{red, green, blue, alpha}
{
}

void ExcColor::readObject(const JsonValue& value)
{
    HRM_TRACE();
    const JsonObjectReader in(value);
    const JsonValue* rgb = in.find(L"rgb");
    m_hasRGB = rgb && rgb->IsArray();
    if (m_hasRGB)
        readLeadingElements(*rgb, m_channels.begin(), m_channels.begin() + 3, readChannel);
    const JsonValue* alpha = in.find(L"alpha");
    m_hasAlpha = alpha && readChannel(*alpha, channel(EChannel::Alpha));
}

void ExcColor::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    if (!m_hasRGB && !m_hasAlpha) {
        value.SetNull();
        return;
    }
    JsonObjectWriter out(value, allocator);
    if (m_hasRGB) {
        JsonValue rgb(rapidjson::kArrayType);
        for (const EChannel c : {EChannel::Red, EChannel::Green, EChannel::Blue})
            rgb.PushBack(static_cast<unsigned>(channel(c)), allocator);
        out.add(L"rgb", std::move(rgb));
    }
    if (m_hasAlpha)
        out.uint32(L"alpha", channel(EChannel::Alpha));
}

template <class E>
void ExcUnitComponent<E>::readObject(const JsonValue& value)
{
    HRM_TRACE();
    JsonObjectReader(value, "ExcUnitComponent").int32(L"dimension", m_dimension).enumeration(L"units", m_units);
}

template <class E>
void ExcUnitComponent<E>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    JsonObjectWriter(value, allocator).int32(L"dimension", m_dimension).enumeration(L"units", m_units);
}

template class ExcUnitComponent<ELengthUnitType>;
template class ExcUnitComponent<EMassUnitType>;
template class ExcUnitComponent<ETimeUnitType>;
template class ExcUnitComponent<ETemperatureUnitType>;

} // namespace hrm
