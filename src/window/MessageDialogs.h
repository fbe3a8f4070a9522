// Shows messages in the toolkit's message boxes.
#pragma once

#include "shell/Services.h"

class QWidget;

class MessageDialogs : public MessageBoxes {
public:
    /// The boxes are modal to this window, which has to outlive this object.
    explicit MessageDialogs(QWidget& ownParent) : parent(ownParent) {}

    void Show(const std::string& text, MessageIcon icon, std::string_view title) override;

private:
    QWidget& parent;
};
