// A figure of a benchmark: a task of ours against a reference, in turn within one run. The speed of
// a machine drifts and other programs use it too, so only the ratio of two consecutive turns
// counts.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>

/// Runs `work` that many times; returns the processor time of one, in seconds.
template <class Work>
double Timed(int times, const Work& work);

/// Does its task once or a few times and returns what one took, in the unit of the goal. A task
/// that fails throws.
using Turn = std::function<double()>;

enum class Unit { Seconds, Megabytes };

/// The bounds of a figure: for seconds, of the ratio of ours to the reference; for megabytes, of
/// what ours takes more than the reference.
struct Goal {
    double most;
    double least = 0;
    Unit unit = Unit::Seconds;
    bool best = false;  // compare the best turns, where other programs would slow most of them
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
