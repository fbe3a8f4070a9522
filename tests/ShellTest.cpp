// Opening, saving and resetting a record, its reference and scale; the form's start and end.
#include <sys/stat.h>
#include <unistd.h>

#include "TestForm.h"
#include "record/WorkingCopy.h"

namespace {

// clang-format off
// A control, the text for it (to a dialog a name, "-" cancels), and the state that this leaves: record, name on show, wind of
// phase 1 loaded/edited, reference loaded>edited, scale and option, * to be saved, ?name in the last dialog, messages.
const char* const Acts = R"(
    optLarge :  (New) 0/0 > 100L; txtTopFile nONE:  (New) 0/0 >(None) 100L; optSmall :  (New) 0/0 >(None) 4S;
    txtTopFile (none):  (New) 0/0 >(none) 4S; txtTopFile :  (New) 0/0 >(None) 4S; cmdChange s:  (New) 0/0 >s 4S ?;
    cmdAdd :  (New) 0/0 >s 4S; cmbType Erosion:  (New) 0/0 >s 4S*; Command2 -:  (New) 0/0 s>s 4S* ?;
    cmdReset :  (New) 0/0 > 20N; optLarge :  (New) 0/0 > 100L; cmdOpen S: S S 10/10 > 4S ?; cmdOpen L: L L 10/10 > 100L ?S;
    cmdOpen O: O O 10/10 > 7L ?L; cmdOpen a: a a 10/10 > 20N ?O; cmdOpen Z: Z Z 10/10 > 20N ?a; optNormal : Z Z 10/10 > 20N;
    optSmall : Z Z 10/10 > 4S*; cmdReset : Z Z 10/10 > 4S; optNormal : Z Z 10/10 > 20N*; cmdOpen -: Z Z 10/10 > 20N* ?Z;
    txtWind 51: Z Z 10/51 > 20N*; Command2 b: Z Z 10/51 > 20N* TephrexEdit0 Phase 1 Wind speed too high;
    txtWind 11: Z Z 10/11 > 20N*; Command2 -: Z Z 11/11 > 20N* ?Z; txtWind 12: Z Z 11/12 > 20N*; cmdReset : Z Z 11/11 > 20N;
    txtTopFile s: Z Z 11/11 >s 20N*; Command2 b: b b 11/11 s>s 20N ?Z; txtTopFile t: b b 11/11 s>t 20N*;
    cmdChange -: b b 11/11 s>t 20N* ?s; cmdReset : b b 11/11 s>s 20N; cmdChange u: b b 11/11 s>u 20N* ?s;
    Command2 TephrexDemo.rec: b b 11/11 u>u 20N* ?b TephrexEdit2 Cannot replace TEPHREX Demonstration file TephrexEdit2 Cannot replace TEPHREX Demonstration file;
    Command2 Tephrexdemo.rec: Tephrexdemo.rec Tephrexdemo.rec 11/11 u>u 20N ?b; cmdOpen b: b b 11/11 s>s 20N ?Tephrexdemo.rec;
    txtWind 12: b b 11/12 s>s 20N*; Command2 full: full full 12/12 s>s 20N* ?b TephrexEdit1 Recorder file save error;
    Command2 pipe: pipe pipe 12/12 s>s 20N* ?full TephrexEdit1 Recorder file save error;
    Command2 shut/c: c c 12/12 s>s 20N* ?pipe TephrexEdit1 Recorder file save error;
    Command2 none/d: d d 12/12 s>s 20N* ?c TephrexEdit1 Recorder file save error; txtTopFile ": d d 12/12 s>" 20N*;
    Command2 b: b b 12/12 ">" 20N* ?d TephrexEdit1 Recorder file save error; cmdOpen cut: cut b 5/12 >" 20N* ?b;
    cmdOpen shut: shut b 5/12 >" 20N* ?cut; cmdOpen pipe: pipe b 5/12 >" 20N* ?shut; cmdOpen none: none b 5/12 >" 20N* ?pipe;
    cmdOpen /dev/null: null b 5/12 >" 20N* ?none; cmdOpen locked: locked b 5/12 >" 20N* ?null;
    cmdOpen b: b b 11/11 s>s 20N ?locked; cmdOpen flows: flows b 7/11 >s 20N ?b; txtWind 8: flows b 7/8 >s 20N*;
    cmdReset : flows flows 7/7 > 20N TephrexEdit0 RecordEdit ReadData error; txtWind 9: flows flows 7/9 > 20N*;
    Command1 : flows flows 7/9 > 20N*)";

