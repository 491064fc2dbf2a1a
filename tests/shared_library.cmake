# Tests the shared library, which hides its internals.
add_test(NAME SharedLibraryExportsOnlyThePublicApi
         COMMAND ${CMAKE_COMMAND} -DNM=${CMAKE_NM} -DOBJDUMP=${CMAKE_OBJDUMP} -DLIBRARY=$<TARGET_FILE:kavrix_map_resource>
                 -DSOURCE_DIR=${PROJECT_SOURCE_DIR} -P ${CMAKE_CURRENT_SOURCE_DIR}/exported_symbols.cmake)

# Links the unit tests that include only public headers once more, with the shared library.
include(${PROJECT_SOURCE_DIR}/cmake/public_headers.cmake)
file(GLOB sources CONFIGURE_DEPENDS config/*.cpp context/*.cpp descriptors/*.cpp map_resource/*.cpp reliability/*.cpp
     util/*.cpp)
set(api_tests sample_names)
foreach(source IN LISTS sources)
  set(is_internal FALSE)
  file(STRINGS ${source} includes REGEX "^#include \"")
  foreach(line IN LISTS includes)
    string(REGEX REPLACE "^#include \"(.*)\".*" "\\1" header "${line}")
    if(header MATCHES "\\.h$" AND EXISTS ${PROJECT_SOURCE_DIR}/src/${header}
       AND NOT header IN_LIST KAVRIX_PUBLIC_HEADERS)
      set(is_internal TRUE)
    endif()
    # What the tests share is not linked, but for the sample names.
    string(REGEX REPLACE "\\.h$" ".cpp" shared ${PROJECT_SOURCE_DIR}/${header})
    if(header MATCHES "^tests/" AND EXISTS ${shared} AND NOT header STREQUAL "tests/support/sample_names.h")
      set(is_internal TRUE)
    endif()
  endforeach()
  if(NOT is_internal)
    get_filename_component(stem ${source} NAME_WE)
    list(APPEND api_tests ${stem})
  endif()
endforeach()
list(LENGTH api_tests count)
if(count LESS 47)
  message(FATAL_ERROR "only ${count} tests of the public API found")
endif()
list(JOIN api_tests "|" api_tests)
add_executable(api_tests "$<FILTER:$<TARGET_OBJECTS:unit_tests>,INCLUDE,/(${api_tests})[.]cpp[.]>")
set_target_properties(api_tests PROPERTIES LINKER_LANGUAGE CXX)
target_link_libraries(api_tests PRIVATE kavrix::map_resource GTest::gmock GTest::gmock_main)
add_test(NAME PublicApiTestsPassWithTheSharedLibrary COMMAND api_tests)
