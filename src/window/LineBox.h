// A line of text that distinguishes key presses from other edits. It does not depend on the
// controls of the form.
#pragma once

#include <string>

#include "window/TextLine.h"

class LineBox : public TextLine {
    Q_OBJECT

public:
    explicit LineBox(QWidget* parent);

    /// Makes this a box for numbers with this decimal sign. If the sign is not ASCII, typing a
    /// period or comma enters it. The sign is UTF-8 and has to outlive the box.
    void SetDecimalSign(const std::string& sign) { decimalSign = &sign; }

signals:
    /// A key was pressed that can insert or delete at the insertion point, or an input method
    /// entered text. The text is up to date, but need not have changed.
    void KeyPressed();
    /// The user changed the text in any other way.
    void Edited();
    /// The text was set, by code or through an assistive technology.
    void TextSet();
    /// The selection or the insertion point has changed, other than by such a key press.
    void SelectionMoved();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void ReportIfEdited();
    void AnnounceIfUndone();
    void ReportIfMoved();
    QString WithDecimalSign(const QString& typed) const;

    const std::string* decimalSign = nullptr;  // null: not a box for numbers
    bool inKeyPress = false;
    bool editedByUser = false;  // but the change is not reported yet
    bool canRedo = false;       // after the last change
    QString known;              // the text after the last change
    bool focusByMouse = false;  // but its click has not arrived yet
    bool ignoreClick = false;   // it gave the box the focus; until the button is released
};
