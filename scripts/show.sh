#!/usr/bin/env bash
# show.sh PROGRAM: the editor's main job on a virtual screen. It opens the demonstration record,
# changes a number, saves under another name, and leaves pictures whose paths it prints.
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

echo "The record was saved as $saved. What the change made of it:"
diff data/TephrexDemo.rec "$saved" || true
