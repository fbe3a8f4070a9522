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

/// The limits of the duration of a flow of a Hawaiian or Peléean phase; both pass. The ceiling
/// throws std::overflow_error where it leaves 16 bits.
Single ShortestFlow(Integer eruptionType);
double LongestFlow(const PhaseRecord& phase, int flow);

/// The flow lengths for which the ceilings of flows 1 to `last` stay in 16 bits.
struct FlowLengths {
    Integer lowest;
    Integer highest;
};
FlowLengths FlowLengthsThatFit(Integer eruptionType, int last);

/// The first of the flows of a Hawaiian or Peléean phase that is out of its limits, if any. Throws
/// as above, and std::out_of_range for a flow above 100.
std::optional<BadFlow> FirstBadFlow(const PhaseRecord& phase, const FlowRow& flows);

/// A new duration for flow number `flow`, from one draw r. `hawaiian` tells the rule, not the
/// phase. The result lies within the limits above for a `flowLength` of 1 to 11.
Single NewFlowDuration(bool hawaiian, Integer flowLength, int flow, Single r);
