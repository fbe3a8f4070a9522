// The control layer: what raises what, in which order, and who is kept out; and the catalogue.
#include <map>

#include "TestForm.h"
#include "form/Catalogue.h"

namespace {

// clang-format off
TEST(Controls, RaiseEventsInsideTheCallBehindStoringAndTellingTheObserver) {
    RecordEdit form;  // no event has a handler yet
    TextBox& box = form.txtLoc;
    ComboBox& list = form.cmbFlow;
    CheckBox& check = form.chkCald;
    std::string log;  // the events, and in brackets what the observer is told, with the text then
    form.Observer = [&](Control& told) {
        const std::string token = '[' + told.Name() + (&told == &box ? ' ' + box.Text() : "") + ']';
        log += log.ends_with(token) ? "" : token;
    };
    for (auto [event, name] : {
        std::pair(&box.Change, "Change"), {&box.KeyPress, "Key"}, {&box.GotFocus, "Focus"}, {&box.MouseMove, "Mouse"},
        {&check.Click, "Check"}, {&list.Click, "Pick"}, {&form.optLarge.Click, "Large"}, {&form.optSmall.Click, "Small"},
        {&form.cmdHelp.Click, "Press"}}) { *event = [&log, name = name] { log += name; }; }
    const auto expect = [&log](const auto& acts, const std::string& happened) {
        log.clear(), acts();
        EXPECT_EQ(log, happened);
    };
    expect([&] { box.SetText("a"), box.SetText("a"); }, "[txtLoc a]Change");
    expect([&] { box.PressKey("b"), box.PressKey("b"), box.Edit("b"); }, "Key[txtLoc b]ChangeKey");
    expect([&] { box.Edit("cd"), box.Edit("cd"), box.MoveMouse(); }, "[txtLoc cd]ChangeMouse");
    expect([&] { check.SetValue(1), check.SetValue(1), check.Toggle(), check.SetValue(2); }, "[chkCald]Check[chkCald]Check");
    expect([&] { form.optLarge.SetValue(true), form.optLarge.Choose(); }, "[optLarge]Large");
    expect([&] { form.optSmall.Choose(); }, "[optSmall][optLarge]Small");
    expect([&] { list.AddItem("x"), list.AddItem("y"), list.SetText("y"); }, "[cmbFlow]");
    expect([&] { list.Type("z"), list.RemoveItem(0), list.Pick(1); }, "[cmbFlow]");
    EXPECT_EQ(list.Text() + list.Entries().at(0), "zy");
    expect([&] { list.Pick(0), list.Pick(0), list.Clear(); }, "[cmbFlow]PickPick[cmbFlow]");
    expect([&] { form.cmdHelp.SetCaption("c"), form.cmdHelp.SetCaption("c"), form.cmdHelp.Press(); }, "[cmdHelp]Press");
    expect([&] { box.TakeFocus(), box.TakeFocus(), box.Select(1, 9); }, "Focus[txtLoc cd]");
    expect([&] { list.TakeFocus(), box.TakeFocus(), list.TakeFocus(); }, "Focus");
    EXPECT_TRUE(list.Text().empty() && box.SelLength() == 1);
    for (const bool hidden : {false, true}) {  // the user is kept out, but not code
        for (Control* each : form.Controls()) { each->SetEnabled(hidden), each->SetVisible(!hidden); }
        expect([&] { box.PressKey("k"), box.Edit("e"), box.TakeFocus(), box.MoveMouse(); }, "");
        expect([&] { check.Toggle(), form.optLarge.Choose(), list.Type("t"); }, "");
        expect([&] { list.AddItem("x"), list.Pick(0), form.cmdHelp.Press(); }, "[cmbFlow]");
        expect([&] { box.SetText("e"), check.SetValue(1); }, "[txtLoc e]Change[chkCald]Check");
        box.SetText(""), check.SetValue(0);
        EXPECT_EQ(form.ActiveControl(), &list);
    }
    box.Change = [&] { box.SetText("1"), log += "reads " + box.Text(); };
    expect([&] { box.SetText("22"); }, "[txtLoc 22][txtLoc 1]reads 1reads 1");
    EXPECT_TRUE(box.SelStart() == 1 && box.SelLength() == 0);
}

TEST_F(FormTest, TheCatalogueHoldsTheControlsOfTheFormInTabOrder) {
    const RecordEdit start;  // not loaded
    std::vector<int> kinds(8);
    std::map<int, std::string> tabs;
    int places = 0, tips = 0;
    for (const CatalogueRow& row : Catalogue()) {
        const Control* const control = start.Find(row.name);
        EXPECT_TRUE(row.frame.empty() || dynamic_cast<Frame*>(form.Find(row.frame))) << row.name;
        EXPECT_EQ(control->Enabled(), control != &start.Command2) << row.name;
        EXPECT_EQ(control->Visible(), control != &start.cmdOpen) << row.name;
        tips += form.Find(row.name)->ToolTipText().empty() ? 0 : 1;
        places += row.left + 2 * row.top + 3 * row.width + 4 * row.height;
        ++kinds.at(static_cast<std::size_t>(row.kind));
        if (row.kind > Kind::Label && row.kind < Kind::CommonDialog) { tabs[row.tab] += row.name; }
    }
    EXPECT_EQ(kinds, (std::vector{4, 28, 22, 5, 3, 3, 8, 1}));
    EXPECT_EQ(std::tuple(tips, start.Controls().size()), std::tuple(41, 74U));
    EXPECT_EQ(places, 764130);  // none has moved unnoticed
    std::string order;
    for (const auto& [tab, name] : tabs) { order += name + ' '; }
    EXPECT_EQ(order, "cmbPhase cmbStyle chkCald chkDirected chkBurst txtMag cmbType txtLoc txtStr txtWind txtPart "
        "txtBurst txtCtop txtCbase txtDip txtErode cmdDelete cmbDown cmdAdd cmdChange Command1 Command2 cmbFlow txtLava "
        "cmdReset txtTopFile cmdOpen cmdHelp optLarge optNormal optSmall txtSlide1 txtSlide3 txtSlide5 txtSlide2 "
        "txtSlide4 txtSlide6 txtMap1 txtMap3 txtMap2 txtMap4 ");
    EXPECT_EQ(start.chkCald.Caption() + start.cmbPhase.Text(), "Caldera:Select Phase");
}
// clang-format on

}  // namespace
