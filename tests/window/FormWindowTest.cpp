#include <QAbstractButton>
#include <QHelpEvent>
#include <QLabel>
#include <QStyle>
#include <QTimer>
#include <QToolTip>

#include "WindowTest.h"
#include "window/MessageDialogs.h"

TEST_F(WindowTest, TabGoesThroughTheWholeForm) {
    for (Control* control : form.Controls()) {
        control->SetEnabled(true);
    }
    window.RunPendingEvents();
    Find("cmbPhase")->setFocus();
    QStringList passed;
    for (int i = 0; i < 42; ++i) {
        passed += QApplication::focusWidget()->objectName();
        Press(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_EQ(passed.join(' '),
              "cmbPhase cmbStyle chkCald chkDirected chkBurst txtMag cmbType txtLoc txtStr txtWind "
              "txtPart txtBurst txtCtop txtCbase txtDip txtErode cmdDelete cmbDown cmdAdd "
              "cmdChange Command1 Command2 cmbFlow txtLava cmdReset txtTopFile cmdOpen cmdHelp "
              "optLarge optNormal optSmall txtSlide1 txtSlide3 txtSlide5 txtSlide2 txtSlide4 "
              "txtSlide6 txtMap1 txtMap3 txtMap2 txtMap4 cmbPhase");
}

TEST_F(WindowTest, ButtonsActOnceAndASelectedOptionStays) {
    Press(Find("cmdAdd"), Qt::Key_Return);
    Press(Find("cmdAdd"), Qt::Key_Space);
    EXPECT_EQ(form.EditPhaseCount, 2);
    auto* const small = Find<QAbstractButton>("optSmall");
    small->click();
    small->click();
    EXPECT_TRUE(small->isChecked());
    EXPECT_FALSE(Find<QAbstractButton>("optNormal")->isChecked());
    EXPECT_EQ(form.RecordScale, 4);
    OpenPhase(EruptionType::Plinian);
    Find<QAbstractButton>("chkCald")->click();
    EXPECT_EQ(form.CurrentPhase().calderaFlag, 1);
}

TEST_F(WindowTest, TheFormBehindAMessageIsUpToDate) {
    QString behind;
    QTimer::singleShot(0, &window, [&] {
        behind = Find<QLabel>("labPhases")->text();
        QApplication::activeModalWidget()->close();
    });
    const auto act = [this] {
        form.labPhases.SetCaption("7");
        MessageDialogs(window).Show("Text", MessageIcon::Stop, "Title");
    };
    form.cmdAdd.Click = act;
    Press(Find("cmdAdd"), Qt::Key_Return);
    EXPECT_EQ(behind, "7");
}

TEST_F(WindowTest, TipsStandOverTheirOwnControlsOnly) {
    const auto tipOver = [this](const char* name) {
        QToolTip::hideText();
        QHelpEvent event(QEvent::ToolTip, {3, 3}, Find(name)->mapToGlobal(QPoint(3, 3)));
        QApplication::sendEvent(Find(name), &event);
        return QToolTip::text();
    };
    EXPECT_EQ(tipOver("labLoc"), "");
    EXPECT_EQ(tipOver("txtMag"), "Edit the fault magnitude (0-5)") << "disabled, and has a tip";
    QTest::mouseMove(Find("labRecfile"), {5, 5});
    EXPECT_EQ(tipOver("labRecfile"), "Edit unsaved (new) file");
}

TEST_F(WindowTest, ClosingRaisesUnloadOnce) {
    int unloads = 0;
    form.Unload = [&unloads] { ++unloads; };
    window.close();
    window.Unload();
    EXPECT_EQ(unloads, 1);
}

// The width that a widget leaves for its text, measured on the widget as it stands.
int RoomIn(QWidget* widget, const QString& text) {
    if (auto* const list = qobject_cast<QComboBox*>(widget)) {
        return list->lineEdit()->width() - 4;
    }
    if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
        button->setText(text);
        const int used = button->sizeHint().width() - button->fontMetrics().size(0, text).width();
        return button->isCheckable() ? button->width() - used : button->width() - 4;
    }
    return widget->width() - (qobject_cast<QLineEdit*>(widget) != nullptr ? 6 : 0);
}

TEST(FormWindowSizeTest, NothingIsCutOffInAnyFont) {
    const QFont usual = QApplication::font();
    for (const int points : {6, 9, 13, 20}) {
        QApplication::setFont(QFont(usual.family(), points));
        const auto form = std::make_unique<RecordEdit>();
        FormWindow window(*form);
        window.Show();
        for (const CatalogueRow& row : Catalogue()) {
            auto* const widget = window.findChild<QWidget*>(row.name.data());
            for (const QString& text : widget == nullptr ? QStringList() : TextsToFit(row)) {
                const QSize wanted = widget->fontMetrics().size(0, text);
                EXPECT_GE(RoomIn(widget, text), wanted.width()) << row.name << points;
                EXPECT_GE(widget->height(), wanted.height()) << row.name << points;
            }
        }
    }
    QApplication::setFont(usual);
}
