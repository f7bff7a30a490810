# Deflate engines beside zlib: libdeflate and Intel ISA-L's igzip. They are optional: with none
# of them the library compresses and decompresses with zlib alone.
#
#   HRM_DEFLATE_ENGINES=auto                  each engine whose header and library are found
#   HRM_DEFLATE_ENGINES=none                  zlib alone
#   HRM_DEFLATE_ENGINES="libdeflate;igzip"    these engines, an error when one is missing
#
# Sets HRM_FOUND_DEFLATE_ENGINES to the engines built in and, for each, HRM_<engine>_INCLUDE_DIR
# and HRM_<engine>_LIBRARY. find_path and find_library keep a cross build in its own sysroot.
set(HRM_DEFLATE_ENGINES auto CACHE STRING
  "Deflate engines beside zlib: auto (those found), none, or a list of libdeflate and igzip that must be found")

set(HRM_KNOWN_DEFLATE_ENGINES libdeflate igzip)
set(hrm_libdeflate_header libdeflate.h)
set(hrm_libdeflate_library deflate)
set(hrm_igzip_header isa-l/igzip_lib.h)
set(hrm_igzip_library isal)

if(HRM_DEFLATE_ENGINES STREQUAL "auto")
  set(hrm_wanted ${HRM_KNOWN_DEFLATE_ENGINES})
  set(hrm_required OFF)
elseif(HRM_DEFLATE_ENGINES STREQUAL "none")
  set(hrm_wanted "")
  set(hrm_required OFF)
else()
  set(hrm_wanted ${HRM_DEFLATE_ENGINES})
  set(hrm_required ON)
endif()

set(HRM_FOUND_DEFLATE_ENGINES "")
foreach(engine IN LISTS hrm_wanted)
  if(NOT engine IN_LIST HRM_KNOWN_DEFLATE_ENGINES)
    message(FATAL_ERROR "HRM_DEFLATE_ENGINES: unknown engine '${engine}' (known: ${HRM_KNOWN_DEFLATE_ENGINES})")
  endif()
  find_path(HRM_${engine}_INCLUDE_DIR ${hrm_${engine}_header})
  find_library(HRM_${engine}_LIBRARY ${hrm_${engine}_library})
  if(HRM_${engine}_INCLUDE_DIR AND HRM_${engine}_LIBRARY)
    list(APPEND HRM_FOUND_DEFLATE_ENGINES ${engine})
  elseif(hrm_required)
    message(FATAL_ERROR "HRM_DEFLATE_ENGINES names ${engine}, but ${hrm_${engine}_header} or the library "
      "'${hrm_${engine}_library}' was not found")
  endif()
endforeach()
message(STATUS "hrm_api deflate engines beside zlib: ${HRM_FOUND_DEFLATE_ENGINES}")

# Builds `target` with the engines found: their headers, libraries and HRM_WITH_<ENGINE>.
function(hrm_use_deflate_engines target)
  foreach(engine IN LISTS HRM_FOUND_DEFLATE_ENGINES)
    string(TOUPPER ${engine} upper)
    target_include_directories(${target} SYSTEM PRIVATE ${HRM_${engine}_INCLUDE_DIR})
    target_link_libraries(${target} PRIVATE ${HRM_${engine}_LIBRARY})
    target_compile_definitions(${target} PRIVATE HRM_WITH_${upper})
  endforeach()
endfunction()
