#include "window/HeldKeys.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>

HeldKeys::HeldKeys(QWidget& owner) : QObject(&owner) { qApp->installEventFilter(this); }

bool HeldKeys::eventFilter(QObject* watched, QEvent* event) {
    const auto key = [event]() -> const QKeyEvent& { return static_cast<QKeyEvent&>(*event); };
    switch (event->type()) {
        case QEvent::KeyRelease:
            releasedKey = key().key();
            releaseTime = key().timestamp();
            return false;
        case QEvent::ShortcutOverride: Note(key()); return false;
        case QEvent::KeyPress: Note(key()); return Consumes(key(), watched);
        default: return false;
    }
}

// X11 repeats a held key as a release and a press with the same time stamp. The toolkit recognises
// such a pair only if both events are already in its queue.
void HeldKeys::Note(const QKeyEvent& press) {
    const bool paired = press.timestamp() != 0 && press.timestamp() == releaseTime;
    repeating = press.isAutoRepeat() || (paired && press.key() == releasedKey);
    if (!repeating) {
        pressedIn = QApplication::focusWidget();
    }
}

// A repeated Enter would accept a dialog that has just opened, before the user has seen it; a
// repeated Space would type in it. Space presses a button on the key press, not on the release:
// every repeat has a release.
bool HeldKeys::Consumes(const QKeyEvent& press, QObject* receiver) const {
    if (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter) {
        return repeating;
    }
    if (press.key() != Qt::Key_Space) {
        return false;
    }
    auto* const button = qobject_cast<QAbstractButton*>(receiver);
    if (button != nullptr && !repeating) {
        button->click();
    }
    return button != nullptr || (repeating && QApplication::focusWidget() != pressedIn);
}
