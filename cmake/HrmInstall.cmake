include(CMakePackageConfigHelpers)

# A stand-in build ships the modeler stand-in beside the library: the public headers include it.
set(HRM_INSTALL_TARGETS hrm_api)
if(HRM_MODELER STREQUAL "standin")
  list(APPEND HRM_INSTALL_TARGETS hrm_modeler_standin)
  install(FILES modeler_standin/modeler_standin.hxx DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()
install(TARGETS ${HRM_INSTALL_TARGETS} EXPORT hrm_apiTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
)
install(DIRECTORY include/ ${HRM_GENERATED_INCLUDE_DIR}/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(HRM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/hrm_api)
install(EXPORT hrm_apiTargets NAMESPACE hrm_api:: DESTINATION ${HRM_CMAKE_DIR})

# The glTF export and the hrm tool, where they are built; hrm_api::hrm_api_gltf has an export
# set of its own, which the package config loads when it is there.
if(TARGET hrm_api_gltf)
  install(TARGETS hrm_api_gltf EXPORT hrm_api_gltfTargets
    RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
    LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
    ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR})
  install(DIRECTORY gltf/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
  install(EXPORT hrm_api_gltfTargets NAMESPACE hrm_api:: DESTINATION ${HRM_CMAKE_DIR})
endif()
if(TARGET hrm)
  install(TARGETS hrm RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR})
endif()
configure_package_config_file(cmake/hrm_apiConfig.cmake.in
  ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake INSTALL_DESTINATION ${HRM_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake ${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  DESTINATION ${HRM_CMAKE_DIR})
