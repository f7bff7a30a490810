#pragma once

// Reading and writing the members of a JSON object, one line per member.
//
//   void ExcThing::writeObject(JsonValue& value, JsonAllocator& allocator) const
//   {
//       JsonObjectWriter(value, allocator).string(L"name", m_name).uint64(L"id", m_id)
//           .object(L"color", m_color);
//   }
//   void ExcThing::readObject(const JsonValue& value)
//   {
//       JsonObjectReader in(value, "ExcThing"); // logs "ExcThing object should have a JSON object type."
//       in.string(L"name", m_name).uint64(L"id", m_id).object(L"color", m_color);
//   }
//
// The rules every member follows:
// - a member is written under a constant key (not copied: keys are string literals);
// - on reading, a member that is missing or not of the expected JSON kind leaves the field
//   unchanged, silently; numbers are strict about their kind: int32 wants a value that fits a
//   signed 32-bit integer, uint64 an unsigned 64-bit one, real a value stored as a double;
// - when the value is not an object at all, every read is a no-op (and the reader logs one
//   error line if it was given a class name).
//
// Fixed-size arrays (vectors, colour channels, matrix rows) are read element by element with
// readLeadingElements and an element rule such as readStoredDouble; arrays of doubles are
// written with jsonDoubles. Lists of strings and sets of enumerations travel as arrays of
// strings (strings, enumerations); on reading, only an array of strings replaces the field.

#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_json.h>
#include <logging/ax_herm_logger.h>

#include <cstdint>
#include <stdexcept>
#include <iterator>
#include <memory>
#include <set>
#include <string>
#include <vector>

namespace hrm {

// A JSON string value copied from `text` into `allocator`.
inline JsonValue jsonString(const std::wstring& text, JsonAllocator& allocator)
{
    return JsonValue(text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator);
}

// Parses the whole of `in` as the document of a serialisable object: the root must be a JSON
// object; anything else (a parse error included) throws std::invalid_argument("Invalid json document").
inline void readObjectDocument(std::wistream& in, JsonDocument& document)
{
    JsonTextIO::read(in, document);
    if (document.HasParseError() || !document.IsObject())
        throw std::invalid_argument("Invalid json document");
}

// The wide string held by a JSON string value.
inline std::wstring wideString(const JsonValue& value)
{
    return std::wstring(value.GetString(), value.GetStringLength());
}

// A JSON array of the doubles in [first, last), each stored as a double (1.0 stays 1.0).
template <class Iterator>
JsonValue jsonDoubles(Iterator first, Iterator last, JsonAllocator& allocator)
{
    JsonValue array(rapidjson::kArrayType);
    array.Reserve(static_cast<rapidjson::SizeType>(std::distance(first, last)), allocator);
    for (; first != last; ++first)
        array.PushBack(JsonValue(static_cast<double>(*first)), allocator);
    return array;
}

// Element rule: stores an element held as a double in `field` and answers true; an element of
// any other kind (an integer such as 7 included) leaves the field and answers false.
inline bool readStoredDouble(const JsonValue& element, double& field)
{
    if (!element.IsDouble())
        return false;
    field = element.GetDouble();
    return true;
}

// Reads the leading elements of `array` into the fields [first, last) in order, with
// `readElement(element, field)` deciding each one. Stops at the end of the array, after the
// last field, or at the first element the rule refuses; later fields keep their values.
// A value that is not an array reads nothing.
template <class Iterator, class ReadElement>
void readLeadingElements(const JsonValue& array, Iterator first, Iterator last, ReadElement readElement)
{
    if (!array.IsArray())
        return;
    for (auto element = array.Begin(); element != array.End() && first != last; ++element, ++first) {
        if (!readElement(*element, *first))
            return;
    }
}

class JsonObjectWriter
{
public:
    // Makes `value` an empty object.
    JsonObjectWriter(JsonValue& value, JsonAllocator& allocator) : m_value(value), m_allocator(allocator)
    {
        m_value.SetObject();
    }

    JsonObjectWriter& string(const wchar_t* key, const std::wstring& text)
    {
        return add(key, jsonString(text, m_allocator));
    }
    JsonObjectWriter& boolean(const wchar_t* key, bool flag) { return add(key, JsonValue(flag)); }
    JsonObjectWriter& int32(const wchar_t* key, int32_t number) { return add(key, JsonValue(number)); }
    JsonObjectWriter& uint32(const wchar_t* key, uint32_t number) { return add(key, JsonValue(number)); }
    JsonObjectWriter& int64(const wchar_t* key, int64_t number) { return add(key, JsonValue(number)); }
    JsonObjectWriter& uint64(const wchar_t* key, uint64_t number) { return add(key, JsonValue(number)); }
    JsonObjectWriter& real(const wchar_t* key, double number) { return add(key, JsonValue(number)); }

    template <class E>
    JsonObjectWriter& enumeration(const wchar_t* key, E value)
    {
        return string(key, enumToString(value));
    }

    // The child writes itself into a new member value.
    JsonObjectWriter& object(const wchar_t* key, const IJsonObject& child)
    {
        JsonValue member;
        child.writeObject(member, m_allocator);
        return add(key, std::move(member));
    }

    // An array with one element per child, each written by the child itself.
    template <class T>
    JsonObjectWriter& objects(const wchar_t* key, const std::vector<std::shared_ptr<T>>& children)
    {
        JsonValue array(rapidjson::kArrayType);
        array.Reserve(static_cast<rapidjson::SizeType>(children.size()), m_allocator);
        for (const auto& child : children) {
            JsonValue element;
            if (child)
                child->writeObject(element, m_allocator);
            array.PushBack(element, m_allocator);
        }
        return add(key, std::move(array));
    }

