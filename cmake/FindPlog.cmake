# Defines plog::plog from plog's own package, else from bare headers (Debian has them inside r-cran-plogr; scripts/setup
# unpacks them to build/plog, and PLOG_INCLUDE_DIR names another place). Only the tests and examples need plog.
if(NOT TARGET plog::plog)
  find_package(plog CONFIG QUIET)
endif()
if(NOT TARGET plog::plog)
  find_path(PLOG_INCLUDE_DIR plog/Record.h HINTS ${PROJECT_SOURCE_DIR}/build/plog
            PATH_SUFFIXES usr/lib/R/site-library/plogr/include)
  if(PLOG_INCLUDE_DIR)
    add_library(plog::plog INTERFACE IMPORTED)
    target_include_directories(plog::plog INTERFACE ${PLOG_INCLUDE_DIR})
  endif()
endif()

if(TARGET plog::plog)
  set(Plog_TARGET plog::plog)
endif()
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(
  Plog REQUIRED_VARS Plog_TARGET
  REASON_FAILURE_MESSAGE "plog was not found (scripts/setup gets its headers)")
