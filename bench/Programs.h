// Programs run from outside, and what a run has cost.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

using Command = std::vector<std::string>;

struct Usage {
    double processorSeconds;
    double peakMegabytes;  // of resident memory; at least that of the program that starts it
};

/// Starts a program. Throws if that fails.
pid_t Start(const Command& command);

/// Runs a program until it ends by itself. Throws if it fails.
Usage RunToEnd(const Command& command);
