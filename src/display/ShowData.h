// Bringing a phase of the working copy onto the form.
#pragma once

#include "record/PhaseRecord.h"

struct RecordEdit;

/// Fills every control from phase `pha`, which must be `CurPhase`; 0 for no phase. The boxes store
/// what they are given, so a phase on show holds what the form shows. A failure ends the display
/// where it is, with a message.
void ShowData(RecordEdit& form, Integer pha);

/// Puts flow 1 to 100 of the phase on show: its name in the list, its duration in the box.
void ShowFlow(RecordEdit& form, int flow);

/// Shows the phase that the phase list names; the same phase again if it names none.
void cmbPhase_Click(RecordEdit& form);
