# Sourced by run, test and the other scripts of the tree: what must be installed, and how to build.
# Each system says in a file of its own what it calls that: arrays of packages, install_packages,
# and a locale with UTF-8.

say() { printf '== %s\n' "$*"; }

if [ "$(uname)" = Darwin ]; then
    . "$(dirname "${BASH_SOURCE[0]}")/setup-macos.sh"
else
    . "$(dirname "${BASH_SOURCE[0]}")/setup-debian.sh"
fi

# How many processes may run side by side. macOS has no nproc.
processors() { getconf _NPROCESSORS_ONLN; }

# build PRESET [cmake arguments...]: configures and builds.
build() {
    local preset=$1
    shift
    say "Configuring (preset $preset)"
    cmake --preset "$preset" "$@"
    say "Building"
    cmake --build --preset "$preset"
}
