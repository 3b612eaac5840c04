# Helpers shared by ./run, ./test, ./bench and the scripts beside this file. Sourced; KORVANE_ROOT is the top folder.
KORVANE_ROOT=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd -P)

say() { printf '==> %s\n' "$*"; }
die() {
    printf '%s: %s\n' "${0##*/}" "$*" >&2
    exit 1
}

# Runs a command silently; what it printed is shown only when it fails.
quietly() {
    local log status=0
    log=$(mktemp)
    "$@" >"$log" 2>&1 || status=$?
    [ "$status" -eq 0 ] || cat "$log" >&2
    rm -f "$log"
    return "$status"
}

# prepare_machine COMMAND...: installs what this machine lacks. COMMAND is the script that asks, with its arguments: it
# begins anew when the locale was missing, because the C library of a running shell goes on without it.
prepare_machine() {
    local tools="$KORVANE_ROOT/scripts/install_tools.sh" before=missing
    ! "$tools" --has-locale || before=there
    "$tools"
    [ "$before" = there ] || exec "$@"
}

# build_preset PRESET [TARGET...]: configures when needed and builds.
build_preset() {
    local preset=$1
    shift
    say "Building $preset"
    quietly cmake -S "$KORVANE_ROOT" --preset "$preset" || die "cannot configure $preset"
    cmake --build "$KORVANE_ROOT/build/$preset" --parallel "$(nproc)" ${1:+--target "$@"} || die "cannot build $preset"
}

# What every program under Wine is to see. Wine's own menus, .NET and HTML packages are left out: nothing here needs
# them, and the first start would ask for them.
use_wine_environment() {
    export LANG=ja_JP.UTF-8 LC_ALL=ja_JP.UTF-8
    export WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES='winemenubuilder.exe=d;mscoree=;mshtml='
}

# Debian's wineserver command starts a server that dies with its last client, which makes every start a cold one; so
# the server itself is called. The 64-bit one serves both kinds of prefix.
wine_server() {
    local server
    for server in /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver32 /usr/lib/wine/wineserver; do
        [ -x "$server" ] && exec "$server" "$@"
    done
    die 'no wineserver found'
}

# The free font that stands for Windows' own interface fonts: of its family the one with the strongest strokes.
interface_font=/usr/share/fonts/truetype/horai-umefont/ume-ugo5.ttf

# wine_template ARCH: makes sure that a freshly initialised prefix of that kind (win32, win64) exists, and prints its
# folder. It is remade when Wine or the defaults change. Prefixes in use are clones of it.
wine_template() {
    local arch=$1 folder="$KORVANE_ROOT/build/wine/template-$1" key
    key=$({
        wine --version
        echo "$interface_font"
        cat "$KORVANE_ROOT/scripts/wine_defaults.reg" "$KORVANE_ROOT/scripts/rename_font.py"
    } 2>/dev/null | sha256sum | cut -c1-16)
    mkdir -p "$KORVANE_ROOT/build/wine"
    (
        flock 9
        if [ "$(cat "$folder/korvane.key" 2>/dev/null)" != "$key" ]; then
            rm -rf "$folder"
            unset DISPLAY
            use_wine_environment
            export WINEPREFIX=$folder WINEARCH=$arch
            quietly wine wineboot -i || die "cannot make a $arch prefix"
            python3 "$KORVANE_ROOT/scripts/rename_font.py" "$interface_font" \
                "$folder/drive_c/windows/Fonts/narrow_kana_ui.ttf" 'Narrow Kana UI' || die 'cannot make the font'
            quietly wine regedit "$KORVANE_ROOT/scripts/wine_defaults.reg" || die 'cannot set the defaults'
            (wine_server -w)
            printf '%s\n' "$key" >"$folder/korvane.key"
        fi
    ) 9>"$KORVANE_ROOT/build/wine/template-$arch.lock" >&2 || return 1
    printf '%s\n' "$folder"
}

# clone_prefix TEMPLATE FOLDER. The files are hard links, so a clone costs no time and no disk; only the registry
# files, which Wine rewrites, are copies. Whoever replaces another file inside a clone must use
# "cp --remove-destination": a plain cp would write through the link into the template.
clone_prefix() {
    local template=$1 folder=$2 hive
    mkdir -p "$(dirname "$folder")"
    cp -al "$template" "$folder"
    for hive in system.reg user.reg userdef.reg; do
        cp --remove-destination "$template/$hive" "$folder/$hive"
    done
}

# data_folder PREFIX: the folder of the prefix's user that holds Korvane.dat.
data_folder() {
    local candidate
    for candidate in "$1"/drive_c/users/*/AppData/Roaming; do
        case $candidate in
        */Public/*) ;;
        *)
            printf '%s\n' "$candidate/Dunmere Software/Korvane"
            return
            ;;
        esac
    done
    die "no user folder in $1"
}

# start_display WIDTHxHEIGHT FOLDER [none]: a virtual screen with a window manager (without one, Wine waits two seconds at
# every window of the screen's that it takes away) unless none is wanted. Sets DISPLAY and DISPLAY_PIDS; the process ids
# stand in FOLDER/pids too.
start_display() {
    local size=$1 folder=$2 manager=${3:-jwm} number='' deadline=$((SECONDS + 20))
    mkdir -p "$folder"
    : >"$folder/display"
    Xvfb -displayfd 3 -screen 0 "${size}x24" -nolisten tcp -noreset 3>"$folder/display" >/dev/null 2>"$folder/xvfb.log" &
    DISPLAY_PIDS=$!
    echo "$!" >"$folder/pids"
    until number=$(cat "$folder/display") && [ -n "$number" ]; do
        [ $SECONDS -lt $deadline ] && kill -0 "$DISPLAY_PIDS" 2>/dev/null || die 'the virtual screen does not start'
        sleep 0.05
    done
    export DISPLAY=:$number
    [ "$manager" = jwm ] || return 0
    jwm -f "$KORVANE_ROOT/scripts/jwmrc" >/dev/null 2>&1 &
    DISPLAY_PIDS="$! $DISPLAY_PIDS"
    echo "$!" >>"$folder/pids"
    until xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q '# 0x'; do
        [ $SECONDS -lt $deadline ] || die 'the window manager does not start'
        sleep 0.05
    done
}

stop_display() {
    local pid
    for pid in $DISPLAY_PIDS; do
        # How they end is of no interest.
        kill "$pid" 2>/dev/null || true
        wait "$pid" 2>/dev/null || true
    done
    DISPLAY_PIDS=''
}

# install_program PRESET PREFIX: leaves the program in a prefix as its installer would.
install_program() {
    local build="$KORVANE_ROOT/build/$1" prefix=$2 program data
    program="$prefix/drive_c/Program Files/Korvane"
    data=$(data_folder "$prefix")
    mkdir -p "$program" "$data"
    cp --remove-destination "$build/app/korvane.exe" "$program/"
    [ ! -e "$build/app/Korvane.chm" ] || cp --remove-destination "$build/app/Korvane.chm" "$program/"
    cp --remove-destination "$build/data/Korvane.dat" "$data/"
}
