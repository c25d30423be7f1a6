# The test programs. korvane_tests holds the portable tests everywhere and those of tests/win32 on Windows;
# korvane_program_tests drives the finished KorvaneManager.exe from outside.
# Every test program runs with the project's root as its current folder, so that tests find samples/ and data/.

if(NOT EXISTS ${KORVANE_GOOGLETEST}/src/gtest-all.cc)
    message(STATUS "GoogleTest's sources are not in ${KORVANE_GOOGLETEST}: no test programs")
    return()
endif()

add_library(korvane_googletest STATIC EXCLUDE_FROM_ALL
    ${KORVANE_GOOGLETEST}/src/gtest-all.cc ${KORVANE_GOOGLETEST}/src/gtest_main.cc)
target_include_directories(korvane_googletest SYSTEM PUBLIC ${KORVANE_GOOGLETEST}/include PRIVATE ${KORVANE_GOOGLETEST})
if(WIN32)
    # MinGW's win32 thread model has no std::mutex, on which GoogleTest builds its notification.
    target_compile_definitions(korvane_googletest PUBLIC GTEST_HAS_NOTIFICATION_=1)
    target_compile_options(korvane_googletest PUBLIC -include ${PROJECT_SOURCE_DIR}/tests/gtest_win32_threads.h)
else()
    find_package(Threads REQUIRED)
    target_link_libraries(korvane_googletest PUBLIC Threads::Threads)
endif()

function(korvane_test_program name)
    add_executable(${name} ${ARGN})
    target_link_libraries(${name} PRIVATE korvane_warnings korvane_all korvane_googletest)
    # Tests are compiled often and run for a short time.
    target_compile_options(${name} PRIVATE -O0 -g1)
    target_precompile_headers(${name} PRIVATE <gtest/gtest.h> <algorithm> <map> <memory> <set> <string> <vector>)
    add_test(NAME ${name} COMMAND ${name} WORKING_DIRECTORY ${PROJECT_SOURCE_DIR})
endfunction()

if(WIN32)
    korvane_sources(test_sources FOLDERS tests EXCLUDE "^tests/(program|docgen)/")
else()
    korvane_sources(test_sources FOLDERS tests EXCLUDE "^tests/(program|win32)/")
endif()
if(test_sources)
    korvane_test_program(korvane_tests ${test_sources})
    if(TARGET korvane_resources)
        target_link_libraries(korvane_tests PRIVATE korvane_resources)
    endif()
endif()

korvane_sources(program_test_sources FOLDERS tests/program)
if(TARGET KorvaneManager AND program_test_sources)
    korvane_test_program(korvane_program_tests ${program_test_sources})
    add_dependencies(korvane_program_tests KorvaneManager)
    set_tests_properties(korvane_program_tests PROPERTIES
        ENVIRONMENT "KORVANE_MANAGER=$<TARGET_FILE:KorvaneManager>")
endif()
