#include "window/FileDevice.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <system_error>

namespace {

// Terminals, pipes and some file systems cannot be flushed.
bool FlushUnsupported(int error) {
    return error == EINVAL || error == EROFS || error == ENOTSUP || error == ENOSYS;
}

// False if the path cannot be opened or its flush fails.
bool FlushOpened(const char* path, int flags) {
    const int file = open(path, flags | O_CLOEXEC | O_NOCTTY | O_NONBLOCK);
    if (file < 0) {
        return false;
    }
    const bool flushed = fsync(file) == 0 || FlushUnsupported(errno);
    return close(file) == 0 && flushed;
}

// Flushes the folder of the file, with symbolic links resolved. True without a flush if the folder
// is not readable, or if the path cannot be resolved, like that of an open pipe.
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
