// The 27 fields of a phase as one table, in the order of the file: the name of each, its line in a
// record file, and what its box on the form does with a number. Which types use a field is in
// FieldUse, which numbers may be saved in Limits.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>
#include <utility>
#include <variant>

#include "record/PhaseRecord.h"

/// A field, given by the member that holds it.
using FieldMember = std::variant<Single PhaseRecord::*, Integer PhaseRecord::*>;

/// What the box of a field does with a number.
struct FieldRange {
    enum Rule {
        AnyNumber,  // any number is stored
        Between,    // the number is clamped to low..high
        AboveZero,  // a number at or below 0 becomes 1
    } rule;
    Single low = 0;
    Single high = 0;
};

struct PhaseField {
    std::string_view name;
    FieldMember member;
    int line;  // of the phase's block in the file, counted from 1
    FieldRange range;
};

namespace PhaseFieldTable {

using P = PhaseRecord;

constexpr FieldRange Any{FieldRange::AnyNumber};
constexpr FieldRange AboveZero{FieldRange::AboveZero};
constexpr FieldRange Between(Single low, Single high) { return {FieldRange::Between, low, high}; }

// clang-format off
// In the order of the file, not of declaration: burstFlag comes after burstCount.
inline constexpr std::array<PhaseField, 27> PhaseFields{{
    // name           member              line  range
    {"ventLocation",   &P::ventLocation,   3,    Any},
    {"eruptionType",   &P::eruptionType,   3,    Any},
    {"strength",       &P::strength,       3,    Any},
    {"wind",           &P::wind,           3,    Any},
    {"massFlux",       &P::massFlux,       4,    Between(1, 50)},
    {"calderaFlag",    &P::calderaFlag,    4,    Any},
    {"directedFlag",   &P::directedFlag,   4,    Any},
    {"calderaStyle",   &P::calderaStyle,   4,    Any},
    {"scarpTop",       &P::scarpTop,       5,    Any},
    {"scarpBase",      &P::scarpBase,      5,    Any},
    {"burstCount",     &P::burstCount,     5,    AboveZero},
    {"burstFlag",      &P::burstFlag,      5,    Any},
    {"tectonicKind",   &P::tectonicKind,   6,    Any},
    {"faultMagnitude", &P::faultMagnitude, 6,    Between(0, 20)},
    {"faultDip",       &P::faultDip,       6,    Between(-10, 10)},
    {"faultDownSide",  &P::faultDownSide,  6,    Any},
    {"erosionCycles",  &P::erosionCycles,  6,    AboveZero},
    {"flowLength",     &P::flowLength,     7,    Between(1, 11)},
    {"craterSize",     &P::craterSize,     7,    Between(1, 11)},
    {"position3D",     &P::position3D,     7,    Between(0, 40)},
    {"ventPosition",   &P::ventPosition,   7,    Between(1, 11)},
    {"growth",         &P::growth,         7,    Between(0, 9)},
    {"speed",          &P::speed,          7,    Between(1, 11)},
    {"midRadius",      &P::midRadius,      8,    Any},
    {"depositAngle",   &P::depositAngle,   8,    Any},
    {"leftAngle",      &P::leftAngle,      8,    Any},
    {"rightAngle",     &P::rightAngle,     8,    Any},
}};
// clang-format on

// Converts to a field of any type, to count the fields.
struct AnyField {
    template <class Field>
    constexpr operator Field() const;  // NOLINT(google-explicit-constructor)
};

template <class... Fields>
consteval std::size_t CountFields() {
    if constexpr (requires { PhaseRecord{Fields{}..., AnyField{}}; }) {
        return CountFields<Fields..., AnyField>();
    }
    return sizeof...(Fields);
}

consteval bool AllDiffer() {
    return std::all_of(PhaseFields.begin(), PhaseFields.end(), [](const PhaseField& one) {
        return std::count_if(PhaseFields.begin(), PhaseFields.end(),
                             [&one](const PhaseField& other) {
                                 return one.member == other.member || one.name == other.name;
                             }) == 1;
    });
}

static_assert(CountFields<>() == PhaseFields.size() && AllDiffer(),
              "each field of a phase has one row");

}  // namespace PhaseFieldTable

using PhaseFieldTable::PhaseFields;

/// The row of a member; one without a row does not compile.
consteval const PhaseField& FieldOf(const FieldMember& member) {
    return *std::find_if(PhaseFields.begin(), PhaseFields.end(),
                         [&member](const PhaseField& field) { return field.member == member; });
}

/// The index of a row in the table, from 0. `field` must be that row itself, not a copy.
constexpr std::size_t IndexOf(const PhaseField& field) {
    return static_cast<std::size_t>(&field - PhaseFields.data());
}

/// The value of a field; a Single holds every Integer.
inline Single ValueOf(const PhaseRecord& phase, const PhaseField& field) {
    return std::visit([&phase](auto member) { return static_cast<Single>(phase.*member); },
                      field.member);
}

/// Calls `visit(index, value)` for each field of a phase in the order of the table. The index is a
/// std::integral_constant, so `visit` can use it at compile time.
template <class Phase, class Visit>
constexpr void ForEachField(Phase& phase, Visit visit) {
    const auto visitAll = [&]<std::size_t... I>(std::index_sequence<I...>) {
        (visit(std::integral_constant<std::size_t, I>{},
               phase.*std::get<PhaseFields[I].member.index()>(PhaseFields[I].member)),
         ...);
    };
    visitAll(std::make_index_sequence<PhaseFields.size()>{});
}
