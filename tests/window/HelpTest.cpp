#include <sys/stat.h>

#include <QAccessible>

#include "WindowTest.h"
#include "window/HelpText.h"
#include "window/HelpWindow.h"

TEST(HelpTextTest, ShowsATopicWithoutLinksOrImagesOrSaysWhyItCannot) {
    const TempFolder folder;
    const std::string picture = folder / "dot.png";
    QImage(1, 1, QImage::Format_RGB32).save(picture.c_str());
    WriteBytes(folder / "short", "94 ahead\n# 9 Nine\nnine\n# 94 Topic\ntext\n## 9 Part\nend\n");
    WriteBytes(folder / "long", "#  94 Topic\n" + std::string(300 << 10, '\n'));
    WriteBytes(folder / "linked", "# 94 [A *b*](file:///c)\n![d](" + picture +
                                      ") <http://e.org> <img src=\"" + picture + "\">\n");
    WriteBytes(folder / "table", "# 94 T\n\n| a | b |\n| --- | --- |\n| c | d |\n");
    const auto table = HelpDocument(QString::fromStdString(folder / "table"), 94);
    const QTextFrame* const frame = table->rootFrame()->childFrames().value(0);
    const auto format = dynamic_cast<const QTextTable&>(*frame).format();
    EXPECT_TRUE(format.borderCollapse());
    EXPECT_EQ(format.cellPadding() * 100 + format.bottomMargin(), 412);
    mkfifo((folder / "pipe").c_str(), 0600);
    struct Row {
        std::string file, text;
        int topic = 94;
    };
    const Row rows[]{
        {"short", "Topic\ntext\n9 Part\nend"},
        {"short", "The help file has no topic 4: " + folder / "short", 4},
        {"long", "Topic\nThe help file is longer than 64 KiB. The rest is not shown."},
        {"linked", "A b\nd http://e.org <img src=\"" + picture + "\">"},
        {"pipe", "The help file cannot be read: " + folder / "pipe"},
        {".", "The help file cannot be read: " + folder / "."},
        {"none", "The help file cannot be read: " + folder / "none"},
    };
    for (const auto& [file, text, topic] : rows) {
        const auto shown = HelpDocument(QString::fromStdString(folder / file), topic);
        EXPECT_EQ(shown->toPlainText().toStdString(), text);
        EXPECT_FALSE(shown->toHtml().contains("href")) << file;
        EXPECT_FALSE(shown->toHtml().contains("underline") || shown->toHtml().contains("color:#"));
        EXPECT_EQ(shown->documentMargin(), 12);
    }
}

