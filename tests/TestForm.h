// A form with services for tests, which operate its controls as a user does: messages are kept, and
// dialogs take their answers from a queue.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

#include "form/RecordEdit.h"
#include "form/Wiring.h"
#include "record/RecordFile.h"
#include "shell/Startup.h"

struct Message {
    std::string text;
    MessageIcon icon;
    std::string title;
};

/// Removes the first item of a queue and returns it; `none` if the queue is empty.
template <class Item>
Item TakeFirst(std::deque<Item>& queue, std::type_identity_t<Item> none) {
    if (queue.empty()) return none;
    Item first = std::move(queue.front());
    queue.pop_front();
    return first;
}

class TestPlatform : public MessageBoxes,
                     public FileDialogs,
                     public HelpViewer,
                     public Device,
                     public Window {
public:
    explicit TestPlatform(Form& theForm) : form(theForm) {}

    std::vector<Message> messages;
    std::function<void()> whileMessageShows;
    std::deque<std::optional<std::string>> answers;  // of dialogs: a file name, or none for Cancel
    std::vector<std::string> asked;  // what each dialog was for, and the name it offered
    std::vector<int> helpCommands;
    std::function<bool(const std::string& path)> flush = [](const std::string&) { return true; };
    std::string dataPath;
    Extent screen{19200, 14400};
    Extent size{7800, 6400};
    int left = 0;
    int top = 0;

    void Show(const std::string& text, MessageIcon icon, std::string_view title) override {
        messages.push_back({text, icon, std::string(title)});
        if (whileMessageShows) whileMessageShows();
    }
    bool AskOpen(CommonDialog& dialog) override { return Ask("to open", dialog); }
    bool AskSave(CommonDialog& dialog) override { return Ask("to save", dialog); }
    void ShowHelp(const CommonDialog& dialog) override {
        helpCommands.push_back(dialog.HelpCommand);
    }
    bool Flush(const std::string& path) override { return flush(path); }
    Extent ScreenSize() override { return screen; }
    Extent FormSize() override { return size; }
    void Move(int newLeft, int newTop) override { left = newLeft, top = newTop; }
    void Show() override {}
    void RunPendingEvents() override {}
    void Unload() override { form.Unload(); }

private:
    bool Ask(const std::string& purpose, CommonDialog& dialog) {
        const std::string& name = dialog.FileName;
        asked.push_back(purpose + (name.empty() ? "" : ", offering " + name));
        const auto answer = TakeFirst(answers, {});
        dialog.FileName = answer.value_or(dialog.FileName);
        return answer.has_value();
    }
    Form& form;
};

/// Shows paths without the folder they start with.
class TestPathHelper : public PathHelper {
public:
    explicit TestPathHelper(std::string itsFolder) : folder(std::move(itsFolder)) {}
    std::string DisplayPath(const std::string& path, int) override {
        return path.starts_with(folder) ? path.substr(folder.size()) : path;
    }

private:
    std::string folder;
};

class TestSettings : public SettingsStore {
public:
    explicit TestSettings(std::string path) : dataPath(std::move(path)) {}
    std::string Read(const std::string& section, const std::string& key,
                     const std::string& fallback) override {
        return section == "Tephrex3\\Settings" && key == "DataPath" ? dataPath : fallback;
    }

private:
    std::string dataPath;
};

/// A folder that exists as long as this does.
class TempFolder {
public:
    TempFolder() {
        std::string name = (std::filesystem::temp_directory_path() / "tephrexXXXXXX").string();
        path = mkdtemp(name.data());
    }
    ~TempFolder() { std::filesystem::remove_all(path); }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    std::string operator/(const std::string& name) const { return (path / name).string(); }

private:
    std::filesystem::path path;
};

inline std::string ReadBytes(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

inline void WriteBytes(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
}

/// The text with every `from` in it replaced.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
    for (std::size_t at = 0; (at = text.find(from, at)) != std::string::npos; at += to.size()) {
        text.replace(at, from.size(), to);
    }
    return text;
}

/// The position of an entry in a list; the test fails if there is none.
inline std::size_t PositionOf(const ComboBox& list, const std::string& text) {
    const auto entry = std::find(list.Entries().begin(), list.Entries().end(), text);
    EXPECT_TRUE(entry != list.Entries().end()) << "no entry " << text;
    return static_cast<std::size_t>(entry - list.Entries().begin());
}

/// Picks an entry of a list as the user does; the list must be enabled and visible.
inline void Pick(ComboBox& list, const std::string& text) {
    EXPECT_TRUE(list.AcceptsUserActions()) << list.Name() << " is disabled or hidden";
    list.Pick(PositionOf(list, text));
}

class FormTest : public testing::Test {
protected:
    std::unique_ptr<RecordEdit> owner = std::make_unique<RecordEdit>();
    RecordEdit& form = *owner;
    TestPlatform platform{form};
    TempFolder folder;
    std::string leftOut;  // a folder that shown paths leave out

    /// Loads the form as the program does.
    void Load() {
        form.services = {&platform,
                         &platform,
                         &platform,
                         &platform,
                         &platform,
                         [this] { return std::make_unique<TestPathHelper>(leftOut); },
                         [this] { return std::make_unique<TestSettings>(platform.dataPath); },
                         "/opt/tephrex"};
        Wire(form);
        Form_Load(form);
    }

    void SetUp() override { Load(); }

    /// Opens a file with a record of these phases, each with these flows, at normal scale.
    void Open(const std::vector<PhaseRecord>& phases, const std::vector<Single>& flows = {}) {
        auto record = std::make_unique<EditorState>();
        record->RecordScale = 20;
        for (const PhaseRecord& phase : phases) {
            record->LoadedPhases[++record->LoadedPhaseCount] = phase;
            for (int j = 1; j <= static_cast<int>(flows.size()); ++j) {
                record->LoadedFlows[record->LoadedPhaseCount][j] =
                    flows[static_cast<std::size_t>(j) - 1];
            }
        }
        const std::string path = folder / "test.rec";
        ASSERT_TRUE(WriteRecordFile(path, *record));
        platform.answers.push_back(path);
        form.cmdOpen.Press();
        ASSERT_EQ(form.EditPhaseCount, record->LoadedPhaseCount);
    }
};

/// A phase that passes every check at normal scale; a type with flows also needs their durations.
inline PhaseRecord GoodPhase(Integer eruptionType) {
    PhaseRecord phase;
    phase.eruptionType = eruptionType;
    phase.ventLocation = 12;
    phase.strength = 0.5F;
    phase.wind = 10;
    phase.massFlux = 20;
    phase.scarpTop = 5;
    phase.scarpBase = 8;
    phase.burstCount = 1;
    phase.tectonicKind = TectonicKind::Faulting;
    phase.faultMagnitude = 1;
    phase.faultDownSide = DownSide::Left;
    phase.erosionCycles = 1;
    phase.flowLength = phase.craterSize = phase.ventPosition = phase.growth = 6;
    phase.position3D = 20;
    phase.speed = 1;
    return phase;
}
