# Defines Kavrix::JsonCpp from JsonCpp's own package, with the target name of 1.9.5 and later or the older one, else
# from pkg-config.
if(NOT TARGET Kavrix::JsonCpp)
  find_package(jsoncpp CONFIG QUIET)
  add_library(Kavrix::JsonCpp INTERFACE IMPORTED)
  if(TARGET JsonCpp::JsonCpp)
    target_link_libraries(Kavrix::JsonCpp INTERFACE JsonCpp::JsonCpp)
    set(KavrixJsonCpp_TARGET JsonCpp::JsonCpp)
  elseif(TARGET jsoncpp_lib)
    target_link_libraries(Kavrix::JsonCpp INTERFACE jsoncpp_lib)
    set(KavrixJsonCpp_TARGET jsoncpp_lib)
  else()
    find_package(PkgConfig QUIET)
    if(PkgConfig_FOUND)
      pkg_check_modules(KavrixJsonCppPc QUIET IMPORTED_TARGET jsoncpp)
    endif()
    if(TARGET PkgConfig::KavrixJsonCppPc)
      target_link_libraries(Kavrix::JsonCpp INTERFACE PkgConfig::KavrixJsonCppPc)
      set(KavrixJsonCpp_TARGET PkgConfig::KavrixJsonCppPc)
    endif()
  endif()
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
  KavrixJsonCpp REQUIRED_VARS KavrixJsonCpp_TARGET
  REASON_FAILURE_MESSAGE "JsonCpp was not found (Debian: libjsoncpp-dev)")
