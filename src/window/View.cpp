#include "window/View.h"

#include <QEvent>
#include <QToolTip>

#include "window/ScreenText.h"

View::View(const ViewParts& parts, QWidget& ownWidget)
    : original(parts.control), row(parts.row), widget(ownWidget), mirror(parts.mirror) {
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

namespace {

QColor Mixed(const QColor& one, const QColor& other, float share) {
    const auto mix = [share](float from, float to) { return share * from + (1 - share) * to; };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()),
                            mix(one.blueF(), other.blueF()));
}

}  // namespace

QPalette ReadableWhenGreyed(QPalette palette) {
    constexpr float shareOfText = 0.6F;  // enough for a contrast of 3:1 on any usual desktop
    const QColor back = palette.color(QPalette::Disabled, QPalette::Window);
    palette.setColor(QPalette::Disabled, QPalette::Base, back);
    for (const auto role : {QPalette::WindowText, QPalette::Text}) {
        const QColor text = palette.color(QPalette::Active, role);
        palette.setColor(QPalette::Disabled, role, Mixed(text, back, shareOfText));
    }
    return palette;
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
