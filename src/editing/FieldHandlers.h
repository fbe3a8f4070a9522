// The Change, KeyPress and GotFocus handlers of the parameter boxes. Every change, by the user or
// by code, is stored in the current phase at once; no text is refused and no message is shown.
// Which field a box edits is in Fields.
#pragma once

#include "editing/Fields.h"

/// The Change handler of every box that only follows the rule of its field.
void Field_Change(RecordEdit& form, const FieldBox& row);

/// The boxes that do more: the strength decides whether there can be a caldera, the dip whether
/// there can be a down side, the bursts how many flows there are; the lava box edits the flow
/// chosen.
void txtStr_Change(RecordEdit& form);
void txtDip_Change(RecordEdit& form);
void txtBurst_Change(RecordEdit& form);
void txtLava_Change(RecordEdit& form);

/// The KeyPress handler of the parameter boxes: any key enables Save.
void Field_KeyPress(RecordEdit& form);

/// Selects the whole text of the text box that has the focus; does nothing if none has it.
void SelectActiveText(RecordEdit& form);
