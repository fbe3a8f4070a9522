// Flushes files to their device on POSIX systems.
#pragma once

#include "shell/Services.h"

class FileDevice : public Device {
public:
    bool Flush(const std::string& path) override;
};
