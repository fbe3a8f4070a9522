// The references of the core's benchmarks: the same work done plainly, with the standard library
// and without any rule of the editor.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "record/EditorState.h"

/// One pass over the bytes of a record, split at commas and line ends, into the loaded copy.
void ReadPlainly(std::string_view bytes, EditorState& state);

/// The loaded copy as text, built in `buffer`, which has to be large enough, and written at once.
void WritePlainly(const std::string& path, const EditorState& state, std::vector<char>& buffer);

/// A number in a box, with so many decimals.
struct Shown {
    Single number;
    int decimals;
};

using ShownPhase = std::array<Shown, 20>;

/// The numbers that a form shows of a phase.
ShownPhase NumbersOf(const PhaseRecord& phase);

Single ParsePlainly(std::string_view text);
std::string FormatPlainly(Shown shown);

/// Writes the numbers into the texts and reads them back.
void ShowPlainly(ShownPhase& numbers, std::array<std::string, 20>& texts);

/// The list of 100 flows anew.
void ListFlowsPlainly(std::vector<std::string>& entries);
