// Running other programs, and what a run has cost.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

using Command = std::vector<std::string>;

struct Usage {
    double processorSeconds;
    double peakMegabytes;  // of resident memory; never below that of the program that started it
};

/// Starts a program, found by PATH, and returns its process. Throws if that fails.
pid_t Start(const Command& command);

/// Runs a program until it ends by itself. Throws if its exit status is not 0.
Usage RunToEnd(const Command& command);
