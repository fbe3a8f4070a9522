// Runs the stories in tests/stories on the form. A story has one step a line, such as a user
// action, and after each action all its changes; README.md there explains the words. What really
// changes is written in the same words and compared with the story. The environment variable
// TEPHREX_AS_HAPPENED can name a folder to which it is written too.
#include <cctype>
#include <cstdlib>

#include "Snapshot.h"
#include "form/Catalogue.h"

namespace {

Items WordsOf(const std::string& text) {
    std::istringstream stream(text);
    return {std::istream_iterator<std::string>(stream), {}};
}

/// The first word of a text, and the rest of it.
std::pair<std::string, std::string> SplitOff(const std::string& text) {
    const std::size_t end = std::min(text.find(' '), text.size());
    return {text.substr(0, end), text.substr(std::min(end + 1, text.size()))};
}

/// A record as the words of a story describe it.
class DescribedRecord {
public:
    EditorState& State() const { return *state; }

    static bool IsType(const std::string& word) { return Types.contains(word); }

    /// Adds a phase: its type, then its fields. Without a type, sets more fields of the last phase.
    void Add(const std::string& words) {
        const auto [type, fields] = SplitOff(words);
        if (!IsType(type)) return Set(words);
        PhaseRecord& phase = state->LoadedPhases[++state->LoadedPhaseCount];
        phase = GoodPhase(static_cast<Integer>(Types.at(type)));
        phase.tectonicKind = type == "Erosion" ? TectonicKind::Erosion : phase.tectonicKind;
        Set(fields);
    }

private:
    // Fields of the last phase and settings of the record: each name, then its values.
    void Set(const std::string& words) {
        std::string name;
        for (const std::string& word : WordsOf(words)) {
            if (isalpha(word[0]) == 0) {
                Set(name, word);
            } else if (name = word; name == "flows") {
                state->LoadedPhases[state->LoadedPhaseCount].burstCount = 0;
            }
        }
    }
    void Set(const std::string& name, const std::string& value) {
        const int last = state->LoadedPhaseCount;
        PhaseRecord& phase = state->LoadedPhases[last];
        std::istringstream number(value);
        if (name == "scale") {
            number >> state->RecordScale;
        } else if (name == "flows") {
            number >> state->LoadedFlows[last][++phase.burstCount];
        } else if (name == "times") {
            for (int more = std::stoi(value); more > 1; --more) {
                state->LoadedPhases[++state->LoadedPhaseCount] = phase;
                state->LoadedFlows[state->LoadedPhaseCount] = state->LoadedFlows[last];
            }
        } else {
            const auto* const field = std::ranges::find(PhaseFields, name, &PhaseField::name);
            ASSERT_NE(field, PhaseFields.end()) << name;
            std::visit([&](auto member) { number >> phase.*member; }, field->member);
        }
    }

    static inline const std::map<std::string, int> Types{
        {"None", -1},       {"Erosion", 0},   {"Faulting", 0}, {"Vulcanian", 1},
        {"Strombolian", 2}, {"Hawaiian", 3},  {"Pelean", 4},   {"Plinian", 5},
        {"Collapse", 6},    {"Fumarolic", 7}, {"8", 8},        {"-2", -2}};
    std::unique_ptr<EditorState> state = std::make_unique<EditorState>();
};

/// A form that has just been loaded, and its user.
class Scene : public FormTest {
public:
    Scene() {
        platform.dataPath = leftOut = folder / "";
        platform.whileMessageShows = [this] { NoteMessage(); };
        form.random = [this] { return Draw(); };
        for (const NamedText& tip : ToolTips()) {
            form.Find(tip.control)->SetToolTipText(tip.text);  // so that `start` lists none
        }
        before = Look();
        Load();
    }

