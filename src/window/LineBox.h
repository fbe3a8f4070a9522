// A line of text that tells a key press from any other edit. It knows no control.
#pragma once

#include <string>

#include "window/TextLine.h"

class LineBox : public TextLine {
    Q_OBJECT

public:
    explicit LineBox(QWidget* parent);

    /// The box is one for numbers. Where their decimal sign is on no ordinary keyboard, a typed
    /// period or comma arrives as that sign. The sign is UTF-8 and has to outlive the box.
    void TypeDecimals(const std::string& sign) { decimalSign = &sign; }

signals:
    /// A key was pressed that brings or takes a character at the insertion point, and the text is
    /// as the key left it, which can be as it was.
    void KeyPressed();
    /// The user changed the text in any other way.
    void Edited();
    /// The text was set, by code or through an assistive technology.
    void TextSet();
    /// The selection or the insertion point has moved, and no key press is going on.
    void SelectionMoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void TellIfEdited();
    void AnnounceIfUndone();
    void TellIfMoved();
    QString Delivered(const QString& typed) const;

    const std::string* decimalSign = nullptr;  // none: no box for numbers
    bool inKeyPress = false;
    bool editedByUser = false;  // and the change has still to be reported
    bool canRedo = false;       // after the last change
    QString known;              // the text after the last change
    bool focusByMouse = false;  // and the click that brought it is still to come
    bool clickSpent = false;    // on bringing the focus, until the button is released
};
