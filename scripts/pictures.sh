#!/usr/bin/env bash
# pictures.sh PROGRAM: makes the pictures of the README again, from the running program with the
# demonstration record, and the drawings, with tephrexdraw, which is beside it. Look at them before
# they are committed: the tests expect these drawings from then on.
. "$(dirname "$0")/lib.sh"

install_missing "${screen_packages[@]}"
. scripts/screen.sh

# shot NAME WINDOW: the window alone, in few colours.
shot() {
    sleep 0.3
    import -frame -window "$2" -depth 8 +dither -colors 64 "PNG8:docs/$1.png"
    echo "docs/$1.png"
}

# show_phase NUMBER: from the first phase on show.
show_phase() {
    xdotool key --delay 60 --repeat "$1" ctrl+Next
    sleep 0.2
}

records=/tmp/records # the path on show is to be the same on every machine
mkdir -p docs
mkdir "$records" || fail "$records is somebody's"
leftovers+=("$records")
cp data/TephrexDemo.rec "$records"
start_editor "$1" "$records/"
press Open
answer_dialog "Open Record File" "$records/TephrexDemo.rec"
show_phase 6
shot eruption "$form"
keys ctrl+Prior ctrl+Prior ctrl+Prior ctrl+Prior
shot flows "$form"
fill Loc 99
press Save
await "^TephrexEdit$"
shot message "$(window_named "^TephrexEdit$" | tail -n 1)"
keys Return
await_gone "^TephrexEdit$"
close_editor

export FONTCONFIG_FILE=$PWD/tests/draw/fonts.conf
"${1%/*}/tephrexdraw" -o docs/history.svg data/TephrexDemo.rec
"${1%/*}/tephrexdraw" -o tests/draw/every.svg tests/draw/every.rec
echo docs/history.svg tests/draw/every.svg
