# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Every Debian package that the program, its build and its tests need, in one place.
# Sourced by the other scripts.

declare -A packages

packages[build]='
    cmake
    g++
    libicu-dev
    libseccomp-dev
    ninja-build
    qt6-base-dev
    qt6-declarative-dev
    qt6-svg-dev
'

# The xcb platform plugin comes with Qt's libraries, the Wayland one does not.
packages[run]='
    fontconfig
    fonts-dejavu-core
    qml6-module-qtqml
    qml6-module-qtqml-models
    qml6-module-qtqml-workerscript
    qml6-module-qtquick
    qml6-module-qtquick-templates
    qml6-module-qtquick-window
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

packages[test]='
    appstream
    clang
    clang-format
    clang-tidy
    desktop-file-utils
    icnsutils
    libbenchmark-dev
    libgmock-dev
    libgnustep-gui-dev
    libgtest-dev
    libobjc-12-dev
    man-db
    python3-yaml
    qml6-module-qttest
    qt6-declarative-dev-tools
    shellcheck
    unicode-data
'

packages[package]='
    dpkg-dev
    file
'

# What tests the package in a Debian of its own, on a display from outside of it.
packages[package-test]='
    debootstrap
    lintian
'

# Installs what is missing of the named groups; says and does nothing if nothing is.
ensure_packages() {
    # On other systems the packages have other names and are up to whoever builds.
    command -v dpkg-query >/dev/null || return 0

    local -a wanted=() missing as_root=()
    local group
    for group in "$@"; do
        # shellcheck disable=SC2206 # one word, one package
        wanted+=(${packages[$group]})
    done
    # dpkg-query complains about packages that it has never heard of: those are missing as well.
    mapfile -t missing < <(comm -23 \
        <(printf '%s\n' "${wanted[@]}" | sort -u) \
        <(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "${wanted[@]}" \
            2>/dev/null | sed -n 's/^installed //p' | sort -u))
    ((${#missing[@]})) || return 0

    if ((EUID != 0)); then
        if ! command -v sudo >/dev/null; then
            printf 'Packages are missing, and there is no sudo to install them. As root, run:\n' >&2
            printf '  apt-get install --no-install-recommends %s\n' "${missing[*]}" >&2
            return 1
        fi
        as_root=(sudo)
    fi

    printf 'Installing packages: %s\n' "${missing[*]}"
    as_root+=(env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300)
    # A source that cannot be reached need not be the one that has the packages.
    "${as_root[@]}" update || printf 'Not all package lists could be refreshed.\n' >&2
    "${as_root[@]}" install --yes --no-install-recommends -o Dpkg::Use-Pty=0 "${missing[@]}" \
        >/dev/null
}