    void WriteFile(const std::string& name, const DescribedRecord& record) {
        EXPECT_TRUE(WriteRecordFile(folder / name, record.State())) << name;
        before = Look();
    }
    void WriteFile(const std::string& name, const std::string& bytes) {
        WriteBytes(folder / name, bytes);
        before = Look();
    }
    void AddDraws(const Items& numbers) {
        for (const std::string& number : numbers) draws.push_back(std::stof(number));
    }
    std::vector<Items> Use(const UserAction& action) {
        Control* const control = form.Find(action.name);
        if (control == nullptr) throw std::invalid_argument("no control " + action.name);
        const std::string answering = "answering ";
        if (action.text.starts_with(answering)) {
            for (const std::string& name : WordsOf(action.text.substr(answering.size()))) {
                platform.answers.emplace_back(name[0] == '/' ? name : folder / name);
                if (name == "cancel") platform.answers.back().reset();
            }
        }
        if (!control->AcceptsUserActions()) noted.push_back({"refused"});
        const std::size_t asked = platform.asked.size() + platform.answers.size();
        Perform(*control, action.verb, action.text);
        EXPECT_EQ(platform.asked.size(), asked) << action.name << ": dialogs and answers";
        platform.answers.clear();
        return Changes();
    }
    /// All changes since the last call, in lines of items.
    std::vector<Items> Changes() {
        NoteDialogs();
        std::vector<Items> lines = std::exchange(noted, {});
        std::unique_ptr<Snapshot> now = Look();
        std::ranges::move(now->ChangesSince(*before), std::back_inserter(lines));
        before = std::move(now);
        if (drawn > 0) {
            lines.resize(std::max<std::size_t>(lines.size(), 1));
            lines.back().push_back("draws " + std::to_string(std::exchange(drawn, 0)));
        }
        return lines;
    }
    /// What Save says of phase 2, and which flow it then shows.
    std::string Verdict() {
        form.txtSlide6.PressKey(form.txtSlide6.Text());
        form.Command2.Press();
        if (platform.messages.empty()) {
            return platform.asked.size() == 2 ? "passes" : "is not asked for a name";
        }
        const std::string text = platform.messages.back().text;
        const bool flow = text.find(" Flow ") != std::string::npos;
        return '"' + Snapshot::Shown(Replaced(text, "Phase 2 ", ""), folder / "") + '"' +
               (flow ? " at " + form.cmbFlow.Text() : "");
    }

private:
    void NoteDialogs() {
        for (; dialogs < platform.asked.size(); ++dialogs) {
            noted.push_back({"asks " + Snapshot::Shown(platform.asked[dialogs], folder / "")});
        }
    }
    // With the phase shown at that moment: the form moves only after the message.
    void NoteMessage() {
        static const std::map<MessageIcon, std::string> verbs{{MessageIcon::Information, "reports"},
                                                              {MessageIcon::Exclamation, "warns"},
                                                              {MessageIcon::Stop, "stops"}};
        NoteDialogs();
        const Message& message = platform.messages.back();
        noted.push_back({verbs.at(message.icon) + " \"" +
                         Snapshot::Shown(message.text, folder / "") + "\" at " +
                         form.cmbPhase.Text()});
        EXPECT_EQ(message.title, "TephrexEdit");
    }
    Single Draw() {
        ++drawn;
        return TakeFirst(draws, 0.5F);
    }
    std::unique_ptr<Snapshot> Look() const { return std::make_unique<Snapshot>(form, folder / ""); }
    void TestBody() override {}

    std::unique_ptr<Snapshot> before;
    std::vector<Items> noted;
    std::deque<Single> draws;
    int drawn = 0;
    std::size_t dialogs = 0;
};

/// What a step changes, in lines of items; nothing for a step that only prepares others.
using Outcome = std::optional<std::vector<Items>>;

/// Runs the steps of a story in turn: each by the method for its verb or, if there is none, as a
/// user action.
class Story {
public:
    Outcome Take(const std::string& step) {
        static const std::map<std::string, Outcome (Story::*)(const std::string&)> methods{
            {"start", &Story::Start},     {"given", &Story::Given}, {"and", &Story::And},
            {"file", &Story::File},       {"bytes", &Story::Bytes}, {"draws", &Story::Draws},
            {"quietly", &Story::Quietly}, {"show", &Story::Show},   {"judge", &Story::Judge},
            {"mend", &Story::Mend}};
        const auto [verb, rest] = SplitOff(step);
        const auto method = methods.find(verb);
        return method == methods.end() ? scene->Use(UserAction(step))
                                       : (this->*method->second)(rest);
    }

private:
    Outcome Start(const std::string&) {
        scene = std::make_unique<Scene>();
        return scene->Changes();
    }
    Outcome Given(const std::string& phase) { return Describe("", phase); }
    Outcome File(const std::string& words) {
        const auto [name, phase] = SplitOff(words);
        return Describe(name, phase);
    }
    Outcome Describe(const std::string& itsFile, const std::string& phase) {
        file = itsFile;
        described = DescribedRecord();
        return And(phase);
    }
    Outcome And(const std::string& words) {
        described.Add(words);
        if (file.empty()) {
            Open(described);
        } else {
            scene->WriteFile(file, described);
        }
        return {};
    }
    Outcome Bytes(const std::string& words) {
        const auto [name, bytes] = SplitOff(words);
        scene->WriteFile(name, bytes);
        return {};
    }
    Outcome Draws(const std::string& numbers) {
        scene->AddDraws(WordsOf(numbers));
        return {};
    }
    Outcome Quietly(const std::string& step) {
        Take(step);
        return {};
    }
    // Shows a phase after one without a type, which disables all that a type enables.
    Outcome Show(const std::string& phase) {
        Given("None");
        And(phase);
        return scene->Use(UserAction("pick cmbPhase Phase 2"));
    }
    // A record for each type. The judged phase is the second: showing a phase rounds its numbers.
    Outcome Judge(const std::string& words) {
        judged.clear();
        auto [type, rest] = SplitOff(words);
        for (; DescribedRecord::IsType(type); std::tie(type, rest) = SplitOff(rest)) {
            judged.emplace_back().Add("Erosion scale 20");
            judged.back().Add(type);
        }
        return Mend(type + ' ' + rest);
    }
    Outcome Mend(const std::string& fields) {
        Items verdicts;
        for (DescribedRecord& record : judged) {
            record.Add(fields);
            Open(record);
            verdicts.push_back(scene->Verdict());
        }
        const bool agreed = std::ranges::count(verdicts, verdicts.at(0)) == std::ssize(verdicts);
        verdicts.resize(agreed ? 1 : verdicts.size());
        return {{verdicts}};
    }

