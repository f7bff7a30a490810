# hrm_api_docs: the HTML reference of the public headers, made by Doxygen into
# <build>/html. Any Doxygen warning, an undocumented entity included, fails the target.
find_package(Doxygen REQUIRED)
configure_file(${PROJECT_SOURCE_DIR}/cmake/Doxyfile.in ${PROJECT_BINARY_DIR}/Doxyfile @ONLY)
add_custom_target(hrm_api_docs
  COMMAND Doxygen::doxygen ${PROJECT_BINARY_DIR}/Doxyfile
  WORKING_DIRECTORY ${PROJECT_BINARY_DIR}
  COMMENT "Doxygen: the reference of the public headers into ${PROJECT_BINARY_DIR}/html"
  VERBATIM)
