#!/usr/bin/env bash
# package.sh BUILD: makes the .debs, has Debian's own tools examine them, unpacks them and starts the
# client that came out.
set -euo pipefail
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$work" >"$work/log" 2>&1 \
    || { cat "$work/log"; exit 1; }
client=$(find "$work" -maxdepth 1 -name 'tradeclient_*.deb')
sdk=$(find "$work" -maxdepth 1 -name 'tradeclient-sdk_*.deb')
dpkg-deb -f "$client" Depends | grep -q libqt5widgets5
dpkg-deb -f "$sdk" Depends | grep -q '^tradeclient (= '
mkdir "$work/root" "$work/root-sdk" "$work/home"
dpkg-deb -x "$client" "$work/root"
dpkg-deb -x "$sdk" "$work/root-sdk"
# The users' component, and nothing for developers; those have a package of their own.
list() { (cd "$1" && find . -type f | sort); }
for component in runtime sdk; do
    cmake --install "$build" --prefix "$work/$component" --component $component >>"$work/log"
done
diff <(list "$work/root/usr") <(list "$work/runtime")
diff <(list "$work/root-sdk/usr") <(list "$work/sdk")

lintian --allow-root --fail-on error "$client" "$sdk"
share=$work/root/usr/share
desktop-file-validate "$share/applications/com.kivotrade.tradeclient.desktop"
appstreamcli validate --no-net --explain "$share/metainfo/com.kivotrade.tradeclient.metainfo.xml"
icon=$(sed -n 's/^Icon=//p' "$share/applications/com.kivotrade.tradeclient.desktop")
[ -f "$share/icons/hicolor/scalable/apps/$icon.svg" ]
# The manual page has every option of the help, and nothing that man does not understand.
page=$share/man/man1/tradeclient.1.gz
LC_ALL=C.UTF-8 MANROFFSEQ='' MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" 2>"$work/man" \
    >/dev/null
[ ! -s "$work/man" ] || { cat "$work/man"; exit 1; }

export HOME=$work/home QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
program=$work/root/usr/bin/tradeclient
"$program" --version
"$program" --help | grep -q '^用法：'
"$program" --help | grep -oE '^ .*--[a-z-]+' | grep -oE -e '--[a-z-]+' | while read -r option; do
    zcat "$page" | tr -d '\\' | grep -qF -e "$option" || { echo "not in the manual: $option"; exit 1; }
done
"$program" --print-record | grep -q '"splitMaxQty"'
"$program" --screenshots "$work/pages" --skin dark >/dev/null
[ "$(find "$work/pages" -name '*.png' | wc -l)" -ge 8 ]

# It finds the restarter, and puts it where it is started from.
restarter=$HOME/.com.kivotrade.tradeclient/restart
"$program" 2>"$work/said" &
running=$!
for _ in $(seq 200); do
    [ ! -x "$restarter" ] || break
    sleep 0.1
done
kill $running
cmp "$restarter" "$(find "$work/root/usr/lib" -name restart)" || { cat "$work/said"; exit 1; }
