#include "WindowTest.h"

#include "window/MessageDialogs.h"

TEST_F(WindowTest, OnlyKeysThatProduceACharacterCountAsPresses) {
    auto* const box = Find<QLineEdit>("txtWind");
    QInputMethodEvent commit;
    commit.setCommitString("7");
    const auto press = [box](Qt::Key key, Qt::KeyboardModifiers with = {}) {
        return [box, key, with] { keyClick(box, key, with); };
    };
    struct Row {
        std::function<void()> action;
        bool isPress;
        const char* text;  // of a box that showed "123" with the insertion point after the 2
    };
    const Row rows[]{
        {press(Qt::Key_5), true, "1253"},
        {press(Qt::Key_Comma), true, "12,3"},
        {press(Qt::Key_Backspace), true, "13"},
        {press(Qt::Key_Return), true, "123"},
        {press(Qt::Key_V, Qt::ControlModifier), true, "12893"},
        {press(Qt::Key_X, Qt::ControlModifier), true, "123"},
        {[&] { QApplication::sendEvent(box, &commit); }, true, "1273"},
        {[&] { box->paste(); }, false, "12893"},  // from the menu
        {press(Qt::Key_Delete), false, "12"},
        {press(Qt::Key_Backspace, Qt::ControlModifier), false, "3"},
        {press(Qt::Key_Escape), false, "123"},
        {press(Qt::Key_Left), false, "123"},
        {press(Qt::Key_Tab), false, "123"},
        {[&] { box->setText("9"); }, true, "9"},  // as assistive technologies do
    };
    QApplication::clipboard()->setText("89");
    std::string events;
    form.txtWind.KeyPress = [&events, press = form.txtWind.KeyPress] { events += 'k', press(); };
    form.txtWind.Change = [&events, change = form.txtWind.Change] { events += 'c', change(); };
    for (const Row& row : rows) {
        form.txtWind.SetText("123");
        form.Command2.SetEnabled(false);
        window.RunPendingEvents();
        box->setFocus();
        box->setCursorPosition(2);
        events.clear();
        row.action();
        window.RunPendingEvents();
        EXPECT_EQ(events.starts_with('k'), row.isPress) << events << &row - rows;
        EXPECT_EQ(Find("Command2")->isEnabled(), row.isPress) << "row " << &row - rows;
        EXPECT_EQ(form.txtWind.Text(), row.text) << "row " << &row - rows;
        EXPECT_EQ(form.txtWind.SelStart(), static_cast<std::size_t>(box->cursorPosition()));
    }
    for (const auto key : {Qt::Key_5, Qt::Key_F5}) {
        QKeyEvent event(QEvent::KeyPress, key, {}, key == Qt::Key_5 ? "5" : "");
        QApplication::sendEvent(box, &event);
        EXPECT_EQ(event.isAccepted(), key == Qt::Key_5);
    }
}

