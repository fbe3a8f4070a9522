// The settings store: an INI file `Tephrex3.ini` in the user's configuration folder, and
// after it the system-wide one. They are read, and never written.
#pragma once

#include "shell/Services.h"

class IniSettings : public SettingsStore {
public:
    /// The last word of the section names the group of the file. The value arrives byte for byte
    /// as it is in the file after the "=". What is no regular file is not there.
    std::string Read(const std::string& section, const std::string& key,
                     const std::string& fallback) override;
};
