#!/usr/bin/env bash
# Installs what is missing, builds everything and runs all tests. Further arguments are passed to
# cmake, as in: scripts/test.sh -DTEPHREX_WERROR=ON
. "$(dirname "$0")/lib.sh"

install_missing "${build_packages[@]}" "${screen_packages[@]}" libgtest-dev \
    at-spi2-core dbus-daemon python3-pyatspi
cmake --preset default "$@"
cmake --build --preset default -j "$(nproc)"
ctest --preset default -j "$(nproc)"
