#!/usr/bin/env bash
# setup.sh SOURCE: ./test and ./run as on macOS, with doubles of the programs there.
set -euo pipefail
source=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tree=$work/tree
bin=$work/bin
log=$work/log

mkdir -p "$tree/tools" "$tree/build/bin"
cp "$source/test" "$source/run" "$tree"
cp "$source"/tools/setup*.sh "$tree/tools"

double() { # FILE, its body on the standard input
    { printf '#!/bin/sh\necho "%s $*" >>"%s"\n' "$(basename "$1")" "$log"; cat; } >"$1"
    chmod +x "$1"
}
# What is on any Mac, and nothing else: no cmake of this machine.
restore() {
    rm -rf "$bin" "$work/qt" "$log"
    mkdir "$bin"
    local program
    for program in basename bash cat cut dirname env getconf mkdir sed; do
        ln -s "$(command -v "$program")" "$bin"
    done
    double "$bin/uname" <<<'echo Darwin'
    double "$bin/xcode-select" <<<'exit 0'
    double "$tree/build/bin/tradeclient" <<<':'
}
with_homebrew() { double "$bin/brew" <<<"[ \"\$*\" = '--prefix qt@5' ] && echo '$work/qt'"; }
with_tools() { # NAME...
    local name
    for name in "$@"; do
        double "$bin/$name" <<<"echo \"  where: \$CMAKE_PREFIX_PATH\" >>'$log'"
    done
}
with_qt() { mkdir -p "$work/qt/lib/cmake/Qt5"; }

call() { env -i PATH="$bin" HOME="$work" ${prefix:+CMAKE_PREFIX_PATH="$prefix"} "$tree/$1" "${@:2}" \
    >"$work/said" 2>&1; }
fails() { ! "$@" || { cat "$work/said"; echo "passed: $*"; exit 1; }; }
said() { grep -qxF -- "$1" "$work/said" || { cat "$work/said"; echo "not said: $1"; exit 1; }; }
not_said() { ! grep -F -- "$1" "$work/said" || { echo "said: $1"; exit 1; }; }
prefix=

# Nothing is there. Everything is named at once, nothing is built.
restore
double "$bin/xcode-select" <<<'exit 2'
for script in test run; do
    fails call "$script"
    said '   xcode-select --install'
    said '   brew install cmake ninja qt@5'
done
! grep -vE '^(uname|xcode-select)' "$log"

# Only what is missing.
restore
with_homebrew
with_tools cmake
with_qt
fails call test
said '   brew install ninja'
not_said xcode-select
restore
with_homebrew
with_tools cmake ninja
fails call test
said '   brew install qt@5'

# All is there: Homebrew's Qt is told to CMake.
restore
with_homebrew
with_tools cmake ninja ctest
with_qt
call test || { cat "$work/said"; exit 1; }
grep -qx 'cmake --preset default -DTRADECONFIG_WERROR=ON .*' "$log"
grep -qx 'cmake --build --preset default' "$log"
grep -qx "ctest --preset default -j $(getconf _NPROCESSORS_ONLN)" "$log"
[ "$(grep -cxF "  where: $work/qt" "$log")" = 3 ]
call run --skin dark
grep -qx 'tradeclient --skin dark' "$log"
call test --sanitize
grep -qx 'ctest --preset sanitize -j .*' "$log"
call test --clang
grep -qx 'ctest --preset clang -j .*' "$log"
fails call test --valgrind
not_said 'brew install'

# A Qt of one's own, without Homebrew.
restore
with_tools cmake ninja ctest
with_qt
prefix=/nowhere:$work/qt call test || { cat "$work/said"; exit 1; }
[ "$(grep -cxF "  where: /nowhere:$work/qt" "$log")" = 3 ]
