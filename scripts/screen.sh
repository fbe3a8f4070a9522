# Starts the editor on a virtual screen and uses it with mouse and keys, as a user would. Sourced by
# the walks, the scripts that do so. Places are in twips, as in the form's catalogue.

pictures=${TEPHREX_PICTURES:-$PWD/build/pictures}
mkdir -p "$pictures"
home=$(mktemp -d)
leftovers=("$home")
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "${leftovers[@]}"' EXIT

# Everything that a walk starts has this home folder, so it neither reads nor changes the user's files.
mkdir -m 700 "$home/.config" "$home/run"
export HOME=$home XDG_RUNTIME_DIR=$home/run
unset XDG_CONFIG_HOME XDG_CACHE_HOME XDG_DATA_HOME XDG_STATE_HOME XDG_CONFIG_DIRS

# The server picks a free number itself, so walks can run side by side. It must not reset when its
# last client leaves: one that is just connecting, such as openbox, would be disconnected.
Xvfb -noreset -displayfd 3 -screen 0 "${TEPHREX_SCREEN:-1600x1200x24}" 3>"$home/display" 2>/dev/null &
for _ in $(seq 200); do
    [ -s "$home/display" ] && break
    sleep 0.05
done
[ -s "$home/display" ] || { echo "walk: the virtual screen does not start" >&2 && exit 1; }
DISPLAY=:$(cat "$home/display")
export DISPLAY
unset WAYLAND_DISPLAY

fail() {
    echo "walk: $*" >&2
    picture failed
    exit 1
}

# picture NAME: saves a screenshot and prints its path.
picture() {
    import -window root "$pictures/$1.png"
    echo "$pictures/$1.png"
}

# wait_until COMMAND...: until the command succeeds, at most twenty seconds.
wait_until() {
    for _ in $(seq 400); do
        if "$@" >/dev/null 2>&1; then return 0; fi
        sleep 0.05
    done
    fail "waited twenty seconds for: $*"
}

window_named() { xdotool search --onlyvisible --name "$1"; }
no_window_named() { ! window_named "$1"; }

# await NAME, await_gone NAME: until a window is visible and has the focus, or is gone.
await() {
    wait_until window_named "$1"
    xdotool windowactivate --sync "$(window_named "$1" | tail -n 1)" 2>/dev/null || true
}
await_gone() {
    wait_until no_window_named "$1"
    xdotool windowactivate --sync "$form" 2>/dev/null || true # a click before that can get lost
}

# painted: until the form paints, its window is visible but in one colour.
painted() { [ "$(import -window "$form" -format %k info:-)" -gt 40 ]; }

# start_editor PROGRAM [DATA_FOLDER]: without a data folder there is no settings file.
start_editor() {
    if [ $# -gt 1 ]; then
        printf '[Settings]\nDataPath=%s\n' "$2" >"$home/.config/Tephrex3.ini"
    fi
    openbox >/dev/null 2>&1 &
    wait_until xdotool get_desktop # a window that opens before openbox runs can get lost
    "$1" &
    editor=$!
    await "Edit Tephrex Record"
    form=$(window_named "Edit Tephrex Record" | tail -n 1)
    wait_until painted
    eval "$(xdotool getwindowgeometry --shell "$form" | grep -E '^(WIDTH|HEIGHT)=')"
}

# click LEFT TOP: at this place of the form.
click() {
    xdotool mousemove --window "$form" $(($1 * WIDTH / 7665)) $(($2 * HEIGHT / 5970)) click 1
    sleep 0.15
}
keys() { xdotool key --delay 30 "$@" && sleep 0.15; }
type_text() { xdotool type --delay 20 "$1" && sleep 0.15; }

# The middle of each control that the walks use.
declare -A place=(
    [Open]="407 467" [Change]="4207 1207" [Large]="1900 1507" [Close]="6427 5167" [Save]="7027 5647"
    [Help]="5827 5647" [Add]="3787 2287" [Delete]="4567 2287" [Reset]="4567 2647" [Type]="2700 2637"
    [Loc]="2407 3022" [Str]="2407 3382" [Wind]="2407 3742" [Burst]="2407 4462" [Ctop]="2407 4822"
    [Cbase]="4627 4822" [Flow]="3300 4477" [Lava]="4627 4477" [Mag]="2407 5182" [Dip]="4627 5182"
    [Erode]="2407 5542" [Down]="3880 5557" [Style]="3880 4117" [Cald]="4800 3727"
    [Phase]="2400 2277" [Speed]="6967 2422"
)
press() {
    # shellcheck disable=SC2086 # two numbers
    click ${place[$1]}
}

# fill BOX TEXT: the click selects the old text, and the new one replaces it.
fill() {
    press "$1"
    type_text "$2"
}

# pick LIST ENTRY: by keyboard from the open list; entries count from 0.
pick() {
    press "$1"
    keys Down Home
    [ "$2" -eq 0 ] || xdotool key --delay 30 --repeat "$2" Down
    keys Return
}

# answer_dialog TITLE PATH: types a name into a file dialog.
answer_dialog() {
    await "$1"
    keys ctrl+a
    type_text "$2"
    keys Return
    await_gone "$1"
}

close_editor() {
    press Close
    wait_until no_window_named "Edit Tephrex Record"
    wait "$editor" || fail "the editor ended with $?"
}
