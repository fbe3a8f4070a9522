#include "window/SizeLimits.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

SizeLimits::SizeLimits(QWidget& ownWindow)
    : QObject(&ownWindow),
      window(ownWindow),
      needed(QGuiApplication::platformName().startsWith("wayland")) {
    if (needed) {
        qApp->installEventFilter(this);
    }
}

void SizeLimits::Lift() {
    if (needed && !lifted) {
        lifted = true;
        window.winId();  // makes the platform's window
        window.windowHandle()->setMinimumSize({0, 0});
        window.windowHandle()->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    }
}

// The toolkit queues what the compositor imposes, as a call of its own window object, and carries
// it out there and then. After the first time, when it does not queue it, the window is exposed.
bool SizeLimits::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MetaCall && watched->inherits("QtWaylandClient::QWaylandWindow")) {
        Lift();
        QMetaObject::invokeMethod(this, &SizeLimits::Restore, Qt::QueuedConnection);
    } else if (event->type() == QEvent::Expose && watched == window.windowHandle()) {
        Restore();
    }
    return QObject::eventFilter(watched, event);
}

// A frame that the toolkit draws lets its edges be dragged in spite of the limits. Any other size
// than the window's own stays, and the limits away, until the compositor takes it back.
void SizeLimits::Restore() {
    const QSize own = window.minimumSize();
    const bool imposed = window.isMaximized() || window.isFullScreen() ||
                         window.windowHandle()->frameMargins().isNull();
    if (lifted && !imposed) {
        window.resize(own);
    }
    if (lifted && window.size() == own) {
        lifted = false;
        window.windowHandle()->setMinimumSize(own);
        window.windowHandle()->setMaximumSize(own);
    }
}
