// What the stories leave out: steps of the start that fail, states that no user action leads to,
// the properties of dialogs and help, paths of any bytes.
#include "TestForm.h"
#include "editing/FieldHandlers.h"
#include "record/WorkingCopy.h"
#include "rules/Activation.h"
#include "shell/PathText.h"

namespace {

class FailingPlatform : public TestPlatform {
public:
    explicit FailingPlatform(RecordEdit& theForm) : TestPlatform(theForm), form(theForm) {}
    using TestPlatform::Show;
    Extent ScreenSize() override { throw std::runtime_error("no screen"); }
    void Show() override { throw std::runtime_error("no window"); }
    void RunPendingEvents() override {
        seen = form.labRecfile.Caption() + std::to_string(form.cmbType.Entries().size());
    }
    std::string seen;

private:
    const RecordEdit& form;
};

TEST_F(FormTest, EachControlThatTakesUserActionsHasItsHandlers) {
    for (const Control* control : form.Controls()) {
        std::vector<const Event*> events;
        if (const auto* box = dynamic_cast<const TextBox*>(control)) {
            events = {&box->Change, &box->KeyPress, &box->GotFocus};
        } else if (const auto* list = dynamic_cast<const ComboBox*>(control)) {
            events = {&list->Click};
        } else if (const auto* button = dynamic_cast<const CommandButton*>(control)) {
            events = {&button->Click};
        } else if (const auto* check = dynamic_cast<const CheckBox*>(control)) {
            events = {&check->Click};
        } else if (const auto* option = dynamic_cast<const OptionButton*>(control)) {
            events = {&option->Click};
        }
        for (const Event* event : events) EXPECT_TRUE(*event) << control->Name();
    }
}

TEST_F(FormTest, AFailedStepOfTheStartIsSkipped) {
    EXPECT_EQ(std::pair(platform.left, platform.top), std::pair(5700, 4000));
    const auto bare = std::make_unique<RecordEdit>();
    FailingPlatform failing(*bare);
    bare->services = form.services;
    bare->services.window = &failing;
    bare->services.createPathHelper = {};  // a call of which throws
    bare->services.createSettingsStore = [] { return std::make_unique<TestSettings>("/data"); };
    Form_Load(*bare);
    EXPECT_EQ(failing.seen, "(New)0");  // visible before its lists are filled
    EXPECT_EQ(bare->CD1.InitDir + bare->DataPath + bare->txtTopFile.Text(), "/data/data(None)");
    EXPECT_EQ(bare->cmbType.Entries().size(), 9U);
    bare->RecFile = "a.rec";  // shown as it is: there is no path helper
    ReadData(*bare);
    EXPECT_EQ(bare->labRecfile.Caption(), "a.rec");
    bare->services.createSettingsStore = {};
    bare->settingsStore.reset();
    Form_Load(*bare);
    EXPECT_EQ(bare->DataPath, "/data");
    EXPECT_EQ(bare->labRecfile.Caption(), "a.rec");
}

TEST_F(FormTest, AnEntryThatIsNotAPhaseShowsTheCurrentPhaseAgain) {
    Open({GoodPhase(EruptionType::Plinian), GoodPhase(EruptionType::Collapse)});
    Pick(form.cmbPhase, "Phase 2");
    for (const char* entry : {"Phase 02", "Phase 3", "Phase 2 ", "Phase +1", "Phase", "phase 1"}) {
        form.cmbPhase.AddItem(entry);
        Pick(form.cmbPhase, entry);
        EXPECT_EQ(form.CurPhase, 2) << entry;
    }
}

TEST_F(FormTest, ShowingAPhaseOutsideTheTableReportsAnError) {
    Open({GoodPhase(EruptionType::Plinian)});
    form.CurPhase = 501;
    Pick(form.cmbPhase, "Phase 1");
    EXPECT_EQ(form.CurPhase, 1);
    form.CurPhase = 501;
    form.cmbPhase.AddItem("Phase 9");
    Pick(form.cmbPhase, "Phase 9");
    DataActivate(form, EruptionType::Plinian);
    std::string reported;
    for (const Message& message : platform.messages) {
        reported += message.text.substr(0, message.text.find(':')) + '.';
    }
    EXPECT_EQ(reported, "RecordEdit ShowData error.RecordEdit DataActivate error.");
}

TEST_F(FormTest, EachDialogSetsAllItsProperties) {
    Open({GoodPhase(EruptionType::Plinian)});
    form.Command2.SetEnabled(true);
    CommonDialog& dialog = form.CD1;
    const std::pair<CommandButton*, std::string> rows[] = {
        {&form.cmdChange,
         "Open Stratigraphic File: Stratigraphic Files (*.str)|*.str;*.STR|"
         "Topographic Files (*.top)|*.top;*.TOP| type 1, flags 4096, adds none"},
        {&form.cmdOpen,
         "Open Record File: Recorder Files (*.rec)|*.rec;*.REC| type 2, flags 4096, adds none"},
        {&form.Command2, "Save Record File: Record File (*.rec)|*.rec| type 2, flags 2, adds rec"}};
    for (const auto& [button, properties] : rows) {
        dialog.DialogTitle = dialog.Filter = "old";
        dialog.DefaultExt = "none";
        dialog.FilterIndex = 2;
        dialog.Flags = 0;
        dialog.CancelError = false;
        button->Press();
        EXPECT_TRUE(dialog.CancelError);
        EXPECT_EQ(dialog.DialogTitle + ": " + dialog.Filter + " type " +
                      std::to_string(dialog.FilterIndex) + ", flags " +
                      std::to_string(dialog.Flags) + ", adds " + dialog.DefaultExt,
                  properties);
    }
    EXPECT_EQ(platform.asked.size(), 4U);
}

TEST_F(FormTest, HelpShowsTheTopicOfTheEditorAndClosesWithTheForm) {
    form.cmdHelp.Press();
    EXPECT_EQ(form.CD1.HelpFile, "/opt/tephrex\\Tephrex3.hlp");
    EXPECT_EQ(form.CD1.HelpContext, 94);
    form.Command1.Press();
    EXPECT_EQ(platform.helpCommands, (std::vector{1, 2}));
    EXPECT_FALSE(form.pathHelper || form.settingsStore);
}

TEST_F(FormTest, ChoicesAreIgnoredWhileTheFormIsBeingFilled) {
    PhaseRecord phase = GoodPhase(EruptionType::Hawaiian);
    phase.burstCount = 2;
    Open({phase}, {100, 200});
    const auto before = std::make_unique<EditorState>(form);
    form.FormFilling = true;
    for (Control* control : form.Controls()) control->SetEnabled(control != &form.Command2);
    Pick(form.cmbFlow, "Flow 2 Duration");
    Pick(form.cmbStyle, "Valles Type");
    Pick(form.cmbDown, "Right side down");
    for (CheckBox* box : {&form.chkCald, &form.chkDirected, &form.chkBurst}) box->Toggle();
    EXPECT_TRUE(form.EditPhases == before->EditPhases && !form.Command2.Enabled());
    EXPECT_EQ(form.txtLava.Text(), "100.0");
}

TEST_F(FormTest, ShowingEachPhaseOfTheDemonstrationRecordChangesNoByteOfIt) {
    const std::string saved = folder / "tephrexDemo.rec";
    platform.answers = {TEPHREX_DATA "/TephrexDemo.rec", saved};
    form.cmdOpen.Press();
    for (int i = form.LoadedPhaseCount; i > 0; --i) {
        form.cmbPhase.Pick(static_cast<std::size_t>(i) - 1);
    }
    form.txtTopFile.PressKey("(None)");
    form.Command2.Press();
    EXPECT_EQ(ReadBytes(saved), ReadBytes(TEPHREX_DATA "/TephrexDemo.rec"));
}

TEST_F(FormTest, ABoxKeepsItsSelectionWhenAButtonTakesTheFocus) {
    form.txtLoc.TakeFocus();
    form.txtLoc.Select(1, 1);
    form.cmdHelp.TakeFocus();
    SelectActiveText(form);
    EXPECT_EQ(form.txtLoc.SelLength(), 1U);
}

TEST(FlowDurationsTest, EachRunStartsWithTheSameDraw) {
    EXPECT_EQ(NewRandomSource()(), 13668795 / 16777216.0F);
}

TEST(ShortenPathTest, CountsCodePointsAndEachByteThatIsNotUtf8) {
    // clang-format off
    const std::pair<std::string, std::size_t> rows[] = {
        {"a", 1}, {"\xC3\xA9", 1}, {"\xE2\x82\xAC", 1}, {"\xF0\x9F\x98\x80", 1}, {"\xFF", 1},
        {"\xE2\x82", 2}, {"\xC1\xBF", 2}, {"\xE0\x9F\xBF", 3}, {"\xE0\xA0\x80", 1},
        {"\xED\x9F\xBF", 1}, {"\xED\xA0\x80", 3}, {"\xF0\x8F\xBF\xBF", 4}, {"\xF0\x90\x80\x80", 1},
        {"\xF4\x8F\xBF\xBF", 1}, {"\xF4\x90\x80\x80", 4}, {"\xF5\x80\x80\x80", 4}};
    // clang-format on
    for (const auto& [bytes, count] : rows) {
        const std::string others(37 - count, 'b');
        for (const std::string& kept : {bytes + others, others + bytes}) {
            EXPECT_EQ(ShortenPath("abc" + kept), "abc" + kept);
            EXPECT_EQ(ShortenPath("abcd" + kept), "..." + kept);
        }
    }
}

}  // namespace
