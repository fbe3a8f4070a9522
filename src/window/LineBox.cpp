#include "window/LineBox.h"

#include <QAccessible>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <utility>

#include "window/ScreenText.h"

namespace {

bool IsPlainKey(const QKeyEvent& event) {
    const int key = event.key();
    return (key == Qt::Key_Backspace || key == Qt::Key_Return || key == Qt::Key_Enter) &&
           !event.modifiers().testFlag(Qt::ControlModifier);
}

bool IsKeyPress(const QKeyEvent& event) {
    return TypesCharacter(event) || IsPlainKey(event) || event.matches(QKeySequence::Cut) ||
           event.matches(QKeySequence::Paste);
}

}  // namespace

LineBox::LineBox(QWidget* parent) : TextLine(parent) {
    connect(this, &QLineEdit::textEdited, this, [this] { editedByUser = true; });
    connect(this, &QLineEdit::textChanged, this, &LineBox::ReportIfEdited);
    connect(this, &QLineEdit::selectionChanged, this, &LineBox::ReportIfMoved);
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineBox::ReportIfMoved);
}

// The toolkit announces typed, pasted and set text, but not undo and redo.
void LineBox::AnnounceIfUndone() {
    const bool couldRedo = std::exchange(canRedo, isRedoAvailable());
    const QString before = std::exchange(known, text());
    if ((couldRedo || canRedo) && !inKeyPress) {
        QAccessibleTextUpdateEvent event(this, 0, before, known);
        QAccessible::updateAccessibility(&event);
    }
}

// For edits in the box itself, the toolkit emits textEdited just before textChanged. An assistive
// technology sets the text, as code does, and causes textChanged only.
void LineBox::ReportIfEdited() {
    const bool byUser = std::exchange(editedByUser, false);
    AnnounceIfUndone();
    if (!inKeyPress) {
        emit byUser ? Edited() : TextSet();
    }
}

void LineBox::ReportIfMoved() {
    if (!inKeyPress) {
        emit SelectionMoved();
    }
}

QString LineBox::WithDecimalSign(const QString& typed) const {
    const bool onKeyboard = decimalSign == nullptr || decimalSign->size() == 1;  // one byte: ASCII
    return !onKeyboard && (typed == "." || typed == ",") ? ToScreen(*decimalSign) : typed;
}

void LineBox::keyPressEvent(QKeyEvent* event) {
    QKeyEvent delivered(event->type(), event->key(), event->modifiers(), event->nativeScanCode(),
                        event->nativeVirtualKey(), event->nativeModifiers(),
                        WithDecimalSign(event->text()), event->isAutoRepeat());
    inKeyPress = IsKeyPress(delivered);
    TextLine::keyPressEvent(&delivered);
    event->setAccepted(delivered.isAccepted());
    if (std::exchange(inKeyPress, false)) {
        emit KeyPressed();
    }
}

void LineBox::inputMethodEvent(QInputMethodEvent* event) {
    inKeyPress = !event->commitString().isEmpty();
    event->setCommitString(WithDecimalSign(event->commitString()), event->replacementStart(),
                           event->replacementLength());
    TextLine::inputMethodEvent(event);
    if (std::exchange(inKeyPress, false)) {
        emit KeyPressed();
    }
}

void LineBox::focusInEvent(QFocusEvent* event) {
    focusByMouse = event->reason() == Qt::MouseFocusReason;
    TextLine::focusInEvent(event);
}

// The click that gives the box the focus leaves the whole text selected: the base class, which
// would clear the selection, never sees it.
void LineBox::mousePressEvent(QMouseEvent* event) {
    ignoreClick = std::exchange(focusByMouse, false) && event->button() == Qt::LeftButton;
    if (!ignoreClick) {
        TextLine::mousePressEvent(event);
    }
}

void LineBox::mouseMoveEvent(QMouseEvent* event) {
    if (!ignoreClick) {
        TextLine::mouseMoveEvent(event);
    }
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(ignoreClick, false)) {
        TextLine::mouseReleaseEvent(event);
    }
}
