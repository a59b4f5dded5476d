# Copies the files INPUTS from the project SOURCE to the folder COPY, and has the copied script add the EDITORS, which
# have the TYPES.
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
# The copies are as old as what they were made of.
file(GLOB_RECURSE files "${COPY}/*")
file(TOUCH ${files})
