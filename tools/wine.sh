# shellcheck shell=bash
# Sourced by ./run and ./test: a private Wine prefix that looks like Windows XP and touches nobody else's Wine.

# use_wine_prefix FOLDER: makes the prefix if it is not there yet, and exports what Wine needs to use it.
use_wine_prefix() {
    export WINEPREFIX=$1 WINEARCH=win64 WINEDEBUG=-all
    # Neither is needed, and Wine would ask whether to download them.
    export WINEDLLOVERRIDES='mscoree,mshtml='
    [ ! -e "$WINEPREFIX/korvane-ready" ] || return 0

    echo "Making the Wine prefix $WINEPREFIX"
    wineserver -k 2>/dev/null || true  # of an earlier attempt that was interrupted
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    # Wine's services live on and must not inherit a pipe that somebody waits for: all output goes to files.
    wine wineboot -i </dev/null >"$WINEPREFIX/wineboot.log" 2>&1 || {
        echo "Wine could not make its prefix:" >&2
        cat "$WINEPREFIX/wineboot.log" >&2
        return 1
    }
    # Debian's Wine does not look for its own fonts; without them dialogs come out wider than on Windows.
    # A crashing program ends at once; otherwise it would wait for an answer to Wine's crash dialog.
    ln -sf /usr/share/wine/fonts/* "$WINEPREFIX/drive_c/windows/Fonts/" &&
        wine_registry 'HKCU\Software\Wine' Version winxp &&
        wine_registry 'HKCU\Software\Microsoft\Windows\CurrentVersion\ThemeManager' ThemeActive 0 &&
        wine_registry 'HKCU\Software\Wine\WineDbg' ShowCrashDialog 0 REG_DWORD &&
        wineserver -w &&
        touch "$WINEPREFIX/korvane-ready"
}

# wine_registry KEY VALUE DATA [TYPE]
wine_registry() {
    wine reg add "$1" /v "$2" /t "${4:-REG_SZ}" /d "$3" /f </dev/null >/dev/null 2>&1 || {
        echo "Wine could not set the registry value $1\\$2." >&2
        return 1
    }
}
