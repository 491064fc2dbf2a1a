include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(package_dir ${CMAKE_INSTALL_LIBDIR}/cmake/kavrix_map_resource)

target_include_directories(kavrix_map_resource
                           PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/kavrix_map_resource>)
install(
  TARGETS kavrix_map_resource
  EXPORT kavrix_map_resource_targets
  LIBRARY COMPONENT kavrix_runtime NAMELINK_COMPONENT kavrix_development
  ARCHIVE COMPONENT kavrix_development)
include(cmake/public_headers.cmake)
foreach(header IN LISTS KAVRIX_PUBLIC_HEADERS)
  get_filename_component(folder ${header} DIRECTORY)
  install(FILES src/${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavrix_map_resource/${folder}
          COMPONENT kavrix_development)
endforeach()
# A static library of its own, which needs the internals: not for a shared build, which exports none of them.
if(PROJECT_IS_TOP_LEVEL AND NOT TARGET kavrix_internals)
  target_include_directories(kavrix_inspect
                             PUBLIC $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/kavrix_map_resource>)
  install(TARGETS kavrix_inspect EXPORT kavrix_map_resource_targets COMPONENT kavrix_development)
  foreach(header IN LISTS KAVRIX_INSPECT_HEADERS)
    get_filename_component(folder ${header} DIRECTORY)
    find_file(found_header ${header} PATHS ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/src NO_DEFAULT_PATH NO_CACHE REQUIRED)
    install(FILES ${found_header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/kavrix_map_resource/${folder}
          COMPONENT kavrix_development)
    unset(found_header)
  endforeach()
endif()
install(EXPORT kavrix_map_resource_targets NAMESPACE kavrix:: DESTINATION ${package_dir} COMPONENT kavrix_development)
if(TARGET kavrix-resource)
  install(TARGETS kavrix-resource COMPONENT kavrix_tool)
  include(cmake/manual.cmake)
endif()

configure_package_config_file(cmake/kavrix_map_resource-config.cmake.in
                              ${PROJECT_BINARY_DIR}/kavrix_map_resource-config.cmake INSTALL_DESTINATION ${package_dir})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/kavrix_map_resource-config-version.cmake
                                 COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/kavrix_map_resource-config.cmake
              ${PROJECT_BINARY_DIR}/kavrix_map_resource-config-version.cmake cmake/FindKavrixJsonCpp.cmake
        DESTINATION ${package_dir} COMPONENT kavrix_development)
install(DIRECTORY cmake/found_jsoncpp DESTINATION ${package_dir} COMPONENT kavrix_development)

# Finds its prefix from its own place, so that the installed tree can move, unless it is told an absolute one.
set(pc_dir ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
set(pc_prefix ${CMAKE_INSTALL_PREFIX})
if(NOT IS_ABSOLUTE ${pc_dir})
  file(RELATIVE_PATH prefix_from_pc /prefix/${pc_dir} /prefix)
  set(pc_prefix "\${pcfiledir}/${prefix_from_pc}")
endif()
foreach(dir INCLUDEDIR LIBDIR)
  set(pc_${dir} ${CMAKE_INSTALL_${dir}})
  if(NOT IS_ABSOLUTE ${pc_${dir}})
    set(pc_${dir} "\${prefix}/${pc_${dir}}")
  endif()
endforeach()
get_target_property(definitions kavrix_map_resource INTERFACE_COMPILE_DEFINITIONS)
set(pc_definitions "")
if(definitions)
  list(JOIN definitions " -D" definitions)
  set(pc_definitions " -D${definitions}")
endif()
configure_file(cmake/kavrix_map_resource.pc.in kavrix_map_resource.pc @ONLY)
install(FILES ${PROJECT_BINARY_DIR}/kavrix_map_resource.pc DESTINATION ${pc_dir} COMPONENT kavrix_development)
