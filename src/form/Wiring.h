// Connects every event of the form to its handler. What the handlers do is in their own units.
#pragma once

struct RecordEdit;

/// Connects the events; call it once, before the form is loaded.
void Wire(RecordEdit& form);
