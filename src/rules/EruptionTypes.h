// The names of eruption types, caldera styles and down sides: the entries of the lists and the
// codes that they stand for. Which fields a type uses is in FieldUse.
#pragma once

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

#include "record/PhaseRecord.h"

struct TypeEntry {
    std::string_view name;
    Integer eruptionType;
    std::optional<Integer> tectonicKind;  // empty: the phase keeps its kind
};

/// The entries of the list of types, in the order shown.
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

/// The entry with exactly that name; null if there is none.
const TypeEntry* FindType(std::string_view name);

/// The entry under which a phase is shown; null for a type without one. Any tectonic kind but
/// Faulting is shown as Erosion.
const TypeEntry* EntryOf(const PhaseRecord& phase);

/// The entries of the lists of caldera styles and down sides; and the texts of the boxes while
/// nothing is chosen, which are not entries.
constexpr std::string_view VallesEntry = "Valles Type";
constexpr std::string_view MazamaEntry = "Mazama Type";
constexpr std::string_view NoStyleText = "Caldera Style";
constexpr std::string_view LeftEntry = "Left side down";
constexpr std::string_view RightEntry = "Right side down";
constexpr std::string_view NoSideText = "Down Side";

/// The captions of the caldera box, which depend on the strength, and of the fourth advanced
/// parameter, which depend on the type.
constexpr std::string_view CalderaCaption = "Caldera";
constexpr std::string_view DiatremeCaption = "Diatreme";
constexpr std::string_view VentCaption = "Vent Position";
constexpr std::string_view FrequencyCaption = "Burst Frequency";

/// The entry of a caldera style or a down side; `fallback` for a code that has none.
std::string_view StyleEntry(Integer calderaStyle, std::string_view fallback);
std::string_view SideEntry(Integer faultDownSide, std::string_view fallback);
