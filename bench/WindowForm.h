// The editor in its window, as the program has it, but for the file dialog: that gives a fixed name
// without being shown.
#pragma once

#include <QString>

#include "Records.h"
#include "window/FormWindow.h"

struct WindowForm {
    WindowForm();

    /// Opens a record through the button in the window.
    void Open(const std::string& path);

    QuietPlatform platform;
    RecordEdit form;
    FormWindow window{form};
};
