# Sourced by the scripts beside it: builds the benchmark programs.

cd "$(dirname "${BASH_SOURCE[0]}")/.."
. tools/setup.sh
export LC_ALL=C.UTF-8

# build_benchmarks PACKAGE...: with what else must be installed.
build_benchmarks() {
    install_packages "${build_packages[@]}" libbenchmark-dev python3 "$@"
    say "Building"
    cmake --preset default -DTRADECONFIG_BENCHMARKS=ON >/dev/null
    cmake --build --preset default --target tradeConfigBenchmarks
    say "Checking that module and floor show and store the same"
    build/bin/bench-count --check
}
