#!/usr/bin/env bash
# on_every_windows.sh WINDOW_TESTS: the tests of the version question, as each Windows that a rule tells apart.
set -euo pipefail
program=$1
key="HKCU\\Software\\Wine\\AppDefaults\\$(basename "$program")"
for version in vista=6.0 win7=6.1 win8=6.2 win10=10.0; do
    wine reg add "$key" /v Version /d "${version%=*}" /f >/dev/null
    KORVANE_EXPECTED_WINDOWS=${version#*=} wine "$program" --gtest_filter='WindowsVersion.*:WindowsIdentity.*'
done
