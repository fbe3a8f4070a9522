// The handler for choosing the eruption type of the current phase. The types are in EruptionTypes.
#pragma once

struct RecordEdit;

/// Sets the type named in the box, prepares the fields and flows that the type needs, and shows the
/// phase again. A text that names no type leaves the type as it is; everything else is still done.
void cmbType_Click(RecordEdit& form);
