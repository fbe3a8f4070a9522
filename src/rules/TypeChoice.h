// Choosing the eruption type of the phase on show.
#pragma once

struct RecordEdit;

/// Gives the phase the type that the box names, prepares what the type needs, and shows the phase
/// again. A text that names no type keeps the phase's type; all the rest is done.
void cmbType_Click(RecordEdit& form);
