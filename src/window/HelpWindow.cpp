#include "window/HelpWindow.h"

#include <QFile>
#include <QScreen>

#include "form/Controls.h"
#include "window/HelpText.h"

namespace {

QString FileName(const CommonDialog& dialog) {
    return QFile::decodeName(QByteArray::fromStdString(dialog.HelpFile)).replace('\\', '/');
}

// Centred on the point, as far as the room allows.
QRect PlaceIn(const QRect& room, QPoint point, QSize wanted) {
    QRect place(QPoint(), wanted.boundedTo(room.size()));
    place.moveCenter(point);
    place.moveLeft(qBound(room.left(), place.left(), room.right() - place.width() + 1));
    place.moveTop(qBound(room.top(), place.top(), room.bottom() - place.height() + 1));
    return place;
}

}  // namespace

QRect PlaceBeside(const QRect& form, const QRect& screen, QSize wanted, QSize smallest) {
    QRect right = screen;
    QRect left = screen;
    QRect below = screen;
    QRect above = screen;
    right.setLeft(form.right() + 1);
    left.setRight(form.left() - 1);
    below.setTop(form.bottom() + 1);
    above.setBottom(form.top() - 1);
    for (const QRect& room : {right, left, below, above}) {
        if (room.size().expandedTo(smallest) == room.size()) {
            return PlaceIn(room, form.center(), wanted);
        }
    }
    return PlaceIn(screen, {screen.right(), form.center().y()}, wanted);
}

void HelpWindow::ShowHelp(const CommonDialog& dialog) {
    if (dialog.HelpCommand == CommonDialog::ShowTopic) {
        ShowTopic(dialog);
    } else if (dialog.HelpCommand == CommonDialog::Quit && viewer != nullptr) {
        viewer->close();
    }
}

void HelpWindow::ShowTopic(const CommonDialog& dialog) {
    if (viewer == nullptr) {
        viewer = std::make_unique<HelpFrame>();
        viewer->resize(viewer->sizeHint());
    }
    // Asking for the same topic again keeps the place that the user has reached.
    const bool again = viewer->isVisible() && topic == dialog.HelpContext;
    topic = dialog.HelpContext;
    if (!again) {
        viewer->ShowDocument(HelpDocument(FileName(dialog), topic));
        Place();
    }
    viewer->setWindowState(viewer->windowState() & ~Qt::WindowMinimized);
    viewer->show();
    viewer->raise();
    viewer->activateWindow();
}

// Assumes a window frame as large as the form's. A window that already has a place keeps it, unless
// it would cover the form.
void HelpWindow::Place() {
    const QRect taken = form.window()->frameGeometry();
    const QRect inside = form.window()->geometry();
    const QMargins frame(inside.left() - taken.left(), inside.top() - taken.top(),
                         taken.right() - inside.right(), taken.bottom() - inside.bottom());
    if (viewer->testAttribute(Qt::WA_Moved) && !viewer->frameGeometry().intersects(taken)) {
        return;
    }
    const QRect place =
        PlaceBeside(taken, form.screen()->availableGeometry(), viewer->size().grownBy(frame),
                    viewer->SmallestSize().grownBy(frame));
    viewer->setGeometry(place.marginsRemoved(frame));
}
