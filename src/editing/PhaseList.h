// The list of phases: adding and deleting. Both act on the phase that the phase box names, which
// is the one on show unless the user has typed the name of another.
#pragma once

struct RecordEdit;

/// Puts a new phase behind the named one and shows it. Refused, with a message and before anything
/// changes, where the record has no room for it.
void cmdAdd_Click(RecordEdit& form);

/// Removes the named phase and shows the one that takes its number. A failure ends it where it is,
/// with a message.
void cmdDelete_Click(RecordEdit& form);
