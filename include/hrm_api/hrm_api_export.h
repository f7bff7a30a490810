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
