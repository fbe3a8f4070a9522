// Message boxes of the toolkit.
#pragma once

#include "shell/Services.h"

class QWidget;

class MessageDialogs : public MessageBoxes {
public:
    /// The boxes stand over this window.
    explicit MessageDialogs(QWidget& ownParent) : parent(ownParent) {}

    void Show(const std::string& text, MessageIcon icon, std::string_view title) override;

private:
    QWidget& parent;
};
