#include "rules/FlowDurations.h"

#include <algorithm>
#include <limits>
#include <random>
#include <stdexcept>

namespace {

// The flow length at which durations are unscaled; each step away adds or subtracts a tenth.
constexpr int NeutralFlowLength = 6;

// The longest duration at the neutral flow length.
int NeutralCeiling(bool hawaiian, int flow) { return hawaiian ? 1200 : 200 + 10 * flow; }

// The simulator calculates these ceilings in 16 bits; a value that does not fit is a failure.
int Fit16(int value) {
    if (value < std::numeric_limits<Integer>::min() ||
        value > std::numeric_limits<Integer>::max()) {
        throw std::overflow_error("Overflow");
    }
    return value;
}

Single Shortest(bool hawaiian) { return hawaiian ? 20.0F : 10.0F; }

}  // namespace

Single ShortestFlow(Integer eruptionType) {
    return Shortest(eruptionType == EruptionType::Hawaiian);
}

double LongestFlow(const PhaseRecord& phase, int flow) {
    const bool hawaiian = phase.eruptionType == EruptionType::Hawaiian;
    const int neutral = NeutralCeiling(hawaiian, flow);
    const int steps = Fit16(phase.flowLength - NeutralFlowLength);
    if (hawaiian) {
        return Fit16(neutral + Fit16(neutral / 10 * steps));
    }
    return neutral + Fit16(steps * neutral) / 10.0;
}

// The last flow has the largest product; for a Hawaiian one the sum must fit too.
FlowLengths FlowLengthsThatFit(Integer eruptionType, int last) {
    const bool hawaiian = eruptionType == EruptionType::Hawaiian;
    const int neutral = NeutralCeiling(hawaiian, last);
    const int step = hawaiian ? neutral / 10 : neutral;
    const int most = std::numeric_limits<Integer>::max() - (hawaiian ? neutral : 0);
    return {static_cast<Integer>(NeutralFlowLength + std::numeric_limits<Integer>::min() / step),
            static_cast<Integer>(NeutralFlowLength + most / step)};
}

RandomSource NewRandomSource() {
    return [engine = std::mt19937()]() mutable {
        return static_cast<Single>(engine() >> 8U) / 16777216.0F;
    };
}

std::optional<BadFlow> FirstBadFlow(const PhaseRecord& phase, const FlowRow& flows) {
    const Single shortest = ShortestFlow(phase.eruptionType);
    for (int j = 1; j <= phase.burstCount; ++j) {
        const Single duration = flows[j];
        if (duration < shortest) {
            return BadFlow{j, true};
        }
        if (static_cast<double>(duration) > LongestFlow(phase, j)) {
            return BadFlow{j, false};
        }
    }
    return std::nullopt;
}

Single NewFlowDuration(bool hawaiian, Integer flowLength, int flow, Single r) {
    const double steps = flowLength - NeutralFlowLength;
    const double span = NeutralCeiling(hawaiian, flow);
    const auto raw = static_cast<Single>(static_cast<double>(r) * span);
    const auto drawn = static_cast<double>(raw);
    const auto scaled = static_cast<Single>(steps * drawn / 10.0 + drawn);
    return std::max(scaled, Shortest(hawaiian));
}
