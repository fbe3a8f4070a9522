// The figures of whole programs: how soon they are on the screen and how much memory they take.
// Needs an X display that nothing else uses. Does not link the toolkit: a program's peak memory is
// at least that of the program that starts it.

#include <cstdlib>

#include "Compare.h"
#include "Records.h"
#include "Screen.h"

namespace {

const Command Bare{TEPHREX_PROGRAMS "/bare_form"};
const Command BareToEnd{TEPHREX_PROGRAMS "/bare_form_exit"};
const Command Editor{TEPHREX_EDITOR};
const Command EditorToEnd{TEPHREX_PROGRAMS "/editor_exit"};
const std::string Open = TEPHREX_PROGRAMS "/open_record";
const std::string OpenToEnd = TEPHREX_PROGRAMS "/open_record_exit";

void UsePlatform(const char* platform) { setenv("QT_QPA_PLATFORM", platform, 1); }

void StartOffscreen(benchmark::State& state) {
    UsePlatform("offscreen");
    Compare(
        state, {1.2}, [] { return RunToEnd(BareToEnd).processorSeconds; },
        [] { return RunToEnd(EditorToEnd).processorSeconds; });
}
BENCHMARK(StartOffscreen)->Name("Start, offscreen, processor time")->UseManualTime();

void StartOnScreen(benchmark::State& state) {
    UsePlatform("xcb");
    Screen screen;
    Compare(
        state, {1.2}, [&] { return screen.SecondsToLastChange(Bare); },
        [&] { return screen.SecondsToLastChange(Editor); });
}
BENCHMARK(StartOnScreen)->Name("Start, on the screen")->UseManualTime();

void OpenOnScreen(benchmark::State& state) {
    UsePlatform("xcb");
    const RecordOnDisk record(MaxPhases);
    const Command featherpad{"featherpad", "--standalone", record.Path()};
    const Command open{Open, record.Path()};
    Screen screen;
    Compare(
        state, {0.3}, [&] { return screen.SecondsToLastChange(featherpad); },
        [&] { return screen.SecondsToLastChange(open); });
}
BENCHMARK(OpenOnScreen)->Name("Largest record on the screen, cold start")->UseManualTime();

void MemoryAtStart(benchmark::State& state) {
    UsePlatform("xcb");
    Compare(
        state, {2, 0, Unit::Megabytes}, [] { return RunToEnd(BareToEnd).peakMegabytes; },
        [] { return RunToEnd(EditorToEnd).peakMegabytes; });
}
BENCHMARK(MemoryAtStart)->Name("Peak memory after start")->UseManualTime();

void MemoryWithRecord(benchmark::State& state) {
    UsePlatform("xcb");
    const RecordOnDisk record(MaxPhases);
    const Command open{OpenToEnd, record.Path()};
    Compare(
        state, {4, 0, Unit::Megabytes}, [] { return RunToEnd({OpenToEnd}).peakMegabytes; },
        [&] { return RunToEnd(open).peakMegabytes; });
}
BENCHMARK(MemoryWithRecord)->Name("Peak memory with the largest record")->UseManualTime();

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
