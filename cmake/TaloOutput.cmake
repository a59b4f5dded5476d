# Programs, libraries and plug-ins are built at the top of the build folder. The run path is relative, so that the folder
# can be moved. A project that adds this one decides for itself.
if(PROJECT_IS_TOP_LEVEL)
    set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
    set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}")
    set(CMAKE_BUILD_RPATH_USE_ORIGIN ON)
    set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
endif()
