# Puts mingw-w64's runtime DLLs beside the executables of a cross build, so that wine (or a
# Windows machine the folder is copied to) finds them.
#
# The runtime is linked dynamically, not statically: streams, strings and exceptions cross the
# hrm_api DLL's interface, and a static libstdc++ would give the DLL and each executable a
# runtime of their own (with their own locale facets and statics) on the two sides of it.
foreach(dll libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
  execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${dll}
    OUTPUT_VARIABLE path OUTPUT_STRIP_TRAILING_WHITESPACE)
  if(NOT IS_ABSOLUTE "${path}" OR NOT EXISTS "${path}")
    message(FATAL_ERROR "mingw runtime ${dll} not found (${CMAKE_CXX_COMPILER} -print-file-name)")
  endif()
  file(COPY ${path} DESTINATION ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
endforeach()