    // An array of strings, one per element.
    JsonObjectWriter& strings(const wchar_t* key, const std::vector<std::wstring>& texts)
    {
        const auto same = [](const std::wstring& text) -> const std::wstring& { return text; };
        return add(key, stringArray(texts.begin(), texts.end(), same));
    }

    // An array with the word of each value, in ascending order of value.
    template <class E>
    JsonObjectWriter& enumerations(const wchar_t* key, const std::set<E>& values)
    {
        const auto word = [](E value) -> const std::wstring& { return enumToString(value); };
        return add(key, stringArray(values.begin(), values.end(), word));
    }

    JsonObjectWriter& add(const wchar_t* key, JsonValue&& member)
    {
        m_value.AddMember(rapidjson::StringRef(key), member, m_allocator);
        return *this;
    }

    JsonAllocator& allocator() { return m_allocator; }

private:
    template <class Iterator, class ToText>
    JsonValue stringArray(Iterator first, Iterator last, ToText toText)
    {
        JsonValue array(rapidjson::kArrayType);
        array.Reserve(static_cast<rapidjson::SizeType>(std::distance(first, last)), m_allocator);
        for (; first != last; ++first)
            array.PushBack(jsonString(toText(*first), m_allocator), m_allocator);
        return array;
    }

    JsonValue& m_value;
    JsonAllocator& m_allocator;
};

class JsonObjectReader
{
public:
    // Reads members of `value`; when it is not an object, nothing is read, silently.
    explicit JsonObjectReader(const JsonValue& value) : m_value(value.IsObject() ? &value : nullptr) {}

    // The same, but a value that is not an object is reported at the error level as
    // "<className> object should have a JSON object type."
    JsonObjectReader(const JsonValue& value, const char* className) : JsonObjectReader(value)
    {
        if (!m_value)
            HRM_LOG(ax_herm::Error) << className << " object should have a JSON object type.";
    }

    explicit operator bool() const { return m_value != nullptr; }

    // The member under `key`, or null when the value is not an object or has no such member.
    const JsonValue* find(const wchar_t* key) const
    {
        if (!m_value)
            return nullptr;
        const auto it = m_value->FindMember(key);
        return it == m_value->MemberEnd() ? nullptr : &it->value;
    }

    JsonObjectReader& string(const wchar_t* key, std::wstring& field)
    {
        if (const JsonValue* member = find(key); member && member->IsString())
            field = wideString(*member);
        return *this;
    }
    JsonObjectReader& boolean(const wchar_t* key, bool& field)
    {
        if (const JsonValue* member = find(key); member && member->IsBool())
            field = member->GetBool();
        return *this;
    }
    JsonObjectReader& int32(const wchar_t* key, int32_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsInt())
            field = member->GetInt();
        return *this;
    }
    JsonObjectReader& uint32(const wchar_t* key, uint32_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsUint())
            field = member->GetUint();
        return *this;
    }
    JsonObjectReader& int64(const wchar_t* key, int64_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsInt64())
            field = member->GetInt64();
        return *this;
    }
    JsonObjectReader& uint64(const wchar_t* key, uint64_t& field)
    {
        if (const JsonValue* member = find(key); member && member->IsUint64())
            field = member->GetUint64();
        return *this;
    }
    // Only a number stored as a double: an integer literal such as 7 leaves the field as it is.
    JsonObjectReader& real(const wchar_t* key, double& field)
    {
        if (const JsonValue* member = find(key); member && member->IsDouble())
            field = member->GetDouble();
        return *this;
    }

    template <class E>
    JsonObjectReader& enumeration(const wchar_t* key, E& field)
    {
        if (const JsonValue* member = find(key); member && member->IsString())
            field = enumFromString<E>(wideString(*member));
        return *this;
    }

    // The child reads itself from the member, whatever its JSON kind: the child's own reader
    // decides what it accepts.
    JsonObjectReader& object(const wchar_t* key, IJsonObject& child)
    {
        if (const JsonValue* member = find(key))
            child.readObject(*member);
        return *this;
    }

    // Appends one new child per array element, each read by the child itself.
    template <class T>
    JsonObjectReader& objects(const wchar_t* key, std::vector<std::shared_ptr<T>>& children)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        children.reserve(children.size() + member->Size());
        for (const JsonValue& element : member->GetArray()) {
            auto child = std::make_shared<T>();
            child->readObject(element);
            children.push_back(std::move(child));
        }
        return *this;
    }

    // An array whose elements are all strings replaces `field`; anything else leaves it.
    JsonObjectReader& strings(const wchar_t* key, std::vector<std::wstring>& field)
    {
        return stringArray(key, [&field](const JsonValue& array) {
            field.clear();
            for (const JsonValue& element : array.GetArray())
                field.push_back(wideString(element));
        });
    }

    // An array whose elements are all strings replaces `field` by the values of those words;
    // anything else (another kind, or an array holding a non-string) leaves it.
    template <class E>
    JsonObjectReader& enumerations(const wchar_t* key, std::set<E>& field)
    {
        return stringArray(key, [&field](const JsonValue& array) {
            field.clear();
            for (const JsonValue& element : array.GetArray())
                field.insert(enumFromString<E>(wideString(element)));
        });
    }

private:
    // Hands the member to `store` when it is an array of strings only.
    template <class Store>
    JsonObjectReader& stringArray(const wchar_t* key, Store store)
    {
        const JsonValue* member = find(key);
        if (!member || !member->IsArray())
            return *this;
        for (const JsonValue& element : member->GetArray()) {
            if (!element.IsString())
                return *this;
        }
        store(*member);
        return *this;
    }

    const JsonValue* m_value;
};

} // namespace hrm
