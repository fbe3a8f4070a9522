// The tests of single limits: when each fails, which field is at fault, which values would pass,
// and what the field is corrected to, if at all. Which tests apply to which type, and in which
// order, is in Limits.
#pragma once

#include <optional>

#include "display/LimitValues.h"
#include "record/PhaseFields.h"
#include "rules/FlowDurations.h"

namespace LimitTests {

// The input of the tests, and the bad flow that one of them has found.
struct TestInput {
    const PhaseRecord& phase;
    const FlowRow& flows;
    double factor;  // MapFactor of the record
    std::optional<BadFlow> badFlow = std::nullopt;
};

struct Test {
    bool (*fails)(TestInput& input);
    const PhaseField* field;  // null: the duration of a flow
    Bounds (*passing)(const TestInput& input);
    std::optional<Single> (*correction)(const TestInput& input) = nullptr;  // null: none
    bool (*failsFor)(const TestInput& input, int flow) = nullptr;           // null unless for flows
};

template <auto Field, int Numerator, int Denominator>
struct Floor {
    static constexpr Single Lowest = static_cast<Single>(Numerator) / Denominator;
    static bool Fails(TestInput& input) { return input.phase.*Field < Lowest; }
    static Bounds Passing(const TestInput& /*input*/) { return {Lowest, {}}; }
};
template <auto Field, int Numerator, int Denominator = 1>
constexpr Test Below{Floor<Field, Numerator, Denominator>::Fails, &FieldOf(Field),
                     Floor<Field, Numerator, Denominator>::Passing};

template <auto Field, int Most>
struct Ceiling {
    static constexpr Single Highest = static_cast<Single>(Most);
    static bool Fails(TestInput& input) { return input.phase.*Field > Highest; }
    static Bounds Passing(const TestInput& /*input*/) { return {{}, Highest}; }
};
template <auto Field, int Most>
constexpr Test Above{Ceiling<Field, Most>::Fails, &FieldOf(Field), Ceiling<Field, Most>::Passing};

// Whether a location is off the map at its start or its end, with the MapFactor of the record.
bool IsBeforeMap(Single location, double factor);
bool IsAfterMap(Single location, double factor);
Bounds OnMap(const TestInput& input);
// The location, or the nearest end of the map if it is off the map.
Single PutOnMap(Single location, double factor);

template <auto Scarp>
struct Map {
    static bool Fails(TestInput& input) {
        const Single scarp = input.phase.*Scarp;
        return IsBeforeMap(scarp, input.factor) || IsAfterMap(scarp, input.factor);
    }
    static std::optional<Single> Correction(const TestInput& input) {
        return PutOnMap(input.phase.*Scarp, input.factor);
    }
};
template <auto Scarp>
constexpr Test OffMap{Map<Scarp>::Fails, &FieldOf(Scarp), OnMap, Map<Scarp>::Correction};

extern const Test LocationTooSmall;
extern const Test LocationTooLarge;
extern const Test ScarpsEqual;
extern const Test NoDownSide;
extern const Test NoCalderaStyle;
// The first finds the first bad flow, and the second relies on it: test both, in this order.
extern const Test FlowTooShort;
extern const Test FlowTooLong;

}  // namespace LimitTests
