// The limits that a phase must keep before it may reach a file, as one table. It judges one phase,
// changes nothing and knows no form; what the user sees of a fault is in ApplyParams.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "display/LimitValues.h"
#include "record/PhaseFields.h"

/// A limit that a phase breaks.
struct Fault {
    std::string_view message;  // what follows "Phase n" in the report, with its first blank
    const PhaseField* field = nullptr;  // the field at fault; null for the duration of a flow
    int flow = 0;                       // the flow at fault, 0 if it is none
    Bounds passing;                     // empty where no value of this field alone would pass
    std::optional<Single> correction;   // what the field becomes before the fault is reported
};

/// The first limit that the phase breaks, in the order of the table; nothing if it keeps them all.
/// Throws std::domain_error for a scale of 0, std::out_of_range for more than 100 flows and
/// std::overflow_error for a flow length far out of range.
std::optional<Fault> FirstFault(const PhaseRecord& phase, const FlowRow& flows,
                                Integer recordScale);

/// Every limit that the phase breaks, in the order of the table, each flow by itself. A flow length
/// for which a ceiling leaves 16 bits is a fault too, with the description of that failure for its
/// message. Throws as above for the scale and the number of flows.
std::vector<Fault> AllFaults(const PhaseRecord& phase, const FlowRow& flows, Integer recordScale);

/// The lowest and the highest value of a field with which a phase of any type can be saved at this
/// scale, which is not 0.
Bounds WidestBounds(const PhaseField& field, Integer recordScale);
