# Puts text files into a target as constants: `embed_text(target header.h file...)` makes a header, to be included by that
# name, with a `constexpr std::string_view` for each file, named after it: report.css becomes `report_css`.
function(embed_text target header)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/embedded)
    set(constants)
    foreach(file IN LISTS ARGN)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${file})
        get_filename_component(name ${file} NAME)
        string(REPLACE "." "_" name ${name})
        file(READ ${file} text)
        string(APPEND constants "constexpr std::string_view ${name} = R\"embedded(${text})embedded\";\n")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/${header} @ONLY
         CONTENT "// Made from text files of the sources.\n#pragma once\n\n#include <string_view>\n\n@constants@")
    target_include_directories(${target} PRIVATE ${folder})
endfunction()
