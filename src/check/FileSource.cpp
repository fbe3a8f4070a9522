#include "check/FileSource.h"

#include <unistd.h>

#include <cerrno>
#include <system_error>

FileSource::~FileSource() {
    if (file != STDIN_FILENO) {
        close(file);
    }
}

std::streamsize FileSource::xsgetn(char* to, std::streamsize wanted) {
    for (;;) {
        const ssize_t got = read(file, to, static_cast<std::size_t>(wanted));
        if (got >= 0) {
            return got;
        }
        if (errno != EINTR) {
            throw std::system_error(errno, std::generic_category());
        }
    }
}
