#include "WindowTest.h"

TEST_F(WindowTest, ShortcutsWorkOnlyWhenEnabledAndPressNoKeyInABox) {
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
