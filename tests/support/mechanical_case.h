#pragma once

// MemberCase of a class of the mechanical data: its sample, the name in its wrong-kind message
// and its keys in written order. Single children read any value themselves, and "type" (of the
// patterns) is written only.
//
//   HRM_MECH_CASE(ExcMiscLayer, "ExcMiscLayer", samples::mechanical::layer(), L"id", L"name", ...)

#include "support/member_suite.h"

#include <string>
#include <vector>

#define HRM_MECH_CASE(T, className, make, ...)                                                           \
    template <>                                                                                          \
    struct MemberCase<T> : MemberCaseDefaults                                                            \
    {                                                                                                    \
        static constexpr const char* wrongKindMessage = className " object should have a JSON object type."; \
        static T sample() { return *make; }                                                              \
        static std::vector<std::wstring> keys() { return {__VA_ARGS__}; }                               \
        static std::vector<std::wstring> writtenOnly() { return {L"type"}; }                             \
        static std::vector<std::wstring> anyKind()                                                       \
        {                                                                                                \
            return {L"color",       L"linked_entity", L"entity",    L"density",       L"shear_modulus",   \
                    L"hole_thread", L"thread_data",   L"base_instance", L"hole_data", L"pmi_data",      \
                    L"misc_data",   L"mapping_data",  L"mfg_data",  L"entity_data"};                     \
        }                                                                                                \
    };
