// A figure of a benchmark: a work of ours against a reference, done in turn in one run. The speed
// of a machine drifts and others work on it too, so only the ratio of two turns side by side
// counts.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>

/// Runs `work` that many times; the processor time of one, in seconds.
template <class Work>
double Timed(int times, const Work& work);

/// Does its work once or a few times and returns what one took, in the unit of the goal.
using Turn = std::function<double()>;

enum class Unit { Seconds, Megabytes };

/// Of seconds the ratio of ours to the reference has to keep the bounds, of memory what ours takes
/// more.
struct Goal {
    double most;
    double least = 0;
    Unit unit = Unit::Seconds;
    bool best = false;  // the ratio of the best of all turns, where some wait for others' work
};

/// Takes turns until the benchmark has run long enough; medians go into its counters.
void Compare(benchmark::State& state, Goal goal, const Turn& reference, const Turn& ours);

/// Runs all benchmarks of the program and prints a row of the table for each: figure, ours,
/// reference, ratio, goal, met or not, with tabulators between them. Returns what the program ends
/// with: 1 if a benchmark did not work; a goal that is not met is no failure.
int RunFigures(int argc, char** argv);

/// The seconds of processor time that this thread has used.
double ProcessorSeconds();

template <class Work>
double Timed(int times, const Work& work) {
    const double start = ProcessorSeconds();
    for (int i = 0; i < times; ++i) {
        work();
    }
    return (ProcessorSeconds() - start) / times;
}
