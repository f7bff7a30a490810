#pragma once

// What the sources of the visualization family share: the adders of lists of shared children,
// one by one and many at once.

#include "hrm_api/hrm_api_json_members.h"

// T::addOne(child), which refuses a null child with the warning "T: attempt to add null
// <what> object.", and T::addMany(children), which adds each of them so.
#define HRM_VISU_ADDERS(T, Child, addOne, addMany, list, what)                                    \
    HRM_CHILD_ADDER(T, Child, addOne, list, what)                                                 \
    void T::addMany(const std::vector<std::shared_ptr<Child>>& children)                          \
    {                                                                                             \
        for (const auto& child : children)                                                        \
            addOne(child);                                                                        \
    }
