#include "window/Shortcuts.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>
#include <functional>

#include "form/RecordEdit.h"
#include "window/HeldKeys.h"
#include "window/Mirror.h"

namespace {

// A number outside the list picks nothing; Pick checks the upper end.
void PickPhase(RecordEdit& form, int number) {
    if (number >= 1) {
        form.cmbPhase.Pick(static_cast<std::size_t>(number) - 1);
    }
}

}  // namespace

void AddShortcuts(QWidget& window, RecordEdit& form, Mirror& mirror) {
    struct Row {
        QKeyCombination key;
        std::function<void()> run;
        bool repeats = false;
    };
    const Row rows[]{
        {Qt::CTRL | Qt::Key_O, [&form] { form.cmdOpen.Press(); }},
        {Qt::CTRL | Qt::Key_S, [&form] { form.Command2.Press(); }},
        {Qt::Key_F1, [&form] { form.cmdHelp.Press(); }},
        {Qt::CTRL | Qt::Key_PageUp, [&form] { PickPhase(form, form.CurPhase - 1); }, true},
        {Qt::CTRL | Qt::Key_PageDown, [&form] { PickPhase(form, form.CurPhase + 1); }, true},
    };
    const auto* const held = new HeldKeys(window);
    for (const Row& row : rows) {
        auto* const shortcut = new QShortcut(QKeySequence(row.key), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, [&mirror, held, row] {
            if (row.repeats || !held->Repeating()) {
                const Mirror::UserAction action(mirror);
                row.run();
            }
        });
    }
}
