// Where the reports go: standard output, and the progress line on a terminal.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

/// Whether a descriptor is a terminal that understands control sequences.
bool IsTerminal(int descriptor);

/// Writes to standard output, and shows progress on standard error if that is a terminal, after the
/// first second. Only one thread at a time may use it.
class Output {
public:
    /// Without `progress` no progress is shown.
    explicit Output(bool progress);
    ~Output() { ClearProgress(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// Does nothing after a failed write.
    void Write(std::string_view text);
    bool Failed() const { return failure != 0; }

    /// Once Failed(): why, for the user; empty if the other end of a pipe is closed.
    std::string Failure() const;

    /// Shows how many records are done, at most five times a second.
    void ShowProgress(std::size_t done, std::size_t all);

private:
    using Clock = std::chrono::steady_clock;

    void ClearProgress();

    bool showsProgress;
    bool onTerminal;       // whether standard output is a terminal
    bool isShown = false;  // the progress line
    int failure = 0;
    Clock::time_point next;  // when the progress line may change again
};
