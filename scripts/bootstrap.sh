#!/usr/bin/env bash
# One entry point for building StrataKeep on a Debian machine.
#
#   scripts/bootstrap.sh run       install what is missing, build, start the console
#   scripts/bootstrap.sh test      install what is missing, build, run every test
#   scripts/bootstrap.sh sanitize  the test suite again under ASan and UBSan
#   scripts/bootstrap.sh coverage  the test suite with line coverage, summed up by gcovr
#   scripts/bootstrap.sh fuzz      build the libFuzzer targets with clang, run each briefly
#   scripts/bootstrap.sh windows   cross build the plain C++ half with MinGW-w64, run its tests under Wine
#   scripts/bootstrap.sh deps      only install the packages
#
# Build folders: build/ (run), build-test/, build-asan/, build-cov/, build-fuzz/,
# build-windows/.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"
jobs=$(nproc 2>/dev/null || echo 2)
# ccache keys on paths below the clone, so every clone of the project shares its hits.
export CCACHE_BASEDIR="$root" CCACHE_NOHASHDIR=1

packages=(
    build-essential cmake ninja-build pkg-config ccache
    qtbase5-dev qttools5-dev qttools5-dev-tools qttranslations5-l10n
    nlohmann-json3-dev googletest libgtest-dev libgmock-dev libbenchmark-dev
    xvfb xauth
    clang libclang-rt-dev clang-format
    # promtool: the skcli tests check its metrics and the alert rules with it
    prometheus
)

# The Windows build of the plain C++ half: MinGW-w64 with POSIX threads (std::mutex and
# std::thread need them), GoogleTest from its Debian sources, and Wine to run the tests.
windows_packages=(
    cmake ninja-build ccache googletest nlohmann-json3-dev
    g++-mingw-w64-x86-64-posix mingw-w64-x86-64-dev
    wine wine64
)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# install_deps [package...]: installs what is missing of the given packages, by
# default of the Linux build's.
install_deps() {
    local wanted=("$@")
    [ ${#wanted[@]} -gt 0 ] || wanted=("${packages[@]}")
    local missing=()
    for p in "${wanted[@]}"; do
        if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
            missing+=("$p")
        fi
    done
    if [ ${#missing[@]} -eq 0 ]; then
        return
    fi
    # Without root and without sudo nothing can be installed: say what is missing and
    # how to install it, rather than fail on a missing sudo.
    if [ "$(id -u)" -ne 0 ] && ! command -v sudo >/dev/null 2>&1; then
        {
            echo "error: these packages are missing: ${missing[*]}"
            echo "Installing them needs root, and sudo is not available. As root, run:"
            echo "    apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
            echo "then run this command again."
        } >&2
        exit 1
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
    # Crash, leak and timeout inputs land here, not in the working folder.
    local artifacts="$root/build-fuzz/artifacts"
    mkdir -p "$artifacts"
    for target in build-fuzz/fuzz/fuzz_*; do
        if ! { [ -f "$target" ] && [ -x "$target" ]; }; then
            continue
        fi
        local name corpus work
        name=$(basename "$target")
        corpus="fuzz/corpus/${name#fuzz_}"
        work=$(mktemp -d)
        echo "== $name for ${seconds}s"
        "$target" -max_total_time="$seconds" -print_final_stats=1 \
            -artifact_prefix="$artifacts/$name-" "$work" "$corpus"
        rm -rf "$work"
    done
}

# Wine for the tests: a private prefix inside the build folder so no user's ~/.wine is
# touched, no debug chatter, no display (the tests are console programs), and no
# offer to download Mono or Gecko, which nothing here uses.
wine_env() {
    export WINEPREFIX="$root/build-windows/wineprefix"
    export WINEARCH=win64
    export WINEDEBUG=-all
    export WINEDLLOVERRIDES="mscoree,mshtml="
    unset DISPLAY WAYLAND_DISPLAY
}

windows_build_and_test() {
    configure_and_build build-windows -DCMAKE_BUILD_TYPE=Debug \
        -DCMAKE_TOOLCHAIN_FILE="$root/cmake/toolchain-mingw64.cmake" -DSK_BUILD_GUI=OFF
    wine_env
    # Creating the prefix takes a while; do it once up front rather than inside the
    # first test's time limit.
    if [ ! -f "$WINEPREFIX/system.reg" ]; then
        echo "Creating the Wine prefix in $WINEPREFIX"
        local log="$root/build-windows/wineboot.log"
        local booted=1
        wine wineboot --init >"$log" 2>&1 || booted=0
        wineserver -w || true
        # Wine writes system.reg when the prefix is complete; without it every test
        # would fail later with far less telling errors.
        if [ "$booted" -ne 1 ] || [ ! -f "$WINEPREFIX/system.reg" ]; then
            {
                echo "error: could not create the Wine prefix in $WINEPREFIX"
                echo "(wine wineboot --init did not finish it; its output is in $log)."
                tail -n 20 "$log"
                echo "The Windows tests need a working Wine: check that the wine and wine64"
                echo "packages are installed and that 'wine wineboot --init' runs for this user."
            } >&2
            return 1
        fi
    fi
    local rc=0
    ctest --test-dir build-windows --output-on-failure --parallel "$jobs" || rc=$?
    wineserver -k >/dev/null 2>&1 || true
    return $rc
}

case "${1:-}" in
deps) install_deps ;;
run) install_deps && start_console ;;
test)
    install_deps
    # Optimised, like the console the run command builds: some warnings only show then.
    configure_and_build build-test -DCMAKE_BUILD_TYPE=RelWithDebInfo -DSK_BUILD_BENCH=ON
    run_tests build-test
    ;;
sanitize)
    install_deps
    configure_and_build build-asan -DCMAKE_BUILD_TYPE=Debug -DSK_SANITIZE=ON
    run_tests build-asan
    ;;
coverage)
    install_deps
    install_deps gcovr
    configure_and_build build-cov -DCMAKE_BUILD_TYPE=Debug -DSK_COVERAGE=ON
    find build-cov -name '*.gcda' -delete
    run_tests build-cov
    # Product code only: the layers and the emulated host, not tests, tools or moc output.
    gcovr --root . --object-directory build-cov \
        --filter '(app|cli|dialogs|service|commands|events|config|driver|emulator)/' \
        --exclude '.*_autogen/.*' --print-summary --txt build-cov/coverage.txt \
        --html-details build-cov/coverage.html
    ;;
fuzz) install_deps && fuzz_briefly ;;
windows) install_deps "${windows_packages[@]}" && windows_build_and_test ;;
*)
    sed -n '2,14p' "$0"
    exit 2
    ;;
esac
