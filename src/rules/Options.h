// The option controls of a phase: its check boxes and the lists of styles, sides and flows. Each
// choice goes into the phase on show at once. While the form is being filled none of them does
// anything.
#pragma once

struct RecordEdit;

void chkBurst_Click(RecordEdit& form);
void chkDirected_Click(RecordEdit& form);
void chkCald_Click(RecordEdit& form);
void cmbStyle_Click(RecordEdit& form);
void cmbDown_Click(RecordEdit& form);

/// Brings the duration of the chosen flow up for editing.
void cmbFlow_Click(RecordEdit& form);
