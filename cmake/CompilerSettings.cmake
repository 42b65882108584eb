# One set of compiler settings for every target of the project.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# A built tree can be moved: programs find their libraries from where they stand.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)

# On Windows programs find the libraries that stand beside them.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
if(WIN32)
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
    set(CMAKE_SHARED_LIBRARY_PREFIX "")
    set(CMAKE_SHARED_MODULE_PREFIX "")
    add_compile_definitions(WIN32_LEAN_AND_MEAN NOMINMAX UNICODE _UNICODE)
else()
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
endif()
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/archive)

# By the kind of compiler: those in the manner of Microsoft's, and those in the manner of GCC. Floating-point arithmetic is
# the same to the bit on every build: no fused multiply-add, nothing rearranged.
if(MSVC)
    add_compile_options(/W4 /EHsc /permissive- /utf-8 /fp:precise)
else()
    add_compile_options(-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
                        -Wold-style-cast -Woverloaded-virtual -Wcast-qual -Wcast-align -Wformat=2 -Wundef -Wextra-semi
                        -Wredundant-decls -Wmissing-declarations -ffp-contract=off)
    # GCC 12 sees overlaps in the standard library's own string concatenation.
    add_compile_options(
        "$<$<CXX_COMPILER_ID:GNU>:-Wuseless-cast;-Wduplicated-cond;-Wduplicated-branches;-Wlogical-op;-Wno-restrict>")
endif()

# Files for one platform alone end in its name: takes those for another out of a list of sources.
function(keep_own_platform list)
    set(other windows)
    if(WIN32)
        set(other posix)
    endif()
    list(FILTER ${list} EXCLUDE REGEX "_${other}\\.cpp$")
    set(${list} ${${list}} PARENT_SCOPE)
endfunction()

# What is fuzzed tells the fuzzer which branches an input takes.
if(BLDATMAN_FUZZ)
    add_compile_options(-fsanitize=fuzzer-no-link)
endif()

if(BLDATMAN_SANITIZE)
    set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-Og -g1")  # quick to build, and with the assertions of the libraries
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
    # RapidJSON's empty stack adds to a null pointer.
    add_compile_options($<$<CXX_COMPILER_ID:Clang>:-fno-sanitize=pointer-overflow>)
endif()
