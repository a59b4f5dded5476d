# What makes the programs at home on a desktop and in a shell: manual pages, completion in bash, and for the panel an entry
# in the menus, icons, a description for software centres, and the type of network files.
find_program(TALO_HELP2MAN help2man)

# talo_program_pages(PROGRAM SUMMARY COMPONENT)
# The manual page and the completion of a program, made from what it prints for --help. packaging/man/PROGRAM.h2m has the
# sections of the page that no option list contains. Without help2man there is no manual page.
function(talo_program_pages program summary component)
    set(folder "${PROJECT_BINARY_DIR}/pages")
    set(start env QT_QPA_PLATFORM=offscreen ASAN_OPTIONS=detect_leaks=0)
    set(pages "${folder}/${program}.bash")
    add_custom_command(OUTPUT "${folder}/${program}.bash"
        COMMAND ${start} LC_ALL=C.UTF-8 "${CMAKE_COMMAND}" "-DPROGRAM=$<TARGET_FILE:${program}>"
            "-DOUTPUT=${folder}/${program}.bash" -P "${PROJECT_SOURCE_DIR}/cmake/TaloCompletion.cmake"
        DEPENDS ${program} "${PROJECT_SOURCE_DIR}/cmake/TaloCompletion.cmake"
            "${PROJECT_SOURCE_DIR}/cmake/TaloCompletion.bash.in"
        VERBATIM)
    if(TALO_HELP2MAN)
        set(sections "${PROJECT_SOURCE_DIR}/packaging/man/${program}.h2m")
        add_custom_command(OUTPUT "${folder}/${program}.1"
            COMMAND ${start} "${TALO_HELP2MAN}" --no-info --name "${summary}" --include "${sections}"
                --output "${folder}/${program}.1" $<TARGET_FILE:${program}>
            DEPENDS ${program} "${sections}"
            VERBATIM)
        list(APPEND pages "${folder}/${program}.1")
        install(FILES "${folder}/${program}.1" DESTINATION "${CMAKE_INSTALL_MANDIR}/man1" COMPONENT ${component})
    endif()
    add_custom_target(${program}_pages ALL DEPENDS ${pages})
    # The shell finds a completion by the name of the program.
    install(FILES "${folder}/${program}.bash" RENAME ${program}
        DESTINATION "${CMAKE_INSTALL_DATADIR}/bash-completion/completions" COMPONENT ${component})
endfunction()

# The desktop's files of the panel.
function(talo_install_desktop)
    set(files "${PROJECT_SOURCE_DIR}/packaging/desktop")
    set(id org.talo.panel)
    set(share "${CMAKE_INSTALL_DATADIR}")
    install(FILES "${files}/${id}.desktop" DESTINATION "${share}/applications" COMPONENT panel)
    install(FILES "${files}/${id}.metainfo.xml" DESTINATION "${share}/metainfo" COMPONENT panel)
    install(FILES "${files}/${id}.mime.xml" RENAME ${id}.xml DESTINATION "${share}/mime/packages" COMPONENT panel)
    install(FILES "${files}/${id}.svg" DESTINATION "${share}/icons/hicolor/scalable/apps" COMPONENT panel)
    foreach(size IN ITEMS 16 24 32 48 64 128 256)
        install(FILES "${files}/icons/${size}.png" RENAME ${id}.png
            DESTINATION "${share}/icons/hicolor/${size}x${size}/apps" COMPONENT panel)
    endforeach()
endfunction()
