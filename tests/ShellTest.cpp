// Where no user gets: steps of the start that fail, states that no act leads to, paths of any
// bytes.
#include "TestForm.h"
#include "editing/FieldHandlers.h"
#include "record/WorkingCopy.h"
#include "rules/Activation.h"
#include "shell/PathText.h"

namespace {

class FailingPlatform : public TestPlatform {
public:
    explicit FailingPlatform(const RecordEdit& theForm, Form& same)
        : TestPlatform(same), form(theForm) {}
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

TEST_F(FormTest, EveryControlOfTheUserHasItsHandlers) {
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
        for (const Event* event : events) {
            EXPECT_TRUE(*event) << control->Name();
        }
    }
}

TEST_F(FormTest, AStepOfTheStartThatFailsIsSkipped) {
    EXPECT_EQ(std::pair(platform.left, platform.top), std::pair(5700, 4000));
    const auto bare = std::make_unique<RecordEdit>();
    FailingPlatform failing(*bare, *bare);
    bare->services = form.services;
    bare->services.window = &failing;
    bare->services.createPathHelper = {};  // throws when it is called
    bare->services.createSettingsStore = [] { return std::make_unique<TestSettings>("/data"); };
    Form_Load(*bare);
    EXPECT_EQ(failing.seen, "(New)0");  // on the screen before its lists are filled
    EXPECT_EQ(bare->CD1.InitDir + bare->DataPath + bare->txtTopFile.Text(), "/data/data(None)");
    EXPECT_EQ(bare->cmbType.Entries().size(), 9U);
    bare->RecFile = "a.rec";  // shown as it is, for want of a helper
    ReadData(*bare);
    EXPECT_EQ(bare->labRecfile.Caption(), "a.rec");
    bare->services.createSettingsStore = {};
    bare->settingsStore.reset();
    Form_Load(*bare);
    EXPECT_EQ(bare->DataPath, "/data");
    EXPECT_EQ(bare->labRecfile.Caption(), "a.rec");
}

TEST_F(FormTest, AnEntryThatNamesNoPhaseShowsThePhaseAgain) {
    Open({GoodPhase(EruptionType::Plinian), GoodPhase(EruptionType::Collapse)});
    Pick(form.cmbPhase, "Phase 2");
    for (const char* entry : {"Phase 02", "Phase 3", "Phase 2 ", "Phase +1", "Phase", "phase 1"}) {
        form.cmbPhase.AddItem(entry);
        Pick(form.cmbPhase, entry);
        EXPECT_EQ(form.CurPhase, 2) << entry;
    }
}

TEST_F(FormTest, ADisplayBeyondTheTablesIsToldAndEnds) {
    Open({GoodPhase(EruptionType::Plinian)});
    form.CurPhase = 501;
    Pick(form.cmbPhase, "Phase 1");
    EXPECT_EQ(form.CurPhase, 1);
    form.CurPhase = 501;
    form.cmbPhase.AddItem("Phase 9");
    Pick(form.cmbPhase, "Phase 9");
    DataActivate(form, EruptionType::Plinian);
    std::string told;
    for (const Message& message : platform.messages) {
        told += message.text.substr(0, message.text.find(':')) + '.';
    }
    EXPECT_EQ(told, "RecordEdit ShowData error.RecordEdit DataActivate error.");
}

TEST_F(FormTest, TheFirstTypeOfReferencesIsOfferedWhicheverWasChosenBefore) {
    form.CD1.FilterIndex = 2;
    form.cmdChange.Press();
    EXPECT_EQ(form.CD1.FilterIndex, 1);
}

TEST_F(FormTest, AControlThatIsNoBoxTakesNoSelectionAlong) {
    form.txtLoc.TakeFocus();
    form.txtLoc.Select(1, 1);
    form.cmdHelp.TakeFocus();
    SelectActiveText(form);
    EXPECT_EQ(form.txtLoc.SelLength(), 1U);
}

TEST(FlowDurationsTest, EveryRunStartsWithTheSameDraw) {
    EXPECT_EQ(NewRandomSource()(), 13668795 / 16777216.0F);
}

TEST(ShortenPathTest, CountsCodePointsAndBytesThatBelongToNone) {
    // clang-format off
    const std::pair<std::string, std::size_t> rows[] = {
        {"a", 1}, {"\xC3\xA9", 1}, {"\xE2\x82\xAC", 1}, {"\xF0\x9F\x98\x80", 1}, {"\xFF", 1},
        {"\xE2\x82", 2}, {"\xC1\xBF", 2}, {"\xE0\x9F\xBF", 3}, {"\xE0\xA0\x80", 1},
        {"\xED\x9F\xBF", 1}, {"\xED\xA0\x80", 3}, {"\xF0\x8F\xBF\xBF", 4}, {"\xF0\x90\x80\x80", 1},
        {"\xF4\x8F\xBF\xBF", 1}, {"\xF4\x90\x80\x80", 4}, {"\xF5\x80\x80\x80", 4}};
    // clang-format on
    for (const auto& [bytes, count] : rows) {
        const std::string kept = bytes + std::string(37 - count, 'b');
        EXPECT_EQ(ShortenPath("abc" + kept), "abc" + kept);
        EXPECT_EQ(ShortenPath("abcd" + kept), "..." + kept);
    }
}

}  // namespace