    void Open(const DescribedRecord& record) {
        Start("");
        if (record.State().LoadedPhaseCount > 0) {
            scene->WriteFile("given.rec", record);
            scene->Use(UserAction("press cmdOpen answering given.rec"));
        }
    }

    std::unique_ptr<Scene> scene = std::make_unique<Scene>();
    DescribedRecord described;
    std::string file;  // that gets the described record; empty if the form opens it
    std::vector<DescribedRecord> judged;
};

constexpr std::size_t Width = 100;

// Lines of at most `Width` bytes, broken between items where that is possible.
std::string Wrapped(std::string line) {
    std::string text;
    while (line.size() > Width) {
        const std::size_t between = line.rfind("  ", Width);
        const std::size_t end = between > 6 ? between : line.rfind(' ', Width);
        text += line.substr(0, end) + '\n';
        line = "      " + line.substr(line.find_first_not_of(' ', end));
    }
    return text + line;
}

// A step and what it changes: on one line if there is room, otherwise with the changes below.
std::string LaidOut(const std::string& step, const std::vector<Items>& outcome) {
    Items lines;
    for (const Items& items : outcome) lines.push_back(Joined(items, "  "));
    const std::string padding(34 - std::min<std::size_t>(34, step.size()), ' ');
    const std::string line =
        step + padding + " : " + (lines.empty() ? "nothing" : Joined(lines, "  "));
    if (line.size() <= Width) return line;
    std::string text = step;
    for (const std::string& each : lines) text += '\n' + Wrapped("    " + each);
    return text;
}

class StoryTest : public testing::TestWithParam<std::string> {};

TEST_P(StoryTest, MatchesWhatHappens) {
    const std::string text = ReadBytes(TEPHREX_STORIES + ('/' + GetParam()));
    std::istringstream lines(text);
    std::string happened;
    Story story;
    for (std::string line; std::getline(lines, line);) {
        if (line.empty() || line.starts_with('#')) {
            happened += line + '\n';
        } else if (!line.starts_with(' ')) {
            const std::string step =
                line.substr(0, line.find_last_not_of(' ', line.find(" : ")) + 1);
            const Outcome outcome = story.Take(step);
            happened += (outcome ? LaidOut(step, *outcome) : step) + '\n';
        }
    }
    if (const char* const folder = std::getenv("TEPHREX_AS_HAPPENED")) {
        WriteBytes(folder + ('/' + GetParam()), happened);
    }
    const auto difference = std::ranges::mismatch(text, happened).in2;
    const std::size_t line =
        happened.rfind('\n', static_cast<std::size_t>(difference - happened.begin()));
    EXPECT_TRUE(text == happened && !text.empty())
        << GetParam() << ':' << std::count(happened.begin(), difference, '\n') + 1
        << ": what happens is" << happened.substr(std::min(line, happened.size()), 800);
}

Items Stories() {
    Items names;
    for (const auto& file : std::filesystem::directory_iterator(TEPHREX_STORIES)) {
        if (file.path().extension() == ".txt") names.push_back(file.path().filename());
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, StoryTest, testing::ValuesIn(Stories()), [](const auto& story) {
    return story.param.substr(0, story.param.find('.'));
});

}  // namespace
