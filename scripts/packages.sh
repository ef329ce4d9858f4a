# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# The Debian packages that the scripts need beyond the build dependencies, which are listed in
# debian/control alone. Sourced by the other scripts.

declare -A packages

# Nothing beyond debian/control.
packages[build]=

# The xcb platform plugin comes with Qt's libraries, the Wayland one does not.
packages[run]='
    fontconfig
    fonts-dejavu-core
    qt6-wayland
'

packages[display]='
    imagemagick
    xauth
    xdotool
    xvfb
'

# A desktop without a desk, and the tools that look at its windows.
packages[e2e]='
    at-spi2-core
    copyq
    dbus
    grim
    mesa-vulkan-drivers
    openbox
    python3-dbusmock
    python3-pyatspi
    python3-xlib
    strace
    sway
    weston
    wl-clipboard
    wmctrl
    x11-utils
    xclip
    xfce4-clipman
    xfce4-settings
'

packages[bench]='
    dbus
    libbenchmark-dev
    python3-xlib
    xvfb
'

# Linters and a compiler in versions that Debian 12 and 13 both have. gobjc brings the Objective-C headers of the
# default compiler.
packages[test]='
    appstream
    clang-19
    clang-format-19
    clang-tidy-19
    clangd-19
    desktop-file-utils
    gobjc
    icnsutils
    libbenchmark-dev
    libclang-rt-19-dev
    libgnustep-gui-dev
    man-db
    python3-yaml
    qt6-declarative-dev-tools
    shellcheck
'

packages[package-test]='
    autopkgtest
    lintian
    piuparts
'

# Makes a Debian of another suite to run commands in.
packages[in-debian]='
    mmdebstrap
'

# Installs what is missing of the named groups; says and does nothing if nothing is missing.
# The group build stands for the build dependencies in debian/control, those of the package's own
# tests excluded. The groups test and package-test include all of them.
ensure_packages() {
    # On other systems the packages have other names and are up to whoever builds.
    command -v dpkg-query >/dev/null || return 0

    case " $* " in
        *' test '* | *' package-test '*) ensure_build_dependencies ;;
        *' build '*) ensure_build_dependencies -Pnocheck ;;
    esac

    local -a wanted=() missing=()
    local group
    for group in "$@"; do
        # shellcheck disable=SC2206 # one word, one package
        wanted+=(${packages[$group]})
    done
    ((${#wanted[@]})) || return 0
    # dpkg-query complains about packages that it has never heard of: those are missing as well.
    mapfile -t missing < <(comm -23 \
        <(printf '%s\n' "${wanted[@]}" | sort -u) \
        <(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "${wanted[@]}" \
            2>/dev/null | sed -n 's/^installed //p' | sort -u))
    ((${#missing[@]})) || return 0
    install_packages install "${missing[@]}"
}

# ensure_build_dependencies [-PPROFILE]
ensure_build_dependencies() {
    # dpkg-checkbuilddeps is itself part of a build dependency, build-essential.
    dpkg-checkbuilddeps "$@" >/dev/null 2>&1 || install_packages build-dep "$@" ./
}

# install_packages install|build-dep ARGUMENT... runs this command of apt-get.
install_packages() {
    local -a as_root=()
    local -a command=(apt-get "$1" --no-install-recommends "${@:2}")
    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf 'Packages are missing, and there is no sudo to install them. As root, run:\n' >&2
            printf '  %s\n' "${command[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi

    printf 'Installing packages: %s\n' "${command[*]}"
    as_root+=(env DEBIAN_FRONTEND=noninteractive)
    local -a options=(-qq --yes -o DPkg::Lock::Timeout=300 -o Dpkg::Use-Pty=0)
    # A source that cannot be reached need not be the one that has the packages.
    "${as_root[@]}" apt-get "${options[@]}" update \
        || printf 'Not all package lists could be refreshed.\n' >&2
    "${as_root[@]}" "${command[@]}" "${options[@]}" >/dev/null
}
