# For setup.sh, on Debian: what must be installed.

export LC_ALL=C.UTF-8

build_packages=(
    build-essential cmake ninja-build pkg-config
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev qttranslations5-l10n
    fonts-noto-cjk help2man
)
test_packages=(
    clang libgnustep-base-dev gobjc++ libbenchmark-dev
    appstream desktop-file-utils lintian man-db
    xvfb xauth openbox xdotool x11-utils at-spi2-core dbus binutils file python3
)
# What clang links for sanitizers, coverage and fuzzing, and what reads and names its results;
# clang only recommends them.
clang_runtime_packages=(libclang-rt-dev llvm)

# install_packages NAME...: installs with apt-get what dpkg does not list as installed.
install_packages() {
    local missing=() name
    if ! command -v dpkg-query >/dev/null; then
        say "No dpkg here; expecting the equivalents of: $*"
        return 0
    fi
    for name in "$@"; do
        dpkg-query -W -f='${db:Status-Status}' "$name" 2>/dev/null | grep -qx installed \
            || missing+=("$name")
    done
    if [ ${#missing[@]} -eq 0 ]; then
        say "Every package needed is installed"
        return 0
    fi
    local as_root=()
    if [ "$(id -u)" -ne 0 ]; then
        if ! command -v sudo >/dev/null; then
            say "Cannot install packages: neither root nor sudo. Please install:"
            printf '   %s\n' "${missing[*]}"
            exit 1
        fi
        as_root=(sudo)
    fi
    say "Installing: ${missing[*]}"
    if ! { "${as_root[@]}" apt-get update -qq \
        && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
            apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null; }; then
        say "apt-get could not install them. Please install by hand:"
        printf '   %s\n' "${missing[*]}"
        exit 1
    fi
}
