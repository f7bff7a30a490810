#pragma once

// The member layer: every class states its JSON members once, in one list that serves both
// directions. The list is a member function template over a "Members" that is either a
// MemberReader or a MemberWriter; both offer the same verbs, so the keys are read in the order
// they are written by construction:
//
//   // in the class (header):      HRM_MEMBER_LIST;
//   // in the source:
//   template <class Members>
//   void ExcBlockReference::members(Members& m)
//   {
//       m.string(L"guid", m_guid).uint64(L"block_id", m_blockId).boolean(L"hidden", m_hidden)
//           .object(L"transformation", m_transformation).children(L"refs", m_refs, adder(this, &X::addRef));
//   }
//   HRM_MEMBER_IO(ExcBlockReference, "ExcBlockReference")   // readObject and writeObject
//
// A derived class calls its base's list first (Base::members(m)); the value-is-an-object check
// happens once per chain, in readMembers, and names the most derived class. Where a class reads
// in another order than it writes, or writes a key it never reads, it writes that part by hand
// (`if constexpr (Members::reading)`), beside the list.
//
// The reading rules every verb follows: a member that is missing, or not of the verb's JSON
// kind, leaves its field unchanged, silently. Numbers are strict about their kind where the
// verb says so (int32, uint64, storedDouble); `number` takes any JSON number. Arrays of
// children are appended to, never cleared first.

#include <hrm_api/hrm_api_compression.h>
#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_json.h>
#include <logging/ax_herm_logger.h>

#include "hrm_api_json_members_helpers.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <iterator>
#include <memory>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace hrm {

// ---- Verbs ---------------------------------------------------------------------------------

// How a nested value object takes a member that is not a JSON object: by default the child
// reads whatever the member holds with its own rules (a colour read from null clears its
// flags); OnlyObjects hands it objects only and leaves the field for anything else.
enum class Nested
{
    AnyValue,
    OnlyObjects,
};

namespace members_detail {

template <class T>
using IsJsonObject = std::is_base_of<IJsonObject, T>;

// Fixed-size array slots: how one element becomes one field.
inline bool readSlot(const JsonValue& element, std::wstring& field)
{
    if (!element.IsString())
        return false;
    field = wideString(element);
    return true;
}
inline bool readSlot(const JsonValue& element, double& field)
{
    if (!element.IsNumber())
        return false;
    field = element.GetDouble();
    return true;
}
template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
bool readSlot(const JsonValue& element, E& field)
{
    if (!element.IsString())
        return false;
    field = enumFromJson<E>(element);
    return true;
}
inline bool readSlot(const JsonValue& element, IJsonObject& field)
{
    field.readObject(element);
    return true;
}

inline JsonValue writeSlot(const std::wstring& field, JsonAllocator& allocator) { return jsonString(field, allocator); }
inline JsonValue writeSlot(double field, JsonAllocator&) { return JsonValue(field); }
inline JsonValue writeSlot(int32_t field, JsonAllocator&) { return JsonValue(field); }
inline JsonValue writeSlot(const std::pair<int32_t, int32_t>& field, JsonAllocator& allocator)
{
    JsonValue pair(rapidjson::kArrayType);
    pair.Reserve(2, allocator);
    pair.PushBack(field.first, allocator).PushBack(field.second, allocator);
    return pair;
}
// Words are the library's own constant strings: the document refers to them without a copy.
template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
JsonValue writeSlot(E field, JsonAllocator&)
{
    const std::wstring& word = enumToString(field);
    return JsonValue(rapidjson::StringRef(word.data(), static_cast<rapidjson::SizeType>(word.size())));
}
inline JsonValue writeSlot(const IJsonObject& field, JsonAllocator& allocator)
{
    JsonValue value;
    field.writeObject(value, allocator);
    return value;
}

} // namespace members_detail

// Reads the members of one JSON object. Made by readMembers once the value is known to be an
// object; hand-written readers may make one themselves.
class MemberReader
{
public:
    static constexpr bool reading = true;

    // `object` must be a JSON object and outlive the reader (a temporary does not compile).
    explicit MemberReader(const JsonValue& object) : m_object(object) {}
    explicit MemberReader(const JsonValue&& object) = delete;

    // The member under `key`, or null.
    const JsonValue* find(const wchar_t* key) const
    {
        const auto it = m_object.FindMember(key);
        return it == m_object.MemberEnd() ? nullptr : &it->value;
    }

