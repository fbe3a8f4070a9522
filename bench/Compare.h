// A figure of a benchmark: a task of ours and a reference, which take turns within one run. The
// speed of a machine drifts and other programs use it too, so two consecutive turns are compared.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>

/// Runs `work` repeatedly; returns the average processor time of one run, in seconds.
template <class Work>
double Timed(int times, const Work& work);

/// Does its task once or a few times and returns the cost of one run, in the unit of the goal.
/// Throws if the task fails.
using Turn = std::function<double()>;

enum class Unit { Seconds, Megabytes };

/// The bounds of a figure: for seconds, of the ratio of ours to the reference; for megabytes, of
/// ours minus the reference, where only `most` counts.
struct Goal {
    double most;
    double least = 0;
    Unit unit = Unit::Seconds;
    bool best = false;  // compare the best turns, not the medians
};

/// Takes turns until the benchmark has run long enough, and puts the medians into its counters. A
/// turn that throws ends the benchmark, which then counts as failed.
void Compare(benchmark::State& state, Goal goal, const Turn& reference, const Turn& ours);

/// Runs all benchmarks of the program and prints a row of the table for each: figure, ours,
/// reference, ratio, goal, met or not, separated by tabs. Returns the program's exit status: 1 if a
/// benchmark did not work; a goal that is not met is not a failure.
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
