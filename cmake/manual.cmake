# The manual pages and the completion script, which the tool prints of itself. Each command has its NAME_command.cpp.
if(CMAKE_CROSSCOMPILING AND NOT CMAKE_CROSSCOMPILING_EMULATOR)
  message(NOTICE "leaves out the manual pages and the completion: without CMAKE_CROSSCOMPILING_EMULATOR the tool cannot print them")
  return()
endif()
file(GLOB command_sources CONFIGURE_DEPENDS tools/*_command.cpp)
list(TRANSFORM command_sources REPLACE ".*/([a-z]+)_command\\.cpp" "\\1" OUTPUT_VARIABLE commands)
set(manual_dir ${PROJECT_BINARY_DIR}/manual)
file(MAKE_DIRECTORY ${manual_dir})

# Adds a file that the tool prints when it is called with the arguments.
set(manual_files "")
function(kavrix_printed_file path)
  add_custom_command(
    OUTPUT ${path}
    COMMAND kavrix-resource ${ARGN} > ${path}
    DEPENDS kavrix-resource
    VERBATIM)
  set(manual_files ${manual_files} ${path} PARENT_SCOPE)
endfunction()

kavrix_printed_file(${manual_dir}/kavrix-resource.1 manual)
foreach(command IN LISTS commands)
  kavrix_printed_file(${manual_dir}/kavrix-resource-${command}.1 manual ${command})
endforeach()
install(FILES ${manual_files} DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT kavrix_tool)

# bash looks for the script of a command under the command's name.
set(completion_file ${manual_dir}/completions/kavrix-resource)
file(MAKE_DIRECTORY ${manual_dir}/completions)
kavrix_printed_file(${completion_file} completion bash)
install(FILES ${completion_file} DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions COMPONENT kavrix_tool)

add_custom_target(manual ALL DEPENDS ${manual_files})
