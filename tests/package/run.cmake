# Installs the build in BUILD_DIR to an empty folder, checks the headers there, then configures, builds and runs the
# client project in SOURCE_DIR against it.
set(work ${BUILD_DIR}/package_test)
file(REMOVE_RECURSE ${work})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${status}):\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${work}/prefix)

include(${SOURCE_DIR}/../../cmake/public_headers.cmake)
file(
  GLOB_RECURSE installed
  RELATIVE ${work}/prefix/include/kavrix_map_resource
  ${work}/prefix/include/*)
list(SORT installed)
if(NOT installed STREQUAL KAVRIX_PUBLIC_HEADERS)
  message(FATAL_ERROR "the installed headers are\n${installed}\nand not the public ones\n${KAVRIX_PUBLIC_HEADERS}")
endif()

run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${work}/build -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${work}/prefix
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} -DCMAKE_CXX_FLAGS=${CXX_FLAGS} -DPLOG_INCLUDE_DIR=${PLOG_INCLUDE_DIR})
run(${CMAKE_COMMAND} --build ${work}/build)
run(${work}/build/client)
run(${work}/build/plain)
run(${work}/prefix/bin/kavrix-resource --version)
