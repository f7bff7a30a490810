include(CMakePackageConfigHelpers)

install(TARGETS hrm_api EXPORT hrm_apiTargets
  RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR}
  LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
  ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
  INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})
install(DIRECTORY include/ ${PROJECT_BINARY_DIR}/generated/include/ DESTINATION ${CMAKE_INSTALL_INCLUDEDIR})

set(HRM_CMAKE_DIR ${CMAKE_INSTALL_LIBDIR}/cmake/hrm_api)
install(EXPORT hrm_apiTargets NAMESPACE hrm_api:: DESTINATION ${HRM_CMAKE_DIR})
configure_package_config_file(cmake/hrm_apiConfig.cmake.in
  ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake INSTALL_DESTINATION ${HRM_CMAKE_DIR})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/hrm_apiConfig.cmake ${PROJECT_BINARY_DIR}/hrm_apiConfigVersion.cmake
  DESTINATION ${HRM_CMAKE_DIR})
