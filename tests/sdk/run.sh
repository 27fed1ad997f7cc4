#!/usr/bin/env bash
# run.sh BUILD SOURCE: installs the build tree to a fresh prefix, builds the guide's minimal host
# as a project of its own against it, and opens the dialog with that host.
set -euo pipefail
build=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake --install "$build" --prefix "$work/prefix" >"$work/install.log"
find "$work/prefix" -type f | sed "s|$work/prefix/||" | sort >"$work/files"
for file in include/tradeConfig/ITrade.h include/tradeConfig/ModuleEntry.h \
    include/tradeConfig/HostPlatform.h include/tradeConfig/CSkin.h \
    'lib.*/libtradeConfig.so' 'lib.*/libskin.so' bin/tradeclient bin/restart \
    share/tradeConfig/skins/light/skin.json share/tradeConfig/skins/dark/skin.json \
    'lib.*/cmake/tradeConfig/tradeConfigConfig.cmake' 'lib.*/pkgconfig/tradeConfig.pc'; do
    grep -qx "$file" "$work/files" || { echo "not installed: $file"; exit 1; }
done

export HOME=$work/home QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
mkdir "$HOME"

# By the CMake package.
cmake -S "$source/docs/host-example" -B "$work/host" -G Ninja \
    -DCMAKE_PREFIX_PATH="$work/prefix" >"$work/configure.log"
cmake --build "$work/host" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
"$work/host/settingsHost" --once | tee "$work/said"
grep -qx "data directory: $HOME/.com.example.settingshost" "$work/said"

# By pkg-config.
pc=$(dirname "$(find "$work/prefix" -name tradeConfig.pc)")
# shellcheck disable=SC2046
"${CXX:-c++}" -std=c++17 -fPIC "$source/docs/host-example/main.cpp" -o "$work/by-pkg-config" \
    $(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs tradeConfig)
LD_LIBRARY_PATH=$(dirname "$(find "$work/prefix" -name libtradeConfig.so)") \
    "$work/by-pkg-config" --once >/dev/null

# The installed client finds module and skins from where it was put.
mv "$work/prefix" "$work/moved"
"$work/moved/bin/tradeclient" --screenshots "$work/pages" --skin dark >/dev/null
[ "$(find "$work/pages" -name '*.png' | wc -l)" -ge 8 ]
