# Language level, warnings and sanitizers: the same for every target of this tree.

option(JED_BUILD_TESTS "Build the tests" ON)
option(JED_BUILD_BENCHMARKS "Build the benchmarks (needs Google Benchmark)" OFF)
option(JED_SANITIZE "Build with AddressSanitizer and UndefinedBehaviorSanitizer" OFF)
option(JED_COVERAGE "Build with coverage counters" OFF)
option(JED_WARNINGS_AS_ERRORS "Stop at the first warning" ON)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
# The tree can be moved, and components and plug-ins be installed as they are built.
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")

add_compile_definitions(QT_NO_CAST_TO_ASCII QT_NO_FOREACH)
if(CMAKE_CXX_COMPILER_ID MATCHES "GNU|Clang")
    # The exported interface returns values as "const T" where plug-ins link against it, hence the exception.
    add_compile_options(-Wall -Wextra -Wpedantic -Wno-ignored-qualifiers)
    if(JED_WARNINGS_AS_ERRORS)
        add_compile_options(-Werror)
    endif()
endif()

if(JED_SANITIZE)
    set(JED_SANITIZER_FLAGS -fsanitize=address,undefined,float-cast-overflow -fno-sanitize-recover=all
                            -fno-omit-frame-pointer)
    add_compile_options(${JED_SANITIZER_FLAGS})
    add_link_options(${JED_SANITIZER_FLAGS})
else()
    add_link_options($<$<AND:$<CXX_COMPILER_ID:GNU>,$<PLATFORM_ID:Linux>>:-Wl,--no-undefined>)
endif()
if(JED_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()

# A compiler cache pays off most with two cores; the settings make it work with precompiled headers and make
# several checkouts of the project share it.
find_program(JED_CCACHE ccache)
if(JED_CCACHE)
    set(CMAKE_CXX_COMPILER_LAUNCHER
        ${CMAKE_COMMAND} -E env CCACHE_BASEDIR=${CMAKE_SOURCE_DIR} CCACHE_NOHASHDIR=1
        CCACHE_SLOPPINESS=pch_defines,time_macros ${JED_CCACHE})
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
