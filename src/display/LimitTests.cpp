#include "display/LimitTests.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LimitTests {

namespace {

double MapPosition(Single location, double factor) {
    return factor * static_cast<double>(location);
}

// The last location on the map at one end. The quotient, rounded to a Single, may be just off the
// map; with a negative scale the map runs from right to left.
Single LastOnMap(double end, bool (*isOff)(Single, double), double factor) {
    const bool upwards = (end == MapStart) == (factor > 0);
    const Single far = std::numeric_limits<Single>::max() * (upwards ? 1.0F : -1.0F);
    auto last = static_cast<Single>(end / factor);
    while (isOff(last, factor)) {
        last = std::nextafter(last, far);
    }
    return last;
}

Bounds NoBounds(const TestInput& /*input*/) { return {}; }

using P = PhaseRecord;

bool IsVentBeforeMap(TestInput& j) { return IsBeforeMap(j.phase.ventLocation, j.factor); }
bool IsVentAfterMap(TestInput& j) { return IsAfterMap(j.phase.ventLocation, j.factor); }
bool AreScarpsEqual(TestInput& j) { return j.phase.scarpTop == j.phase.scarpBase; }
bool LacksStyle(TestInput& j) { return j.phase.calderaFlag == 1 && j.phase.calderaStyle == 0; }

bool LacksSide(TestInput& j) {
    return j.phase.tectonicKind == TectonicKind::Faulting && j.phase.faultDip == 0 &&
           j.phase.faultDownSide != DownSide::Left && j.phase.faultDownSide != DownSide::Right;
}

bool HasShortFlow(TestInput& j) {
    j.badFlow = FirstBadFlow(j.phase, j.flows);
    return j.badFlow && j.badFlow->tooShort;
}
bool HasLongFlow(TestInput& j) { return j.badFlow.has_value(); }

bool IsTooShort(const TestInput& j, int flow) {
    return j.flows[flow] < ShortestFlow(j.phase.eruptionType);
}
bool IsTooLong(const TestInput& j, int flow) {
    return static_cast<double>(j.flows[flow]) > LongestFlow(j.phase, flow);
}

// With a flow length far out of range no duration passes: its ceiling is below its floor, or does
// not fit in 16 bits.
bool AnyDurationPasses(const TestInput& j) {
    const auto [lowest, highest] = FlowLengthsThatFit(j.phase.eruptionType, j.badFlow->flow);
    return j.phase.flowLength >= lowest && j.phase.flowLength <= highest &&
           LongestFlow(j.phase, j.badFlow->flow) >= ShortestFlow(j.phase.eruptionType);
}

Bounds LongEnough(const TestInput& j) {
    return AnyDurationPasses(j) ? Bounds{ShortestFlow(j.phase.eruptionType), {}} : Bounds{};
}
Bounds ShortEnough(const TestInput& j) {
    if (!AnyDurationPasses(j)) {
        return {};
    }
    return {{}, static_cast<Single>(LongestFlow(j.phase, j.badFlow->flow))};  // whole, so exact
}

}  // namespace

bool IsBeforeMap(Single location, double factor) {
    return MapPosition(location, factor) < MapStart;
}

bool IsAfterMap(Single location, double factor) { return MapPosition(location, factor) > MapEnd; }

Bounds OnMap(const TestInput& input) {
    const Single start = LastOnMap(MapStart, IsBeforeMap, input.factor);
    const Single end = LastOnMap(MapEnd, IsAfterMap, input.factor);
    return {std::min(start, end), std::max(start, end)};
}

Single PutOnMap(Single location, double factor) {
    if (IsBeforeMap(location, factor)) {
        location = static_cast<Single>(MapStart / factor);
    }
    if (IsAfterMap(location, factor)) {
        location = static_cast<Single>(MapEnd / factor);
    }
    return location;
}

constexpr Test LocationTooSmall{IsVentBeforeMap, &FieldOf(&P::ventLocation), OnMap};
constexpr Test LocationTooLarge{IsVentAfterMap, &FieldOf(&P::ventLocation), OnMap};
constexpr Test ScarpsEqual{AreScarpsEqual, &FieldOf(&P::scarpBase), NoBounds};
constexpr Test NoDownSide{LacksSide, &FieldOf(&P::faultDownSide), NoBounds};
constexpr Test NoCalderaStyle{LacksStyle, &FieldOf(&P::calderaStyle), NoBounds};
constexpr Test FlowTooShort{HasShortFlow, nullptr, LongEnough, nullptr, IsTooShort};
constexpr Test FlowTooLong{HasLongFlow, nullptr, ShortEnough, nullptr, IsTooLong};

}  // namespace LimitTests
