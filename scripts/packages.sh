# Sourced by the other scripts: installs the Debian packages that they need.

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

build_packages=(g++ cmake ninja-build libboost-dev rapidjson-dev libcli11-dev libkainjow-mustache-dev gnuplot-nox)
test_packages=(libgtest-dev libgmock-dev python3 binutils)
check_packages=(clang-format clang-tidy git)
