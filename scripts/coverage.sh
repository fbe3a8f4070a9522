#!/usr/bin/env bash
# Runs the tests of the core and reports how many of its lines and branches they reach, and the line
# numbers of the others. Branches that only exceptions take, those in code that was never executed and
# those of defaulted functions are left out. Further arguments are passed to the tests.
. "$(dirname "$0")/lib.sh"

install_missing g++ cmake make libgtest-dev
cmake --preset coverage -DBUILD_TESTING=ON >/dev/null
find build/coverage -name '*.gcda' -delete
cmake --build --preset coverage -j "$(nproc)" --target core_tests
build/coverage/tests/core_tests --gtest_brief=1 "$@"

# A header counts as reached where any file that includes it reaches it.
find build/coverage -name '*.gcda' -print0 |
    xargs -0 gcov --branch-probabilities --branch-counts --stdout \
        --relative-only --source-prefix "$PWD" |
    awk '
        $1 == "-:" && /0:Source:/ {
            file = substr($0, index($0, "Source:") + 7)
            ours = file ~ /^src\/(record|shell|rules|display|editing|form|check)\//
        }
        !ours { next }
        /^ *[0-9#=]+\*?: *[0-9]+:/ {
            split($0, part, ":")
            at = file ":" part[2] + 0
            if (part[1] !~ /=/) {
                lines[at] = lines[at] || part[1] !~ /#/
            }
            counts = !/ catch \(/ && !/= default;/
            branch = 0
        }
        /^branch/ {
            ++branch
            if (counts && !/never executed|\(throw\)/) {
                branches[at "/" branch] = branches[at "/" branch] || $4 > 0
            }
        }
        function count(reached, places, all, hit, missed, name, place) {
            for (place in reached) {
                name = place
                sub(/:.*/, "", name)
                ++all[name]
                hit[name] += reached[place]
                if (!reached[place]) {
                    sub(/^[^:]*:/, "", place)
                    missed[name] = missed[name] " " place
                }
            }
            for (name in all) {
                printf line "%s\n", name, hit[name], all[name], places, missed[name]
                sum += all[name]
                sumHit += hit[name]
            }
            printf line "%.1f%%\n", "~ all", sumHit, sum, places, 100 * sumHit / sum
            sum = sumHit = 0
        }
        END {
            line = "%-32s %4d of %4d %-9s "
            count(lines, "lines")
            count(branches, "branches")
        }' | sort -k5,5r -k1,1
