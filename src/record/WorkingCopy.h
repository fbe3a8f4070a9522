// The working copy: rebuilding it from the loaded copy, and how what belongs to all of it is shown.
#pragma once

struct RecordEdit;

/// Throws the working copy away, rebuilds it from the loaded copy and shows its first phase. A
/// failure ends it where it is, with a message.
void ReadData(RecordEdit& form);

/// Drops all changes since the last apply; a record without a file becomes empty.
void cmdReset_Click(RecordEdit& form);

/// The number of phases on show, and whether the form offers phases to choose, edit and delete.
void ShowPhaseCount(RecordEdit& form, int count);
void EnablePhaseList(RecordEdit& form, bool enabled);
