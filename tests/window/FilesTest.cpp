#include <unistd.h>

#include "WindowTest.h"
#include "window/FileChooser.h"
#include "window/ScreenText.h"

class FilesTest : public WindowTest {
protected:
    FileChooser chooser{window};
    std::string question;  // or refusal of the last dialog; empty if there was none
    QString left;          // in the name box at the end

    /// The name chosen in a dialog; empty if it was refused. The dialog opens with the offered
    /// name. A typed name, if any, is entered after one that is too long is refused, which leaves
    /// the button enabled. Questions are answered with Yes.
    std::string Choose(bool opens, const std::string& offered, const std::string& typed = {}) {
        QTimer::singleShot(0, &window, [&] {
            auto* const dialog = QApplication::activeModalWidget();
            auto* const box = dialog->findChild<QLineEdit*>();
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
            EXPECT_EQ(box->selectedText(), box->text());
            box->setFocus();
            if (!typed.empty()) {
                box->setText(QString(256, 'x'));
                EXPECT_NE(QuestionAfter([&] { Button(*dialog)->click(); }), "");
                box->setText(QString::fromStdString(typed));
                EXPECT_EQ(box->text(), ToScreen(typed));
            }
            question = QuestionAfter([&] { keyClick(box, Qt::Key_Return); });
            left = box->text();
            dialog->close();
        });
        form.CD1.FileName = offered;
        form.CD1.Flags = opens ? CommonDialog::MustExist : CommonDialog::AskBeforeReplacing;
        const bool chosen = opens ? chooser.AskOpen(form.CD1) : chooser.AskSave(form.CD1);
        return chosen ? form.CD1.FileName : "";
    }

    /// The Open or Save button.
    static QAbstractButton* Button(const QWidget& dialog) {
        auto* const buttons = dialog.findChild<QDialogButtonBox*>();
        auto* const open = buttons->button(QDialogButtonBox::Open);
        return open ? open : buttons->button(QDialogButtonBox::Save);
    }

    /// What the dialog asks, or refuses, because of the action; empty if nothing.
    template <class Action>
    std::string QuestionAfter(Action action) {
        std::string asked;
        QTimer::singleShot(0, &window, [&] {
            if (auto* const box = window.findChild<QMessageBox*>()) {
                const auto* const label = box->findChild<QLabel*>("qt_msgbox_label");
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
                asked = label->text().remove(QChar(0x200B)).toStdString();
                const auto yes = box->standardButtons().testFlag(QMessageBox::Yes);
                box->button(yes ? QMessageBox::Yes : QMessageBox::Ok)->click();
            }
        });
        action();
        return asked;
    }
};

TEST_F(FilesTest, AnyNameIsShownOnOneLineAndChosenByteForByte) {
    form.CD1.InitDir = folder / "";
    form.CD1.DefaultExt = "rec";
    std::filesystem::create_directories(folder / "b.rec");
    for (const std::string& name : std::vector<std::string>{
             "a\"b.rec", "\"a\" \"b.rec\".rec", "two\nlines.rec", "\nfirst.rec", " blanks .rec ",
             "a|b%1*?.rec", "~root.rec", "~.rec", "\\back\\slash.rec", "-rf.rec", "$HOME.rec",
             ":colon.rec", "<img src=evil.png>.rec",
             "c\r\t\x1b\x7f\u0085\u2028\u202E\u2066\u2069\u240A\U0001F30B.rec", "&amp;.rec",
             "#?a=b.rec", std::string(251, 'n') + ".rec", std::string(255, 'n')}) {
        const std::string path = folder / name;
        EXPECT_EQ(Choose(false, path), path);
        EXPECT_EQ(question, "");
        const std::string shown = ToScreen(name).toStdString();
        EXPECT_EQ(Choose(true, "", name), "") << "does not exist yet";
        EXPECT_EQ(question,
                  shown + "\nFile not found.\nPlease verify the correct file name was given.");
        WriteBytes(path, "");
        EXPECT_EQ(Choose(true, path), path);
        EXPECT_EQ(Choose(true, "", name), path);
        EXPECT_EQ(Choose(false, path), path);
        EXPECT_EQ(question, shown + " already exists.\nDo you want to replace it?");
        const QString letters = ToScreen(name);
        for (const QChar letter : letters) {
            EXPECT_NE(letter.category(), QChar::Other_Control);
            EXPECT_FALSE(QStringView(u"\u2028\u202E\u2066\u2069").contains(letter));
        }
        EXPECT_EQ(FromScreen(letters), name);
    }
}

