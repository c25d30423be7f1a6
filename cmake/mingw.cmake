# Toolchain: Debian's MinGW-w64 with the win32 thread model, for 32-bit or 64-bit Windows (KORVANE_ARCH).
# The posix thread model is out: its runtime imports functions that Windows 2000 and XP lack.
set(KORVANE_ARCH i686 CACHE STRING "i686 or x86_64")
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES KORVANE_ARCH)

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR ${KORVANE_ARCH})
set(triple ${KORVANE_ARCH}-w64-mingw32)
set(CMAKE_CXX_COMPILER ${triple}-g++-win32)
set(CMAKE_RC_COMPILER ${triple}-windres)

set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

# From version 0x0600 on some structures grow (NONCLIENTMETRICS, LVITEM) and XP refuses them.
set(windows_version "-D_WIN32_WINNT=0x0400 -DWINVER=0x0400 -D_WIN32_IE=0x0500")
set(CMAKE_CXX_FLAGS_INIT "${windows_version} -ffunction-sections -fdata-sections")
set(CMAKE_RC_FLAGS_INIT "${windows_version}")
# Without a time stamp two builds of the same sources are byte-identical.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -s -Wl,--gc-sections -Wl,--no-insert-timestamp")

# The 64-bit programs run under the host's Wine. It cannot run 32-bit ones: it would exit 0 without doing anything.
if(KORVANE_ARCH STREQUAL x86_64)
    set(CMAKE_CROSSCOMPILING_EMULATOR wine)
endif()
