// Judges the working copy and makes it the loaded copy. The limits are in Limits.
#pragma once

struct RecordEdit;

/// Judges the phases from the first to the last. True: all passed, and the working copy has been
/// copied to the loaded copy. False: the first fault has been corrected if it can be, reported
/// and shown, and the loaded copy is unchanged; or a failure ended the run with a message.
bool ApplyParams(RecordEdit& form);
