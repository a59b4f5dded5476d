# Shared by the scripts of this folder. CTest passes how the project itself is built, so that they can build code that
# links with it: GENERATOR, COMPILER, LAUNCHER, SANITIZE, COVERAGE.

# run(COMMAND ARGUMENTS...): runs a command that must succeed; its standard output is in `output`.
function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}${errors}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

# run_and_expect(EXPRESSION COMMAND ARGUMENTS...): runs a command that must succeed and print what matches.
function(run_and_expect expression)
    run(${ARGN})
    if(NOT output MATCHES "${expression}")
        message(FATAL_ERROR "${ARGN} printed nothing that matches '${expression}':\n${output}")
    endif()
endfunction()

# refuse_and_expect(EXPRESSION COMMAND ARGUMENTS...): runs a command that must fail with a message that matches. The
# message may be wrapped at any space.
function(refuse_and_expect expression)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(status EQUAL 0)
        message(FATAL_ERROR "${ARGN} succeeded:\n${output}")
    endif()
    string(REGEX REPLACE "[ \n]+" " " unwrapped "${output}")
    if(NOT unwrapped MATCHES "${expression}")
        message(FATAL_ERROR "${ARGN} printed nothing that matches '${expression}':\n${output}")
    endif()
endfunction()

set(flags "-Wall -Wextra -Wpedantic -Werror")
if(SANITIZE)
    string(APPEND flags " -fsanitize=${SANITIZE} -fno-sanitize-recover=all")
endif()
if(COVERAGE)
    string(APPEND flags " --coverage")
endif()

# The command that configures another project, which follows with -S and -B. The launcher is passed in the environment,
# because it is a list, which a function's argument would split.
set(ENV{CMAKE_CXX_COMPILER_LAUNCHER} "${LAUNCHER}")
set(configure "${CMAKE_COMMAND}" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_FLAGS=${flags}")
