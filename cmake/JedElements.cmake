# jed_generate_elements(<target> NAMESPACE <name> SCHEMAS <file>...)
# Adds the classes of the file elements that the schemas describe. They are made at build time, one header and one
# source for each schema, below <build>/generated/<target>.
function(jed_generate_elements target)
    cmake_parse_arguments(ARG "" "NAMESPACE" "SCHEMAS" ${ARGN})
    set(folder "${CMAKE_BINARY_DIR}/generated/${target}")
    set(generator "${PROJECT_SOURCE_DIR}/platform/generator")
    set(outputs)
    set(schemas)
    foreach(schema IN LISTS ARG_SCHEMAS)
        get_filename_component(path "${schema}" ABSOLUTE)
        get_filename_component(stem "${schema}" NAME_WE)
        list(APPEND schemas "${path}")
        list(APPEND outputs "${folder}/${stem}.h" "${folder}/${stem}.cpp")
    endforeach()
    add_custom_command(OUTPUT ${outputs}
        COMMAND ${Python3_EXECUTABLE} -B "${generator}/generate.py"
                --namespace ${ARG_NAMESPACE} --library ${target} --output "${folder}" ${schemas}
        DEPENDS ${schemas} "${generator}/generate.py" "${generator}/schemamodel.py"
        COMMENT "Making the element classes of ${target}" VERBATIM)
    set_source_files_properties(${outputs} PROPERTIES SKIP_AUTOMOC ON)
    target_sources(${target} PRIVATE ${outputs})
endfunction()
