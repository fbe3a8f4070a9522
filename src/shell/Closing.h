// The ends of the work on a record: leaving the form, and applying and saving.
#pragma once

struct RecordEdit;

/// Unloads the form at once; changes that were not saved are lost.
void Command1_Click(RecordEdit& form);

/// Judges all phases and, if they pass, saves the record.
void Command2_Click(RecordEdit& form);

/// Runs when the form goes, by whichever way: closes the help viewer and lets go of the library
/// objects.
void Form_Unload(RecordEdit& form);
