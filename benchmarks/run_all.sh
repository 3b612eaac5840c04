#!/usr/bin/env bash
# run_all.sh BUILD_FOLDER RUNS IDLE_SECONDS: the measurements, on the desktop that ./bench has prepared.
set -euo pipefail
. "$(dirname "${BASH_SOURCE[0]}")/../scripts/lib.sh"
build=$1 runs=$2 idle=$3

# As an installation would leave it; the question before the exit would keep the bar from ending.
install_program "$(basename "$build")" "$WINEPREFIX"
bar='C:\Program Files\Korvane\korvane.exe'
bare=$(winepath -w "$build/benchmarks/bare_window.exe")

say "Start, memory and idle processor time: median of $runs starts each, in turns"
wine "$build/benchmarks/measure.exe" "$runs" "$idle" "$bare" BareWindow_WndClass "$bar" Korvane_WndClass
say 'Writing a search text into an address: median of 11 runs each'
wine "$build/benchmarks/encode_bench.exe"
say 'Building and showing the longest menus: 50 openings each, in turns'
wine "$build/benchmarks/menu_bench.exe"
say "The calendar pop-up and the clock: 50 openings, 1,000 months, $idle seconds"
wine "$build/benchmarks/calendar_bench.exe" "$idle"

say 'The options: 30 openings of each page, 30 confirmations, 2,000 shortcuts'
wine "$build/benchmarks/options_bench.exe"

key='HKCU\Software\Dunmere Software\Korvane\Settings'
set_number() { wine reg add "$1" /v "$2" /t REG_DWORD /d "$3" /f >/dev/null; }
say "The bar with its clock, idle for $idle seconds"
set_number "$key" ShowTimeBarClock 1
wine "$build/benchmarks/measure.exe" 1 "$idle" "$bar" Korvane_WndClass
set_number "$key" ShowTimeBarClock 0

say 'Docked and hiding: 20 slides each way, then idle'
set_number "$key\WindowPlacement" SaveWindowPlacement 1
set_number "$key\WindowPlacement" DefaultDesktopBarMode 1
set_number "$key" DesktopBarAutoHide 1
wine "$build/benchmarks/dock_bench.exe" 20 "$idle" "$bar"
