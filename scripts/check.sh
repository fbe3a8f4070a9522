#!/usr/bin/env bash
# Format, lint, and the arrows between the parts of the program. Wants a build in build/default.
. "$(dirname "$0")/lib.sh"

install_missing clang-format clang-tidy
files=$(git ls-files '*.cpp' '*.h')
mapfile -t sources <<<"$files"

clang-format --dry-run -Werror "${sources[@]}"

# Only the roof, and the tests and benchmarks of the window, may know the window.
mapfile -t others < <(grep -vE '^(src/(window/|main\.cpp)|tests/window/|bench/Window)' <<<"$files")
if grep -n '#include "window/' "${others[@]}"; then
    echo "Nothing else may include window/"
    exit 1
fi
# No circle among the headers: tsort fails on one and names it.
(cd src && grep -o '#include "[^"]*"' -- */*.h |
    sed -E 's/^([^:]*):#include "([^"]*)"/\1 \2/' | tsort >/dev/null)

printf '%s\n' "${sources[@]}" | grep '^src/.*\.cpp$' |
    xargs -P "$(nproc)" -n 3 clang-tidy -p build/default --quiet --warnings-as-errors='*' \
        2>build/lint.log || { tail -n 20 build/lint.log && exit 1; }
