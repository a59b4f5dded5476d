# Installs the project into fresh folders and builds against those alone, as somebody else would: a host of the core
# without Qt, and each example from its installed sources.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
file(REMOVE_RECURSE "${WORK}")
set(prefix "${WORK}/prefix")
set(core "${WORK}/core")
run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${prefix}")
run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${core}" --component core)

# A plug-in file is installed with its translations beside it.
file(GLOB_RECURSE plugin_file "${prefix}/*/qtalo_inputs.talo")
get_filename_component(plugin_folder "${plugin_file}" DIRECTORY)
foreach(language IN ITEMS de fr)
    if(NOT EXISTS "${plugin_folder}/qtalo_inputs_${language}.qm")
        message(FATAL_ERROR "qtalo_inputs_${language}.qm is not installed in '${plugin_folder}'")
    endif()
endforeach()

foreach(folder IN ITEMS "${prefix}" "${core}")
    file(STRINGS "${folder}/share/doc/qtalo_inputs/LICENSE" licence LIMIT_COUNT 1)
    if(NOT licence STREQUAL "MIT License")
        message(FATAL_ERROR "The licence is not installed in ${folder}")
    endif()
endforeach()

# The library that a program was linked with is that of one minor version.
if(NOT EXISTS "${core}/${LIBDIR}/liblattice.so.${SOVERSION}")
    message(FATAL_ERROR "There is no liblattice.so.${SOVERSION}")
endif()

# The core component needs nothing else, and no Qt; the others say what they miss.
set(core_host ${configure} --fresh -S "${CMAKE_CURRENT_LIST_DIR}/core_host" -DCMAKE_DISABLE_FIND_PACKAGE_Qt5=ON)
run(${core_host} -B "${WORK}/core_host" "-DCMAKE_PREFIX_PATH=${core}" -DCOMPONENTS=core)
run("${CMAKE_COMMAND}" --build "${WORK}/core_host")
run_and_expect("^count = 41\nstatus = ready\n$" "${WORK}/core_host/core_host")
refuse_and_expect("The component network of Talo is not installed"
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${core}" -DCOMPONENTS=widgets)
refuse_and_expect("The component network of Talo needs Qt 5.15"
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${prefix}" -DCOMPONENTS=widgets)
refuse_and_expect("Talo has no component sprockets"
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${prefix}" -DCOMPONENTS=sprockets)

# A user of the small host is compiled into it.
set(user "-DCMAKE_PROJECT_small_host_INCLUDE=${CMAKE_CURRENT_LIST_DIR}/small_host_user.cmake")
foreach(example IN ITEMS small_host spin_inputs)
    run(${configure} -S "${prefix}/share/talo/examples/${example}" -B "${WORK}/${example}"
        "-DCMAKE_PREFIX_PATH=${prefix}" "${user}")
    run("${CMAKE_COMMAND}" --build "${WORK}/${example}")
endforeach()

# The user works with it: editors, undo, pools, filter; it is saved and drawn.
file(MAKE_DIRECTORY "${WORK}/user")
run("${CMAKE_COMMAND}" -E chdir "${WORK}/user" "${WORK}/small_host/small_host")
file(READ "${WORK}/user/lamp.json" saved)
foreach(expected IN ITEMS "\"label\"" "\"shelf\"" "\"night\": 61")
    if(NOT saved MATCHES "${expected}")
        message(FATAL_ERROR "The small host did not save ${expected}:\n${saved}")
    endif()
endforeach()
file(SIZE "${WORK}/user/lamp.png" size)
if(size LESS 5000)
    message(FATAL_ERROR "The picture of the small host has ${size} bytes only")
endif()
