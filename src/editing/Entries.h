// The texts that name a phase or a flow in a list: "Phase n" and "Flow n Duration", built and
// found again. Numbers stand in plain decimal digits, counted from 1.
#pragma once

#include <string>
#include <string_view>

std::string PhaseEntry(int phase);
std::string FlowEntry(int flow);

/// What stands in the box of the list of phases while there is none.
constexpr std::string_view NoPhaseText = "Add Phase";

/// The phase that a text names, 1 to `last`; 0 if the text is not, letter for letter, one of the
/// entries.
int FindPhase(std::string_view text, int last);

/// The flow that a text names, 1 to `last`; 0 if it names none of them.
int FindFlow(std::string_view text, int last);
