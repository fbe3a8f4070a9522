// The figures of the window that can be taken within one program. Each turn runs all events, until
// everything is painted and the toolkit has nothing left to do.

#include <QApplication>
#include <QEventLoop>
#include <QScrollArea>

#include "BareForm.h"
#include "Compare.h"
#include "Plain.h"
#include "WindowForm.h"
#include "form/Catalogue.h"
#include "window/ListBox.h"

namespace {

void RunEvents() {
    QEventLoop loop;
    while (loop.processEvents(QEventLoop::AllEvents)) {
    }
}

struct ShownTexts {
    explicit ShownTexts(const PhaseRecord& phase) {
        for (const Shown& number : NumbersOf(phase)) {
            boxes += QString::fromStdString(FormatPlainly(number));
        }
    }
    QStringList boxes;
};

void Show(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto editor = std::make_unique<WindowForm>();
    editor->Open(file.Path());
    auto* const phases = editor->window.findChild<ListBox*>("cmbPhase");
    BareForm bare(1.0 * editor->window.width() / FormWidth);
    bare.show();
    RunEvents();

    const std::array<ShownTexts, 2> texts{ShownTexts(editor->form.EditPhases[1]),
                                          ShownTexts(editor->form.EditPhases[2])};
    QStringList entries;
    for (int i = 1; i <= MaxFlows; ++i) {
        entries += QString("Flow %1 Duration").arg(i);
    }
    QComboBox* const flows = bare.findChild<QComboBox*>("cmbFlow");
    unsigned next = 0;
    Compare(
        state, {1.5},
        [&] {
            return Timed(1, [&] {
                const QStringList& shown = texts[next ^= 1U].boxes;
                for (int i = 0; i < shown.size(); ++i) {
                    bare.boxes[static_cast<std::size_t>(i)]->setText(shown[i]);
                }
                flows->clear();
                flows->addItems(entries);
                RunEvents();
            });
        },
        [&] {
            return Timed(1, [&] {
                emit phases->Picked(static_cast<int>(next));
                RunEvents();
            });
        });
}
BENCHMARK(Show)->Name("Show another phase in the window")->UseManualTime();

void Open(benchmark::State& state) {
    const RecordOnDisk small(5, 1);
    const RecordOnDisk large(MaxPhases);
    const auto quiet = std::make_unique<QuietForm>();
    const auto editor = std::make_unique<WindowForm>();
    QWidget* const page = editor->window.findChild<QScrollArea*>()->widget();  // covers the window
    Compare(
        state, {1.3},
        [&] {
            quiet->Open(small);
            return Timed(1, [&] {
                quiet->Open(large);
                page->repaint();
                RunEvents();
            });
        },
        [&] {
            editor->Open(small.Path());
            RunEvents();
            return Timed(1, [&] {
                editor->Open(large.Path());
                RunEvents();
            });
        });
}
BENCHMARK(Open)->Name("Open the largest record in the window")->UseManualTime();

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    return RunFigures(argc, argv);
}
