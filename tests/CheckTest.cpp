// What tephrexcheck reports about records: each limit with its line and value, and each item that
// is read differently from how it looks.
#include "TestForm.h"
#include "check/RecordCheck.h"
#include "check/Wording.h"
#include "rules/EruptionTypes.h"
#include "rules/FieldUse.h"

namespace {

std::string Findings(const std::string& bytes) {
    static RecordCheck check;
    std::stringbuf source(bytes);
    std::string lines;
    check.Run(source, [&](const Finding& finding) { lines += TextLine("t", finding).substr(2); });
    return lines;
}

struct Row {
    Integer type;
    std::string field;  // or "flow" for the second of two flows
    Single value;
    std::string found;  // the line, a bar and the message
};

// clang-format off
const Row Rows[] = {
    {2, "ventLocation", .99F, "5|Location too small (ventLocation 0.99, at least 1)"},
    {7, "ventLocation", 24.6F, "5|Location too large (ventLocation 24.6, at most 24.59999)"},
    {6, "wind", -50.5F, "5|Wind speed too negative (wind -50.5, at least -50)"},
    {0, "wind", 51, "5|Wind speed too high (wind 51, at most 50)"},
    {0, "faultDownSide", 0, "8|Must select down side (faultDownSide 0)"},
    {1, "strength", 1.01F, "5|Maximum Strength (1.0) exceeded. (strength 1.01)"},
    {1, "strength", .19F, "5|Minimum Strength (0.20) not met. (strength 0.19)"},
    {1, "calderaFlag", 1, "6|Must select caldera style. (calderaStyle 0)"},
    {1, "midRadius", 641, "10|Mid radius must be <= 640 (midRadius 641)"},
    {1, "depositAngle", -1.5F, "10|Deposit angle must be >= -1 (depositAngle -1.5)"},
    {1, "depositAngle", 1.5F, "10|Deposit angle must be <= 1 (depositAngle 1.5)"},
    {2, "strength", 2.5F, "5|Maximum Strength (2.00) exceeded. (strength 2.5)"},
    {2, "strength", .09F, "5|Minimum Strength (0.10) not met. (strength 0.09)"},
    {2, "midRadius", 1.5e9F, "10|Mid radius must be <= 640 (midRadius 1.5E+09)"},
    {2, "depositAngle", -2, "10|Deposit angle must be >= -1 (depositAngle -2)"},
    {2, "depositAngle", 2, "10|Deposit angle must be <= 1 (depositAngle 2)"},
    {3, "flow", 19, "12|Flow Duration too short. (flow 2: 19, at least 20)"},
    {4, "flow", 221, "12|Flow Duration too long. (flow 2: 221, at most 220)"},
    {3, "midRadius", 321, "10|Mid radius must be <= 320 (midRadius 321)"},
    {4, "leftAngle", -5, "10|Left angle must be >= -4 (leftAngle -5)"},
    {4, "leftAngle", 5, "10|Left angle must be <= 4 (leftAngle 5)"},
    {3, "rightAngle", -5, "10|Right angle must be >= -4 (rightAngle -5)"},
    {3, "rightAngle", 5, "10|Right angle must be <= 4 (rightAngle 5)"},
    {5, "strength", 1.2F, "5|Maximum Plinian strength (1.00) exceeded. (strength 1.2)"},
    {5, "strength", 0, "5|Minimum Strength (0.10) not met. (strength 0)"},
    {5, "calderaFlag", 1, "6|Must select caldera style. (calderaStyle 0)"},
    {5, "midRadius", 641, "10|Mid radius must be <= 640 (midRadius 641)"},
    {5, "depositAngle", -2, "10|Deposit angle must be >= -1 (depositAngle -2)"},
    {5, "depositAngle", 2, "10|Deposit angle must be <= 1 (depositAngle 2)"},
    {6, "scarpTop", 30, "7|Scarp top reset (scarpTop 30, at most 24.59999)"},
    {6, "scarpBase", .5F, "7|Scarp base reset (scarpBase 0.5, at least 1)"},
    {6, "scarpBase", 5, "7|Scarp base and top cannot be equal (scarpBase 5)"},
    {6, "midRadius", 129, "10|Mid radius must be <= 128 (midRadius 129)"},
    {6, "depositAngle", -2, "10|Deposit angle must be >= -1 (depositAngle -2)"},
    {6, "depositAngle", 2, "10|Deposit angle must be <= 1 (depositAngle 2)"},
    {7, "strength", .05F, "5|Fumarolic strength too low. (strength 0.05, at least 0.1)"},
    {7, "strength", 1.5F, "5|Maximum Fumarolic strength exceeded. (strength 1.5, at most 1)"},
    {7, "midRadius", 641, "10|Mid radius must be <= 640 (midRadius 641)"},
    {7, "depositAngle", -2, "10|Deposit angle must be >= -1 (depositAngle -2)"},
    {7, "depositAngle", 2, "10|Deposit angle must be <= 1 (depositAngle 2)"},
    {3, "flowLength", 270, "9|Overflow (flowLength 270, at most 269)"}};

const std::string Good =
    "\"Stratigraphic file:\",\"a.str\"\n\"Recorded phases\",2,20\n"
    "\n\"Record Phase: \",1\n12.5,5,1,10\n20,1,0,2\n0,0,4,0\n0,0,0,0,0\n6,5,20,5,5,5\n0,0,0,0\n"
    "\n\"Record Phase: \",2\n12,3,1,-8\n1,0,0,0\n0,0,2,0\n0,0,0,0,0\n6,6,20,6,6,7\n0,0,-1,1.5\n"
    "300\n1150\n";

// A change to the good record, and the findings that it causes.
struct Change {
    std::string from;
    std::string to;
    std::string found;
};
const std::string Long(70000, 'x');
const Change Changes[] = {
    {"-8", "\"-8.0\" ", ""},
    {"-8", "abc",
     "13: warning: phase 2: \"abc\" is no number and counts as 0 (wind)\n"},
    {"-8", "",
     "13: warning: phase 2: \"\" is no number and counts as 0 (wind)\n"},
    {"20,1,0,2", "20,\"1.5\",0,2.0",
     "6: warning: phase 1: \"1.5\" is no whole number and counts as 2 (calderaFlag)\n"
     "6: warning: phase 1: 2 is neither 0 nor 1 (calderaFlag)\n"},
    {"-8", "-8\n",
     "14: warning: phase 2: \"\" is no number and counts as 0 (massFlux)\n"
     "14: warning: phase 2: the line holds 1 item instead of 4 (massFlux, calderaFlag, directedFlag, calderaStyle)\n"
     "16: warning: phase 2: 0 is not above 0 (burstCount)\n"
     "16: warning: phase 2: 2 is neither 0 nor 1 (burstFlag)\n"
     "17: warning: phase 2: 0 is outside 1 to 11 (flowLength)\n"
     "19: warning: text after the last item is not read\n"},
    {"1,-8", "\n1,-8",
     "13: warning: phase 2: the line holds 3 items instead of 4 (ventLocation, eruptionType, strength, wind)\n"
     "13: warning: phase 2: \"\" is no number and counts as 0 (strength)\n"
     "16: warning: phase 2: 0 is not above 0 (burstCount)\n"
     "16: warning: phase 2: 2 is neither 0 nor 1 (burstFlag)\n"
     "17: warning: phase 2: 0 is outside 1 to 11 (flowLength)\n"
     "19: warning: text after the last item is not read\n"},
    {"\"a.str\"", "a\"b,\"",
     "1: invalid: Recorder file save error (reference \"a\\\"b\")\n"
     "1: warning: \"\\n\" where \"Recorded phases\" is expected (label)\n"},
    {"\"a.str\"", "\"a\n\nb\"x",
     "1: warning: text after the closing quote is dropped (reference)\n"},
    {"ed phases\"", "ing\",zwei",
     "2: warning: \"Recording\" where \"Recorded phases\" is expected (label)\n"
     "2: warning: text after the last item is not read\n"},
    {"\n\n\"Record Phase: \",2", "\n\"Record Phase: \",2",
     "11: warning: phase 2: \"Record Phase: \" where an empty line is expected (empty line)\n"
     "12: invalid: phase 2 (Vulcanian/Surtseyan): Minimum Strength (0.20) not met. (strength -8)\n"
     "19: warning: text after the last item is not read\n"},
    {"\n\n\"Record Phase: \",2", ",\n\"Record Phase: \",2",
     "10: warning: phase 2: the line of the previous block continues where a new line is expected (empty line)\n"},
    {"\"Record Phase: \",2\n12", "Record Phase: , 2.\nx",
     "13: warning: phase 2: \"x\" is no number and counts as 0 (ventLocation)\n"
     "13: invalid: phase 2 (Hawaiian): Location too small (ventLocation 0, at least 1)\n"},
    {"\"Record Phase: \",2\n12", "\"\x01Phase\x80\",\"x\"\nx",
     "12: warning: phase 2: \"\\x01Phase\\x80\" where \"Record Phase: \" is expected (label)\n"
     "13: invalid: phase 2 (Hawaiian): Location too small (ventLocation 0, at least 1)\n"},
    {"\"Record Phase: \",2", "\"Record Phase: \",3",
     "12: warning: phase 2: \"3\" where 2 is expected (phase number)\n"},
    {"1.5\n300", "1.5,300",
     "18: warning: phase 2: the line holds 5 items instead of 4 (midRadius, depositAngle, leftAngle, rightAngle)\n"},
    {"12,3", "12,-1",
     "13: warning: phase 2: -1 means that no eruption type is chosen (eruptionType)\n"
     "19: warning: text after the last item is not read\n"},
    {"12,3", "12,8",
     "13: warning: phase 2: 8 is no eruption type (eruptionType)\n"
     "19: warning: text after the last item is not read\n"},
    {"12.5,5", "0,0",
     "8: warning: phase 1: 0 is neither Faulting nor Erosion (tectonicKind)\n"
     "8: warning: phase 1: 0 is not above 0 (erosionCycles)\n"},
    {"20,1,0,2", "51,3,7,3",
     "6: warning: phase 1: 51 is outside 1 to 50 (massFlux)\n"
     "6: warning: phase 1: 3 is neither 0 nor 1 (calderaFlag)\n"
     "6: warning: phase 1: 7 is neither 0 nor 1 (directedFlag)\n"
     "6: warning: phase 1: 3 is no caldera style (calderaStyle)\n"},
    {"0,0,4,0\n0,0,0,0,", "0,0,0,7\n7,0,0,3,",
     "7: warning: phase 1: 0 is not above 0 (burstCount)\n"
     "7: warning: phase 1: 7 is neither 0 nor 1 (burstFlag)\n"
     "8: warning: phase 1: 7 is neither Faulting nor Erosion (tectonicKind)\n"
     "8: warning: phase 1: 3 is no down side (faultDownSide)\n"},
    {"6,5,20,5,5,5", "0,0,41,12,-1,5",
     "9: warning: phase 1: 0 is outside 1 to 11 (craterSize)\n"
     "9: warning: phase 1: 41 is outside 0 to 40 (position3D)\n"
     "9: warning: phase 1: 12 is outside 1 to 11 (ventPosition)\n"
     "9: warning: phase 1: -1 is outside 0 to 9 (growth)\n"},
    {"6,5,20,5,5,5", "6,1,0,11,0,5", ""},
    {"6,5,20,5,5,5", "6,11,40,1,9,5", ""},
    {"5,1,10\n20,1,0,2\n0,0,4,0\n0,0,0,0,0\n6,5,20,5", "7,1,10\n20,0,0,0\n0,0,4,1\n0,0,0,0,0\n6,0,20,12",
     "9: warning: phase 1: 0 is outside 1 to 11 (craterSize)\n"
     "9: warning: phase 1: 12 is outside 1 to 11 (ventPosition)\n"},
    {"5,1,10\n20,1,0,2\n0,0,4,0\n0,0,0,0,0\n6,5,20,5", "7,1,10\n20,0,0,0\n0,0,4,0\n0,0,0,0,0\n6,0,20,12", ""},
    {"5,1,10\n20,1,0,2\n0,0,4,0\n0,0,0,0,0\n6,5,20,5", "1,1,10\n20,1,0,2\n0,0,4,0\n0,0,0,0,0\n6,5,20,12",
     "9: warning: phase 1: 12 is outside 1 to 11 (ventPosition)\n"},
    {"0,0,-1,1.5", "0,0,-5,7",
     "18: invalid: phase 2 (Hawaiian): Left angle must be >= -4 (leftAngle -5)\n"
     "18: invalid: phase 2 (Hawaiian): Right angle must be <= 4 (rightAngle 7)\n"},
    {"300\n1150\n", "10\n1151\n",
     "19: invalid: phase 2 (Hawaiian): Flow Duration too short. (flow 1: 10, at least 20)\n"},
    {"1\n12.5,5,1,10", "1\n0,1,2,51",
     "5: invalid: phase 1 (Vulcanian/Surtseyan): Location too small (ventLocation 0, at least 1)\n"
     "5: invalid: phase 1 (Vulcanian/Surtseyan): Maximum Strength (1.0) exceeded. (strength 2)\n"
     "5: invalid: phase 1 (Vulcanian/Surtseyan): Wind speed too high (wind 51, at most 50)\n"},
    {"2,20", "2,0",
     "2: warning: 0 is judged as 20 (scale)\n"},
    {"2,20", "3,-7",
     "2: warning: -7 is not one of the scales 4, 20 and 100 (scale)\n"
     "5: invalid: phase 1 (Plinian): Location too small (ventLocation 12.5, at most -0.3500001)\n"
     "13: invalid: phase 2 (Hawaiian): Location too small (ventLocation 12, at most -0.3500001)\n"
     "20: error: the file ends before the record does (phase 3 of 3, empty line)\n"},
    {"-8", "50.000004",
     "13: invalid: phase 2 (Hawaiian): Wind speed too high (wind 50.000004, at most 50)\n"},
    {"6,6,20", "-5,6,20",
     "17: warning: phase 2: -5 is outside 1 to 11 (flowLength)\n"
     "19: invalid: phase 2 (Hawaiian): Flow Duration too long. (flow 1: 300)\n"
     "20: invalid: phase 2 (Hawaiian): Flow Duration too long. (flow 2: 1150)\n"},
    {"6,6,20,6,6,7\n0,0,-1,1.5\n300\n1150", "999,6,20,6,6,7\n0,0,-1,1.5\n5\n6",
     "17: warning: phase 2: 999 is outside 1 to 11 (flowLength)\n"
     "17: invalid: phase 2 (Hawaiian): Overflow (flowLength 999, at most 269)\n"
     "19: invalid: phase 2 (Hawaiian): Flow Duration too short. (flow 1: 5)\n"
     "20: invalid: phase 2 (Hawaiian): Flow Duration too short. (flow 2: 6)\n"},
    {"1150\n", "1150\n \n\n;",
     "23: warning: text after the last item is not read\n"},
    {"1150\n", "1150,\n",
     "20: warning: text after the last item is not read\n"},
    {"1150\n", "\"1150\" x\n\n",
     "20: warning: phase 2: text after the closing quote is dropped (flow 2)\n"},
    {"1150\n", "1150", ""},
    {"1150\n", "",
     "19: error: the file ends before the record does (phase 2 of 2, flow 2)\n"},
    {"12,3", "12,40000",
     "13: error: the number is out of its range (phase 2 of 2, eruptionType)\n"},
    {"12,3", "1e39,3",
     "13: error: the number is out of its range (phase 2 of 2, ventLocation)\n"},
    {"0,0,2,0\n", "0,0,101,0\n300",
     "20: error: the file ends before the record does (phase 2 of 2, flow 3)\n"},
    {"2,20", "501,20",
     "2: error: the number of phases is not 0 to 500 (phase count)\n"},
    {"Record Phase: \",2", Long,
     "12: error: an item is longer than 65,535 bytes (phase 2 of 2, label)\n"},
};
// clang-format on

// A record of this phase, with two flows if its type has any, and then a phase that passes.
std::string Written(const PhaseRecord& phase, Single secondFlow) {
    static EditorState record;
    record.RecordScale = ScaleCode::Normal;
    record.LoadedPhaseCount = 2;
    record.LoadedPhases[1] = phase;
    record.LoadedPhases[2] = GoodPhase(EruptionType::Plinian);
    record.LoadedFlows[1][1] = 100;
    record.LoadedFlows[1][2] = secondFlow;
    std::stringbuf text;
    EXPECT_TRUE(WriteRecord(text, record));
    return text.str();
}

// Replaces the named number of a phase; does nothing for "flow".
void Put(const std::string& name, Single value, PhaseRecord& phase) {
    for (const PhaseField& field : PhaseFields) {
        if (field.name == name) {
            std::visit(
                [&](auto member) {
                    phase.*member = static_cast<std::decay_t<decltype(phase.*member)>>(value);
                },
                field.member);
        }
    }
}

PhaseRecord PhaseOf(const Row& row, Single value) {
    PhaseRecord phase = GoodPhase(row.type);
    phase.burstCount = 2;
    Put(row.field, value, phase);
    return phase;
}

// The record with one number of a good phase replaced.
std::string WithFault(const Row& row, Single value) {
    return Written(PhaseOf(row, value), row.field == "flow" ? value : 100);
}

std::string Invalid(const std::string& findings) {
    std::string invalid;
    std::istringstream lines(findings);
    for (std::string line; std::getline(lines, line);) {
        invalid += line.find(": invalid: ") != line.npos ? line + '\n' : "";
    }
    return invalid;
}

TEST(CheckTest, TheWidestBoundsOfAFieldCoverAllTypes) {
    const auto bounds = [](const PhaseField& field) {
        const Bounds widest = WidestBounds(field, ScaleCode::Large);
        return std::pair(widest.lowest.value_or(-999), widest.highest.value_or(999));
    };
    EXPECT_EQ(bounds(FieldOf(&PhaseRecord::strength)), std::pair(.1F, 2.F));
    EXPECT_EQ(bounds(FieldOf(&PhaseRecord::wind)), std::pair(-50.F, 50.F));
    EXPECT_EQ(bounds(FieldOf(&PhaseRecord::midRadius)), std::pair(-999.F, 640.F));
    EXPECT_EQ(bounds(FieldOf(&PhaseRecord::speed)), std::pair(-999.F, 999.F));
}

TEST(CheckTest, EachLimitIsReportedWithItsLineAndValueAndAValueAtTheLimitPasses) {
    for (const Row& row : Rows) {
        EXPECT_TRUE(Uses(GoodPhase(row.type), FieldOf(&PhaseRecord::eruptionType)));
        const std::string type(EntryOf(GoodPhase(row.type))->name);
        const std::size_t bar = row.found.find('|');
        EXPECT_EQ(Invalid(Findings(WithFault(row, row.value))),
                  row.found.substr(0, bar) + ": invalid: phase 1 (" + type +
                      "): " + row.found.substr(bar + 1) + '\n');
        if (const std::size_t limit = row.found.find(", at "); limit != row.found.npos) {
            const std::string last = row.found.substr(row.found.find_last_of(' ') + 1);
            EXPECT_EQ(Invalid(Findings(WithFault(row, std::stof(last)))), "") << last;
        }
    }
}

TEST(CheckTest, ListsEachFindingWithItsLineForEveryKindOfLineEnd) {
    EXPECT_EQ(Findings(Good), "");
    for (const std::string end : {"\n", "\r\n", "\r"}) {
        for (const Change& change : Changes) {
            EXPECT_EQ(Findings(Replaced(Replaced(Good, change.from, change.to), "\n", end)),
                      Replaced(change.found, "\\n",
                               end == "\n"   ? "\\n"
                               : end == "\r" ? "\\r"
                                             : "\\r\\n"))
                << change.to.substr(0, 40);
        }
    }
}

TEST(CheckTest, OfTwoFaultsTheOneCheckedFirstIsReported) {
    for (const Row& first : Rows) {
        for (const Row& second : Rows) {
            if (&first < &second && first.type == second.type && first.field != second.field &&
                second.value != 270) {
                PhaseRecord phase = PhaseOf(first, first.value);
                Put(second.field, second.value, phase);
                FlowRow flows;
                flows[1] = 100;
                flows[2] = first.field == "flow" ? first.value : 100;
                const std::string said(FirstFault(phase, flows, ScaleCode::Normal)->message);
                EXPECT_NE(first.found.find(said.substr(1, 20)), first.found.npos)
                    << said << first.found;
            }
        }
    }
}

TEST(CheckTest, InvisibleCharactersAreEscapedAndLongQuotesAreCutOff) {
    const std::string seen =
        "~\u00A0\u00AC\u00AE\u061B\u061D\u200A\u2010\u2027\u202F\u205F\u2070\uFEFE\uFF00\U000DFFFF"
        "\U000E0080";
    EXPECT_EQ(OneLine(seen), seen);
    EXPECT_EQ(Quoted(seen), '"' + seen + '"');
    for (const std::string unseen :
         {"\x1F", "\x7F", "\u0080", "\u009F", "\u00AD", "\u061C", "\u200B", "\u200F", "\u2028",
          "\u202E", "\u2060", "\u206F", "\uFEFF", "\U000E0000", "\U000E007F"}) {
        EXPECT_EQ(OneLine(unseen).size(), 4 * unseen.size()) << OneLine(unseen);
        EXPECT_EQ(Quoted(unseen), '"' + OneLine(unseen) + '"');
    }
    EXPECT_EQ(OneLine("\t\\\"\x80"), "\\t\\\"\x80");
    EXPECT_EQ(Quoted("\t\\\"\x80"), "\"\\t\\\\\\\"\\x80\"");
    EXPECT_EQ(LowestText(0), "0");
    EXPECT_EQ(Quoted(std::string(40, 'a')), '"' + std::string(40, 'a') + '"');
    EXPECT_EQ(Quoted(std::string(41, 'a')), '"' + std::string(40, 'a') + "\"...");
}

}  // namespace
