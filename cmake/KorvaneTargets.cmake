# What all of this project's own targets share: warnings as errors, sanitizers, and one way to find sources.
# GoogleTest's sources are built with the sanitizers, but without the warnings.

add_library(korvane_warnings INTERFACE)
# GCC builds the product; clang, which serves for fuzzing only, warns about other things.
if(CMAKE_CXX_COMPILER_ID STREQUAL GNU)
    target_compile_options(korvane_warnings INTERFACE
        $<$<COMPILE_LANGUAGE:CXX>:-Werror -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wmissing-field-initializers
        -Wnon-virtual-dtor -Wsuggest-override -Wextra-semi -Wundef -Wunused-const-variable=1
        -Wlogical-op -Wduplicated-cond -Wformat-security
        # GCC 12 warns wrongly about ordinary std::string concatenation.
        -Wno-restrict>)
    if(KORVANE_SANITIZE)
        # The sanitizers' own branches hide initialisations from this warning.
        target_compile_options(korvane_warnings INTERFACE -Wno-maybe-uninitialized)
    endif()
endif()

if(KORVANE_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

# Sets OUT to the .cpp files of the given folders and all folders below them, except those whose path from the
# project's root matches EXCLUDE (optional).
function(korvane_sources out)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "EXCLUDE" "FOLDERS")
    set(found)
    foreach(folder IN LISTS arg_FOLDERS)
        file(GLOB_RECURSE in_folder CONFIGURE_DEPENDS RELATIVE ${PROJECT_SOURCE_DIR}
            ${PROJECT_SOURCE_DIR}/${folder}/*.cpp)
        list(APPEND found ${in_folder})
    endforeach()
    if(arg_EXCLUDE)
        list(FILTER found EXCLUDE REGEX "${arg_EXCLUDE}")
    endif()
    list(TRANSFORM found PREPEND ${PROJECT_SOURCE_DIR}/)
    set(${out} ${found} PARENT_SCOPE)
endfunction()

# A static library of this project; includes are written from the project's root.
function(korvane_library name)
    add_library(${name} STATIC ${ARGN})
    target_include_directories(${name} PUBLIC ${PROJECT_SOURCE_DIR})
    target_link_libraries(${name} PRIVATE korvane_warnings)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
endfunction()
