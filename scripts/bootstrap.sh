#!/usr/bin/env bash
# One entry point for building StrataKeep on a Debian machine.
#
#   scripts/bootstrap.sh run       install what is missing, build, start the console
#   scripts/bootstrap.sh test      install what is missing, build, run every test
#   scripts/bootstrap.sh sanitize  the test suite again under ASan and UBSan
#   scripts/bootstrap.sh fuzz      build the libFuzzer targets with clang, run each briefly
#   scripts/bootstrap.sh deps      only install the packages
#
# Build folders: build/ (run), build-test/, build-asan/, build-fuzz/.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
jobs=$(nproc 2>/dev/null || echo 2)

packages=(
    build-essential cmake ninja-build pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools
    nlohmann-json3-dev googletest libgtest-dev libgmock-dev libbenchmark-dev
    xvfb xauth
    clang libclang-rt-dev
)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

install_deps() {
    local missing=()
    for p in "${packages[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$p")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    echo "Installing: ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends \
        "${missing[@]}"
}

configure_and_build() {
    local dir=$1
    shift
    cmake -S . -B "$dir" -G Ninja -DSK_WARNINGS_AS_ERRORS=ON "$@"
    cmake --build "$dir" --parallel "$jobs"
}

run_tests() {
    local dir=$1
    QT_QPA_PLATFORM=offscreen ctest --test-dir "$dir" --output-on-failure --parallel "$jobs"
}

start_console() {
    configure_and_build build -DCMAKE_BUILD_TYPE=RelWithDebInfo
    if [ -z "${DISPLAY:-}" ] && [ -z "${WAYLAND_DISPLAY:-}" ]; then
        echo "No display found: starting the console inside a virtual X server (xvfb-run)."
        exec xvfb-run -a -s "-screen 0 1600x1000x24" build/bin/StrataKeep
    fi
    exec build/bin/StrataKeep
}

fuzz_briefly() {
    CC=clang CXX=clang++ configure_and_build build-fuzz -DSK_BUILD_FUZZERS=ON \
        -DSK_BUILD_GUI=OFF -DSK_BUILD_TESTS=OFF
    local seconds=${SK_FUZZ_SECONDS:-20}
    for target in build-fuzz/fuzz/fuzz_*; do
        [ -x "$target" ] || continue
        local name corpus work
        name=$(basename "$target")
        corpus="fuzz/corpus/${name#fuzz_}"
        work=$(mktemp -d)
        echo "== $name for ${seconds}s"
        "$target" -max_total_time="$seconds" -print_final_stats=1 "$work" "$corpus"
        rm -rf "$work"
    done
}

case "${1:-}" in
deps) install_deps ;;
run) install_deps && start_console ;;
test) install_deps && configure_and_build build-test -DCMAKE_BUILD_TYPE=Debug && run_tests build-test ;;
sanitize)
    install_deps
    configure_and_build build-asan -DCMAKE_BUILD_TYPE=Debug -DSK_SANITIZE=ON
    run_tests build-asan
    ;;
fuzz) install_deps && fuzz_briefly ;;
*)
    sed -n '2,12p' "$0"
    exit 2
    ;;
esac
