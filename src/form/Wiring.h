// Connects every event of the form to its handler. The handlers are in other units.
#pragma once

struct RecordEdit;

/// Connects the events; call it once, before the form is loaded.
void Wire(RecordEdit& form);
