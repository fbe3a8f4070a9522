// Tells the stories in tests/stories to the form. A story is a plain text: what a user does, an act
// a line, and behind each act all that it changes; what is not told must stay as it was. README.md
// there explains the words. What happens is written down in the words of the story and compared
// with it; it also goes into the folder TEPHREX_AS_HAPPENED if the environment names one.
#include <cctype>
#include <cstdlib>

#include "Doors.h"
#include "Snapshot.h"

namespace {

const std::map<std::string, int> Types{
    {"None", -1},    {"Erosion", 0}, {"Faulting", 0}, {"Vulcanian", 1}, {"Strombolian", 2},
    {"Hawaiian", 3}, {"Pelean", 4},  {"Plinian", 5},  {"Collapse", 6},  {"Fumarolic", 7}};

/// A record in the making, as the words of a story tell it.
struct Told {
    std::string file;
    std::unique_ptr<EditorState> record = std::make_unique<EditorState>();

    /// The type of one more phase, and then its fields.
    void AddPhase(const std::string& words) {
        const std::string type = words.substr(0, words.find(' '));
        const int code = Types.contains(type) ? Types.at(type) : std::stoi(type);
        PhaseRecord& phase = record->LoadedPhases[++record->LoadedPhaseCount];
        phase = GoodPhase(static_cast<Integer>(code));
        phase.tectonicKind = type == "Erosion" ? TectonicKind::Erosion : phase.tectonicKind;
        Set(words.substr(type.size()));
    }

    /// Names of fields of the last phase and of settings of the record, each with its value.
    void Set(const std::string& words) {
        std::string name;
        for (const std::string& word : WordsOf(words)) {
            if (isalpha(word[0]) == 0 || name == "reference") {
                Set(name, word);
            } else if (name = word; name == "flows") {
                record->LoadedPhases[record->LoadedPhaseCount].burstCount = 0;
            }
        }
    }

private:
    void Set(const std::string& name, const std::string& value) {
        const int last = record->LoadedPhaseCount;
        PhaseRecord& phase = record->LoadedPhases[last];
        if (name == "reference") {
            record->StratFile = value;
        } else if (name == "scale") {
            std::istringstream(value) >> record->RecordScale;
        } else if (name == "flows") {
            std::istringstream(value) >> record->LoadedFlows[last][++phase.burstCount];
        } else if (name == "times") {
            for (int more = std::stoi(value); more > 1; --more) {
                record->LoadedPhases[++record->LoadedPhaseCount] = phase;
                record->LoadedFlows[record->LoadedPhaseCount] = record->LoadedFlows[last];
            }
        } else {
            std::visit([&](auto each) { std::istringstream(value) >> phase.*each; },
                       NamedFields.at(name));
        }
    }
};

/// A form at the beginning of a scene, and its user.
class Scene : public FormTest {
public:
    Scene() {
        platform.dataPath = leftOut = folder / "";
        platform.whileMessageShows = [this] { HearMessage(); };
        form.random = [this] { return Draw(); };
        before = Look();
    }
    using FormTest::form, FormTest::Load;