std::string Name(const std::string& path) { return path.substr(path.rfind('/') + 1); }

class ShellTest : public FormTest {
protected:
    void Use(const std::string& name, const std::string& text = "") {
        const auto answer = text == "-" ? std::nullopt : std::optional(folder / text);
        platform.answers = {answer, answer, std::nullopt};
        platform.offered.clear(), platform.messages.clear(), form.CD1.CancelError = false;
        Control* const control = form.Find(name);
        if (auto* const box = dynamic_cast<TextBox*>(control)) { box->PressKey(text); }
        if (auto* const list = dynamic_cast<ComboBox*>(control)) { Pick(*list, text); }
        if (auto* const option = dynamic_cast<OptionButton*>(control)) { option->Choose(); }
        if (auto* const button = dynamic_cast<CommandButton*>(control)) { button->Press(); }
    }
    std::string State() const {
        std::ostringstream state;
        state << ' ' << Name(form.RecFile) << ' ' << Name(form.labRecfile.Caption()) << ' ' << form.LoadedPhases[1].wind
              << '/' << form.EditPhases[1].wind << ' ' << Name(form.StratFile) << '>' << Name(form.EditStratFile) << ' '
              << form.RecordScale << (form.optLarge.Value() ? "L" : form.optNormal.Value() ? "N" : "S")
              << (form.Command2.Enabled() ? "*" : "") << (platform.offered.empty() ? "" : " ?" + Name(platform.offered.back()));
        for (const auto& [text, icon, title] : platform.messages) {
            state << ' ' << title << static_cast<int>(icon) << ' ' << text.substr(0, text.find(':'));
        }
        return state.str();
    }
    std::string TipsAndDialog() {
        form.txtTopFile.MoveMouse(), form.labRecfile.MoveMouse();
        return form.txtTopFile.ToolTipText() + '|' + form.labRecfile.ToolTipText() + '|' + form.CD1.DialogTitle +
               '|' + form.CD1.Filter + form.CD1.DefaultExt + std::to_string(form.CD1.Flags + form.CD1.CancelError) +
               std::to_string(form.CD1.FilterIndex);
    }
};

TEST_F(ShellTest, EveryActLeavesItsOwnState) {
    form.DataPath = folder / "";
    chmod(form.DataPath.c_str(), 0777);
    ASSERT_TRUE(geteuid() != 0 || seteuid(65534) == 0);  // permissions do not bind root
    const std::string phase = ",,P,1,12,1,.5,10,20,0,1,0,5,8,1,0,1,1,0,1,1,6,6,20,6,6,1,0,0,0,0";
    const std::pair<std::string, std::string> files[] = {
        {"a", "20" + phase}, {"L", "100" + phase}, {"O", "7" + phase}, {"S", "4" + phase}, {"Z", "0" + phase},
        {"locked", "20" + phase}, {"cut", "20,,P,1,12,1,.5,5"},
        {"flows", "20,,P,1,12,3,.5,7,20,0,1,0,5,8,101,0,1,1,0,1,1,6,6,20,6,6,1" + std::string(104, ',') + "9,9"}};
    for (const auto& [name, bytes] : files) { WriteBytes(folder / name, "a,,b,1," + bytes); }
    chmod((folder / "locked").c_str(), 0), mkdir((folder / "shut").c_str(), 0555), mkfifo((folder / "pipe").c_str(), 0666);
    std::filesystem::create_symlink("/dev/full", folder / "full");
    std::istringstream acts(Acts);
    for (std::string control, text, state; std::getline(acts >> std::ws, control, ' ');) {
        std::getline(acts, text, ':'), std::getline(acts, state, ';');
        Use(control, text);
        EXPECT_EQ(State(), state) << control << ' ' << text;
    }
    EXPECT_EQ(seteuid(getuid()), 0);
    EXPECT_TRUE(platform.helpCommands == std::vector{2} && form.CD1.HelpFile == "/opt/tephrex\\Tephrex3.hlp");
    EXPECT_TRUE(form.EditFlows[1][100] == 9 && !form.pathHelper && !form.settingsStore);
}

