#include "WindowTest.h"

// Sends a held key as the toolkit does: each repetition is a release and a press at the same time,
// and not all of these are marked as repeated.
void Hold(QKeyCombination key, const QString& text) {
    const auto send = [&](QEvent::Type type, ulong time, bool marked) {
        QWidget* const widget = QApplication::focusWidget();
        QKeyEvent event(type, key.key(), key.keyboardModifiers(), text, marked);
        event.setTimestamp(time);
        if (type == QEvent::KeyRelease ||
            !qt_sendShortcutOverrideEvent(widget, time, key.key(), key.keyboardModifiers(), text,
                                          marked)) {
            QApplication::sendEvent(widget, &event);
        }
    };
    for (const ulong time : {1UL, 2UL, 3UL}) {
        send(QEvent::KeyPress, time, time == 2);
        send(QEvent::KeyRelease, time + 1, time == 1);
    }
}

TEST_F(WindowTest, AChordTypesNothingAndAHeldKeyPressesAButtonOnce) {
    Open(std::vector(3, GoodPhase(EruptionType::Vulcanian)));
    form.CurPhase = 2;
    constexpr auto altGr = Qt::CTRL | Qt::ALT;
    constexpr auto keypad5 = QKeyCombination(Qt::ControlModifier | Qt::KeypadModifier, Qt::Key_5);
    constexpr auto level5 = QKeyCombination(Qt::GroupSwitchModifier, Qt::Key_5);
    struct Row {
        const char* widget;
        QKeyCombination key;
        const char* text;
        Event& event;
        int times;
        std::string shown;  // in the box
        Control* disabled = nullptr;
    };
    const Row rows[]{
        {"txtWind", Qt::ALT | Qt::Key_S, "s", form.txtWind.KeyPress, 0, "10"},
        {"txtWind", Qt::META | Qt::Key_5, "5", form.txtWind.KeyPress, 0, "10"},
        {"txtWind", Qt::ALT | Qt::Key_Backspace, "\b", form.txtWind.KeyPress, 0, "10"},
        {"txtWind", keypad5, "5", form.txtWind.KeyPress, 0, "10"},
        {"txtWind", altGr | Qt::META | Qt::Key_5, "5", form.txtWind.KeyPress, 0, "10"},
        {"txtWind", altGr | Qt::Key_5, "5", form.txtWind.KeyPress, 3, "555"},
        {"txtWind", level5, "5", form.txtWind.KeyPress, 3, "555"},
        {"txtWind", Qt::Key_Space, "\u200C", form.txtWind.KeyPress, 3, "\u200C\u200C\u200C"},
        {"cmbType", Qt::ALT | Qt::Key_S, "s", form.cmbType.Click, 0, "Vulcanian/Surtseyan"},
        {"cmbType", altGr | Qt::Key_S, "s", form.cmbType.Click, 0, "sss"},
        {"cmdAdd", Qt::Key_Return, "\r", form.cmdAdd.Click, 1, ""},
        {"cmdAdd", Qt::Key_Enter, "\r", form.cmdAdd.Click, 1, ""},
        {"cmdAdd", Qt::Key_Space, " ", form.cmdAdd.Click, 1, ""},
        {"cmdDelete", Qt::CTRL | Qt::Key_O, "\x0F", form.cmdOpen.Click, 1, ""},
        {"cmdDelete", Qt::CTRL | Qt::Key_S, "\x13", form.Command2.Click, 1, ""},
        {"cmdDelete", Qt::Key_F1, "", form.cmdHelp.Click, 1, ""},
        {"cmdDelete", Qt::CTRL | Qt::Key_PageUp, "", form.cmbPhase.Click, 3, ""},
        {"cmdDelete", Qt::CTRL | Qt::Key_PageDown, "", form.cmbPhase.Click, 3, ""},
        {"txtWind", Qt::CTRL | Qt::Key_O, "\x0F", form.cmdOpen.Click, 0, "10", &form.cmdOpen},
        {"txtWind", Qt::CTRL | Qt::Key_S, "\x13", form.Command2.Click, 0, "10", &form.Command2},
        {"txtWind", Qt::Key_F1, "", form.cmdHelp.Click, 0, "10", &form.cmdHelp},
        {"txtWind", Qt::CTRL | Qt::Key_PageUp, "", form.cmbPhase.Click, 0, "10", &form.cmbPhase},
        {"txtWind", Qt::CTRL | Qt::Key_PageDown, "", form.cmbPhase.Click, 0, "10", &form.cmbPhase},
        {"txtWind", Qt::CTRL | Qt::Key_W, "\x17", form.Unload, 0, "10"},
        {"chkDirected", Qt::Key_Space, " ", form.chkDirected.Click, 1, ""},
        {"optSmall", Qt::Key_Space, " ", form.optSmall.Click, 1, ""},
    };
    int times = 0;
    for (const Row& row : rows) {
        form.txtWind.SetText("10");
        form.cmbType.SetText("Vulcanian/Surtseyan");
        form.Command2.SetEnabled(true);
        if (row.disabled) row.disabled->SetEnabled(false);
        window.RunPendingEvents();
        row.event = [&times] { ++times; };
        times = 0;
        Find(row.widget)->setFocus();
        const auto* const list = Find<QComboBox>(row.widget);
        auto* const box = list ? list->lineEdit() : Find<QLineEdit>(row.widget);
        if (box) box->selectAll();
        Hold(row.key, row.text);
        if (row.disabled) row.disabled->SetEnabled(true);
        EXPECT_EQ(times, row.times) << "row " << &row - rows;
        EXPECT_EQ(box ? box->text().toStdString() : "", row.shown) << "row " << &row - rows;
    }
    form.Command2.SetEnabled(false);
    Find("txtWind")->setFocus();
    for (const auto key : {Qt::Key_O, Qt::Key_S, Qt::Key_W, Qt::Key_PageUp, Qt::Key_PageDown}) {
        Hold(Qt::CTRL | key, "");
    }
    EXPECT_FALSE(form.Command2.Enabled()) << "a shortcut is no key press in a box";
    times = 1;
    for (const int phase : {1, 3}) {
        form.CurPhase = static_cast<Integer>(phase);
        Hold(Qt::CTRL | (phase == 1 ? Qt::Key_PageUp : Qt::Key_PageDown), "");
        EXPECT_EQ(times, 1) << "beyond the list";
    }
    form.cmdOpen.Click = [this] { Find("txtWind")->setFocus(); };  // as a dialog does
    Find("cmdOpen")->setFocus();
    Hold(Qt::Key_Space, " ");
    EXPECT_EQ(form.txtWind.Text(), "10");
}

