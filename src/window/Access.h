// What a screen reader hears where the toolkit by itself would say something else: roles, names,
// relations and actions. The names themselves are in the catalogue and in the captions.
#pragma once

class QLabel;
class QString;
class QWidget;

/// Makes lists, options, documents, notices and windows known as what they are. Has to come before
/// they are shown.
void DescribeWidgets();

/// Names a widget by a caption, without the colon and the blanks at its end. A screen reader hears
/// of a name that is another one than before.
void NameAloud(QWidget& widget, QString caption);

/// Names the box that the label belongs to by it. Anything else has a text of its own for a name.
void NameBuddy(const QLabel& label);
