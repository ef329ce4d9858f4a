# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# The beginning of all scripts, which source this file: strict mode, the top folder as the working
# directory, no interactive input.

set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Standard input is open even if the caller has closed it; otherwise, the first file that a program
# opens would get descriptor 0.
exec </dev/null

# shellcheck source=scripts/packages.sh
source scripts/packages.sh

# Debian installs qmllint and qmlformat of Qt 6 in this folder. /usr/bin holds wrappers of the same
# names, which run the tools of the default Qt version.
PATH=/usr/lib/qt6/bin:$PATH

# The version of Qt whose qmlformat and qmllint are used. Other versions of qmlformat produce
# another layout; other versions of qmllint report other warnings, or exit with 0 in spite of
# warnings. Each Debian release packages these tools in one version only.
readonly qt_of_linters=6.4

fail() {
    printf '%s: %s\n' "$0" "$1" >&2
    exit 1
}

has_qt_of_linters() {
    [[ $(qmllint --version) == *" $qt_of_linters."* ]]
}

# Builds the program if a source has changed.
build_program() {
    # Ninja runs CMake again after a change of a CMakeLists.txt, but not after a change of a preset.
    if ! [[ build/release/build.ninja -nt CMakePresets.json ]]; then
        cmake --preset release
    fi
    if ! ninja -C build/release -n morvane | grep -q 'no work to do'; then
        cmake --build --preset release --target morvane
    fi
}

# own_sources EXTENSION... prints the paths of all source files with these extensions, separated by
# NUL characters.
own_sources() {
    local extension
    local -a names=()
    for extension in "$@"; do
        names+=(-o -name "*.$extension")
    done
    find src tests -type f '(' "${names[@]:1}" ')' -print0 | sort -z
}