TEST_F(WindowTest, FocusSelectsAllAClickMovesTheCaretAndACorrectionPutsItAtTheEnd) {
    auto* const wind = Find<QLineEdit>("txtWind");
    auto* const part = Find<QLineEdit>("txtPart");
    for (int round = 0; round < 2; ++round) {
        mouseClick(wind, Qt::LeftButton);
        EXPECT_EQ(wind->selectedText(), "10");
        keyClick(wind, Qt::Key_Tab);
        EXPECT_EQ(part->selectedText(), "20");
        EXPECT_EQ(form.txtWind.SelLength(), 2U) << "though the widget shows it no more";
    }
    mouseClick(wind, Qt::LeftButton);
    form.txtWind.SetText("123");
    form.txtWind.Select(1, 1);
    window.RunPendingEvents();
    EXPECT_EQ(wind->selectedText(), "2");
    keyClick(wind, Qt::Key_Return);
    EXPECT_EQ(form.txtWind.SelLength(), 1U);
    for (const int place : {1, 2}) {
        form.txtWind.Select(static_cast<std::size_t>(place), 0);
        window.RunPendingEvents();
        EXPECT_EQ(wind->cursorPosition(), place);
        EXPECT_EQ(wind->selectedText(), "");
    }
    form.txtWind.SetText("10");
    mouseClick(wind, Qt::LeftButton, {}, QPoint(2, 5));
    EXPECT_EQ(form.txtWind.SelLength(), 0U);
    mouseClick(part, Qt::LeftButton);
    keyClick(part, Qt::Key_Backtab);
    keyClick(wind, Qt::Key_5);
    keyClick(wind, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(form.txtWind.Text(), "10");
    EXPECT_EQ(form.txtWind.SelLength(), 2U) << "selected again by the undo";
    keyClick(wind, Qt::Key_Tab);
    mouseClick(part, Qt::LeftButton, {}, QPoint(2, 5));
    EXPECT_EQ(part->cursorPosition(), 0);
    EXPECT_EQ(form.txtPart.SelLength(), 0U);
    QMouseEvent move(QEvent::MouseMove, {90, 5}, part->mapToGlobal(QPointF(90, 5)), Qt::NoButton,
                     Qt::LeftButton, {});
    QTest::mousePress(part, Qt::LeftButton, {}, {2, 5});
    QApplication::sendEvent(part, &move);
    QTest::mouseRelease(part, Qt::LeftButton, {}, {90, 5});
    EXPECT_EQ(form.txtPart.SelLength(), 2U) << "by a drag";
    part->home(false);
    keyClick(part, Qt::Key_5);
    EXPECT_EQ(part->text(), "50") << "the highest value instead of 520";
    EXPECT_EQ(part->cursorPosition(), 2);
    EXPECT_FALSE(part->isUndoAvailable()) << "the typed text is gone";
}

TEST_F(WindowTest, TextThatIsNotUtf8KeepsItsBytesUntilTheUserEditsIt) {
    auto* const box = Find<QLineEdit>("txtTopFile");
    const std::string old = "/P\xE9\x80\x9F\x85";
    form.txtTopFile.SetText(old);
    window.RunPendingEvents();
    EXPECT_EQ(box->text(), QString::fromUtf8("/Pé€Ÿ…"));
    box->setFocus();
    keyClick(box, Qt::Key_Return);
    EXPECT_EQ(form.txtTopFile.Text(), old);
    box->setCursorPosition(5);
    keyClick(box, Qt::Key_X);
    EXPECT_EQ(form.txtTopFile.Text(), "/Pé€Ÿx…");
}

TEST_F(WindowTest, OnlyAChoiceInTheOpenListIsAPick) {
    auto* const list = Find<QComboBox>("cmbType");
    int picks = 0;
    form.cmbType.Click = [&picks] { ++picks; };
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, 120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    for (const auto by : QList<QKeyCombination>{Qt::Key_Up, Qt::Key_Down, Qt::ALT | Qt::Key_Down}) {
        list->setFocus();
        list->lineEdit()->selectAll();
        QTest::keyClicks(list, "Ero");
        keyClick(list, Qt::Key_Return);
        QApplication::sendEvent(list, &wheel);
        keyClick(list, by.key(), by.keyboardModifiers());
        EXPECT_TRUE(list->view()->isVisible()) << by.toCombined();
        keyClick(list->view(), Qt::Key_Home);
        keyClick(list->view(), Qt::Key_Escape);
        EXPECT_FALSE(list->view()->isVisible());
        EXPECT_EQ(form.cmbType.Text(), "Ero");
        QTest::keyClicks(list, "sion\r");
        form.cmbType.SetText("Faulting");
        window.RunPendingEvents();
        Find("txtLoc")->setFocus();
        EXPECT_EQ(form.cmbType.Text(), "Faulting");
    }
    EXPECT_EQ(picks, 0);
    EXPECT_TRUE(window.isVisible()) << "Escape closes lists only";

    list->showPopup();
    EXPECT_EQ(list->view()->minimumWidth(),
              list->view()->sizeHintForColumn(0) + 2 * list->view()->frameWidth() +
                  list->view()->verticalScrollBar()->sizeHint().width());
    EXPECT_EQ(list->view()->currentIndex().row(), 7) << "the current entry";
    keyClick(list->view(), Qt::Key_Down);
    keyClick(list->view(), Qt::Key_Return);
    EXPECT_EQ(form.cmbType.Text(), "Erosion");
    list->showPopup();
    const QRect erosion = list->view()->visualRect(list->model()->index(8, 0));
    mouseClick(list->view()->viewport(), Qt::LeftButton, {}, erosion.center());
    EXPECT_EQ(picks, 2) << "picking the current entry counts too";
}

TEST_F(WindowTest, TabVisitsEachControlOnceAndTheFocusIsVisible) {
    for (Control* control : form.Controls()) control->SetEnabled(true);
    window.RunPendingEvents();
    Find("cmbPhase")->setFocus();
    QStringList passed;
    do {
        QWidget* const now = QApplication::focusWidget();
        const QImage focused = now->grab().toImage();
        passed += now->objectName();
        keyClick(now, Qt::Key_Tab);
        EXPECT_NE(now->grab().toImage(), focused) << passed.back().toStdString();
    } while (!passed.contains(QApplication::focusWidget()->objectName()));
    EXPECT_EQ(passed.join(' '),
              "cmbPhase cmbStyle chkCald chkDirected chkBurst txtMag cmbType txtLoc txtStr txtWind "
              "txtPart txtBurst txtCtop txtCbase txtDip txtErode cmdDelete cmbDown cmdAdd "
              "cmdChange Command1 Command2 cmbFlow txtLava cmdReset txtTopFile cmdOpen cmdHelp "
              "optLarge optNormal optSmall txtSlide1 txtSlide3 txtSlide5 txtSlide2 txtSlide4 "
              "txtSlide6 txtMap1 txtMap3 txtMap2 txtMap4");
}

TEST_F(WindowTest, TheLaterOfTwoOverlappingControlsIsOnTop) {
    for (const auto& [below, above] : {std::pair{"cmbFlow", "txtLava"},
                                       {"optLarge", "optNormal"},
                                       {"Label1", "cmdOpen"},
                                       {"Label3", "labPhases"}}) {
        QWidget* const top = Find(above);
        const QRect shared = Find(below)->geometry() & top->geometry();
        EXPECT_EQ(top->parentWidget()->childAt(shared.center()), top) << above;
    }
}

TEST_F(WindowTest, EveryWidgetShowsTheStateOfItsControl) {
    auto* const list = Find("cmbType");
    QImage arrow;
    for (const bool on : {false, true}) {
        form.chkCald.SetValue(on);
        for (Control* control : form.Controls()) {
            control->SetEnabled(on);
            control->SetVisible(on);
            auto* const captioned = dynamic_cast<CaptionedControl*>(control);
            if (captioned != nullptr) captioned->SetCaption(on ? "On" : "Off");
        }
        window.RunPendingEvents();
        for (const Control* control : form.Controls()) {
            const auto* const widget = Find(control->Name().data());
            if (widget == nullptr) continue;
            EXPECT_TRUE(widget->isEnabled() == on && widget->isHidden() != on) << control->Name();
            const auto* const frame = qobject_cast<const QGroupBox*>(widget);
            const QString shown = frame ? frame->title() : widget->property("text").toString();
            EXPECT_TRUE(dynamic_cast<const CaptionedControl*>(control) == nullptr ||
                        shown.startsWith(on ? "On" : "Off"))
                << control->Name();
        }
        EXPECT_EQ(Find<QAbstractButton>("chkCald")->isChecked(), on);
        const QRect end(list->width() - list->height(), 0, list->height(), list->height());
        const QImage before = std::exchange(arrow, list->grab(end).toImage());
        EXPECT_NE(arrow, before);
    }
}

TEST_F(WindowTest, AChangeOutsideAUserActionIsShownSoon) {
    for (const char* const shown : {"8", "9"}) {
        form.labPhases.SetCaption(shown);
        QApplication::processEvents();
        EXPECT_EQ(Find<QLabel>("labPhases")->text(), shown);
    }
}

TEST_F(WindowTest, AClickTurnsACheckBoxOnAndOffAndLeavesASelectedOptionSelected) {
    form.chkDirected.SetEnabled(true);
    window.RunPendingEvents();
    for (const int value : {1, 0}) {
        Find<QAbstractButton>("chkDirected")->click();
        EXPECT_EQ(form.chkDirected.Value(), value);
    }
    auto* const small = Find<QAbstractButton>("optSmall");
    small->click();
    small->click();
    EXPECT_TRUE(small->isChecked());
}

TEST_F(WindowTest, OnlyTheFirstCloseUnloads) {
    int times = 0;
    form.Unload = [&times] { ++times; };
    for (const bool byForm : {false, true}) {
        window.show();
        byForm ? window.Unload() : void(window.close());
        EXPECT_EQ(times, 1);
    }
    { const FormWindow second(form); }
    EXPECT_FALSE(form.Observer) << "of a window that is gone";
}

TEST_F(WindowTest, AMessageHasItsTextTitleAndIconAndTheFormShowsTheLatestState) {
    const std::pair<MessageIcon, QMessageBox::Icon> rows[]{
        {MessageIcon::Information, QMessageBox::Information},
        {MessageIcon::Exclamation, QMessageBox::Warning},
        {MessageIcon::Stop, QMessageBox::Critical}};
    for (const auto& [icon, shown] : rows) {
        form.labPhases.SetCaption("6");
        bool asked = false;
        QTimer::singleShot(0, &window, [&, expected = shown] {
            auto& box = dynamic_cast<QMessageBox&>(*QApplication::activeModalWidget());
            EXPECT_EQ(Find<QLabel>("labPhases")->text() + box.text(), "7A\nB");
            EXPECT_EQ(box.windowTitle(), "Title");
            EXPECT_EQ(box.icon(), expected);
            asked = true;
            box.close();
        });
        form.cmdAdd.Click = [this, said = icon] {
            form.labPhases.SetCaption("7");
            MessageDialogs(window).Show("A\r\nB", said, "Title");
        };
        keyClick(Find("cmdAdd"), Qt::Key_Return);
        EXPECT_TRUE(asked);
    }
}

TEST_F(WindowTest, TipsAppearOverTheirOwnControlsOnly) {
    const auto tipOver = [this](const char* name) {
        QHelpEvent event(QEvent::ToolTip, {3, 3}, Find(name)->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(Find(name), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tipOver("txtMag"), "Edit the fault magnitude (0-5)")
        << "a disabled control has its tip";
    tipOver("labLoc");
    EXPECT_TRUE(QTest::qWaitFor([] { return QToolTip::text().isEmpty(); }));
    QTest::mouseMove(Find("txtTopFile"), {5, 5});
    EXPECT_EQ(tipOver("txtTopFile"), "No stratigraphic file attached");
}
