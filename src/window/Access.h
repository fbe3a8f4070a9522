// What a screen reader reports where the toolkit's default is wrong: roles, names, relations and
// actions. The names themselves are in the catalogue and in the captions.
#pragma once

class QLabel;
class QString;
class QWidget;

/// Gives lists, options, documents, notices and windows their accessible roles. Call it before any
/// of them is shown.
void DescribeWidgets();

/// Sets the widget's accessible name to the caption, without the colons and spaces at its end.
/// Screen readers are notified only if the name changes.
void SetSpokenName(QWidget& widget, QString caption);

/// If the label's buddy is a text box or combo box, names it after the label. Any other buddy keeps
/// its own caption as its name.
void NameBuddy(const QLabel& label);
