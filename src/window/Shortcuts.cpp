#include "window/Shortcuts.h"

#include <QApplication>
#include <QKeyEvent>
#include <QKeySequence>
#include <QShortcut>
#include <QWidget>
#include <functional>

#include "form/RecordEdit.h"
#include "window/Mirror.h"

namespace {

// Past the ends of the list there is nothing to pick.
void PickPhase(RecordEdit& form, int number) {
    if (number >= 1) {
        form.cmbPhase.Pick(static_cast<std::size_t>(number) - 1);
    }
}

// The toolkit presses a button again with each repetition of Enter, in a dialog that has just come
// up too: a file name that was offered would be accepted unseen. It minds a held Space by itself.
class HeldEnter : public QObject {
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() != QEvent::KeyPress) {
            return QObject::eventFilter(watched, event);
        }
        const auto& press = static_cast<const QKeyEvent&>(*event);
        return press.isAutoRepeat() &&
               (press.key() == Qt::Key_Return || press.key() == Qt::Key_Enter);
    }
};

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
    qApp->installEventFilter(new HeldEnter(&window));
    for (const Row& row : rows) {
        auto* const shortcut = new QShortcut(QKeySequence(row.key), &window);
        shortcut->setAutoRepeat(row.repeats);
        QObject::connect(shortcut, &QShortcut::activated, &window, [&mirror, run = row.run] {
            const Mirror::UserAction action(mirror);
            run();
        });
    }
}
