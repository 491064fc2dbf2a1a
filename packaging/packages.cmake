# Three Debian packages: the shared library, what its clients compile with, and the tool. Included with KAVRIX_PACKAGES;
# scripts/package sets the flags that Debian asks for.
if(NOT BUILD_SHARED_LIBS OR NOT TARGET kavrix-resource OR NOT KAVRIX_INSTALL)
  message(FATAL_ERROR "KAVRIX_PACKAGES needs BUILD_SHARED_LIBS, KAVRIX_INSTALL and the tool")
endif()

set(soversion ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR})
set(runtime_package libkavrix-map-resource${soversion})
set(development_package libkavrix-map-resource-dev)
set(tool_package kavrix-resource)

# The version is that of the newest entry in the changelog.
execute_process(COMMAND dpkg-parsechangelog -l ${CMAKE_CURRENT_LIST_DIR}/changelog -SVersion
                OUTPUT_VARIABLE debian_version OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
if(NOT debian_version MATCHES "^${PROJECT_VERSION}-([0-9]+)$")
  message(FATAL_ERROR "packaging/changelog: expected an entry of ${PROJECT_VERSION}, found ${debian_version}")
endif()
set(CPACK_DEBIAN_PACKAGE_RELEASE ${CMAKE_MATCH_1})

# What Debian wants in the folder of every package.
execute_process(COMMAND gzip -9nc ${CMAKE_CURRENT_LIST_DIR}/changelog
                OUTPUT_FILE ${PROJECT_BINARY_DIR}/changelog.Debian.gz COMMAND_ERROR_IS_FATAL ANY)
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_LIST_DIR}/changelog)
foreach(component IN ITEMS runtime development tool)
  install(FILES ${CMAKE_CURRENT_LIST_DIR}/copyright ${PROJECT_SOURCE_DIR}/THIRD_PARTY_LICENSES.md
                ${PROJECT_BINARY_DIR}/changelog.Debian.gz
          DESTINATION ${CMAKE_INSTALL_DATADIR}/doc/${${component}_package} COMPONENT kavrix_${component})
endforeach()

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME kavrix-map-resource)
set(CPACK_PACKAGE_CONTACT "kavrix map resource developers <developers@kavrix.invalid>")
set(CPACK_COMPONENTS_ALL kavrix_runtime kavrix_development kavrix_tool)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_PACKAGING_INSTALL_PREFIX ${CMAKE_INSTALL_PREFIX})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_STRIP_FILES ON)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/stage.cmake)

# CPack 3.25 has no variable for Multi-Arch; the field follows that of the section.
set(CPACK_DEBIAN_KAVRIX_RUNTIME_PACKAGE_NAME ${runtime_package})
set(CPACK_DEBIAN_KAVRIX_RUNTIME_PACKAGE_SECTION "libs\nMulti-Arch: same")
set(CPACK_DEBIAN_KAVRIX_RUNTIME_PACKAGE_SHLIBDEPS ON)
# CPack adds scripts that call ldconfig, unless it is given others: naming some that do not exist leaves them out. The
# trigger does their work.
set(CPACK_DEBIAN_KAVRIX_RUNTIME_PACKAGE_CONTROL_EXTRA ${CMAKE_CURRENT_LIST_DIR}/triggers;none/postinst;none/postrm)
set(CPACK_DEBIAN_KAVRIX_RUNTIME_DESCRIPTION
    "decoder of the resource names of map bubbles (shared library)
A map engine asks its client for the picture of a bubble (traffic, ETA, speed
camera, light countdown and so on) by one string, the resource name. This
library turns that string into a typed draw descriptor, and builds such
names.")

set(CPACK_DEBIAN_KAVRIX_DEVELOPMENT_PACKAGE_NAME ${development_package})
set(CPACK_DEBIAN_KAVRIX_DEVELOPMENT_PACKAGE_SECTION "libdevel\nMulti-Arch: same")
set(CPACK_DEBIAN_KAVRIX_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${debian_version}), libjsoncpp-dev")
set(CPACK_DEBIAN_KAVRIX_DEVELOPMENT_DESCRIPTION
    "decoder of the resource names of map bubbles (development files)
A map engine asks its client for the picture of a bubble (traffic, ETA, speed
camera, light countdown and so on) by one string, the resource name. This
library turns that string into a typed draw descriptor, and builds such
names.

This package has the headers, and what CMake and pkg-config need to find the
library.")

set(CPACK_DEBIAN_KAVRIX_TOOL_PACKAGE_NAME ${tool_package})
set(CPACK_DEBIAN_KAVRIX_TOOL_PACKAGE_SECTION "utils\nMulti-Arch: foreign")
set(CPACK_DEBIAN_KAVRIX_TOOL_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_KAVRIX_TOOL_DESCRIPTION
    "tool for the resource names of map bubbles
A map engine asks its client for the picture of a bubble (traffic, ETA, speed
camera, light countdown and so on) by one string, the resource name. This
tool decodes, explains, checks, draws and builds such names, and finds and
counts them in logs.")

include(CPack)
