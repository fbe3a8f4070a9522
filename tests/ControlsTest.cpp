// The control layer: what raises what, in which order, and who is kept out; and the catalogue.
#include "Doors.h"
#include "form/Catalogue.h"

namespace {

// A form of which no event has a handler but those that tell of themselves.
class ControlsTest : public testing::Test {
protected:
    RecordEdit form;
    TextBox& box = form.txtLoc;
    std::string log;  // the events, and in brackets what the observer is told and finds then

    ControlsTest() {
        form.Observer = [this](Control& told) {
            const std::string entries = std::to_string(form.cmbFlow.Entries().size());
            const std::string token = '[' +
                                      (&told == &box            ? box.Text()
                                       : &told == &form.cmbFlow ? "cmbFlow" + entries
                                                                : told.Name()) +
                                      ']';
            log += log.ends_with(token) ? "" : token;
        };
        const std::pair<Event*, const char*> events[] = {
            {&box.Change, "Change"},         {&box.KeyPress, "Key"},
            {&box.GotFocus, "Focus"},        {&box.MouseMove, "Mouse"},
            {&form.chkCald.Click, "Check"},  {&form.cmbFlow.Click, "Pick"},
            {&form.optLarge.Click, "Large"}, {&form.optSmall.Click, "Small"},
            {&form.cmdHelp.Click, "Press"}};
        for (const auto& [event, name] : events) {
            *event = [this, said = name] { log += said; };
        }
    }
    std::string After(const std::string& acts) {
        log.clear();
        std::istringstream all(acts);
        for (std::string each; std::getline(all >> std::ws, each, ',');) {
            const Act act(each);
            Do(*form.Find(act.name), act.verb, act.text);
        }
        return log;
    }
};

TEST_F(ControlsTest, AnActRaisesItsEventsBehindStoringAndTellingTheObserver) {
    form.cmbFlow.AddItem("x");
    const std::pair<const char*, const char*> rows[] = {
        {"edit txtLoc a, edit txtLoc a", "[a]Change"},
        {"key txtLoc b, key txtLoc b", "Key[b]ChangeKey"},
        {"toggle chkCald, toggle chkCald", "[chkCald]Check[chkCald]Check"},
        {"choose optLarge, choose optLarge", "[optLarge]Large"},
        {"choose optSmall", "[optSmall][optLarge]Small"},
        {"pick cmbFlow x, pick cmbFlow x, type cmbFlow y", "[cmbFlow1]PickPick[cmbFlow1]"},
        {"press cmdHelp, press cmdHelp", "PressPress"},
        {"focus txtLoc, focus txtLoc", "Focus"},
        {"focus cmbFlow, focus txtLoc, mouse txtLoc", "FocusMouse"}};
    for (const auto& [acts, happened] : rows) {
        EXPECT_EQ(After(acts), happened) << acts;
    }
    for (const bool hidden : {false, true}) {
        for (Control* each : form.Controls()) {
            each->SetEnabled(hidden);
            each->SetVisible(!hidden);
        }
        for (const auto& [acts, happened] : rows) {
            EXPECT_EQ(After(acts), "") << acts << " at a closed door";
        }
    }
    EXPECT_EQ(form.ActiveControl(), &box);
    form.cmbFlow.SetVisible(true);
    log.clear();
    form.cmbFlow.Pick(1);  // no such entry
    EXPECT_EQ(form.cmbFlow.Text() + log, "y");
}

TEST_F(ControlsTest, CodePassesClosedDoorsAndASetterThatChangesNothingRaisesNothing) {
    for (Control* each : form.Controls()) {
        each->SetEnabled(false);
    }
    log.clear();
    for (int i = 0; i < 2; ++i) {
        box.SetText("a");
        form.chkCald.SetValue(1);
        form.optLarge.SetValue(true);
        form.cmdHelp.SetCaption("c");
        form.cmbFlow.SetText("y");
    }
    EXPECT_EQ(log, "[a]Change[chkCald]Check[optLarge]Large[cmdHelp][cmbFlow0]");
    form.chkCald.SetValue(2);
    EXPECT_EQ(form.chkCald.Value(), 0);
    log.clear();
    form.cmbFlow.AddItem("x");
    box.SetText("added");
    form.cmbFlow.AddItem("y");
    box.SetText("removed");
    form.cmbFlow.RemoveItem(0);
    EXPECT_THROW(form.cmbFlow.RemoveItem(1), std::out_of_range);
    EXPECT_EQ(form.cmbFlow.Text() + form.cmbFlow.Entries().at(0), "yy");
    form.cmbFlow.SetText("");
    box.SetText("");
    form.cmbFlow.RemoveItem(0);  // the last one
    form.cmbFlow.AddItem("z");
    form.cmbFlow.Clear();  // of entries alone
    form.cmbFlow.Clear();
    EXPECT_EQ(log,
              "[cmbFlow1][added]Change[cmbFlow2][removed]Change[cmbFlow1][]Change[cmbFlow0]"
              "[cmbFlow1][cmbFlow0]");
    EXPECT_EQ(form.cmbFlow.Text(), "");
}

TEST_F(ControlsTest, AHandlerThatRewritesItsBoxReadsTheNewTextAndTheSelectionStaysInside) {
    box.Change = [this] {
        box.SetText("1");
        log += "reads " + box.Text();
    };
    EXPECT_EQ(After("edit txtLoc 22"), "[22][1]reads 1reads 1");
    const std::size_t rows[][4] = {{0, 9, 0, 3}, {1, 1, 1, 1}, {2, 2, 2, 1}, {9, 1, 3, 0}};
    box.Change = nullptr;
    box.SetText("abc");
    for (const auto& [start, length, from, selected] : rows) {
        box.Select(start, length);
        EXPECT_EQ(std::pair(box.SelStart(), box.SelLength()), std::pair(from, selected)) << start;
    }
    box.PressKey("abcd", 1);
    EXPECT_TRUE(box.SelStart() == 1 && box.SelLength() == 0);
}

TEST_F(FormTest, TheCatalogueHoldsTheControlsOfTheForm) {
    std::vector<int> kinds(8);
    int places = 0;
    std::string captions;
    for (const CatalogueRow& row : Catalogue()) {
        EXPECT_TRUE(row.frame.empty() || dynamic_cast<Frame*>(form.Find(row.frame))) << row.name;
        places += row.left + 2 * row.top + 3 * row.width + 4 * row.height + 5 * row.tab;
        ++kinds.at(static_cast<std::size_t>(row.kind));
        if (row.kind != ControlKind::Label && !row.caption.empty()) {
            captions += std::string(row.caption) + '|';
        }
    }
    for (const auto& names : {LabelsOf(), SpokenNames(), SpokenDescriptions(), ToolTips()}) {
        for (const NamedText& name : names) {
            EXPECT_NE(form.Find(name.control), nullptr) << name.control;
        }
    }
    EXPECT_EQ(kinds, (std::vector{4, 28, 22, 5, 3, 3, 8, 1}));
    EXPECT_EQ(places, 777270);  // none has moved unnoticed
    EXPECT_EQ(captions,
              "File|Primary Parameters|Cancel|OK|Help|Advanced Parameters|Mapping Parameters|"
              "Stratigraphic File|Large|Normal|Small|Select Phase|Caldera Style|Caldera:|Directed:|"
              "Explosive bursts:|Select Parameters|Delete|Down Side|Add|Flow Duration|Reset|");
}

}  // namespace
