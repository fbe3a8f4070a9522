// What the boxes of the form do with text and focus. Text goes into the phase on show at every
// change, whoever made it; nothing is refused and nothing is told here.
#pragma once

#include "editing/Fields.h"

/// The Change handler of every box that does no more than its rule says.
void Field_Change(RecordEdit& form, const FieldBox& row);

/// The boxes that do more than their rule, or have none: the strength tells whether there can be a
/// caldera, the dip whether there is a down side, the bursts how many flows there are.
void txtStr_Change(RecordEdit& form);
void txtDip_Change(RecordEdit& form);
void txtBurst_Change(RecordEdit& form);
void txtLava_Change(RecordEdit& form);

/// The KeyPress handler of the parameter boxes: any key enables Save.
void Field_KeyPress(RecordEdit& form);

/// Selects the whole text of the box that has the focus; nothing if another control has it.
void SelectActiveText(RecordEdit& form);
