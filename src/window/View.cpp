#include "window/View.h"

#include <QEvent>
#include <QToolTip>

#include "window/ScreenText.h"

View::View(const Subject& subject, QWidget& ownWidget)
    : original(subject.control), row(subject.row), widget(ownWidget), mirror(subject.mirror) {
    widget.setObjectName(ToScreen(row.name));
    widget.setMouseTracking(true);
    widget.ensurePolished();
    widget.installEventFilter(this);
}

void View::Update() {
    widget.setToolTip(ToScreen(original.ToolTipText()));
    widget.setVisible(original.Visible());
    widget.setEnabled(original.Enabled());
}

bool View::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const Mirror::UserAction action(mirror);
        original.MoveMouse();
    }
    if (event->type() == QEvent::ToolTip && widget.toolTip().isEmpty()) {
        // Left to itself, the event would go on to the frame and show the frame's tip.
        QToolTip::hideText();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

QPalette PalePalette(QPalette palette, QColor back) {
    constexpr QColor greyed(112, 112, 112);
    for (const auto role : {QPalette::Window, QPalette::Base}) {
        palette.setColor(role, back);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, greyed);
    }
    return palette;
}