TEST_F(WindowTest, TheFocusOfADisabledControlGoesToAHarmlessOne) {
    struct Row {
        const char* used;
        const char* focused;
        std::vector<Control*> disabled;
        const char* next;
        bool loading = false;
    };
    const Row rows[]{
        {nullptr, "Command2", {&form.Command2}, "cmbPhase"},
        {"txtTopFile", "Command2", {&form.Command2}, "txtTopFile"},  // by a click
        {"txtDip", "Command2", {&form.Command2}, "txtDip"},          // from the menu
        {"txtWind", "Command2", {&form.Command2}, "txtWind"},
        {nullptr, "cmdDelete", {&form.cmdDelete, &form.txtWind}, "cmbPhase"},
        {"txtWind", "txtWind", {&form.txtWind}, "cmbPhase"},
        {"txtWind", "cmbPhase", {&form.cmbPhase, &form.cmdAdd, &form.txtWind}, "cmdHelp"},
        {nullptr, "cmbPhase", {&form.cmbPhase}, "cmbStyle", true},
    };
    for (const Row& row : rows) {
        for (Control* control : form.Controls()) control->SetEnabled(true);
        window.RunPendingEvents();
        if (row.used != nullptr) {
            QApplication::clipboard()->setText("5");
            row.used == rows[1].used   ? mouseClick(Find(row.used), Qt::LeftButton)
            : row.used == rows[2].used ? Find<QLineEdit>(row.used)->paste()
                                       : keyClick(Find(row.used), Qt::Key_5);
        }
        for (const char* passed : {"txtPart", row.focused}) {
            Find(passed)->setFocus(Qt::TabFocusReason);
        }
        for (Control* control : row.disabled) control->SetEnabled(false);
        window.setUpdatesEnabled(!row.loading);
        window.RunPendingEvents();
        EXPECT_EQ(QApplication::focusWidget()->objectName(), row.next) << "row " << &row - rows;
        EXPECT_EQ(form.ActiveControl()->Name(), row.next);
    }
}

