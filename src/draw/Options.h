// The command line of tephrexdraw.
#pragma once

#include <stdexcept>
#include <string>

enum class Format { Svg, Png, Pdf };

struct Options {
    std::string record;  // bytes, as they are on the command line
    std::string output;  // empty for standard output
    Format format = Format::Svg;
    double width = 0;  // millimetres
    double dpi = 0;
    std::string answer;  // what to print instead of drawing: the help or the version
};

/// A command line that cannot be followed, in words for the user.
struct WrongUse : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws WrongUse.
Options OptionsOf(int argc, char** argv);
