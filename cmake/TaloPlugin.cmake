# talo_add_plugin(NAME SOURCES... [OUTPUT_NAME FILE])
# A plug-in file FILE.talo for the host; FILE is NAME unless given. The project's own plug-in is built by this very
# function, and it is installed with the package, so that a plug-in from elsewhere gets the same flags.
#
# One of the sources says TALO_PLUGIN(FILE), of <plugin/Plugin.hpp>; without it the plug-in does not link. The function
# that this defines is the only symbol that the file exports. Everything else in it is hidden, and it has no symbol that
# the loader must keep unique: a single one of those would keep the file in memory after the host closed it.
function(talo_add_plugin name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "OUTPUT_NAME" "")
    if(NOT arg_OUTPUT_NAME)
        set(arg_OUTPUT_NAME ${name})
    endif()
    add_library(${name} MODULE ${arg_UNPARSED_ARGUMENTS})
    set_target_properties(${name} PROPERTIES PREFIX "" SUFFIX ".talo" OUTPUT_NAME ${arg_OUTPUT_NAME} AUTOMOC ON)
    target_compile_features(${name} PRIVATE cxx_std_17)
    target_compile_options(${name} PRIVATE -fvisibility=hidden -fvisibility-inlines-hidden
        $<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)

    set(map "${CMAKE_CURRENT_BINARY_DIR}/${name}.map")
    file(CONFIGURE OUTPUT "${map}" CONTENT "{ global: TALO_API_2023_MAR_29__${arg_OUTPUT_NAME}; local: *; };\n")
    target_link_options(${name} PRIVATE "LINKER:--version-script=${map}"
        "LINKER:--require-defined=TALO_API_2023_MAR_29__${arg_OUTPUT_NAME}")
    # With a sanitizer clang leaves its run-time library to the program, and a file without undefined symbols cannot be
    # linked.
    if(NOT (CMAKE_CXX_COMPILER_ID STREQUAL "Clang" AND (TALO_SANITIZE OR CMAKE_CXX_FLAGS MATCHES "-fsanitize")))
        target_link_options(${name} PRIVATE LINKER:-z,defs)
    endif()
    set_target_properties(${name} PROPERTIES LINK_DEPENDS "${map}")
    target_link_libraries(${name} PRIVATE Talo::sorrel Talo::bramble Talo::lattice Talo::tessera)
endfunction()