TEST_F(FilesTest, ANameGetsItsExtensionAndNoFileIsReplacedWithoutAQuestion) {
    const std::string deep = folder / (std::string(150, 'a') + "/" + std::string(150, 'b') + "/");
    std::filesystem::create_directories(deep);
    std::filesystem::create_symlink(deep, folder / "link");
    const std::string home = QDir::homePath().toStdString();
    WriteBytes(folder / "there.rec", "");
    WriteBytes(folder / "bare", "");
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
        {folder / "bare", "", folder / "bare"},  // an offered name is kept
        {"", "bare", folder / "bare.rec"},
        {"", "eruption v1.2", folder / "eruption v1.2.rec"},
        {"", "a.REC", folder / "a.REC"},
        {"", "a.unheard-of", folder / "a.unheard-of.rec"},
        {"", "./b/../a.txt", folder / "a.txt"},
        {"", std::string(256, 'n'), ""},  // refused
        {"", "link/../b", folder / (std::string(150, 'a') + "/b.rec")},
        {"", "~", ""},  // a folder
        {"", "~/no", home + "/no.rec"},
        {deep + "a name é.rec", "", deep + "a name é.rec"},
        {"", "next", deep + "next.rec"},  // in the folder of the last choice
    };
    for (const auto& [offered, typed, chosen, opens] : rows) {
        EXPECT_EQ(Choose(opens, offered, typed), chosen) << typed;
        EXPECT_EQ(left.isEmpty(), typed == "~");
        const bool asks = typed.size() > 255 || (!opens && std::filesystem::exists(chosen));
        EXPECT_EQ(!question.empty(), asks) << typed;
        EXPECT_TRUE(typed.size() <= 255 || question == typed + "\nNo file can have this name.");
    }
}

TEST_F(FilesTest, AQuestionAskedByTheToolkitShowsANameOnOneLine) {
    for (const char* const asked : {"'%1' is write protected.\nDo you want to delete it anyway?",
                                    "Are you sure you want to delete '%1'?", "What is '%1'?"}) {
        QLabel label(QString(asked).arg("a\nb"), &window);
        label.ensurePolished();
        const bool known = asked[0] != 'W';
        EXPECT_EQ(label.text(), QString(asked).arg(known ? ToScreen("a\nb") : "a\nb"));
        EXPECT_EQ(label.textFormat(), Qt::PlainText);
    }
}

TEST_F(FilesTest, AReferenceKeepsItsControlCharactersWhileItIsEdited) {
    auto* const box = Find<QLineEdit>("txtTopFile");
    const std::string reference = "/two\nlines\u2028\u240A\U0001F30B\u0085.str";
    form.txtTopFile.SetText(reference);
    form.labRecfile.SetCaption(reference);
    window.RunPendingEvents();
    box->setFocus();
    const QString shown = box->text();
    EXPECT_EQ(shown, Find<QLabel>("labRecfile")->text());
    EXPECT_FALSE(shown.contains('\n') || shown.contains(QChar::LineSeparator))
        << "would cut the text off";
    form.labRecfile.SetCaption(std::string(150, 'a') + reference);
    window.RunPendingEvents();
    EXPECT_TRUE(Find<QLabel>("labRecfile")->text().endsWith(shown)) << "cut off at the beginning";
    for (const auto key : {Qt::Key_End, Qt::Key_X}) keyClick(box, key);
    EXPECT_EQ(form.txtTopFile.Text(), reference + "x");
    box->setCursorPosition(5);
    for (const auto key : {Qt::Key_Backspace, Qt::Key_Backspace}) keyClick(box, key);
    EXPECT_EQ(form.txtTopFile.Text(), "/twlines\u2028\u240A\U0001F30B\u0085.strx");
    for (const auto key : {Qt::Key_Z, Qt::Key_A, Qt::Key_X, Qt::Key_A, Qt::Key_V}) {
        keyClick(box, key, Qt::ControlModifier);
    }
    EXPECT_EQ(form.txtTopFile.Text(), reference + "x");
    EXPECT_EQ(box->text(), shown + "x");
}

