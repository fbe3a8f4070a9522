// The editor in its window, as in the program, but with a file dialog that answers with a fixed
// name without being shown.
#pragma once

#include <QString>

#include "Records.h"
#include "window/FormWindow.h"

struct WindowForm {
    WindowForm();

    /// Opens a record through the button in the window. A failure shows no message.
    void Open(const std::string& path);

    QuietPlatform platform;
    RecordEdit form;
    FormWindow window{form};
};
