# Configures the repository in SOURCE_DIR as on a machine that has only JsonCpp.
cmake_minimum_required(VERSION 3.22)
set(work ${BUILD_DIR}/library_alone_test)
file(REMOVE_RECURSE ${work})
set(without "")
foreach(package CLI11 fmt Threads GTest nlohmann_json plog benchmark)
  list(APPEND without -DCMAKE_DISABLE_FIND_PACKAGE_${package}=ON)
endforeach()

# expect(STATUS TEXT [option...]) configures with the options; STATUS is SUCCEEDS or FAILS, TEXT is part of the output.
function(expect status text)
  execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE_DIR} -B ${work} ${without} ${ARGN} RESULT_VARIABLE result
                  OUTPUT_VARIABLE output ERROR_VARIABLE output)
  string(REGEX REPLACE "[ \n]+" " " output "${output}")
  string(FIND "${output}" "${text}" found)
  if((status STREQUAL "SUCCEEDS" AND result) OR (status STREQUAL "FAILS" AND NOT result) OR found EQUAL -1)
    message(SEND_ERROR "${ARGN}: expected that it ${status} and says \"${text}\", found (${result}) ${output}")
  endif()
  if(output MATCHES "kavrix-resource" AND NOT text MATCHES "kavrix-resource")
    message(SEND_ERROR "${ARGN}: asks for the tool: ${output}")
  endif()
  # With a compiler newer than ours, a new warning must not stop the build of a stranger.
  if(status STREQUAL "SUCCEEDS")
    file(READ ${work}/build.ninja rules)
    if(rules MATCHES "-Werror" OR NOT rules MATCHES "-Wall")
      message(SEND_ERROR "${ARGN}: expected -Wall without -Werror")
    endif()
  endif()
  file(REMOVE_RECURSE ${work})
endfunction()

set(needs "the tool kavrix-resource needs CLI11, fmt, Threads (Debian: libcli11-dev libfmt-dev)")
expect(SUCCEEDS "Found KavrixJsonCpp" --preset library)
expect(SUCCEEDS "${needs}; it is left out" --preset release)
expect(SUCCEEDS "the tool kavrix-resource needs Threads (Debian: libcli11-dev libfmt-dev); it is left out" --preset release
       -DCMAKE_DISABLE_FIND_PACKAGE_CLI11=OFF -DCMAKE_DISABLE_FIND_PACKAGE_fmt=OFF)
expect(SUCCEEDS "Found KavrixJsonCpp" --preset release -DKAVRIX_BUILD_TOOL=OFF)
expect(FAILS "${needs}" --preset release -DKAVRIX_BUILD_TOOL=ON)
expect(FAILS "${needs}" --preset dev)
expect(FAILS "JsonCpp was not found (Debian: libjsoncpp-dev)" --preset library -DCMAKE_DISABLE_FIND_PACKAGE_jsoncpp=ON
       -DCMAKE_DISABLE_FIND_PACKAGE_PkgConfig=ON)
expect(FAILS "KAVRIX_JSONCPP_TARGET names no target: json_of_mine" --preset library -DKAVRIX_JSONCPP_TARGET=json_of_mine)
expect(FAILS "on Windows the library is only built as a static one" --preset library -DBUILD_SHARED_LIBS=ON
       -DCMAKE_SYSTEM_NAME=Windows -DCMAKE_CXX_COMPILER_WORKS=ON)
