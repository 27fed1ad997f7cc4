# For setup.sh, on macOS: what must be there. Nothing is installed; what is missing is named with the
# command that installs it. The shell of macOS is bash 3.2, which takes an empty array for a variable
# that is not set: none of these is empty.

export LC_ALL=en_US.UTF-8

build_packages=(clang++ cmake ninja qt@5)
test_packages=(nm)
clang_runtime_packages=(clang++)

# Homebrew keeps this Qt where CMake does not look by itself.
if [ -z "${CMAKE_PREFIX_PATH:-}" ] && command -v brew >/dev/null; then
    CMAKE_PREFIX_PATH=$(brew --prefix qt@5)
    export CMAKE_PREFIX_PATH
fi

has_qt() {
    local prefix IFS=:
    for prefix in ${CMAKE_PREFIX_PATH:-}; do
        if [ -d "$prefix/lib/cmake/Qt5" ]; then return 0; fi
    done
    return 1
}

# install_packages NAME...: ends the script when one is missing.
install_packages() {
    local name formulae='' tools=''
    for name in "$@"; do
        case $name in
        # Without them there are stand-ins that offer to install them.
        clang++ | nm) xcode-select -p >/dev/null 2>&1 || tools=missing ;;
        qt@5) has_qt || formulae="$formulae qt@5" ;;
        valgrind)
            say "There is no valgrind for macOS. ./test --sanitize finds most of what it would."
            exit 1
            ;;
        *) command -v "$name" >/dev/null || formulae="$formulae $name" ;;
        esac
    done
    if [ -z "$tools$formulae" ]; then
        say "Everything needed is installed"
        return 0
    fi
    if [ -n "$tools" ]; then
        say "Missing: Apple's command line tools. They are installed by:"
        echo "   xcode-select --install"
    fi
    if [ -n "$formulae" ]; then
        say "Missing:$formulae. With Homebrew (https://brew.sh) installed by:"
        echo "   brew install$formulae"
    fi
    exit 1
}
