# Builds Kavrix::JsonCpp from its sources in KAVRIX_JSONCPP_SOURCE_DIR, with the flags of this build: the fuzzers see
# which code of the parser a payload reaches, and the sanitizers check its memory too.
file(GLOB jsoncpp_sources ${KAVRIX_JSONCPP_SOURCE_DIR}/src/lib_json/*.cpp)
add_library(jsoncpp_from_source STATIC ${jsoncpp_sources})
target_include_directories(jsoncpp_from_source SYSTEM PUBLIC ${KAVRIX_JSONCPP_SOURCE_DIR}/include)
target_compile_options(jsoncpp_from_source PRIVATE -w)
add_library(Kavrix::JsonCpp INTERFACE IMPORTED GLOBAL)
target_link_libraries(Kavrix::JsonCpp INTERFACE jsoncpp_from_source)
set(KavrixJsonCpp_TARGET jsoncpp_from_source)
