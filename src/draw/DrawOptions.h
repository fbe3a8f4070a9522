// The command line of tephrexdraw.
#pragma once

#include <stdexcept>
#include <string>

enum class PictureFormat { Svg, Png, Pdf };

struct DrawOptions {
    std::string record;  // bytes, as they are on the command line
    std::string output;  // empty for standard output
    PictureFormat format = PictureFormat::Svg;
    double width = 0;    // millimetres
    double dpi = 0;      // of a PNG
    std::string answer;  // what to print instead of drawing: the help or the version
};

/// What is wrong with the command line, for the user.
struct UsageError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Reads the command line of main. Throws UsageError if it is wrong.
DrawOptions OptionsOf(int argc, char** argv);
