// tephrexcheck from outside: what it takes, prints and ends with.
#include <cstdio>

#include "TestForm.h"

namespace {

// What the program prints in this folder, and its status.
std::string Printed(const TempFolder& folder, const std::string& arguments) {
    const std::string command = "cd '" + folder / "" + "' && '" TEPHREX_CHECK "' " + arguments;
    FILE* const output = popen(("(" + command + ") 2>&1; echo \"= $?\"").c_str(), "r");
    std::string text;
    for (int c = 0; (c = std::fgetc(output)) != EOF;) {
        text += static_cast<char>(c);
    }
    pclose(output);
    return text;
}

TEST(CheckProgramTest, TheProgramListsRecordsInOrderAndItsStatusIsTheWorstOfThem) {
    const std::string demo = ReadBytes(TEPHREX_DATA "/TephrexDemo.rec");
    const std::string warned = Replaced(demo, "14,20", "14,0");
    const std::string invalid = Replaced(demo, "0.2,-8", "0.2,-80");
    const TempFolder folder;
    std::filesystem::create_directories(folder / "all/b.rec/none");
    std::filesystem::create_directory_symlink("..", folder / "all/again.rec");
    WriteBytes(folder / "all/b.rec/i.Rec", invalid);
    WriteBytes(folder / "all/b.REC", demo);
    WriteBytes(folder / "all/b-w.rec", warned);
    WriteBytes(folder / "all/b.txt", "");
    WriteBytes(folder / "[\n\xE9\"]", demo + ',');
    const std::string warning = "all/b-w.rec:2: warning: 0 is judged as 20 (scale)\n";
    const std::string fault =
        "all/b.rec/i.Rec:13: invalid: phase 2 (Strombolian): Wind speed too negative (wind -80, at "
        "least -50)\n";
    const std::string json =
        "\",\"findings\":[{\"level\":\"warning\",\"line\":125,\"message\":\"what follows the last "
        "item "
        "is not read\"}],\"phases\":14,\"status\":\"";
    const std::pair<std::string, std::string> rows[] = {
        {"all", warning + fault + "3 records: 2 pass, 1 invalid\n= 1\n"},
        {"-j1 all", warning + fault + "3 records: 2 pass, 1 invalid\n= 1\n"},
        {"all/b.REC all/b-w.rec", warning + "2 records: 2 pass\n= 0\n"},
        {"--strict all/b-w.rec", warning + "1 record: 1 invalid\n= 1\n"},
        {"-q --strict all/b-w.rec", "= 1\n"},
        {"no all all/b.rec/none /dev/null",
         "no: error: No such file or directory\n" + warning + fault +
             "all/b.rec/none: error: there is no record in this folder\n"
             "/dev/null: error: not a regular file\n"
             "6 records: 2 pass, 1 invalid, 3 unreadable\n= 2\n"},
        {"- <all/b-w.rec", "-:2: warning: 0 is judged as 20 (scale)\n1 record: 1 passes\n= 0\n"},
        {"- </",
         "-:1: error: the file or its device failed: Is a directory (label)\n"
         "1 record: 1 unreadable\n= 2\n"},
        {"[[]*",
         "[\\n\xE9\"]:125: warning: what follows the last item is not read\n1 record: 1 passes\n= "
         "0\n"},
        {"--json [[]*", "{\"record\":\"[\\n\uFFFD\\\"]" + json + "passes\"}\n= 0\n"},
        {"--json all/b.rec | grep -o status.*", "status\":\"invalid\"}\n= 0\n"},
        {"--jobs 0 all 2>/dev/null", "= 2\n"},
        {"2>/dev/null", "= 2\n"},
        {"all >/dev/full", "tephrexcheck: standard output: No space left on device\n= 2\n"}};
    for (const auto& [arguments, expected] : rows) {
        EXPECT_EQ(Printed(folder, arguments), expected) << arguments;
    }
}

}  // namespace
