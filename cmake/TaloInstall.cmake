# What `cmake --install` puts where; the libraries install themselves (TaloLibrary). The list stands here and
# is read after all targets are known, so that a build without the panel installs the rest.
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)

set(TALO_INSTALL_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Talo")
set(TALO_INSTALL_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/talo")

function(talo_install)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/plugin" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/talo"
        FILES_MATCHING PATTERN "Plugin.hpp" PATTERN "QInputWidgetCreator.hpp" PATTERN "VInputValue.hpp")

    set_target_properties(qtalo_inputs PROPERTIES INSTALL_RPATH "$ORIGIN/..")
    install(TARGETS qtalo_inputs LIBRARY DESTINATION "${TALO_INSTALL_PLUGIN_DIR}")
    get_target_property(translations qtalo_inputs TALO_TRANSLATIONS)
    install(FILES ${translations} DESTINATION "${TALO_INSTALL_PLUGIN_DIR}")
    if(TARGET talo_panel)
        install(TARGETS talo_panel RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}")
    endif()

    install(EXPORT TaloTargets NAMESPACE Talo:: DESTINATION "${TALO_INSTALL_PACKAGE_DIR}")
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/TaloConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/TaloConfig.cmake"
        INSTALL_DESTINATION "${TALO_INSTALL_PACKAGE_DIR}"
        PATH_VARS TALO_INSTALL_PLUGIN_DIR)
    # Before 1.0 the interfaces may change with every minor version.
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/TaloConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
    install(FILES
        "${PROJECT_BINARY_DIR}/TaloConfig.cmake"
        "${PROJECT_BINARY_DIR}/TaloConfigVersion.cmake"
        "${PROJECT_SOURCE_DIR}/cmake/TaloPlugin.cmake"
        DESTINATION "${TALO_INSTALL_PACKAGE_DIR}")
endfunction()
cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL talo_install)
