#!/usr/bin/env bash
# package.sh BUILD: makes the Debian package of an existing build, checks it, installs it, opens the
# demonstration record as a new user would, and removes it again. A tephrexedit that was installed
# on the machine is removed too. Prints the paths of its screenshots.
build=$(realpath "$1")
. "$(dirname "$0")/../scripts/lib.sh"
install_missing "${screen_packages[@]}" dpkg-dev file desktop-file-utils appstream lintian man-db \
    shared-mime-info mandoc devscripts
. scripts/screen.sh

give_up() {
    echo "package: $*" >&2
    exit 1
}

# The package and what is in it.
rm -f "$build"/tephrexedit_*.deb
# The user's umask must not lock the folders of the package.
(cd "$build" && umask 077 && cpack >"$home/cpack.log") || give_up "$(cat "$home/cpack.log")"
package=$(ls "$build"/tephrexedit_*.deb)
dpkg-deb -x "$package" "$home/tree"
share=$home/tree/usr/share
[ "$(find "$share/icons" -name '*.png' | wc -l)" -eq 22 ] ||
    give_up "icons are missing: was rsvg-convert there when the build was configured?"
desktop-file-validate "$share/applications/tephrexedit.desktop"
appstreamcli validate --no-net "$share"/metainfo/*.xml
for manual in "$share"/man/man1/*.gz; do
    remarks=$(man --warnings -E UTF-8 -Tutf8 -Z -l "$manual" 2>&1 >/dev/null) ||
        remarks="man failed: $remarks"
    [ -z "$remarks" ] || give_up "the manual: $remarks"
    zcat "$manual" | mandoc -T lint
done
# Machine code can look like a misspelt word.
lintian --display-info --fail-on error,warning,info --suppress-tags spelling-error-in-binary "$package"

# Every program is hardened. None has a call with a buffer size that the compiler knows, so
# fortifying leaves no trace in them: the compile commands show that every unit is built with it.
mapfile -t programs < <(find "$home/tree" -type f -perm /111)
report=$(hardening-check "${programs[@]}" || true)
echo "$report"
for trait in "Position Independent Executable" "Stack protected" "Read-only relocations" \
    "Immediate binding"; do
    [ "$(grep -c "^ $trait: yes" <<<"$report")" -eq ${#programs[@]} ] || give_up "a program lacks: $trait"
done
commands=$(grep '"command".*/src/' "$build/compile_commands.json")
! grep -v -- '-D_FORTIFY_SOURCE=3' <<<"$commands" || give_up "not every unit is fortified"

# names: lists every file that an installation could leave behind.
names() { as_root find /etc /opt /usr /var/lib/dpkg/info | sort; }
if is_installed tephrexedit; then as_root dpkg -P tephrexedit; fi
names >"$home/before"
as_root dpkg -i "$package"
[ "$(command -v tephrexedit)" = /usr/bin/tephrexedit ] || give_up "not in the search path"
program=$(readlink -f /usr/bin/tephrexedit)
[ -f "${program%/*}/Tephrex3.hlp" ] || give_up "the help file is not beside $program"
[ -f /usr/share/mime/application/x-tephrex-record.xml ] || give_up "record files have no media type"
tephrexcheck --strict /usr/share/tephrexedit || give_up "the demonstration record has findings"

# A new user has no settings: the system-wide ones name the folder of the demonstration record.
start_editor tephrexedit
press Open
answer_dialog "Open Record File" TephrexDemo.rec
picture installed

# The demonstration record keeps its phases when it is opened and saved.
fill Loc 9.5
press Save
answer_dialog "Save Record File" "$home/Copy.rec"
wait_until test -s "$home/Copy.rec"
close_editor
diff <(grep -a phases /usr/share/tephrexedit/TephrexDemo.rec) <(grep -a phases "$home/Copy.rec")

as_root dpkg -P tephrexedit
names >"$home/after"
left=$(comm -13 "$home/before" "$home/after")
[ -z "$left" ] || give_up "left behind: $left"
echo "The package was installed, used and removed: $package"
