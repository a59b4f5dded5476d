# Interface targets hold how every target of the project is compiled: talo_compile the product, talo_compile_test the
# tests.
add_library(talo_warnings INTERFACE)
target_compile_features(talo_warnings INTERFACE cxx_std_17)
target_compile_options(talo_warnings INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wunused
    -Wconversion -Wdouble-promotion -Wformat=2
    $<$<BOOL:${TALO_WARNINGS_AS_ERRORS}>:-Werror>
    # Values must not depend on whether the target can fuse a multiplication with an addition.
    -ffp-contract=off)
target_compile_definitions(talo_warnings INTERFACE QT_NO_CAST_TO_ASCII QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT)

add_library(talo_compile INTERFACE)
add_library(talo_compile_test INTERFACE)
target_link_libraries(talo_compile INTERFACE talo_warnings)
# The product says which bytes become a text; in the tests a literal is as good as one.
target_compile_definitions(talo_compile INTERFACE QT_NO_CAST_FROM_ASCII)
target_link_libraries(talo_compile_test INTERFACE talo_warnings)

# talo_sanitize(TARGET SANITIZERS)
function(talo_sanitize target sanitizers)
    target_compile_options(${target} INTERFACE -fsanitize=${sanitizers} -fno-omit-frame-pointer
        -fno-sanitize-recover=all
        # The code that the sanitizers add makes g++ see uninitialised members in the standard library.
        $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
    # What is linked together needs the run-time libraries of all.
    target_link_options(${target} INTERFACE -fsanitize=${TALO_SANITIZE})
endfunction()

if(TALO_SANITIZE)
    talo_sanitize(talo_compile ${TALO_SANITIZE})
    target_link_options(talo_compile_test INTERFACE -fsanitize=${TALO_SANITIZE})
    if(TALO_SANITIZE MATCHES thread)
        # The threads that race are those of the tests. What is reported is in the product, whose lines it names.
        talo_sanitize(talo_compile_test ${TALO_SANITIZE})
        target_compile_options(talo_compile_test INTERFACE -g0)
    endif()
endif()
if(TALO_COVERAGE)
    # Threads that count the same line must not lose or turn round each other's counts.
    target_compile_options(talo_compile INTERFACE --coverage -fprofile-update=atomic)
    target_link_options(talo_compile INTERFACE --coverage)
    target_link_options(talo_compile_test INTERFACE --coverage)
endif()

# There are more than a hundred test programs, and mold links each in a tenth of the time.
find_program(TALO_MOLD mold)
if(TALO_MOLD)
    target_link_options(talo_compile_test INTERFACE
        $<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:-fuse-ld=mold>)
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
        CCACHE_PCH_EXTSUM=1 "${CMAKE_CURRENT_LIST_DIR}/compile" "${TALO_CCACHE}")
endif()
