#include "window/FormArea.h"

#include <QLabel>
#include <QScrollBar>

FormArea::FormArea(QWidget* parent) : QScrollArea(parent) {
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setAlignment(Qt::AlignCenter);
    setWidget(new QWidget);
}

QSize FormArea::SizeWithin(const QSize& room) const {
    const QSize page = Page()->size();
    QSize wanted = page;
    if (page.height() > room.height()) {
        wanted.rwidth() += verticalScrollBar()->sizeHint().width();
    }
    if (page.width() > room.width()) {
        wanted.rheight() += horizontalScrollBar()->sizeHint().height();
    }
    return wanted.boundedTo(room);
}

void FormArea::Reveal(const QWidget& shown) {
    constexpr int margin = 12;
    const auto place = [this](const QWidget& one) {
        return QRect(one.mapTo(Page(), QPoint()), one.size());
    };
    QRect part = place(shown);
    for (const auto* const label : Page()->findChildren<QLabel*>()) {
        if (label->buddy() == &shown) {
            part |= place(*label);
        }
    }
    ensureVisible(part.center().x(), part.center().y(), part.width() / 2 + margin,
                  part.height() / 2 + margin);
}
