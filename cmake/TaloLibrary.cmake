# talo_library(NAME SOURCES... FOLDER FOLDER COMPONENT COMPONENT [LINK libraries...] [OUTPUT_NAME NAME])
# A shared library, Talo::NAME. Its headers are the sources that end in .hpp; they are included by their path from
# FOLDER, which is relative to the project, and are installed with the library. COMPONENT is the component of the
# package that the library belongs to (TaloInstall).
function(talo_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "FOLDER;COMPONENT;OUTPUT_NAME" "LINK")
    set(headers ${arg_UNPARSED_ARGUMENTS})
    list(FILTER headers INCLUDE REGEX "\\.hpp$")
    cmake_path(ABSOLUTE_PATH arg_FOLDER BASE_DIRECTORY "${PROJECT_SOURCE_DIR}" NORMALIZE OUTPUT_VARIABLE root)
    string(REGEX REPLACE "/$" "" root "${root}")
    add_library(${name} SHARED ${arg_UNPARSED_ARGUMENTS})
    add_library(Talo::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC
        "$<BUILD_INTERFACE:${root}>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/talo>")
    target_compile_features(${name} PUBLIC cxx_std_17)
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE $<BUILD_INTERFACE:talo_compile>)
    # Every header can be included by itself.
    # Before 1.0 the interfaces may change with every minor version.
    set_target_properties(${name} PROPERTIES
        VERIFY_INTERFACE_HEADER_SETS ON
        # Only what is marked with TALO_EXPORT is exported.
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
        INSTALL_RPATH "$ORIGIN")
    if(arg_OUTPUT_NAME)
        set_target_properties(${name} PROPERTIES OUTPUT_NAME ${arg_OUTPUT_NAME})
    endif()
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${root}" FILES ${headers})
    if(TALO_INSTALL)
        install(TARGETS ${name} EXPORT Talo_${arg_COMPONENT}
            LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT ${arg_COMPONENT}
            FILE_SET HEADERS DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/talo" COMPONENT ${arg_COMPONENT})
    endif()
endfunction()
