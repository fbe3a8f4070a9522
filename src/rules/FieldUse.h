// Which fields of a phase its eruption type uses, as one grid. What a form makes of it is in
// Activation.
#pragma once

#include <array>
#include <cstddef>

#include "record/PhaseFields.h"

/// What the grid says of a field and a type of phase.
enum class Use : char {
    Missing,  // a row that is too short; does not compile
    o,        // the type does not use the field
    X,        // it does
    A,        // Faulting: a side can be thrown down along a vertical fault only
    B,        // Vulcanian: by the strength, with a caldera
    C,        // Strombolian: only a weak eruption can leave a diatreme
    D,        // Plinian: with a caldera, at any strength
    E,        // Fumarolic: with explosive bursts
};

/// The columns of the grid: no type, Faulting, Erosion, and the types from 1.
constexpr std::size_t UseColumns = 3 + LastEruptionType;
using UseRow = std::array<Use, UseColumns>;

/// From this strength on an eruption of type Vulcanian leaves a caldera.
constexpr Single WeakestCaldera = 0.6F;
/// Up to this strength an eruption can leave a diatreme.
constexpr Single StrongestDiatreme = 0.3F;

/// The column of a type; a code that is no type has that of no type. Any tectonic kind but Faulting
/// counts as Erosion.
std::size_t UseColumn(Integer eruptionType, Integer tectonicKind);

/// The row of a field, or of the flow durations.
const UseRow& UseOf(const PhaseField& field);
const UseRow& UseOfFlows();

/// Whether any field has this letter in a column.
bool HasLetter(std::size_t column, Use letter);

/// Whether the type of a phase has the field at all, be it under a condition.
bool Offers(const PhaseRecord& phase, const PhaseField& field);

/// Whether a phase uses the field, its other fields being as they are.
bool Uses(const PhaseRecord& phase, const PhaseField& field);
