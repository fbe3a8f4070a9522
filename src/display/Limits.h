// The limits that a phase must keep before it may reach a file, as one table. It judges one phase
// and knows no form; who is told, and how, stands in ApplyParams.
#pragma once

#include <optional>
#include <string_view>

#include "record/PhaseRecord.h"

struct Fault {
    std::string_view message;  // what follows "Phase n" in the report, with its leading blank
    int flow = 0;              // the flow at fault, 0 if it is none
};

/// The first limit that the phase breaks, in the order of the table; nothing if it keeps them all.
/// A scarp location off the map is put on its edge and still is a fault; nothing else is changed.
/// Throws std::domain_error for a scale of 0, std::out_of_range for more than 100 flows and
/// std::overflow_error for a flow length far out of range.
std::optional<Fault> JudgePhase(PhaseRecord& phase, const FlowRow& flows, Integer recordScale);
