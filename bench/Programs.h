// Running other programs, and what a run costs.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

using Command = std::vector<std::string>;

struct Usage {
    double processorSeconds;
    double peakMegabytes;  // of resident memory; at least that of the program that started it
};

/// Starts a program, looked up in PATH, and returns its process id. Throws if that fails.
pid_t Start(const Command& command);

/// Runs a program and waits for its end. Throws if it cannot be started or its exit status is not
/// 0.
Usage RunToEnd(const Command& command);
