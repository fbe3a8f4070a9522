#include "display/LimitTests.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace LimitTests {

namespace {

double MapPosition(Single location, double factor) {
    return factor * static_cast<double>(location);
}

// The last location on the map at one end. The Single nearest to the quotient may be on the map or
// off it; with a negative scale the map runs from right to left.
Single LastOnMap(double end, bool (*isOff)(Single, double), double factor) {
    const bool upwards = (end == MapStart) == (factor > 0);
    const Single far = std::numeric_limits<Single>::max() * (upwards ? 1.0F : -1.0F);
    auto last = static_cast<Single>(end / factor);
    while (isOff(last, factor)) {
        last = std::nextafter(last, far);
    }
    return last;
}

Bounds NoBounds(const Judged& /*judged*/) { return {}; }

using P = PhaseRecord;

bool IsVentBeforeMap(Judged& j) { return IsBeforeMap(j.phase.ventLocation, j.factor); }
bool IsVentAfterMap(Judged& j) { return IsAfterMap(j.phase.ventLocation, j.factor); }
bool AreScarpsEqual(Judged& j) { return j.phase.scarpTop == j.phase.scarpBase; }
bool LacksStyle(Judged& j) { return j.phase.calderaFlag == 1 && j.phase.calderaStyle == 0; }

bool LacksSide(Judged& j) {
    return j.phase.tectonicKind == TectonicKind::Faulting && j.phase.faultDip == 0 &&
           j.phase.faultDownSide != DownSide::Left && j.phase.faultDownSide != DownSide::Right;
}

bool HasShortFlow(Judged& j) {
    j.badFlow = FirstBadFlow(j.phase, j.flows);
    return j.badFlow && j.badFlow->tooShort;
}
bool HasLongFlow(Judged& j) { return j.badFlow.has_value(); }

bool IsTooShort(const Judged& j, int flow) {
    return j.flows[flow] < ShortestFlow(j.phase.eruptionType);
}
bool IsTooLong(const Judged& j, int flow) {
    return static_cast<double>(j.flows[flow]) > LongestFlow(j.phase, flow);
}

// With a flow length far out of range no duration passes: its ceiling is below its floor, or does
// not fit in 16 bits.
bool AnyDurationPasses(const Judged& j) {
    const auto [lowest, highest] = FlowLengthsThatFit(j.phase.eruptionType, j.badFlow->flow);
    return j.phase.flowLength >= lowest && j.phase.flowLength <= highest &&
           LongestFlow(j.phase, j.badFlow->flow) >= ShortestFlow(j.phase.eruptionType);
}

Bounds LongEnough(const Judged& j) {
    return AnyDurationPasses(j) ? Bounds{ShortestFlow(j.phase.eruptionType), {}} : Bounds{};
}
Bounds ShortEnough(const Judged& j) {
    if (!AnyDurationPasses(j)) {
        return {};
    }
    return {{}, static_cast<Single>(LongestFlow(j.phase, j.badFlow->flow))};  // a whole number
}

}  // namespace

bool IsBeforeMap(Single location, double factor) {
    return MapPosition(location, factor) < MapStart;
}

bool IsAfterMap(Single location, double factor) { return MapPosition(location, factor) > MapEnd; }

Bounds OnMap(const Judged& judged) {
    const Single start = LastOnMap(MapStart, IsBeforeMap, judged.factor);
    const Single end = LastOnMap(MapEnd, IsAfterMap, judged.factor);
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
