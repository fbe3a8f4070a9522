// Lifts the limits that fix the window's size while a Wayland compositor imposes a size. The
// toolkit would keep the window within the limits, and a compositor ends a program whose maximised
// window does not have the imposed size.
#pragma once

#include <QWidget>

class SizeLimits : public QObject {
public:
    /// The window becomes its parent. Without Wayland it does nothing: there the limits do no harm.
    SizeLimits(QWidget& ownWindow, const QString& platform);

    /// Call it before the window is shown: a size can be imposed from the start.
    void Lift();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore();

    QWidget& window;
    const bool needed;
    bool lifted = false;
};
