// The path helper on this platform: paths are shown unchanged.
#pragma once

#include "shell/Services.h"

class PlainPaths : public PathHelper {
public:
    std::string DisplayPath(const std::string& path, int /*flag*/) override { return path; }
};
