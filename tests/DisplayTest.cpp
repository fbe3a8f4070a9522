// Phases on show, the checks that stand before Save, and what they let into the loaded copy.
#include <algorithm>
#include <tuple>

#include "TestForm.h"
#include "editing/Fields.h"
#include "rules/Activation.h"

using P = PhaseRecord;
using Texts = std::vector<std::string>;

// clang-format off
static P With(P phase, const FieldMember& field, double value, const auto&... more) {
    std::visit([&](auto each) { phase.*each = static_cast<std::remove_cvref_t<decltype(phase.*each)>>(value); }, field);
    if constexpr (sizeof...(more) > 0) { return With(phase, more...); } else { return phase; }
}

class DisplayTest : public FormTest {
protected:
    const std::string failure = "RecordEdit ApplyParams error: \r\n";

    // Presses Save. The message that comes up, of a failure without the reason; nothing if the save dialog does.
    std::string Save() {
        platform.messages.clear(), platform.offered.clear();
        form.txtSlide6.PressKey(form.txtSlide6.Text()), form.Command2.Press();
        EXPECT_EQ(platform.messages.size() + platform.offered.size(), 1U);
        const std::string text = platform.messages.empty() ? "" : platform.messages[0].text;
        EXPECT_EQ(platform.messages, std::vector(text.empty() ? 0 : 1, Message{text, MessageIcon::Information, "TephrexEdit"}));
        return text.starts_with(failure) ? failure : text;
    }
    // Judges a phase that has never been on show.
    std::string Judge(const P& phase, const std::vector<Single>& flows = {}) { return Open({GoodPhase(2), phase}, flows), Save(); }
};

TEST_F(DisplayTest, EachLimitOfATypePassesAtItsValueAndFailsBeyondInOrder) {
    const std::vector<int> all{-2, -1, 0, 1, 2, 3, 4, 5, 6, 7, 8}, located{-2, -1, 1, 2, 3, 4, 5, 7, 8};
    // From first to last; of two wrong angles the right one hides the other.
    struct Limit { double beyond, at; std::string message; };
    const struct { std::vector<int> types; FieldMember field; Limit low, high; } rows[] = {
        {located, &P::ventLocation, {0.999999, 1, " Location too small"}, {24.6, 24.59999, " Location too large"}},
        {all, &P::wind, {-50.00001, -50, " Wind speed too negative"}, {50.00001, 50, " Wind speed too high"}},
        {{0}, &P::faultDownSide, {0, 1, " Must select down side"}, {3, 2, " Must select down side"}},
        {{1}, &P::strength, {0.1999999, 0.2, " Minimum Strength (0.20) not met."}, {1.000001, 1, " Maximum Strength (1.0) exceeded."}},
        {{2}, &P::strength, {0.09999999, 0.1, " Minimum Strength (0.10) not met."}, {2.000001, 2, " Maximum Strength (2.00) exceeded."}},
        {{5}, &P::strength, {0.09999999, 0.1, " Minimum Strength (0.10) not met."}, {1.000001, 1, " Maximum Plinian strength (1.00) exceeded."}},
        {{7}, &P::strength, {0.09999999, 0.1, " Fumarolic strength too low."}, {1.000001, 1, " Maximum Fumarolic strength exceeded."}},
        {{1, 5}, &P::calderaStyle, {0, 1, " Must select caldera style."}, {0, 2, " Must select caldera style."}},
        {{3, 4}, &P::burstCount, {1, 0, " Flow Duration too short."}, {1, 0, " Flow Duration too long."}},
        {{6}, &P::scarpTop, {0.999999, 1, " Scarp top reset"}, {24.6, 24.59999, " Scarp top reset"}},
        {{6}, &P::scarpBase, {0.999999, 1, " Scarp base reset"}, {24.6, 24.59999, " Scarp base reset"}},
        {{6}, &P::scarpBase, {0.999999, 1.000001, " Scarp base and top cannot be equal"}, {24.6, 24.59998, " Scarp base and top cannot be equal"}},
        {{1, 2, 5, 7}, &P::midRadius, {-1, 0, ""}, {640.0001, 640, " Mid radius must be <= 640 "}},
        {{3, 4}, &P::midRadius, {-1, 0, ""}, {320.0001, 320, " Mid radius must be <= 320 "}},
        {{6}, &P::midRadius, {-1, 0, ""}, {128.0001, 128, " Mid radius must be <= 128 "}},
        {{3, 4}, &P::rightAngle, {-4.000001, -4, " Right angle must be >= -4"}, {4.000001, 4, " Right angle must be <= 4"}},
        {{3, 4}, &P::leftAngle, {-4.000001, -4, " Left angle must be >= -4"}, {4.000001, 4, " Left angle must be <= 4"}},
        {{1, 2, 5, 6, 7}, &P::depositAngle, {-1.000001, -1, " Deposit angle must be >= -1"}, {1.000001, 1, " Deposit angle must be <= 1"}}};
    for (int step = 0; step < 22; ++step) {  // starts with all fields wrong, most of all those without a limit
        const int type = step / 2 - 2;
        P phase = With(GoodPhase(static_cast<Integer>(type)), &P::calderaFlag, 1);
        const auto limit = [step](const auto& row) { return step % 2 == 0 ? row.low : row.high; };
        const auto counts = [type](const auto& row) { return std::ranges::count(row.types, type) != 0; };
        for (const auto& row : rows) { phase = With(phase, row.field, row.field.index() == 1 ? 0 : step % 2 == 0 ? -1000 : 1000); }
        for (const auto& row : rows) { phase = counts(row) ? With(phase, row.field, limit(row).beyond) : phase; }
        for (const auto& row : rows) {
            if (counts(row) && !limit(row).message.empty()) {
                EXPECT_EQ(Judge(phase, {step % 2 == 0 ? 5.0F : 99999.0F}), "Phase 2" + limit(row).message) << type;
                phase = With(phase, row.field, limit(row).at);
            }
        }
        EXPECT_EQ(Texts({Judge(phase), Judge(With(phase, &P::calderaFlag, 0, &P::calderaStyle, 0))}), Texts({"", ""})) << type;
    }
    const P noSide = With(GoodPhase(0), &P::faultDownSide, 0);
    EXPECT_EQ(Texts({Judge(With(noSide, &P::faultDip, 5)), Judge(With(noSide, &P::tectonicKind, 3))}), Texts({"", ""}));
    EXPECT_EQ(Judge(With(GoodPhase(3), &P::leftAngle, -5, &P::rightAngle, 5), {50}), "Phase 2 Right angle must be <= 4");
}

