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

template <class Members>
void ExcTransformation::members(Members& m)
{
    m.object(L"affine", m_affine).object(L"translation", m_translation);
}
HRM_MEMBER_IO(ExcTransformation, nullptr)

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
    // The flags follow the keys that are present: a value that is no object clears both.
    m_hasRGB = m_hasAlpha = false;
    if (!value.IsObject())
        return;
    const MemberReader in(value);
    if (const JsonValue* rgb = in.find(L"rgb"); rgb && rgb->IsArray()) {
        m_hasRGB = true;
        readLeadingElements(*rgb, m_channels.begin(), m_channels.begin() + 3, readChannel);
    }
    if (const JsonValue* alpha = in.find(L"alpha"))
        m_hasAlpha = readChannel(*alpha, channel(EChannel::Alpha));
}

void ExcColor::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    if (!m_hasRGB && !m_hasAlpha) {
        value.SetNull();
        return;
    }
    value.SetObject();
    if (m_hasRGB) {
        JsonValue rgb(rapidjson::kArrayType);
        for (const EChannel c : {EChannel::Red, EChannel::Green, EChannel::Blue})
            rgb.PushBack(static_cast<unsigned>(channel(c)), allocator);
        value.AddMember(L"rgb", rgb, allocator);
    }
    if (m_hasAlpha)
        value.AddMember(L"alpha", static_cast<unsigned>(channel(EChannel::Alpha)), allocator);
}

template <class E>
template <class Members>
void ExcUnitComponent<E>::members(Members& m)
{
    m.int32(L"dimension", m_dimension).enumeration(L"units", m_units);
}

template <class E>
void ExcUnitComponent<E>::readObject(const JsonValue& value)
{
    HRM_TRACE();
    readMembers(*this, value, "ExcUnitComponent");
}

template <class E>
void ExcUnitComponent<E>::writeObject(JsonValue& value, JsonAllocator& allocator) const
{
    HRM_TRACE();
    writeMembers(*this, value, allocator);
}

template class ExcUnitComponent<ELengthUnitType>;
template class ExcUnitComponent<EMassUnitType>;
template class ExcUnitComponent<ETimeUnitType>;
template class ExcUnitComponent<ETemperatureUnitType>;

} // namespace hrm
