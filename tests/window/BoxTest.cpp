#include <QAbstractItemView>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QWheelEvent>

#include "WindowTest.h"

TEST_F(WindowTest, OnlyKeysThatBringOrTakeACharacterCountAsPresses) {
    OpenPhase(EruptionType::Strombolian);
    auto* const box = Find<QLineEdit>("txtWind");
    const auto key = [box](Qt::Key which, Qt::KeyboardModifiers with = {}) {
        return [box, which, with] { Press(box, which, with); };
    };
    const auto commit = [box] {
        QInputMethodEvent event;
        event.setCommitString("7");
        QApplication::sendEvent(box, &event);
    };
    struct Row {
        const char* name;
        std::function<void()> act;
        bool isPress;
        const char* text;  // of a box that showed "123" with the insertion point behind the 2
    };
    const Row rows[]{
        {"digit", key(Qt::Key_5), true, "1253"},
        {"letter", key(Qt::Key_A), true, "12a3"},
        {"input method", commit, true, "1273"},
        {"backspace", key(Qt::Key_Backspace), true, "13"},
        {"enter", key(Qt::Key_Return), true, "123"},
        {"paste", key(Qt::Key_V, Qt::ControlModifier), true, "12893"},
        {"cut of nothing", key(Qt::Key_X, Qt::ControlModifier), true, "123"},
        {"delete", key(Qt::Key_Delete), false, "12"},
        {"word backspace", key(Qt::Key_Backspace, Qt::ControlModifier), false, "3"},
        {"escape", key(Qt::Key_Escape), false, "123"},
        {"arrow", key(Qt::Key_Left), false, "123"},
        {"copy", key(Qt::Key_C, Qt::ControlModifier), false, "123"},
        {"function key", key(Qt::Key_F2), false, "123"},
        {"tab", key(Qt::Key_Tab), false, "123"},
        {"paste from the menu", [box] { box->paste(); }, false, "12893"},
        {"text by a helping technology", [box] { box->setText("9"); }, false, "9"},
    };
    QApplication::clipboard()->setText("89");
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        form.txtWind.SetText("123");
        form.Command2.SetEnabled(false);
        window.RunPendingEvents();
        box->setFocus();
        box->setCursorPosition(2);
        row.act();
        EXPECT_EQ(Find("Command2")->isEnabled(), row.isPress);
        EXPECT_EQ(form.txtWind.Text(), row.text);
    }
}

TEST_F(WindowTest, ARewrittenBoxShowsTheRewriteWithTheInsertionPointBehindIt) {
    auto* const box = Find<QLineEdit>("txtSlide6");
    box->setFocus();
    box->setCursorPosition(0);
    Press(box, Qt::Key_5);
    EXPECT_EQ(box->text(), "11");
    EXPECT_EQ(box->cursorPosition(), 2);
    Press(box, Qt::Key_Backspace);
    Press(box, Qt::Key_Backspace);
    EXPECT_EQ(box->text(), "1") << "the lowest value";
}

TEST_F(WindowTest, FocusSelectsTheWholeTextAndALaterClickDoesNot) {
    OpenPhase(EruptionType::Strombolian);
    auto* const wind = Find<QLineEdit>("txtWind");
    auto* const part = Find<QLineEdit>("txtPart");
    for (int round = 0; round < 2; ++round) {
        QTest::mouseClick(wind, Qt::LeftButton);
        EXPECT_EQ(wind->selectedText(), "10");
        QTest::mouseClick(wind, Qt::LeftButton, {}, QPoint(2, 5));
        EXPECT_FALSE(wind->hasSelectedText());
        EXPECT_EQ(form.txtWind.SelLength(), 0U);
        Press(wind, Qt::Key_Tab);
        EXPECT_EQ(part->selectedText(), "20");
        EXPECT_EQ(form.txtPart.SelLength(), 2U);
    }
}

TEST_F(WindowTest, TextThatIsNoUtf8KeepsItsBytesUntilTheUserEditsIt) {
    auto* const box = Find<QLineEdit>("txtTopFile");
    const std::string old =
        "/Pel\xE9"
        "e\x85";
    form.txtTopFile.SetText(old);
    window.RunPendingEvents();
    EXPECT_EQ(box->text(), QString::fromUtf8("/Pelée…"));
    box->setFocus();
    Press(box, Qt::Key_Return);
    EXPECT_EQ(form.txtTopFile.Text(), old);
    box->setCursorPosition(5);
    Press(box, Qt::Key_X);
    EXPECT_EQ(form.txtTopFile.Text(), "/Peléxe…");
    EXPECT_EQ(form.txtTopFile.SelStart(), std::string("/Peléx").size());
}

class ListTest : public WindowTest {
protected:
    QComboBox* list = Find<QComboBox>("cmbType");
    int picks = 0;

    void SetUp() override {
        WindowTest::SetUp();
        OpenPhase(EruptionType::Strombolian);
        form.cmbType.Click = [this] { ++picks; };
    }
};

TEST_F(ListTest, NothingButAChoiceInTheOpenListIsAPick) {
    form.cmbType.SetText("Plinian");
    Find("chkBurst")->setFocus();
    form.txtMag.SetEnabled(true);
    window.RunPendingEvents();
    Press(Find("chkBurst"), Qt::Key_Tab);
    list->setFocus(Qt::TabFocusReason);
    Press(list, Qt::Key_Return);
    QWheelEvent wheel({5, 5}, {5, 5}, {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QApplication::sendEvent(list, &wheel);
    EXPECT_EQ(form.cmbType.Text(), "Plinian");
    list->lineEdit()->clear();
    QTest::keyClicks(list, "Erosion");
    Press(list, Qt::Key_Return);
    Press(list, Qt::Key_Tab);
    for (const auto key :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_F4}) {
        list->setFocus();
        Press(list, key);
        ASSERT_TRUE(list->view()->isVisible()) << key;
        Press(list->view(), Qt::Key_Down);
        Press(list->view(), Qt::Key_Escape);
        EXPECT_FALSE(list->view()->isVisible());
        EXPECT_EQ(form.cmbType.Text(), "Erosion");
        form.cmbType.SetText("Faulting");
        window.RunPendingEvents();
        Find("txtLoc")->setFocus();
        EXPECT_EQ(form.cmbType.Text(), "Faulting");
        form.cmbType.SetText("Erosion");
        window.RunPendingEvents();
    }
    EXPECT_EQ(picks, 0);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(ListTest, AClickOrEnterInTheOpenListPicks) {
    const auto click = [this](int row) {
        const QRect entry = list->view()->visualRect(list->model()->index(row, 0));
        QTest::mouseClick(list->view()->viewport(), Qt::LeftButton, {}, entry.center());
    };
    list->showPopup();
    EXPECT_EQ(list->view()->currentIndex().row(), 2) << "the entry on show";
    click(3);
    EXPECT_EQ(form.cmbType.Text(), "Plinian");
    Press(list, Qt::Key_Down);
    Press(list->view(), Qt::Key_Down);
    Press(list->view(), Qt::Key_Return);
    EXPECT_EQ(form.cmbType.Text(), "Vulcanian/Surtseyan");
    list->showPopup();
    click(4);
    EXPECT_EQ(picks, 3) << "the last one of the entry that was on show";
    form.cmbType.SetText("Select Parameters");
    window.RunPendingEvents();
    list->showPopup();
    EXPECT_FALSE(list->view()->currentIndex().isValid());
    EXPECT_EQ(form.cmbType.Text(), "Select Parameters");
}