TEST_F(DisplayTest, FlowDurationsHaveAFloorAndACeilingByTypeNumberAndLength) {
    // Type, flow length, flow, its duration; too short, too long, in order, or a length that is a failure.
    for (const auto& [type, length, flow, duration, is] : std::vector<std::tuple<Integer, int, int, Single, char>>{
        {3, 6, 1, 20, '='}, {3, 6, 1, 19.99999F, '<'}, {3, 6, 2, 1200, '='}, {3, 6, 2, 1200.001F, '>'}, {3, 11, 1, 1800, '='},
        {3, 11, 1, 1800.001F, '>'}, {4, 6, 1, 10, '='}, {4, 6, 1, 9.999999F, '<'}, {4, 6, 1, 210, '='}, {4, 6, 1, 240, '>'},
        {4, 6, 5, 250, '='}, {4, 6, 5, 250.0001F, '>'}, {4, 7, 3, 253, '='}, {4, 7, 3, 253.0001F, '>'}, {4, 1, 2, 110, '='},
        {4, 1, 2, 110.0001F, '>'}, {4, 6, 100, 1200, '='}, {4, 6, 100, 1200.001F, '>'}, {3, 269, 1, 100, '='}, {3, 270, 1, 100, '!'},
        {3, -267, 1, 99, '>'}, {3, -268, 1, 99, '!'}, {4, 162, 1, 100, '='}, {4, 163, 1, 100, '!'}, {4, -150, 1, 99, '>'},
        {4, -151, 1, 99, '!'}, {4, 32767, 1, 9, '<'}}) {
        std::vector<Single> flows(static_cast<std::size_t>(flow), 100);
        flows.back() = duration;
        const std::string told = is == '=' ? "" : is == '!' ? failure : "Phase 2 Flow Duration too ";
        const std::string text = is == '<' ? told + "short." : is == '>' ? told + "long." : told;
        EXPECT_EQ(Judge(With(GoodPhase(type), &P::flowLength, length, &P::burstCount, flow), flows), text) << type << ' ' << length;
        EXPECT_EQ(form.cmbFlow.Text(), is == '<' || is == '>' ? "Flow " + std::to_string(flow) + " Duration" : "");
    }
    EXPECT_EQ(Judge(With(GoodPhase(3), &P::burstCount, 3), {50, 1234.56F, 5}), "Phase 2 Flow Duration too long.");
    EXPECT_EQ(std::tuple(form.txtLava.Text(), form.EditFlows[2][2], form.EditFlows[2][3]), std::tuple("1234.6", 1234.6F, 5));
}

