// Adds and deletes phases. Both act on the phase named in the phase box, which is the current one
// unless the user has typed the name of another. Choosing a phase is in ShowData.
#pragma once

struct RecordEdit;

/// Inserts a new phase after the named one and shows it. If the record is full, shows a message and
/// changes nothing.
void cmdAdd_Click(RecordEdit& form);

/// Removes the named phase and shows the one that takes its number, or the new last one. A failure
/// is reported and leaves the remaining steps undone.
void cmdDelete_Click(RecordEdit& form);
