// A line of text to type in, which both kinds of box have. No chord types or edits in it, and a
// dragged file does not become its text.
#pragma once

#include <QLineEdit>

class TextLine : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

protected:
    bool event(QEvent* event) override;
};

/// Whether a key brings a character at the insertion point.
bool BringsCharacter(const QKeyEvent& event);
