# Everything a person starts or loads stands at the top of the build folder; the run path is relative,
# so that the folder can be moved.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
set(CMAKE_INSTALL_RPATH "$ORIGIN/../lib:$ORIGIN")
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
