# For plug-ins, in this tree and out of it.

set(JED_PLUGIN_FOLDER "lib/jobeditorve/plugins-${JED_INTERFACE_VERSION}")

# jed_add_plugin(<name> SOURCES <file>... [USES <target>...] [DISPLAY_NAME <text>] [DESCRIPTION <text>])
# A plug-in of the job editor: a shared library that is loaded at run time. Writes "plugin.json", the metadata that
# Q_PLUGIN_METADATA(IID IJobEditorPlugin_iid FILE "plugin.json") names. USES: JobEditorVE::PluginKit if nothing is
# said.
function(jed_add_plugin name)
    cmake_parse_arguments(ARG "" "DISPLAY_NAME;DESCRIPTION" "SOURCES;USES" ${ARGN})
    if(NOT ARG_USES)
        set(ARG_USES JobEditorVE::PluginKit)
    endif()
    if(NOT ARG_DISPLAY_NAME)
        set(ARG_DISPLAY_NAME ${name})
    endif()
    add_library(${name} MODULE ${ARG_SOURCES})
    file(CONFIGURE OUTPUT ${name}/plugin.json @ONLY CONTENT
        [[{"interfaceVersion": @JED_INTERFACE_VERSION@, "name": "@ARG_DISPLAY_NAME@", "description": "@ARG_DESCRIPTION@"}
]])
    target_include_directories(${name} PRIVATE "${CMAKE_CURRENT_BINARY_DIR}/${name}")
    set_target_properties(${name} PROPERTIES
        AUTOMOC ON CXX_VISIBILITY_PRESET hidden VISIBILITY_INLINES_HIDDEN ON
        LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/${JED_PLUGIN_FOLDER}")
    target_compile_features(${name} PRIVATE cxx_std_17)
    target_link_libraries(${name} PRIVATE ${ARG_USES})
endfunction()
