// Random user actions on the window: keys, clicks, drags, picks and others reach it as from the
// platform, and after each one every widget must show its control. Environment variables set the
// seed and the number of actions, as in MonkeyTest.cpp.
#include <random>

#include "../RandomUser.h"
#include "WindowTest.h"
#include "window/MessageDialogs.h"
#include "window/ScreenText.h"

namespace {

// A selection as text; empty while a menu or message is in front: boxes then keep the old one.
QString Selection(const QWidget& box, int start, int length) {
    const bool inFront = box.isActiveWindow() && QApplication::activePopupWidget() == nullptr;
    return inFront ? QString("selects %1+%2").arg(start).arg(length) : QString();
}

/// What a widget shows.
QStringList Shown(const QWidget& widget) {
    QStringList shown{widget.toolTip(), widget.isEnabled() ? "enabled" : "disabled",
                      widget.isVisibleTo(widget.parentWidget()) ? "visible" : "hidden"};
    if (const auto* box = qobject_cast<const QLineEdit*>(&widget)) {
        const bool selected = box->hasSelectedText();
        shown << box->text();
        shown << Selection(*box, selected ? box->selectionStart() : box->cursorPosition(),
                           box->selectionLength());
    } else if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        shown << list->currentText();
        for (int i = 0; i < list->count(); ++i) shown << list->itemText(i);
    } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        shown << button->text().remove(QChar(0x200E)) << (button->isChecked() ? "on" : "off");
    } else if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        shown << label->text();
    }
    return shown;
}

/// What the widget of a control should show.
QStringList Expected(const Control& control, const QWidget& widget) {
    QStringList expected{ToScreen(control.ToolTipText()),
                         control.Enabled() ? "enabled" : "disabled",
                         control.Visible() ? "visible" : "hidden"};
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) {
        const int start = ScreenPlace(box->Text(), box->SelStart());
        const int end = ScreenPlace(box->Text(), box->SelStart() + box->SelLength());
        const int length = widget.hasFocus() ? end - start : 0;  // no other box shows it
        expected << ToScreen(box->Text()) << Selection(widget, end - length, length);
    } else if (const auto* list = dynamic_cast<const ComboBox*>(&control)) {
        expected << ToScreen(list->Text());
        for (const std::string& entry : list->Entries()) expected << ToScreen(entry);
    } else if (dynamic_cast<const Frame*>(&control) == nullptr) {
        QString caption = ToScreen(dynamic_cast<const CaptionedControl&>(control).Caption());
        const auto* const label = qobject_cast<const QLabel*>(&widget);
        if (label != nullptr && label->frameShape() != QFrame::NoFrame) {
            caption = label->fontMetrics().elidedText(caption, Qt::ElideLeft,
                                                      label->contentsRect().width());
        }
        expected << caption;
        const auto* const check = dynamic_cast<const CheckBox*>(&control);
        const auto* const option = dynamic_cast<const OptionButton*>(&control);
        const bool on = (check && check->Value() == 1) || (option && option->Value());
        if (label == nullptr) expected << (on ? "on" : "off");
    }
    return expected;
}

/// Real message boxes; each is answered as soon as it shows.
class AnsweredMessages : public MessageBoxes {
public:
    AnsweredMessages(QWidget& window, std::function<void()> look)
        : messages(window), whileItShows(std::move(look)) {}

    void Show(const std::string& text, MessageIcon icon, std::string_view title) override {
        QTimer::singleShot(0, [this] {
            whileItShows();
            keyClick(QApplication::activeModalWidget(), Qt::Key_Return);
        });
        messages.Show(text, icon, title);
    }

private:
    MessageDialogs messages;
    std::function<void()> whileItShows;
};

class WindowMonkeyTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        form.services.window = &window;
        form.services.messages = &messages;
        form.Command1.Click = {};  // it would close the window
        for (Control* control : form.Controls()) {
            if (auto* const widget = Find(control->Name().c_str())) {
                widgets.emplace_back(control, widget);
            }
        }
        QApplication::clipboard()->setText("1,5\n");
    }

    std::size_t Choose(std::size_t below) { return generator() % below; }
    template <class Things>
    auto& OneOf(Things& things) {
        return things[Choose(std::size(things))];
    }

    QPoint PlaceIn(const QWidget& widget) {
        const auto within = [this](int size) {
            return static_cast<int>(Choose(static_cast<std::size_t>(std::max(size, 1))));
        };
        return widget.mapTo(&window, QPoint(within(widget.width()), within(widget.height())));
    }

    void Press(QKeyCombination key) {
        keyClick(window.windowHandle(), key.key(), key.keyboardModifiers());
    }

    // Opens a list and picks a random entry with a key or the mouse.
    void PickFrom(QComboBox& list) {
        list.setFocus();
        Press(Qt::Key_Down);
        auto* const view = list.view();
        if (!view->isVisible() || list.count() == 0) return;
        const auto row = static_cast<int>(Choose(static_cast<std::size_t>(list.count())));
        const QModelIndex entry = list.model()->index(row, 0);
        view->scrollTo(entry);
        if (Choose(2) == 0) {
            mouseClick(view->viewport(), Qt::LeftButton, {}, view->visualRect(entry).center());
        } else {
            view->setCurrentIndex(entry);
            Press(Qt::Key_Return);
        }
    }

    /// Performs a random action and returns its description.
    QString Act() {
        static constexpr Qt::KeyboardModifiers held[]{
            {}, {}, {}, Qt::ShiftModifier, Qt::ControlModifier};
        static const QStringList keys =
            QString(
                "Tab Backtab Return Space Esc Backspace Del Left Home End Up Down PgDown F1 "
                "F4 Shift+Left Shift+Home Ctrl+A Ctrl+X Ctrl+C Ctrl+V Ctrl+Z Ctrl+Y "
                "Ctrl+Backspace Ctrl+PgDown Ctrl+PgUp Ctrl+O Ctrl+S Alt+Down")
                .split(' ');
        static constexpr char typed[] = "0123456789.,-+eE x\"";
        QWindow* const target = window.windowHandle();
        QWidget* const widget = OneOf(widgets).second;
        const QPoint place = PlaceIn(*widget);
        const auto modifiers = OneOf(held);
        const auto button = Choose(8) == 0 ? Qt::RightButton : Qt::LeftButton;
        const QString at =
            QString(" %1 (%2,%3) ").arg(widget->objectName()).arg(place.x()).arg(place.y()) +
            QString::number(modifiers.toInt(), 16);
        switch (Choose(12)) {
            case 0:
            case 1:
            case 2:
                mouseClick(target, button, modifiers, place);
                return (button == Qt::LeftButton ? "click" : "right click") + at;
            case 3:
                QTest::mouseDClick(target, button, modifiers, place);
                return "double click" + at;
            case 4: {
                QTest::mousePress(target, button, modifiers, place);
                QTest::mouseMove(target, PlaceIn(*widget));
                QTest::mouseRelease(target, button, modifiers, PlaceIn(*OneOf(widgets).second));
                return "drag" + at;
            }
            case 5: QTest::mouseMove(target, place); return "move" + at;
            case 6: {
                QWidget* const deepest = window.childAt(place);
                QWheelEvent wheel(place, window.mapToGlobal(place), {}, {0, Choose(2) ? 120 : -120},
                                  Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
                QApplication::sendEvent(deepest != nullptr ? deepest : &window, &wheel);
                return "wheel" + at;
            }
            case 7:
                if (widget->focusPolicy() != Qt::NoFocus) widget->setFocus(Qt::OtherFocusReason);
                return "focus" + at;
            case 8:
                if (auto* const list = qobject_cast<QComboBox*>(widget); list && list->isEnabled())
                    PickFrom(*list);
                return "pick" + at;
            case 9: {
                QInputMethodEvent commit;
                commit.setCommitString(Choose(2) == 0 ? "7" : "é");
                if (QObject* const focus = QApplication::focusObject())
                    QApplication::sendEvent(focus, &commit);
                return "input";
            }
            case 10: {
                const QString key = OneOf(keys);
                Press(QKeySequence(key)[0]);
                return "key " + key;
            }
            default: {
                const char key = typed[Choose(std::size(typed) - 1)];
                keyClick(target, key);
                return QString("key ") + key;
            }
        }
    }

    /// Expects each widget to show its control, and the widget with the focus to be the active one.
    void Compare() {
        for (const auto& [control, widget] : widgets) {
            const QStringList shown = Shown(*widget), expected = Expected(*control, *widget);
            EXPECT_EQ(shown.join('|').toStdString(), expected.join('|').toStdString())
                << control->Name();
        }
        for (const QWidget* at = QApplication::focusWidget(); at != nullptr && !at->isWindow();
             at = at->parentWidget()) {
            if (const Control* const control = form.Find(at->objectName().toStdString())) {
                EXPECT_EQ(control, form.ActiveControl()) << "focus of " << control->Name();
                break;
            }
        }
    }

    AnsweredMessages messages{window, [this] { Compare(); }};
    std::vector<std::pair<Control*, QWidget*>> widgets;
    std::mt19937_64 generator;
};

TEST_F(WindowMonkeyTest, EveryWidgetShowsItsControlWhateverTheUserDoes) {
    const unsigned long seed = FromEnvironment("TEPHREX_MONKEY_SEED", 1);
    std::cout << "seed " << seed << std::endl;  // flushed in case of a crash
    generator.seed(seed);
    RandomUser user(form, platform, folder, [this](std::size_t below) { return Choose(below); });
    QStringList actions;
    for (unsigned long i = FromEnvironment("TEPHREX_MONKEY_ACTIONS", 2000); i > 0; --i) {
        platform.answers.clear();
        user.PrepareAnswer();
        actions << Act();
        actions = actions.mid(std::max<qsizetype>(actions.size() - 20, 0));
        if (QApplication::activePopupWidget() == nullptr) {
            window.activateWindow();  // as a desktop does when a menu or a message closes
        }
        QApplication::processEvents();
        Compare();
        EXPECT_EQ(user.Broken(), "");
        ASSERT_FALSE(HasFailure()) << "seed " << seed << ", " << i << " before the end, after\n"
                                   << actions.join('\n').toStdString();
    }
}

}  // namespace
