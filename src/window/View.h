// A view: one control on the screen. It updates a widget from its control, and forwards user
// actions on the widget to the control. The classes for the kinds of control are in Views and
// BoxViews.
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

/// What a view is made from: a control, its row of the catalogue, the parent of the new widget. All
/// but the parent have to outlive the view.
struct ViewParts {
    Control& control;
    const CatalogueRow& row;
    QWidget* parent;
    Mirror& mirror;
    const Separators& separators;
};

/// Keeps the tip, the visibility and the enabled state of the widget up to date.
class View : public QObject, public Mirrored {
public:
    /// The widget is owned by its parent and has to outlive the view.
    View(const ViewParts& parts, QWidget& ownWidget);

    Control& ShownControl() const { return shownControl; }
    const CatalogueRow& Row() const { return row; }
    QWidget& Widget() const { return widget; }

    /// Makes the widget show the control's current state; changes nothing that is already right.
    void Update() override;
    bool IsEnabled() const override { return shownControl.Enabled(); }

    /// The smallest size at which the widget shows the whole text. The widget may keep that text
    /// until the next update.
    virtual QSize SizeWith(const QString& text) = 0;

protected:
    /// Runs a user action that arrived through the widget, unless an update of the views caused it.
    /// The control may refuse the action, so the view is updated in any case.
    template <class Action>
    void OnUserAction(Action action) {
        if (!mirror.Updating()) {
            const Mirror::UserAction running(mirror);
            mirror.Mark(*this);
            action();
        }
    }

    /// The same for a text that an assistive technology may have set. The toolkit announces that
    /// text as soon as this returns, so the view is updated later: the last text announced is then
    /// the one shown.
    template <class Action>
    void OnTextSet(Action action) {
        if (!mirror.Updating()) {
            mirror.Mark(*this);
            action();
        }
    }

    /// Call it when the user works in this box; tabbing into it does not count.
    void RememberLastBox() { mirror.SetLastBox(shownControl); }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Control& shownControl;
    const CatalogueRow& row;
    QWidget& widget;
    Mirror& mirror;
};

using Views = std::vector<std::unique_ptr<View>>;

/// A view with the types of its control and widget. Throws std::bad_cast if the control is of
/// another type.
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

/// The palette with this pale background and dark text on it, even on a dark desktop.
QPalette PalePalette(QPalette palette, QColor background);

/// The palette with disabled texts that are grey but readable: messages refer to them.
QPalette ReadableWhenGreyed(QPalette palette);
