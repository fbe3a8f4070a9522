// Rebuilds the working copy from the loaded copy and shows what concerns the whole record. Copying
// the working copy to the loaded copy is in ApplyParams.
#pragma once

struct RecordEdit;

/// Discards the working copy, rebuilds it from the loaded copy and shows its first phase. A failure
/// is reported and leaves the remaining steps undone.
void ReadData(RecordEdit& form);

/// Drops all changes since the record was read or applied; a record without a file becomes empty.
void cmdReset_Click(RecordEdit& form);

/// Shows `count` as the number of phases.
void ShowPhaseCount(RecordEdit& form, int count);

/// Enables or disables the lists of phases and types, Delete and Reset.
void EnablePhaseList(RecordEdit& form, bool enabled);
