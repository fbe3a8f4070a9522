// Random durations for new lava flows, the limits of all flow durations, and the random source. The
// messages for a duration outside its limits are in Limits.
#pragma once

#include <functional>
#include <optional>

#include "record/PhaseRecord.h"

/// Returns the next random Single r, uniform on 0 <= r < 1.
using RandomSource = std::function<Single()>;

/// A source that gives the same sequence in every run.
RandomSource NewRandomSource();

/// A flow whose duration is outside its limits, and on which side.
struct BadFlow {
    int flow;
    bool tooShort;  // otherwise too long
};

/// The shortest and longest duration that pass for a flow of a Hawaiian or Peléean phase.
/// LongestFlow throws std::overflow_error if its calculation does not fit in 16 bits.
Single ShortestFlow(Integer eruptionType);
double LongestFlow(const PhaseRecord& phase, int flow);

/// The flow lengths for which the ceilings of flows 1 to `last` (1 to 100) fit in 16 bits.
struct FlowLengths {
    Integer lowest;
    Integer highest;
};
FlowLengths FlowLengthsThatFit(Integer eruptionType, int last);

/// The first flow of a Hawaiian or Peléean phase that is outside its limits, if any. Throws like
/// LongestFlow, and std::out_of_range for a flow above 100.
std::optional<BadFlow> FirstBadFlow(const PhaseRecord& phase, const FlowRow& flows);

/// A new duration for flow number `flow` of a Hawaiian or, without `hawaiian`, a Peléean phase,
/// from a random number r as above. For a `flowLength` of 1 to 11 it is within the limits above.
Single NewFlowDuration(bool hawaiian, Integer flowLength, int flow, Single r);
