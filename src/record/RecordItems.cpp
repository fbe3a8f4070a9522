#include "record/RecordItems.h"

#include <array>
#include <string_view>

std::string NameOf(const ItemPlace& place) {
    constexpr std::array<std::string_view, 5> header{"label", "reference", "label", "phase count",
                                                     "scale"};
    constexpr std::array<std::string_view, 3> block{"empty line", "label", "phase number"};
    const auto item = static_cast<std::size_t>(place.item);
    if (place.phase == 0) {
        return std::string(header.at(item));
    }
    if (place.item < ItemPlace::FirstField) {
        return std::string(block.at(item));
    }
    if (place.item < ItemPlace::FirstFlow) {
        return std::string(PhaseFields.at(item - ItemPlace::FirstField).name);
    }
    return "flow " + std::to_string(place.item - ItemPlace::FirstFlow + 1);
}
