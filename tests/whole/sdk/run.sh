#!/usr/bin/env bash
# run.sh BUILD SOURCE: installs the build tree to a fresh prefix, a component at a time, builds the
# guide's minimal host as a project of its own against it, and opens the dialog with that host.
set -euo pipefail
build=$1
source=$2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Two components, without a file that both have.
cmake --install "$build" --prefix "$work/prefix" --component runtime >"$work/install.log"
(cd "$work/prefix" && find . -type f | cut -c3- | sort) >"$work/runtime"
cmake --install "$build" --prefix "$work/sdk" --component sdk >>"$work/install.log"
(cd "$work/sdk" && find . -type f | cut -c3- | sort) >"$work/files"
[ -z "$(comm -12 "$work/runtime" "$work/files")" ]
for file in 'lib.*/libtradeConfig.so' 'lib.*/libskin.so' bin/tradeclient 'lib.*/tradeConfig/restart' \
    share/applications/com.kivotrade.tradeclient.desktop share/man/man1/tradeclient.1.gz \
    share/tradeConfig/skins/light/skin.json share/tradeConfig/skins/dark/skin.json; do
    grep -qx "$file" "$work/runtime" || { echo "not of the runtime: $file"; exit 1; }
done
! grep -vE -e '^(bin/tradeclient|lib.*/tradeConfig/restart|lib.*/lib(tradeConfig|skin)\.so)$' \
    -e '^share/(tradeConfig/skins/.*|doc/tradeclient/(copyright|changelog\.gz)|man/man1/.*\.1\.gz)$' \
    -e '^share/(applications|metainfo|icons/hicolor/scalable/apps)/com\.kivotrade\.tradeclient\.[a-z.]*$' \
    "$work/runtime" || { echo "of no use to users"; exit 1; }
for file in include/tradeConfig/ITrade.h include/tradeConfig/ModuleEntry.h \
    include/tradeConfig/HostPlatform.h include/tradeConfig/CSkin.h \
    include/tradeConfig/skin/SkinKeys.h include/libskin/SkinLibrary.h \
    share/tradeConfig/translations/tradeConfig_zh_TW.qm share/tradeConfig/host-example/main.cpp \
    'lib.*/tradeConfig/plugins/designer/libtradeConfigDesigner.so' \
    'lib.*/cmake/tradeConfig/tradeConfigConfig.cmake' 'lib.*/pkgconfig/tradeConfig.pc'; do
    grep -qx "$file" "$work/files" || { echo "not of the sdk: $file"; exit 1; }
done
# Together in one prefix, they are what is installed without a choice.
cmake --install "$build" --prefix "$work/prefix" --component sdk >>"$work/install.log"
cmake --install "$build" --prefix "$work/whole" >>"$work/install.log"
diff -r "$work/prefix" "$work/whole"

export HOME=$work/home QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
mkdir "$HOME"

# By the CMake package.
cmake -S "$work/prefix/share/tradeConfig/host-example" -B "$work/host" -G Ninja \
    -DCMAKE_PREFIX_PATH="$work/prefix" >"$work/configure.log"
cmake --build "$work/host" >"$work/build.log" || { cat "$work/build.log"; exit 1; }
"$work/host/settingsHost" --once | tee "$work/said"
grep -qx "data directory: $HOME/.com.example.settingshost" "$work/said"
# Its palette is the dark skin's.
window=$(sed -n 's/.*"Window": "\(#[0-9A-Fa-f]*\)".*/\1/p' \
    "$work/prefix/share/tradeConfig/skins/dark/skin.json" | head -n 1)
grep -qix "window colour: $window" "$work/said"

# By pkg-config.
pc=$(dirname "$(find "$work/prefix" -name tradeConfig.pc)")
# shellcheck disable=SC2046
"${CXX:-c++}" -std=c++17 -fPIC "$source/docs/host-example/main.cpp" -o "$work/by-pkg-config" \
    $(PKG_CONFIG_PATH=$pc pkg-config --cflags --libs tradeConfig)
LD_LIBRARY_PATH=$(dirname "$(find "$work/prefix" -name libtradeConfig.so)") \
    "$work/by-pkg-config" --once >/dev/null

# Every header by its name in the tree, and those of tradeConfig/ by their short names as well.
{
    for header in ITrade ModuleEntry HostPlatform CSkin platform/HostPlatform skin/CSkin \
        skin/SkinKeys; do
        echo "#include <tradeConfig/$header.h>"
    done
    echo '#include <libskin/SkinLibrary.h>'
    echo 'QString border() { return SkinKeys::Colour::SwitchBorder(); }'
} >"$work/headers.cpp"
for compiler in "${CXX:-c++}" clang++; do
    command -v "$compiler" >/dev/null || continue
    # shellcheck disable=SC2046
    "$compiler" -std=c++17 -fPIC -fsyntax-only "$work/headers.cpp" \
        $(PKG_CONFIG_PATH=$pc pkg-config --cflags tradeConfig)
done

# The installed client finds module and skins from where it was put.
mv "$work/prefix" "$work/moved"
"$work/moved/bin/tradeclient" --screenshots "$work/pages" --skin dark >/dev/null
[ "$(find "$work/pages" -name '*.png' | wc -l)" -ge 8 ]
