// Every event of the form tied to its handler, in one place.
#pragma once

struct RecordEdit;

/// Ties the events to their handlers; once, before the form is loaded.
void Wire(RecordEdit& form);
