# Installs the build in BUILD_DIR to an empty folder, checks the headers there, then configures, builds and runs clients:
# the project in SOURCE_DIR, one that has only pkg-config, and those in ../jsoncpp.
include(${SOURCE_DIR}/../run.cmake)
set(work ${BUILD_DIR}/package_test)
file(REMOVE_RECURSE ${work})

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${work}/prefix)

include(${SOURCE_DIR}/../../cmake/public_headers.cmake)
file(
  GLOB_RECURSE installed
  RELATIVE ${work}/prefix/include/kavrix_map_resource
  ${work}/prefix/include/*)
list(SORT installed)
file(GLOB_RECURSE inspect_library ${work}/prefix/*kavrix_inspect*)
set(expected ${KAVRIX_PUBLIC_HEADERS})
if(inspect_library)
  list(APPEND expected ${KAVRIX_INSPECT_HEADERS})
  list(SORT expected)
endif()
if(NOT installed STREQUAL expected)
  message(FATAL_ERROR "the installed headers are\n${installed}\nand not the public ones\n${expected}")
endif()

set(options -G ${GENERATOR} -DCMAKE_PREFIX_PATH=${work}/prefix -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
            -DCMAKE_CXX_FLAGS=${CXX_FLAGS})
run(${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${work}/build ${options} -DPLOG_INCLUDE_DIR=${PLOG_INCLUDE_DIR})
run(${CMAKE_COMMAND} --build ${work}/build)
run(${work}/build/client)
run(${work}/build/plain)
if(inspect_library)
  run(${work}/build/explainer)
endif()
run(${work}/prefix/bin/kavrix-resource --version)

# The tool's manual pages, one for each command, and its completion script.
execute_process(COMMAND ${work}/prefix/bin/kavrix-resource --help OUTPUT_VARIABLE help COMMAND_ERROR_IS_FATAL ANY)
string(REGEX MATCHALL "\n  [a-z]+ " commands "${help}")
list(TRANSFORM commands STRIP)
list(TRANSFORM commands REPLACE "(.+)" "kavrix-resource-\\1.1" OUTPUT_VARIABLE expected_pages)
list(APPEND expected_pages kavrix-resource.1)
list(SORT expected_pages)
file(
  GLOB pages
  RELATIVE ${work}/prefix/share/man/man1
  ${work}/prefix/share/man/man1/*)
list(SORT pages)
list(LENGTH pages page_count)
if(NOT pages STREQUAL expected_pages OR page_count LESS 15)
  message(FATAL_ERROR "the installed manual pages are\n${pages}\nand not\n${expected_pages}")
endif()
file(READ ${work}/prefix/share/man/man1/kavrix-resource-decode.1 page)
if(NOT page MATCHES "^.TH KAVRIX")
  message(FATAL_ERROR "the page of decode begins with no title:\n${page}")
endif()
run(bash -n ${work}/prefix/share/bash-completion/completions/kavrix-resource)

# A client of pkg-config alone.
file(GLOB_RECURSE pc ${work}/prefix/*.pc)
get_filename_component(pc_dir ${pc} DIRECTORY)
get_filename_component(lib_dir ${pc_dir} DIRECTORY)
set(ENV{PKG_CONFIG_PATH} ${pc_dir}:$ENV{PKG_CONFIG_PATH})
execute_process(COMMAND pkg-config --cflags --libs kavrix_map_resource OUTPUT_VARIABLE flags COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${CXX_FLAGS} ${flags}")
run(${CXX_COMPILER} -std=c++17 ${SOURCE_DIR}/main.cpp -o ${work}/pkg_config_client ${flags} -Wl,-rpath,${lib_dir})
run(${work}/pkg_config_client)

# A distribution may give its folders as absolute paths.
function(expect_pkg_config includedir flags)
  run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/../.. -B ${work}/absolute ${options} -DKAVRIX_BUILD_TOOL=OFF
      -DCMAKE_INSTALL_PREFIX=/opt/map -DCMAKE_INSTALL_LIBDIR=/opt/lib64 -DCMAKE_INSTALL_INCLUDEDIR=${includedir})
  set(ENV{PKG_CONFIG_PATH} ${work}/absolute)
  execute_process(COMMAND pkg-config --cflags-only-I --libs-only-L kavrix_map_resource OUTPUT_VARIABLE found
                          COMMAND_ERROR_IS_FATAL ANY)
  string(FIND "${found}" "${flags}" place)
  if(place EQUAL -1)
    message(SEND_ERROR "${includedir}: expected that pkg-config prints ${flags}, found ${found}")
  endif()
endfunction()
expect_pkg_config(/opt/headers "-I/opt/headers/kavrix_map_resource")
expect_pkg_config(include "-I/opt/map/include/kavrix_map_resource")
expect_pkg_config(include "-L/opt/lib64")

run(${CMAKE_COMMAND} -S ${SOURCE_DIR}/../jsoncpp -B ${work}/jsoncpp ${options})
run(${CMAKE_COMMAND} --build ${work}/jsoncpp)
