#include "display/Limits.h"

#include <initializer_list>
#include <iterator>
#include <stdexcept>

#include "rules/FlowDurations.h"

namespace {

constexpr double MapStart = 50;
constexpr double MapEnd = 1230;

// What the checks look at, and the flow that one of them has found.
struct Subject {
    PhaseRecord& phase;
    const FlowRow& flows;
    double factor;  // from a location to its place on the map
    std::optional<BadFlow> badFlow = std::nullopt;

    double MapPosition(Single location) const { return factor * static_cast<double>(location); }
};

// The eruption types that a check is made for, as one bit each.
using Types = unsigned;

constexpr Types Of(std::initializer_list<Integer> codes) {
    Types types = 0;
    for (const Integer code : codes) {
        types |= 1U << static_cast<unsigned>(code);
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
constexpr Types NoType = 1U << 8U;  // beyond the bits of the types

// A code that is no type gets the checks for all types.
constexpr Types BitOf(Integer code) {
    return code >= EruptionType::Tectonic && code <= EruptionType::Fumarolic ? Of({code}) : NoType;
}

using Fails = bool (*)(Subject& s);

template <auto Field, int Numerator, int Denominator = 1>
bool Below(Subject& s) {
    return s.phase.*Field < static_cast<Single>(Numerator) / Denominator;
}

template <auto Field, int Limit>
bool Above(Subject& s) {
    return s.phase.*Field > static_cast<Single>(Limit);
}

bool LocationTooSmall(Subject& s) { return s.MapPosition(s.phase.ventLocation) < MapStart; }
bool LocationTooLarge(Subject& s) { return s.MapPosition(s.phase.ventLocation) > MapEnd; }

bool NoDownSide(Subject& s) {
    return s.phase.tectonicKind == TectonicKind::Faulting && s.phase.faultDip == 0 &&
           s.phase.faultDownSide != DownSide::Left && s.phase.faultDownSide != DownSide::Right;
}

bool NoCalderaStyle(Subject& s) { return s.phase.calderaFlag == 1 && s.phase.calderaStyle == 0; }

// Looks for the first flow that is too short or too long; its row and the next tell which.
bool FlowTooShort(Subject& s) {
    s.badFlow = FirstBadFlow(s.phase, s.flows);
    return s.badFlow && s.badFlow->tooShort;
}

bool FlowTooLong(Subject& s) { return s.badFlow.has_value(); }

template <auto Scarp>
bool PutOnMap(Subject& s) {
    Single& scarp = s.phase.*Scarp;
    const bool low = s.MapPosition(scarp) < MapStart;
    if (low) {
        scarp = static_cast<Single>(MapStart / s.factor);
    }
    const bool high = s.MapPosition(scarp) > MapEnd;
    if (high) {
        scarp = static_cast<Single>(MapEnd / s.factor);
    }
    return low || high;
}

bool ScarpsEqual(Subject& s) { return s.phase.scarpTop == s.phase.scarpBase; }

// Whether a check that fails ends the judgement, or the one behind it is looked at first and, if
// that fails too, hides it.
enum class Then { Stop, GoOn };

struct Check {
    Types types;
    Fails fails;
    std::string_view message;
    Then then = Then::Stop;
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

    {Collapse,    PutOnMap<&P::scarpTop>,      " Scarp top reset"},
    {Collapse,    PutOnMap<&P::scarpBase>,     " Scarp base reset"},
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

}  // namespace

std::optional<Fault> JudgePhase(PhaseRecord& phase, const FlowRow& flows, Integer recordScale) {
    if (recordScale == 0) {
        throw std::domain_error("Division by zero");
    }
    Subject subject{phase, flows, 1000.0 / recordScale};
    const Types type = BitOf(phase.eruptionType);
    std::optional<Fault> fault;
    for (const Check& check : Checks) {
        if ((check.types & type) != 0 && check.fails(subject)) {
            fault = Fault{check.message, subject.badFlow ? subject.badFlow->flow : 0};
            if (check.then == Then::Stop) {
                return fault;
            }
        }
    }
    return fault;
}
