// The keys that act on the whole form, wherever the focus is. They do what the user could also do
// with the mouse, through the same user actions of the controls.
#pragma once

struct RecordEdit;
class Mirror;
class QWidget;

/// Adds the keys to the window. Form and mirror have to outlive it.
void AddShortcuts(QWidget& window, RecordEdit& form, Mirror& mirror);
