// The figures of tephrexcheck, over folders of records in memory.

#include <chrono>
#include <fstream>

#include "Compare.h"
#include "Programs.h"
#include "Records.h"
#include "check/CheckRun.h"
#include "record/RecordFile.h"

namespace {

// A folder with copies of one record, deleted with the object.
class FolderOfRecords {
public:
    FolderOfRecords(int count, Integer phases) {
        std::string name = std::filesystem::temp_directory_path() / "tephrexXXXXXX";
        if (mkdtemp(name.data()) == nullptr) {
            throw std::runtime_error("Cannot make a temporary folder");
        }
        path = name;
        const std::string bytes = RecordOnDisk(phases).Bytes();
        for (int i = 0; i < count; ++i) {
            names.push_back(path + '/' + std::to_string(i) + ".rec");
            std::ofstream(names.back(), std::ios::binary) << bytes;
        }
    }
    ~FolderOfRecords() { std::filesystem::remove_all(path); }
    FolderOfRecords(const FolderOfRecords&) = delete;
    FolderOfRecords& operator=(const FolderOfRecords&) = delete;

    std::string path;
    std::vector<std::string> names;
};

Usage RunSilently(Command command) {
    command.insert(command.begin(), {"sh", "-c", "exec \"$@\" >/dev/null", "sh"});
    return RunToEnd(command);
}

constexpr int LargeRecords = 2000;
constexpr int SmallRecords = 10000;

void CheckFolder(benchmark::State& state, const FolderOfRecords& folder, int jobs) {
    static const ReportOptions quiet{.quiet = true};
    Output output(false);
    const Tally tally = CheckRecords(ListRecords({folder.path}), jobs, quiet, output);
    if (tally.passes != static_cast<int>(folder.names.size())) {
        state.SkipWithError("A record does not pass");
    }
}

// Must run first: a program's peak memory is at least that of the program that starts it.
void Memory(benchmark::State& state) {
    const FolderOfRecords folder(LargeRecords, MaxPhases);
    const Command check{TEPHREX_CHECK, "--quiet", "--jobs", "2", folder.path};
    const Command idle{TEPHREX_CHECK, "--version"};
    Compare(
        state, {24, 0, Unit::Megabytes}, [&] { return RunSilently(idle).peakMegabytes; },
        [&] { return RunSilently(check).peakMegabytes; });
}
BENCHMARK(Memory)->Name("Peak memory of checking 2000 such files")->UseManualTime();

void AgainstReader(benchmark::State& state) {
    const FolderOfRecords folder(LargeRecords, MaxPhases);
    const auto record = std::make_unique<EditorState>();
    Compare(
        state, {1.25},
        [&] {
            return Timed(1, [&] {
                for (const std::string& name : folder.names) {
                    ReadRecordFile(name, *record);
                }
            });
        },
        [&] { return Timed(1, [&] { CheckFolder(state, folder, 1); }); });
}
BENCHMARK(AgainstReader)->Name("Check 2000 such files, against reading them")->UseManualTime();

void TwoJobs(benchmark::State& state) {
    const FolderOfRecords folder(LargeRecords, MaxPhases);
    const auto seconds = [&](int jobs) {
        using Clock = std::chrono::steady_clock;
        const Clock::time_point start = Clock::now();
        CheckFolder(state, folder, jobs);
        return std::chrono::duration<double>(Clock::now() - start).count();
    };
    Compare(
        state, {.most = 0.55, .best = true}, [&] { return seconds(1); },
        [&] { return seconds(2); });
}
BENCHMARK(TwoJobs)->Name("Check them with two jobs, against one")->UseManualTime();

void AgainstCat(benchmark::State& state) {
    const FolderOfRecords folder(SmallRecords, 5);
    const auto run = [&folder](Command command) {
        command.insert(command.end(), folder.names.begin(), folder.names.end());
        return RunSilently(std::move(command)).processorSeconds;
    };
    const auto cat = [&] { return run({"cat"}); };
    const Command check{TEPHREX_CHECK, "--jobs", "1"};
    Compare(state, {2}, cat, [&] { return run(check); });
}
BENCHMARK(AgainstCat)->Name("Check 10000 small records, against cat")->UseManualTime();

}  // namespace

int main(int argc, char** argv) { return RunFigures(argc, argv); }
