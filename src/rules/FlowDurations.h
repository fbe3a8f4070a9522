// The durations that the editor makes up for lava flows, the limits that they keep, and the random
// source behind them.
#pragma once

#include <functional>
#include <optional>

#include "record/PhaseRecord.h"

/// Draws a Single, uniform on 0 <= r < 1. A test can put another source in its place.
using RandomSource = std::function<Single()>;

/// A generator that starts with the same sequence in every run.
RandomSource NewRandomSource();

/// A flow whose duration is out of the limits of its phase, and on which side.
struct BadFlow {
    int flow;
    bool tooShort;  // otherwise too long
};

/// The first of the flows 1 to `burstCount` of a Hawaiian or Peléean phase that is out of its
/// limits, if any. Throws std::overflow_error where a ceiling leaves 16 bits and std::out_of_range
/// where a hundred flows do not reach.
std::optional<BadFlow> FirstBadFlow(const PhaseRecord& phase, const FlowRow& flows);

/// A new duration for flow number `flow`, from one draw r. `hawaiian` tells the rule, not the
/// phase. The result lies within the limits above for a `flowLength` of 1 to 11.
Single NewFlowDuration(bool hawaiian, Integer flowLength, int flow, Single r);
