// The scroll area that contains the form. The form keeps its size: a larger area centres it, a
// smaller one scrolls it. FormWindow places the controls.
#pragma once

#include <QScrollArea>

class FormArea : public QScrollArea {
public:
    explicit FormArea(QWidget* parent);

    /// The parent of the controls, as large as the form.
    QWidget* Page() const { return widget(); }

    /// The size at which the area shows the whole page, but at most `room`. Includes the scroll
    /// bars needed for a page larger than the room.
    QSize SizeWithin(const QSize& room) const;

    /// Scrolls just far enough to show a widget of the page and its label.
    void Reveal(const QWidget& shown);
};
