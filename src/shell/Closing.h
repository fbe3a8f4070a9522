// The handlers of Close and Save, and of unloading the form. Loading it is in Startup, writing the
// file in OpenSave.
#pragma once

struct RecordEdit;

/// Unloads the form at once; unsaved changes are lost.
void Command1_Click(RecordEdit& form);

/// Judges all phases and, if they pass, saves the record.
void Command2_Click(RecordEdit& form);

/// Runs whenever the form is unloaded: closes the help viewer and releases the path helper and the
/// settings store.
void Form_Unload(RecordEdit& form);
