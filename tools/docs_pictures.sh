#!/usr/bin/env bash
# Takes the pictures of docs/pictures/ anew: the window with a page of each kind, the About box, an alert and the splash.
# Uses the prefix of ./run.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh
# shellcheck source=tools/wine.sh
source tools/wine.sh
# shellcheck source=tools/drive/program.sh
source tools/drive/program.sh

window_title='Korvane Manager'

# picture NAME: of the program's windows, without the empty screen around them.
picture() {
    sleep 0.5
    import -silent -window root -trim +repage -define png:exclude-chunks=date,time "docs/pictures/$1.png"
}

# page NAME ROW [ITEM]
page() {
    local name=$1
    shift
    select_row "$@" >/dev/null
    picture "$name"
}

install_missing /usr/bin/xdotool:xdotool
mkdir -p docs/pictures
open_program 1000x700
xdotool search --sync --name "$window_title" >/dev/null
page category 1
page checks 153
page check-fields 2
page check-combos 6
page check-list 38
page path-fields 159
page combos 122
page edit-combos 122 270
page check-combo 39

# The system menu's last item is the About box.
select_row 6 >/dev/null
eval "$(xdotool search --name "$window_title" getwindowgeometry --shell | tail -n 5)"
xdotool mousemove $((X + 16)) $((Y + 14)) click 1 sleep 0.8 key Up sleep 0.2 key Return sleep 0.8
picture about
xdotool key Return sleep 0.5

# Enter presses "Apply Changes": a tweak of Windows 2000 is refused on Windows XP.
select_row 6 170 >/dev/null
xdotool key Return sleep 0.8
picture alert
xdotool key Return sleep 0.3

# The splash is gone before anybody could take its picture.
convert data/Skin/Splash.bmp -define png:exclude-chunks=date,time docs/pictures/splash.png
echo "The pictures are in $PWD/docs/pictures"
