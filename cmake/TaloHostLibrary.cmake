include(GNUInstallDirs)

# talo_host_library(NAME SOURCES... [LINK libraries...])
# A shared library of the host. Its headers are the sources that end in .hpp and are included as <NAME/Header.hpp>.
function(talo_host_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
    set(headers ${arg_UNPARSED_ARGUMENTS})
    list(FILTER headers INCLUDE REGEX "\\.hpp$")
    add_library(${name} SHARED ${arg_UNPARSED_ARGUMENTS})
    add_library(Talo::${name} ALIAS ${name})
    target_include_directories(${name} PUBLIC
        "$<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/host>"
        "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/talo>")
    target_compile_features(${name} PUBLIC cxx_std_17)
    target_link_libraries(${name} PUBLIC ${arg_LINK} PRIVATE $<BUILD_INTERFACE:talo_compile>)
    set_target_properties(${name} PROPERTIES VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR})
    target_sources(${name} PUBLIC FILE_SET HEADERS BASE_DIRS "${PROJECT_SOURCE_DIR}/host" FILES ${headers})
    install(TARGETS ${name} EXPORT TaloTargets
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        FILE_SET HEADERS DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/talo)
endfunction()
