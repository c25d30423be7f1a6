#!/usr/bin/env bash
# Takes a picture of every row of the tree as the program shows it, into build/tour/: NNN-ITEMID.png for each row, and
# contact sheets of the pages, sheet-N.png, for looking through. Uses the prefix of ./run.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh
# shellcheck source=tools/wine.sh
source tools/wine.sh
# shellcheck source=tools/drive/program.sh
source tools/drive/program.sh

rm -rf build/tour
mkdir -p build/tour
open_program 1024x768
row=0
while id=$(select_row "$row"); do
    sleep 0.1
    import -silent -window root "$(printf 'build/tour/%03d-%s.png' "$row" "$id")"
    row=$((row + 1))
done
echo "$row rows; joining them into sheets"

# Only the page and the button: the tree is the same on all.
montage build/tour/[0-9]*.png -crop 408x372+478+228 +repage -tile 4x4 -geometry +4+4 -background gray30 \
    build/tour/sheet.png
echo "The pictures are in $PWD/build/tour"
