// Loading the form. What unloads it again stands in Closing.
#pragma once

struct RecordEdit;

/// Brings the form up on a new, empty record. No file is opened. A step that fails is skipped
/// without a word.
void Form_Load(RecordEdit& form);
