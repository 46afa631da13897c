# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034
# Sourced by the scripts beside it: what they need from Debian, and how a preset is built.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(cmake g++ libkf5bluezqt-dev libx11-dev ninja-build qtbase5-dev qttools5-dev)
run_packages=(alsa-utils bluez procps psmisc pulseaudio-utils sound-theme-freedesktop)
demo_packages=(dbus-bin dbus-daemon procps python3-dbus python3-gi)
test_packages=(alsa-utils dbus-bin dbus-daemon libasound2-plugins nodejs procps psmisc pulseaudio pulseaudio-utils
    sound-theme-freedesktop)
screen_packages=(imagemagick xdotool xvfb)
real_packages=(alsa-utils at-spi2-core bluez bluez-test-tools busybox-static cpio dbus gir1.2-atspi-2.0 kmod
    libasound2-plugins libglib2.0-bin libpam-systemd libspa-0.2-bluetooth pipewire pipewire-bin
    pipewire-pulse polkitd pulseaudio pulseaudio-module-bluetooth
    pulseaudio-utils qemu-system-x86 sound-theme-freedesktop systemd wireplumber x11-utils)

# Installs those of the packages that are missing; a prepared machine needs neither rights nor a network.
need() {
    local missing as_root=()
    missing=$(comm -13 <(dpkg-query -W -f '${Package} ${db:Status-Status}\n' "$@" 2>/dev/null |
        sed -n 's/ installed$//p' | sort -u) <(printf '%s\n' "$@" | sort -u))
    [[ -n $missing ]] || return 0
    ((EUID == 0)) || as_root=(sudo)
    echo "Installing ${missing//$'\n'/ }"
    "${as_root[@]}" apt-get update -qq
    # shellcheck disable=SC2086
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get install -qq --no-install-recommends $missing >/dev/null
}

build() {
    local log
    echo "Building the preset $1"
    log=$(cd "$root" && cmake --preset "$1" 2>&1 && cmake --build --preset "$1" 2>&1) || {
        echo "$log" >&2
        return 1
    }
}
