# Programs that feed what reads foreign bytes with what libFuzzer makes up; scripts/fuzz runs them. They need clang.
if(NOT CMAKE_CXX_COMPILER_ID STREQUAL "Clang")
    message(FATAL_ERROR "The fuzzers need clang; the preset fuzz chooses it.")
endif()
# libFuzzer sees which lines are executed of everything, the libraries included.
target_compile_options(talo_warnings INTERFACE -fsanitize=fuzzer-no-link)
add_custom_target(fuzzers)

# talo_fuzzer(NAME [SOURCES...] [LINK libraries...])
# The program NAME_fuzz, of tests/fuzz/NAME_fuzz.cpp and of sources of the project.
function(talo_fuzzer name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINK")
    list(TRANSFORM arg_UNPARSED_ARGUMENTS PREPEND "${PROJECT_SOURCE_DIR}/")
    add_executable(${name}_fuzz EXCLUDE_FROM_ALL "${PROJECT_SOURCE_DIR}/tests/fuzz/${name}_fuzz.cpp"
        ${arg_UNPARSED_ARGUMENTS})
    target_include_directories(${name}_fuzz PRIVATE "${PROJECT_SOURCE_DIR}" "${PROJECT_SOURCE_DIR}/host")
    target_link_libraries(${name}_fuzz PRIVATE talo_compile ${arg_LINK})
    target_link_options(${name}_fuzz PRIVATE -fsanitize=fuzzer)
    add_dependencies(fuzzers ${name}_fuzz)
endfunction()

talo_fuzzer(ElfFile host/lattice/ElfFile.cpp LINK tessera)
talo_fuzzer(GimpPalette fractal/engine/GimpPalette.cpp LINK network Qt${TALO_QT}::Gui)
talo_fuzzer(NetworkFile LINK network)
talo_fuzzer(NumberSelection qVinputs/basics/NumberSelection.cpp)
talo_fuzzer(PastedValue parameters/commands/TypedJson.cpp LINK network)
