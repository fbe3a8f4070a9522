// What limits are made of: the map, and the range of values that pass. Which field has which limit
// is in Limits.
#pragma once

#include <optional>

#include "record/PhaseRecord.h"

/// The ends of the map, as map positions; both are on it.
constexpr double MapStart = 50;
constexpr double MapEnd = 1230;

/// What a location is multiplied by for its map position. The scale is not 0.
constexpr double MapFactor(Integer recordScale) { return 1000.0 / recordScale; }

/// The values that pass: from `lowest` to `highest`, both included, where there is a limit.
struct Bounds {
    std::optional<Single> lowest;
    std::optional<Single> highest;
};
