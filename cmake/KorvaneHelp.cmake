# The help: the pages in help/html, for browsers, and English.chm, compiled from them where chmcmd (package fp-utils) is
# installed. It is made on the machine that builds, and copied beside the Windows programs from there.

if(NOT WIN32)
    find_program(KORVANE_CHMCMD chmcmd DOC "The compiler of HTML Help files")
    set(help_folder ${PROJECT_BINARY_DIR}/help)
    file(GLOB help_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/help/*)

    # The project lies beside the pages while it is compiled.
    set(project_files ${help_folder}/html/English.hhp ${help_folder}/html/English.hhc ${help_folder}/html/English.hhk)
    set(compile_help)
    if(KORVANE_CHMCMD)
        set(compile_help
            COMMAND ${CMAKE_COMMAND} -E chdir ${help_folder}/html ${KORVANE_CHMCMD} --verbosity 0 English.hhp
            COMMAND ${CMAKE_COMMAND} -E rename ${help_folder}/html/English.chm ${help_folder}/English.chm)
    endif()
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/help.stamp
        COMMAND ${CMAKE_COMMAND} -E rm -rf ${help_folder}
        COMMAND ${CMAKE_COMMAND} -E make_directory ${help_folder}/html
        COMMAND make_help ${PROJECT_SOURCE_DIR}/help ${help_folder}/html
        ${compile_help}
        COMMAND ${CMAKE_COMMAND} -E rm ${project_files}
        COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/help.stamp
        DEPENDS make_help ${help_sources}
        COMMENT "Making the help"
        VERBATIM)
    add_custom_target(korvane_help ALL DEPENDS ${PROJECT_BINARY_DIR}/help.stamp)
elseif(TARGET KorvaneManager)
    set(KORVANE_HELP ${PROJECT_SOURCE_DIR}/build/native/help CACHE PATH "The help, as tools/make_help.sh makes it")
    file(GLOB_RECURSE help_files CONFIGURE_DEPENDS ${KORVANE_HELP}/*)
    if(help_files)
        add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/help.stamp
            COMMAND ${CMAKE_COMMAND} -E rm -rf ${program_folder}/Help
            COMMAND ${CMAKE_COMMAND} -E copy_directory ${KORVANE_HELP} ${program_folder}/Help
            COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/help.stamp
            DEPENDS ${help_files}
            COMMENT "Copying the help beside the program"
            VERBATIM)
        add_custom_target(korvane_help DEPENDS ${PROJECT_BINARY_DIR}/help.stamp)
        add_dependencies(KorvaneManager korvane_help)
    endif()
endif()
