#include "Programs.h"

#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <stdexcept>

namespace {

double Seconds(const timeval& time) {
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) * 1e-6;
}

}  // namespace

pid_t Start(const Command& command) {
    std::vector<char*> arguments;
    for (const std::string& argument : command) {
        arguments.push_back(const_cast<char*>(argument.c_str()));  // POSIX: only read
    }
    arguments.push_back(nullptr);
    pid_t process = 0;
    if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) {
        throw std::runtime_error("Cannot start " + command[0]);
    }
    return process;
}

Usage RunToEnd(const Command& command) {
    const pid_t process = Start(command);
    int status = 0;
    rusage usage{};
    wait4(process, &status, 0, &usage);
    if (status != 0) {
        throw std::runtime_error(command[0] + " failed");
    }
    return {Seconds(usage.ru_utime) + Seconds(usage.ru_stime),
            static_cast<double>(usage.ru_maxrss) / 1024};
}
