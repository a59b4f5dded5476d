# Builds a project that adds this one by add_subdirectory and links one of its libraries.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
file(REMOVE_RECURSE "${WORK}")
run(${configure} -S "${CMAKE_CURRENT_LIST_DIR}/parent" -B "${WORK}/build" "-DTALO=${SOURCE}" -DCMAKE_UNITY_BUILD=ON)
run("${CMAKE_COMMAND}" --build "${WORK}/build")
run_and_expect("^count = 41\n$" "${WORK}/build/program/parent")

# The added project must add nothing to the folders, the tests or the installation of the parent.
file(GLOB files RELATIVE "${WORK}/build" "${WORK}/build/*.so*" "${WORK}/build/*.talo" "${WORK}/build/talo_panel"
    "${WORK}/build/*.qm" "${WORK}/build/compile_commands.json")
if(files)
    message(FATAL_ERROR "In the parent's build folder there are ${files}")
endif()
run_and_expect("Total Tests: 1\n" "${CMAKE_CTEST_COMMAND}" --test-dir "${WORK}/build" --show-only)
run("${CMAKE_COMMAND}" --install "${WORK}/build" --prefix "${WORK}/prefix")
file(GLOB_RECURSE files RELATIVE "${WORK}/prefix" "${WORK}/prefix/*")
if(NOT files STREQUAL "bin/parent")
    message(FATAL_ERROR "The parent installs ${files}")
endif()
