# What "cmake --install" puts where: one prefix with programs, libraries, headers and the CMake package JobEditorVE.
# Everything finds its neighbours from where it lies itself, so that the folder can be moved.

include(CMakePackageConfigHelpers)
set(JED_PLATFORM_LIBRARIES zubase values reportlayer jobxml freqstorexml spectraldetector velmogui quilappstartup
    mapviewinterface)
set(JED_HEADERS include/jobeditorve)
set(JED_PACKAGE lib/cmake/JobEditorVE)

set_target_properties(jed_platform PROPERTIES EXPORT_NAME Platform)
set_target_properties(JobEditorVEPluginBase PROPERTIES EXPORT_NAME PluginBase)
set_target_properties(${JED_PLATFORM_LIBRARIES} JobEditorVEPluginBase PROPERTIES INSTALL_RPATH "$ORIGIN")
set_target_properties(jobeditor jedtool mapview PROPERTIES INSTALL_RPATH "$ORIGIN/../lib")

install(TARGETS ${JED_PLATFORM_LIBRARIES} jed_platform JobEditorVEPluginBase jed_plugin_kit EXPORT JobEditorVETargets
        LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
install(TARGETS jobeditor jedtool mapview RUNTIME DESTINATION bin)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/" DESTINATION ${JED_HEADERS} FILES_MATCHING PATTERN "*.h")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/plugins/kit" DESTINATION ${JED_HEADERS} FILES_MATCHING PATTERN "*.h")
foreach(library IN LISTS JED_PLATFORM_LIBRARIES)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/platform/${library}" "${CMAKE_BINARY_DIR}/generated/${library}"
            DESTINATION ${JED_HEADERS} FILES_MATCHING PATTERN "*.h" PATTERN "*_p.h" EXCLUDE)
endforeach()
install(DIRECTORY "${CMAKE_BINARY_DIR}/lib/jobeditorve" DESTINATION lib USE_SOURCE_PERMISSIONS)
install(DIRECTORY "${PROJECT_SOURCE_DIR}/installation" DESTINATION share/jobeditorve)

# For the tests of plug-in authors.
if(TARGET jed_test_support)
    set_target_properties(jed_test_support PROPERTIES EXPORT_NAME TestSupport)
    install(TARGETS jed_test_support EXPORT JobEditorVETargets)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/tests/support" DESTINATION ${JED_HEADERS} FILES_MATCHING PATTERN "*.h")
endif()

install(EXPORT JobEditorVETargets NAMESPACE JobEditorVE:: DESTINATION ${JED_PACKAGE})
configure_package_config_file(cmake/JobEditorVEConfig.cmake.in "${CMAKE_BINARY_DIR}/JobEditorVEConfig.cmake"
    INSTALL_DESTINATION ${JED_PACKAGE})
write_basic_package_version_file("${CMAKE_BINARY_DIR}/JobEditorVEConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_BINARY_DIR}/JobEditorVEConfig.cmake" "${CMAKE_BINARY_DIR}/JobEditorVEConfigVersion.cmake"
              "${PROJECT_SOURCE_DIR}/cmake/JedPlugin.cmake" DESTINATION ${JED_PACKAGE})
