// The command line of tephrexcheck. CheckRun does the work.

#include <unistd.h>

#include <CLI/CLI.hpp>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "check/CheckRun.h"

namespace {

constexpr int Failed = 2;

struct Options {
    std::vector<std::string> names;
    int jobs = static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
    bool json = false;
    bool quiet = false;
    bool strict = false;
};

void Describe(CLI::App& app, Options& options) {
    app.set_help_flag("-h,--help", "Show this help and exit");
    app.set_version_flag("-V,--version", "tephrexcheck " TEPHREX_VERSION,
                         "Show the version and exit");
    app.add_option("RECORD", options.names,
                   "A file, a folder (every *.rec below it), or - for standard input")
        ->required();
    app.add_option("-j,--jobs", options.jobs, "How many records to check at a time")
        ->check(CLI::Range(1, 1024))
        ->capture_default_str();
    app.add_flag("--json", options.json, "Print one JSON object per record, each on one line");
    app.add_flag("-q,--quiet", options.quiet, "Print nothing; only set the exit status");
    app.add_flag("--strict", options.strict, "Count a record with warnings as invalid");
    app.footer(
        "Exit status: 0 if all records pass, 1 if one is invalid, 2 if one cannot be read or the\n"
        "command line is wrong.");
}

// The arguments in reverse order, as the parser expects them. It reads an argument in brackets as a
// list; a zero byte, which no argument contains, hides the bracket until Parse removes it.
std::vector<std::string> HideBrackets(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        arguments.emplace_back(argv[i]);
        arguments.back().append(arguments.back().ends_with(']') ? 1 : 0, '\0');
    }
    return arguments;
}

void Parse(CLI::App& app, Options& options, int argc, char** argv) {
    std::vector<std::string> arguments = HideBrackets(argc, argv);
    app.parse(arguments);
    for (std::string& name : options.names) {
        name = name.c_str();
    }
}

bool MayColour() {
    const char* const forbidden = std::getenv("NO_COLOR");
    return IsTerminal(STDOUT_FILENO) && (forbidden == nullptr || *forbidden == 0);
}

int Run(const Options& options) {
    std::signal(SIGPIPE, SIG_IGN);  // a write to a closed pipe must not end the program
    const ReportOptions reportOptions{options.json, options.quiet, options.strict,
                                      !options.json && MayColour()};
    Output output(!options.quiet);
    const Tally tally =
        CheckRecords(ListRecords(options.names), options.jobs, reportOptions, output);
    if (!options.json && !options.quiet) {
        output.Write(tally.Summary());
    }
    if (output.Failed()) {
        if (!output.Failure().empty()) {
            std::cerr << "tephrexcheck: standard output: " << output.Failure() << '\n';
        }
        return Failed;
    }
    return tally.Status();
}

}  // namespace

int main(int argc, char** argv) {
    try {
        Options options;
        CLI::App app(
            "Lists everything that is wrong with the records of the Tephrex eruption simulator.",
            "tephrexcheck");
        Describe(app, options);
        try {
            Parse(app, options, argc, argv);
        } catch (const CLI::ParseError& error) {
            const bool asked = app.exit(error) == 0;  // for the help or the version
            return asked && std::cout.flush() ? 0 : Failed;
        }
        return Run(options);
    } catch (const std::exception& error) {
        std::cerr << "tephrexcheck: " << error.what() << '\n';
        return Failed;
    }
}
