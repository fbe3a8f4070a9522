#!/usr/bin/env bash
# draw.sh PROGRAM: runs tephrexdraw on the demonstration record as a user would, without a display.
draw=$(realpath "$1")
project=$(realpath "$(dirname "$0")/..")
record=$project/data/TephrexDemo.rec
set -euo pipefail
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
unset DISPLAY WAYLAND_DISPLAY
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=2 QT_FONT_DPI=150
export XDG_CACHE_HOME=$folder/cache # for fontconfig: nothing goes into the user's home

give_up() {
    echo "draw: $*" >&2
    exit 1
}

# Each format is written without a message, and is the same the second time.
for kind in svg png pdf; do
    for run in 1 2; do
        "$draw" "$record" -o "$run.$kind" >said 2>&1 || give_up "$kind: status $?"
        [ ! -s said ] || give_up "$kind prints $(cat said)"
        grep -av -e CreationDate -e CreateDate -e ModifyDate -e MetadataDate -e ID -e uuid "$run.$kind" >"$run"
    done
    cmp 1 2 || give_up "the second $kind differs"
done
"$draw" "$record" | cmp - 1.svg || give_up "the picture on standard output differs"
tr -d '\0' <1.pdf >plain
grep -aq "TephrexDemo.rec)$" plain && grep -aq "tephrexdraw)$" plain ||
    give_up "the PDF lacks its title or creator"
"$draw" "$record" -o pages.pdf --width 120
grep -aq "MediaBox \[0 0 340.* 481" pages.pdf && grep -aq "/Count 2$" pages.pdf || give_up "the PDF does not have two pages of the right size"
case $(head -c 24 1.png | od -An -tx1 | tr -d ' \n') in
    *0000058a0000*) ;;
    *) give_up "a PNG of 180 mm at 200 dpi is 1418 pixels wide" ;;
esac

# Drawings down to the last point and colour: the README's, and a narrow and a wide one of a record with
# every symbol, many invalid values and the ends of the map. scripts/pictures.sh makes them again.
[ -e /usr/share/fonts/truetype/dejavu/DejaVuSans.ttf ] || give_up "needs fonts-dejavu-core"
export FONTCONFIG_FILE=$project/tests/draw/fonts.conf
"$draw" "$record" | diff "$project/docs/history.svg" - || give_up "the drawing in the README differs"
for width in 120 300; do
    "$draw" "$project/tests/draw/every.rec" --width $width |
        diff "$project/tests/draw/every-$width.svg" - || give_up "every.rec differs at $width mm"
done
unset FONTCONFIG_FILE

# refused LINE ARGUMENT...: expects status 2, that one line of output, and no new file in the folder.
refused() {
    local line=$1 status=0
    shift
    ls -A >before
    "$draw" "$@" >out 2>said || status=$?
    [ "$status" = 2 ] || give_up "$*: status $status"
    [ "$(wc -l <said)" = 1 ] && grep -q -- "$line" said || give_up "$*: $(cat said)"
    [ ! -s out ] || give_up "$*: standard output is not empty"
    ls -A | diff before - || give_up "$*: a file is left"
}
for limit in --width=2000 --width=120 --dpi=10 --dpi=2400; do
    "$draw" "$record" $limit >out || give_up "$limit is refused"
done
touch out said before
head -c 300 "$record" >cut.rec
echo old >old.png
mkdir folder.svg
refused "cut.rec:[0-9]*: error: the file ends" cut.rec -o new.svg
refused "none.rec.*error: No such file" none.rec -o new.svg
refused "missing/new.svg" "$record" -o missing/new.svg
refused "the picture has more pixels than can be painted; try a smaller --dpi" "$record" -o old.png --dpi 2400 --width 1000
[ "$(cat old.png)" = old ] || give_up "a failed picture has replaced a file"
refused "folder.svg: " "$record" -o folder.svg
refused "the name of the picture must end in .svg, .png or .pdf$" "$record" -o new.gif
refused "is not UTF-8" "$record" -o $'\xE9.svg'
refused "^tephrexdraw: --width must be a number from 120 to 2000$" "$record" --width 119.9
refused "from 120 to 2000" "$record" --width 2000.1
refused "from 10 to 2400" "$record" --dpi 2401
refused "from 10 to 2400" "$record" --dpi 9.9
refused "from 10 to 2400" "$record" --dpi nan
refused "name one record; --help shows how"
refused "name one record" "$record" "$record"
refused "Unknown option" "$record" $'--col\nour'
grep -qx "tephrexdraw [0-9.]*" <<<"$("$draw" -V)" || give_up "the version is wrong"
help="Draws a record of the Tephrex eruption simulator as one picture. Options: \
-h, --help Show this help and exit. -V, --version Show the version and exit. -o, --output <FILE> \
Draw into FILE, which ends in .svg, .png or .pdf; by default, SVG on standard output. \
--width <MM> Width in millimetres, 120 to 2000. --dpi <DPI> Dots per inch of a PNG, 10 to 2400. \
Arguments: RECORD The record to draw. "
[ "$("$draw" -h | tail -n +2 | tr -s ' \n' ' ')" = "$help" ] || give_up "the help differs"
status=0
"$draw" "$record" >/dev/full 2>said || status=$?
[ "$status" = 2 ] && grep -q "^tephrexdraw: standard output: No space" said || give_up "a full device: $(cat said)"
