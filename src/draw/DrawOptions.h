// The command line of tephrexdraw.
#pragma once

#include <stdexcept>
#include <string>

enum class PictureFormat { Svg, Png, Pdf };

struct DrawOptions {
    std::string record;  // bytes, as they are on the command line
    std::string output;  // empty for standard output
    PictureFormat format = PictureFormat::Svg;
    double width = 0;  // millimetres
    double dpi = 0;
    std::string answer;  // what to print instead of drawing: the help or the version
};

/// A command line that cannot be followed, in words for the user.
struct WrongUse : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Throws WrongUse.
DrawOptions OptionsOf(int argc, char** argv);
