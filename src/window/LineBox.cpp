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
    return BringsCharacter(event) || IsPlainKey(event) || event.matches(QKeySequence::Cut) ||
           event.matches(QKeySequence::Paste);
}

}  // namespace

LineBox::LineBox(QWidget* parent) : TextLine(parent) {
    connect(this, &QLineEdit::textEdited, this, [this] { editedByUser = true; });
    connect(this, &QLineEdit::textChanged, this, &LineBox::TellIfEdited);
    connect(this, &QLineEdit::selectionChanged, this, &LineBox::TellIfMoved);
    connect(this, &QLineEdit::cursorPositionChanged, this, &LineBox::TellIfMoved);
}

// The toolkit announces what is typed, pasted or set, but not what is undone or done again.
void LineBox::AnnounceIfUndone() {
    const bool couldRedo = std::exchange(canRedo, isRedoAvailable());
    const QString before = std::exchange(known, text());
    if ((couldRedo || canRedo) && !inKeyPress) {
        QAccessibleTextUpdateEvent event(this, 0, before, known);
        QAccessible::updateAccessibility(&event);
    }
}

// The toolkit says "edited" just before "changed" of what the user does with the box itself. An
// assistive technology sets the text, as code does.
void LineBox::TellIfEdited() {
    const bool byUser = std::exchange(editedByUser, false);
    AnnounceIfUndone();
    if (!inKeyPress) {
        emit byUser ? Edited() : TextSet();
    }
}

void LineBox::TellIfMoved() {
    if (!inKeyPress) {
        emit SelectionMoved();
    }
}

QString LineBox::Delivered(const QString& typed) const {
    const bool onKeyboards = decimalSign == nullptr || decimalSign->size() == 1;  // that is ASCII
    return !onKeyboards && (typed == "." || typed == ",") ? ToScreen(*decimalSign) : typed;
}

void LineBox::keyPressEvent(QKeyEvent* event) {
    QKeyEvent delivered(event->type(), event->key(), event->modifiers(), event->nativeScanCode(),
                        event->nativeVirtualKey(), event->nativeModifiers(),
                        Delivered(event->text()), event->isAutoRepeat());
    inKeyPress = IsKeyPress(delivered);
    TextLine::keyPressEvent(&delivered);
    event->setAccepted(delivered.isAccepted());
    if (std::exchange(inKeyPress, false)) {
        emit KeyPressed();
    }
}

void LineBox::inputMethodEvent(QInputMethodEvent* event) {
    inKeyPress = !event->commitString().isEmpty();
    event->setCommitString(Delivered(event->commitString()), event->replacementStart(),
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

// The click that brings the focus leaves the whole text selected. It is not handed on, for it
// would put the insertion point in place of the selection.
void LineBox::mousePressEvent(QMouseEvent* event) {
    clickSpent = std::exchange(focusByMouse, false) && event->button() == Qt::LeftButton;
    if (!clickSpent) {
        TextLine::mousePressEvent(event);
    }
}

void LineBox::mouseMoveEvent(QMouseEvent* event) {
    if (!clickSpent) {
        TextLine::mouseMoveEvent(event);
    }
}

void LineBox::mouseReleaseEvent(QMouseEvent* event) {
    if (!std::exchange(clickSpent, false)) {
        TextLine::mouseReleaseEvent(event);
    }
}