    // Conditions on writing only: the reader reads the next member whenever it is present.
    MemberReader& writtenIf(bool) { return *this; }

    MemberReader& string(const wchar_t* key, std::wstring& field)
    {
        if (const JsonValue* member = find(key); member && member->IsString())
            field.assign(member->GetString(), member->GetStringLength());
        return *this;
    }
    MemberReader& boolean(const wchar_t* key, bool& field)
    {
        if (const JsonValue* member = find(key); member && member->IsBool())
            field = member->GetBool();
        return *this;
    }
    // A value that fits a signed 32-bit integer.
    MemberReader& int32(const wchar_t* key, int32_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsInt())
            field = member->GetInt();
        return *this;
    }
    // A value that fits an unsigned 64-bit integer (so not -1, and not 7.0).
    MemberReader& uint64(const wchar_t* key, uint64_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsUint64())
            field = member->GetUint64();
        return *this;
    }
    // Any JSON number, integer or real.
    MemberReader& number(const wchar_t* key, double& field)
    {
        if (const JsonValue* member = find(key); member && member->IsNumber())
            field = member->GetDouble();
        return *this;
    }
    // Only a number stored as a double: an integer such as 7 leaves the field as it is.
    MemberReader& storedDouble(const wchar_t* key, double& field)
    {
        if (const JsonValue* member = find(key); member && member->IsDouble())
            field = member->GetDouble();
        return *this;
    }
    // A word of E's table (an unknown word reads by the table's rule).
    template <class E>
    MemberReader& enumeration(const wchar_t* key, E& field)
    {
        if (const JsonValue* member = find(key); member && member->IsString())
            field = enumFromJson<E>(*member);
        return *this;
    }
    // A word that must name `expected`: a word naming another value is logged at the error
    // level with `message`; nothing is stored.
    template <class E>
    MemberReader& expect(const wchar_t* key, E expected, const char* message)
    {
        if (const JsonValue* member = find(key); member && member->IsString() && enumFromJson<E>(*member) != expected)
            HRM_LOG(ax_herm::Error) << message;
        return *this;
    }

    // A value object held by value reads the member itself.
    MemberReader& object(const wchar_t* key, IJsonObject& field, Nested rule = Nested::AnyValue)
    {
        if (const JsonValue* member = find(key); member && (rule == Nested::AnyValue || member->IsObject()))
            field.readObject(*member);
        return *this;
    }
    // A shared child: a present member makes a new T, read from it, that replaces the field.
    template <class T>
    MemberReader& child(const wchar_t* key, std::shared_ptr<T>& field)
    {
        if (const JsonValue* member = find(key))
            field = readNew<T>(*member);
        return *this;
    }
    // A shared child that is written as null when there is none: null takes the child away,
    // any other value makes a new T, read from it, that replaces the field.
    template <class T>
    MemberReader& nullableChild(const wchar_t* key, std::shared_ptr<T>& field)
    {
        if (const JsonValue* member = find(key))
            field = member->IsNull() ? nullptr : readNew<T>(*member);
        return *this;
    }
    // A polymorphic child: a present member replaces the field by what `factory(member)`
    // makes of it (possibly null).
    template <class T, class Factory>
    MemberReader& child(const wchar_t* key, std::shared_ptr<T>& field, Factory factory)
    {
        if (const JsonValue* member = find(key))
            field = factory(*member);
        return *this;
    }
    // An array of shared children: each element becomes a new T, read from it and appended
    // (or handed to `sink`, an adder say).
    template <class T, class Sink>
    MemberReader& children(const wchar_t* key, std::vector<std::shared_ptr<T>>& /*appended by sink*/, Sink sink)
    {
        if (const JsonValue* member = find(key))
            readChildArray<T>(*member, sink);
        return *this;
    }
    template <class T>
    MemberReader& children(const wchar_t* key, std::vector<std::shared_ptr<T>>& field)
    {
        return children(key, field, [&field](std::shared_ptr<T> child) { field.push_back(std::move(child)); });
    }
    // An array of value objects held by value (a vector, or a set): each element is read into a
    // new value and inserted at the end (a set keeps the value it already holds in its place).
    template <class Container, std::enable_if_t<members_detail::IsJsonObject<typename Container::value_type>::value, int> = 0>
    MemberReader& values(const wchar_t* key, Container& field)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        for (const JsonValue& element : member->GetArray()) {
            typename Container::value_type value;
            value.readObject(element);
            field.insert(field.end(), std::move(value));
        }
        return *this;
    }
    // An array of strings: each string element is appended; other elements are skipped.
    MemberReader& strings(const wchar_t* key, std::vector<std::wstring>& field)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        for (const JsonValue& element : member->GetArray()) {
            if (element.IsString())
                field.emplace_back(element.GetString(), element.GetStringLength());
        }
        return *this;
    }
    // An array of strings that replaces the field only when every element is a string.
    MemberReader& allStrings(const wchar_t* key, std::vector<std::wstring>& field)
    {
        if (const JsonValue* member = onlyStrings(key)) {
            field.clear();
            for (const JsonValue& element : member->GetArray())
                field.emplace_back(element.GetString(), element.GetStringLength());
        }
        return *this;
    }
    // A set of enumeration values as an array of words, replacing the field only when every
    // element is a string.
    template <class E>
    MemberReader& enumerations(const wchar_t* key, std::set<E>& field)
    {
        if (const JsonValue* member = onlyStrings(key)) {
            field.clear();
            for (const JsonValue& element : member->GetArray())
                field.insert(enumFromJson<E>(element));
        }
        return *this;
    }
    // An array of 32-bit integers: each such element is appended; other elements are skipped.
    MemberReader& ints(const wchar_t* key, std::vector<int32_t>& field)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        for (const JsonValue& element : member->GetArray()) {
            if (element.IsInt())
                field.push_back(element.GetInt());
        }
        return *this;
    }

    // An array of [i, j] pairs of 32-bit integers, appended to the field. An item that is an
    // array of another size than two is logged at the warning level with `message` and skipped;
    // any other item that is not two 32-bit integers is skipped silently.
    MemberReader& intPairs(const wchar_t* key, std::vector<std::pair<int32_t, int32_t>>& field, const char* message)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        for (const JsonValue& item : member->GetArray()) {
            if (!item.IsArray())
                continue;
            if (item.Size() != 2) {
                HRM_LOG(ax_herm::Warning) << message;
                continue;
            }
            if (item[0].IsInt() && item[1].IsInt())
                field.emplace_back(item[0].GetInt(), item[1].GetInt());
        }
        return *this;
    }

    // An array of exactly N elements, one per field. An array of another size is logged at the
    // warning level with `message` and leaves every field. Slot rules: a number slot takes any
    // number and becomes 0 for anything else; a string or enumeration slot keeps its value for
    // anything but a string; a value-object slot reads the element itself. A member that is no
    // array is skipped silently.
    template <class T, std::size_t N>
    MemberReader& exactly(const wchar_t* key, std::array<T, N>& fields, const char* message)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        if (member->Size() != N) {
            HRM_LOG(ax_herm::Warning) << message;
            return *this;
        }
        for (std::size_t i = 0; i < N; ++i) {
            if (!members_detail::readSlot((*member)[static_cast<rapidjson::SizeType>(i)], fields[i])) {
                if constexpr (std::is_same_v<T, double>)
                    fields[i] = 0.0;
            }
        }
        return *this;
    }
    // The leading elements of an array, at most N, one per field in order; reading stops at the
    // first element the slot refuses (a non-number for a number, a non-string for a string).
    template <class T, std::size_t N>
    MemberReader& leading(const wchar_t* key, std::array<T, N>& fields)
    {
        if (const JsonValue* member = find(key))
            readLeadingElements(*member, fields.begin(), fields.end(),
                                [](const JsonValue& element, T& field) { return members_detail::readSlot(element, field); });
        return *this;
    }

    // The first elements of an array, at most N, one per field in order: an element the slot
    // refuses leaves its field and the next element goes on (where `leading` stops); fields past
    // the end of a shorter array keep their values, elements past N are ignored.
    template <class T, std::size_t N>
    MemberReader& upTo(const wchar_t* key, std::array<T, N>& fields)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        const rapidjson::SizeType count = std::min(member->Size(), static_cast<rapidjson::SizeType>(N));
        for (rapidjson::SizeType i = 0; i < count; ++i)
            members_detail::readSlot((*member)[i], fields[i]);
        return *this;
    }

    // A value the object may lack, with the flag that says whether it has it: written only while
    // `present` holds. A member of the field's kind (a slot's rule: any number for a double, a
    // string for a string) sets the field and `present`; anything else leaves both.
    template <class T>
    MemberReader& optional(const wchar_t* key, T& field, bool& present)
    {
        if (const JsonValue* member = find(key); member && members_detail::readSlot(*member, field))
            present = true;
        return *this;
    }

    // A nested object that exists exactly while `present` holds, its members stated by
    // `inner(members)`: reading sets `present` to whether the member is a JSON object and, when
    // it is, reads the inner members from it.
    template <class Inner>
    MemberReader& section(const wchar_t* key, bool& present, Inner inner)
    {
        const JsonValue* member = find(key);
        present = member && member->IsObject();
        if (present) {
            MemberReader reader(*member);
            inner(reader);
        }
        return *this;
    }

    // A packed array: the little-endian bytes of 32-bit values as one Base64 string. The
    // decoded byte count is cut down to whole values; a member that is no string is skipped.
    template <class T>
    MemberReader& packed(const wchar_t* key, std::vector<T>& field)
    {
        static_assert(sizeof(T) == 4, "packed arrays hold 32-bit values");
        if (const JsonValue* member = find(key); member && member->IsString())
            Base64::decode(member->GetString(), member->GetStringLength(), field);
        return *this;
    }

