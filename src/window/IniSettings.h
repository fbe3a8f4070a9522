// The settings store: the INI file `Tephrex3.ini` in the user's configuration folder, then the
// system-wide ones. They are only read, never written.
#pragma once

#include "shell/Services.h"

class IniSettings : public SettingsStore {
public:
    /// The part of `section` after the last backslash is the group in the file. Group and key
    /// match in any case. Returns the bytes after the "=" unchanged. Files that are not regular
    /// files are ignored.
    std::string Read(const std::string& section, const std::string& key,
                     const std::string& fallback) override;
};
