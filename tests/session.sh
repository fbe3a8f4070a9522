#!/usr/bin/env bash
# session.sh PROGRAM: a whole session in a real window with real mouse and keys: a new record of
# nine phases, one of each type, with a stratigraphic file and a scale is saved, opened again and
# saved again unchanged; then a record of 500 phases refuses one more. Leaves screenshots.
. "$(dirname "$0")/../scripts/lib.sh"
. scripts/screen.sh

add_phase() {
    press Add
    pick Type "$1"
}

start_editor "$1" "$home/"
touch "$home/strata.str"

add_phase 0 # Hawaiian
fill Loc 12
fill Burst 3
fill Lava 500
picture session-hawaiian
add_phase 1 # Peléean
fill Loc 12.5
add_phase 2 # Strombolian
fill Loc 13
fill Str 1.5
add_phase 3 # Plinian
fill Loc 14
fill Str 0.9
press Cald
pick Style 1
picture session-plinian
add_phase 4 # Vulcanian/Surtseyan
fill Loc 15
fill Str 0.5
add_phase 5 # Fumarolic/Phreatic
fill Loc 16
fill Str 0.2
add_phase 6 # Sector Collapse
fill Ctop 10
fill Cbase 12.25
add_phase 7 # Faulting
fill Loc 20
pick Down 1
add_phase 8 # Erosion
fill Erode 4
picture session-erosion

press Change
answer_dialog "Open Stratigraphic File" "$home/strata.str"
press Large
press Save
answer_dialog "Save Record File" "$home/first"
wait_until test -s "$home/first.rec"

press Open
answer_dialog "Open Record File" "$home/first.rec"
picture session-opened
fill Loc 12
press Save
answer_dialog "Save Record File" "$home/second.rec"
wait_until test -s "$home/second.rec"
diff "$home/first.rec" "$home/second.rec" || fail "the record changed when it was saved again"
[ "$(grep -c 'Record Phase' "$home/first.rec")" = 9 ] || fail "not nine phases"
grep -q '"Stratigraphic file:","'"$home"'/strata.str"' "$home/first.rec" || fail "no reference"
grep -q '"Recorded phases",9,100' "$home/first.rec" || fail "not at large scale"

# One phase short of a full record: 500 clicks would not all arrive on a busy machine.
phase=$(sed '1,/"Record Phase: ",9/d' "$home/first.rec")
{
    printf '"Stratigraphic file:",""\n"Recorded phases",499,20\n'
    for number in $(seq 499); do printf '\n"Record Phase: ",%d\n%s\n' "$number" "$phase"; done
} >"$home/many.rec"
press Open
answer_dialog "Open Record File" "$home/many.rec"
add_phase 8
fill Erode 5
press Save
answer_dialog "Save Record File" "$home/full.rec"
wait_until grep -q '"Record Phase: ",500' "$home/full.rec"
press Add
await "^TephrexEdit$"
picture session-full
keys Return
await_gone "^TephrexEdit$"
close_editor
