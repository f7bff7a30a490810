# Installs the built library into a temporary prefix, then configures, builds and runs a
# separate project against it with find_package(hrm_api CONFIG REQUIRED).
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed: ${ARGN}\n${output}")
  endif()
endfunction()

set(config_args)
if(CONFIG)
  set(config_args --config ${CONFIG})
endif()
run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix} ${config_args})
run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/tests/consumer -B ${WORK_DIR}/build -G ${GENERATOR}
    -DCMAKE_PREFIX_PATH=${prefix} -DCMAKE_BUILD_RPATH=${prefix}/lib -DHRM_EXPECTED_VERSION=${VERSION})
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build ${config_args})
foreach(program consumer rapidjson_first)
  find_program(${program}_path NAMES ${program} PATHS ${WORK_DIR}/build ${WORK_DIR}/build/${CONFIG}
    NO_DEFAULT_PATH NO_CACHE REQUIRED)
  run(${${program}_path})
endforeach()
message(STATUS "consumer programs built and ran against the installed package")
