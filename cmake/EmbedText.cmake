# Puts text files into a target as constants: `embed_text(target header.h file...)` makes <embedded/header.h> with an
# `embedded::` text for each file, named after it: report.css becomes `embedded::report_css`.
function(embed_text target header)
    set(folder ${CMAKE_CURRENT_BINARY_DIR}/made)
    set(constants)
    foreach(file IN LISTS ARGN)
        set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${file})
        get_filename_component(name ${file} NAME)
        string(REPLACE "." "_" name ${name})
        file(READ ${file} text)
        string(APPEND constants "inline constexpr std::string_view ${name} = R\"embedded(${text})embedded\";\n")
    endforeach()
    file(CONFIGURE OUTPUT ${folder}/embedded/${header} @ONLY
         CONTENT "#pragma once\n\n#include <string_view>\n\nnamespace embedded {\n\n@constants@\n}\n")
    target_include_directories(${target} PRIVATE ${folder})
endfunction()