TEST_F(WindowTest, ArrowKeysCycleThroughTheScales) {
    Find("optNormal")->setFocus();
    for (const auto& [key, chosen] :
         std::initializer_list<std::pair<Qt::Key, const char*>>{{Qt::Key_Right, "optSmall"},
                                                                {Qt::Key_Down, "optLarge"},
                                                                {Qt::Key_Left, "optSmall"},
                                                                {Qt::Key_Up, "optNormal"}}) {
        keyClick(QApplication::focusWidget(), key);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), chosen);
        for (const OptionButton* option : form.scaleOptions) {
            const bool checked = Find<QAbstractButton>(option->Name().data())->isChecked();
            EXPECT_EQ(checked, option->Name() == chosen) << option->Name();
        }
    }
}

TEST_F(WindowTest, DroppedTextIsAnEditWithoutAKeyAndADroppedFileIsIgnored) {
    for (const bool file : {false, true}) {
        for (QLineEdit* box :
             {Find<QLineEdit>("txtWind"), Find<QComboBox>("cmbType")->lineEdit()}) {
            box->setText("10");
            form.Command2.SetEnabled(false);
            QMimeData dragged;
            dragged.setText("5");
            if (file) dragged.setUrls({QUrl::fromLocalFile("/tmp/5")});
            QDragEnterEvent enter({1, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QDropEvent drop({1, 5}, Qt::CopyAction, &dragged, Qt::LeftButton, {});
            QApplication::sendEvent(box, &enter);
            QApplication::sendEvent(box, &drop);
            EXPECT_EQ(enter.isAccepted(), !file);
            EXPECT_EQ(box->text().contains('5'), !file) << box->text().toStdString();
            EXPECT_FALSE(form.Command2.Enabled());
        }
    }
}

TEST_F(WindowTest, ATypedNumberIsShownSavedAndReadBackInEveryLocale) {
    struct Row {
        const char* locale;
        const char* typed;
        const char* shown;
        bool byMethod = false;  // from an input method, not from keys
    };
    const Row rows[]{
        {"C", "12.75", "12.75"},
        {"de_DE", "12,75", "12,75"},
        {"fr_FR", "12,75", "12,75"},
        {"tr_TR", "12,75", "12,75"},
        {"hi_IN", "12.75", "12.75"},
        {"ja_JP", "12.75", "12.75"},
        {"ar_EG", "12.75", "12\u066B75"},
        {"ar_EG", "12,75", "12\u066B75"},
        {"fa_IR", "12.75", "12\u066B75"},
        {"ar_EG", "12\u066B75", "12\u066B75"},
        {"fa_IR", "12,75", "12\u066B75", true},
    };
    std::string first;
    for (const auto& [locale, typed, shown, byMethod] : rows) {
        form.separators = {QLocale(locale).decimalPoint().toStdString(),
                           QLocale(locale).groupSeparator().toStdString()};
        platform.answers = {TEPHREX_DATA "/TephrexDemo.rec", folder / "saved.rec",
                            folder / "saved.rec"};
        form.cmdOpen.Press();
        window.RunPendingEvents();
        auto* const box = Find<QLineEdit>("txtLoc");
        box->setFocus();
        box->selectAll();
        for (const QChar character : QString(typed)) {
            QInputMethodEvent commit;
            commit.setCommitString(character);
            byMethod
                ? void(QApplication::sendEvent(box, &commit))
                : QTest::sendKeyEvent(QTest::Click, box, Qt::Key_unknown, QString(character), {});
        }
        EXPECT_EQ(box->text().toStdString(), shown) << locale;
        form.Command2.Press();
        const std::string saved = ReadBytes(folder / "saved.rec");
        EXPECT_NE(saved.find("\n12.75,"), std::string::npos) << locale;
        EXPECT_TRUE(std::exchange(first, saved) == saved || locale == rows->locale) << locale;
        form.cmdOpen.Press();
        window.RunPendingEvents();
        EXPECT_EQ(box->text().toStdString(), shown) << locale;
    }
    auto* const path = Find<QLineEdit>("txtTopFile");
    mouseClick(path, Qt::LeftButton);
    keyClick(path, Qt::Key_Period);
    EXPECT_EQ(path->text(), ".") << "not a box for numbers";
}
