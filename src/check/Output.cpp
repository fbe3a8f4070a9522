#include "check/Output.h"

#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <system_error>

namespace {

// Returns 0, or the error number of the write that failed.
int WriteAll(int descriptor, std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = write(descriptor, text.data(), text.size());
        if (written >= 0) {
            text.remove_prefix(static_cast<std::size_t>(written));
        } else if (errno != EINTR) {
            return errno;
        }
    }
    return 0;
}

}  // namespace

bool IsTerminal(int descriptor) {
    const char* const kind = std::getenv("TERM");
    return isatty(descriptor) != 0 && kind != nullptr && std::string_view(kind) != "dumb";
}

Output::Output(bool progress)
    : showsProgress(progress && IsTerminal(STDERR_FILENO)),
      onTerminal(isatty(STDOUT_FILENO) != 0),
      next(Clock::now() + std::chrono::seconds(1)) {}

void Output::Write(std::string_view text) {
    if (text.empty() || Failed()) {
        return;
    }
    if (onTerminal) {
        ClearProgress();
    }
    failure = WriteAll(STDOUT_FILENO, text);
}

std::string Output::Failure() const {
    return failure == EPIPE ? "" : std::generic_category().message(failure);
}

void Output::ShowProgress(std::size_t done, std::size_t all) {
    if (!showsProgress || Clock::now() < next) {
        return;
    }
    next = Clock::now() + std::chrono::milliseconds(200);
    isShown = true;
    WriteAll(STDERR_FILENO,
             "\r\033[K" + std::to_string(done) + " of " + std::to_string(all) + " records");
}

void Output::ClearProgress() {
    if (isShown) {
        isShown = false;
        WriteAll(STDERR_FILENO, "\r\033[K");
    }
}
