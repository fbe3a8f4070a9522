// The gate between the working copy and the loaded copy. The limits themselves stand in Limits.
#pragma once

struct RecordEdit;

/// Judges the phases from the first to the last. True: all passed, and the loaded copy now equals
/// the working copy. False: the user has been told of the first fault, the form shows it, and the
/// loaded copy is as it was; or a failure ended the run with a message.
bool ApplyParams(RecordEdit& form);
