# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# What all scripts begin with: strict mode, the top folder as the current one, no questions asked.
# Sourced by the other scripts.

set -euo pipefail

cd "$(dirname "${BASH_SOURCE[0]}")/.."

# A closed standard input would become the first file that anything opens.
exec </dev/null

# shellcheck source=scripts/packages.sh
source scripts/packages.sh

# Where Debian keeps qmllint and qmlformat of Qt 6; elsewhere on the search path, wrappers of these
# names look for them among the tools of whatever Qt is the default.
PATH=/usr/lib/qt6/bin:$PATH

# Other versions of qmlformat want another layout, and those of qmllint report other warnings or end
# with success in spite of them. Debian packages them in the version of its Qt alone.
readonly qt_of_linters=6.4

fail() {
    printf '%s: %s\n' "$0" "$1" >&2
    exit 1
}

has_qt_of_linters() {
    [[ $(qmllint --version) == *" $qt_of_linters."* ]]
}

# Builds the program, and nothing if nothing has changed.
build_program() {
    # Presets are read by a configuration only; to everything else the build tool attends.
    if ! [[ build/release/build.ninja -nt CMakePresets.json ]]; then
        cmake --preset release
    fi
    if ! ninja -C build/release -n morvane | grep -q 'no work to do'; then
        cmake --build --preset release --target morvane
    fi
}

# own_sources EXTENSION... prints the paths of our files with these endings, each ended by NUL.
own_sources() {
    local extension
    local -a names=()
    for extension in "$@"; do
        names+=(-o -name "*.$extension")
    done
    find src tests -type f '(' "${names[@]:1}" ')' -print0 | sort -z
}
