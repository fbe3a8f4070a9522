// What a type makes of a phase and of the form: activation, options, type choice, flow durations.
#include <map>
#include <tuple>

#include "TestForm.h"

using P = PhaseRecord;

// clang-format off
TEST_F(FormTest, EachTypeEnablesItsOwnControlsAndNoOthers) {
    // Types -1, Faulting, Erosion, 1 to 7. x: enabled; a letter: only where its rule is met. F: a flag is on show.
    const std::map<std::string, std::string> grid{
        {"txtLoc",    ".x.xxxxx.x"}, {"txtStr",    "...xx..xxx"}, {"txtWind",     "...xxxxx.x"}, {"txtPart",   "...xx..x.x"},
        {"txtBurst",  "...xxxxxxx"}, {"chkBurst",  ".........x"}, {"chkDirected", "...x......"}, {"chkCald",   "...xC..x.."},
        {"cmbStyle",  "...B...D.."}, {"cmbDown",   ".A........"}, {"cmbFlow",     ".....xx..."}, {"txtLava",   ".....xx..."},
        {"txtCtop",   "........x."}, {"txtCbase",  "........x."}, {"txtMag",      ".x........"}, {"txtDip",    ".x........"},
        {"txtErode",  "..x......."}, {"txtSlide1", ".....xx..."}, {"txtSlide2",   "...xx..x.E"}, {"txtSlide3", "...xxxxxxx"},
        {"txtSlide4", "...B...D.E"}, {"txtSlide5", "...xx..x.x"}, {"txtMap1",     "...xxxxxxx"}, {"txtMap2",   "...xx..xxx"},
        {"txtMap3",   ".....xx..."}, {"txtMap4",   ".....xx..."}, {"Command2",    "...FF..F.F"}};
    for (int step = 19; step >= 0; --step) {
        const bool met = step >= 10;
        const int column = step % 10, type = column < 2 ? column - 1 : column - 2;
        P phase = GoodPhase(static_cast<Integer>(type));
        phase.faultDip = met ? 0 : 5, phase.tectonicKind = column == 1 ? 1 : 0;  // 0 stands for Erosion as 2 does
        phase.burstFlag = phase.directedFlag = phase.calderaFlag = met ? 1 : 2;  // 2 shows as clear
        phase.strength = !met ? 0.5F : type == 2 ? 0.2F : 0.7F;
        Open({phase}, {50}), Pick(form.cmbPhase, "Phase 1");
        for (const Control* control : form.Controls()) {
            const std::string& name = control->Name();
            const auto row = grid.find(name.starts_with("lab") ? "txt" + name.substr(3) : name);
            const char cell = row == grid.end() ? 'x' : row->second[static_cast<std::size_t>(column)];
            EXPECT_EQ(control->Enabled(), cell == 'x' || (cell != '.' && met)) << name << " in column " << column << met;
            const auto* const box = dynamic_cast<const CheckBox*>(control);
            EXPECT_TRUE(box == nullptr || box->Value() == (cell != '.' && met)) << name << " in column " << column << met;
        }
        EXPECT_EQ(form.EditPhases[1], phase) << column << met;
    }
}

