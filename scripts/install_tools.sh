#!/usr/bin/env bash
# Installs what building, running and testing need on Debian 12, and the packages that are named beside that. Does
# nothing, and quickly, when all of it is there.
#   install_tools.sh --has-locale  only tells by its exit code whether the locale of the tests is there
set -euo pipefail

packages=(
    g++-mingw-w64-i686-posix g++-mingw-w64-x86-64-posix cmake ninja-build googletest
    g++ clang-format clang-tidy python3 fp-utils
    wine wine64 wine32:i386
    xvfb xauth jwm x11-utils imagemagick
    locales fonts-noto-cjk fonts-horai-umefont fonts-dejavu-core
)

missing_packages() {
    dpkg-query -W -f='${db:Status-Status} ${Package}\n${db:Status-Status} ${Package}:${Architecture}\n' \
        "${packages[@]}" 2>/dev/null |
        awk 'FILENAME == "-" { if ($1 == "installed") have[$2] = 1; next } !($1 in have)' - <(printf '%s\n' "${packages[@]}")
}
has_locale() { locale -a 2>/dev/null | grep -ix 'ja_JP\.utf-\?8' >/dev/null; }

if [ "${1:-}" = --has-locale ]; then
    has_locale
    exit
fi
packages+=("$@")

mapfile -t missing < <(missing_packages)
if [ ${#missing[@]} -eq 0 ] && has_locale; then
    exit 0
fi

if [ "$(id -u)" -eq 0 ]; then
    as_root=(env DEBIAN_FRONTEND=noninteractive)
elif command -v sudo >/dev/null; then
    as_root=(sudo env DEBIAN_FRONTEND=noninteractive)
else
    echo "These are missing, and only root or sudo can install them: ${missing[*]} (locale ja_JP.UTF-8)" >&2
    exit 1
fi

if [ ${#missing[@]} -gt 0 ]; then
    echo "==> Installing ${missing[*]}"
    if ! dpkg --print-foreign-architectures | grep -qx i386; then
        "${as_root[@]}" dpkg --add-architecture i386
    fi
    # One unreadable index ends the update with an error although the others are fresh.
    "${as_root[@]}" apt-get -qq update || true
    install=("${as_root[@]}" apt-get -qq install -y --no-install-recommends)
    # Packages that exist for both word sizes must have one version. Where the security archive gives the two different
    # ones, the release's own versions still agree.
    "${install[@]}" "${missing[@]}" >/dev/null || "${install[@]}" --allow-downgrades -t bookworm "${missing[@]}" >/dev/null
fi

if ! has_locale; then
    echo '==> Generating the locale ja_JP.UTF-8'
    "${as_root[@]}" sed -i 's/^# *\(ja_JP\.UTF-8 UTF-8\)/\1/' /etc/locale.gen
    grep -q '^ja_JP\.UTF-8' /etc/locale.gen || echo 'ja_JP.UTF-8 UTF-8' | "${as_root[@]}" tee -a /etc/locale.gen >/dev/null
    "${as_root[@]}" locale-gen >/dev/null
fi

mapfile -t missing < <(missing_packages)
if [ ${#missing[@]} -gt 0 ] || ! has_locale; then
    echo "Still missing: ${missing[*]} (locale ja_JP.UTF-8)" >&2
    exit 1
fi
