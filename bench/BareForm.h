// The widgets of the form in their places and nothing else: no control, no rule, no event. The
// reference for the benchmarks of the window.
#pragma once

#include <QComboBox>
#include <QLineEdit>
#include <QWidget>
#include <vector>

class BareForm : public QWidget {
public:
    /// Makes the widgets of the catalogue; `scale` in pixels per twip.
    explicit BareForm(double scale);

    std::vector<QLineEdit*> boxes;
    std::vector<QComboBox*> lists;
};
