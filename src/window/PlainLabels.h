// Shows the texts of message boxes, tips and labels as plain text, never as markup.
#pragma once

class QObject;

/// As long as `owner` lives, labels of all windows show plain text, unless explicitly set to
/// markup. File names in the toolkit's own questions are shown with stand-ins.
void KeepLabelsPlain(QObject& owner);
