#pragma once

// Parsing JSON text in tests, and letting an object read it, for tests of the lenient and
// strict reading rules.
//
//   EXPECT_EQ(readText(progress, LR"({"progress":"5"})").progress(), 0);

#include <hrm_api/hrm_api_json.h>

#include <gtest/gtest.h>

#include <string>

namespace hrm::test {

// The document of a text that must parse.
inline JsonDocument parse(const std::wstring& text)
{
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    EXPECT_FALSE(document.HasParseError()) << "offset " << document.GetErrorOffset();
    return document;
}

template <class T>
T& readText(T& object, const std::wstring& text)
{
    JsonDocument document;
    JsonTextIO::fromString(text, document);
    object.readObject(document);
    return object;
}

} // namespace hrm::test
