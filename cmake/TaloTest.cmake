find_package(GTest REQUIRED)
find_package(Qt${TALO_QT} ${TALO_QT_VERSION} REQUIRED COMPONENTS Test)
# Qt tells each test where it is built, which none asks for. Without that the compiler's cache serves several folders, and
# one precompiled header all of them.
get_target_property(definitions Qt${TALO_QT}::Test INTERFACE_COMPILE_DEFINITIONS)
list(FILTER definitions EXCLUDE REGEX "QT_TESTCASE_(BUILD|SOURCE)DIR=")
set_target_properties(Qt${TALO_QT}::Test PROPERTIES INTERFACE_COMPILE_DEFINITIONS "${definitions}")

set(TALO_TEST_PLATFORM offscreen CACHE STRING "Qt's platform for the tests; xcb needs a display with a window manager")

# Builds the tests that use threads, and nothing else.
add_custom_target(worker_tests)

# A sanitizer makes a program several times slower.
set(TALO_TEST_TIMEOUT 120)
if(TALO_SANITIZE)
    set(TALO_TEST_TIMEOUT 480)
endif()

# talo_test(NAME SOURCES... [LINK libraries...] [PLUGIN] [WITHOUT_APPLICATION] [ON_DISPLAY] [LONG]
#           [LABELS labels...] [ENVIRONMENT name=value...] [TIMEOUT seconds])
# A GoogleTest program under tests/ in the build folder and one CTest test of the same name that runs all of it. It sees
# nothing of the machine's settings: no display, language, time zone, home or Qt variable.
#   PLUGIN               builds qtalo_inputs first and gives its full path as `pluginFile` (tests/support/PluginFile.hpp)
#   WITHOUT_APPLICATION  main makes no QApplication
#   ON_DISPLAY           one more CTest test, NAME_on_display, runs it on a display with a window manager
#   DISPLAY_ONLY         the one CTest test, NAME, runs it on a display with a window manager
#   LONG                 starts before the others, so that they run beside it
#   LABELS               CTest's labels; `worker` marks a test that uses threads and runs under the thread sanitizer;
#                        those on a display have `display` besides
#   TIMEOUT              seconds, 120 unless given; a build with a sanitizer allows four times as many
function(talo_test name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "PLUGIN;WITHOUT_APPLICATION;ON_DISPLAY;DISPLAY_ONLY;LONG" "TIMEOUT" "LINK;LABELS;ENVIRONMENT")
    if(NOT arg_UNPARSED_ARGUMENTS)
        message(FATAL_ERROR "talo_test(${name}) names no source")
    endif()

    add_executable(${name} ${arg_UNPARSED_ARGUMENTS})
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
    set(main talo_test_main)
    if(arg_WITHOUT_APPLICATION)
        set(main talo_test_main_without_application)
    endif()
    target_link_libraries(${name} PRIVATE talo_compile_test ${arg_LINK} ${main} talo_test_support)
    target_precompile_headers(${name} REUSE_FROM talo_test_support)
    if(arg_PLUGIN)
        target_link_libraries(${name} PRIVATE qtalo_inputs_file)
    endif()
    if("worker" IN_LIST arg_LABELS)
        add_dependencies(worker_tests ${name})
    endif()

    set(tests)
    if(NOT arg_DISPLAY_ONLY)
        add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
        list(APPEND tests ${name})
    endif()
    set(on_display)
    if(arg_ON_DISPLAY OR arg_DISPLAY_ONLY)
        set(on_display ${name})
        if(arg_ON_DISPLAY)
            string(APPEND on_display _on_display)
        endif()
        add_test(NAME ${on_display} COMMAND "${PROJECT_SOURCE_DIR}/tests/support/on_display" $<TARGET_FILE:${name}>
            WORKING_DIRECTORY "${CMAKE_BINARY_DIR}/tests")
        list(APPEND tests ${on_display})
    endif()
    foreach(test IN LISTS tests)
        set(labels ${arg_LABELS})
        if(test STREQUAL on_display)
            list(APPEND labels display)
        endif()
        talo_test_surroundings(${test} LABELS ${labels} ENVIRONMENT ${arg_ENVIRONMENT} TIMEOUT ${arg_TIMEOUT})
    endforeach()
    if(arg_LONG)
        set_tests_properties(${tests} PROPERTIES COST 1000)
    endif()
endfunction()

# talo_plugin_file(PLUGIN)
# A library, PLUGIN_file, that says where the file of a plug-in is (tests/support/PluginFile.hpp). Of a test, the plug-in
# is built first.
function(talo_plugin_file plugin)
    add_library(${plugin}_file STATIC "${PROJECT_SOURCE_DIR}/tests/support/PluginFile.cpp"
        "${PROJECT_SOURCE_DIR}/tests/support/PluginFile.hpp")
    target_include_directories(${plugin}_file PRIVATE "${PROJECT_SOURCE_DIR}/tests")
    target_compile_definitions(${plugin}_file PRIVATE "TALO_PLUGIN_FILE=\"$<TARGET_FILE:${plugin}>\"")
    target_link_libraries(${plugin}_file PRIVATE talo_compile_test)
    add_dependencies(${plugin}_file ${plugin})
endfunction()

# talo_test_surroundings(TEST [LABELS labels...] [ENVIRONMENT name=value...] [TIMEOUT seconds])
# Gives a CTest test the time limit and the environment of all tests.
function(talo_test_surroundings test)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "LABELS;ENVIRONMENT")
    set(timeout ${TALO_TEST_TIMEOUT})
    if(arg_TIMEOUT)
        math(EXPR timeout "${arg_TIMEOUT} * ${TALO_TEST_TIMEOUT} / 120")
    endif()
    # The temporary home is made by main, fresh for every run.
    set(environment
        QT_QPA_PLATFORM=${TALO_TEST_PLATFORM}
        LC_ALL=C.UTF-8
        TZ=UTC
        ASAN_OPTIONS=detect_leaks=1:detect_stack_use_after_return=1
        LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/support/leaks.supp:print_suppressions=0
        UBSAN_OPTIONS=print_stacktrace=1
        # Qt is not built with the thread sanitizer and its locks are unknown to it.
        TSAN_OPTIONS=ignore_noninstrumented_modules=1
        ${arg_ENVIRONMENT})
    set(unset LANGUAGE QT_LOGGING_CONF QT_LOGGING_RULES QT_LOGGING_TO_CONSOLE QT_MESSAGE_PATTERN QT_FATAL_WARNINGS
        QT_QPA_PLATFORMTHEME QT_STYLE_OVERRIDE QT_PLUGIN_PATH QT_QPA_FONTDIR QT_IM_MODULE
        QT_FONT_DPI QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS QT_AUTO_SCREEN_SCALE_FACTOR QT_ENABLE_HIGHDPI_SCALING
        GTEST_FILTER GTEST_REPEAT GTEST_SHUFFLE GTEST_COLOR GTEST_TOTAL_SHARDS)
    foreach(variable IN LISTS arg_ENVIRONMENT)
        string(REGEX REPLACE "=.*" "" variable "${variable}")
        list(REMOVE_ITEM unset "${variable}")
    endforeach()
    list(TRANSFORM unset APPEND "=unset:")
    set_tests_properties(${test} PROPERTIES TIMEOUT ${timeout} LABELS "${arg_LABELS}"
        ENVIRONMENT "${environment}" ENVIRONMENT_MODIFICATION "${unset}")
endfunction()
