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
        case QEvent::KeyPress: Note(key()); return Takes(key(), watched);
        default: return false;
    }
}

// Under X a held key is released and pressed again, both at the same time. The toolkit marks only
// those pairs of which it happens to see both events at once.
void HeldKeys::Note(const QKeyEvent& press) {
    const bool paired = press.timestamp() != 0 && press.timestamp() == releaseTime;
    repeating = press.isAutoRepeat() || (paired && press.key() == releasedKey);
    if (!repeating) {
        begunIn = QApplication::focusWidget();
    }
}

// A repetition of Enter would accept, unseen, a dialog that has just come up, and one of Space
// would type in it. Space presses a button as it goes down, for each repetition brings a release.
bool HeldKeys::Takes(const QKeyEvent& press, QObject* receiver) const {
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
    return button != nullptr || (repeating && QApplication::focusWidget() != begunIn);
}