TEST_F(FormTest, StrengthAndCheckBoxesDecideWhatACalderaAndBurstsNeed) {
    std::map<std::string, char> letters{{"Caldera", 'C'}, {"Diatreme", 'D'}, {"Caldera Style", '-'}, {"Valles Type", 'V'},
                                        {"Mazama Type", 'M'}, {"Vent Position", 'V'}, {"Burst Frequency", 'B'}};
    // Type, strength on show before (a strength behind one with the same text keeps its digits), strength, flag, style, toggles.
    using Row = std::tuple<Integer, Single, Single, Integer, Integer, int, std::string>;
    for (const auto& [type, before, strength, flag, style, toggles, expected] : std::vector<Row>{
        {1, 0.5F, 0.60F, 1, 2, 0, "CVV++++++"}, {1, 0.6F, 0.596F, 1, 1, 0, "CMV++++++"}, {1, 0.5F, 0.59F, 1, 2, 0, "CVV+---++"},
        {1, 0.5F, 0.60F, 0, 2, 0, "C-B+---++"}, {1, 0.5F, 0.300F, 1, 2, 0, "DVV+---++"}, {1, 0.3F, 0.304F, 0, 2, 0, "D-B+---++"},
        {1, 0.5F, 0.31F, 0, 2, 0, "C-B+---++"}, {2, 0.5F, 0.290F, 0, 2, 0, "D-B+---++"}, {2, 0.5F, 0.30F, 1, 2, 0, "C-B----++"},
        {2, 0.3F, 0.299F, 1, 2, 0, "D-B+---++"}, {5, 0.5F, 0.10F, 1, 0, 0, "C-V++++++"}, {5, 0.5F, 0.90F, 0, 2, 0, "C-B+---++"},
        {1, 0.5F, 0.20F, 0, 2, 1, "DVV++++++"}, {1, 0.5F, 0.200F, 0, 2, 2, "D-V+---++"}, {1, 0.5F, 0.20F, 0, 3, 1, "D-V++++++"},
        {2, 0.5F, 0.20F, 0, 2, 1, "D-B+---++"}, {5, 0.5F, 0.500F, 1, 1, 1, "C-V+---++"}, {5, 0.5F, 0.50F, 1, 1, 2, "CMV++++++"},
        {7, 0.5F, 0.50F, 0, 0, 0, "C-B------"}, {7, 0.5F, 0.500F, 0, 0, 1, "C-B--++++"}, {7, 0.5F, 0.50F, 1, 0, 1, "C-B------"}}) {
        P first = GoodPhase(7), phase = GoodPhase(type);
        first.strength = before, phase.strength = strength, phase.calderaStyle = style;
        phase.calderaFlag = phase.burstFlag = flag;
        Open({first, phase}), Pick(form.cmbPhase, "Phase 2");
        for (int i = 0; i < toggles; ++i) { (type == 7 ? form.chkBurst : form.chkCald).Toggle(); }
        std::string state{letters[form.chkCald.Caption()], letters[form.cmbStyle.Text()], letters[form.labSlide4.Caption()]};
        for (auto* each : {"chkCald", "cmbStyle", "labSlide4", "txtSlide4", "labSlide2", "txtSlide2"}) { state += form.Find(each)->Enabled() ? '+' : '-'; }
        EXPECT_EQ(state, expected) << "type " << type << ", strength " << strength << ' ' << toggles;
        (type == 7 ? phase.burstFlag : phase.calderaFlag) = static_cast<Integer>((flag + toggles) % 2);
        EXPECT_EQ(form.EditPhases[2], phase) << expected;
    }
}

TEST_F(FormTest, EveryChoiceEnablesSaveButNoneCountsWhileTheFormIsFilled) {
    Open({GoodPhase(1)}), form.cmbFlow.AddItem("Flow 2 Duration");  // one more than the phase has
    const auto choose = [this](auto& control, std::size_t entry, Integer P::*field, Integer value) {
        P expected = form.EditPhases[1];
        expected.*field = form.FormFilling ? expected.*field : value;
        form.Command2.SetEnabled(false), control.SetEnabled(true);
        if constexpr (requires { control.Toggle(); }) { control.Toggle(); } else { control.Pick(entry); }
        EXPECT_EQ(std::tuple(form.Command2.Enabled(), form.EditPhases[1]), std::tuple(!form.FormFilling, expected)) << control.Name();
    };
    for (const bool filling : {true, false}) {
        form.FormFilling = filling;
        for (const auto& [box, field] : {std::pair(&form.chkBurst, &P::burstFlag), {&form.chkDirected, &P::directedFlag},
                                         {&form.chkCald, &P::calderaFlag}}) { choose(*box, 0, field, 1), choose(*box, 0, field, 0); }
        choose(form.cmbStyle, 0, &P::calderaStyle, 2), choose(form.cmbStyle, 1, &P::calderaStyle, 1);
        choose(form.cmbDown, 1, &P::faultDownSide, 2), choose(form.cmbDown, 0, &P::faultDownSide, 1);
        choose(form.cmbFlow, 0, &P::burstFlag, 0);
    }
}

