# shellcheck shell=bash
# Sourced by ./run and ./test: installs the Debian packages that are missing.
# shellcheck disable=SC2034 # the lists are for the scripts that source this

# What is looked for, and the package that brings it. Looking for files costs nothing when all is there.
build_packages=(
    /usr/bin/cmake:cmake
    /usr/bin/ninja:ninja-build
)
mingw_packages=(
    /usr/bin/x86_64-w64-mingw32-g++-win32:g++-mingw-w64-x86-64-win32
    /usr/bin/x86_64-w64-mingw32-windres:binutils-mingw-w64-x86-64
)
mingw32_packages=(
    /usr/bin/i686-w64-mingw32-g++-win32:g++-mingw-w64-i686-win32
    /usr/bin/i686-w64-mingw32-windres:binutils-mingw-w64-i686
)
native_packages=(
    /usr/bin/g++:g++
    /usr/bin/python3:python3
    /usr/src/googletest/googletest/CMakeLists.txt:googletest
)
# libFuzzer comes with the sanitizers, in a package of their own; the standard library is GCC's. GoogleTest's sources are
# not needed: its tests are not built.
fuzz_packages=(
    /usr/bin/clang++:clang
    /usr/bin/g++:g++
    /usr/lib/clang/14/lib/linux/libclang_rt.fuzzer-x86_64.a:libclang-rt-14-dev
)
# The native compiler builds the generator of the help.
help_packages=(
    /usr/bin/g++:g++
    /usr/bin/chmcmd:fp-utils
)
help_check_packages=(
    /usr/bin/extract_chmLib:libchm-bin
)
wine_packages=(
    /usr/bin/wine:wine
    /usr/lib/wine/wine64:wine64
    /usr/share/wine/fonts:fonts-wine
)
virtual_display_packages=(
    /usr/bin/Xvfb:xvfb
    /usr/bin/xwininfo:x11-utils
    /usr/bin/import:imagemagick
)

# install_missing FILE:PACKAGE ...
install_missing() {
    local entry missing=()
    for entry in "$@"; do
        [ -e "${entry%%:*}" ] || missing+=("${entry##*:}")
    done
    [ "${#missing[@]}" -gt 0 ] || return 0

    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            echo "These packages are missing, and only root can install them: ${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi
    echo "Installing ${missing[*]}"
    "${as_root[@]}" apt-get -q update &&
        "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qy install --no-install-recommends "${missing[@]}"
}
