#!/usr/bin/env bash
# run.sh SOURCE: configures a project around the tree and asks what its libraries are made of;
# building them once more would take minutes.
set -euo pipefail
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

cmake -S "$(dirname "$0")" -B "$work" -G Ninja -DTREE="$1" >"$work/log" 2>&1 ||
    { cat "$work/log"; exit 1; }
together=$(find "$work/tree/tradeConfig" -name 'unity_metaObjects_*.cxx')
for class in CTradeConfigWidget CaptionBar ImageButton MessageBox NavWidget \
    QuantityValidator SwitchEx TableLineEdit TipLabel WrapLabel; do
    [ "$(grep -c "/moc_$class.cpp\"$" "$together")" = 1 ] ||
        { echo "The meta-object of $class is missing"; exit 1; }
done
for library in libtradeConfigCore.a libtradeConfig.so; do
    ninja -C "$work" -t query "tree/lib/$library" >"$work/inputs"
    [ "$(grep -c "/$(basename "$together").o$" "$work/inputs")" = 1 ] ||
        { echo "$library lacks the meta-objects"; exit 1; }
    ! grep 'mocs_compilation.cpp.o$' "$work/inputs" || { echo "$library has meta-objects twice"; exit 1; }
done

# What the tree compiles itself with is no concern of the project around it.
ninja -C "$work" -t commands around | grep 'around.cpp.o -c' >"$work/command"
! grep -E -- '-D(QT_NO_(CAST|KEYWORDS|FOREACH|URL)|QT_USE_|QT_MESSAGELOG)|-Werror|-fvisibility' "$work/command"
grep -q -- '-std=gnu++17' "$work/command" || { echo "the headers need C++17"; exit 1; }