TEST(NameInMessageTest, ALongNameMayBreakBetweenItsLetters) {
    const auto name = [](int length) { return QString(length, 'n'); };
    EXPECT_EQ(NameInMessage(name(60)), name(60));
    EXPECT_EQ(NameInMessage(name(121)), name(60) + u'\u200B' + name(60) + u'\u200B' + name(1));
    EXPECT_EQ(NameInMessage(name(60) + u'\u0301' + name(61)),
              name(60) + u'\u0301' + u'\u200B' + name(60) + u'\u200B' + name(1));
}

TEST_F(FilesTest, ADialogShowsWholeNamesOnOneLineAndEntersASelectedFolder) {
    std::filesystem::create_directories(folder / "<b>fol\nder");
    WriteBytes(folder / (std::string(30, 'n') + ".rec"), "");
    QTimer::singleShot(0, &window, [this] {
        auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        EXPECT_EQ(dialog->windowTitle(), "Which?");
        QAbstractItemView* const list = dialog->findChild<QTreeView*>();
        const QSize roomy(140 * dialog->fontMetrics().averageCharWidth(),
                          30 * dialog->fontMetrics().height());
        EXPECT_EQ(dialog->size(), roomy.boundedTo(dialog->screen()->availableSize()));
        EXPECT_EQ(dialog->nameFilters().join(", "), "Some (*.rec *.REC), All files (*)");
        EXPECT_EQ(dialog->selectedNameFilter(), "All files (*)");
        dialog->setSidebarUrls({QUrl::fromLocalFile(dialog->directory().filePath("<b>fol\nder"))});
        const auto* const places = dialog->findChild<QListView*>("sidebar")->model();
        EXPECT_EQ(places->index(0, 0).data().toString(), ToScreen("<b>fol\nder"));
        EXPECT_FALSE(places->index(0, 0).data(Qt::ToolTipRole).toString().contains('\n'));
        for (QAbstractItemView* const view :
             {dialog->findChild<QLineEdit*>()->completer()->popup(), list,
              static_cast<QAbstractItemView*>(dialog->findChild<QListView*>("listView"))}) {
            const auto& names = dynamic_cast<QStyledItemDelegate&>(*view->itemDelegate());
            EXPECT_EQ(names.displayText("a\nb", QLocale()), ToScreen("a\nb"));
            QStringListModel model({"a\nb"});
            QLineEdit editor;
            names.setEditorData(&editor, model.index(0));
            EXPECT_EQ(editor.text(), ToScreen("a\nb"));
            editor.setText(ToScreen("c\nd"));
            names.setModelData(&editor, &model, model.index(0));
            EXPECT_EQ(model.stringList().first(), "c\nd");
        }
        const auto* const header = dialog->findChild<QHeaderView*>();
        EXPECT_TRUE(QTest::qWaitFor([=] {
            QList<int> cut;
            for (int i = 0; i < header->count(); ++i) {
                if (header->sectionSize(i) < list->sizeHintForColumn(i)) cut += i;
            }
            return list->model()->rowCount(list->rootIndex()) == 3 && cut.isEmpty();
        }));
        EXPECT_EQ(header->length(), list->viewport()->width());
        dialog->resize(dialog->width() + 50, 500);
        EXPECT_EQ(header->length(), list->viewport()->width());
        dialog->resize(1, 500);
        EXPECT_EQ(header->sectionSize(0), list->viewport()->width() / 3);
        dialog->resize(900, 500);
        auto* const box = dialog->findChild<QLineEdit*>();
        const QModelIndex any = list->model()->index(0, 0, list->rootIndex());
        const QModelIndex inner = list->model()->match(any, Qt::DisplayRole, "<b>fol").value(0);
        box->setText("ab");
        box->setCursorPosition(1);
        box->insert("\u2028");
        EXPECT_EQ(box->cursorPosition(), 2);
        box->clear();
        const auto select = [&] {
            mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(inner).center());
        };
        select();
        keyClick(box, 'x');
        EXPECT_NE(QuestionAfter([&] { mouseClick(Button(*dialog), Qt::LeftButton); }), "");
        select();
        mouseClick(Button(*dialog), Qt::LeftButton);
        const QString path = dialog->findChild<QComboBox*>("lookInCombo")->currentText();
        EXPECT_EQ(WithoutStandIns(path), dialog->directory().path());
        EXPECT_TRUE(path.contains("<b>fol") && !path.contains('\n')) << path.toStdString();
        QToolTip::showText({}, path);
        for (const QWidget* tip : QApplication::topLevelWidgets()) {
            if (auto* const label = qobject_cast<const QLabel*>(tip)) {
                EXPECT_EQ(label->textFormat(), Qt::PlainText);
            }
        }
        dialog->close();
    });
    form.CD1.DialogTitle = "Which?";
    form.CD1.Flags = CommonDialog::MustExist;
    form.CD1.InitDir = folder / "";
    form.CD1.FileName.clear();
    form.CD1.Filter = "Some (*.rec)|*.rec;*.REC|All files|*";
    form.CD1.FilterIndex = 2;
    EXPECT_FALSE(chooser.AskOpen(form.CD1));
}

