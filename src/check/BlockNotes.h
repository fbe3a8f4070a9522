// What a reader notes of one block of a record, the header or a phase: the lines of its items, and
// what is read otherwise than it looks. What the numbers mean is in RecordCheck.
#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "check/Finding.h"

class BlockNotes {
public:
    /// Takes down the line of an item.
    void SetLine(int item, std::int64_t line) { lines[static_cast<std::size_t>(item)] = line; }
    std::int64_t LineOf(int item) const { return lines[static_cast<std::size_t>(item)]; }

    /// Compares a label, or the empty line of a phase, with what the writer puts there.
    void CompareLabel(const ItemPlace& place, std::string_view text);

    /// Compares the number of a phase with its place in the file.
    void ComparePhaseNumber(const ItemPlace& place, std::string_view text);

    /// Looks at an item that was read as `value`.
    void CompareNumber(const ItemPlace& place, std::string_view text, double value, bool isWhole);

    void NoteDropped(const ItemPlace& place);

    /// Adds what was noted of a block of so many items, in no order, and begins the next. False if
    /// its labels are not the writer's: then that is all there is to say of how it reads.
    bool TakeInto(std::vector<Finding>& findings, int block, int items);

private:
    void Note(const ItemPlace& place, std::string message);
    void CompareLines(int block, std::size_t items);
    void NoteLines(const ItemPlace& place, std::size_t items);

    std::array<std::int64_t, ItemPlace::FirstFlow + MaxFlows> lines{};
    std::int64_t lineBefore = 0;  // that of the last item of the block before
    std::vector<Finding> notes;
    bool labelsDiffer = false;
};
