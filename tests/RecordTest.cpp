// The text form of a record: what can be read, what a read stores, and which bytes are written.
#include <cmath>

#include "TestForm.h"

namespace {

// clang-format off
const std::string Sample = Replaced(
    "\"Stratigraphic file:\",\"\"\n\"Recorded phases\",2,20\n"
    "\n\"Record Phase: \",1\n12.5,5,1,10\n2000,0,0,0\n0,0,0,0\n0,0,0,0,0\n5,5,20,5,5,5\n0,0,0,0\n"
    "\n\"Record Phase: \",2\n12.5,3,1,10\n2000,0,0,0\n0,0,2,0\n0,0,0,0,0\n5,5,20,5,5,5\n0,0,0,0\n"
    "300\n1200\n", "\n", "\r\n");

// A different number in every field of phase 1; in phase 2 Singles in every notation, and bursts
// that are not flows.
const std::string Distinct = Replaced(
    "\"Stratigraphic file:\",\"C\"\n\"Recorded phases\",2,-7\n"
    "\n\"Record Phase: \",1\n1.5,4,3.5,-4\n5.25,6,7,8\n9,10,1,17\n12,13,14,15,16\n"
    "18,19,20,21,22,23\n24,25,26,-0.125\n1200.5\n"
    "\n\"Record Phase: \",2\n9999999,5,1E+07,-1.234568E+07\n12.35,0,0,0\n0.0001,9.5E-05,3,0\n"
    "0,0,0,0,0\n0,0,0,0,0,0\n-3.402823E+38,1E-05,0.5,1.5E+07\n", "\n", "\r\n");
const PhaseRecord DistinctPhase{1.5F, 4, 3.5F, -4, 5.25F, 6, 7, 8, 9, 10, 1, 12, 13, 14, 15, 16,
                                17, 18, 19, 20, 21, 22, 23, 24, 25, 26, -0.125F};

const std::pair<std::string, std::string> AcceptedVariants[] = {
    {"@", ""}, {"\r\n", "\n"}, {"\r\n", "\r"}, {"\r\n", "  \r\n"}, {",", "\n"}, {",", "  ,   "},
    {"12.5,", "12.5 "}, {"12.5", "+.125E2"}, {"2000", "\"2.e+3\" dropped \"this"}, {",0", ",-0"},
    {"\"Record Phase: \"", " any words "}, {"\"Recorded phases\"", "\"a,\r\nb\""},
    {"\"Stratigraphic file:\",\"\"", "\xEF\xBB\xBFit, "}, {": \",2\r\n", "\",-8 "},
    {"1200\r\n", "1200"},
    {"0\r\n300\r\n", "0,300\r"}, {"1200\r\n", "1200 \"more,\n\n" + std::string(1 << 17, 'x')}};
// clang-format on

struct RecordTest : testing::Test, EditorState {
    bool Read(const std::string& bytes) {
        std::stringbuf source(bytes);
        return static_cast<bool>(ReadRecord(source, *this));
    }
    std::string Written() const {
        std::stringbuf target;
        return WriteRecord(target, *this) ? target.str() : "failed";
    }
};

TEST_F(RecordTest, EachFieldHasItsPlaceAndOnlyTypesWithFlowsHaveFlowLines) {
    LoadedFlows[2][1] = 77;
    ASSERT_TRUE(Read(Distinct));
    EXPECT_EQ(LoadedPhases[1], DistinctPhase);
    EXPECT_EQ(LoadedFlows[1][1], 1200.5F);
    EXPECT_EQ(Written(), Distinct);
    EXPECT_THROW(LoadedFlows[-1], std::out_of_range);
}

TEST_F(RecordTest, AcceptedVariantsAreWrittenInStandardForm) {
    for (const auto& [from, to] : AcceptedVariants) {
        LoadedPhases.Clear();
        LoadedFlows.Clear();
        EXPECT_TRUE(Read(Replaced(Sample, from, to)));
        EXPECT_EQ(Written(), Sample) << from << " -> " << to.substr(0, 20);
    }
    ASSERT_TRUE(Read(Replaced(Sample, "20\r\n\r\n", "20\r\n")));  // each later item moves up by one
    EXPECT_TRUE(LoadedPhases[1].wind == 2000 && LoadedPhases[2].rightAngle == 300);
}

TEST_F(RecordTest, AHeaderIsKeptAsFarAsItWasRead) {
    // Items end at a comma, a line end or a quote.
    // clang-format off
    const struct { std::string bytes; bool read; std::string name; int count, scale; } rows[] = {
        {{"a,  my \xFF\0 file  \nb c , 0 4", 26}, true, {"my \xFF\0 file", 10}, 0, 4},
        {"\"a\" x \"y\n \" b,\r\n \" \"z,c\n0,4", true, " b,\r\n ", 0, 4},
        {"a,\nb,0,\n", true, "", 0, 0},            {"a,b\n\nc,0,4", true, "b", 0, 0},
        {"a,\"b\nc,0,4", false, "b\nc,0,4", 7, 9}, {"a,b\nc,0,  ", false, "b", 0, 9},
        {"a,b\nc,-1,4", false, "b", 7, 9},         {"a,b\nc,501,4", false, "b", 7, 9},
        {"a,b\nc,500,4", false, "b", 500, 4},      {"a,b\nc,0,32768", false, "b", 0, 9},
        {"a,b\nc,12abc,4", true, "b", 0, 4},       {" ", false, "old", 7, 9}};
    // clang-format on
    for (const auto& row : rows) {
        StratFile = "old";
        LoadedPhaseCount = 7;
        RecordScale = 9;
        EXPECT_EQ(Read(row.bytes), row.read) << row.bytes;
        EXPECT_EQ(std::tie(StratFile, LoadedPhaseCount, RecordScale),
                  std::tie(row.name, row.count, row.scale))
            << row.bytes;
        EXPECT_EQ(LoadedPhases[1], PhaseRecord{});
    }
}

TEST_F(RecordTest, AnItemThatIsNotANumberIsZeroAndOneTooLargeEndsTheRead) {
    constexpr Integer kept = 77;
    const std::string zeros(400, '0');
    // clang-format off
    const struct { std::string item; Single single; int integer; } rows[] = {
        {"12.35", 12.35F, 12}, {"-.5e1", -5, -5}, {"+5.", 5, 5}, {"0012E+1", 120, 120},
        {"\"7\"", 7, 7}, {"2.5", 2.5F, 2}, {"3.5", 3.5F, 4}, {"-2.5", -2.5F, -2},
        {"-32768.5", -32768.5F, -32768}, {"32767.4", 32767.4F, 32767},
        {"32767.5", 32767.5F, kept}, {"-32769", -32769, kept},
        {"3.4028235E38", 3.4028235e38F, kept}, {"3.5E38", kept, kept}, {"-1" + zeros, kept, kept},
        {"1E-40", 1e-40F, 0}, {"-1E-60", -0.0F, 0}, {"1E-400", 0, 0}, {"." + zeros + "E+398", 0, 0},
        {"." + zeros + "1E+398", 0.001F, 0}, {"1" + zeros + "E-400", 1, 1},
        {"1E99999999999999999999", kept, kept}, {"0E99999", 0, 0},
        {"10E9223372036854775807", kept, kept}, {"0.01E-9223372036854775808", 0, 0},
        {"\"\"", 0, 0}, {".", 0, 0}, {"-", 0, 0}, {"1E", 0, 0}, {"+-1", 0, 0}, {"1.2.3", 0, 0},
        {"12abc", 0, 0}, {"1D1", 0, 0}, {"0x1A", 0, 0}, {"nan", 0, 0}, {"inf", 0, 0},
        {"\t7", 0, 0}, {{"7\0", 2}, 0, 0}, {"\" 7\"", 0, 0}};
    // clang-format on
    for (const auto& [item, single, integer] : rows) {
        PhaseRecord& phase = LoadedPhases[1];
        phase.ventLocation = phase.eruptionType = kept;
        Read(",,,1,20,,P,1," + item + ',' + item + ",0");
        EXPECT_EQ(phase.ventLocation, single) << item;
        EXPECT_EQ(std::signbit(phase.ventLocation), std::signbit(single)) << item;
        EXPECT_EQ(phase.eruptionType, integer) << item;
    }
}

TEST_F(RecordTest, AnItemOrAReferenceHasAtMost65535Bytes) {
    const std::string longest(65535, 'x');
    for (const std::string quote : {"", "\""}) {
        EXPECT_TRUE(Read("a," + quote + longest + quote + "\nc,0,4"));
        EXPECT_FALSE(Read(quote + longest + "x" + quote + ",b\nc,0,4"));
    }
    EXPECT_EQ(StratFile, longest);
    EXPECT_TRUE(WriteRecordFile("/dev/null", *this));
    StratFile += 'x';
    EXPECT_FALSE(WriteRecordFile("/dev/null", *this));
    const std::string blanks(65535, ' ');
    EXPECT_TRUE(Read("a," + blanks + "\"b\"" + blanks + "\nc,0,4"));
    EXPECT_FALSE(Read("a, " + blanks + "b\nc,0,4"));
    EXPECT_FALSE(Read("a,\"b\" " + blanks + "\nc,0,4"));
}

TEST_F(RecordTest, WhatWasReadOfAFileThatEndsEarlyIsKept) {
    const std::string newer = Replaced(
        "\"Stratigraphic file:\",\"\"\n\"Recorded phases\",1,4\n\n\"Record Phase: \",1\n2,3,2,2\n"
        "2,2,2,2\n2,2,1,2\n2,2,2,2,2\n2,2,2,2,2,2\n2,2,2,2\n2\n",
        "\n", "\r\n");
    const std::string older = Replaced(Replaced(newer, "4", "9"), "2", "8");
    for (std::size_t size = 0; size <= newer.size() - 2; ++size) {
        ASSERT_TRUE(Read(older));
        EXPECT_EQ(Read(newer.substr(0, size)), size == newer.size() - 2) << size;
        EXPECT_EQ(Written(), newer.substr(0, size) + older.substr(size));
    }
}

}  // namespace
