// The device that files are on, as POSIX systems flush it.
#pragma once

#include "shell/Services.h"

class FileDevice : public Device {
public:
    bool Flush(const std::string& path) override;
};
