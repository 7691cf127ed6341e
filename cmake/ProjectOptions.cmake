# Options, warnings and instrumentation shared by every target of the project.

option(VORN_BUILD_TESTS "Build the tests" ON)
option(VORN_BUILD_DESKTOP "Build the desktop host (Qt 5, Qwt)" OFF)
option(VORN_BUILD_BENCHMARKS "Build the benchmark programs" OFF)
option(VORN_BUILD_FUZZERS "Build the fuzz targets (clang only)" OFF)
option(VORN_WARNINGS_AS_ERRORS "Treat compiler warnings as errors" OFF)
set(VORN_SANITIZERS "" CACHE STRING "Sanitizers for every target, e.g. address,undefined")
option(VORN_COVERAGE "Instrument for line coverage" OFF)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

if(NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE Release CACHE STRING "Build type" FORCE)
endif()

# The libraries of the desktop are found beside the programs, wherever the tree is installed or moved to, and
# no other program finds them.
set(VORN_PRIVATE_LIBDIR ${CMAKE_INSTALL_LIBDIR}/vorn)
file(RELATIVE_PATH VORN_LIBRARIES_FROM_PROGRAMS /${CMAKE_INSTALL_BINDIR} /${VORN_PRIVATE_LIBDIR})

find_program(VORN_CCACHE ccache)
if(VORN_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    set(CMAKE_CXX_COMPILER_LAUNCHER "${VORN_CCACHE}")
endif()

# Source names in failure texts are relative to the project's root, whatever machine built them.
# A compiler cache that clones share hands the compiler relative names.
add_compile_options("-fmacro-prefix-map=${PROJECT_SOURCE_DIR}/=")
file(RELATIVE_PATH VORN_SOURCES_FROM_BUILD ${PROJECT_BINARY_DIR} ${PROJECT_SOURCE_DIR})
if(VORN_SOURCES_FROM_BUILD)
    add_compile_options("-fmacro-prefix-map=${VORN_SOURCES_FROM_BUILD}=")
endif()

if(VORN_SANITIZERS)
    add_compile_options("-fsanitize=${VORN_SANITIZERS}" -fno-omit-frame-pointer
        -fno-sanitize-recover=all)
    # GCC takes the branches that the sanitizers add for ways to leave a value unset. Other builds warn.
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    add_link_options("-fsanitize=${VORN_SANITIZERS}")
endif()
if(VORN_COVERAGE)
    add_link_options(--coverage)
endif()

# Instruments a folder, and those below it, if lines are counted at all: what nobody asks about needn't be
# slowed down, nor compiled for this alone.
macro(vorn_count_lines)
    if(VORN_COVERAGE)
        add_compile_options(--coverage)
    endif()
endmacro()

# Warnings belong to the project's own targets; users of the installed headers choose theirs. One of newer
# versions of GCC takes every reference from a function with a temporary argument for a reference to that.
add_library(vorn_warnings INTERFACE)
target_compile_options(vorn_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion
    $<$<AND:$<CXX_COMPILER_ID:GNU>,$<VERSION_GREATER_EQUAL:$<CXX_COMPILER_VERSION>,13>>:-Wno-dangling-reference>
    $<$<BOOL:${VORN_WARNINGS_AS_ERRORS}>:-Werror>)
