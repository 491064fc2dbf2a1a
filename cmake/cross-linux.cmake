# Cross-compiles with Debian's compilers: -DKAVRIX_TRIPLET=aarch64-linux-gnu, say. Uses the other architecture's packages,
# installed beside this machine's own.
set(CMAKE_SYSTEM_NAME Linux)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KAVRIX_TRIPLET)
string(REGEX MATCH "^[a-z0-9]+" CMAKE_SYSTEM_PROCESSOR ${KAVRIX_TRIPLET})
set(CMAKE_C_COMPILER ${KAVRIX_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${KAVRIX_TRIPLET}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${KAVRIX_TRIPLET})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${CMAKE_SYSTEM_PROCESSOR}-static)
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/${KAVRIX_TRIPLET}/pkgconfig)
