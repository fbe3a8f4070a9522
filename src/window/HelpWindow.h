// The help viewer: opens the window of the help beside the form, and closes it.
#pragma once

#include <memory>

#include "shell/Services.h"
#include "window/HelpFrame.h"

/// Where a window of the wanted size is beside the form and over no part of it, within the screen:
/// smaller if need be, but not below the least size. If there is no room, at the screen's right.
QRect PlaceBeside(const QRect& form, const QRect& screen, QSize wanted, QSize least);

class HelpWindow : public HelpViewer {
public:
    /// Opens beside this window, which has to outlive it.
    explicit HelpWindow(const QWidget& ownForm) : form(ownForm) {}

    /// Shows the topic in front of the other windows, or closes the viewer if one was opened.
    void ShowHelp(const CommonDialog& dialog) override;

private:
    void ShowTopic(const CommonDialog& dialog);
    void Place();

    const QWidget& form;
    std::unique_ptr<HelpFrame> viewer;
    int topic = 0;  // the last one shown
};
