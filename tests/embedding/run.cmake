# Configures the parent project in SOURCE_DIR in both ways, and builds and installs it.
include(${SOURCE_DIR}/../run.cmake)
set(work ${BUILD_DIR}/embedding_test)
file(REMOVE_RECURSE ${work})
set(options
    -S ${SOURCE_DIR}
    -G ${GENERATOR}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_BUILD_TYPE=Release
    -DKAVRIX_SOURCE_DIR=${KAVRIX_SOURCE_DIR}
    # Halves the time of the build.
    -DCMAKE_PROJECT_kavrix_map_resource_INCLUDE=${KAVRIX_SOURCE_DIR}/cmake/precompiled_library.cmake)
run(${CMAKE_COMMAND} ${options} -B ${work}/add_subdirectory -DWAY=add_subdirectory)
run(${CMAKE_COMMAND} ${options} -B ${work}/build -DWAY=FetchContent)
run(${CMAKE_COMMAND} --build ${work}/build)
run(${work}/build/bin/decode)

run(${CMAKE_COMMAND} --install ${work}/build --prefix ${work}/prefix)
file(
  GLOB_RECURSE installed
  RELATIVE ${work}/prefix
  ${work}/prefix/*)
if(NOT installed STREQUAL "bin/decode")
  message(SEND_ERROR "the parent's install tree also holds the library's: ${installed}")
endif()
