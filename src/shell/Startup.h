// Loads the form. Unloading it is in Closing.
#pragma once

struct RecordEdit;

/// Shows the form with a new, empty record. No file is opened. A service that fails is skipped
/// without a message.
void Form_Load(RecordEdit& form);
