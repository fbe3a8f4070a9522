#include "window/Access.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessibleWidget>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTextEdit>

#include "window/DocumentAccess.h"
#include "window/ListBox.h"

namespace {

// The toolkit would report the text in the box as the name of the list.
class ListBoxAccess : public QAccessibleWidget {
public:
    explicit ListBoxAccess(ListBox& ownList)
        : QAccessibleWidget(&ownList, QAccessible::ComboBox), list(ownList) {}

    int childCount() const override { return 2; }

    QAccessibleInterface* child(int index) const override {
        if (index == 0) {
            return QAccessible::queryAccessibleInterface(list.view());
        }
        return index == 1 ? QAccessible::queryAccessibleInterface(list.lineEdit()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* part) const override {
        return part->object() == list.view() ? 0 : part->object() == list.lineEdit() ? 1 : -1;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Value ? list.currentText() : QAccessibleWidget::text(kind);
    }

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.editable = state.hasPopup = state.expandable = true;
        state.expanded = list.view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }

    QStringList actionNames() const override {
        return QStringList(showMenuAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name != showMenuAction()) {
            QAccessibleWidget::doAction(name);
        } else if (list.view()->isVisible()) {
            list.hidePopup();
        } else if (list.isEnabled()) {
            list.showPopup();
        }
    }

private:
    ListBox& list;
};

// An option is not auto-exclusive, so that the Tab key reaches each option of its group; the
// toolkit would report it as a check box. A label that has one option as its buddy is the label of
// the whole group.
class OptionAccess : public QAccessibleWidget {
public:
    using Relation = QPair<QAccessibleInterface*, QAccessible::Relation>;

    explicit OptionAccess(QAbstractButton& ownOption)
        : QAccessibleWidget(&ownOption, QAccessible::RadioButton), option(ownOption) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = option.isChecked();
        return state;
    }

    // Leaves out the toolkit's own labels: screen readers use the first one, which would be the
    // frame.
    QList<Relation> relations(QAccessible::Relation wanted) const override {
        QList<Relation> found = QAccessibleWidget::relations(wanted & ~QAccessible::Label);
        if (wanted.testFlag(QAccessible::Label)) {
            for (QLabel* label : option.parentWidget()->findChildren<QLabel*>()) {
                if (qobject_cast<QRadioButton*>(label->buddy()) != nullptr) {
                    found.append(
                        {QAccessible::queryAccessibleInterface(label), QAccessible::Label});
                }
            }
        }
        return found;
    }

    QStringList actionNames() const override {
        return QStringList(toggleAction()) + QAccessibleWidget::actionNames();
    }

    void doAction(const QString& name) override {
        if (name == toggleAction()) {
            option.click();
        } else {
            QAccessibleWidget::doAction(name);
        }
    }

private:
    QAbstractButton& option;
};

QAccessibleInterface* NewAccess(const QString& kind, QObject* object) {
    if (kind == "ListBox") {
        return new ListBoxAccess(*qobject_cast<ListBox*>(object));
    }
    if (kind == "QRadioButton") {
        return new OptionAccess(*qobject_cast<QAbstractButton*>(object));
    }
    if (kind == "QTextEdit") {
        return new DocumentAccess(*qobject_cast<QTextEdit*>(object));
    }
    if (kind == "Notice") {
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Notification);
    }
    if (kind == "FormWindow" || kind == "HelpFrame") {
        return new QAccessibleWidget(qobject_cast<QWidget*>(object), QAccessible::Window);
    }
    return nullptr;
}

}  // namespace

void DescribeWidgets() { QAccessible::installFactory(NewAccess); }

void SetSpokenName(QWidget& widget, QString caption) {
    while (caption.endsWith(':') || caption.endsWith(' ')) {
        caption.chop(1);
    }
    if (widget.accessibleName() == caption) {
        return;
    }
    widget.setAccessibleName(caption);
    if (auto* const list = qobject_cast<ListBox*>(&widget)) {
        list->lineEdit()->setAccessibleName(caption);
    }
}

void NameBuddy(const QLabel& label) {
    QWidget* const buddy = label.buddy();
    if (qobject_cast<QLineEdit*>(buddy) != nullptr || qobject_cast<QComboBox*>(buddy) != nullptr) {
        SetSpokenName(*buddy, label.text());
    }
}
