include(CMakePackageConfigHelpers)

# A stand-in build ships the modeler stand-in beside the library: the public headers include it.
set(HRM_INSTALL_TARGETS hrm_api)
if(HRM_MODELER STREQUAL "standin")
  list(APPEND HRM_INSTALL_TARGETS hrm_modeler_standin)
  install(FILES tests/modeler_standin/modeler_standin.hxx DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
endif()
install(TARGETS ${HRM_INSTALL_TARGETS} EXPORT hrm_apiTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(HRM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/hrm_api)
install(EXPORT hrm_apiTargets NAMESPACE hrm_api:: DESTINATION ${HRM_CMAKE_DIR})
configure_package_config_file(cmake/hrm_apiConfig.cmake.in
  ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake INSTALL_DESTINATION ${HRM_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake ${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  DESTINATION ${HRM_CMAKE_DIR})
