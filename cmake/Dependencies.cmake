# The libraries that the sources include; all but the test framework are header-only.

find_path(BOOST_HEADERS boost/math/distributions/students_t.hpp REQUIRED)
find_path(RAPIDJSON_HEADERS rapidjson/document.h REQUIRED)
find_path(CLI11_HEADERS CLI/CLI.hpp REQUIRED)
find_path(MUSTACHE_HEADERS kainjow/mustache.hpp REQUIRED)

function(bldatman_header_library name folder)
    add_library(${name} INTERFACE)
    if(NOT folder IN_LIST CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
        target_include_directories(${name} SYSTEM INTERFACE ${folder})
    endif()
endfunction()

bldatman_header_library(boost_headers ${BOOST_HEADERS})
bldatman_header_library(rapidjson ${RAPIDJSON_HEADERS})
bldatman_header_library(cli11 ${CLI11_HEADERS})
bldatman_header_library(mustache ${MUSTACHE_HEADERS})

# One definition of RapidJSON's types in the module and in the host.
target_compile_definitions(rapidjson INTERFACE RAPIDJSON_HAS_STDSTRING=1)

find_package(GTest)
