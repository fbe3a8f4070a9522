// Setting the form up for a type of phase at every display, by the grid of what each type uses.
// What happens while a phase stays on show is in the handlers of the controls.
#pragma once

#include "record/PhaseRecord.h"

struct RecordEdit;

/// Enables exactly the parameter controls that the type uses, 0 to 7, and disables all others; any
/// other type uses none. Expects the phase to be on show. Writes no field of the phase.
void DataActivate(RecordEdit& form, Integer etype);

/// Crater size and burst frequency of a Fumarolic/Phreatic phase, which count with bursts only.
void EnableBurstFields(RecordEdit& form, bool enabled);

/// Style and vent position of a caldera: enables them, with the stored style on show.
void OpenCaldera(RecordEdit& form);
