#pragma once

// What the sources of the visualization family share: equality by the JSON written, and the
// adders of lists of shared children.

#include "hrm_api/hrm_api_json_members.h"

// T::operator==: the same JSON (so packed arrays compare bit for bit).
#define HRM_VISU_EQUALITY(T) HRM_EQUALITY_AS_JSON(T)

// T::addOne(child), which refuses a null child with the warning "T: attempt to add null
// <what> object.", and T::addMany(children), which adds each of them so.
#define HRM_VISU_ADDERS(T, Child, addOne, addMany, list, what)                                    \
    void T::addOne(const std::shared_ptr<Child>& child)                                           \
    {                                                                                             \
        ::hrm::appendChild(list, child, #T ": attempt to add null " what " object.");             \
    }                                                                                             \
    void T::addMany(const std::vector<std::shared_ptr<Child>>& children)                          \
    {                                                                                             \
        for (const auto& child : children)                                                        \
            addOne(child);                                                                        \
    }
