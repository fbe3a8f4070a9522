// The references of the core's benchmarks: the same tasks done with the standard library and
// without any rule of the editor.
#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "record/EditorState.h"

/// One pass over the bytes of a record, split at commas and line ends, into the loaded copy. The
/// bytes must be as the editor writes them.
void ReadPlainly(std::string_view bytes, EditorState& state);

/// The loaded copy as text, built in `buffer`, which must be large enough, and written in one call.
/// Throws if the file cannot be opened.
void WritePlainly(const std::string& path, const EditorState& state, std::vector<char>& buffer);

/// A number in a box, shown with `decimals` decimals.
struct Shown {
    Single number;
    int decimals;
};

using ShownPhase = std::array<Shown, 20>;

/// The numbers that a form shows of a phase.
ShownPhase NumbersOf(const PhaseRecord& phase);

Single ParsePlainly(std::string_view text);
std::string FormatPlainly(Shown shown);

/// Formats the numbers into the texts and parses them back.
void ShowPlainly(ShownPhase& numbers, std::array<std::string, 20>& texts);

/// Builds the list of 100 flows again.
void ListFlowsPlainly(std::vector<std::string>& entries);
