#!/usr/bin/env bash
# Takes a picture of every row of the tree as the program shows it, into build/tour/: NNN-ITEMID.png for each row, and
# contact sheets of the pages, sheet-N.png, for looking through. Uses the prefix of ./run.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh
# shellcheck source=tools/wine.sh
source tools/wine.sh

install_missing "${build_packages[@]}" "${mingw_packages[@]}" "${wine_packages[@]}" "${virtual_display_packages[@]}"
# Makes the prefix, imports the sample and shows that the window comes up.
env -u DISPLAY ./run
cmake --build --preset win64 --target select_row

rm -rf build/tour
mkdir -p build/tour
Xvfb -displayfd 6 -screen 0 1024x768x24 -nolisten tcp </dev/null >build/xvfb.log 2>&1 6>build/tour/display &
display_pid=$!
until [ -s build/tour/display ]; do sleep 0.1; done
DISPLAY=:$(cat build/tour/display)
export DISPLAY
use_wine_prefix "$PWD/build/wine"
wine build/win64/program/KorvaneManager.exe </dev/null >/dev/null 2>&1 &
program_pid=$!
finish() {
    kill "$program_pid" 2>/dev/null || true
    wait "$program_pid" 2>/dev/null || true
    wineserver -k || true
    kill "$display_pid" 2>/dev/null || true
    rm -f build/tour/display
}
trap finish EXIT

row=0
# The window is not there yet at first; behind the last row the tool answers 1.
until wine build/win64/select_row.exe 0 </dev/null >/dev/null 2>&1; do sleep 0.2; done
while id=$(wine build/win64/select_row.exe "$row" </dev/null 2>/dev/null | tr -d '\r') && [ -n "$id" ]; do
    sleep 0.1
    import -silent -window root "$(printf 'build/tour/%03d-%s.png' "$row" "$id")"
    row=$((row + 1))
done
echo "$row rows; joining them into sheets"

# Only the page and the button: the tree is the same on all.
montage build/tour/[0-9]*.png -crop 408x372+478+228 +repage -tile 4x4 -geometry +4+4 -background gray30 \
    build/tour/sheet.png
echo "The pictures are in $PWD/build/tour"
