#!/usr/bin/env bash
# show.sh PROGRAM: shows the editor on a virtual screen. It opens the demonstration record, changes a
# number, saves under another name, and prints the paths of the screenshots that it took.
. "$(dirname "$0")/lib.sh"
. scripts/screen.sh

start_editor "$1" "$PWD/data/"
press Open
answer_dialog "Open Record File" "$PWD/data/TephrexDemo.rec"
picture opened

fill Loc 9.5
picture changed

saved=$pictures/Changed.rec
rm -f "$saved"
press Save
answer_dialog "Save Record File" "$saved"
wait_until test -s "$saved"
picture saved
close_editor

echo "The record was saved as $saved. The difference:"
diff data/TephrexDemo.rec "$saved" || true
