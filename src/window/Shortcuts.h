// The keys that act on the whole form, wherever the focus is. What they do is what the user could
// do with the mouse: they go through the same doors. And what no key does by being held.
#pragma once

struct RecordEdit;
class Mirror;
class QWidget;

/// Gives the window its keys, and keeps a held Enter from a second effect in any window, as long
/// as this one lives. Form and mirror have to outlive the window.
void AddShortcuts(QWidget& window, RecordEdit& form, Mirror& mirror);
