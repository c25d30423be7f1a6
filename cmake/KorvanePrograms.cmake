# The programs a user gets, together with the data they read, in the folder "program" of the build folder;
# and the developers' own programs in the build folder itself.

set(program_folder ${PROJECT_BINARY_DIR}/program)

function(korvane_program name)
    target_link_libraries(${name} PRIVATE korvane_warnings)
    set_target_properties(${name} PROPERTIES RUNTIME_OUTPUT_DIRECTORY ${program_folder})
endfunction()

if(WIN32 AND EXISTS ${PROJECT_SOURCE_DIR}/app/win32/WinMain.cpp)
    add_executable(KorvaneManager WIN32 app/win32/WinMain.cpp platform/win32/TerminateHandler.cpp)
    target_link_libraries(KorvaneManager PRIVATE korvane_win32 korvane_resources)
    korvane_program(KorvaneManager)

    file(GLOB_RECURSE data_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/data/*)
    add_custom_command(OUTPUT ${PROJECT_BINARY_DIR}/data.stamp
        COMMAND ${CMAKE_COMMAND} -E copy_directory ${PROJECT_SOURCE_DIR}/data ${program_folder}
        COMMAND ${CMAKE_COMMAND} -E touch ${PROJECT_BINARY_DIR}/data.stamp
        DEPENDS ${data_files}
        COMMENT "Copying data/ beside the program"
        VERBATIM)
    if(data_files)
        add_custom_target(korvane_data DEPENDS ${PROJECT_BINARY_DIR}/data.stamp)
        add_dependencies(KorvaneManager korvane_data)
    endif()
endif()

if(EXISTS ${PROJECT_SOURCE_DIR}/cli/Main.cpp)
    add_executable(kmctl cli/Main.cpp)
    target_link_libraries(kmctl PRIVATE korvane_cli)
    if(WIN32)
        set_source_files_properties(res/kmctl.rc PROPERTIES OBJECT_DEPENDS ${PROJECT_SOURCE_DIR}/res/kmctl.manifest)
        target_sources(kmctl PRIVATE platform/win32/TerminateHandler.cpp res/kmctl.rc)
        target_include_directories(kmctl PRIVATE ${PROJECT_SOURCE_DIR})
    endif()
    korvane_program(kmctl)
endif()

# Generators of committed files (the language template); they run on the machine that builds.
if(NOT WIN32)
    file(GLOB tool_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/tools/*.cpp)
    foreach(source IN LISTS tool_sources)
        cmake_path(GET source STEM name)
        add_executable(${name} ${source})
        target_link_libraries(${name} PRIVATE korvane_warnings korvane_docgen)
    endforeach()
endif()

# For the picture tour and for timing the start: programs that drive the running program.
if(TARGET KorvaneManager)
    add_executable(select_row EXCLUDE_FROM_ALL tools/drive/SelectRow.cpp)
    add_executable(start_up EXCLUDE_FROM_ALL tools/drive/StartUp.cpp)
    target_link_libraries(select_row PRIVATE korvane_warnings)
    target_link_libraries(start_up PRIVATE korvane_warnings)
endif()
