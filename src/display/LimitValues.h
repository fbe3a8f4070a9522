// The map, and the range of values that pass a limit. Which field has which limit is in Limits.
#pragma once

#include <optional>

#include "record/PhaseRecord.h"

/// The ends of the map, as map positions; both are on it.
constexpr double MapStart = 50;
constexpr double MapEnd = 1230;

/// The factor from a location to its map position. The scale must not be 0.
constexpr double MapFactor(Integer recordScale) { return 1000.0 / recordScale; }

/// The values that pass: `lowest` to `highest`, both included; an empty one is no limit.
struct Bounds {
    std::optional<Single> lowest;
    std::optional<Single> highest;
};