private:
    // The member under `key` when it is an array of strings only.
    const JsonValue* onlyStrings(const wchar_t* key) const
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return nullptr;
        for (const JsonValue& element : member->GetArray()) {
            if (!element.IsString())
                return nullptr;
        }
        return member;
    }

    const JsonValue& m_object;
};

// Adds members to one JSON object under constant keys (string literals, not copied).
class MemberWriter
{
public:
    static constexpr bool reading = false;

    // `object` must already be a JSON object.
    MemberWriter(JsonValue& object, JsonAllocator& allocator) : m_object(object), m_allocator(allocator) {}

    JsonAllocator& allocator() { return m_allocator; }

    // The next member is written only when `condition` holds.
    MemberWriter& writtenIf(bool condition)
    {
        m_skipNext = !condition;
        return *this;
    }

    MemberWriter& string(const wchar_t* key, const std::wstring& field) { return add(key, jsonString(field, m_allocator)); }
    MemberWriter& boolean(const wchar_t* key, bool field) { return add(key, JsonValue(field)); }
    MemberWriter& int32(const wchar_t* key, int32_t field) { return add(key, JsonValue(field)); }
    MemberWriter& uint64(const wchar_t* key, uint64_t field) { return add(key, JsonValue(field)); }
    MemberWriter& number(const wchar_t* key, double field) { return add(key, JsonValue(field)); }
    MemberWriter& storedDouble(const wchar_t* key, double field) { return add(key, JsonValue(field)); }
    template <class E>
    MemberWriter& enumeration(const wchar_t* key, E field)
    {
        return add(key, members_detail::writeSlot(field, m_allocator));
    }
    template <class E>
    MemberWriter& expect(const wchar_t* key, E expected, const char*)
    {
        return enumeration(key, expected);
    }

