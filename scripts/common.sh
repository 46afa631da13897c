# SPDX-License-Identifier: GPL-3.0-or-later
# shellcheck shell=bash disable=SC2034
# Sourced by the scripts beside it: what they need from Debian, how a preset is built, and what is set up around
# a program that is shown.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

build_packages=(cmake g++ libkf5bluezqt-dev libx11-dev ninja-build qtbase5-dev qttools5-dev)
qt='' # what the presets end in that build with another Qt than usual
run_packages=(alsa-utils bluez libasound2-plugins procps psmisc pulseaudio-utils sound-theme-freedesktop)
demo_packages=(dbus procps python3-dbus python3-gi)
test_packages=(bubblewrap nodejs)
screen_packages=(imagemagick xdotool xvfb)
real_packages=(alsa-utils at-spi2-core bluez bluez-test-tools busybox-static cpio dbus gir1.2-atspi-2.0 kmod
    libasound2-plugins libpam-systemd libspa-0.2-bluetooth pipewire pipewire-bin
    pipewire-pulse polkitd psmisc pulseaudio pulseaudio-module-bluetooth
    pulseaudio-utils qemu-system-x86 qtwayland5 sound-theme-freedesktop systemd weston wireplumber x11-utils)

# Installs those of the packages that are missing; a prepared machine needs neither rights nor a network. On
# systems with other packages it only names them.
need() {
    local missing as_root=()
    if ! command -v dpkg-query >/dev/null; then
        echo "This is not Debian. What these Debian packages contain has to be installed: $*" >&2
        return
    fi
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

use_qt6() {
    qt=-qt6
    build_packages=(cmake g++ libkf6bluezqt-dev libx11-dev ninja-build qt6-base-dev qt6-tools-dev qt6-l10n-tools)
}

# Builds a preset, with the chosen Qt, into $root/build/PRESET$qt. A second build waits for the first one.
build() {
    local log
    echo "Building the preset $1$qt"
    mkdir -p "$root/build"
    log=$(cd "$root" && flock build sh -c "cmake --preset $1$qt && cmake --build --preset $1$qt" 2>&1) || {
        echo "$log" >&2
        return 1
    }
}

# The program that is shown, the servers started for it, and a folder of theirs: all of it goes with the shell.
stage() {
    program='' demo_runs='' servers=() windows=()
    private=$(mktemp -d)
    export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$private} # else Qt makes one of its own in /tmp
    trap clear_stage EXIT
    trap 'exit 129' HUP
    trap 'exit 130' INT
    trap 'exit 143' TERM
}

stop_program() {
    kill "$program" 2>/dev/null || true
    wait "$program" || true
    # A program that is ended from outside leaves its PID file behind.
    if [[ $(cat /tmp/.btdpid 2>/dev/null) == "$program" ]]; then rm -f /tmp/.btdpid; fi
}

clear_stage() {
    trap '' INT TERM HUP
    [[ -z $program ]] || stop_program
    # Not only a server started here: the window's switch may have started another simulated daemon.
    [[ -z $demo_runs ]] || PAIRDESK_DEMO_STATE=$private "$root/demo/bin/systemctl" stop bluetooth
    for ((i = ${#servers[@]}; i--; )); do
        kill "${servers[i]}" 2>/dev/null || true
        wait "${servers[i]}" 2>/dev/null || true
    done
    rm -rf "$private"
}

# Starts a server that prints a line, kept in $ready, as soon as it can be used. In a session of its own it
# does not hear the terminal's signals: it must outlive the program.
serve() {
    read -r ready < <(exec setsid "$@" </dev/null 2>>"$private/servers.log") || {
        cat "$private/servers.log" >&2
        exit 1
    }
    servers+=($!)
}

# A private bus with a simulated BlueZ on it, and harmless stand-ins for the tools.
serve_demo() {
    demo_runs=1
    export DBUS_SYSTEM_BUS_ADDRESS=unix:path=$private/system-bus
    export DBUS_SESSION_BUS_ADDRESS=${DBUS_SESSION_BUS_ADDRESS:-$DBUS_SYSTEM_BUS_ADDRESS}
    export XDG_CONFIG_HOME=$private PAIRDESK_DEMO_STATE=$private PATH=$root/demo/bin:$PATH
    serve dbus-daemon --config-file="$root/demo/bus.conf" --nofork --print-address \
        --address="$DBUS_SYSTEM_BUS_ADDRESS"
    serve "$root/demo/simbluez"
}

# Without -noreset, the server would reset after each xdotool that ends before the program has connected, and
# drop a program that connects meanwhile.
serve_screen() {
    serve Xvfb -displayfd 1 -noreset -screen 0 1024x768x24 -nolisten tcp
    export DISPLAY=:$ready QT_QPA_PLATFORM=xcb
}

fail() {
    tail "$private"/*.log >&2 || true
    echo "$1" >&2
    exit 1
}

visible_windows() {
    xdotool search --onlyvisible --class pairdesk 2>/dev/null || true
}

# Waits for something to be true; fails after $1 tenths of a second.
await() {
    local tries
    for ((tries = $1; tries--; )); do
        if "${@:2}"; then return; fi
        sleep 0.1
    done
    return 1
}

# Whether the program has a window, from then on $window, that was not there before.
has_new_window() {
    local now
    kill -0 "$program" 2>/dev/null || fail "The program has ended."
    mapfile -t now < <(visible_windows)
    for window in "${now[@]}"; do
        if [[ " ${windows[*]} " != *" $window "* ]]; then
            windows=("${now[@]}")
            return
        fi
    done
    return 1
}

await_window() {
    await 600 has_new_window || fail "The program has shown no window."
}

# A window is painted when two pictures in a row show the same and it is more than a blank area. High windows
# have something that moves in their upper part, or nothing but a title.
take_picture() {
    local seen='' before=none tries
    for ((tries = 600; tries--; )); do
        kill -0 "$program" 2>/dev/null || break
        if import -silent -window "$window" "png:$private/picture" 2>/dev/null; then
            seen=$(convert "$private/picture" -gravity south -crop '100%x80%+0+0' +repage -format '%# %k' info:)
            if [[ $seen == "$before" ]] && ((${seen#* } > 16)); then
                cp "$private/picture" "$1"
                return
            fi
            before=$seen
        fi
        sleep 0.1
    done
    fail "The program has not painted its window."
}
