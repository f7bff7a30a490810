#pragma once

#include <hrm_api/hrm_api_export.h>

#include <iosfwd>
#include <string>
#include <type_traits>

namespace mp {

/// A whole document that reads and writes itself as JSON text on wide streams.
class HRM_API ISerializable
{
public:
    virtual ~ISerializable() = default;
    /// Writes the document as JSON text to `out`.
    virtual void writeObject(std::wostream& out) const = 0;
    /// Replaces the document's fields by what the JSON text read from `in` holds.
    virtual void readObject(std::wistream& in) = 0;

protected:
    ISerializable() = default;
    /// Copying is for the derived classes.
    ISerializable(const ISerializable&) = default;
    /// Copying is for the derived classes.
    ISerializable& operator=(const ISerializable&) = default;
};

/// The text of `document`, as its writeObject writes it.
HRM_API std::wstring toText(const ISerializable& document);

/// Fills `document` from `text` with its readObject (which throws on a malformed document).
HRM_API void fromText(const std::wstring& text, ISerializable& document);

/// A new Document read from `text`: `auto command = mp::fromText<hrm::Command>(text)`.
template <class Document>
Document fromText(const std::wstring& text)
{
    static_assert(std::is_base_of_v<ISerializable, Document>, "fromText<Document>(): Document is an ISerializable");
    Document document;
    fromText(text, document);
    return document;
}

} // namespace mp
