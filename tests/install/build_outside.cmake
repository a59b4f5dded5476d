# Installs the project into a fresh prefix and builds a plug-in against that alone.
file(REMOVE_RECURSE "${WORK}")

function(run)
    execute_process(COMMAND ${ARGN} RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "${ARGN} ended with ${status}:\n${output}")
    endif()
endfunction()

set(flags "-Wall -Wextra -Wpedantic -Werror")
if(SANITIZE)
    string(APPEND flags " -fsanitize=${SANITIZE} -fno-sanitize-recover=all")
endif()
if(COVERAGE)
    string(APPEND flags " --coverage")
endif()

run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${WORK}/prefix")
# A plug-in file is installed with its translations beside it.
file(GLOB_RECURSE plugin_file "${WORK}/prefix/*/qtalo_inputs.talo")
get_filename_component(plugin_folder "${plugin_file}" DIRECTORY)
foreach(language IN ITEMS de fr)
    if(NOT EXISTS "${plugin_folder}/qtalo_inputs_${language}.qm")
        message(FATAL_ERROR "qtalo_inputs_${language}.qm is not installed in '${plugin_folder}'")
    endif()
endforeach()
run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
    "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}" "-DCMAKE_PREFIX_PATH=${WORK}/prefix" "-DCMAKE_CXX_FLAGS=${flags}")
run("${CMAKE_COMMAND}" --build "${WORK}/build")
