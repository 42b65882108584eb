# The libraries that the sources include; all but the test framework are header-only.

# For another system the headers of this one are not to be seen, apart from those of these libraries: they are reached
# through links in the build tree.
function(bldatman_header_library name folder header)
    find_path(${name}_HEADERS ${folder}/${header} HINTS /usr/include REQUIRED)
    add_library(${name} INTERFACE)
    if(CMAKE_CROSSCOMPILING)
        file(MAKE_DIRECTORY ${CMAKE_BINARY_DIR}/headers)
        file(CREATE_LINK ${${name}_HEADERS}/${folder} ${CMAKE_BINARY_DIR}/headers/${folder} SYMBOLIC)
        target_include_directories(${name} SYSTEM INTERFACE ${CMAKE_BINARY_DIR}/headers)
    elseif(NOT ${name}_HEADERS IN_LIST CMAKE_CXX_IMPLICIT_INCLUDE_DIRECTORIES)
        target_include_directories(${name} SYSTEM INTERFACE ${${name}_HEADERS})
    endif()
endfunction()

bldatman_header_library(boost_headers boost math/distributions/students_t.hpp)
bldatman_header_library(rapidjson rapidjson document.h)

# One definition of RapidJSON's types in the module and in the host.
target_compile_definitions(rapidjson INTERFACE RAPIDJSON_HAS_STDSTRING=1)

# The module needs no more.
if(BLDATMAN_MODULE_ONLY)
    return()
endif()

bldatman_header_library(cli11 CLI CLI.hpp)
bldatman_header_library(mustache kainjow mustache.hpp)
bldatman_header_library(utf8cpp utf8cpp utf8.h)

# The test framework comes built for this system, and for another one as sources.
if(NOT CMAKE_CROSSCOMPILING)
    find_package(GTest)
elseif(EXISTS /usr/src/googletest/CMakeLists.txt)
    set(INSTALL_GTEST OFF)
    set(BUILD_SHARED_LIBS OFF)
    add_subdirectory(/usr/src/googletest ${CMAKE_BINARY_DIR}/googletest EXCLUDE_FROM_ALL)
    foreach(target gtest gtest_main gmock gmock_main)
        target_compile_options(${target} PRIVATE -w)
    endforeach()
    set(GTest_FOUND TRUE)
endif()
