#include <QAccessible>

#include "WindowTest.h"

TEST_F(WindowTest, AScreenReaderFindsTheLabelAndTheDescriptionOfAControl) {
    struct Row {
        const char* control;
        QString label, description, name = {};
    };
    const Row rows[]{
        {"labRecfile", "File opened:", "Currently opened recorder file", QString(99, 'a')},
        {"labPhases", "Number of phases:", "Number of recorded phases"},
        {"optLarge", "Scale:", "Set the map of this record to the large scale", "Large"},
        {"chkDirected", "Primary Parameters", "Check to make a directed blast", "Directed"},
        {"optSmall", "Scale:", "Set the map of this record to the small scale"},
        {"txtDip", "Fault dip: ", "Edit the dip direction (+/-) and slope (0 = vertical)"},
        {"txtLava", "Primary Parameters", "Edit the duration of the selected lava flow",
         "Flow duration"},
    };
    form.labRecfile.SetCaption(std::string(99, 'a'));
    window.RunPendingEvents();
    for (const auto& [control, label, description, name] : rows) {
        const auto* const heard = QAccessible::queryAccessibleInterface(Find(control));
        const auto labels = heard->relations(QAccessible::Label);
        ASSERT_FALSE(labels.isEmpty()) << control;
        EXPECT_EQ(labels.front().first->text(QAccessible::Name), label);
        EXPECT_EQ(heard->text(QAccessible::Description), description);
        EXPECT_TRUE(name.isEmpty() || heard->text(QAccessible::Name) == name) << control;
    }
    EXPECT_EQ(Find("txtLava")->toolTip(), "") << "for screen readers only";
}

TEST_F(WindowTest, AScreenReaderReadsAndOperatesAListAndAnOption) {
    auto& list = *Find<QComboBox>("cmbType");
    auto* const heard = QAccessible::queryAccessibleInterface(&list);
    QObject* const parts[]{list.view(), list.lineEdit()};
    ASSERT_EQ(heard->childCount(), 2);
    for (const int i : {0, 1}) {
        EXPECT_EQ(heard->child(i)->object(), parts[i]);
        EXPECT_EQ(heard->indexOfChild(QAccessible::queryAccessibleInterface(parts[i])), i);
    }
    EXPECT_EQ(heard->child(2), nullptr);
    EXPECT_EQ(heard->indexOfChild(heard), -1);
    EXPECT_EQ(heard->text(QAccessible::Value), "Strombolian");
    for (auto* const named : {heard, heard->child(1)})
        EXPECT_EQ(named->text(QAccessible::Name), "Eruption Type");
    auto& actions = *heard->actionInterface();
    for (const auto& [enabled, open] : {std::pair{true, true}, {true, false}, {false, false}}) {
        form.cmbType.SetEnabled(enabled);
        window.RunPendingEvents();
        actions.doAction(actions.showMenuAction());
        EXPECT_EQ(list.view()->isVisible(), open);
        const QAccessible::State state = heard->state();
        EXPECT_TRUE(state.editable && state.hasPopup && state.expandable);
        EXPECT_EQ(bool(state.expanded), open);
        EXPECT_EQ(bool(state.collapsed), !open);
    }
    form.cmbType.SetEnabled(true);
    window.RunPendingEvents();
    for (const bool open : {false, true}) {
        if (open) list.showPopup();
        const QModelIndex entry = list.model()->index(open ? 3 : 4, 0);
        list.view()->selectionModel()->select(entry, QItemSelectionModel::ClearAndSelect);
        window.RunPendingEvents();
        EXPECT_EQ(form.cmbType.Text() == entry.data().toString().toStdString(), open);
        EXPECT_FALSE(list.view()->isVisible());
    }
    auto* const option = QAccessible::queryAccessibleInterface(Find("optSmall"));
    EXPECT_FALSE(option->state().checked);
    option->actionInterface()->doAction(option->actionInterface()->toggleAction());
    EXPECT_TRUE(option->state().checkable && option->state().checked);
    EXPECT_EQ(form.optSmall.Value(), true);
    for (auto* const part : {option, heard}) {
        part->actionInterface()->doAction(part->actionInterface()->setFocusAction());
        EXPECT_EQ(window.focusWidget(), part->object());
    }
}

TEST_F(WindowTest, AScreenReaderReadsADocumentByLinesAndSelectsInIt) {
    QTextEdit page;
    page.setPlainText("ab\n\ncd\u2028e\u00A0f");
    page.resize(400, 300);
    page.show();
    auto* const heard = QAccessible::queryAccessibleInterface(&page);
    EXPECT_EQ(heard->role(), QAccessible::Document);
    EXPECT_TRUE(heard->state().readOnly && heard->state().multiLine);
    EXPECT_TRUE(heard->state().selectableText);
    auto& text = *heard->textInterface();
    EXPECT_EQ(text.text(0, text.characterCount()), "ab\n\ncd\ne f");
    struct Row {
        int offset;
        QString before, at, after;
        QAccessible::TextBoundaryType unit = QAccessible::LineBoundary;
    };
    const Row rows[]{
        {0, "0-0 ", "0-3 ab\n", "3-4 \n"},
        {3, "0-3 ab\n", "3-4 \n", "4-7 cd\n"},
        {5, "3-4 \n", "4-7 cd\n", "7-11 e f"},
        {9, "4-7 cd\n", "7-11 e f", "10-10 "},
        {1, "0-1 a", "1-2 b", "2-3 \n", QAccessible::CharBoundary},
    };
    for (const Row& row : rows) {
        int start = 0, end = 0;
        const auto place = [&](const QString& said) {
            return QString("%1-%2 ").arg(start).arg(end) + said;
        };
        const auto said = text.textBeforeOffset(row.offset, row.unit, &start, &end);
        EXPECT_EQ(place(said), row.before);
        const auto now = text.textAtOffset(row.offset, row.unit, &start, &end);
        EXPECT_EQ(place(now), row.at);
        const auto then = text.textAfterOffset(row.offset, row.unit, &start, &end);
        EXPECT_EQ(place(then), row.after);
        const QRect letter = text.characterRect(row.offset);
        EXPECT_EQ(text.offsetAtPoint(letter.topLeft() + QPoint(1, 2)), row.offset);
        EXPECT_EQ(page.geometry().contains(letter) && letter.width() > 0, row.offset != 3);
    }
    int start = -1, end = -1;
    EXPECT_EQ(text.attributes(3, &start, &end), "");
    EXPECT_EQ(QPair(start, end), QPair(0, 10));
    for (const auto& [from, to] : {std::pair{99, 4}, {5, -1}, {-2, 5}}) {
        text.addSelection(from, to);
        text.selection(0, &start, &end);
        EXPECT_EQ(QPair(start, end), QPair(std::max(std::min(from, to), 0), from == 99 ? 10 : 5));
        EXPECT_EQ(text.selectionCount() * 10 + text.cursorPosition(), 10 + std::max(to, 0));
    }
    text.removeSelection(0);
    EXPECT_EQ(text.selectionCount() * 10 + text.cursorPosition(), 5);
    text.setSelection(0, 3, 3);
    EXPECT_EQ(text.cursorPosition(), 3);
    text.scrollToSubstring(7, 9);
    EXPECT_EQ(text.selectionCount() * 10 + text.cursorPosition(), 7);
    page.setMarkdown("| a | b |\n| --- | --- |\n");
    EXPECT_EQ(text.text(0, text.characterCount()), "\na\nb\n");
}
