#pragma once

// The key table of an options class: its JSON keys in the order they are written and read,
// each bound to the field that holds it. A class defines its table once, in its static
// keyTable(), and everything it reads and writes follows from it:
//
//   const OptionsKeyTable& OptionsMechanical::keyTable()
//   {
//       static const OptionsKeyTable table = OptionsKeys<OptionsMechanical>("OptionsMechanical")
//           .key(L"feature_tolerance_processing_mode", &OptionsMechanical::m_featureToleranceProcessingMode)
//           .key(L"misc_data_processing_mode", &OptionsMechanical::m_miscDataProcessingMode);
//       return table;
//   }
//
// The kind of a field chooses its member rule (hrm_api_json_members.h): std::wstring a
// string, bool a flag, double a stored double, int32_t a 32-bit integer, an enumeration its
// word, a std::set of enumerations an array of words, an IJsonObject (a colour) an object.

#include "hrm_api/hrm_api_json_members.h"

#include <functional>
#include <set>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace hrm {

namespace keys {

inline void read(JsonObjectReader& in, const wchar_t* key, std::wstring& field) { in.string(key, field); }
inline void read(JsonObjectReader& in, const wchar_t* key, bool& field) { in.boolean(key, field); }
inline void read(JsonObjectReader& in, const wchar_t* key, double& field) { in.real(key, field); }
inline void read(JsonObjectReader& in, const wchar_t* key, int32_t& field) { in.int32(key, field); }
// Only an object reaches the field's own reader: any other member leaves the field as it is.
inline void read(JsonObjectReader& in, const wchar_t* key, IJsonObject& field)
{
    if (const JsonValue* member = in.find(key); member && member->IsObject())
        field.readObject(*member);
}
template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
void read(JsonObjectReader& in, const wchar_t* key, E& field)
{
    in.enumeration(key, field);
}
template <class E>
void read(JsonObjectReader& in, const wchar_t* key, std::set<E>& field)
{
    in.enumerations(key, field);
}

inline void write(JsonObjectWriter& out, const wchar_t* key, const std::wstring& field) { out.string(key, field); }
inline void write(JsonObjectWriter& out, const wchar_t* key, bool field) { out.boolean(key, field); }
inline void write(JsonObjectWriter& out, const wchar_t* key, double field) { out.real(key, field); }
inline void write(JsonObjectWriter& out, const wchar_t* key, int32_t field) { out.int32(key, field); }
inline void write(JsonObjectWriter& out, const wchar_t* key, const IJsonObject& field) { out.object(key, field); }
template <class E, std::enable_if_t<std::is_enum_v<E>, int> = 0>
void write(JsonObjectWriter& out, const wchar_t* key, E field)
{
    out.enumeration(key, field);
}
template <class E>
void write(JsonObjectWriter& out, const wchar_t* key, const std::set<E>& field)
{
    out.enumerations(key, field);
}

} // namespace keys

class OptionsKeyTable
{
public:
    // One key, over any object of the table's class.
    struct Key
    {
        std::function<void(JsonObjectReader&, IJsonObject&)> read;
        std::function<void(JsonObjectWriter&, const IJsonObject&)> write;
    };

    OptionsKeyTable(const char* className, std::vector<Key> keys) : m_className(className), m_keys(std::move(keys)) {}

    // For "<className> object should have a JSON object type."
    const char* className() const { return m_className; }

    void read(JsonObjectReader& in, IJsonObject& object) const
    {
        for (const Key& key : m_keys)
            key.read(in, object);
    }
    void write(JsonObjectWriter& out, const IJsonObject& object) const
    {
        for (const Key& key : m_keys)
            key.write(out, object);
    }

private:
    const char* m_className;
    std::vector<Key> m_keys;
};

// Builds the table of class `Options`, key by key.
template <class Options>
class OptionsKeys
{
public:
    explicit OptionsKeys(const char* className) : m_className(className) {}

    // `field` may belong to Options or to one of its bases.
    template <class T, class Owner>
    OptionsKeys& key(const wchar_t* name, T Owner::*field)
    {
        T Options::*member = field;
        m_keys.push_back({[name, member](JsonObjectReader& in, IJsonObject& object) {
                              keys::read(in, name, static_cast<Options&>(object).*member);
                          },
                          [name, member](JsonObjectWriter& out, const IJsonObject& object) {
                              keys::write(out, name, static_cast<const Options&>(object).*member);
                          }});
        return *this;
    }

    operator OptionsKeyTable() const { return OptionsKeyTable(m_className, m_keys); }

private:
    const char* m_className;
    std::vector<OptionsKeyTable::Key> m_keys;
};

// The reader of a command's options object, which must be an object: anything else throws
// std::invalid_argument("!object.IsObject()").
inline JsonObjectReader strictOptionsReader(const JsonValue& value)
{
    if (!value.IsObject())
        throw std::invalid_argument("!object.IsObject()");
    return JsonObjectReader(value);
}

// A string member that must be present: anything else throws std::invalid_argument(message).
inline std::wstring requiredString(const JsonObjectReader& in, const wchar_t* key, const char* message)
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

} // namespace hrm
