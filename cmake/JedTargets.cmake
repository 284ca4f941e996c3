# One function per kind of target. Each takes care of flags, exports, include paths and test environment, so that
# the CMakeLists.txt of a folder lists its files and what it uses, and nothing else.

include(GenerateExportHeader)

# What "check --all" builds optimised: the slow tests and the benchmarks.
add_custom_target(jed_slow_tests)
add_custom_target(jed_benchmarks)
# The GUI components, which programs load at run time.
add_custom_target(jed_components)

# jed_add_platform_library(<name> SOURCES <file>... [USES <target>...])
# One of the libraries that stand in for the installation's. Headers are included with their folder
# (<values/node.h>); <name>/<name>_export.h is generated.
function(jed_add_platform_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES;PRIVATE_USES" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_options(${name} PRIVATE -g)
    generate_export_header(${name} EXPORT_FILE_NAME "${CMAKE_BINARY_DIR}/generated/${name}/${name}_export.h")
    target_include_directories(${name} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/platform>"
        "$<BUILD_INTERFACE:${CMAKE_BINARY_DIR}/generated>"
        "$<INSTALL_INTERFACE:include/jobeditorve>")
    target_link_libraries(${name} PUBLIC ${ARG_USES} PRIVATE ${ARG_PRIVATE_USES})
    target_link_libraries(jed_platform INTERFACE ${name})
endfunction()

# jed_add_component(<name> LETTERS <text> HUE <number> SETS <parameter set>...)
# A GUI component: a shared library that is loaded by its name, with the common editor for each of its sets.
function(jed_add_component name)
    cmake_parse_arguments(ARG "" "LETTERS;HUE" "SETS" ${ARGN})
    list(JOIN ARG_SETS "," sets)
    add_library(${name} MODULE "${PROJECT_SOURCE_DIR}/platform/components/component.cpp")
    file(CONFIGURE OUTPUT ${name}/component.json CONTENT "{\"interfaceVersion\": 1}\n")
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    target_compile_definitions(${name} PRIVATE
        COMPONENT_SETS="${sets}" COMPONENT_LETTERS="${ARG_LETTERS}" COMPONENT_HUE=${ARG_HUE})
    target_link_libraries(${name} PRIVATE velmogui)
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/jobeditorve/components")
    add_dependencies(jed_components ${name})
endfunction()

# jed_add_product(<name> SOURCES <file>... USES <target>...)
# The plug-in base library itself.
function(jed_add_product name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_library(${name} SHARED ${ARG_SOURCES})
    add_library(JobEditorVE::PluginBase ALIAS ${name})
    set_target_properties(${name} PROPERTIES AUTOMOC ON AUTORCC ON)
    target_compile_options(${name} PRIVATE -g)
    target_compile_definitions(${name} PRIVATE JEDVEPB_BUILD)
    target_include_directories(${name}
        PUBLIC "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/include>" "$<INSTALL_INTERFACE:include/jobeditorve>"
        PRIVATE "${PROJECT_SOURCE_DIR}/source")
    target_link_libraries(${name} PUBLIC ${ARG_USES})
endfunction()

# jed_add_static_library(<name> SOURCES <file>... USES <target>...)
# Code shared by applications. Included with its folder, from apps/ (<session/jobdocument.h>).
function(jed_add_static_library name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_library(${name} STATIC ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_options(${name} PRIVATE -g1)
    target_include_directories(${name} PUBLIC "${PROJECT_SOURCE_DIR}/apps")
    target_link_libraries(${name} PUBLIC ${ARG_USES})
endfunction()

# jed_add_application(<name> SOURCES <file>... USES <target>...)
function(jed_add_application name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES AUTOMOC ON)
    target_compile_options(${name} PRIVATE -g1)
    target_compile_definitions(${name} PRIVATE
        JED_VERSION="${PROJECT_VERSION}" JED_EXAMPLE_INSTALLATION="${PROJECT_SOURCE_DIR}/installation")
    target_link_libraries(${name} PRIVATE ${ARG_USES})
    add_dependencies(${name} jed_components)
endfunction()

# jed_add_test(<name> [SOURCES <file>...] [USES <target>...] [LABELS <label>...] [TIMEOUT <seconds>])
# A QtTest class in <name>.cpp, run in a process of its own. The label "slow" marks tests that take a tenth of
# their count unless JED_SLOW_TESTS is set in the environment. JED_SOURCE_DIR names the root of the tree.
function(jed_add_test name)
    cmake_parse_arguments(ARG "" "TIMEOUT" "SOURCES;USES;LABELS" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    target_compile_options(${name} PRIVATE ${JED_TEST_FLAGS})
    target_compile_definitions(${name} PRIVATE ${JED_TEST_DEFINITIONS})
    target_link_libraries(${name} PRIVATE ${ARG_USES} Qt5::Test)
    target_precompile_headers(${name} REUSE_FROM jed_test_pch)
    add_test(NAME ${name} COMMAND ${name} -silent)
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 300)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} LABELS "${ARG_LABELS}"
                         ENVIRONMENT "${JED_TEST_ENVIRONMENT}")
    if("slow" IN_LIST ARG_LABELS)
        add_dependencies(jed_slow_tests ${name})
    endif()
endfunction()

# jed_add_script_test(<name> COMMAND <program> <argument>... [LABELS <label>...])
# A check that is a script of its own (layers, exported interface, generator); always labelled "script".
function(jed_add_script_test name)
    cmake_parse_arguments(ARG "" "" "COMMAND;LABELS" ${ARGN})
    add_test(NAME ${name} COMMAND ${ARG_COMMAND})
    set_tests_properties(${name} PROPERTIES TIMEOUT 600 LABELS "script;${ARG_LABELS}"
                         ENVIRONMENT "${JED_TEST_ENVIRONMENT}")
endfunction()

# jed_add_benchmark(<name> [SOURCES <file>...] USES <target>...)
# A Google Benchmark program in <name>.cpp. dev/measure runs them all and prints the ratios that matter.
function(jed_add_benchmark name)
    cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
    add_executable(${name} ${name}.cpp ${ARG_SOURCES})
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/benchmarks")
    target_compile_definitions(${name} PRIVATE JED_SOURCE_DIR="${PROJECT_SOURCE_DIR}")
    target_link_libraries(${name} PRIVATE ${ARG_USES} benchmark::benchmark)
    add_dependencies(jed_benchmarks ${name})
endfunction()
