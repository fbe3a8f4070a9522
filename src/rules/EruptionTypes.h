// The choices of a phase by name: its eruption type, the style of its caldera, the side that a
// fault throws down. What the lists offer and what each entry stands for.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "record/PhaseRecord.h"

struct TypeEntry {
    std::string_view name;
    Integer eruptionType;
    std::optional<Integer> tectonicKind;  // nothing: a phase keeps the one it has
};

/// The entries of the list, in its order.
constexpr std::array<TypeEntry, 9> TypeEntries{{
    {"Hawaiian", EruptionType::Hawaiian, {}},
    {"Peléean", EruptionType::Pelean, {}},
    {"Strombolian", EruptionType::Strombolian, {}},
    {"Plinian", EruptionType::Plinian, {}},
    {"Vulcanian/Surtseyan", EruptionType::Vulcanian, {}},
    {"Fumarolic/Phreatic", EruptionType::Fumarolic, {}},
    {"Sector Collapse", EruptionType::Collapse, {}},
    {"Faulting", EruptionType::Tectonic, TectonicKind::Faulting},
    {"Erosion", EruptionType::Tectonic, TectonicKind::Erosion},
}};

// A type that the list does not offer, or an entry of a type that the grids do not have.
static_assert(
    [] {
        int known = 0;
        for (Integer type = 0; type <= LastEruptionType; ++type) {
            known +=
                std::any_of(TypeEntries.begin(), TypeEntries.end(),
                            [type](const TypeEntry& entry) { return entry.eruptionType == type; });
        }
        return known == LastEruptionType + 1 &&
               std::all_of(TypeEntries.begin(), TypeEntries.end(), [](const TypeEntry& entry) {
                   return IsEruptionType(entry.eruptionType);
               });
    }(),
    "each eruption type has an entry, and each entry a type");

/// The entry of that name, letter for letter; null if there is none.
const TypeEntry* FindType(std::string_view name);

/// The entry under which a phase is shown; null for a type without one. Any tectonic kind but
/// Faulting is shown as Erosion.
const TypeEntry* EntryOf(const PhaseRecord& phase);

/// The entries of the list of caldera styles and of the list of down sides; and the texts that
/// stand in the boxes while nothing is chosen, which are no entries.
constexpr std::string_view VallesEntry = "Valles Type";
constexpr std::string_view MazamaEntry = "Mazama Type";
constexpr std::string_view NoStyleText = "Caldera Style";
constexpr std::string_view LeftEntry = "Left side down";
constexpr std::string_view RightEntry = "Right side down";
constexpr std::string_view NoSideText = "Down Side";

/// What a caldera is called by the strength of its eruption, and what the fourth slider is by type.
constexpr std::string_view CalderaCaption = "Caldera";
constexpr std::string_view DiatremeCaption = "Diatreme";
constexpr std::string_view VentCaption = "Vent Position";
constexpr std::string_view FrequencyCaption = "Burst Frequency";

/// The entry of a caldera style or a down side; `otherwise` for a code that has none.
std::string_view StyleEntry(Integer calderaStyle, std::string_view otherwise);
std::string_view SideEntry(Integer faultDownSide, std::string_view otherwise);
