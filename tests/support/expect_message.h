#pragma once

#include <gtest/gtest.h>

#include <string>

namespace hrm::test {

// Expects `operation` to throw an Exception whose what() is `message`.
template <class Exception, class Operation>
void expectMessage(Operation operation, const std::string& message)
{
    try {
        operation();
        ADD_FAILURE() << "no exception; expected \"" << message << '"';
    } catch (const Exception& error) {
        EXPECT_EQ(error.what(), message);
    }
}

} // namespace hrm::test
