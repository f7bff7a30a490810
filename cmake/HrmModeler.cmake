# The solid modeler that the geometry members (ExcSharedAcisBuffer's file interface,
# ExcBlockGeometry::setGeometry / getGeometry, the identity attributes) are built against:
#   standin  the stand-in under modeler_standin (the default; what the tests use)
#   acis     the modeler's SDK under ACIS_ROOT
#   none     no modeler: those members are left out, everything else works
# hrm_api_modeler.h is the one header that includes the modeler; it learns the choice from the
# definition HRM_MODELER_STANDIN or HRM_MODELER_ACIS, which consumers get through the target.
set(HRM_MODELER standin CACHE STRING "Solid modeler for the geometry members: standin, acis or none")
set_property(CACHE HRM_MODELER PROPERTY STRINGS standin acis none)
set(ACIS_ROOT "" CACHE PATH "Root of the modeler's SDK (HRM_MODELER=acis)")

if(HRM_MODELER STREQUAL "standin")
  add_subdirectory(${PROJECT_SOURCE_DIR}/modeler_standin ${PROJECT_BINARY_DIR}/modeler_standin)
elseif(HRM_MODELER STREQUAL "acis")
  if(NOT ACIS_ROOT)
    message(FATAL_ERROR "HRM_MODELER=acis needs ACIS_ROOT, the root of the modeler's SDK")
  endif()
  find_path(ACIS_INCLUDE_DIR acis.hxx PATHS ${ACIS_ROOT}/include NO_DEFAULT_PATH REQUIRED)
  find_library(ACIS_LIBRARY NAMES SpaACIS SpaACISd PATHS ${ACIS_ROOT}/lib ${ACIS_ROOT}/bin
    PATH_SUFFIXES lib NO_DEFAULT_PATH REQUIRED)
elseif(NOT HRM_MODELER STREQUAL "none")
  message(FATAL_ERROR "HRM_MODELER must be standin, acis or none, not '${HRM_MODELER}'")
endif()

# Gives `target` (hrm_api) the chosen modeler.
function(hrm_use_modeler target)
  if(HRM_MODELER STREQUAL "standin")
    target_compile_definitions(${target} PUBLIC HRM_MODELER_STANDIN)
    target_link_libraries(${target} PUBLIC hrm_modeler_standin)
  elseif(HRM_MODELER STREQUAL "acis")
    # The package config finds the SDK again on the consumer's side (ACIS_ROOT).
    target_compile_definitions(${target} PUBLIC HRM_MODELER_ACIS)
    target_include_directories(${target} SYSTEM PUBLIC $<BUILD_INTERFACE:${ACIS_INCLUDE_DIR}>)
    target_link_libraries(${target} PUBLIC $<BUILD_INTERFACE:${ACIS_LIBRARY}>)
  endif()
endfunction()
