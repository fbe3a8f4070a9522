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

/// Writes the loaded copy in one call, from `buffer`, which must have room for the whole file.
/// Throws if the file cannot be opened.
void WritePlainly(const std::string& path, const EditorState& state, std::vector<char>& buffer);

/// A number in a box, shown with `decimals` decimals.
struct Shown {
    Single number;
    int decimals;
};

using ShownPhase = std::array<Shown, 20>;

/// The numbers of a phase that the form shows.
ShownPhase NumbersOf(const PhaseRecord& phase);

/// The number that the text begins with; 0 if there is none.
Single ParsePlainly(std::string_view text);
std::string FormatPlainly(Shown shown);

/// Formats the numbers into the texts and parses them back.
void ShowPlainly(ShownPhase& numbers, std::array<std::string, 20>& texts);

/// Replaces the entries by those of 100 flows.
void ListFlowsPlainly(std::vector<std::string>& entries);
