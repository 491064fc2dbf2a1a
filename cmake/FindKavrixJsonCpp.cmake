# Defines Kavrix::JsonCpp from a target that the project has already, else from JsonCpp's own package, else from
# pkg-config. KAVRIX_JSONCPP_TARGET chooses a target of another name, or one of several.
macro(kavrix_take_jsoncpp)
  foreach(target IN ITEMS ${ARGN})
    if(NOT KavrixJsonCpp_TARGET AND TARGET ${target})
      set(KavrixJsonCpp_TARGET ${target})
    endif()
  endforeach()
endmacro()

unset(KavrixJsonCpp_TARGET)
set(kavrix_jsoncpp_names ${KAVRIX_JSONCPP_TARGET} JsonCpp::JsonCpp jsoncpp_lib jsoncpp_static)
kavrix_take_jsoncpp(Kavrix::JsonCpp ${kavrix_jsoncpp_names})
if(NOT KavrixJsonCpp_TARGET)
  find_package(jsoncpp CONFIG QUIET)
  kavrix_take_jsoncpp(${kavrix_jsoncpp_names})
  if(jsoncpp_FOUND)
    set(kavrix_jsoncpp_dir ${jsoncpp_DIR})
    set(jsoncpp_DIR ${CMAKE_CURRENT_LIST_DIR}/found_jsoncpp)
  endif()
endif()
if(NOT KavrixJsonCpp_TARGET)
  find_package(PkgConfig QUIET)
  if(PkgConfig_FOUND)
    pkg_check_modules(KavrixJsonCppPc QUIET IMPORTED_TARGET jsoncpp)
  endif()
  kavrix_take_jsoncpp(PkgConfig::KavrixJsonCppPc)
endif()

if(KavrixJsonCpp_TARGET AND NOT TARGET Kavrix::JsonCpp)
  add_library(Kavrix::JsonCpp INTERFACE IMPORTED)
  target_link_libraries(Kavrix::JsonCpp INTERFACE ${KavrixJsonCpp_TARGET})
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
  KavrixJsonCpp REQUIRED_VARS KavrixJsonCpp_TARGET
  REASON_FAILURE_MESSAGE "JsonCpp was not found (Debian: libjsoncpp-dev)")
