#!/usr/bin/env bash
# Checks that every tracked C++ file is as clang-format (the repository's .clang-format)
# would write it; lists each difference and exits 1 when there is one.
set -euo pipefail
cd "$(dirname "$0")/.."

command -v clang-format >/dev/null || scripts/bootstrap.sh deps
if ! git ls-files -z -- '*.cpp' '*.h' | xargs -0 clang-format --dry-run -Werror; then
    echo "format: run clang-format -i on the files above" >&2
    exit 1
fi
