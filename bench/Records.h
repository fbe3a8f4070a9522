// The records that the benchmarks work on, and a form that has one of them open.
#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "form/RecordEdit.h"

/// A record of 0 to 500 Hawaiian phases with 100 flows each. It passes every check, and
/// neighbouring phases differ in every box except the number of bursts. Records with a different
/// `shift` differ in every phase.
std::unique_ptr<EditorState> RecordOf(Integer phases, int shift = 0);

/// The same record as a file, deleted with the object. Throws if it cannot be written.
class RecordOnDisk {
public:
    explicit RecordOnDisk(Integer phases, int shift = 0);
    ~RecordOnDisk() { std::filesystem::remove(path); }
    RecordOnDisk(const RecordOnDisk&) = delete;
    RecordOnDisk& operator=(const RecordOnDisk&) = delete;

    const std::string& Path() const { return path; }
    std::string Bytes() const;

private:
    std::string path;
};

/// A platform without a screen; its open dialog answers with the name `answer`.
class QuietPlatform : public MessageBoxes,
                      public FileDialogs,
                      public HelpViewer,
                      public Device,
                      public Window {
public:
    std::string answer;

    /// Wires and loads the form with this platform and `window`.
    void Load(RecordEdit& form, Window& window);

    void Show(const std::string&, MessageIcon, std::string_view) override {}
    bool AskOpen(CommonDialog& dialog) override;
    bool AskSave(CommonDialog&) override { return false; }
    void ShowHelp(const CommonDialog&) override {}
    bool Flush(const std::string&) override { return true; }
    Extent ScreenSize() override { return {}; }
    Extent FormSize() override { return {}; }
    void Move(int, int) override {}
    void Show() override {}
    void RunPendingEvents() override {}
    void Unload() override {}
};

/// A form without a window, loaded as the program loads it.
struct QuietForm {
    QuietForm();

    /// Opens the record through the form's button.
    void Open(const RecordOnDisk& record);

    QuietPlatform platform;
    RecordEdit form;
};
