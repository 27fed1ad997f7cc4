#!/usr/bin/env bash
# package.sh BUILD: makes the .deb, unpacks it and starts the client that came out of it.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work" >"$work/log" 2>&1 \
    || { cat "$work/log"; exit 1; }
package=$(find "$work" -maxdepth 1 -name '*.deb')
dpkg-deb -f "$package" Depends | grep -q libqt5widgets5
mkdir "$work/root" "$work/home"
dpkg-deb -x "$package" "$work/root"
# The users' component, and nothing for developers.
cmake --install "$build" --prefix "$work/runtime" --component runtime >>"$work/log"
list() { (cd "$1" && find . -type f | sort); }
diff <(list "$work/root/usr") <(list "$work/runtime")

export HOME=$work/home QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
"$work/root/usr/bin/tradeclient" --version
"$work/root/usr/bin/tradeclient" --help | grep -q '^用法：'
"$work/root/usr/bin/tradeclient" --print-record | grep -q '"splitMaxQty"'
"$work/root/usr/bin/tradeclient" --screenshots "$work/pages" --skin dark >/dev/null
[ "$(find "$work/pages" -name '*.png' | wc -l)" -ge 8 ]
