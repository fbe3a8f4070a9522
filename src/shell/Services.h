// What the form asks of the platform, as small interfaces. The window implements them with the
// toolkit, tests with a few lines each. Texts are UTF-8, paths the bytes of the file system.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

class CommonDialog;

enum class MessageIcon { Information, Exclamation, Stop };

/// Shows a modal message with an OK button and returns when the user has closed it. Lines of the
/// text end in CR LF.
class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual void Show(const std::string& text, MessageIcon icon, std::string_view title) = 0;
};

/// Shows the dialog modally as its properties say. True: the user chose a name, which is now its
/// `FileName`. False: cancelled or failed, `FileName` is untouched.
class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    virtual bool AskOpen(CommonDialog& dialog) = 0;
    virtual bool AskSave(CommonDialog& dialog) = 0;
};

/// Opens or closes the help viewer as `HelpFile`, `HelpContext` and `HelpCommand` say. A help
/// file that cannot be shown is reported only in the viewer.
class HelpViewer {
public:
    virtual ~HelpViewer() = default;
    virtual void ShowHelp(const CommonDialog& dialog) = 0;
};

/// Named texts in sections, written when the simulator is installed and only read here. Returns
/// `fallback` for a text that does not exist.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual std::string Read(const std::string& section, const std::string& key,
                             const std::string& fallback) = 0;
};

/// Returns the text to show for a path, which may be any bytes. `flag` is always 0.
class PathHelper {
public:
    virtual ~PathHelper() = default;
    virtual std::string DisplayPath(const std::string& path, int flag) = 0;
};

/// Moves written files from the memory of the system to the device.
class Device {
public:
    virtual ~Device() = default;
    /// Waits until the bytes of the file and its entry in its folder are on the device. False if
    /// that fails. A target that cannot be flushed at all, such as a terminal, counts as flushed.
    virtual bool Flush(const std::string& path) = 0;
};

/// A size in twips. A twip is 1/1440 inch, scaled as the form is.
struct Extent {
    int width = 0;
    int height = 0;
};

/// The window that shows the form. `Move` places its top left corner, in twips from that of the
/// screen. `Unload` closes it, which raises the form's Unload event.
class Window {
public:
    virtual ~Window() = default;
    virtual Extent ScreenSize() = 0;
    virtual Extent FormSize() = 0;
    virtual void Move(int left, int top) = 0;
    virtual void Show() = 0;
    virtual void RunPendingEvents() = 0;
    virtual void Unload() = 0;
};

/// The services of a form. All must be set before the form is loaded and stay valid until it is
/// unloaded. `programFolder`, which contains the help file, has no slash at its end.
struct Services {
    MessageBoxes* messages = nullptr;
    FileDialogs* dialogs = nullptr;
    HelpViewer* help = nullptr;
    Device* device = nullptr;
    Window* window = nullptr;
    std::function<std::unique_ptr<PathHelper>()> createPathHelper;
    std::function<std::unique_ptr<SettingsStore>()> createSettingsStore;
    std::string programFolder;
};
