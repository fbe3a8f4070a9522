// The help viewer: opens the help window beside the form, and closes it. The window itself is in
// HelpFrame.
#pragma once

#include <memory>

#include "shell/Services.h"
#include "window/HelpFrame.h"

/// Where to put a window of the wanted size on the screen so that it does not cover the form. It is
/// made smaller if necessary, but not below `smallest`; if no side has room for that, it goes to
/// the right edge of the screen, over the form. All sizes include the window frame, in logical
/// pixels.
QRect PlaceBeside(const QRect& form, const QRect& screen, QSize wanted, QSize smallest);

class HelpWindow : public HelpViewer {
public:
    /// The help opens beside this widget, which has to outlive the viewer.
    explicit HelpWindow(const QWidget& ownForm) : form(ownForm) {}

    /// As `HelpCommand` says, shows the topic in front of the other windows or closes the viewer.
    /// Ignores any other command.
    void ShowHelp(const CommonDialog& dialog) override;

private:
    void ShowTopic(const CommonDialog& dialog);
    void Place();

    const QWidget& form;
    std::unique_ptr<HelpFrame> viewer;
    int topic = 0;  // the last one shown
};
