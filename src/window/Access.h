// What a reader of the screen is told where the toolkit by itself would tell it otherwise: roles,
// names and acts. What the names are stands in the catalogue and in the captions.
#pragma once

class QString;
class QWidget;

/// Makes lists, options and the form known as what they are. Has to come before they are shown.
void DescribeWidgets();

/// Names a widget by a caption, without the colon and the blanks at its end. A reader of the screen
/// hears of a name that is another one than before.
void NameAloud(QWidget& widget, QString caption);
