#include "window/SizeLimits.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

SizeLimits::SizeLimits(QWidget& ownWindow, const QString& platform)
    : QObject(&ownWindow), window(ownWindow), needed(platform.startsWith("wayland")) {
    if (needed) {
        qApp->installEventFilter(this);
    }
}

void SizeLimits::Lift() {
    if (needed && !lifted) {
        lifted = true;
        window.winId();  // creates the platform's window
        window.windowHandle()->setMinimumSize({0, 0});
        window.windowHandle()->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    }
}

// The toolkit queues an imposed size as a call to its platform window, which applies it at once.
// The first size is not queued, but the window is exposed after it.
bool SizeLimits::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MetaCall && watched->inherits("QtWaylandClient::QWaylandWindow")) {
        Lift();
        QMetaObject::invokeMethod(this, &SizeLimits::Restore, Qt::QueuedConnection);
    } else if (event->type() == QEvent::Expose && watched == window.windowHandle()) {
        Restore();
    }
    return QObject::eventFilter(watched, event);
}

// The user can drag a frame drawn by the toolkit to another size in spite of the limits: then the
// window gets its own size back. An imposed size is kept, without limits, until the compositor
// withdraws it.
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
