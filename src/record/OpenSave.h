// Moving a record between a file and the loaded copy, with the dialogs around it. The text form
// of the file stands in RecordFile.
#pragma once

struct RecordEdit;

/// Reads the record that the user chooses; unsaved changes are dropped without a question. A read
/// that fails ends silently and leaves the working copy on show.
void cmdOpen_Click(RecordEdit& form);

/// Asks for a name and writes the loaded copy under it. A write that fails is told, and Save stays
/// enabled.
void SaveRec(RecordEdit& form);