TEST_F(ShellTest, AFileThatEndsEarlyIsKeptAsFarAsItCameAndTheFormStays) {
    const std::string newer = "\"Stratigraphic file:\",\"\"\r\n\"Recorded phases\",1,4\r\n\r\n\"Record Phase: \",1\r\n"
        "2,3,2,2\r\n2,2,2,2\r\n2,2,1,2\r\n2,2,2,2,2\r\n2,2,2,2,2,2\r\n2,2,2,2\r\n2\r\n";
    std::string older = newer;
    for (char& c : older) { c = c == '4' ? '9' : c == '2' ? '8' : c; }
    int changes = 0; form.Observer = [&changes](Control&) { ++changes; };
    for (std::size_t size = 0; size <= newer.size() - 2; ++size) {
        std::stringbuf before(older), after;
        WriteBytes(folder / "cut", newer.substr(0, size));
        ASSERT_TRUE(ReadRecord(before, form));
        Use("cmdOpen", "cut");
        EXPECT_TRUE(WriteRecord(after, form));
        EXPECT_EQ(after.str(), newer.substr(0, size) + older.substr(size));
        EXPECT_EQ(changes != 0, size == newer.size() - 2) << size;
    }
}

TEST_F(ShellTest, TheDemonstrationRecordComesBackHoweverManyPhasesWereShown) {
    WriteBytes(folder / "demo", ReadBytes(TEPHREX_DATA "/TephrexDemo.rec"));
    Use("cmdOpen", "demo");
    for (const std::size_t shown : {1U, 14U}) {
        for (std::size_t i = 0; i < shown; ++i) { form.cmbPhase.Pick(i); }
        Use("txtTopFile", form.txtTopFile.Text());
        Use("Command2", std::to_string(form.CurPhase));
        EXPECT_EQ(form.RecFile, folder / std::to_string(shown));
        EXPECT_EQ(ReadBytes(form.RecFile), ReadBytes(folder / "demo"));
    }
    platform.answers.clear(), Open({GoodPhase(5), GoodPhase(5), GoodPhase(5)});  // nothing of the other record is left
    EXPECT_TRUE(form.EditFlows[3][1] == 0 && form.EditPhases[14] == PhaseRecord{} && form.cmbPhase.Entries().size() == 3);
}

