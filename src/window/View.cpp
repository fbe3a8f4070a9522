#include "window/View.h"

#include <QEvent>
#include <QToolTip>

#include "window/ScreenText.h"

View::View(const ViewParts& parts, QWidget& ownWidget)
    : shownControl(parts.control), row(parts.row), widget(ownWidget), mirror(parts.mirror) {
    widget.setObjectName(ToScreen(row.name));
    widget.setMouseTracking(true);
    widget.ensurePolished();
    widget.installEventFilter(this);
}

void View::Update() {
    widget.setToolTip(ToScreen(shownControl.ToolTipText()));
    widget.setVisible(shownControl.Visible());
    widget.setEnabled(shownControl.Enabled());
}

bool View::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseMove) {
        const Mirror::UserAction action(mirror);
        shownControl.MoveMouse();
    }
    if (event->type() == QEvent::ToolTip && widget.toolTip().isEmpty()) {
        // Otherwise the event would reach the frame and show the frame's tip.
        QToolTip::hideText();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

namespace {

QColor Mixed(const QColor& one, const QColor& other, float share) {
    const auto mix = [share](float from, float to) { return share * from + (1 - share) * to; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

QPalette ReadableWhenGreyed(QPalette palette) {
    constexpr float shareOfText = 0.6F;  // enough for a contrast of 3:1 on any usual desktop
    const QColor background = palette.color(QPalette::Disabled, QPalette::Window);
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        const QColor text = palette.color(QPalette::Active, role);
        palette.setColor(QPalette::Disabled, role, Mixed(text, background, shareOfText));
    }
    return palette;
}

QPalette PalePalette(QPalette palette, QColor background) {
    constexpr QColor greyed(112, 112, 112);
    for (const auto role : {QPalette::Window, QPalette::Base}) {
        palette.setColor(role, background);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        palette.setColor(role, Qt::black);
        palette.setColor(QPalette::Disabled, role, greyed);
    }
    return palette;
}
