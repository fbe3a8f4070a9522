#!/usr/bin/env bash
# pictures.sh PROGRAM: makes the pictures of the README again: screenshots of the running editor with
# the demonstration record, and drawings by tephrexdraw in the same folder. Look at the drawings before
# you commit them: the tests compare with them.
. "$(dirname "$0")/lib.sh"

install_missing "${screen_packages[@]}"
. scripts/screen.sh

# shot NAME WINDOW: a screenshot of one window, in few colours.
shot() {
    sleep 0.3
    import -frame -window "$2" -depth 8 +dither -colors 64 "PNG8:docs/$1.png"
    echo "docs/$1.png"
}

# skip_phases COUNT: from the shown phase to the one COUNT later.
skip_phases() {
    xdotool key --delay 60 --repeat "$1" ctrl+Next
    sleep 0.2
}

records=/tmp/records # the picture shows the path, which must be the same on every machine
mkdir -p docs
mkdir "$records" || fail "$records exists already"
leftovers+=("$records")
cp data/TephrexDemo.rec "$records"
start_editor "$1" "$records/"
press Open
answer_dialog "Open Record File" "$records/TephrexDemo.rec"
skip_phases 6
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
for width in 120 300; do
    "${1%/*}/tephrexdraw" --width $width -o "tests/draw/every-$width.svg" tests/draw/every.rec
done
ls docs/history.svg tests/draw/every-*.svg