TEST_F(FilesTest, AfterADialogFocusAndSelectionAreAsBeforeWithoutAnEvent) {
    auto* const box = Find<QLineEdit>("txtWind");
    WriteBytes(folder / "there.rec", "");
    box->setFocus();
    box->setSelection(1, 1);
    int events = 0;
    form.txtWind.GotFocus = form.txtWind.Change = form.txtWind.KeyPress = [&] { ++events; };
    for (int round = 0; round < 3; ++round) {
        EXPECT_NE(Choose(false, folder / "there.rec"), "");
        EXPECT_NE(question, "");
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_EQ(QApplication::focusWidget(), box);
        EXPECT_EQ(box->selectedText(), "0");
        EXPECT_EQ(events, 0);
    }
}

// Runs as a user other than root, since root may write in any folder.
class NotRoot {
public:
    NotRoot() { EXPECT_EQ(was == 0 ? setresuid(65534, 65534, 0) : 0, 0); }
    ~NotRoot() { EXPECT_EQ(setresuid(was, was, was), 0); }

private:
    const uid_t was = geteuid();
};

TEST_F(FilesTest, ADialogOpensInTheFirstUsableFolder) {
    namespace fs = std::filesystem;
    const std::string closed = folder / "closed", home = folder / "home";
    const std::string documents = home + "/Documents";
    for (const std::string& made : {closed, home, documents}) fs::create_directories(made);
    for (const auto& [path, mode] : {std::pair{folder / "", 0777}, {closed, 0555}, {home, 0777}}) {
        fs::permissions(path, fs::perms(mode));
    }
    fs::permissions(documents, fs::perms(0777));
    const auto restored = qScopeGuard([old = qgetenv("HOME")] { qputenv("HOME", old); });
    qputenv("HOME", QByteArray::fromStdString(home));
    struct Row {
        std::string offered, initial, start;
        bool opens = false;
    };
    const Row rows[]{
        {closed + "/a.rec", folder / "", closed},
        {"a.rec", closed, closed, true},
        {"a.rec", closed, documents},
        {folder / "gone/a.rec", closed + "/", documents},
        {"tests/a.rec", "tests", documents},  // never relative to the working directory
        {"", folder / "gone", documents, true},
    };
    const NotRoot user;
    for (const auto& [offered, initial, start, opens] : rows) {
        form.CD1.InitDir = initial;
        form.CD1.FileName = offered;
        QString shown;
        QTimer::singleShot(0, &window, [&shown] {
            auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            shown = dialog->directory().path();
            dialog->reject();
        });
        EXPECT_FALSE(opens ? chooser.AskOpen(form.CD1) : chooser.AskSave(form.CD1));
        EXPECT_EQ(shown.toStdString(), start) << offered << ", " << initial;
    }
}
