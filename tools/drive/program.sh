# shellcheck shell=bash
# Sourced by the scripts that take pictures: the program on a display of its own, in the prefix of ./run.

# open_program DISPLAY_SIZE: builds what is needed, starts the program and waits for its window.
open_program() {
    install_missing "${build_packages[@]}" "${mingw_packages[@]}" "${wine_packages[@]}" "${virtual_display_packages[@]}"
    # Makes the prefix, imports the sample and shows that the window comes up.
    env -u DISPLAY ./run
    cmake --build --preset win64 --target select_row

    drive_folder=$(mktemp -d)
    Xvfb -displayfd 6 -screen 0 "$1x24" -nolisten tcp </dev/null >build/xvfb.log 2>&1 6>"$drive_folder/display" &
    drive_display_pid=$!
    until [ -s "$drive_folder/display" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$drive_folder/display")
    export DISPLAY
    use_wine_prefix "$PWD/build/wine"
    trap close_program EXIT
    wine build/win64/program/KorvaneManager.exe </dev/null >/dev/null 2>&1 &
    drive_program_pid=$!
    until select_row 0 >/dev/null; do sleep 0.2; done
}

# select_row ROW [ITEM]: prints the row's ItemId; fails behind the last row.
select_row() { wine build/win64/select_row.exe "$@" </dev/null 2>/dev/null | tr -d '\r' | grep .; }

close_program() {
    kill "$drive_program_pid" 2>/dev/null || true
    wait "$drive_program_pid" 2>/dev/null || true
    wineserver -k || true
    kill "$drive_display_pid" 2>/dev/null || true
    rm -rf "$drive_folder"
}
