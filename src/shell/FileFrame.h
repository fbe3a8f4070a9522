// The handlers for the stratigraphic file, the map scale and the help. Opening and saving the
// record file is in OpenSave.
#pragma once

struct RecordEdit;

/// Attaches the stratigraphic file that the user chooses; cancelling changes nothing.
void cmdChange_Click(RecordEdit& form);

/// Stores the text of the box as the reference; an empty text or the word none, in any case,
/// becomes NoFileText.
void txtTopFile_Change(RecordEdit& form);

/// Any key in the box enables Save, if there are phases.
void txtTopFile_KeyPress(RecordEdit& form);

/// Set the two tips that depend on what is shown.
void txtTopFile_MouseMove(RecordEdit& form);
void labRecfile_MouseMove(RecordEdit& form);

/// Set the scale of the map for all phases, and enable Save if there are any.
void optLarge_Click(RecordEdit& form);
void optNormal_Click(RecordEdit& form);
void optSmall_Click(RecordEdit& form);

/// Shows the help on the editor.
void cmdHelp_Click(RecordEdit& form);

/// Closes the help viewer if it is open.
void CloseHelp(RecordEdit& form);
