// The durations that the editor makes up for lava flows, the limits that they keep, and the random
// source behind them.
#pragma once

#include <functional>

#include "record/PhaseRecord.h"

/// Draws a Single, uniform on 0 <= r < 1. A test can put another source in its place.
using RandomSource = std::function<Single()>;

/// A generator that starts with the same sequence in every run.
RandomSource NewRandomSource();

/// The shortest duration that a flow may have: 20 for a Hawaiian phase, 10 for a Peléean one.
Single ShortestFlow(Integer eruptionType);

/// The longest duration that flow number `flow` of the phase may have. Throws
/// std::overflow_error where `flowLength` is so far out of range that 16 bits do not hold it.
double LongestFlow(const PhaseRecord& phase, int flow);

/// A new duration for flow number `flow`, from one draw r. `hawaiian` tells the rule, not the
/// phase. The result lies within the limits above for a `flowLength` of 1 to 11.
Single NewFlowDuration(bool hawaiian, Integer flowLength, int flow, Single r);
