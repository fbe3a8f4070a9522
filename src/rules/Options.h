// The handlers of a phase's check boxes and of its lists of styles, sides and flows. Each changes
// the current phase at once and enables Save; while FormFilling is true it does nothing.
// Showing a phase is in ShowData and Activation.
#pragma once

struct RecordEdit;

/// Stores the flag; crater size and burst frequency are enabled only with bursts.
void chkBurst_Click(RecordEdit& form);

/// Stores the flag.
void chkDirected_Click(RecordEdit& form);

/// Stores the flag; style and vent position are enabled only with a caldera, in types that have a
/// style.
void chkCald_Click(RecordEdit& form);

/// Stores the style named in the box; any text but the entry of Valles counts as Mazama.
void cmbStyle_Click(RecordEdit& form);

/// Stores the side named in the box; a text that names neither is ignored.
void cmbDown_Click(RecordEdit& form);

/// Shows the duration of the flow named in the box; a text that names none leaves the old one.
void cmbFlow_Click(RecordEdit& form);
