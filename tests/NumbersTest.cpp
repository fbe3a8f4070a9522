// The number that a text stands for, and the text of a number, with various separators.
#include <array>

#include "TestForm.h"

namespace {

/// The text, `count` zeros and the rest.
std::string Zeros(std::string text, std::size_t count, const std::string& rest) {
    return text.append(count, '0').append(rest);
}

struct Value {
    std::string text;
    Single number;
};

TEST(NumbersTest, TheLongestLeadingPartThatIsANumberCounts) {
    const Separators arabic{"\u066B", "\u202F"};
    // clang-format off
    const std::pair<Separators, std::vector<Value>> tables[] = {
        {{".", ","},
         {{"", 0}, {"abc", 0}, {"-", 0}, {" ", 0}, {"7", 7}, {"-2.5", -2.5F}, {".5", 0.5F},
          {"5.", 5}, {" 4", 4}, {"12abc34", 12}, {"1.2.3", 1.2F}, {"3 km", 3}, {"1,000", 1000},
          {"1e", 1}, {"1e3", 1000}, {"2.5E-2x", 0.025F}, {"1d3", 1000}, {"1D+2x", 100}, {"+5", 5},
          {"--5", 0}, {"-.5", -0.5F}, {".", 0}, {".e5", 0}, {"1e-", 1}, {"1  2", 1}, {",5", 0},
          {"1,.5", 1.5F}, {"1,,0", 10}, {".5,0", 0.5F}, {"1.5,5", 1.5F}, {"-1,2,3.4", -123.4F},
          {"1,e2", 100}, {"1e39", 1000}, {"-1e+39", -1000}, {"1e-50", 0}, {"1e-400", 0},
          {"3.4028235677e38", 3.4028235e38F}, {"-3.4028235678e38", -3402.8235F},
          {std::string(40, '9'), 1e38F}, {"1e99999999999999999999", 1e9F},
          {"10e9223372036854775807", 1e10F}, {"1e-99999999999999999999", 0},
          {"0e99999999999999999999", 0}, {Zeros("1", 45, "e-40"), 1e5F},
          {Zeros("1", 45, "e-4"), 1e38F}, {Zeros("1", 45, "e1"), 1e38F},
          {Zeros("1", 400, ""), 1e38F}, {Zeros("1", 400, "e-380"), 1e20F},
          {Zeros(".", 400, "1e410"), 1e9F}, {Zeros("1e", 45, "3"), 1000},
          {"340282356779733661637539395458142568448", 3.4028235e37F}, {"-inf", 0}, {"nan", 0},
          {"0x1A", 0}, {"&H1A", 0}, {"7\xFF", 7}, {"\xFF""7", 0}, {{"7\0""8", 3}, 7}}},
        {{",", "."},
         {{"1,5", 1.5F}, {"1.000,5", 1000.5F}, {"1.5", 15}, {",5e1", 5}, {"1,5,5", 1.5F}}},
        {{".", ""}, {{"1,000", 1}, {"1.5", 1.5F}}},
        {arabic,
         {{"1\u202F000\u066B5", 1000.5F}, {"1\u202F", 1}, {"1.5", 1}, {"1\xE2\x80", 1},
          {"\u202F1", 0}}}};
    // clang-format on
    for (const auto& [separators, values] : tables) {
        for (const auto& [text, number] : values) {
            EXPECT_EQ(ParseLeadingNumber(text, separators), number) << text;
        }
    }
}

TEST(NumbersTest, FormatsRoundTheExactNumberAndATieAwayFromZero) {
    const std::string large = "1000000015047466219876688855040";
    // clang-format off
    const std::pair<Single, std::array<std::string, 4>> rows[] = {
        {0.125F, {"0", "0.1", "0.13", "0.125"}},  {2.5F, {"3", "2.5", "2.50", "2.5"}},
        {-2.5F, {"-3", "-2.5", "-2.50", "-2.5"}}, {0.005F, {"0", "0.0", "0.00", "0.005"}},
        {20, {"20", "20.0", "20.00", "20"}},      {1.005F, {"1", "1.0", "1.00", "1.005"}},
        {0.25F, {"0", "0.3", "0.25", "0.25"}},    {-0.004F, {"0", "0.0", "0.00", "-0.004"}},
        {-0.05F, {"0", "-0.1", "-0.05", "-0.05"}}, {0.1F, {"0", "0.1", "0.10", "0.1"}},
        {123.456F, {"123", "123.5", "123.46", "123.456"}}, {0, {"0", "0.0", "0.00", "0"}},
        {99.995F, {"100", "100.0", "100.00", "99.995"}},
        {1e30F, {large, large + ".0", large + ".00", large}},
        {0.0625F, {"0", "0.1", "0.06", "0.0625"}},
        {1234567, {"1234567", "1234567.0", "1234567.00", "1234567"}}};
    // clang-format on
    for (const auto& [number, texts] : rows) {
        for (std::size_t i = 0; i < texts.size(); ++i) {
            EXPECT_EQ(FormatNumber(number, Format(i), {}), texts[i]);
            EXPECT_EQ(FormatNumber(number, Format(i), {",", "."}), Replaced(texts[i], ".", ","));
        }
    }
}

TEST_F(FormTest, BoxesReadAndWriteNumbersWithTheSeparatorsOfTheLocale) {
    Open({GoodPhase(EruptionType::Hawaiian)}, {1000.5F});
    form.separators = {",", "."};
    form.txtLoc.Edit("1,5");
    EXPECT_EQ(form.CurrentPhase().ventLocation, 1.5F);
    form.txtLoc.Edit("1.000,5");
    EXPECT_EQ(form.CurrentPhase().ventLocation, 1000.5F);
    Pick(form.cmbFlow, "Flow 1 Duration");
    EXPECT_EQ(form.txtLava.Text(), "1000,5");
}

}  // namespace
