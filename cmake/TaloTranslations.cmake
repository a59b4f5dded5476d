# The package qttools5-dev-tools has it.
find_program(TALO_LRELEASE NAMES lrelease lrelease-qt5 HINTS /usr/lib/qt5/bin REQUIRED)

# talo_translations(FOLDER FILES_VARIABLE SOURCES.ts...)
# Compiles each translation NAME_LANGUAGE.ts to FOLDER/NAME_LANGUAGE.qm and puts the list of those into the variable.
# They are made with the target that names them among its sources or dependencies.
function(talo_translations folder files)
    set(compiled)
    foreach(source IN LISTS ARGN)
        get_filename_component(source "${source}" ABSOLUTE)
        get_filename_component(name "${source}" NAME_WE)
        add_custom_command(OUTPUT "${folder}/${name}.qm"
            COMMAND "${TALO_LRELEASE}" -silent "${source}" -qm "${folder}/${name}.qm"
            DEPENDS "${source}" VERBATIM)
        list(APPEND compiled "${folder}/${name}.qm")
    endforeach()
    set(${files} ${compiled} PARENT_SCOPE)
endfunction()
