#include "Compare.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <exception>
#include <string>
#include <vector>

namespace {

double Median(std::vector<double> values) {
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

std::string Formatted(const char* format, double value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

std::string Duration(double seconds) {
    if (seconds >= 1e-3) {
        return Formatted("%.2f ms", seconds * 1e3);
    }
    return seconds >= 1e-6 ? Formatted("%.2f us", seconds * 1e6)
                           : Formatted("%.0f ns", seconds * 1e9);
}

/// Why a run failed; null if it did not. Later versions of the library have other members for it.
template <class Run>
const std::string* FailureOf(const Run& run) {
    if constexpr (requires { run.skip_message; }) {
        return run.skipped ? &run.skip_message : nullptr;
    } else {
        return run.error_occurred ? &run.error_message : nullptr;
    }
}

class TableReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }

    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (const std::string* const failure = FailureOf(run)) {
                failed = true;
                std::printf("%s\t%s\n", run.run_name.function_name.c_str(), failure->c_str());
            } else {
                PrintRow(run);
            }
            std::fflush(stdout);
        }
    }

    bool failed = false;

private:
    static void PrintRow(const Run& run) {
        const auto counter = [&run](const char* name) { return run.counters.at(name).value; };
        const bool memory = counter("memory") != 0;
        const auto show = [memory](double value) {
            return memory ? Formatted("%.1f MB", value) : Duration(value);
        };
        const double result = counter("result");
        const double most = counter("most");
        const double least = counter("least");
        const std::string goal =
            (least > 0 ? Formatted("%g to ", least) : std::string("at most ")) +
            Formatted(memory ? "%g MB more" : "%g", most);
        std::printf("%s\t%s\t%s\t%s\t%s\t%s\n", run.run_name.function_name.c_str(),
                    show(counter("ours")).c_str(), show(counter("reference")).c_str(),
                    Formatted(memory ? "%+.1f MB" : "%.2f", result).c_str(), goal.c_str(),
                    result <= most && (result >= least || memory) ? "met" : "NOT MET");
    }
};

}  // namespace

double ProcessorSeconds() {
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

void Compare(benchmark::State& state, Goal goal, const Turn& reference, const Turn& ours) {
    std::vector<double> references;
    std::vector<double> own;
    std::vector<double> results;
    const bool memory = goal.unit == Unit::Megabytes;
    using Clock = std::chrono::steady_clock;
    for ([[maybe_unused]] auto turn : state) {
        const Clock::time_point start = Clock::now();
        try {
            references.push_back(reference());
            own.push_back(ours());
        } catch (const std::exception& failure) {
            state.SkipWithError(failure.what());
            return;
        }
        results.push_back(memory ? own.back() - references.back() : own.back() / references.back());
        // Preparations count only towards the length of the run.
        state.SetIterationTime(std::chrono::duration<double>(Clock::now() - start).count());
    }
    const auto typical = [&goal](const std::vector<double>& values) {
        return goal.best ? *std::min_element(values.begin(), values.end()) : Median(values);
    };
    state.counters["reference"] = typical(references);
    state.counters["ours"] = typical(own);
    state.counters["result"] = goal.best ? typical(own) / typical(references) : Median(results);
    state.counters["memory"] = memory ? 1 : 0;
    state.counters["most"] = goal.most;
    state.counters["least"] = goal.least;
}

int RunFigures(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    TableReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.failed ? 1 : 0;
}