TEST_F(DisplayTest, TheScaleMovesTheMapAndScarpsOffTheMapArePutOnItsEdge) {
    const struct { OptionButton& option; const char* at[4]; Single low, edge; bool kept; } rows[] = {
        {form.optLarge, {"4.99", "5", "123", "123.01"}, 5, 123, true}, {form.optNormal, {"0.99", "1", "24.59", "24.6"}, 1, 24.6F, false},
        {form.optSmall, {"0.19", "0.2", "4.91", "4.92"}, 0.2F, 4.92F, false}};
    for (const auto& [option, at, low, edge, kept] : rows) {
        const auto judge = [this](TextBox& box, const char* text) { return box.PressKey(text), Save(); };
        Open({GoodPhase(2)}), option.Choose();
        EXPECT_EQ(Texts({judge(form.txtLoc, at[0]), judge(form.txtLoc, at[1]), judge(form.txtLoc, at[2]), judge(form.txtLoc, at[3])}),
                  Texts({"Phase 1 Location too small", "", "", "Phase 1 Location too large"})) << edge;
        Open({With(GoodPhase(6), &P::scarpTop, 0, &P::scarpBase, 0)}), option.Choose();
        EXPECT_EQ(Texts({Save(), Save(), Save()}),
                  Texts({"Phase 1 Scarp top reset", "Phase 1 Scarp base reset", "Phase 1 Scarp base and top cannot be equal"}));
        EXPECT_EQ(std::tuple(form.EditPhases[1].scarpTop, form.NumberIn(form.txtCbase)), std::tuple(low, low));
        EXPECT_EQ(Texts({judge(form.txtCtop, "9999"), Save()}), Texts({"Phase 1 Scarp top reset", kept ? "" : "Phase 1 Scarp top reset"}));
        EXPECT_EQ(std::tuple(form.EditPhases[1].scarpTop, form.LoadedPhases[1].scarpBase), std::tuple(edge, kept ? low : 0));
    }
}

TEST_F(DisplayTest, AFaultIsToldBeforeTheFormMovesAndNothingIsAppliedBeforeAllPass) {
    Open({With(GoodPhase(3), &P::burstCount, 100)}, std::vector<Single>(100, 50)), form.txtBurst.PressKey("101");
    EXPECT_EQ(Texts({Save(), std::to_string(form.LoadedPhases[1].burstCount)}), Texts({failure, "100"}));
    WriteBytes(folder / "part.rec", "\"\",\"\"\r\n\"\",1,0\r\n");  // a scale of 0, and no phase behind it
    Open({GoodPhase(2)}), platform.answers.push_back(folder / "part.rec"), form.cmdOpen.Press();
    EXPECT_EQ(Save(), failure);
    const P full{12.25F, 3, 0.5F, 10, 20, 1, 1, 2, 5, 8, 2, 1, 4, -3, 1, 6, 1, 7, 9, 21, 11, 2, 8, 300, 0.25F, -2, 3};
    Open({GoodPhase(5), full, With(GoodPhase(0), &P::faultDownSide, 0)}, {100, 200});
    form.cmdDelete.Press(), form.txtBurst.PressKey("3"), form.txtBurst.PressKey("2");
    platform.whileMessageShows = [this] { EXPECT_EQ(form.cmbPhase.Text() + form.cmbType.Text(), "Phase 1Hawaiian"); };
    EXPECT_EQ(Texts({Save(), form.cmbPhase.Text() + form.cmbType.Text() + form.cmbFlow.Text()}), Texts({"Phase 2 Must select down side", "Phase 2Faulting"}));
    EXPECT_EQ(std::tuple(form.LoadedPhases[1], form.LoadedPhaseCount, form.Command2.Enabled()), std::tuple(GoodPhase(5), 3, false));
    Pick(form.cmbDown, "Right side down");
    for (const auto& [typed, kept] : {std::pair("a.str", "a.str"), {"", "(None)"}, {"b.str", "(None)"}}) {
        EXPECT_EQ((form.txtTopFile.PressKey(typed), Texts({Save(), form.StratFile})), Texts({"", kept}));
    }
    EXPECT_EQ(std::tuple(form.LoadedPhases[1], form.LoadedPhases[2].faultDownSide, form.LoadedPhaseCount), std::tuple(full, 2, 2));
    EXPECT_EQ(std::tuple(form.LoadedFlows[1][1], form.LoadedFlows[1][2], form.LoadedFlows[1][3]), std::tuple(100, 200, 50));  // a third does not count
}

