#!/usr/bin/env bash
# Installs the Debian packages that building, testing and running the panel takes.
# Asks for nothing when all are there. Needs root or sudo; with neither it prints the line that
# root has to run and ends with 1.
set -eu

packages=(
    # build
    qtbase5-dev qttools5-dev qttools5-dev-tools libqt5svg5-dev libcups2-dev libssl-dev ninja-build
    # tests and demo: the real print server and clients, the sandbox, a display, a real sudo,
    # certificates for a server, and one font, so that measured text widths are the same everywhere;
    # only Qt's private headers have what a desktop switches accessibility on with
    cups-daemon cups-client bubblewrap xvfb sudo openssl fonts-dejavu-core qtbase5-private-dev
    # benchmarks and checks
    libbenchmark-dev clang-format clang-tidy clang libclang-rt-dev python3
    lintian desktop-file-utils appstream man-db
)
# Command and package of what may well come from elsewhere than a package.
commands=(g++:g++ cmake:cmake git:git)

missing_packages()
{
    local name entry
    for name in "${packages[@]}"; do
        if [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" != installed ]; then
            echo "$name"
        fi
    done
    for entry in "${commands[@]}"; do
        if ! command -v "${entry%%:*}" >/dev/null; then
            echo "${entry##*:}"
        fi
    done
}

if ! command -v dpkg-query >/dev/null; then
    echo "install-packages.sh: no Debian system; this takes: ${packages[*]} g++ cmake git" >&2
    exit 0
fi

mapfile -t missing < <(missing_packages)
if [ ${#missing[@]} -eq 0 ]; then
    exit 0
fi

install="apt-get update && apt-get install -y --no-install-recommends ${missing[*]}"
export DEBIAN_FRONTEND=noninteractive
if [ "$(id -u)" -eq 0 ]; then
    sh -c "$install"
elif command -v sudo >/dev/null; then
    echo "Packages to install: ${missing[*]}"
    sudo DEBIAN_FRONTEND=noninteractive sh -c "$install"
else
    echo "Packages are missing. Run as root:" >&2
    echo "$install" >&2
    exit 1
fi
