#!/usr/bin/env bash
# make_data_file.sh SOURCE TARGET
# Turns the table of search commands, kept as UTF-8, into the form in which Windows' profile functions read it as
# Unicode: UTF-16 little-endian with a byte order mark and CR LF line ends.
set -euo pipefail
source=$1 target=$2
mkdir -p "$(dirname "$target")"
rm -f "$target"
{
    printf '\xff\xfe'
    sed '1s/^\xef\xbb\xbf//; s/\r*$/\r/' "$source" | iconv -f UTF-8 -t UTF-16LE
} >"$target"
