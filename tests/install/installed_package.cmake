# Installs the project into new folders and builds against those only, as an outside project would: a host of the core
# without Qt, and each example from its installed sources.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
file(REMOVE_RECURSE "${WORK}")
set(prefix "${WORK}/prefix")
set(core "${WORK}/core")
run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${prefix}")
run("${CMAKE_COMMAND}" --install "${PROJECT_BUILD}" --prefix "${core}" --component core)

# A plug-in is installed together with its translations.
file(GLOB_RECURSE plugin_file "${prefix}/*/qtalo_inputs.talo")
get_filename_component(plugin_folder "${plugin_file}" DIRECTORY)
foreach(language IN ITEMS de fr)
    if(NOT EXISTS "${plugin_folder}/qtalo_inputs_${language}.qm")
        message(FATAL_ERROR "qtalo_inputs_${language}.qm is not installed in '${plugin_folder}'")
    endif()
endforeach()

if(NOT EXISTS "${plugin_folder}/more_inputs.talo")
    message(FATAL_ERROR "more_inputs.talo is not installed in '${plugin_folder}'")
endif()

foreach(folder IN ITEMS "${prefix}" "${core}")
    file(STRINGS "${folder}/share/doc/qtalo_inputs/LICENSE" licence LIMIT_COUNT 1)
    if(NOT licence STREQUAL "MIT License")
        message(FATAL_ERROR "The licence is not installed in ${folder}")
    endif()
endforeach()

# A program is linked to the library of one minor version.
if(NOT EXISTS "${core}/${LIBDIR}/liblattice.so.${SOVERSION}")
    message(FATAL_ERROR "There is no liblattice.so.${SOVERSION}")
endif()

# The core component needs neither other components nor Qt; the others report what is missing.
set(core_host ${configure} --fresh -S "${CMAKE_CURRENT_LIST_DIR}/core_host" "-DCMAKE_DISABLE_FIND_PACKAGE_Qt${QT}=ON")
run(${core_host} -B "${WORK}/core_host" "-DCMAKE_PREFIX_PATH=${core}" -DCOMPONENTS=core)
run("${CMAKE_COMMAND}" --build "${WORK}/core_host")
run_and_expect("^count = 41\nstatus = ready\n$" "${WORK}/core_host/core_host")
refuse_and_expect("The component network of Talo is not installed"
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${core}" -DCOMPONENTS=widgets)
refuse_and_expect("The component network of Talo needs Qt ${QT}\\."
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${prefix}" -DCOMPONENTS=widgets)
refuse_and_expect("Talo has no component sprockets"
    ${core_host} -B "${WORK}/refused" "-DCMAKE_PREFIX_PATH=${prefix}" -DCOMPONENTS=sprockets)

# Compiles a simulated user into the small host.
set(user "-DCMAKE_PROJECT_small_host_INCLUDE=${CMAKE_CURRENT_LIST_DIR}/small_host_user.cmake")
foreach(example IN ITEMS small_host spin_inputs more_inputs vector_inputs)
    # The two that people start from are built as they would; of the others several sources at once, which is quicker.
    set(unity ON)
    if(example MATCHES "^(small_host|spin_inputs)$")
        set(unity OFF)
    endif()
    run(${configure} -S "${prefix}/share/talo/examples/${example}" -B "${WORK}/${example}"
        "-DCMAKE_PREFIX_PATH=${prefix}" "${user}" -DCMAKE_UNITY_BUILD=${unity})
    run("${CMAKE_COMMAND}" --build "${WORK}/${example}")
endforeach()

# The plug-ins pass every level of the installed checker.
foreach(plugin IN ITEMS spin_inputs more_inputs vector_inputs)
    run_and_expect("[0-9]+ of [0-9]+ checks passed" "${prefix}/bin/talo_check" "${WORK}/${plugin}/${plugin}.talo")
endforeach()

# The simulated user works with editors, undo, pools and the filter; the host saves and draws its window.
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
