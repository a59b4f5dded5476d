# What `cmake --install` installs where; each library installs itself (TaloLibrary). The package has components, for
# find_package and for `cmake --install --component` alike:
#   core      tessera, lattice, bramble; the package's own files and the licence
#   network   the library network
#   widgets   sorrel, parameters
#   plugin    the plug-in file with its translations, and what plug-in authors need
#   panel     the program, and what makes it at home on a desktop (TaloDesktop)
#   examples  networks and sources to start from
include(CMakePackageConfigHelpers)
include(GNUInstallDirs)
include(TaloDesktop)

set(TALO_INSTALL_PACKAGE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/Talo")
set(TALO_INSTALL_PLUGIN_DIR "${CMAKE_INSTALL_LIBDIR}/talo")
set(TALO_INSTALL_DATA_DIR "${CMAKE_INSTALL_DATADIR}/talo")

# talo_installed_path(VARIABLE FROM TO)
# The path from one folder of the installation to another; both are given as CMAKE_INSTALL_LIBDIR is: relative to the
# prefix, or absolute.
function(talo_installed_path variable from to)
    cmake_path(ABSOLUTE_PATH from BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
    cmake_path(ABSOLUTE_PATH to BASE_DIRECTORY "${CMAKE_INSTALL_PREFIX}")
    file(RELATIVE_PATH path "${from}" "${to}")
    set(${variable} "${path}" PARENT_SCOPE)
endfunction()

function(talo_install_plugin)
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/plugin" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/talo" COMPONENT plugin
        FILES_MATCHING PATTERN "*.hpp")
    talo_installed_path(libraries "${TALO_INSTALL_PLUGIN_DIR}" "${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(qtalo_inputs PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    install(TARGETS qtalo_inputs LIBRARY DESTINATION "${TALO_INSTALL_PLUGIN_DIR}" COMPONENT plugin)
    get_target_property(translations qtalo_inputs TALO_TRANSLATIONS)
    install(FILES ${translations} DESTINATION "${TALO_INSTALL_PLUGIN_DIR}" COMPONENT plugin)
    install(FILES "${PROJECT_SOURCE_DIR}/cmake/TaloPlugin.cmake" DESTINATION "${TALO_INSTALL_PACKAGE_DIR}"
        COMPONENT plugin)
endfunction()

function(talo_install_program)
    talo_installed_path(libraries "${CMAKE_INSTALL_BINDIR}" "${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(talo_panel PROPERTIES INSTALL_RPATH "$ORIGIN/${libraries}")
    install(TARGETS talo_panel RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}" COMPONENT panel)
    talo_program_pages(talo_panel "edit the parameters of a network of objects" panel)
    talo_install_desktop()
endfunction()

# For builds with pkg-config. The files find the installation from where they are, so that it can be moved.
function(talo_install_pkgconfig)
    set(folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    talo_installed_path(TALO_PREFIX_FROM_PKGCONFIG "${folder}" "${CMAKE_INSTALL_PREFIX}")
    foreach(kind IN ITEMS LIB INCLUDE)
        set(TALO_PKGCONFIG_${kind}DIR "${CMAKE_INSTALL_${kind}DIR}")
        if(NOT IS_ABSOLUTE "${CMAKE_INSTALL_${kind}DIR}")
            set(TALO_PKGCONFIG_${kind}DIR "\${prefix}/${CMAKE_INSTALL_${kind}DIR}")
        endif()
    endforeach()
    foreach(component IN ITEMS core network widgets)
        configure_file("${PROJECT_SOURCE_DIR}/packaging/pkgconfig/talo-${component}.pc.in"
            "${PROJECT_BINARY_DIR}/talo-${component}.pc" @ONLY)
        install(FILES "${PROJECT_BINARY_DIR}/talo-${component}.pc" DESTINATION "${folder}" COMPONENT ${component})
    endforeach()
endfunction()

function(talo_install_package)
    foreach(component IN ITEMS core network widgets)
        install(EXPORT Talo_${component} NAMESPACE Talo:: DESTINATION "${TALO_INSTALL_PACKAGE_DIR}"
            COMPONENT ${component})
    endforeach()
    configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/TaloConfig.cmake.in"
        "${PROJECT_BINARY_DIR}/TaloConfig.cmake"
        INSTALL_DESTINATION "${TALO_INSTALL_PACKAGE_DIR}"
        PATH_VARS TALO_INSTALL_PLUGIN_DIR)
    # Before 1.0 the interfaces may change with every minor version.
    write_basic_package_version_file("${PROJECT_BINARY_DIR}/TaloConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
    install(FILES "${PROJECT_BINARY_DIR}/TaloConfig.cmake" "${PROJECT_BINARY_DIR}/TaloConfigVersion.cmake"
        DESTINATION "${TALO_INSTALL_PACKAGE_DIR}" COMPONENT core)
    install(FILES "${PROJECT_SOURCE_DIR}/LICENSE" DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT core)
endfunction()

# Called after all targets are known, so that a build without the panel installs the rest.
function(talo_install)
    talo_install_plugin()
    if(TARGET talo_panel)
        talo_install_program()
    endif()
    if(TARGET talo_check)
        talo_program_pages(talo_check "check a plug-in file" plugin)
    endif()
    talo_install_package()
    talo_install_pkgconfig()
    install(DIRECTORY "${PROJECT_SOURCE_DIR}/examples" DESTINATION "${TALO_INSTALL_DATA_DIR}" COMPONENT examples)
endfunction()
if(TALO_INSTALL)
    cmake_language(DEFER DIRECTORY "${PROJECT_SOURCE_DIR}" CALL talo_install)
endif()
