# Installs the project with other library folders and starts the installed programs: the folder of systems other than
# Debian, and that of Debian's own packages. Reuses the objects of the project's own build, except for the one source that
# contains the folders.
include("${CMAKE_CURRENT_LIST_DIR}/steps.cmake")
set(folders lib64 lib/x86_64-linux-gnu)
file(REMOVE_RECURSE "${WORK}")
set(ENV{CMAKE_CXX_COMPILER_LAUNCHER} "${CMAKE_CURRENT_LIST_DIR}/reuse_objects;${PROJECT_BUILD}")
foreach(folder IN LISTS folders)
    set(prefix "${WORK}/${folder}/prefix")
    run("${CMAKE_COMMAND}" -S "${SOURCE}" -B "${WORK}/build" -G "${GENERATOR}" "-DCMAKE_CXX_COMPILER=${COMPILER}"
        "-DCMAKE_BUILD_TYPE=${BUILD_TYPE}" "-DCMAKE_CXX_FLAGS_DEBUG=${FLAGS_DEBUG}"
        "-DCMAKE_CXX_FLAGS_RELEASE=${FLAGS_RELEASE}" "-DTALO_SANITIZE=${SANITIZE}" "-DTALO_COVERAGE=${COVERAGE}"
        "-DCMAKE_UNITY_BUILD=${UNITY}"
        -DTALO_BUILD_TESTS=OFF "-DTALO_QT=${QT}" "-DCMAKE_INSTALL_LIBDIR=${folder}" "-DCMAKE_INSTALL_PREFIX=${prefix}")
    run("${CMAKE_COMMAND}" --build "${WORK}/build")
    run("${CMAKE_COMMAND}" --install "${WORK}/build")
endforeach()
# The installed files must find the installed libraries, not those of the build.
file(REMOVE_RECURSE "${WORK}/build")

foreach(folder IN LISTS folders)
    set(prefix "${WORK}/${folder}/prefix")
    foreach(file IN ITEMS "bin/talo_panel" "${folder}/libtalo_parameters.so" "${folder}/talo/qtalo_inputs.talo")
        run(ldd "${prefix}/${file}")
        if(output MATCHES "not found")
            message(FATAL_ERROR "${file} does not find its libraries:\n${output}")
        endif()
        if(NOT output MATCHES "/prefix/[^ ]*${folder}/[a-z./]*liblattice\\.so")
            message(FATAL_ERROR "${file} does not take the libraries of ${folder}:\n${output}")
        endif()
    endforeach()
    run_and_expect("^talo_panel [0-9.]+\n$" "${prefix}/bin/talo_panel" --version)
    # Finds the plug-in in its installed folder, and the default network in that of the examples.
    run_and_expect("bool\tboolean\tQT\n.*\"formula\"" "${prefix}/bin/talo_panel" --list-creators --values)
endforeach()
