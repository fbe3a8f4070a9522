// The limits that a phase must keep to be saved, as one table. Judges one phase and changes
// nothing; reporting and correcting a fault is in ApplyParams.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "display/LimitValues.h"
#include "record/PhaseFields.h"

/// A limit that a phase breaks.
struct Fault {
    std::string_view message;           // Save shows it after "Phase n", so it starts with a blank
    const PhaseField* field = nullptr;  // the field at fault; null for the duration of a flow
    int flow = 0;                       // the flow at fault, 0 if none
    Bounds passing;                     // empty if no range of this field alone would pass
    std::optional<Single> correction;   // what the field becomes before the fault is reported
};

/// The first limit that the phase breaks, in the order of the table, except that of several broken
/// limits of flow angles it is the last; nothing if the phase keeps them all. Throws
/// std::domain_error for a scale of 0, std::out_of_range for more than 100 flows and
/// std::overflow_error for a flow length far out of range.
std::optional<Fault> FirstFault(const PhaseRecord& phase, const FlowRow& flows,
                                Integer recordScale);

/// Every limit that the phase breaks, in the order of the table, with each flow judged separately.
/// A flow length for which a ceiling does not fit in 16 bits is a fault too, with the message
/// "Overflow". Throws as above for the scale and the number of flows.
std::vector<Fault> AllFaults(const PhaseRecord& phase, const FlowRow& flows, Integer recordScale);

/// The lowest and the highest limit of a field at this scale, over all types; empty where no type
/// has one. Throws std::domain_error for a scale of 0.
Bounds WidestBounds(const PhaseField& field, Integer recordScale);
