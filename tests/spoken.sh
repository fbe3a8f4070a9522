#!/usr/bin/env bash
# spoken.sh PROGRAM: the editor by its accessible interface. spoken.py operates the running
# program as a screen reader does, on a private bus.
. "$(dirname "$0")/../scripts/lib.sh"

install_missing "${screen_packages[@]}" at-spi2-core dbus-daemon python3-pyatspi
. scripts/screen.sh

dbus-daemon --session --nofork --print-address=3 3>"$home/bus" &
wait_until test -s "$home/bus"
DBUS_SESSION_BUS_ADDRESS=$(cat "$home/bus")
export DBUS_SESSION_BUS_ADDRESS
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_editor "$1" "$PWD/data/"
press Open
answer_dialog "Open Record File" "$PWD/data/TephrexDemo.rec"
/usr/bin/python3 tests/spoken.py || fail "the screen reader did not find all it needs"
await_gone "TephrexEdit Help"
close_editor
