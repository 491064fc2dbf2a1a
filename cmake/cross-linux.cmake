# Cross-compiles with Debian's compilers: -DKAVRIX_TRIPLET=aarch64-linux-gnu, say. KAVRIX_LIBRARIES is the folder, like /usr,
# where the other architecture's libraries are unpacked.
set(CMAKE_SYSTEM_NAME Linux)
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KAVRIX_TRIPLET KAVRIX_LIBRARIES)
string(REGEX MATCH "^[a-z0-9]+" CMAKE_SYSTEM_PROCESSOR ${KAVRIX_TRIPLET})
set(CMAKE_C_COMPILER ${KAVRIX_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${KAVRIX_TRIPLET}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${KAVRIX_TRIPLET})
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${CMAKE_SYSTEM_PROCESSOR}-static)
set(ENV{PKG_CONFIG_LIBDIR} ${KAVRIX_LIBRARIES}/lib/${KAVRIX_TRIPLET}/pkgconfig)
# What those libraries need themselves stands there too.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--disable-new-dtags,-rpath,${KAVRIX_LIBRARIES}/lib/${KAVRIX_TRIPLET}:${KAVRIX_LIBRARIES}/../lib/${KAVRIX_TRIPLET}")