TEST_F(ShellTest, TheFormComesUpOnAnEmptyRecordWhicheverStepFails) {
    struct Screenless : TestPlatform {
        using TestPlatform::Show, TestPlatform::TestPlatform;
        Extent ScreenSize() override { throw std::runtime_error("no screen"); }
        void Show() override { throw std::runtime_error("no window"); }
        void RunPendingEvents() override { dataPath = seen->labRecfile.Caption() + std::to_string(seen->cmbType.Entries().size()); }
        const RecordEdit* seen = nullptr;
    };
    const auto bare = std::make_unique<RecordEdit>();
    Screenless screenless(*bare);
    bare->services = form.services, bare->services.window = &screenless, screenless.seen = bare.get();
    bare->services.createPathHelper = {};  // throws when it is called
    bare->services.createSettingsStore = [] { return std::make_unique<TestSettings>("/data/"); };
    Form_Load(*bare);
    std::string seen = screenless.dataPath + bare->CD1.InitDir + bare->DataPath + bare->Command1.Caption() +
                       bare->Command2.Caption() + bare->labRecfile.Caption() + bare->txtTopFile.Text() +
                       bare->labPhases.Caption() + bare->cmbPhase.Text() + bare->Command1.ToolTipText();
    for (const std::string& entry : bare->cmbType.Entries()) { seen += '|' + entry; }
    EXPECT_EQ(seen, "(New)0/data//data/CloseSave(New)(None)0Add PhaseClose editor without any changes applied|Hawaiian|Peléean|"
              "Strombolian|Plinian|Vulcanian/Surtseyan|Fumarolic/Phreatic|Sector Collapse|Faulting|Erosion");
    EXPECT_TRUE(platform.left == 5700 && platform.top == 4000 && bare->optNormal.Value() && bare->cmdOpen.Visible() && bare->CurPhase == 0);
    EXPECT_FALSE(bare->cmbPhase.Enabled() || bare->cmbType.Enabled() || bare->cmdDelete.Enabled() || bare->cmdReset.Enabled());
}

TEST_F(ShellTest, TipsAndDialogsSayWhatTheyAreForAndALongReferenceIsKeptWhole) {
    const std::string path = "southern volcanic zone, plate 7/\xE9t\xE9 1.str", shown = "..." + path.substr(path.size() - 37);
    const std::string none = "No stratigraphic file attached|", opened = "Currently opened recorder file|";
    EXPECT_EQ(TipsAndDialog(), none + "Edit unsaved (new) file||01");
    Open({GoodPhase(5)});
    EXPECT_EQ(TipsAndDialog(), none + opened + "Open Record File|Recorder Files (*.rec)|*.rec;*.REC|40971");
    form.CD1.Flags = 0, form.CD1.FilterIndex = 2;
    Use("cmdChange", path);
    EXPECT_EQ(TipsAndDialog(), "Stratigraphic file, delete to remove|" + opened + "Open Stratigraphic File|"
              "Stratigraphic Files (*.str)|*.str;*.STR|Topographic Files (*.top)|*.top;*.TOP|40971");
    EXPECT_EQ(form.txtTopFile.Text() + form.EditStratFile, shown + folder / path);
    Use("Command2", "a");
    EXPECT_EQ(TipsAndDialog(), "Stratigraphic file, delete to remove|" + opened + "Save Record File|Record File (*.rec)|*.rec|rec31");
    Use("cmdOpen", "a");
    EXPECT_EQ(form.txtTopFile.Text() + form.EditStratFile, shown + folder / path);
    Use("cmdHelp");
    EXPECT_TRUE(platform.helpCommands == std::vector{1} && form.CD1.HelpFile == "/opt/tephrex\\Tephrex3.hlp" && form.CD1.HelpContext == 94);
}

TEST(ShortenPathTest, CountsCodePointsAndBytesThatBelongToNone) {
    const std::pair<std::string, std::size_t> rows[] = {
        {"a", 1}, {"\xC3\xA9", 1}, {"\xE2\x82\xAC", 1}, {"\xF0\x9F\x98\x80", 1}, {"\xFF", 1}, {"\xE2\x82", 2},
        {"\xC1\xBF", 2}, {"\xE0\x9F\xBF", 3}, {"\xE0\xA0\x80", 1}, {"\xED\x9F\xBF", 1}, {"\xED\xA0\x80", 3},
        {"\xF0\x8F\xBF\xBF", 4}, {"\xF0\x90\x80\x80", 1}, {"\xF4\x8F\xBF\xBF", 1}, {"\xF4\x90\x80\x80", 4},
        {"\xF5\x80\x80\x80", 4}};
    for (const auto& [bytes, count] : rows) {
        const std::string kept = bytes + std::string(37 - count, 'b');
        EXPECT_EQ(ShortenPath("abc" + kept) + ShortenPath("abcd" + kept), "abc" + kept + "..." + kept);
    }
}
// clang-format on

}  // namespace
