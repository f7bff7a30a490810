#pragma once

// The small helpers of the member layer (hrm_api_json_members.h): strings, enumerations, arrays
// of doubles and of children, shared by its verbs and by the few readers written by hand.

#include <hrm_api/hrm_api_enum.h>
#include <hrm_api/hrm_api_json.h>
#include <logging/ax_herm_logger.h>

#include <istream>
#include <iterator>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace hrm {

// ---- Small helpers shared by the verbs and by hand-written readers -------------------------

// A JSON string value copied from `text` into `allocator`.
inline JsonValue jsonString(const std::wstring& text, JsonAllocator& allocator)
{
    return JsonValue(text.data(), static_cast<rapidjson::SizeType>(text.size()), allocator);
}

// The wide string held by a JSON string value.
inline std::wstring wideString(const JsonValue& value)
{
    return std::wstring(value.GetString(), value.GetStringLength());
}

// The value of a JSON string value in E's table, without allocating.
template <class E>
E enumFromJson(const JsonValue& value)
{
    return enumFromWord<E>(value.GetString(), value.GetStringLength());
}

// Parses the whole of `in` as the document of a serialisable object: the root must be a JSON
// object; anything else (a parse error included) throws std::invalid_argument("Invalid json document").
inline void readObjectDocument(std::wistream& in, JsonDocument& document)
{
    JsonTextIO::read(in, document);
    if (document.HasParseError() || !document.IsObject())
        throw std::invalid_argument("Invalid json document");
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

// A new T read from `value` by T itself (so a value of the wrong kind gives a default T and
// T's own log line).
template <class T>
std::shared_ptr<T> readNew(const JsonValue& value)
{
    auto child = std::make_shared<T>();
    child->readObject(value);
    return child;
}

// Appends `child` to `list`; a null child is refused with a warning and adds nothing.
template <class T>
void appendChild(std::vector<std::shared_ptr<T>>& list, std::shared_ptr<T> child, const char* nullMessage)
{
    if (!child) {
        HRM_LOG(ax_herm::Warning) << nullMessage;
        return;
    }
    list.push_back(std::move(child));
}

// The sink that hands each child read from an array to an adder of `object` (so that the
// adder's own rules, an id index say, apply while reading).
template <class Object, class T>
auto adder(Object* object, void (Object::*add)(const std::shared_ptr<T>&))
{
    return [object, add](std::shared_ptr<T> child) { (object->*add)(child); };
}

// The array form of a list (or set) of shared children: one element per child, each written by
// the child itself; null children are left out.
template <class Children>
void writeChildArray(const Children& children, JsonValue& array, JsonAllocator& allocator)
{
    array.SetArray();
    array.Reserve(static_cast<rapidjson::SizeType>(children.size()), allocator);
    for (const auto& child : children) {
        if (!child)
            continue;
        JsonValue element;
        child->writeObject(element, allocator);
        array.PushBack(element, allocator);
    }
}

// Reads each element of `array` into a new T and hands it to `sink`. A value that is not an
// array reads nothing.
template <class T, class Sink>
void readChildArray(const JsonValue& array, Sink&& sink)
{
    if (!array.IsArray())
        return;
    for (const JsonValue& element : array.GetArray())
        sink(readNew<T>(element));
}

} // namespace hrm
