// Runs tephrexcheck: its options, its output and its exit status.
#include <cstdio>

#include "TestForm.h"

namespace {

// Runs the program in this folder; returns what it prints and its exit status.
std::string Printed(const TempFolder& folder, const std::string& arguments) {
    const std::string command = "cd '" + folder / "" + "' && '" TEPHREX_CHECK "' " + arguments;
    setenv("TERM", "xterm", 1);
    FILE* const output = popen(("(" + command + ") 2>&1; echo \"= $?\"").c_str(), "r");
    std::string text;
    for (int c = 0; (c = std::fgetc(output)) != EOF;) text += static_cast<char>(c);
    pclose(output);
    return text;
}

TEST(CheckProgramTest, EachCommandLineHasItsOutputAndExitsWithTheWorstStatus) {
    const std::string demo = ReadBytes(TEPHREX_DATA "/TephrexDemo.rec");
    const std::string warned = Replaced(demo, "14,20", "14,0");
    const std::string invalid = Replaced(demo, "0.2,-8", "0.2,-80.5");
    const TempFolder folder;
    std::filesystem::create_directories(folder / "all/b.rec/none");
    std::filesystem::create_directory_symlink("..", folder / "all/again.rec");
    WriteBytes(folder / "all/b.rec/i.Rec", invalid);
    WriteBytes(folder / "all/b.REC", demo);
    WriteBytes(folder / "all/b-w.rec", warned);
    WriteBytes(folder / "all/b.txt", "");
    std::filesystem::create_directories(folder / "long");
    std::filesystem::create_directories(folder / ".rec");
    WriteBytes(folder / ".rec/.rec", "");
    std::string many = "\"Stratigraphic file:\",\n\"Recorded phases\",99,20";
    for (int i = 0; i < 99; ++i) many += ",,\"Record Phase: \"" + std::string(28, ',');
    for (const char* const name : {"long/1.rec", "long/2.rec"}) WriteBytes(folder / name, many);
    WriteBytes(folder / "[\n\xE9\"]", demo + ',');
    const std::string warning = "all/b-w.rec:2: warning: 0 is judged as 20 (scale)\n";
    const std::string fault =
        "all/b.rec/i.Rec:13: invalid: phase 2 (Strombolian): Wind speed too negative (wind -80.5, "
        "at "
        "least -50)\n";
    const std::string json =
        "\",\"findings\":[{\"level\":\"warning\",\"line\":125,\"message\":\"text after the last "
        "item is not read\"}],\"phases\":14,\"status\":\"";
    const std::string onTerminal = "script -qec \"'" TEPHREX_CHECK "' ";
    const std::string plain = " 0 is judged as 20 (scale)\r\n1 record: 1 passes\r\n= 0\n";
    std::string help = "-h | tr -s ' \\n' ' ' | grep -c '";
    for (const char* const said :
         {"Lists everything that is wrong with the records of the Tephrex eruption simulator.",
          "RECORD", "A file, a folder (every [*].rec below it), or - for standard input",
          "Show this help and exit", "Show the version and exit",
          "How many records to check at a time",
          "Print one JSON object per record, each on one line",
          "Print nothing; only set the exit status", "Count a record with warnings as invalid",
          "Exit status: 0 if all records pass, 1 if one is invalid, 2 if one cannot be read or the "
          "command line is wrong."}) {
        help += said + std::string(" .*");
    }
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
         "[\\n\xE9\"]:125: warning: text after the last item is not read\n1 record: 1 passes\n= "
         "0\n"},
        {"--json [[]*", "{\"record\":\"[\\n\uFFFD\\\"]" + json + "passes\"}\n= 0\n"},
        {"--json all/b.rec",
         R"({"record":"all/b.rec/i.Rec","findings":[{"level":"invalid","line":13,"phase":2,)"
         R"("type":"Strombolian","field":"wind","value":-80.5,"lowest":-50,)"
         R"("message":"Wind speed too negative"}],"phases":14,"status":"invalid"})"
         "\n= 1\n"},
        {".rec",
         ".rec/.rec:1: error: the file ends before the record does (label)\n"
         "1 record: 1 unreadable\n= 2\n"},
        {"-j1 long >1; '" TEPHREX_CHECK "' -j9 long | cmp - 1 && wc -l <1", "6275\n= 0\n"},
        {"-V | tr -d 0-9.", "tephrexcheck \n= 0\n"},
        {help + "'", "1\n= 0\n"},
        {"-q all/b.REC; " + onTerminal + "all/b.rec no\"",
         "all/b.rec/i.Rec:13: \x1b[1;33minvalid:\x1b[0m phase 2 (Strombolian): Wind speed too "
         "negative (wind -80.5, at least -50)\r\n"
         "no: \x1b[1;31merror:\x1b[0m No such file or directory\r\n"
         "2 records: 1 invalid, 1 unreadable\r\n= 2\n"},
        {"-q all/b.REC; NO_COLOR= " + onTerminal + "all/b-w.rec\"",
         "all/b-w.rec:2: \x1b[1;35mwarning:\x1b[0m" + plain},
        {"-q all/b.REC; NO_COLOR=1 " + onTerminal + "all/b-w.rec\"",
         "all/b-w.rec:2: warning:" + plain},
        {"-q all/b.REC; TERM=dumb " + onTerminal + "all/b-w.rec\"",
         "all/b-w.rec:2: warning:" + plain},
        {"-q all/b.REC; script -qec \"(sleep 1.1; cat all/b.REC) | '" TEPHREX_CHECK "' -\"",
         "\r\x1b[K1 of 1 records\r\x1b[K1 record: 1 passes\r\n= 0\n"},
        {"--jobs 0 all 2>/dev/null", "= 2\n"},
        {"--jobs 1025 all 2>/dev/null", "= 2\n"},
        {"-q --jobs 1024 all/b.REC", "= 0\n"},
        {"2>/dev/null", "= 2\n"},
        {"all >/dev/full", "tephrexcheck: standard output: No space left on device\n= 2\n"}};
    for (const auto& [arguments, expected] : rows) {
        EXPECT_EQ(Printed(folder, arguments), expected) << arguments;
    }
}

}  // namespace
