#!/usr/bin/env bash
# with_desktop.sh [--screen WxH] [--dpi DPI] [--arch win32|win64] [--font FILE] [--wine-desktop] [--name NAME]
#                 -- COMMAND [ARGUMENT...]
# Runs a command on a desktop of its own: a virtual screen, a window manager and a freshly cloned Wine prefix with a
# warm server. All of it is gone afterwards. --font adds a font to that Windows, --dpi gives it another scale than 96;
# with --wine-desktop Wine itself plays the desktop in one window of the screen, and there is no window manager. Ends
# with the command's exit code.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/lib.sh"

screen=1920x1080 dpi=96 arch=win32 name=desktop wine_desktop=no fonts=()
while [ $# -gt 0 ]; do
    case $1 in
    --screen) screen=$2 && shift 2 ;;
    --dpi) dpi=$2 && shift 2 ;;
    --arch) arch=$2 && shift 2 ;;
    --name) name=$2 && shift 2 ;;
    --wine-desktop) wine_desktop=yes && shift ;;
    --font) fonts+=("$2") && shift 2 ;;
    --) shift && break ;;
    *) die "unknown option $1" ;;
    esac
done
[ $# -gt 0 ] || die 'no command given'

desktops="$KORVANE_ROOT/build/wine/desktops"
desktop="$desktops/$name.$$"
DISPLAY_PIDS=''
end_desktop() {
    local status=$?
    trap - EXIT
    [ -d "$desktop/prefix" ] && (export WINEPREFIX="$desktop/prefix" && wine_server -k) 2>/dev/null
    stop_display
    rm -rf "$desktop"
    exit "$status"
}

# A run that was killed could not clean up after itself; its process id is the folder's suffix.
sweep_leftovers() {
    local folder pid
    for folder in "$desktops"/*.*; do
        [ -d "$folder" ] && ! kill -0 "${folder##*.}" 2>/dev/null || continue
        for pid in $(cat "$folder/pids" 2>/dev/null); do
            case $(tr '\0' ' ' <"/proc/$pid/cmdline" 2>/dev/null) in
            Xvfb\ -displayfd* | jwm\ -f\ *) kill "$pid" ;;
            esac
        done
        (export WINEPREFIX="$folder/prefix" && wine_server -k) 2>/dev/null || true
        rm -rf "$folder"
    done
}

template=$(wine_template "$arch")
sweep_leftovers
trap end_desktop EXIT
trap 'exit 130' INT
trap 'exit 143' TERM

mkdir -p "$desktop"
clone_prefix "$template" "$desktop/prefix"
for font in "${fonts[@]}"; do
    cp --remove-destination "$font" "$desktop/prefix/drive_c/windows/Fonts/"
done
[ "$wine_desktop" = no ] && manager=jwm || manager=none
start_display "$screen" "$desktop" "$manager"
use_wine_environment
export WINEPREFIX="$desktop/prefix"
unset WINEARCH
(wine_server -p60)
if [ "$wine_desktop" = yes ]; then
    quietly wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Korvane /f
    quietly wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Korvane /d "$screen" /f
    # What runs already keeps the desktop that it was started on.
    (wine_server -k) && (wine_server -w) || true
    (wine_server -p60)
fi
[ "$dpi" = 96 ] || quietly wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi" /f
# Windows' desktop belongs to a process that the first program starts and that ends soon after the last one. Started and
# held by a shell that waits for input, it costs no test its time and keeps no test's output open.
mkfifo "$desktop/input"
exec 8<>"$desktop/input"
wine cmd <&8 >/dev/null 2>&1 &
exec 8>&-
wine rundll32 user32.dll,MessageBeep >/dev/null 2>&1
"$@"
