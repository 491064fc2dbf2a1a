# Installs the build in BUILD_DIR to an empty folder, then configures, builds and runs the client project in
# SOURCE_DIR against it.
set(work ${BUILD_DIR}/package_test)
file(REMOVE_RECURSE ${work})

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
  if(NOT status EQUAL 0)
    message(FATAL_ERROR "${ARGN} failed (${status}):\n${output}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${work}/prefix)
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${work}/build -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${work}/prefix
    -DCMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} --build ${work}/build)
run(${work}/build/client)
run(${work}/prefix/bin/kavrix-resource --version)
