#!/usr/bin/env bash
# Format, lint, and which unit includes which. Needs a build in build/default.
. "$(dirname "$0")/lib.sh"

install_missing git clang-format clang-tidy
files=$(git ls-files '*.cpp' '*.h')
mapfile -t sources <<<"$files"

clang-format --dry-run -Werror "${sources[@]}"

# Only main.cpp, and the tests and benchmarks of the window, may include the window.
mapfile -t others < <(grep -vE '^(src/(window/|main\.cpp)|tests/window/|bench/Window)' <<<"$files")
if grep -n '#include "window/' "${others[@]}"; then
    echo "Nothing else may include window/"
    exit 1
fi
# What each unit includes of others; a unit is a header with its source.
(cd src && grep -o '#include "[^"]*"' -- */*.h */*.cpp |
    sed -E 's/^([^:]*)\.(h|cpp):#include "([^"]*)\.h"/\1 \3/' | awk '$1 != $2' | sort -u) >build/includes
# No cycles: tsort fails on one and prints it.
tsort build/includes >/dev/null
# The plain library includes nothing but itself.
if awk 'NR == FNR { plain[$1]; next } $1 in plain && !($2 in plain)' \
    src/plain_units.txt build/includes | grep .; then
    echo "A plain unit may include plain units only"
    exit 1
fi
# tephrexcheck and tephrexdraw do not depend on the form; tephrexdraw also includes tephrexcheck.
if awk 'NR == FNR { plain[$1]; next } $1 ~ /^check\// && $2 !~ /^check\// && !($2 in plain)' \
    src/plain_units.txt build/includes | grep .; then
    echo "tephrexcheck may include the plain library only"
    exit 1
fi
if awk 'NR == FNR { plain[$1]; next } $1 ~ /^draw\// && $2 !~ /^(check|draw)\// && !($2 in plain)' \
    src/plain_units.txt build/includes | grep .; then
    echo "tephrexdraw may include the plain library and tephrexcheck's units only"
    exit 1
fi
# A misspelt or removed unit in that list would go unchecked.
while read -r unit; do
    [ -f "src/$unit.h" ] || { echo "src/plain_units.txt: there is no $unit" && exit 1; }
done <src/plain_units.txt

printf '%s\n' "${sources[@]}" | grep '^src/.*\.cpp$' |
    xargs -P "$(nproc)" -n 3 clang-tidy -p build/default --quiet --warnings-as-errors='*' \
        2>build/lint.log || { tail -n 20 build/lint.log && exit 1; }
