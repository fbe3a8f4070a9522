// What belongs to the whole record and not to a phase: the stratigraphic file and the map scale;
// and the help that the form gives. The record file itself is opened and saved elsewhere.
#pragma once

struct RecordEdit;

/// Attaches the stratigraphic file that the user chooses; cancelling changes nothing.
void cmdChange_Click(RecordEdit& form);

/// What stands in the box is the reference; an empty box or the word none removes it.
void txtTopFile_Change(RecordEdit& form);

/// Any key in the box enables Save, if there are phases.
void txtTopFile_KeyPress(RecordEdit& form);

/// The two tips that depend on what is on show.
void txtTopFile_MouseMove(RecordEdit& form);
void labRecfile_MouseMove(RecordEdit& form);

/// The scale of the map, for all phases; enables Save if there are any.
void optLarge_Click(RecordEdit& form);
void optNormal_Click(RecordEdit& form);
void optSmall_Click(RecordEdit& form);

/// Shows the help on the editor.
void cmdHelp_Click(RecordEdit& form);

/// Closes the help viewer if it is open.
void CloseHelp(RecordEdit& form);
