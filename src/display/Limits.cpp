#include "display/Limits.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <limits>
#include <stdexcept>
#include <utility>

#include "display/LimitTests.h"

namespace {

using namespace LimitTests;

// The eruption types that a check applies to, one bit each; the lowest bit is for codes that are
// not types.
using Types = unsigned;

constexpr Types BitOf(Integer code) { return IsEruptionType(code) ? 2U << unsigned(code) : 1U; }

constexpr Types Of(std::initializer_list<Integer> codes) {
    Types types = 0;
    for (const Integer code : codes) {
        types |= BitOf(code);
    }
    return types;
}

constexpr Types All = ~0U;
constexpr Types Tectonic = Of({EruptionType::Tectonic});
constexpr Types Vulcanian = Of({EruptionType::Vulcanian});
constexpr Types Strombolian = Of({EruptionType::Strombolian});
constexpr Types Flowing = Of({EruptionType::Hawaiian, EruptionType::Pelean});
constexpr Types Plinian = Of({EruptionType::Plinian});
constexpr Types Collapse = Of({EruptionType::Collapse});
constexpr Types Fumarolic = Of({EruptionType::Fumarolic});
constexpr Types Located = ~(Tectonic | Collapse);

// Stop at this failure, or go on; a later failure replaces this one.
enum class Then { Stop, GoOn };

struct Check {
    Types types;
    const Test& test;
    std::string_view message;
    Then then = Then::Stop;

    bool IsFor(const PhaseRecord& phase) const { return (types & BitOf(phase.eruptionType)) != 0; }
};

using P = PhaseRecord;

// clang-format off
constexpr Check Checks[] = {
    {Located,     LocationTooSmall,            " Location too small"},
    {Located,     LocationTooLarge,            " Location too large"},
    {All,         Below<&P::wind, -50>,        " Wind speed too negative"},
    {All,         Above<&P::wind, 50>,         " Wind speed too high"},

    {Tectonic,    NoDownSide,                  " Must select down side"},

    {Vulcanian,   Above<&P::strength, 1>,      " Maximum Strength (1.0) exceeded."},
    {Vulcanian,   Below<&P::strength, 2, 10>,  " Minimum Strength (0.20) not met."},
    {Vulcanian,   NoCalderaStyle,              " Must select caldera style."},
    {Vulcanian,   Above<&P::midRadius, 640>,   " Mid radius must be <= 640 "},
    {Vulcanian,   Below<&P::depositAngle, -1>, " Deposit angle must be >= -1"},
    {Vulcanian,   Above<&P::depositAngle, 1>,  " Deposit angle must be <= 1"},

    {Strombolian, Above<&P::strength, 2>,      " Maximum Strength (2.00) exceeded."},
    {Strombolian, Below<&P::strength, 1, 10>,  " Minimum Strength (0.10) not met."},
    {Strombolian, Above<&P::midRadius, 640>,   " Mid radius must be <= 640 "},
    {Strombolian, Below<&P::depositAngle, -1>, " Deposit angle must be >= -1"},
    {Strombolian, Above<&P::depositAngle, 1>,  " Deposit angle must be <= 1"},

    {Flowing,     FlowTooShort,                " Flow Duration too short."},
    {Flowing,     FlowTooLong,                 " Flow Duration too long."},
    {Flowing,     Above<&P::midRadius, 320>,   " Mid radius must be <= 320 "},
    {Flowing,     Below<&P::leftAngle, -4>,    " Left angle must be >= -4",  Then::GoOn},
    {Flowing,     Above<&P::leftAngle, 4>,     " Left angle must be <= 4",   Then::GoOn},
    {Flowing,     Below<&P::rightAngle, -4>,   " Right angle must be >= -4", Then::GoOn},
    {Flowing,     Above<&P::rightAngle, 4>,    " Right angle must be <= 4",  Then::GoOn},

    {Plinian,     Above<&P::strength, 1>,      " Maximum Plinian strength (1.00) exceeded."},
    {Plinian,     Below<&P::strength, 1, 10>,  " Minimum Strength (0.10) not met."},
    {Plinian,     NoCalderaStyle,              " Must select caldera style."},
    {Plinian,     Above<&P::midRadius, 640>,   " Mid radius must be <= 640 "},
    {Plinian,     Below<&P::depositAngle, -1>, " Deposit angle must be >= -1"},
    {Plinian,     Above<&P::depositAngle, 1>,  " Deposit angle must be <= 1"},

    {Collapse,    OffMap<&P::scarpTop>,        " Scarp top reset"},
    {Collapse,    OffMap<&P::scarpBase>,       " Scarp base reset"},
    {Collapse,    ScarpsEqual,                 " Scarp base and top cannot be equal"},
    {Collapse,    Above<&P::midRadius, 128>,   " Mid radius must be <= 128 "},
    {Collapse,    Below<&P::depositAngle, -1>, " Deposit angle must be >= -1"},
    {Collapse,    Above<&P::depositAngle, 1>,  " Deposit angle must be <= 1"},

    {Fumarolic,   Below<&P::strength, 1, 10>,  " Fumarolic strength too low."},
    {Fumarolic,   Above<&P::strength, 1>,      " Maximum Fumarolic strength exceeded."},
    {Fumarolic,   Above<&P::midRadius, 640>,   " Mid radius must be <= 640 "},
    {Fumarolic,   Below<&P::depositAngle, -1>, " Deposit angle must be >= -1"},
    {Fumarolic,   Above<&P::depositAngle, 1>,  " Deposit angle must be <= 1"},
};
static_assert(std::size(Checks) == 40);
// clang-format on

consteval bool EachTypeHasRows() {
    for (Integer type = 0; type <= LastEruptionType; ++type) {
        if (std::none_of(std::begin(Checks), std::end(Checks), [type](const Check& check) {
                return (check.types & BitOf(type)) != 0 &&
                       (check.types & BitOf(EruptionType::None)) == 0;
            })) {
            return false;
        }
    }
    return true;
}
static_assert(EachTypeHasRows(), "each eruption type has a check that lists it");
static_assert(LastEruptionType + 1 < std::numeric_limits<Types>::digits, "a bit for each type");

TestInput MakeInput(const PhaseRecord& phase, const FlowRow& flows, Integer recordScale) {
    if (recordScale == 0) {
        throw std::domain_error("Division by zero");
    }
    return {phase, flows, MapFactor(recordScale)};
}

Fault FaultOf(const Check& check, const TestInput& input) {
    const Test& test = check.test;
    return {check.message, test.field, input.badFlow ? input.badFlow->flow : 0, test.passing(input),
            test.correction ? test.correction(input) : std::nullopt};
}

bool IsForFlows(const Check& check) { return check.test.field == nullptr; }

// Judges one flow by every check for flows, the floor first. False if the ceiling does not fit in
// 16 bits.
bool JudgeFlow(TestInput input, int flow, std::vector<Fault>& faults) {
    try {
        for (const Check& check : Checks) {
            if (IsForFlows(check) && check.test.failsFor(input, flow)) {
                input.badFlow = BadFlow{flow, &check.test == &FlowTooShort};
                faults.push_back(FaultOf(check, input));
            }
        }
        return true;
    } catch (const std::overflow_error&) {
        return false;
    }
}

void JudgeFlows(const TestInput& input, std::vector<Fault>& faults) {
    bool overflowed = false;
    for (int flow = 1; flow <= input.phase.burstCount; ++flow) {
        overflowed |= !JudgeFlow(input, flow, faults);
    }
    if (overflowed) {
        const auto [lowest, highest] =
            FlowLengthsThatFit(input.phase.eruptionType, input.phase.burstCount);
        faults.push_back({.message = "Overflow",
                          .field = &FieldOf(&PhaseRecord::flowLength),
                          .passing = {lowest, highest},
                          .correction = {}});
    }
}

}  // namespace