TEST_F(FormTest, TypeChoiceWritesWhatTheTypeNeedsAndNothingElse) {
    using Row = std::tuple<const char*, Integer, Integer, Integer, Integer>;
    for (const auto& [name, type, kind, magnitude, newMagnitude] : std::vector<Row>{
        {"Hawaiian", 3, 5, 0, 0}, {"Peléean", 4, 5, 0, 0}, {"Strombolian", 2, 5, 0, 0}, {"Plinian", 5, 5, 0, 0},
        {"Vulcanian/Surtseyan", 1, 5, 0, 0}, {"Fumarolic/Phreatic", 7, 5, 0, 0}, {"Sector Collapse", 6, 5, 0, 0},
        {"Faulting", 0, 1, 0, 1}, {"Faulting", 0, 1, 4, 4}, {"Erosion", 0, 2, 0, 0}}) {
        P phase{12.25F, -1, 0.5F, 10, 20, 1, 1, 2, 5, 8, 3, 5, magnitude, -3, 1, 6, 1, 7, 9, 21, 11, 2, 8, 300, 0.25F, -2, 3};
        Open({GoodPhase(5), phase}), Pick(form.cmbPhase, "Phase 2"), Pick(form.cmbType, name);
        phase.eruptionType = type, phase.tectonicKind = kind, phase.faultMagnitude = newMagnitude;
        phase = type != 0 ? phase : P{0, 0, 0, 0, 1, 1, 1, 2, 0, 0, 1, kind, newMagnitude, -3, 1, 6, 1, 7, 9, 21, 11, 2, 8, 300, 0.25F, -2, 3};
        EXPECT_EQ(form.EditPhases[2], phase) << name;
        EXPECT_EQ(std::tuple(form.CurType, form.cmbType.Text(), form.Command2.Enabled()), std::tuple(type, name, true));
    }
}

TEST_F(FormTest, LoadedTypeBringsLoadedDurationsBackAndAnyOtherDrawsNewOnes) {
    std::deque<Single> draws;
    form.random = [&draws, r = Single()]() mutable { return r = draws.at(0), draws.pop_front(), r; };
    const auto pick = [&](const char* type, const std::deque<Single>& numbers, const std::vector<Single>& durations) {
        draws = numbers, Pick(form.cmbType, type);
        std::vector<Single> flows;
        for (std::size_t j = 1; j <= form.cmbFlow.Entries().size(); ++j) { flows.push_back(form.CurrentFlows()[static_cast<int>(j)]); }
        EXPECT_EQ(std::tuple(flows, draws.size()), std::tuple(durations, 0U)) << type;
    };
    P phase = GoodPhase(3);
    phase.burstCount = 3, Open({GoodPhase(5), phase}, {100.26F, 200.26F, 123.456F}), Pick(form.cmbPhase, "Phase 2"), Pick(form.cmbFlow, "Flow 3 Duration");
    EXPECT_EQ(std::tuple(form.txtLava.Text(), form.EditFlows[2][2], form.EditFlows[2][3]), std::tuple("123.5", 200.26F, 123.5F));
    pick("Hawaiian", {}, {100.3F, 200.26F, 123.456F}), pick("Plinian", {}, {}), form.txtBurst.PressKey("4");
    pick("Hawaiian", {}, {100.3F, 200.26F, 123.456F, 0}), pick("Peléean", {0.5F, 0.5F, 0, 0.5F}, {105, 110, 10, 120});
    pick("Hawaiian", {}, {100.3F, 200.26F, 123.456F, 0}), form.cmdAdd.Press();
    pick("Plinian", {}, {}), form.txtBurst.PressKey("3"), pick("Hawaiian", {0, 0.5F, 0.75F}, {20, 600, 900});
    form.txtSlide1.PressKey("7"), pick("Hawaiian", {0.5F, 0.25F, 0.75F}, {660, 330, 990});
    form.txtSlide1.PressKey("1"), pick("Hawaiian", {0.5F, 0.03125F, 0.0625F}, {300, 20, 37.5F});
    pick("Peléean", {0.5F, 0.0625F, 0.5F}, {52.5F, 10, 57.5F});
    form.txtSlide1.PressKey("11"), pick("Peléean", {0.5F, 0.03125F, 0.5F}, {157.5F, 10.3125F, 172.5F});
    pick("Plinian", {}, {}), form.txtBurst.PressKey("101");  // the row of flows ends at 100
    pick("Hawaiian", std::deque<Single>(100, 0.0625F), std::vector<Single>(100, 112.5F));
    Pick(form.cmbPhase, "Phase 2"), pick("Plinian", {}, {}), form.txtBurst.PressKey("101"), Pick(form.cmbType, "Hawaiian"), Pick(form.cmbPhase, "Phase 3");
    EXPECT_EQ(std::tuple(form.CurPhase, form.EditPhases[2].burstCount, form.cmbFlow.Entries().size()), std::tuple(3, 101, 100U));
    EXPECT_EQ(NewRandomSource()(), 13668795 / 16777216.0F);  // every run starts with this draw
}
