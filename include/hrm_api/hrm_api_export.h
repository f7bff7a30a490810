#pragma once

// HRM_API marks the library's exported classes and functions. Everything else is hidden.
#if defined(HRM_API_STATIC)
#  define HRM_API
#elif defined(_WIN32)
#  if defined(HRM_API_BUILDING)
#    define HRM_API __declspec(dllexport)
#  else
#    define HRM_API __declspec(dllimport)
#  endif
#else
#  define HRM_API __attribute__((visibility("default")))
#endif

// HRM_API_TYPE marks enumerations of the interface. They need default visibility too: clang
// gives an instantiation of an exported template no more visibility than its arguments have.
#if defined(_WIN32)
#  define HRM_API_TYPE
#else
#  define HRM_API_TYPE __attribute__((visibility("default")))
#endif
