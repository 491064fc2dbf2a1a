# Configures the parent project in SOURCE_DIR in both ways, builds and installs it, and measures its client.
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
run(${work}/build/bin/use_shared_client)

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${work}/build/libshared_client.so OUTPUT_VARIABLE symbols
                        COMMAND_ERROR_IS_FATAL ANY)
if(symbols MATCHES "kavrix" OR NOT symbols MATCHES "ContentOf")
  message(SEND_ERROR "the parent's shared library exports more than its own function:\n${symbols}")
endif()

run(${CMAKE_COMMAND} --install ${work}/build --prefix ${work}/prefix)
file(
  GLOB_RECURSE installed
  RELATIVE ${work}/prefix
  ${work}/prefix/*)
if(NOT installed STREQUAL "bin/decode")
  message(SEND_ERROR "the parent's install tree also holds the library's: ${installed}")
endif()

# The size of a stripped client that only decodes, linked with the static library and --gc-sections. It says what a decode
# pulls in: a tenth more or less needs a reason, and a new figure here and in the README.
set(size_GNU_12 183100)
set(size_Clang_14 158600)
set(most 200000)
file(SIZE ${work}/prefix/bin/decode size)
string(REGEX REPLACE "[.].*" "" compiler "${COMPILER}")
message("size of the client: ${size} bytes with ${compiler} on ${PROCESSOR}")
if(NOT PROCESSOR STREQUAL "x86_64")
  message("not compared: the figures are of x86_64")
  return()
endif()
if(size GREATER most)
  message(SEND_ERROR "expected at most ${most} bytes")
endif()
if(NOT DEFINED size_${compiler})
  message("not compared with a figure: there is none for ${compiler}")
  return()
endif()
math(EXPR difference "(${size} - ${size_${compiler}}) * 100")
math(EXPR bound "${size_${compiler}} * 10")
if(difference GREATER bound OR difference LESS -${bound})
  message(SEND_ERROR "expected ${size_${compiler}} bytes within 10 %")
endif()
