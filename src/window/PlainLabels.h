// Texts of boxes, tips and labels are plain text, whoever makes them.
#pragma once

class QObject;

/// From now on and while `owner` lives, a label of any window shows its text as plain text unless
/// it was made for markup. Names in the toolkit's own questions get their stand-ins.
void KeepLabelsPlain(QObject& owner);
