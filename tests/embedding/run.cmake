# Configures, builds and installs the parent project in SOURCE_DIR in both ways, and measures its client.
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

# Builds the parent in one way, runs its clients, and compares its install tree with the files expected there.
function(try way files)
  run(${CMAKE_COMMAND} ${options} -B ${work}/build -DWAY=${way} ${ARGN})
  run(${CMAKE_COMMAND} --build ${work}/build)
  run(${work}/build/bin/decode)
  run(${work}/build/bin/use_shared_client)

  run(${CMAKE_COMMAND} --install ${work}/build --prefix ${work}/${way})
  file(
    GLOB_RECURSE installed
    RELATIVE ${work}/${way}
    ${work}/${way}/*)
  list(SORT installed)
  if(NOT installed STREQUAL files)
    message(SEND_ERROR "${way}: the install tree holds\n${installed}\nexpected\n${files}")
  endif()
endfunction()
try(FetchContent "bin/decode")

execute_process(COMMAND ${NM} --dynamic --defined-only --demangle ${work}/build/libshared_client.so OUTPUT_VARIABLE symbols
                        COMMAND_ERROR_IS_FATAL ANY)
if(symbols MATCHES "kavrix" OR NOT symbols MATCHES "ContentOf")
  message(SEND_ERROR "the parent's shared library exports more than its own function:\n${symbols}")
endif()

include(${KAVRIX_SOURCE_DIR}/cmake/public_headers.cmake)
set(headers ${KAVRIX_PUBLIC_HEADERS})
list(TRANSFORM headers PREPEND include/kavrix_map_resource/)
set(package
    FindKavrixJsonCpp.cmake
    found_jsoncpp/jsoncppConfig.cmake
    found_jsoncpp/jsoncppConfigVersion.cmake
    kavrix_map_resource-config-version.cmake
    kavrix_map_resource-config.cmake
    kavrix_map_resource_targets-release.cmake
    kavrix_map_resource_targets.cmake)
list(TRANSFORM package PREPEND lib/cmake/kavrix_map_resource/)
set(files bin/decode ${headers} ${package} lib/libkavrix_map_resource.a lib/pkgconfig/kavrix_map_resource.pc)
try(add_subdirectory "${files}" -DKAVRIX_INSTALL=ON -DCMAKE_INSTALL_LIBDIR=lib)

# The size of a stripped client that only decodes, linked with the static library and --gc-sections. It says what a decode
# pulls in: a tenth more or less needs a reason, and a new figure here and in docs/embedding.md.
set(size_GNU_12 187200)
set(size_Clang_14 158600)
set(most 200000)
file(SIZE ${work}/FetchContent/bin/decode size)
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
