# The libraries: the portable core, kmctl's commands, what generates documents, and on Windows the real platform and
# the resources.

# Code pages are converted by Windows itself or by the C library.
set(other_conversion win32)
if(WIN32)
    set(other_conversion iconv)
endif()
korvane_sources(core_sources FOLDERS app pages history lang skin catalogue platform regfile text
    EXCLUDE "^(app|skin|platform)/win32/|^text/${other_conversion}/")
korvane_library(korvane_core ${core_sources})

if(WIN32)
    # WinMain.cpp is the program's own; TerminateHandler.cpp only takes effect as an object of a program.
    korvane_sources(win32_sources FOLDERS platform/win32 skin/win32 app/win32 EXCLUDE "/(WinMain|TerminateHandler)\\.cpp$")
    korvane_library(korvane_win32 ${win32_sources})
    target_link_libraries(korvane_win32 PUBLIC korvane_core
        user32 gdi32 comctl32 comdlg32 advapi32 shell32 ole32 oleaut32)

    if(EXISTS ${PROJECT_SOURCE_DIR}/res/korvane.rc)
        # windres reports no dependencies, so every file of res/ counts as one.
        file(GLOB_RECURSE resource_files CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/res/*)
        set_source_files_properties(${PROJECT_SOURCE_DIR}/res/korvane.rc PROPERTIES OBJECT_DEPENDS "${resource_files}")
        add_library(korvane_resources OBJECT ${PROJECT_SOURCE_DIR}/res/korvane.rc)
        target_include_directories(korvane_resources PRIVATE ${PROJECT_SOURCE_DIR} ${PROJECT_SOURCE_DIR}/res)
        set_target_properties(korvane_resources PROPERTIES LINKER_LANGUAGE CXX)
    endif()
endif()

korvane_sources(cli_sources FOLDERS cli EXCLUDE "^cli/Main\\.cpp$")
if(cli_sources)
    korvane_library(korvane_cli ${cli_sources})
    target_link_libraries(korvane_cli PUBLIC korvane_core $<TARGET_NAME_IF_EXISTS:korvane_win32>)
endif()

# What is generated from the catalogue is generated on the machine that builds.
if(NOT WIN32)
    korvane_sources(docgen_sources FOLDERS docgen)
    korvane_library(korvane_docgen ${docgen_sources})
    target_link_libraries(korvane_docgen PUBLIC korvane_core)
endif()

# What tests and fuzz targets may use.
add_library(korvane_all INTERFACE)
target_link_libraries(korvane_all INTERFACE
    korvane_core $<TARGET_NAME_IF_EXISTS:korvane_win32> $<TARGET_NAME_IF_EXISTS:korvane_cli>
    $<TARGET_NAME_IF_EXISTS:korvane_docgen>)