TEST_F(WindowTest, HelpHasItsLayoutIsSearchedByKeysAndKeepsItsPlaceUntilClosed) {
    WriteBytes(folder / "help", "# 94 Top\nThe word.\n## Part\n\nA Word.\n");
    form.CD1.HelpFile = folder / "\\help";
    form.CD1.HelpContext = 94;
    const QPalette usual = QApplication::palette();
    const auto restored = qScopeGuard([usual] { QApplication::setPalette(usual); });
    QPalette faded = usual;
    faded.setColor(QPalette::Inactive, QPalette::Highlight, Qt::gray);
    faded.setColor(QPalette::Inactive, QPalette::HighlightedText, Qt::black);
    QApplication::setPalette(faded);
    window.move(900, 1500);
    HelpWindow viewer(window);
    const auto showOrQuit = [&](int command) {
        form.CD1.HelpCommand = command;
        viewer.ShowHelp(form.CD1);
    };
    showOrQuit(CommonDialog::Quit);  // without a help window
    showOrQuit(CommonDialog::ShowTopic);
    const QWidgetList windows = QApplication::topLevelWidgets();
    const auto found = std::find_if(windows.begin(), windows.end(), [](QWidget* each) {
        return each->windowTitle() == "TephrexEdit Help";
    });
    ASSERT_NE(found, windows.end());
    QWidget& help = **found;
    ASSERT_TRUE(QTest::qWaitForWindowActive(&help));
    const auto& page = *help.findChild<QTextEdit*>();
    auto& list = *help.findChild<QTreeWidget*>();
    const auto& said = *help.findChild<Notice*>();
    struct Row {
        QKeyCombination key;
        int caret;
        const char* said = "";
    };
    const Row rows[]{
        {Qt::Key_Down, 4},
        {Qt::Key_End, 13},
        {Qt::Key_PageUp, 3},
        {Qt::CTRL | Qt::Key_End, 26},
        {Qt::Key_Home, 19},
        {Qt::Key_F3, 19},  // goes to the search box
        {Qt::Key_W, 19},
        {Qt::Key_Return, 22},
        {Qt::Key_F3, 9, "Continued from the beginning"},
        {Qt::Key_F3, 22},
        {Qt::Key_Z, 22},
        {Qt::Key_Return, 22, "Not found"},
        {Qt::CTRL | Qt::Key_F, 22, "Not found"},
        {Qt::Key_P, 22},  // in place of the last word
        {Qt::SHIFT | Qt::Key_F3, 15},
        {Qt::SHIFT | Qt::Key_F3, 3},
        {Qt::SHIFT | Qt::Key_F3, 15, "Continued from the end"},
        {Qt::Key_Escape, 15, "Continued from the end"},
        {Qt::Key_Home, 14, "Continued from the end"},  // in the text
    };
    for (const Row& row : rows) {
        keyClick(QApplication::focusWidget(), row.key.key(), row.key.keyboardModifiers());
        EXPECT_EQ(page.textCursor().position(), row.caret) << "row " << &row - rows;
        EXPECT_EQ(said.isVisible() ? said.text() + said.accessibleName() : "",
                  QString(row.said).repeated(2));
    }
    for (const char* const title : {"Top", "Part"}) {
        list.setFocus();
        emit list.itemActivated(list.findItems(title, Qt::MatchExactly).first(), 0);
        EXPECT_EQ(page.textCursor().block().text(), title);
        EXPECT_TRUE(page.hasFocus());
    }
    QStringList passed;
    do {
        keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        passed += QApplication::focusWidget()->accessibleName();
    } while (!page.hasFocus());
    EXPECT_EQ(passed.join(", "), "Headings, Find, Find previous (Shift+F3), Find next (F3), Top");
    EXPECT_FALSE(list.rootIsDecorated() || list.itemsExpandable() || !list.isHeaderHidden());
    EXPECT_EQ(list.headerItem()->text(0), "Headings");
    const auto share = [&help](int width) { return width * help.fontMetrics().averageCharWidth(); };
    EXPECT_EQ(list.frameShape() + page.frameShape(), int(QFrame::NoFrame));
    EXPECT_EQ(list.indentation(), 2 * list.fontMetrics().averageCharWidth());
    EXPECT_EQ(list.horizontalScrollMode(), QAbstractItemView::ScrollPerPixel);
    EXPECT_FALSE(list.header()->stretchLastSection());
    EXPECT_EQ(list.header()->sectionResizeMode(0), QHeaderView::ResizeToContents);
    EXPECT_TRUE(page.isReadOnly() && !page.testAttribute(Qt::WA_InputMethodEnabled));
    EXPECT_FALSE(help.testAttribute(Qt::WA_QuitOnClose));
    const auto buttons = help.findChildren<QToolButton*>();
    for (const int i : {0, 1}) {
        EXPECT_TRUE(buttons[i]->autoRaise());
        EXPECT_EQ(buttons[i]->arrowType(), i ? Qt::DownArrow : Qt::UpArrow);
        EXPECT_EQ(buttons[i]->toolTip(), i ? "Find next (F3)" : "Find previous (Shift+F3)");
        buttons[i]->click();
        EXPECT_EQ(page.textCursor().position(), i ? 15 : 3);
    }
    const auto labels = help.findChildren<QLabel*>();
    QWidget* const box = help.findChild<QLineEdit*>();
    EXPECT_TRUE(labels[1]->buddy() == box && labels[1]->text() == "Find:");
    int end = -1;
    for (const QWidget* part : {(QWidget*)labels[1], box, (QWidget*)buttons[0],
                                (QWidget*)buttons[1], (QWidget*)labels[0]}) {
        EXPECT_EQ(part->x(), end + 7);
        end = part->geometry().right();
    }
    EXPECT_EQ(help.findChild<QHBoxLayout*>()->contentsMargins(), QMargins(6, 6, 6, 0));
    EXPECT_EQ(help.layout()->contentsMargins(), QMargins());
    auto& parts = *help.findChild<QSplitter*>();
    EXPECT_FALSE(parts.childrenCollapsible());
    EXPECT_EQ(help.frameGeometry().left(), window.frameGeometry().right() + 1);
    EXPECT_NEAR(help.frameGeometry().center().y(), window.frameGeometry().center().y(), 1);
    EXPECT_EQ(box->maximumWidth(), share(40));
    EXPECT_EQ(help.width(), share(132));
    EXPECT_EQ(help.height(), 42 * help.fontMetrics().lineSpacing());
    EXPECT_EQ(dynamic_cast<HelpFrame&>(help).SmallestSize(),
              QSize(share(64), 16 * help.fontMetrics().lineSpacing()));
    for (const auto role : {QPalette::Highlight, QPalette::HighlightedText})
        EXPECT_EQ(page.palette().color(QPalette::Inactive, role).rgb(), usual.color(role).rgb());
    for (const int width : {101, 103, 150}) {
        help.resize(share(width), 500);
        EXPECT_EQ(parts.orientation(), width < 102 ? Qt::Vertical : Qt::Horizontal);
        EXPECT_NEAR(parts.sizes()[0],
                    width < 102 ? 10 * help.fontMetrics().lineSpacing() : share(34), 12);
    }
    for (const auto leave : {&QWidget::showMinimized, &QWidget::show}) {
        (help.*leave)();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        viewer.ShowHelp(form.CD1);
        EXPECT_TRUE(!help.isMinimized() && QTest::qWaitForWindowActive(&help));
    }
    EXPECT_EQ(page.textCursor().block().text(), "Part") << "the place before";
    for (const auto close : {Qt::CTRL | Qt::Key_W, QKeyCombination(Qt::Key_Escape)}) {
        keyClick(&help, Qt::Key_F3, Qt::ShiftModifier);
        if (close.key() == Qt::Key_W) box->setFocus();
        keyClick(&help, close.key(), close.keyboardModifiers());
        EXPECT_TRUE(!help.isVisible() && window.isVisible());
        viewer.ShowHelp(form.CD1);
        EXPECT_TRUE(QTest::qWaitForWindowActive(&help) && !said.isVisible());
        EXPECT_TRUE(page.hasFocus() && page.textCursor().position() == 0);
    }
    EXPECT_EQ(labels[1]->width(), labels[1]->sizeHint().width()) << "beside an empty row";
    showOrQuit(CommonDialog::Quit);
    EXPECT_FALSE(help.isVisible());
    std::string lines;
    for (int i = 0; i < 99; ++i) lines += "line\n\n";
    WriteBytes(folder / "help", "# 94 Top\n" + lines + "## Part\n### Sub\n### Next\n" + lines);
    help.move(window.frameGeometry().topRight() + QPoint(500, 400));
    const QPoint chosen = help.pos();
    showOrQuit(CommonDialog::ShowTopic);
    EXPECT_EQ(help.pos(), chosen);
    const QRect room = window.screen()->availableGeometry();
    window.move(room.right() - window.width() - share(100), 300);
    help.move(window.pos());  // where it would cover the form
    showOrQuit(CommonDialog::Quit);
    showOrQuit(CommonDialog::ShowTopic);
    EXPECT_EQ(help.frameGeometry().left(), window.frameGeometry().right() + 1);
    EXPECT_EQ(help.frameGeometry().right(), room.right());
    ASSERT_EQ(list.topLevelItemCount(), 2);
    ASSERT_EQ(list.topLevelItem(1)->childCount(), 2);
    EXPECT_TRUE(list.topLevelItem(1)->isExpanded());
    emit list.itemClicked(list.topLevelItem(1)->child(1), 0);
    EXPECT_EQ(page.textCursor().block().text(), "Next");
    const QRectF block =
        page.document()->documentLayout()->blockBoundingRect(page.textCursor().block());
    EXPECT_EQ(page.verticalScrollBar()->value(), static_cast<int>(block.top()));
    const auto role = [](QObject& object) {
        return QAccessible::queryAccessibleInterface(&object)->role();
    };
    EXPECT_EQ(role(help), QAccessible::Window);
    EXPECT_EQ(role(window), QAccessible::Window);
    EXPECT_EQ(role(*labels[0]), QAccessible::Notification);
}

TEST(HelpWindowTest, OpensBesideTheFormWhereThereIsRoom) {
    const QSize wanted(700, 600);
    const QSize least(400, 200);
    struct Row {
        QRect form, screen, place;
    };
    const Row rows[]{
        {{700, 300, 500, 400}, {0, 0, 1920, 1080}, {1200, 200, 700, 600}},
        {{700, 300, 500, 400}, {0, 30, 1700, 500}, {1200, 30, 500, 500}},
        {{900, 300, 500, 400}, {0, 0, 1600, 1080}, {200, 200, 700, 600}},
        {{100, 300, 500, 400}, {0, 0, 800, 1600}, {0, 700, 700, 600}},
        {{100, 900, 500, 400}, {0, 0, 800, 1400}, {0, 300, 700, 600}},
        {{100, 100, 500, 400}, {0, 0, 800, 600}, {100, 0, 700, 600}},  // no room
    };
    for (const Row& row : rows) {
        EXPECT_EQ(PlaceBeside(row.form, row.screen, wanted, least), row.place) << &row - rows;
    }
}
