// The controls: which events come, in which order, and what a disabled or hidden control refuses;
// and the catalogue.
#include <cstdint>
#include <set>

#include "UserActions.h"
#include "form/Catalogue.h"

namespace {

// A form whose only handlers log their event.
class ControlsTest : public testing::Test {
protected:
    RecordEdit form;
    TextBox& box = form.txtLoc;
    std::string log;  // events, and in brackets what the observer finds: a control or its value

    ControlsTest() {
        form.Observer = [this](Control& changed) {
            const std::string entries = std::to_string(form.cmbFlow.Entries().size());
            const std::string token = '[' +
                                      (&changed == &box            ? box.Text()
                                       : &changed == &form.cmbFlow ? "cmbFlow" + entries
                                                                   : changed.Name()) +
                                      ']';
            log += log.ends_with(token) ? "" : token;
        };
        const std::pair<Event*, const char*> events[] = {
            {&box.Change, "Change"},         {&box.KeyPress, "Key"},
            {&box.GotFocus, "Focus"},        {&box.MouseMove, "Mouse"},
            {&form.chkCald.Click, "Check"},  {&form.cmbFlow.Click, "Pick"},
            {&form.optLarge.Click, "Large"}, {&form.optSmall.Click, "Small"},
            {&form.cmdHelp.Click, "Press"}};
        for (const auto& [event, name] : events) *event = [this, text = name] { log += text; };
    }
    std::string After(const std::string& actions) {
        log.clear();
        std::istringstream all(actions);
        for (std::string each; std::getline(all >> std::ws, each, ',');) {
            const UserAction action(each);
            Perform(*form.Find(action.name), action.verb, action.text);
        }
        return log;
    }
};

TEST_F(ControlsTest, AUserActionStoresThenCallsTheObserverThenRaisesItsEvent) {
    form.cmbFlow.AddItem("x");
    const std::pair<const char*, const char*> rows[] = {
        {"edit txtLoc a, edit txtLoc a", "[a]Change"},
        {"key txtLoc b, key txtLoc b", "Key[b]ChangeKey"},
        {"press chkCald, press chkCald", "[chkCald]Check[chkCald]Check"},
        {"press optLarge, press optLarge", "[optLarge]Large"},
        {"press optSmall", "[optSmall][optLarge]Small"},
        {"pick cmbFlow x, pick cmbFlow x, type cmbFlow y", "[cmbFlow1]PickPick[cmbFlow1]"},
        {"press cmdHelp, press cmdHelp", "PressPress"},
        {"focus txtLoc, focus txtLoc", "Focus"},
        {"focus cmbFlow, focus txtLoc, mouse txtLoc", "FocusMouse"}};
    for (const auto& [actions, logged] : rows) EXPECT_EQ(After(actions), logged) << actions;
    for (const bool hidden : {false, true}) {
        for (Control* each : form.Controls()) {
            each->SetEnabled(hidden);
            each->SetVisible(!hidden);
        }
        for (const auto& [actions, logged] : rows) {
            EXPECT_EQ(After(actions), "") << actions << " on disabled or hidden controls";
        }
    }
    EXPECT_EQ(form.ActiveControl(), &box);
    form.cmbFlow.SetVisible(true);
    log.clear();
    form.cmbFlow.Pick(1);  // no such entry
    EXPECT_EQ(form.cmbFlow.Text() + log, "y");
}

TEST_F(ControlsTest, CodeSetsDisabledControlsAndASetterThatChangesNothingRaisesNoEvent) {
    for (Control* each : form.Controls()) each->SetEnabled(false);
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

// The 64-bit FNV-1a hash.
std::uint64_t Digest(const std::string& text) {
    std::uint64_t digest = 0xCBF29CE484222325;
    for (const char c : text) digest = (digest ^ static_cast<unsigned char>(c)) * 0x100000001B3;
    return digest;
}

TEST_F(FormTest, TabsAreUniqueAndControlsFitIntoTheirFramesAndOnlyFourPairsOverlap) {
    std::set<int> tabs;
    std::set<std::string> overlaps;
    for (const CatalogueRow& row : Catalogue()) {
        if (row.kind == ControlKind::CommonDialog) continue;
        EXPECT_TRUE(tabs.insert(row.tab).second) << row.name;
        int width = FormWidth, height = FormHeight;
        for (const CatalogueRow& other : Catalogue()) {
            if (other.name == row.frame) {
                EXPECT_EQ(other.kind, ControlKind::Frame) << row.name;
                width = other.width, height = other.height;
            }
            const bool apart =
                other.left + other.width <= row.left || other.top + other.height <= row.top ||
                row.left + row.width <= other.left || row.top + row.height <= other.top;
            if (&row < &other && row.frame == other.frame && !apart) {
                overlaps.insert(std::string(row.name) + ' ' + std::string(other.name));
            }
        }
        EXPECT_TRUE(row.left >= 0 && row.top >= 0 && row.left + row.width <= width &&
                    row.top + row.height <= height)
            << row.name;
    }
    EXPECT_EQ(overlaps, (std::set<std::string>{"Label1 cmdOpen", "Label3 labPhases",
                                               "cmbFlow txtLava", "optLarge optNormal"}));
}

// If a text or a place is changed on purpose, the digest that the failure shows belongs here.
TEST_F(FormTest, TextsAndPlacesOfControlsAreUnchanged) {
    std::ostringstream all;
    for (const CatalogueRow& row : Catalogue()) {
        all << row.name << '|' << row.frame << '|' << row.caption << '|'
            << form.Find(row.name)->ToolTipText() << '|' << row.left << ' ' << row.top << ' '
            << row.width << ' ' << row.height << ' ' << row.tab << ' ' << int(row.kind) << ' '
            << int(row.look) << '\n';
    }
    for (const auto& texts : {ControlLabels(), AccessibleNames(), AccessibleDescriptions()}) {
        for (const NamedText& text : texts) {
            EXPECT_NE(form.Find(text.control), nullptr) << text.control;
            all << text.control << '|' << text.text << '\n';
        }
    }
    EXPECT_EQ(Digest(all.str()), 17837630794944164289U) << all.str();
}

}  // namespace
