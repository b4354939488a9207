#!/bin/sh
# Does the guard give the display's mode back? On a real X server with the dummy driver, since Xvfb has
# only one mode.
set -eu

probe=$QUENVALE_BUILD/tests/guard_probe
xdummy=$QUENVALE_SOURCE/tests/e2e/xdummy.sh
for server in /usr/lib/xorg/Xorg /usr/libexec/Xorg; do
    [ -x "$server" ] && found=yes
done
[ "${found:-}" = yes ] || { echo "no X server (package xserver-xorg-core)"; exit 77; }

eval "$("$xdummy" start 1280x1024 800x600)"
export DISPLAY
trap '"$xdummy" stop "$XDUMMY_PID"' EXIT

# Waits a little: the guard acts after the probe has ended.
mode_is() { # WAY MODE
    for _ in 1 2 3 4 5 6 7 8 9 10; do
        now=$("$xdummy" mode "$DISPLAY")
        [ "$now" = "$2" ] && break
        sleep 0.2
    done
    echo "$1: $now, expected $2"
    [ "$now" = "$2" ]
}

for way in kill segv exit late; do
    "$probe" "$way" || true
    mode_is "$way" 1280x1024
done
"$probe" forget
sleep 1
mode_is forget 800x600