    MemberWriter& object(const wchar_t* key, const IJsonObject& field, Nested = Nested::AnyValue)
    {
        return add(key, members_detail::writeSlot(field, m_allocator));
    }
    // A shared child is written only when it is not null.
    template <class T>
    MemberWriter& child(const wchar_t* key, const std::shared_ptr<T>& field)
    {
        if (!field)
            m_skipNext = true;
        return add(key, [&] { return members_detail::writeSlot(*field, m_allocator); });
    }
    // Null when there is no child.
    template <class T>
    MemberWriter& nullableChild(const wchar_t* key, const std::shared_ptr<T>& field)
    {
        return add(key, [&] { return field ? members_detail::writeSlot(*field, m_allocator) : JsonValue(); });
    }
    template <class T, class Factory>
    MemberWriter& child(const wchar_t* key, const std::shared_ptr<T>& field, Factory)
    {
        return child(key, field);
    }
    template <class T, class Sink>
    MemberWriter& children(const wchar_t* key, const std::vector<std::shared_ptr<T>>& field, Sink)
    {
        return children(key, field);
    }
    template <class T>
    MemberWriter& children(const wchar_t* key, const std::vector<std::shared_ptr<T>>& field)
    {
        return add(key, [&] {
            JsonValue array;
            writeChildArray(field, array, m_allocator);
            return array;
        });
    }
    template <class Container, std::enable_if_t<members_detail::IsJsonObject<typename Container::value_type>::value, int> = 0>
    MemberWriter& values(const wchar_t* key, const Container& field)
    {
        return array(key, field);
    }
    MemberWriter& strings(const wchar_t* key, const std::vector<std::wstring>& field) { return array(key, field); }
    MemberWriter& allStrings(const wchar_t* key, const std::vector<std::wstring>& field) { return array(key, field); }
    // The words in ascending order of value.
    template <class E>
    MemberWriter& enumerations(const wchar_t* key, const std::set<E>& field)
    {
        return array(key, field);
    }
    MemberWriter& ints(const wchar_t* key, const std::vector<int32_t>& field) { return array(key, field); }

