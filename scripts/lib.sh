# Sourced by the scripts, not run: goes to the project's folder and installs missing packages.

set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

is_installed() {
    [ "$(dpkg-query -W -f '${db:Status-Status}' "$1" 2>/dev/null)" = installed ]
}

# install_missing PACKAGE...: asks the package manager only for those that are not installed yet.
install_missing() {
    local package missing=()
    for package in "$@"; do
        is_installed "$package" || missing+=("$package")
    done
    [ ${#missing[@]} -eq 0 ] && return
    echo "Installing ${missing[*]}"
    as_root apt-get update -qq
    as_root env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
}

build_packages=(g++ cmake make qt6-base-dev libcli11-dev nlohmann-json3-dev librsvg2-bin)
screen_packages=(xvfb xdotool openbox imagemagick fonts-dejavu-core)
