# Copies the files INPUTS from the project SOURCE to the folder COPY, and runs the copied script to add EDITORS with
# TYPES.
file(REMOVE_RECURSE "${COPY}")
foreach(input IN LISTS INPUTS)
    cmake_path(GET input PARENT_PATH folder)
    file(COPY "${SOURCE}/${input}" DESTINATION "${COPY}/${folder}")
endforeach()
foreach(editor type IN ZIP_LISTS EDITORS TYPES)
    execute_process(COMMAND "${COPY}/scripts/new_editor" ${editor} ${type} RESULT_VARIABLE status
        OUTPUT_QUIET ERROR_VARIABLE errors)
    if(NOT status EQUAL 0)
        message(FATAL_ERROR "scripts/new_editor ${editor} ${type} ended with ${status}:\n${errors}")
    endif()
endforeach()
# Copies keep the time stamps of their sources; renew them, so that the outputs are up to date.
file(GLOB_RECURSE files "${COPY}/*")
file(TOUCH ${files})
