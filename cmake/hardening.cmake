# What makes a fault harder to exploit, for the tool and for the library inside it; a client and a project that adds this one
# choose their own flags. The same sources give the same bytes in any folder.
include(CheckPIESupported)
check_pie_supported()
set_target_properties(kavrix_inspect kavrix-resource PROPERTIES POSITION_INDEPENDENT_CODE ON)

target_compile_options(kavrix_build_flags INTERFACE -fstack-protector-strong)
# A debugger and the counts of coverage need the places of the sources; glibc checks only what is optimised.
target_compile_options(
  kavrix_build_flags
  INTERFACE "$<$<NOT:$<CONFIG:Debug>>:-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.;-U_FORTIFY_SOURCE;-D_FORTIFY_SOURCE=2>")
target_link_options(kavrix-resource PRIVATE LINKER:-z,relro,-z,now)