    MemberWriter& intPairs(const wchar_t* key, const std::vector<std::pair<int32_t, int32_t>>& field, const char*)
    {
        return array(key, field);
    }

    template <class T, std::size_t N>
    MemberWriter& exactly(const wchar_t* key, const std::array<T, N>& fields, const char*)
    {
        return array(key, fields);
    }
    template <class T, std::size_t N>
    MemberWriter& leading(const wchar_t* key, const std::array<T, N>& fields)
    {
        return array(key, fields);
    }

    template <class T, std::size_t N>
    MemberWriter& upTo(const wchar_t* key, const std::array<T, N>& fields)
    {
        return array(key, fields);
    }
    template <class T>
    MemberWriter& optional(const wchar_t* key, const T& field, bool present)
    {
        if (!present)
            m_skipNext = true;
        return add(key, [&] { return members_detail::writeSlot(field, m_allocator); });
    }
    template <class Inner>
    MemberWriter& section(const wchar_t* key, bool present, Inner inner)
    {
        if (!present)
            m_skipNext = true;
        return add(key, [&] {
            JsonValue object(rapidjson::kObjectType);
            MemberWriter writer(object, m_allocator);
            inner(writer);
            return object;
        });
    }

    // A packed array is written only when it holds values: Base64 of its little-endian bytes,
    // encoded straight into the document's memory. The value refers to that memory as a
    // constant string, which lives as long as that memory: CopyFrom into another document shares
    // it rather than copying it.
    template <class T>
    MemberWriter& packed(const wchar_t* key, const std::vector<T>& field)
    {
        static_assert(sizeof(T) == 4, "packed arrays hold 32-bit values");
        if (field.empty())
            m_skipNext = true;
        return add(key, [&] {
            const size_t bytes = field.size() * sizeof(T);
            auto* text = static_cast<wchar_t*>(m_allocator.Malloc(Base64::encodedSize(bytes) * sizeof(wchar_t)));
            const size_t length = Base64::encodeWordsInto(text, field.data(), field.size());
            return JsonValue(rapidjson::StringRef(text, static_cast<rapidjson::SizeType>(length)));
        });
    }

    // Adds `member` under `key` (unless writtenIf said otherwise).
    MemberWriter& add(const wchar_t* key, JsonValue&& member)
    {
        return add(key, [&] { return std::move(member); });
    }

private:
    // Adds the value `make()` returns, made only when the member is written.
    template <class Make, std::enable_if_t<std::is_invocable_r_v<JsonValue, Make>, int> = 0>
    MemberWriter& add(const wchar_t* key, Make make)
    {
        if (m_skipNext) {
            m_skipNext = false;
            return *this;
        }
        JsonValue member = make();
        m_object.AddMember(rapidjson::StringRef(key), member, m_allocator);
        return *this;
    }

    // An array with one element per item, each written by its slot rule.
    template <class Range>
    MemberWriter& array(const wchar_t* key, const Range& items)
    {
        return add(key, [&] {
            JsonValue array(rapidjson::kArrayType);
            array.Reserve(static_cast<rapidjson::SizeType>(std::size(items)), m_allocator);
            for (const auto& item : items)
                array.PushBack(members_detail::writeSlot(item, m_allocator), m_allocator);
            return array;
        });
    }

    JsonValue& m_object;
    JsonAllocator& m_allocator;
    bool m_skipNext = false;
};

