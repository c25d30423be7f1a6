#!/usr/bin/env bash
# Makes the help in build/native/help: the pages in html/, and English.chm. The Windows builds copy it beside the
# program, so this goes before them. What is up to date is not made again.
set -euo pipefail
cd "$(dirname "$0")/.."
# shellcheck source=tools/packages.sh
source tools/packages.sh

install_missing "${build_packages[@]}" "${help_packages[@]}"
mkdir -p build
log=build/build-help.log
if ! cmake --preset native >"$log" 2>&1 ||
    ! cmake --build --preset native --parallel "$(nproc)" --target korvane_help >>"$log" 2>&1; then
    tail -n 60 "$log" >&2
    exit 1
fi