    void Write(const Told& told) {
        EXPECT_TRUE(WriteRecordFile(folder / told.file, *told.record)) << told.file;
        before = Look();
    }
    /// What no user does. False if the act is one of a user.
    bool Prepare(const Act& act) {
        if (act.verb == "demo") {
            WriteBytes(folder / act.name, ReadBytes(TEPHREX_DATA "/TephrexDemo.rec"));
        } else if (act.verb == "bytes") {
            WriteBytes(folder / act.name, Unwritten(act.text));
        } else if (act.verb == "same") {
            EXPECT_EQ(ReadBytes(folder / act.name), ReadBytes(folder / act.text)) << act.told;
        } else if (act.verb == "draws") {
            for (const std::string& draw : WordsOf(act.name + ' ' + act.text)) {
                draws.push_back(std::stof(draw));
            }
        } else if (act.verb == "separators") {
            form.separators = {Unwritten(act.name), Unwritten(act.text)};
        } else if (act.verb == "filling") {
            form.FormFilling = act.name == "true";
        } else {
            return false;
        }
        before = Look();
        return true;
    }
    /// An act that finds its control closed to the user fails unless it begins with "refused".
    void Use(const Act& act) {
        const bool refused = act.verb == "refused";
        const Act users(refused ? act.told.substr(act.verb.size()) : act.told);
        Control* const control = form.Find(users.name);
        if (control == nullptr || control->OpenToUser() == refused) {
            ADD_FAILURE() << act.told << ": there is no such control, or it is open or closed";
            return;
        }
        const std::string answering = "answering ";
        const bool answers = users.text.starts_with(answering);
        for (const std::string& name : WordsOf(answers ? users.text.substr(9) : "")) {
            platform.answers.emplace_back(name[0] == '/' ? name : folder / name);
            if (name == "cancel") {
                platform.answers.back().reset();
            }
        }
        const std::size_t asked = platform.offered.size() + platform.answers.size();
        Do(*control, users.verb, users.text);
        EXPECT_EQ(platform.offered.size(), asked) << act.told << ": dialogs and answers";
        platform.answers.clear();
    }
    /// All that has changed, a line of items for each kind; nothing is new after that.
    std::vector<Items> Happened() {
        HearDialogs();
        std::vector<Items> lines = std::exchange(heard, {});
        for (; helped < platform.helpCommands.size(); ++helped) {
            lines.push_back({"help " + std::to_string(platform.helpCommands[helped])});
        }
        std::unique_ptr<Snapshot> now = Look();
        std::ranges::move(before->ChangesTo(*now), std::back_inserter(lines));
        before = std::move(now);
        if (drawn > 0) {
            lines.push_back({"drew " + std::to_string(std::exchange(drawn, 0))});
        }
        return lines;
    }
    /// What Save says of a record that has passed until now, and which flow it then shows.
    std::string Verdict() {
        form.txtSlide6.PressKey(form.txtSlide6.Text());
        form.Command2.Press();
        if (platform.messages.empty()) {
            return platform.offered.size() == 2 ? "passes" : "is not asked for a name";
        }
        const std::string text = platform.messages.back().text;
        const bool flow = text.find(" Flow ") != std::string::npos;
        return '"' + Snapshot::Shown(text, folder / "") + '"' +
               (flow ? " at " + form.cmbFlow.Text() : "");
    }

private:
    static std::string VerbOf(MessageIcon icon) {
        switch (icon) {
            case MessageIcon::Information: return "tells";
            case MessageIcon::Exclamation: return "warns";
            case MessageIcon::Stop: return "stops";
        }
        return "shows an icon without a word";
    }
    void HearDialogs() {
        for (; offered < platform.offered.size(); ++offered) {
            heard.push_back({"asks " + form.CD1.DialogTitle + ", offering " +
                             Snapshot::Shown(platform.offered[offered], folder / "")});
        }
    }
    // With the phase that is named then: the form moves only after the message.
    void HearMessage() {
        HearDialogs();
        const Message& message = platform.messages.back();
        heard.push_back({VerbOf(message.icon) + " \"" + Snapshot::Shown(message.text, folder / "") +
                         "\" over " + form.cmbPhase.Text()});
        EXPECT_EQ(message.title, "TephrexEdit");
    }
    Single Draw() {
        ++drawn;
        const Single r = draws.empty() ? 0.5F : draws.front();
        if (!draws.empty()) {
            draws.pop_front();
        }
        return r;
    }
    std::unique_ptr<Snapshot> Look() const { return std::make_unique<Snapshot>(form, folder / ""); }
    void TestBody() override {}

    std::unique_ptr<Snapshot> before;
    std::vector<Items> heard;
    std::deque<Single> draws;
    int drawn = 0;
    std::size_t offered = 0;
    std::size_t helped = 0;
};

class StoryTest : public testing::TestWithParam<std::string> {
protected:
    /// An act and what happened: on one line if there is room, and else on lines of their own.
    std::string Happened(const Act& act) {
        const auto happening = Happening(act);
        if (!happening) {
            return act.told;
        }
        Items all;
        for (const Items& items : *happening) {
            all.push_back(Joined(items, "  "));
        }
        constexpr std::size_t width = 100;
        const std::string padding(34 - std::min<std::size_t>(34, act.told.size()), ' ');
        std::string text =
            act.told + padding + " : " + (all.empty() ? "nothing" : Joined(all, "  "));
        if (text.size() <= width) {
            return text;
        }
        text = act.told;
        for (const Items& items : *happening) {
            std::string line = "  ";
            for (const std::string& item : items) {
                Items words = item.size() + 5 > width ? WordsOf(item) : Items{item};
                words.front().insert(0, " ");
                for (const std::string& word : words) {
                    if (line.size() + word.size() >= width) {
                        text += '\n' + line;
                        line = "    ";
                    }
                    line += ' ' + word;
                }
            }
            text += '\n' + line;
        }
        return text;
    }

private:
    // Nothing of an act of which no change is told.
    std::optional<std::vector<Items>> Happening(const Act& act) {
        const std::string rest = act.told.substr(std::min(act.told.size(), act.verb.size() + 1));
        if (act.verb == "file" || act.verb == "given") {
            Flush();
            pending = Told{act.verb == "file" ? act.name : "given.rec"};
            begins = act.verb == "given";
            pending->AddPhase(begins ? rest : act.text);
        } else if (act.verb == "and") {
            pending->AddPhase(rest);
        } else if (act.verb == "set") {
            pending->Set(rest);
        } else if (act.verb == "quietly") {
            Happening(Act(rest));
        } else if (act.verb == "new") {
            Begin({});
        } else if (act.verb == "start") {
            scene = std::make_unique<Scene>();
            scene->Load();
            return scene->Happened();
        } else if (act.verb == "judge" || act.verb == "mend") {
            return Judged(act.verb == "judge", rest);
        } else if (act.verb == "number") {
            const std::string text = Unwritten(rest);
            return {{{NumberText(ParseLeadingNumber(text, scene->form.separators))}}};
        } else if (act.verb == "reads") {
            return Read(Unwritten(rest));
        } else if (act.verb == "item") {
            const std::string item = Unwritten(rest);
            return std::vector<Items>(1, Read(",,,1,20,,P,1," + item + ',' + item + ",0").back());
        } else if (act.verb == "written") {
            std::vector<Items> texts;
            for (int i = 0; i < 4; ++i) {
                texts.push_back({scene->form.TextOf(std::stof(act.name), Format{i})});
            }
            return texts;
        } else {
            Flush();
            if (!scene->Prepare(act)) {
                scene->Use(act);
                return scene->Happened();
            }
        }
        return std::nullopt;
    }

