# The fuzz targets: fuzz/NAME.cpp becomes the program fuzz_NAME, its seeds are the files of fuzz/corpus/NAME.
# By default a small main replays the seeds and a fixed series of mutations of them, which is quick enough for
# ./test; with libFuzzer the same entry point is searched for as long as one likes.

file(GLOB fuzz_sources CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/fuzz/*.cpp)

if(KORVANE_LIBFUZZER)
    # The code under test needs the coverage counters as well, not only the entry point.
    foreach(library korvane_core korvane_cli)
        if(TARGET ${library})
            target_compile_options(${library} PRIVATE -fsanitize=fuzzer-no-link)
        endif()
    endforeach()
endif()

foreach(source IN LISTS fuzz_sources)
    cmake_path(GET source STEM name)
    add_executable(fuzz_${name} ${source})
    target_link_libraries(fuzz_${name} PRIVATE korvane_warnings korvane_all)
    if(KORVANE_LIBFUZZER)
        target_compile_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
        target_link_options(fuzz_${name} PRIVATE -fsanitize=fuzzer)
    else()
        target_sources(fuzz_${name} PRIVATE ${PROJECT_SOURCE_DIR}/fuzz/replay_main.cc)
    endif()
endforeach()
