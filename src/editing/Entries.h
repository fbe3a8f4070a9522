// The entries of the lists of phases and flows, "Phase n" and "Flow n Duration": makes and
// recognises them. n counts from 1. Filling the lists is up to their handlers.
#pragma once

#include <string>
#include <string_view>

std::string PhaseEntry(int phase);
std::string FlowEntry(int flow);

/// The text of the phase box while there are no phases.
constexpr std::string_view NoPhaseText = "Add Phase";

/// The phase that a text names, 1 to `last`; 0 if the text is not exactly one of the entries.
int FindPhase(std::string_view text, int last);

/// The flow that a text names, 1 to `last`; 0 if it names none of them.
int FindFlow(std::string_view text, int last);
