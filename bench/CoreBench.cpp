// The figures of the core: everything that the editor does except for the window.

#include <cstring>

#include "Compare.h"
#include "Plain.h"
#include "Records.h"
#include "display/Limits.h"
#include "display/ShowData.h"
#include "editing/PhaseList.h"
#include "record/RecordFile.h"

namespace {

void Read(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const std::string bytes = file.Bytes();
    const auto record = std::make_unique<EditorState>();
    const auto plain = std::make_unique<EditorState>();
    Compare(
        state, {1.2}, [&] { return Timed(1, [&] { ReadPlainly(bytes, *plain); }); },
        [&] { return Timed(1, [&] { ReadRecordFile(file.Path(), *record); }); });
    if (record->LoadedPhases != plain->LoadedPhases || record->LoadedFlows != plain->LoadedFlows) {
        state.SkipWithError("The reference reads another record");
    }
}
BENCHMARK(Read)->Name("Read the largest record")->UseManualTime();

void Write(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const RecordOnDisk plain(MaxPhases);
    const auto record = RecordOf(MaxPhases);
    std::vector<char> buffer(2 * file.Bytes().size());
    Compare(
        state, {1.3},
        [&] { return Timed(1, [&] { WritePlainly(plain.Path(), *record, buffer); }); },
        [&] { return Timed(1, [&] { WriteRecordFile(file.Path(), *record); }); });
    if (file.Bytes() != plain.Bytes()) {
        state.SkipWithError("The reference writes another file");
    }
}
BENCHMARK(Write)->Name("Write it")->UseManualTime();

void Open(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto record = std::make_unique<EditorState>();
    const auto quiet = std::make_unique<QuietForm>();
    Compare(
        state, {1.5}, [&] { return Timed(1, [&] { ReadRecordFile(file.Path(), *record); }); },
        [&] { return Timed(1, [&] { quiet->Open(file); }); });
}
BENCHMARK(Open)->Name("Open it in the form, against reading it")->UseManualTime();

bool AllPass(EditorState& record) {
    for (int i = 1; i <= record.LoadedPhaseCount; ++i) {
        if (FirstFault(record.LoadedPhases[i], record.LoadedFlows[i], record.RecordScale)) {
            return false;
        }
    }
    return true;
}

void Judge(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto record = std::make_unique<EditorState>();
    bool passed = true;
    Compare(
        state, {0.1}, [&] { return Timed(1, [&] { ReadRecordFile(file.Path(), *record); }); },
        [&] { return Timed(1, [&] { passed = passed && AllPass(*record); }); });
    if (!passed) {
        state.SkipWithError("A phase does not pass");
    }
}
BENCHMARK(Judge)->Name("Judge all phases, against reading them")->UseManualTime();

void Show(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto quiet = std::make_unique<QuietForm>();
    quiet->Open(file);
    std::array<ShownPhase, 2> numbers{NumbersOf(quiet->form.EditPhases[1]),
                                      NumbersOf(quiet->form.EditPhases[2])};
    std::array<std::string, 20> texts;
    std::vector<std::string> entries;
    std::size_t next = 0;
    Compare(
        state, {3},
        [&] {
            return Timed(100, [&] {
                ShowPlainly(numbers[next ^= 1U], texts);
                ListFlowsPlainly(entries);
            });
        },
        [&] { return Timed(100, [&] { quiet->form.cmbPhase.Pick(next ^= 1U); }); });
}
BENCHMARK(Show)->Name("Show another phase")->UseManualTime();

void PressRange(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto quiet = std::make_unique<QuietForm>();
    quiet->Open(file);
    const std::array<std::string, 2> texts{"7", "8"};
    std::size_t next = 0;
    Compare(
        state, {4},
        [&] {
            return Timed(1000, [&] {
                benchmark::DoNotOptimize(FormatPlainly({ParsePlainly(texts[next ^= 1U]), 0}));
            });
        },
        [&] { return Timed(1000, [&] { quiet->form.txtSlide1.PressKey(texts[next ^= 1U]); }); });
}
BENCHMARK(PressRange)->Name("A key press in a range box")->UseManualTime();

void PressBurst(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const auto quiet = std::make_unique<QuietForm>();
    quiet->Open(file);
    const std::array<std::string, 2> texts{"100", "100."};
    std::size_t next = 0;
    std::vector<std::string> entries;
    Compare(
        state, {3}, [&] { return Timed(100, [&] { ListFlowsPlainly(entries); }); },
        [&] { return Timed(100, [&] { quiet->form.txtBurst.PressKey(texts[next ^= 1U]); }); });
}
BENCHMARK(PressBurst)->Name("A key press in txtBurst, 100 flows")->UseManualTime();

// The reference moves contiguous rows and shows a phase that is already in place.
void Add(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases - 1);
    const auto quiet = std::make_unique<QuietForm>();
    const auto plain = std::make_unique<QuietForm>();
    plain->Open(file);
    cmdAdd_Click(plain->form);
    std::vector<PhaseRecord> phases(MaxPhases + 1);
    std::vector<FlowRow> flows(MaxPhases + 1);
    const FlowRow row;
    constexpr std::size_t moved = MaxPhases - 2;
    Compare(
        state, {3},
        [&] {
            plain->form.cmbPhase.Pick(0);
            plain->form.CurPhase = 2;
            flows.assign(flows.size(), row);  // into the cache, like those of a record just opened
            return Timed(1, [&] {
                std::memmove(&phases[3], &phases[2], moved * sizeof(PhaseRecord));
                std::memmove(&flows[3], &flows[2], moved * sizeof(FlowRow));
                ShowData(plain->form, plain->form.CurPhase);
            });
        },
        [&] {
            quiet->Open(file);
            return Timed(1, [&] { cmdAdd_Click(quiet->form); });
        });
}
BENCHMARK(Add)->Name("Add after phase 1 of 499")->UseManualTime();

