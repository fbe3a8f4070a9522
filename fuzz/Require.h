// What a fuzz target does with a property that does not hold: it stops where the fuzzer sees it.
#pragma once

#include <cstdlib>
#include <iostream>
#include <string_view>

inline void Require(bool holds, std::string_view property) {
    if (!holds) {
        std::cerr << "Does not hold: " << property << '\n';
        std::abort();
    }
}
