// A line of text to type in, which both kinds of box have. No chord types or edits in it, and a
// dragged file does not become its text.
#pragma once

#include <QLineEdit>

class TextLine : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// The smallest size at which the line shows the whole of such a text, with the borders that
    /// it has at its present size.
    QSize SizeFor(const QString& shown) const;

protected:
    bool event(QEvent* event) override;
};

/// Whether a key brings a character at the insertion point.
bool BringsCharacter(const QKeyEvent& event);
