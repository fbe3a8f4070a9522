// Shows a phase of the working copy on the form. Which controls are enabled is in Activation.
#pragma once

#include "record/PhaseRecord.h"

struct RecordEdit;

/// Fills every control from phase `pha`, which must be `CurPhase`; 0 for no phase. The boxes store
/// what they are given, so the phase then has the numbers as shown. A failure is reported and
/// leaves the remaining controls as they were.
void ShowData(RecordEdit& form, Integer pha);

/// Shows flow 1 to 100 of the current phase: its name in the list, its duration in the box. Throws
/// std::out_of_range for a flow above 100.
void ShowFlow(RecordEdit& form, int flow);

/// Shows the phase named in the phase box, or the current phase again if it names none.
void cmbPhase_Click(RecordEdit& form);
