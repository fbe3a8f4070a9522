#!/usr/bin/env bash
# reproducible.sh BUILD: builds once more in a folder of another name, at another time and with
# another user's settings. What is installed and the package must be the same to the byte.
build=$(realpath "$1")
. "$(dirname "$0")/../scripts/lib.sh"
install_missing git "${build_packages[@]}" dpkg-dev file
copy=$(mktemp -d)
trap 'rm -rf "$copy"' EXIT

# pack BUILD NAME: installs into a folder of that name, makes the package, prints all hashes.
pack() {
    DESTDIR=$copy/$2 cmake --install "$1" --prefix /usr >/dev/null
    rm -f "$1"/*.deb
    (cd "$1" && umask 022 && cpack >/dev/null 2>&1) # the archive depends on the umask
    (cd "$copy/$2" && find . -type f -perm /111 -exec sha256sum {} +)
    sha256sum "$1"/*.deb
}

pack "$build" ours
(
    umask 077
    export LC_ALL=C TZ=Pacific/Auckland CCACHE_DISABLE=1 # ccache would return the first build
    mkdir "$copy/source"
    git ls-files -z | xargs -0 tar -c | tar -x -m -C "$copy/source"
    cmake -S "$copy/source" -B "$copy/elsewhere" \
        -DCMAKE_BUILD_TYPE=Release -DBUILD_TESTING=OFF >/dev/null
    cmake --build "$copy/elsewhere" -j "$(nproc)" >/dev/null
    pack "$copy/elsewhere" theirs
)
diff -r "$copy/ours" "$copy/theirs"
cmp "$build"/*.deb "$copy/elsewhere"/*.deb
