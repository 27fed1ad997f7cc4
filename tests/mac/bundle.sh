#!/usr/bin/env bash
# bundle.sh SCRIPT: the last step of an installation on macOS, with doubles of the programs there.
# The double of otool prints the file that it is asked about.
set -euo pipefail
script=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bundle=$work/tradeclient.app
log=$work/log
mkdir "$work/bin"

double() { # NAME, its body on the standard input
    { printf '#!/bin/sh\necho "%s $*" >>"%s"\n' "$1" "$log"; cat; } >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}
load() { # FILE MINIMUM LIBRARY...
    mkdir -p "$(dirname "$bundle/Contents/$1")"
    printf '      cmd LC_BUILD_VERSION\n    minos %s\n' "$2" >"$bundle/Contents/$1"
    printf '     name %s (offset 24)\n' "${@:3}" >>"$bundle/Contents/$1"
}
# The bundle as it is before the step, and what the double of macdeployqt adds.
restore() {
    rm -rf "$bundle" "$work/qt" "$log"
    load Frameworks/QtCore.framework/Versions/5/QtCore 11.0 /usr/lib/libSystem.B.dylib
    printf '      cmd LC_VERSION_MIN_MACOSX\n  cmdsize 16\n  version 10.13\n' \
        >>"$bundle/Contents/Frameworks/QtCore.framework/Versions/5/QtCore"
    ln -s Versions/5/QtCore "$bundle/Contents/Frameworks/QtCore.framework/QtCore"
    load PlugIns/platforms/libqcocoa.dylib 11.0 @rpath/QtCore.framework/Versions/5/QtCore
    mv "$bundle/Contents" "$work/qt"
    load MacOS/tradeclient 11.0 @rpath/libskin.dylib /System/Library/Frameworks/AppKit.framework/AppKit
    load MacOS/restart 11.0 /usr/lib/libSystem.B.dylib
    load Frameworks/libskin.dylib 11.0 @rpath/libskin.dylib
    load Frameworks/libtradeConfig.dylib 11.0 @rpath/libskin.dylib
    double otool <<<'cat "$2"'
    double codesign <<<':'
    double macdeployqt <<<"cp -R '$work/qt/.' \"\$1/Contents\""
}
finish() { # IDENTITY [PROGRAM...]: those programs are there
    local programs=() program
    for program in "${@:2}"; do
        programs+=("-D$(tr '[:lower:]' '[:upper:]' <<<"$program")=$work/bin/$program")
    done
    cmake -DBUNDLE="$bundle" -DMINIMUM=11.0 -DIDENTITY="$1" ${programs[@]+"${programs[@]}"} \
        -P "$script" >"$work/said" 2>&1
}
said() { grep -qF -- "$1" "$work/said" || { cat "$work/said"; echo "not said: $1"; exit 1; }; }
fails() { ! "$@" || { cat "$work/said"; echo "passed: $*"; exit 1; }; }
everything=(macdeployqt otool codesign)

signed() { # OPTIONS: what is written down when all of it is signed
    local code
    for code in PlugIns/platforms/libqcocoa.dylib Frameworks/QtCore.framework \
        Frameworks/libskin.dylib Frameworks/libtradeConfig.dylib MacOS/restart; do
        echo "codesign --force --sign $1 $bundle/Contents/$code"
    done
    echo "codesign --force --sign $1 $bundle"
    echo "codesign --verify --deep --strict $bundle"
}

# Deployed, then signed ad hoc, from the inside outwards.
restore
finish - "${everything[@]}"
{ echo "macdeployqt $bundle -verbose=1"; signed -; } >"$work/expected"
grep -v '^otool' "$log" | diff - "$work/expected"
[ -f "$bundle/Contents/PlugIns/platforms/libqcocoa.dylib" ]
! grep -iE 'left out|warning' "$work/said"
# All that was deployed is looked at, and once.
for file in MacOS/tradeclient MacOS/restart Frameworks/libskin.dylib Frameworks/libtradeConfig.dylib \
    Frameworks/QtCore.framework/Versions/5/QtCore PlugIns/platforms/libqcocoa.dylib; do
    [ "$(grep -cxF "otool -l $bundle/Contents/$file" "$log")" = 1 ]
done
[ "$(grep -c '^otool' "$log")" = 6 ]

# By somebody, hardened and with the time.
restore
finish 'Developer ID Application: Somebody (AB12)' "${everything[@]}"
signed 'Developer ID Application: Somebody (AB12) --options runtime --timestamp' >"$work/expected"
grep '^codesign' "$log" | diff - "$work/expected"

# Without the programs nothing is done, and it is said.
restore
finish -
[ ! -e "$log" ]
said 'no macdeployqt'
said 'no otool'
said 'no codesign'

# With some of them: Qt stays outside, which is no failure.
restore
load Frameworks/libskin.dylib 11.0 '/opt/a b/QtSvg.framework/Versions/5/QtSvg'
finish - otool codesign
said 'no macdeployqt'
grep -q '^codesign .*tradeclient.app$' "$log"

# Something is left outside although Qt was deployed: macdeployqt itself says it is well.
restore
load Frameworks/libskin.dylib 11.0 '/opt/a b/QtSvg.framework/Versions/5/QtSvg'
fails finish - "${everything[@]}"
said 'Contents/Frameworks/libskin.dylib: /opt/a b/QtSvg.framework/Versions/5/QtSvg'
! grep -q '^codesign' "$log"

# Something needs a newer macOS than the bundle says.
restore
printf 'minos 14.2\n' >>"$work/qt/PlugIns/platforms/libqcocoa.dylib"
sed -i 's/version 10.13/version 10.13.6\ncmd LC_VERSION_MIN_MACOSX\n cmdsize 16\n version 12.0/' \
    "$work/qt/Frameworks/QtCore.framework/Versions/5/QtCore"
finish - "${everything[@]}"
said 'Contents/PlugIns/platforms/libqcocoa.dylib: 14.2'
said 'Contents/Frameworks/QtCore.framework/Versions/5/QtCore: 12.0'
[ "$(grep -cE '^ *Contents/' "$work/said")" = 2 ]

# A program that fails ends it.
for program in macdeployqt codesign; do
    restore
    double "$program" <<<'exit 3'
    fails finish - "${everything[@]}"
done
restore
double codesign <<<'[ "$1" != --verify ]'
fails finish - "${everything[@]}"
