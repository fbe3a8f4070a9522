// The widgets of the form in their places and nothing else: no control, no rule, no event. What the
// window is measured against.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <vector>

class BareForm : public QWidget {
public:
    /// `scale` in pixels to the twip.
    explicit BareForm(double scale);

    std::vector<QLineEdit*> boxes;
    std::vector<QComboBox*> lists;
};
