#!/usr/bin/env bash
# Format, lint, and the arrows between the parts of the program. Wants a build in build/default.
. "$(dirname "$0")/lib.sh"

install_missing clang-format clang-tidy
mapfile -t sources < <(git ls-files '*.cpp' '*.h')

clang-format --dry-run -Werror "${sources[@]}"

# Only the roof, and the tests and benchmarks of the window, may know the window.
if git grep -n '#include "window/' -- '*.cpp' '*.h' ':!src/window' ':!src/main.cpp' ':!tests/window' ':!bench/Window*'; then
    echo "Nothing else may include window/"
    exit 1
fi
# No circle among the headers: tsort fails on one and names it.
(cd src && grep -o '#include "[^"]*"' -- */*.h |
    sed -E 's/^([^:]*):#include "([^"]*)"/\1 \2/' | tsort >/dev/null)

printf '%s\n' "${sources[@]}" | grep '^src/.*\.cpp$' |
    xargs -P "$(nproc)" -n 3 clang-tidy -p build/default --quiet --warnings-as-errors='*' 2>/dev/null
