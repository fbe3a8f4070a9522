// The settings store: an INI file `Tephrex3.ini` in the user's configuration folder, with the
// system-wide one behind it. It is read, and never written.
#pragma once

#include <QSettings>

#include "shell/Services.h"

class IniSettings : public SettingsStore {
public:
    IniSettings();

    /// The last word of the section names the group of the file. The value arrives byte for byte
    /// as it stands behind the "=".
    std::string Read(const std::string& section, const std::string& key,
                     const std::string& fallback) override;

private:
    QSettings settings;
};