TEST_F(DisplayTest, ADisplayKeepsHiddenDigitsBringsFlow1BackAndTellsAFaultWithoutASide) {
    EXPECT_EQ(std::tuple(form.cmbType.Text(), form.CurType, form.cmbFlow.Text()), std::tuple("Select Parameters", -1, ""));
    form.random = [] { return 0.5F; };
    const P flow = With(GoodPhase(3), &P::flowLength, 20, &P::wind, 2.4, &P::burstCount, 2);
    Open({flow, With(flow, &P::burstCount, 3, &P::eruptionType, 4), With(GoodPhase(-1), &P::wind, 2.3), GoodPhase(8)}, {0, 0, 0});
    form.cmbPhase.AddItem("Phase 02"), form.cmbPhase.AddItem("Phase 5");
    for (const auto& [entry, phase, type, curType, flowEntry, lava] : std::vector<std::tuple<std::string, int, std::string, int, std::string, std::string>>{
        {"Phase 2", 2, "Peléean", 4, "Flow 1 Duration", "252.0"}, {"Phase 2", 2, "Peléean", 4, "Flow 1 Duration", "252.0"},
        {"Phase 02", 2, "Peléean", 4, "Flow 1 Duration", "252.0"}, {"Phase 5", 2, "Peléean", 4, "Flow 1 Duration", "252.0"},
        {"Phase 3", 3, "Select Parameters", -1, "", ""}, {"Phase 1", 1, "Hawaiian", 3, "Flow 1 Duration", "1440.0"},
        {"Phase 4", 4, "Hawaiian", 3, "", ""}}) {
        Pick(form.cmbPhase, entry);
        EXPECT_EQ(std::tuple(form.CurPhase, form.cmbType.Text(), form.CurType), std::tuple(phase, type, curType)) << entry;
        EXPECT_EQ(Texts({form.cmbFlow.Text(), form.txtLava.Text()}), Texts({flowEntry, lava})) << entry;
        form.cmbFlow.Pick(1);
    }
    EXPECT_EQ(std::tuple(form.EditPhases[1].wind, form.EditPhases[2].wind, form.EditPhases[3].wind, form.EditFlows[2][2]), std::tuple(2, 2.4F, 2.3F, 264));
    for (const auto& [kind, side, text] : std::vector<std::tuple<int, int, const char*>>{
        {1, 0, "Down Side"}, {1, 1, "Left side down"}, {1, 2, "Right side down"}, {1, 3, "Down Side"}, {2, 1, "Down Side"}}) {
        Open({GoodPhase(0), With(GoodPhase(0), &P::tectonicKind, kind, &P::faultDownSide, side)});
        form.txtSlide6.PressKey("1"), Pick(form.cmbPhase, "Phase 2");
        EXPECT_EQ(std::tuple(form.cmbDown.Text(), form.Command2.Enabled()), std::tuple(text, kind == 2 || side == 1 || side == 2));
    }
    form.CurPhase = 501, form.cmbPhase.AddItem("Phase 5"), Pick(form.cmbPhase, "Phase 5"), DataActivate(form, 1);
    EXPECT_EQ(platform.messages.at(0).text.substr(0, 29), "RecordEdit ShowData error: \r\n");
    EXPECT_EQ(platform.messages.at(1).text.substr(0, 33), "RecordEdit DataActivate error: \r\n");
}
