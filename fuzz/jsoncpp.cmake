# Compiles JsonCpp from its sources in KAVRIX_JSONCPP_SOURCE_DIR into the fuzzers, in place of the package: they see
# which code of the parser a payload reaches, and the sanitizers check its memory too. The version is the package's.
file(GLOB jsoncpp_sources ${KAVRIX_JSONCPP_SOURCE_DIR}/src/lib_json/*.cpp)
add_library(jsoncpp_from_source OBJECT ${jsoncpp_sources})
target_compile_features(jsoncpp_from_source PRIVATE cxx_std_17)
target_include_directories(jsoncpp_from_source SYSTEM PRIVATE ${KAVRIX_JSONCPP_SOURCE_DIR}/include)
target_compile_options(jsoncpp_from_source PRIVATE -w)
