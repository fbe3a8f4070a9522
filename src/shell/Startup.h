// Loading the form. What unloads it again stands in Closing.
#pragma once

struct RecordEdit;

/// Brings the form up on a new, empty record. No file is opened. What the platform fails to
/// give is done without, and nothing is told.
void Form_Load(RecordEdit& form);
