// Opens and saves a record, with the file dialogs and messages. The text format of the file is in
// RecordFile.
#pragma once

struct RecordEdit;

/// Reads the record file that the user chooses and drops unsaved changes without asking. A failed
/// read shows no message and keeps the working copy; the loaded copy keeps what was read.
void cmdOpen_Click(RecordEdit& form);

/// Asks for a name and writes the loaded copy to that file. A failed write is reported, and Save
/// stays enabled.
void SaveRec(RecordEdit& form);
