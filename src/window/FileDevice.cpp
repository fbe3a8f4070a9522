#include "window/FileDevice.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

// Terminals, pipes and some file systems know no flush.
bool KnowsNoFlush(int error) {
    return error == EINVAL || error == EROFS || error == ENOTSUP || error == ENOSYS;
}

// False if it cannot be opened, or if its flush fails.
bool FlushOpened(const char* path, int flags) {
    const int file = open(path, flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (file < 0) {
        return false;
    }
    const bool flushed = fsync(file) == 0 || KnowsNoFlush(errno);
    return close(file) == 0 && flushed;
}

// The folder of the file that the name leads to. One that may not be read cannot be flushed, and an
// open pipe or terminal is in none.
bool FlushFolder(const std::string& path) {
    std::error_code error;
    const auto folder = std::filesystem::canonical(path, error).parent_path();
    return error || access(folder.c_str(), R_OK) != 0 ||
           FlushOpened(folder.c_str(), O_RDONLY | O_DIRECTORY);
}

}  // namespace

bool FileDevice::Flush(const std::string& path) {
    return FlushOpened(path.c_str(), O_WRONLY) && FlushFolder(path);
}
