# Sourced by the other scripts: installs what they need, and builds.

# Leaves the package manager alone when nothing is missing.
require_packages() {
    local package missing=()
    for package in "$@"; do
        if [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" != installed ]; then
            missing+=("$package")
        fi
    done
    if [ "${#missing[@]}" -eq 0 ]; then
        return
    fi
    local root=()
    if [ "$(id -u)" -ne 0 ]; then
        root=(sudo)
    fi
    echo "Installing: ${missing[*]}"
    "${root[@]}" apt-get update -qq
    "${root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

# A browser, and in build/browser what drives it.
require_browser() {
    require_packages chromium
    if ! command -v node >/dev/null || ! command -v npm >/dev/null; then
        require_packages nodejs npm
    fi
    mkdir -p build/browser
    if ! cmp -s tests/browser/package-lock.json build/browser/installed-lock.json; then
        cp tests/browser/package.json tests/browser/package-lock.json build/browser
        npm ci --prefix build/browser --no-audit --no-fund --loglevel=error >/dev/null
        cp tests/browser/package-lock.json build/browser/installed-lock.json
    fi
}

# build PRESET [OPTION...]: configures and builds, with options as `cmake --build` takes them.
build() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$@"
}

# The library and the program, optimised.
build_program() {
    build release --target bldatman bldatman-run
}

build_packages=(g++ cmake ninja-build libboost-dev rapidjson-dev libcli11-dev libkainjow-mustache-dev libutfcpp-dev gnuplot-nox)
test_packages=(libgtest-dev libgmock-dev python3 binutils dpkg-dev file locales)
windows_packages=(g++-mingw-w64-x86-64-posix googletest wine wine64)
bench_packages=(libbenchmark-dev python3 time)
fuzz_packages=(clang-14 libclang-rt-14-dev)
format_packages=(clang-format git)
analysis_packages=(clang-tidy cppcheck)
coverage_packages=(gcovr)
