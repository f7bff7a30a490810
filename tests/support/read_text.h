#pragma once

// Lets an object read a JSON text, for tests of the lenient and strict reading rules.
//
//   EXPECT_EQ(readText(progress, LR"({"progress":"5"})").progress(), 0);

#include <hrm_api/hrm_api_json.h>

#include <string>

namespace hrm::test {

template <class T>
T& readText(T& object, const std::wstring& text)
{
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    object.readObject(document);
    return object;
}

} // namespace hrm::test
