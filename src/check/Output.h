// Where the reports go: standard output, and the progress line on a terminal.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>
#include <string_view>

/// Whether a descriptor is a terminal that takes control sequences.
bool IsTerminal(int descriptor);

/// Writes to standard output, and shows on standard error how far the work is: only where that is a
/// terminal, and not in the first second. One thread at a time may use it.
class Output {
public:
    /// Without `progress` there is no such line.
    explicit Output(bool progress);
    ~Output() { ClearProgress(); }
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    /// After a write that failed nothing more is written.
    void Write(std::string_view text);
    bool Failed() const { return failure != 0; }

    /// Why a write failed, for the user; empty where nobody reads any more.
    std::string Failure() const;

    void ShowProgress(std::size_t done, std::size_t all);

private:
    using Clock = std::chrono::steady_clock;

    void ClearProgress();

    bool showsProgress;
    bool onTerminal;       // standard output
    bool isShown = false;  // the progress line
    int failure = 0;
    Clock::time_point next;  // when the line is due
};
