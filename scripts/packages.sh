# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT
# shellcheck shell=bash

# Lists and installs the Debian packages that the scripts need in addition to the build dependencies
# in debian/control. Sourced by the other scripts.

declare -A packages

# The build needs only the packages in debian/control.
packages[build]=

# Debian's packages of Qt's libraries contain the xcb platform plugin, but not the Wayland plugin.
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

# Headless desktops, and tools that control and inspect windows.
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

# Linters and a compiler in versions that both Debian 12 and 13 provide. gobjc contains the
# Objective-C headers of the default compiler.
packages[test]='
    appstream
    clang-19
    clang-format-19
    clang-tidy-19
    clangd-19
    desktop-file-utils
    extra-cmake-modules
    gobjc
    libbenchmark-dev
    libclang-rt-19-dev
    libgnustep-gui-dev
    man-db
    python3-yaml
    qt6-declarative-dev-tools
    reuse
    shellcheck
'

packages[package-test]='
    autopkgtest
    lintian
    piuparts
'

# mmdebstrap creates the minimal Debian system in which scripts/in-debian runs commands.
packages[in-debian]='
    mmdebstrap
'

# ensure_packages GROUP...
# Installs the missing packages of these groups. Prints nothing if no package is missing.
# The group build includes the build dependencies in debian/control except those of the tests; the
# groups test and package-test include all build dependencies.
ensure_packages() {
    # On systems without dpkg, users install the dependencies themselves.
    command -v dpkg-query >/dev/null || return 0

    case " $* " in
        *' test '* | *' package-test '*) ensure_build_dependencies ;;
        *' build '*) ensure_build_dependencies -Pnocheck ;;
    esac

    local -a wanted=() missing=()
    local group
    for group in "$@"; do
        # shellcheck disable=SC2206 # each word is a package
        wanted+=(${packages[$group]})
    done
    ((${#wanted[@]})) || return 0
    # For an unknown package, dpkg-query writes an error; the package counts as missing.
    mapfile -t missing < <(comm -23 \
        <(printf '%s\n' "${wanted[@]}" | sort -u) \
        <(dpkg-query --show --showformat '${db:Status-Status} ${Package}\n' "${wanted[@]}" \
            2>/dev/null | sed -n 's/^installed //p' | sort -u))
    ((${#missing[@]})) || return 0
    install_packages install "${missing[@]}"
}

# ensure_build_dependencies [-PPROFILE]
# Installs the build dependencies in debian/control for this build profile.
ensure_build_dependencies() {
    # dpkg-checkbuilddeps itself can be missing; build-essential, a build dependency, installs it.
    dpkg-checkbuilddeps "$@" >/dev/null 2>&1 || install_packages build-dep "$@" ./
}

# install_packages install|build-dep ARGUMENT...
# Runs this command of apt-get as root.
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
    # If a package source is unreachable, another package source may contain the packages.
    "${as_root[@]}" apt-get "${options[@]}" update \
        || printf 'Not all package lists could be refreshed.\n' >&2
    "${as_root[@]}" "${command[@]}" "${options[@]}" >/dev/null
}
