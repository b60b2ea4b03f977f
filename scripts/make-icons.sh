#!/bin/sh
# Regenerates the icons under resources/images/icons from scripts/icons/sk_icongen.cpp.
# Needs g++, pkg-config and the Qt 5 GUI development files; the badges use DejaVu Sans
# (fonts-dejavu-core), so other fonts give slightly different PNGs.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2046
g++ -std=c++17 -O1 -fPIC -o "$work/sk_icongen" "$root/scripts/icons/sk_icongen.cpp" \
    $(pkg-config --cflags --libs Qt5Gui)
QT_QPA_PLATFORM=offscreen "$work/sk_icongen" "$root/resources/images/icons"