    // What a file of these bytes leaves of a reference, a count, a scale, a Single and an Integer.
    static std::vector<Items> Read(const std::string& bytes) {
        const auto record = std::make_unique<EditorState>();
        record->StratFile = "old";
        record->LoadedPhaseCount = 7;
        record->RecordScale = 9;
        PhaseRecord& phase = record->LoadedPhases[1];
        phase.ventLocation = phase.eruptionType = 77;
        std::stringbuf source(bytes);
        return {{ReadRecord(source, *record) ? "whole" : "fails"},
                {'"' + Snapshot::Shown(record->StratFile) + '"'},
                {std::to_string(record->LoadedPhaseCount), std::to_string(record->RecordScale)},
                {NumberText(phase.ventLocation), std::to_string(phase.eruptionType)}};
    }

    // A form in which a record has been opened, or a new one; nothing of it is told.
    void Begin(const Told& told) {
        scene = std::make_unique<Scene>();
        scene->Load();
        if (told.record->LoadedPhaseCount > 0) {
            scene->Write(told);
            scene->Use(Act("press cmdOpen answering " + told.file));
        }
        scene->Happened();
    }
    void Flush() {
        if (pending && begins) {
            Begin(*pending);
        } else if (pending) {
            scene->Write(*pending);
        }
        pending.reset();
    }
    // Of a phase that has never been on show.
    std::vector<Items> Judged(bool anew, const std::string& words) {
        if (anew) {
            judged = Told{"judged.rec"};
            judged.AddPhase("Erosion scale 20");
            judged.AddPhase(words);
        } else {
            judged.Set(words);
        }
        Begin(judged);
        return {{scene->Verdict()}};
    }

    std::unique_ptr<Scene> scene;
    std::optional<Told> pending;
    bool begins = false;
    Told judged;
};

TEST_P(StoryTest, HappensAsItIsTold) {
    const std::string told = ReadBytes(TEPHREX_STORIES + ('/' + GetParam()));
    std::istringstream lines(told);
    std::string happened;
    for (std::string line; std::getline(lines, line);) {
        const std::size_t end = line.find_last_not_of(' ', line.find(" : ")) + 1;
        if (line.empty() || line.starts_with('#')) {
            happened += line + '\n';
        } else if (!line.starts_with(' ')) {
            happened += Happened(Act(line.substr(0, end))) + '\n';
        }
    }
    if (const char* const folder = std::getenv("TEPHREX_AS_HAPPENED")) {
        WriteBytes(folder + ('/' + GetParam()), happened);
    }
    const auto same = std::ranges::mismatch(told, happened).in2;
    const std::size_t line =
        happened.rfind('\n', static_cast<std::size_t>(same - happened.begin()));
    EXPECT_TRUE(told == happened && !told.empty())
        << GetParam() << ':' << std::count(happened.begin(), same, '\n') + 1 << ": what happens is"
        << happened.substr(std::min(line, happened.size()), 800);
}

Items Stories() {
    Items names;
    for (const auto& file : std::filesystem::directory_iterator(TEPHREX_STORIES)) {
        if (file.path().extension() == ".txt") {
            names.push_back(file.path().filename());
        }
    }
    return names;
}

INSTANTIATE_TEST_SUITE_P(All, StoryTest, testing::ValuesIn(Stories()), [](const auto& story) {
    return story.param.substr(0, story.param.find('.'));
});

}  // namespace
