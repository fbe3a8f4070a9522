#include "window/TextLine.h"

#include <QDropEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QStyleOptionFrame>

#include "window/ScreenText.h"

namespace {

// Control and Alt together are AltGr on some keyboards.
bool IsChord(Qt::KeyboardModifiers held) {
    held &= Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    return held != 0 && held != (Qt::ControlModifier | Qt::AltModifier);
}

bool IsText(const QString& text) {
    return !text.isEmpty() && text.front().category() != QChar::Other_Control;
}

// With Control alone, the toolkit types only the digits and signs of the keypad; those are ignored
// here.
bool IsIgnoredChord(const QKeyEvent& event) {
    const auto held = event.modifiers();
    return IsChord(held) && (held.testFlag(Qt::AltModifier) || held.testFlag(Qt::MetaModifier) ||
                             (held.testFlag(Qt::KeypadModifier) && IsText(event.text())));
}

bool DragsFile(const QEvent& event) {
    const bool dragged = event.type() == QEvent::DragEnter || event.type() == QEvent::DragMove ||
                         event.type() == QEvent::Drop;
    return dragged && static_cast<const QDropEvent&>(event).mimeData()->hasUrls();
}

}  // namespace

bool TypesCharacter(const QKeyEvent& event) {
    return !IsChord(event.modifiers()) && IsText(event.text());
}

QSize TextLine::SizeFor(const QString& shown) const {
    QStyleOptionFrame option;
    initStyleOption(&option);
    const QSize inside = style()->subElementRect(QStyle::SE_LineEditContents, &option, this).size();
    return RoomToEdit(shown, fontMetrics()) + size() - inside;
}

bool TextLine::event(QEvent* event) {
    const bool chord =
        event->type() == QEvent::KeyPress && IsIgnoredChord(static_cast<const QKeyEvent&>(*event));
    if (chord || DragsFile(*event)) {
        event->ignore();
        return true;
    }
    return QLineEdit::event(event);
}
