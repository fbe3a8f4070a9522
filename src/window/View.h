// A view: one control on the screen. It brings a widget up to date with its control, and hands
// what the user does with the widget to the control's doors. The classes for the kinds of control
// are in Views.
#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QSize>
#include <QWidget>
#include <memory>
#include <vector>

#include "editing/Numbers.h"
#include "form/CatalogueRow.h"
#include "form/Controls.h"
#include "window/Mirror.h"

/// What a view is made of: a control, its row of the catalogue, the widget to sit on.
struct ViewParts {
    Control& control;
    const CatalogueRow& row;
    QWidget* parent;
    Mirror& mirror;
    const Separators& separators;
};

class View : public QObject, public Mirrored {
public:
    /// The widget belongs to the parts's parent.
    View(const ViewParts& parts, QWidget& ownWidget);

    Control& Original() const { return original; }
    const CatalogueRow& Row() const { return row; }
    QWidget& Widget() const { return widget; }

    /// Brings the widget up to date; what is so already is not touched.
    void Update() override;
    bool IsEnabled() const override { return original.Enabled(); }

    /// The smallest size at which the widget cuts nothing off such a text. The widget can be left
    /// with that text until the next update.
    virtual QSize SizeWith(const QString& text) = 0;

protected:
    /// A user action that arrived through the widget, unless it is an echo. The control may
    /// refuse it, so the view is brought up to date in any case.
    template <class Action>
    void OnUserAction(Action action) {
        if (!mirror.Updating()) {
            const Mirror::UserAction running(mirror);
            mirror.Mark(*this);
            action();
        }
    }

    /// The same for text that an assistive technology has set. The toolkit announces that text as
    /// soon as this returns, so the view follows later: the last text heard is the one on show.
    template <class Action>
    void OnTextSet(Action action) {
        if (!mirror.Updating()) {
            mirror.Mark(*this);
            action();
        }
    }

    /// The user works in this box.
    void NoteWork() { mirror.NoteWork(original); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Control& original;
    const CatalogueRow& row;
    QWidget& widget;
    Mirror& mirror;
};

using Views = std::vector<std::unique_ptr<View>>;

/// A view that knows the kinds of its control and of its widget.
template <class ControlType, class WidgetType>
class ViewOf : public View {
public:
    explicit ViewOf(const ViewParts& parts) : ViewOf(parts, *new WidgetType(parts.parent)) {}

protected:
    ControlType& control;
    WidgetType& widget;

private:
    ViewOf(const ViewParts& parts, WidgetType& ownWidget)
        : View(parts, ownWidget),
          control(dynamic_cast<ControlType&>(parts.control)),
          widget(ownWidget) {}
};

/// The palette with a pale back, and dark text on it: the back is as pale on a dark desktop.
QPalette PalePalette(QPalette palette, QColor back);

/// The palette with greyed texts that can still be read: messages speak of what they show.
QPalette ReadableWhenGreyed(QPalette palette);
