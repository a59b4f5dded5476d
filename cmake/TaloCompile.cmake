# One interface target holds how every target of the project is compiled.
add_library(talo_compile INTERFACE)
target_compile_features(talo_compile INTERFACE cxx_std_17)
target_compile_options(talo_compile INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    -Wconversion -Wdouble-promotion -Wformat=2
    $<$<BOOL:${TALO_WARNINGS_AS_ERRORS}>:-Werror>
    # Values must not depend on whether the target can fuse a multiplication with an addition.
    -ffp-contract=off)
target_compile_definitions(talo_compile INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY)

if(TALO_SANITIZE)
    target_compile_options(talo_compile INTERFACE -fsanitize=${TALO_SANITIZE} -fno-omit-frame-pointer
        -fno-sanitize-recover=all
        # The code that the sanitizers add makes g++ see uninitialised members in the standard library.
        -Wno-maybe-uninitialized)
    target_link_options(talo_compile INTERFACE -fsanitize=${TALO_SANITIZE})
endif()
if(TALO_COVERAGE)
    # Threads that count the same line must not lose or turn round each other's counts.
    target_compile_options(talo_compile INTERFACE --coverage -Og -fprofile-update=atomic)
    target_link_options(talo_compile INTERFACE --coverage)
endif()

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
if(PROJECT_IS_TOP_LEVEL)
    find_program(TALO_CCACHE ccache)
endif()
if(TALO_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
    # The base folder lets work trees share the cache; without the rest it does not serve sources that use the
    # precompiled header of the tests.
    set(CMAKE_CXX_COMPILER_LAUNCHER env "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}"
        CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime
        "${TALO_CCACHE}")
endif()
