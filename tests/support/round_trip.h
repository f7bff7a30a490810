#pragma once

// Round trips of IJsonObject values through the library's encodings, for tests that compare
// an object with the copy read back (the data classes have operator==).
//
//   EXPECT_EQ(roundTripText(color), color);

#include <hrm_api/hrm_api_json.h>

#include <gtest/gtest.h>

#include <string>

namespace hrm::test {

// The compact JSON text `object` writes.
inline std::wstring toText(const IJsonObject& object)
{
    JsonDocument document;
    object.writeObject(document, document.GetAllocator());
    return JsonTextIO::toString(document, false);
}

// Writes `object` into a document, the document to text, parses the text and reads a fresh T
// from it.
template <class T>
T roundTripText(const T& object)
{
    const std::wstring text = toText(object);
    JsonDocument parsed;
    JsonTextIO::fromString(text, parsed);
    EXPECT_FALSE(parsed.HasParseError()) << "offset " << parsed.GetErrorOffset();
    T result;
    result.readObject(parsed);
    return result;
}

} // namespace hrm::test
