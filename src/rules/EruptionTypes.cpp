#include "rules/EruptionTypes.h"

#include <algorithm>

namespace {

template <class Condition>
const TypeEntry* FindEntry(Condition condition) {
    const auto* const found = std::find_if(TypeEntries.begin(), TypeEntries.end(), condition);
    return found == TypeEntries.end() ? nullptr : found;
}

}  // namespace

const TypeEntry* FindType(std::string_view name) {
    return FindEntry([name](const TypeEntry& entry) { return entry.name == name; });
}

const TypeEntry* EntryOf(const PhaseRecord& phase) {
    const Integer kind = phase.tectonicKind == TectonicKind::Faulting ? TectonicKind::Faulting
                                                                      : TectonicKind::Erosion;
    return FindEntry([&phase, kind](const TypeEntry& entry) {
        return entry.eruptionType == phase.eruptionType &&
               entry.tectonicKind.value_or(kind) == kind;
    });
}

std::string_view StyleEntry(Integer calderaStyle, std::string_view fallback) {
    return calderaStyle == CalderaStyle::Mazama   ? MazamaEntry
           : calderaStyle == CalderaStyle::Valles ? VallesEntry
                                                  : fallback;
}

std::string_view SideEntry(Integer faultDownSide, std::string_view fallback) {
    return faultDownSide == DownSide::Left    ? LeftEntry
           : faultDownSide == DownSide::Right ? RightEntry
                                              : fallback;
}
