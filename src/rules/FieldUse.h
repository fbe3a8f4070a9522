// Which fields of a phase its eruption type uses, as one grid. How the form uses it is in
// Activation.
#pragma once

#include <array>
#include <cstddef>

#include "record/PhaseFields.h"

/// What the grid says about a field and a type of phase.
enum class Use : char {
    Missing,  // the row is too short; does not compile
    o,        // the type does not use the field
    X,        // it does
    A,        // Faulting: a side can be thrown down only along a vertical fault
    B,        // Vulcanian: with a caldera, if the eruption is strong enough
    C,        // Strombolian: only a weak eruption can leave a diatreme
    D,        // Plinian: with a caldera, at any strength
    E,        // Fumarolic: with explosive bursts
};

/// The columns of the grid: no type, Faulting, Erosion, and the types from 1.
constexpr std::size_t UseColumns = 3 + LastEruptionType;
using UseRow = std::array<Use, UseColumns>;

/// The lowest strength at which a Vulcanian eruption can leave a caldera.
constexpr Single WeakestCaldera = 0.6F;
/// Up to this strength an eruption can leave a diatreme; a Strombolian one must be below it.
constexpr Single StrongestDiatreme = 0.3F;

/// The column of a type; 0 for a code that is not a type. Any tectonic kind but Faulting counts as
/// Erosion.
std::size_t UseColumn(Integer eruptionType, Integer tectonicKind);

/// The row of a field, or of the flow durations.
const UseRow& UseOf(const PhaseField& field);
const UseRow& UseOfFlows();

/// Whether any field has this letter in a column.
bool HasLetter(std::size_t column, Use letter);

/// Whether the type of the phase can use the field, whatever its other fields are.
bool Offers(const PhaseRecord& phase, const PhaseField& field);

/// Whether the phase uses the field, given its other fields.
bool Uses(const PhaseRecord& phase, const PhaseField& field);
