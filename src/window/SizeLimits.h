// Under Wayland: the limits of the window's size, which say that it is fixed, out of the way while
// the compositor imposes a size. The toolkit would cut that size down to the limits, and a
// compositor ends a program whose maximised window has another size.
#pragma once

#include <QWidget>

class SizeLimits : public QObject {
public:
    /// Belongs to the window. On other platforms it does nothing: there any size arrives.
    explicit SizeLimits(QWidget& ownWindow);

    /// To be called before the window is shown, for a size can be imposed on it from the beginning.
    void Lift();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Restore();

    QWidget& window;
    const bool needed;
    bool lifted = false;
};
