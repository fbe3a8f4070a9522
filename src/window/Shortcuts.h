// The keys that act on the whole form, wherever the focus is. What they do is what the user could
// do with the mouse: they go through the same doors.
#pragma once

struct RecordEdit;
class Mirror;
class QWidget;

/// Gives the window its keys. Form and mirror have to outlive the window.
void AddShortcuts(QWidget& window, RecordEdit& form, Mirror& mirror);
