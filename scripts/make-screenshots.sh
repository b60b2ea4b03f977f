#!/bin/sh
# Redraws the screenshots under docs/images from the real console: builds the
# sk_screenshots tool and runs it offscreen on the default workstation scenario.
#
#   scripts/make-screenshots.sh [BUILD_DIR]     (default: build/)
#
# The fonts come from fontconfig (DejaVu on a plain Debian machine), so another set of
# fonts draws slightly different pictures.
set -eu
root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-"$root/build"}
if [ ! -f "$build/CMakeCache.txt" ]; then
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo
fi
cmake --build "$build" --target sk_screenshots
tool=$(find "$build" -type f -name sk_screenshots -perm -u+x | head -n 1)
QT_QPA_PLATFORM=offscreen "$tool" "$root/docs/examples/default-workstation.json" \
    "$root/docs/images"
