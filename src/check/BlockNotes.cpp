#include "check/BlockNotes.h"

#include <algorithm>

#include "check/Wording.h"
#include "editing/Numbers.h"

namespace {

using Offsets = std::array<std::int64_t, ItemPlace::FirstFlow + MaxFlows>;

// The line on which the writer puts each item of a phase or of the header, counted from 0.
constexpr Offsets PhaseLines = [] {
    Offsets lines{0, 1, 1};
    std::size_t item = ItemPlace::FirstField;
    for (const PhaseField& field : PhaseFields) {
        lines[item++] = field.line - 1;
    }
    for (; item < lines.size(); ++item) {
        lines[item] = lines[item - 1] + 1;
    }
    return lines;
}();
constexpr Offsets HeaderLines{0, 0, 1, 1, 1};

const Offsets& LinesOf(int block) { return block == 0 ? HeaderLines : PhaseLines; }

// The label that the writer puts at a place; null if another item belongs there.
const std::string_view* LabelAt(const ItemPlace& place) {
    static constexpr std::string_view emptyLine;
    if (place.phase == 0) {
        return place.item == ItemPlace::HeaderLabel  ? &ReferenceLabel
               : place.item == ItemPlace::CountLabel ? &PhaseCountLabel
                                                     : nullptr;
    }
    return place.item == ItemPlace::EmptyLine ? &emptyLine : &PhaseLabel;
}

std::string_view WithoutBlanks(std::string_view text) {
    const std::size_t first = std::min(text.find_first_not_of(' '), text.size());
    return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

}  // namespace

void BlockNotes::CompareLabel(const ItemPlace& place, std::string_view text) {
    const std::string_view* const label = LabelAt(place);
    if (label == nullptr || labelsDiffer || WithoutBlanks(text) == WithoutBlanks(*label)) {
        return;
    }
    notes.clear();
    Note(place, Quoted(text) + " where " + (label->empty() ? "an empty line" : Quoted(*label)) +
                    " is expected");
    labelsDiffer = true;
}

void BlockNotes::ComparePhaseNumber(const ItemPlace& place, std::string_view text) {
    double number = 0;
    if (FromDecimal(text, number) != Conversion::Number || number != place.phase) {
        Note(place, Quoted(text) + " where " + std::to_string(place.phase) + " is expected");
    }
}

void BlockNotes::CompareNumber(const ItemPlace& place, std::string_view text, double value,
                               bool isWhole) {
    double number = 0;
    const bool isNumber = FromDecimal(text, number) == Conversion::Number;
    if (!isNumber) {
        Note(place, Quoted(text) + " is no number and counts as 0");
    } else if (isWhole && number != value) {
        Note(place, Quoted(text) + " is no whole number and counts as " +
                        ItemText(static_cast<Single>(value)));
    }
}

void BlockNotes::NoteDropped(const ItemPlace& place) {
    Note(place, "text after the closing quote is dropped");
}

bool BlockNotes::MoveInto(std::vector<Finding>& findings, int block, int items) {
    const auto count = static_cast<std::size_t>(items);
    CompareLines(block, count);
    std::move(notes.begin(), notes.end(), std::back_inserter(findings));
    notes.clear();
    previousLine = lines[count - 1];
    return !std::exchange(labelsDiffer, false);
}

void BlockNotes::Note(const ItemPlace& place, std::string message) {
    if (!labelsDiffer) {
        notes.push_back({.line = LineOf(place.item),
                         .place = place,
                         .type = {},
                         .field = NameOf(place),
                         .message = std::move(message)});
    }
}

void BlockNotes::CompareLines(int block, std::size_t items) {
    const Offsets& written = LinesOf(block);
    std::int64_t differ = lines[0] == previousLine ? 1 : 0;
    for (std::size_t i = 0; i < items; ++i) {
        differ |= lines[i] - lines[0] - written[i];
    }
    if (differ == 0 || labelsDiffer) {
        return;
    }
    if (lines[0] == previousLine) {
        Note({block, 0}, "the line of the previous block continues where a new line is expected");
        return;
    }
    // A line end inside quotes moves the later items down; what counts is which items share a line.
    for (std::size_t i = 1; i < items; ++i) {
        if ((lines[i] == lines[i - 1]) != (written[i] == written[i - 1])) {
            NoteLines({block, static_cast<int>(i) - 1}, items);
            return;
        }
    }
}

// Notes that the line of this item holds more or fewer items than the writer puts there.
void BlockNotes::NoteLines(const ItemPlace& place, std::size_t items) {
    const Offsets& written = LinesOf(place.phase);
    const auto at = static_cast<std::size_t>(place.item);
    const auto found =
        std::count(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(items), lines[at]);
    const auto* const first = std::find(written.begin(), written.end(), written[at]);
    std::string names;
    int expected = 0;
    for (const auto* item = first; item != written.end() && *item == *first; ++item, ++expected) {
        const auto index = static_cast<int>(item - written.begin());
        names += (expected == 0 ? "" : ", ") + NameOf({place.phase, index});
    }
    Note({place.phase, static_cast<int>(first - written.begin())},
         "the line holds " + std::to_string(found) + (found == 1 ? " item" : " items") +
             " instead of " + std::to_string(expected));
    notes.back().field = names;
}
