// Notes on one block of a record (the header or a phase): the lines of its items, and items that
// are read differently from how they look. RecordCheck checks what the values mean.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "check/Finding.h"

class BlockNotes {
public:
    /// The line of an item, from 1; items are numbered as in ItemPlace.
    void SetLine(int item, std::int64_t line) { lines[static_cast<std::size_t>(item)] = line; }
    std::int64_t LineOf(int item) const { return lines[static_cast<std::size_t>(item)]; }

    /// Notes a label, or text in the empty line of a phase, that differs from what the writer puts
    /// there; outer blanks are ignored, and so are header items that are not labels. This note
    /// replaces all others on the block.
    void CompareLabel(const ItemPlace& place, std::string_view text);

    /// Notes a phase number that differs from the position of the phase in the file.
    void ComparePhaseNumber(const ItemPlace& place, std::string_view text);

    /// Notes an item that is not a number or, if `isWhole`, not a whole number. `value` is what was
    /// read from it.
    void CompareNumber(const ItemPlace& place, std::string_view text, double value, bool isWhole);

    /// Notes that text after the closing quote of an item was dropped.
    void NoteDropped(const ItemPlace& place);

    /// Moves the notes on a block of `items` items to `findings`, unsorted, and starts the next
    /// block. False if a label differs from the writer's: then that is the only note.
    bool MoveInto(std::vector<Finding>& findings, int block, int items);

private:
    void Note(const ItemPlace& place, std::string message);
    void CompareLines(int block, std::size_t items);
    void NoteLines(const ItemPlace& place, std::size_t items);

    std::array<std::int64_t, ItemPlace::FirstFlow + MaxFlows> lines{};
    std::int64_t previousLine = 0;  // of the last item of the previous block
    std::vector<Finding> notes;
    bool labelsDiffer = false;
};
