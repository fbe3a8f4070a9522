// Numbers and their texts, the boxes and what they store, the list of phases.
#include <cmath>
#include <map>
#include <random>
#include <regex>

#include "TestForm.h"
#include "editing/FieldHandlers.h"

namespace {

const Separators Point{".", ","}, Comma{",", "."}, Wide{"\u066B", "\u202F"};
const std::string o45(45, '0'), o400(400, '0');

// clang-format off
const std::pair<Separators, std::string> Numbers[] = {  // texts, and what each is worth
    {Point, "=0;abc=0;-=0; =0;7=7;-2.5=-2.5;.5=.5;5.=5; 4=4;12abc34=12;1.2.3=1.2;3 km=3;1,000=1000;1e=1;1e3=1000;2.5E-2x=.025;"
        "1d3=1000;1D+2x=100;+5=5;--5=0;-.5=-.5;.=0;.e5=0;1e-=1;  1  2=1;,5=0;1,.5=1.5;1,,0=10;.5,0=.5;-1,2,3.4=-123.4;1,e2=100;"
        "1e39=1000;-1e+39=-1000;1e-50=0;1e-400=0;1" + o45 + "e-40=1e5;1" + o45 + "e-4=1e38;1" + o45 + "e1=1e38;1" +
        o400 + "=1e38;1" + o400 + "e-380=1e20;." + o400 + "1e410=1e9;1e" + o45 + "3=1000;3.4028235677e38=3.4028235e38;-3.4028235678e38=-3402.8235678;" +
        std::string(40, '9') + "=1e38;1e99999999999999999999=1e9;10e9223372036854775807=1e10;1e-99999999999999999999=0;"
        "0e99999999999999999999=0;-inf=0;nan=0;0x1A=0;&H1A=0;7\xFF=7;\xFF" "7=0;7" + std::string(1, '\0') + "8=7"},
    {Comma, "1,5=1.5;1.000,5=1000.5;1.5=15;,5e1=5;1,5,5=1.5"}, {{".", ""}, "1,000=1;1.5=1.5"},
    {Wide, "1\u202F000\u066B5=1000.5;1\u202F=1;1.5=1;1\xE2\x80=1;\u202F" "1=0"}};

// What is typed into a box, the text that it leaves, and the number that it stores.
const std::string Any = "-7.5 -7.5 -7.5  12a 12a 12  a1 a1 0  1e39 1e39 1000";
const std::string Floor = "0 1 1  -4 1 1  x 1 1  2.5 2.5 2  3.5 3.5 4  .4 .4 0  32767.4 32767.4 32767  32767.5 32767 32767";
const std::string To11 = "99 11 11  -99 1 1  - 1 1  2.5 3 3";
const std::map<std::string, std::string> Rules{
    {"txtErode", Floor}, {"txtBurst", Floor}, {"txtPart", "60 50 50  0 1 1  12.5 12.5 12.5  9. 9 9"},
    {"txtSlide1", To11}, {"txtSlide2", To11}, {"txtDip", "99 10 10  -99 -10 -10  - 0 0  -2.5 -3 -3  -0 0 0  0.3 0 0"},
    {"txtSlide4", To11}, {"txtSlide6", To11}, {"txtSlide3", "99 40 40  -99 0 0  - 0 0  2.5 3 3"},
    {"txtMag", "99 20 20  -99 0 0  - 0 0  2.5 3 3"}, {"txtSlide5", "99 9 9  -99 0 0  - 0 0  2.5 3 3"}};

// The flow named, the box and what is typed into it; then the bursts, the length of the list, the
// draws so far, the flow named, the text of the lava box and three durations.
const std::array<std::string, 4> Bursts[] = {
    {"2", "txtBurst", "5", "5 5 2 Flow 1 Duration 100.0 100 200 300"},
    {"3", "txtLava", "7", "5 5 2 Flow 3 Duration 7 100 200 7"},
    {"1", "txtLava", "12.34", "5 5 2 Flow 1 Duration 12.34 12.34 200 7"},
    {"2", "txtBurst", "2", "2 2 2 Flow 1 Duration 12.3 12.3 200 7"},
    {"2", "txtBurst", "0.4", "0 0 2 Flow 1 Duration 12.3 12.3 200 7"},
    {"1", "txtLava", "0", "0 0 2 Flow 1 Duration 0 12.3 200 7"},
    {"2", "txtBurst", "1", "1 1 2 Flow 1 Duration 12.3 12.3 200 7"},
    {"1", "txtLava", "0", "1 1 2 Flow 1 Duration 0 0 200 7"},
    {"1", "txtBurst", "-1", "1 1 3 Flow 1 Duration 900.0 900 200 7"},
    {"2", "txtBurst", "101", "101 100 98 Flow 1 Duration 900.0 900 200 7"}};

// The text in the phase box, the button pressed, and then the list as List tells it.
const std::array<std::string, 3> Moves[] = {
    {"Phase 2", "cmdAdd", "Phase 3 of 1 2 3 4 5, 5, 3 +++++- 1 0 1 2 2 3 4 5 3 6 7 8 3 6 7 11 4 9 10 14"},
    {"Phase", "cmdDelete", "Phase of 1 2 3 4, 4, 3 ++++++ 1 0 1 2 2 3 4 5 3 6 7 8 4 9 10 11"},
    {"Phase 1", "cmdDelete", "Phase 1 of 1 2 3, 3, 1 ++++++ 2 0 1 2 3 6 7 5 4 9 10 8"},
    {"Phase 3", "cmdDelete", "Phase 2 of 1 2, 2, 2 ++++++ 2 0 1 2 3 6 7 5"},
    {"Phase 02", "cmdAdd", "Phase 3 of 1 2 3, 3, 3 +++++- 2 0 1 2 3 6 7 5 4 9 10 8"},
    {"", "cmdReset", "Phase 1 of 1 2 3 4, 4, 1 +++++- 1 0 0 0 2 0 0 0 3 0 0 0 4 0 0 0"}};

std::string Three(const FlowRow& flows) {
    std::ostringstream text;
    return text << ' ' << flows[1] << ' ' << flows[2] << ' ' << flows[3], text.str();
}

// The phase box and its entries, the count on show, the phase on show, and what is enabled; then
// of each phase the left angle, by which it is known, and three flows.
std::string List(const RecordEdit& form) {
    std::ostringstream list;
    list << form.cmbPhase.Text() << " of";
    for (const std::string& entry : form.cmbPhase.Entries()) { list << entry.substr(5); }
    list << ", " << form.labPhases.Caption() << ", " << form.CurPhase << ' ';
    for (auto* name : {"cmbPhase", "cmbType", "cmdDelete", "cmdReset", "cmdAdd", "Command2"}) { list << "-+"[form.Find(name)->Enabled()]; }
    for (int i = 1; i <= form.EditPhaseCount; ++i) { list << ' ' << form.EditPhases[i].leftAngle << Three(form.EditFlows[i]); }
    return list.str();
}

TEST(ParseLeadingNumber, ReadsTheLongestPartThatIsANumber) {
    for (const auto& [locale, numbers] : Numbers) {
        std::istringstream rows(numbers);
        for (std::string text, value; getline(rows, text, '=') && getline(rows, value, ';');)
            EXPECT_EQ(ParseLeadingNumber(text, locale), std::stof(value)) << text;
    }
}

TEST(ParseLeadingNumber, AgreesWithTryingEveryPrefix) {
    const std::regex number(" *[+-]?([0-9][0-9,]*([.][0-9]*)?|[.][0-9]+)([eEdD][+-]?[0-9]+)? *"), comma(","), letter("[dD]");
    std::mt19937 random;
    for (int round = 0; round < 5000; ++round) {
        std::string text(random() % 10, ' ');
        for (char& each : text) { each = "0159.,+-eEdD x"[random() % 14]; }
        Single expected = 0;
        for (std::size_t n = 1; n <= text.size(); ++n) {
            const std::string prefix = text.substr(0, n);
            const std::string plain = std::regex_replace(std::regex_replace(prefix, comma, ""), letter, "e");
            const auto value = static_cast<Single>(std::strtod(plain.c_str(), nullptr));
            expected = std::regex_match(prefix, number) && std::isfinite(value) ? value : expected;
        }
        ASSERT_EQ(ParseLeadingNumber(text, Point), expected) << text;
    }
}

TEST(FormatNumber, RoundsTiesOfTheExactValueAwayFromZeroAndReadsBack) {
    std::istringstream rows(
        "0 0.1 0.13 0.125  3 2.5 2.50 2.5  -3 -2.5 -2.50 -2.5  0 0.0 0.00 0.005  20 20.0 20.00 20  "
        "1 1.0 1.00 1.005  0 0.3 0.25 0.25  0 0.0 0.00 -0.004  0 -0.1 -0.05 -0.05  0 0.1 0.10 0.1");
    for (std::string texts[4]; rows >> texts[0] >> texts[1] >> texts[2] >> texts[3];) {
        for (int i = 0; i < 4; ++i) {
            const Single number = std::stof(texts[3]), read = ParseLeadingNumber(FormatNumber(number, Format{i}, Wide), Wide);
            EXPECT_EQ(FormatNumber(number, Format{i}, Point), texts[i]);
            EXPECT_EQ(FormatNumber(read, Format{i}, Point), texts[i]);
        }
    }
    EXPECT_EQ(FormatNumber(1e30F, Format::OneDecimal, Comma), "1000000015047466219876688855040,0");
}

TEST_F(FormTest, EachBoxShowsAndStoresItsFieldByItsRuleAndOnlyKeysEnableSave) {
    Open({{1.126F, 5, .126F, 2.5F, 3.5F, 0, 0, 0, 5.126F, 6.126F, 4, 0, 7, 8, 0, 9, 0, 10, 11, 12, 2, 3, 4, 1.5F, 1.126F, 2.126F, 3.126F}});
    std::string shown;
    for (const Field& field : Fields) {
        TextBox& box = form.*field.box;
        shown += box.Text() + ' ';
        box.SetEnabled(true), form.Command2.SetEnabled(false);
        std::istringstream rows(Rules.contains(box.Name()) ? Rules.at(box.Name()) : Any);
        for (std::string typed, text; rows >> typed >> text;) {
            PhaseRecord expected = form.EditPhases[1];
            std::visit([&](auto each) { rows >> expected.*each; }, field.member);
            box.Edit(typed);
            EXPECT_EQ(box.Text(), text) << box.Name() << ' ' << typed;
            EXPECT_EQ(form.EditPhases[1], expected) << box.Name() << ' ' << typed;
            EXPECT_EQ(form.cmbDown.Enabled(), box.Name() == "txtDip" && typed[0] == '-' && text == "0") << typed;
        }
        EXPECT_FALSE(form.Command2.Enabled()) << box.Name();
    }
    EXPECT_EQ(shown, "1.13 3 4 4 0.13 5.13 6.13 7 8 9 10 11 12 2 3 4 2 1.13 2.13 3.13 ");
    for (Control* each : form.Controls()) {
        auto* const box = dynamic_cast<TextBox*>(each);
        if (box == nullptr) { continue; }
        box->SetEnabled(true), box->SetText("12"), box->Select(1, 0), box->TakeFocus(), form.Command2.SetEnabled(false);
        EXPECT_EQ(box->SelLength(), box->Text().size()) << box->Name();
        box->PressKey(box->Text());
        EXPECT_TRUE(form.Command2.Enabled()) << box->Name();
    }
    form.cmdHelp.TakeFocus(), form.txtLoc.Select(1, 1), SelectActiveText(form);
    EXPECT_EQ(form.txtLoc.SelLength(), 1U);
}

TEST_F(FormTest, StrengthDecidesTheCalderaBoxOfThePhaseOnShow) {
    Open({GoodPhase(EruptionType::Vulcanian)});
    std::istringstream rows(
        "1 .35 Diatreme+  1 .41 Diatreme-  1 .59 Diatreme-  1 .60 Caldera+  5 .49 Caldera-  7 0 Caldera-  "
        "1 .40 Diatreme+  2 .31 Diatreme-  5 .50 Caldera+  2 .65 Caldera-  2 .30 Diatreme+  3 0.1 Diatreme-");
    for (std::string strength, caldera; rows >> form.EditPhases[1].eruptionType >> strength >> caldera;) {
        form.txtStr.PressKey(strength);
        EXPECT_EQ(form.chkCald.Caption() + "-+"[form.chkCald.Enabled()], caldera) << strength;
    }
}

TEST_F(FormTest, BurstsRebuildTheListOfFlowsAndTheLavaBoxEditsTheFlowThatTheListNames) {
    int draws = 0;
    form.random = [&draws] { return ++draws, 0.5F; };
    PhaseRecord phase = GoodPhase(EruptionType::Hawaiian);
    phase.burstCount = 3, phase.flowLength = 11, Open({phase}, {100, 200, 300});
    for (const auto& [flow, box, typed, state] : Bursts) {
        std::ostringstream now;
        form.cmbFlow.Type("Flow " + flow + " Duration"), dynamic_cast<TextBox&>(*form.Find(box)).PressKey(typed);
        now << form.EditPhases[1].burstCount << ' ' << form.cmbFlow.Entries().size() << ' ' << draws << ' '
            << form.cmbFlow.Text() << ' ' << form.txtLava.Text() << Three(form.EditFlows[1]);
        EXPECT_EQ(now.str(), state);
    }
    Pick(form.cmbType, "Peléean"), form.EditFlows[1][4] = 0, form.txtBurst.PressKey("4");
    EXPECT_EQ(form.EditFlows[1][4], 180);
}

TEST_F(FormTest, PhasesComeAndGoWithTheFlowsThatCountAndTheNameInTheBoxDecidesWhere) {
    form.EditPhases[1] = {5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 1, 2, 3, 4};
    form.cmdAdd.Press();
    EXPECT_EQ(List(form) + form.cmbType.Text(), "Phase 1 of 1, 1, 1 +++++- 3 0 0 0Select Parameters");
    EXPECT_EQ(form.EditPhases[1], (PhaseRecord{0, -1, 0, 0, 1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 6, 6, 20, 6, 6, 1, 1, 2, 3, 4}));
    form.EditPhases[9].speed = 3, form.EditFlows[9][2] = 5, form.cmdDelete.Press();
    EXPECT_EQ(List(form) + form.txtSlide3.Text(), "Add Phase of, 0, 0 ----+-0");
    EXPECT_TRUE(form.EditPhases[9] == PhaseRecord{} && form.EditFlows == FlowTable{});
    std::vector<PhaseRecord> old{GoodPhase(5), GoodPhase(0), GoodPhase(4), GoodPhase(3)};
    old[1].faultDownSide = 0;  // its display disables Save, which a Delete enables again
    for (Single angle = 0; PhaseRecord& each : old) { each.burstCount = 2, each.leftAngle = ++angle; }
    Open(old);
    for (int i = 0; i < 15; ++i) { form.EditFlows[1 + i / 3][1 + i % 3] = static_cast<Single>(i); }
    for (const auto& [typed, button, list] : Moves) {
        form.cmbPhase.Type(typed), dynamic_cast<CommandButton&>(*form.Find(button)).Press();
        EXPECT_EQ(List(form), list);
    }
}

TEST_F(FormTest, AFullRecordRefusesAPhaseAndAFlowBeyondTheTableEndsADelete) {
    Open(std::vector<PhaseRecord>(499, GoodPhase(EruptionType::Pelean)), {50});
    form.cmbPhase.Type("Phase 499"), form.cmdAdd.Press(), form.cmbPhase.Type("Phase 3");
    const std::string list = List(form);
    form.cmdAdd.Press();
    EXPECT_TRUE(List(form) == list && form.CurPhase == 500);
    Pick(form.cmbPhase, "Phase 4"), form.txtBurst.PressKey("101"), Pick(form.cmbPhase, "Phase 3");
    form.Command2.SetEnabled(false), form.cmdDelete.Press();
    EXPECT_EQ(form.txtBurst.Text() + form.labPhases.Caption() + form.cmbPhase.Text(), "1499Phase 3");
    EXPECT_TRUE(form.EditPhases[3] == form.EditPhases[4] && form.EditFlows[3] == form.EditFlows[4] && !form.Command2.Enabled());
    form.cmbPhase.Type("Phase 1"), form.cmdAdd.Press();  // keeps within the table and tells nothing
    EXPECT_EQ(platform.messages, (std::vector<Message>{
        {"A record holds at most 500 phases.", MessageIcon::Information, "TephrexEdit"},
        {"RecordEdit cmdDelete error: \r\nSubscript out of range", MessageIcon::Information, "TephrexEdit"}}));
}
// clang-format on

}  // namespace