std::optional<Fault> FirstFault(const PhaseRecord& phase, const FlowRow& flows,
                                Integer recordScale) {
    TestInput input = MakeInput(phase, flows, recordScale);
    std::optional<Fault> fault;
    for (const Check& check : Checks) {
        if (check.IsFor(phase) && check.test.fails(input)) {
            fault = FaultOf(check, input);
            if (check.then == Then::Stop) {
                return fault;
            }
        }
    }
    return fault;
}

std::vector<Fault> AllFaults(const PhaseRecord& phase, const FlowRow& flows, Integer recordScale) {
    TestInput input = MakeInput(phase, flows, recordScale);
    std::vector<Fault> faults;
    bool flowsJudged = false;
    for (const Check& check : Checks) {
        if (!check.IsFor(phase)) {
            continue;
        }
        if (IsForFlows(check)) {
            if (!std::exchange(flowsJudged, true)) {
                JudgeFlows(input, faults);
            }
        } else if (check.test.fails(input)) {
            faults.push_back(FaultOf(check, input));
        }
    }
    return faults;
}

Bounds WidestBounds(const PhaseField& field, Integer recordScale) {
    const PhaseRecord phase;
    const FlowRow flows;
    const TestInput input = MakeInput(phase, flows, recordScale);
    Bounds widest;
    for (const Check& check : Checks) {
        if (check.test.field == &field) {
            const auto [lowest, highest] = check.test.passing(input);
            widest.lowest =
                lowest ? std::min(*lowest, widest.lowest.value_or(*lowest)) : widest.lowest;
            widest.highest =
                highest ? std::max(*highest, widest.highest.value_or(*highest)) : widest.highest;
        }
    }
    return widest;
}
