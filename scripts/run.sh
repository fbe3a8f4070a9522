#!/usr/bin/env bash
# Installs what is missing, builds the editor and starts it.
. "$(dirname "$0")/lib.sh"

install_missing "${build_packages[@]}"
cmake --preset default -DBUILD_TESTING=OFF >/dev/null
cmake --build --preset default -j "$(nproc)" --target tephrexedit
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    if [ -n "${WAYLAND_DISPLAY:-}" ]; then install_missing qt6-wayland; fi
    exec build/default/tephrexedit
fi
echo "There is no display: the editor runs on a virtual one."
install_missing "${screen_packages[@]}"
exec scripts/show.sh build/default/tephrexedit
