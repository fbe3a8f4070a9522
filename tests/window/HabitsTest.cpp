#include "WindowTest.h"
#include "window/FileChooser.h"

TEST_F(WindowTest, KeysOfTheFormDoWhatIsEnabledAndPressNoKeyInABox) {
    Open({GoodPhase(EruptionType::Strombolian), GoodPhase(EruptionType::Plinian)});
    struct Row {
        QKeyCombination key;
        Control& control;
        Event& event;
        int times = 1, phase = 1;
    };
    const Row rows[]{
        {Qt::CTRL | Qt::Key_O, form.cmdOpen, form.cmdOpen.Click},
        {Qt::CTRL | Qt::Key_S, form.Command2, form.Command2.Click},
        {Qt::Key_F1, form.cmdHelp, form.cmdHelp.Click},
        {Qt::CTRL | Qt::Key_PageUp, form.cmbPhase, form.cmbPhase.Click, 0},
        {Qt::CTRL | Qt::Key_PageDown, form.cmbPhase, form.cmbPhase.Click},
        {Qt::CTRL | Qt::Key_PageUp, form.cmbPhase, form.cmbPhase.Click, 1, 2},
        {Qt::CTRL | Qt::Key_PageDown, form.cmbPhase, form.cmbPhase.Click, 0, 2},
        {Qt::CTRL | Qt::Key_W, form.labLoc, form.Unload, 0},
    };
    for (const Row& row : rows) {
        int times = 0;
        form.CurPhase = static_cast<Integer>(row.phase);
        row.event = [&times] { ++times; };
        for (const bool enabled : {true, false}) {
            form.Command2.SetEnabled(false);
            row.control.SetEnabled(enabled);
            keyClick(Find("txtLoc"), row.key.key(), row.key.keyboardModifiers());
        }
        EXPECT_EQ(times, row.times) << "row " << &row - rows;
        EXPECT_FALSE(form.Command2.Enabled());
    }
}

double Brightness(const QColor& color) {
    return 0.2126 * std::pow(color.redF(), 2.2) + 0.7152 * std::pow(color.greenF(), 2.2) +
           0.0722 * std::pow(color.blueF(), 2.2) + 0.05;
}

TEST_F(WindowTest, ColouredFieldsAreReadableInLightAndDark) {
    for (const int grey : {35, 239}) {
        QApplication::setPalette(QPalette(QColor(grey, grey, grey)));
        FormWindow themed(form);
        QWidgetList fields{themed.findChild<QWidget*>("labPhases")};
        for (auto* const list : themed.findChildren<QComboBox*>()) {
            fields << list->lineEdit() << list->view();
        }
        for (const QWidget* field : fields) {
            const auto expect = [&colors = field->palette()](auto text, auto back) {
                const double one = Brightness(colors.color(QPalette::Active, text));
                const double other = Brightness(colors.color(QPalette::Active, back));
                EXPECT_GE(std::max(one / other, other / one), 4.5) << text;
            };
            expect(QPalette::Text, QPalette::Base);
            expect(QPalette::WindowText, QPalette::Window);
            if (field->focusPolicy() != Qt::NoFocus)
                expect(QPalette::HighlightedText, QPalette::Highlight);
        }
    }
}

TEST_F(WindowTest, ANameGetsItsExtensionAndNoFileIsReplacedUnasked) {
    const std::string deep = folder / (std::string(150, 'a') + "/" + std::string(150, 'b') + "/");
    std::filesystem::create_directories(deep);
    WriteBytes(folder / "there.rec", "");
    WriteBytes(folder / "bare", "");
    FileChooser chooser(window);
    form.CD1.InitDir = folder / "";
    form.CD1.DefaultExt = "rec";
    struct Row {
        std::string offered, typed, chosen;
        bool opens = false;
    };
    const Row rows[]{
        {"", "there", folder / "there.rec"},
        {"", "bare", folder / "bare", true},
        {"", "there", folder / "there.rec", true},
        {"", folder / "a.txt", folder / "a.txt"},
        {deep + "a name é.rec", "", deep + "a name é.rec"},
        {"", "next", deep + "next.rec"},  // where the user last was
    };
    for (const auto& [offered, typed, chosen, opens] : rows) {
        bool asked = false;
        QTimer::singleShot(0, &window, [&, name = typed] {
            auto* const box = QApplication::activeModalWidget()->findChild<QLineEdit*>();
            EXPECT_TRUE(QTest::qWaitForWindowActive(box->window()));
            box->setFocus();  // without it the file that was offered stays the chosen one
            if (!name.empty()) box->setText(QString::fromStdString(name));
            QTimer::singleShot(0, &window, [&] {
                if (auto* const question = window.findChild<QMessageBox*>()) {
                    asked = true;
                    question->button(QMessageBox::Yes)->click();
                }
            });
            keyClick(box, Qt::Key_Return);
        });
        form.CD1.FileName = offered;
        form.CD1.Flags = opens ? CommonDialog::MustExist : CommonDialog::AskBeforeReplacing;
        EXPECT_TRUE(opens ? chooser.AskOpen(form.CD1) : chooser.AskSave(form.CD1));
        EXPECT_EQ(form.CD1.FileName, chosen);
        EXPECT_EQ(asked, typed == "there" && !opens) << typed;
    }
}
