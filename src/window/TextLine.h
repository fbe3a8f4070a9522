// The edit line of text boxes and combo boxes. Key combinations type nothing in it, and files
// cannot be dropped on it.
#pragma once

#include <QLineEdit>

class TextLine : public QLineEdit {
    Q_OBJECT

public:
    using QLineEdit::QLineEdit;

    /// The smallest size that shows the whole text, with the borders that the line has at its
    /// current size.
    QSize SizeFor(const QString& shown) const;

protected:
    bool event(QEvent* event) override;
};

/// Whether a key press types a character. Key combinations, other than with AltGr, do not.
bool TypesCharacter(const QKeyEvent& event);
