// Enables and disables the parameter controls whenever a phase is shown, by the grid in FieldUse.
// Changes while the phase is being edited are in the handlers of the controls.
#pragma once

#include "record/PhaseRecord.h"

struct RecordEdit;

/// Enables exactly the parameter controls that `etype` uses; for a code that is not a type, only
/// the speed. The boxes must already show the current phase, which is not changed. A failure is
/// reported.
void DataActivate(RecordEdit& form, Integer etype);

/// Enables or disables crater size and burst frequency of a Fumarolic/Phreatic phase, which uses
/// them only with bursts.
void EnableBurstFields(RecordEdit& form, bool enabled);

/// Enables the style and the vent position of a caldera and shows the stored style.
void EnableCalderaFields(RecordEdit& form);
