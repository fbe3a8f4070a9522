#include <QAccessible>

#include "WindowTest.h"

TEST_F(WindowTest, AScreenReaderHearsWhereAControlBelongsAndWhatItIsFor) {
    struct Row {
        const char* control;
        QString label, description;
    };
    const Row rows[]{
        {"labRecfile", "File opened:", "Currently opened recorder file"},
        {"labPhases", "Number of phases:", "Number of recorded phases"},
        {"optLarge", "Scale:", "Set the map of this record to the large scale"},
        {"optSmall", "Scale:", "Set the map of this record to the small scale"},
        {"txtDip", "Fault dip: ", "Edit the dip direction (+/-) and slope (0 = vertical)"},
        {"txtLava", "Primary Parameters", "Edit the duration of the selected lava flow"},
    };
    for (const auto& [control, label, description] : rows) {
        const auto* const heard = QAccessible::queryAccessibleInterface(Find(control));
        const auto labels = heard->relations(QAccessible::Label);
        ASSERT_FALSE(labels.isEmpty()) << control;
        EXPECT_EQ(labels.front().first->text(QAccessible::Name), label);
        EXPECT_EQ(heard->text(QAccessible::Description), description);
    }
    EXPECT_EQ(Find("txtLava")->toolTip(), "") << "heard, and not shown";
}
