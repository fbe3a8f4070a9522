// A line of text that tells a key press from any other edit. It knows no control.
#pragma once

#include <QLineEdit>

class LineBox : public QLineEdit {
    Q_OBJECT

public:
    explicit LineBox(QWidget* parent);

    /// The smallest size at which the box shows the whole of such a text.
    QSize SizeFor(const QString& shown) const;

signals:
    /// A key was pressed that brings or takes a character at the insertion point, and the text is
    /// as the key left it, which can be as it was.
    void KeyPressed();
    /// The text was changed in any other way.
    void Edited();
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
    void TellIfMoved();

    bool inKeyPress = false;
    bool focusByMouse = false;  // and the click that brought it is still to come
    bool clickSpent = false;    // on bringing the focus, until the button is released
};
