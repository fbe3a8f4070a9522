// The area of the window in which the form lies. The form keeps its size: in a larger area it is in
// the middle, in a smaller one it is scrolled. Where the controls are on it is the window's matter.
#pragma once

#include <QScrollArea>

class FormArea : public QScrollArea {
public:
    explicit FormArea(QWidget* parent);

    /// What the controls sit on, as large as the form.
    QWidget* Page() const { return widget(); }

    /// The size that shows the page or, in less room, as much of it as that room has, with room for
    /// the scroll bars that it then takes.
    QSize SizeWithin(const QSize& room) const;

    /// Scrolls no further than it takes to show a widget of the page and its label.
    void Reveal(const QWidget& shown);
};