// The reader of a value that must be a JSON object: anything else throws
// std::invalid_argument(message).
inline MemberReader strictReader(const JsonValue& value, const char* message)
{
    if (!value.IsObject())
        throw std::invalid_argument(message);
    return MemberReader(value);
}

// A string member that must be present: anything else throws std::invalid_argument(message).
inline std::wstring requiredString(const MemberReader& in, const wchar_t* key, const char* message)
{
    const JsonValue* member = in.find(key);
    if (!member || !member->IsString())
        throw std::invalid_argument(message);
    return wideString(*member);
}

// Whether two objects write the same JSON (objects compare member by member, in any order).
inline bool writeSameJson(const IJsonObject& a, const IJsonObject& b)
{
    JsonDocument document;
    JsonValue first;
    JsonValue second;
    a.writeObject(first, document.GetAllocator());
    b.writeObject(second, document.GetAllocator());
    return first == second;
}

// ---- Entry points ----------------------------------------------------------------------------

// Opens a class's member list (declared with HRM_MEMBER_LIST) to the entry points.
class MemberAccess
{
public:
    template <class T, class Members>
    static void members(T& object, Members& m)
    {
        object.members(m);
    }
};

// Reads `value` into `object` through its member list. A value that is not an object changes
// nothing and is logged at the error level as "<className> object should have a JSON object
// type." (silently when className is null).
template <class T>
void readMembers(T& object, const JsonValue& value, const char* className)
{
    if (!value.IsObject()) {
        if (className)
            HRM_LOG(ax_herm::Error) << className << " object should have a JSON object type.";
        return;
    }
    MemberReader reader(value);
    MemberAccess::members(object, reader);
}

// The same, for a class that reports a value that is not an object in words of its own:
// `message` at `level`.
template <class T>
void readMembers(T& object, const JsonValue& value, ax_herm::LogLevel level, const char* message)
{
    if (!value.IsObject()) {
        HRM_LOG(level) << message;
        return;
    }
    MemberReader reader(value);
    MemberAccess::members(object, reader);
}

// Writes `object` through its member list, turning `value` into an object first if it is not
// one already.
template <class T>
void writeMembers(const T& object, JsonValue& value, JsonAllocator& allocator)
{
    if (!value.IsObject())
        value.SetObject();
    MemberWriter writer(value, allocator);
    // The writer only reads the fields; the list is one function for both directions.
    MemberAccess::members(const_cast<T&>(object), writer);
}

} // namespace hrm

// Defines T::readObject and T::writeObject from T's member list, and instantiates the list for
// both directions (so that classes derived from T in other sources can call it). `className`
// names T in the not-an-object message; nullptr reads a non-object silently.
#define HRM_MEMBER_IO(T, className) HRM_MEMBER_IO_REPORTING(T, className)

// The same, where a value that is not an object is reported in the class's own words:
// HRM_MEMBER_IO_REPORTING(T, ax_herm::Warning, "T::readObject: input JsonValue is not an object").
#define HRM_MEMBER_IO_REPORTING(T, ...)                                                    \
    template void T::members<::hrm::MemberReader>(::hrm::MemberReader&);                   \
    template void T::members<::hrm::MemberWriter>(::hrm::MemberWriter&);                   \
    void T::readObject(const ::hrm::JsonValue& value)                                      \
    {                                                                                      \
        HRM_TRACE();                                                                       \
        ::hrm::readMembers(*this, value, __VA_ARGS__);                                     \
    }                                                                                      \
    void T::writeObject(::hrm::JsonValue& value, ::hrm::JsonAllocator& allocator) const    \
    {                                                                                      \
        HRM_TRACE();                                                                       \
        ::hrm::writeMembers(*this, value, allocator);                                      \
    }

// T::operator==: the same JSON (what does not travel does not count).
#define HRM_EQUALITY_AS_JSON(T)                               \
    bool T::operator==(const T& other) const                  \
    {                                                         \
        return ::hrm::writeSameJson(*this, other);            \
    }

// T::add(child), which appends to `list` and refuses a null child with the warning
// "T: attempt to add null <what> object.".
#define HRM_CHILD_ADDER(T, Child, add, list, what)                                                \
    void T::add(const std::shared_ptr<Child>& child)                                              \
    {                                                                                             \
        ::hrm::appendChild(list, child, #T ": attempt to add null " what " object.");             \
    }
