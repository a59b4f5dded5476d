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

# talo_translation_resource(TARGET SOURCES.ts...)
# Compiles translations into the target, as the resource :/translations/NAME_LANGUAGE.qm. What is linked statically has
# to make it known by Q_INIT_RESOURCE(TARGET_translations).
function(talo_translation_resource target)
    talo_translations("${CMAKE_CURRENT_BINARY_DIR}" translations ${ARGN})
    set(content "<RCC><qresource prefix=\"/translations\">")
    foreach(file IN LISTS translations)
        get_filename_component(name "${file}" NAME)
        string(APPEND content "<file>${name}</file>")
    endforeach()
    set(list "${CMAKE_CURRENT_BINARY_DIR}/${target}_translations.qrc")
    file(CONFIGURE OUTPUT "${list}" CONTENT "${content}</qresource></RCC>\n")
    qt5_add_resources(resources "${list}")
    target_sources(${target} PRIVATE ${resources})
endfunction()
