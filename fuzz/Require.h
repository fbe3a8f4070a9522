// Stops a fuzz target whose property does not hold, so that the fuzzer notices.
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