// Growth: the largest record against small ones with as many phases in all. Growth counts as linear
// if the times per phase are within 20 percent of each other; very small records also pay the fixed
// costs of a file.
template <class Work>
void Grow(benchmark::State& state, Integer few, Goal goal, Work work) {
    const RecordOnDisk small(few);
    const RecordOnDisk large(MaxPhases);
    const auto record = std::make_unique<EditorState>();
    const auto turn = [&work, &record](const RecordOnDisk& file, int times) {
        ReadRecordFile(file.Path(), *record);
        return times * Timed(times, [&] { work(file, *record); });
    };
    Compare(
        state, goal, [&] { return turn(small, MaxPhases / few); }, [&] { return turn(large, 1); });
}

constexpr Goal Linear{1.2, 0.8};
constexpr Goal AtMostLinear{1.2};

void ReadOne(const RecordOnDisk& file, EditorState& record) { ReadRecordFile(file.Path(), record); }
void WriteOne(const RecordOnDisk& file, EditorState& record) {
    WriteRecordFile(file.Path(), record);
}
void JudgeOne(const RecordOnDisk&, EditorState& record) {
    benchmark::DoNotOptimize(AllPass(record));
}

BENCHMARK_CAPTURE(Grow, read, 50, Linear, ReadOne)
    ->Name("Read 500 phases, against 10 times 50")
    ->UseManualTime();
BENCHMARK_CAPTURE(Grow, write, 50, Linear, WriteOne)
    ->Name("Write 500 phases, against 10 times 50")
    ->UseManualTime();
BENCHMARK_CAPTURE(Grow, judge, 50, Linear, JudgeOne)
    ->Name("Judge 500 phases, against 10 times 50")
    ->UseManualTime();
BENCHMARK_CAPTURE(Grow, read5, 5, AtMostLinear, ReadOne)
    ->Name("Read 500 phases, against 100 times 5")
    ->UseManualTime();
BENCHMARK_CAPTURE(Grow, write5, 5, AtMostLinear, WriteOne)
    ->Name("Write 500 phases, against 100 times 5")
    ->UseManualTime();
BENCHMARK_CAPTURE(Grow, judge5, 5, AtMostLinear, JudgeOne)
    ->Name("Judge 500 phases, against 100 times 5")
    ->UseManualTime();

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
