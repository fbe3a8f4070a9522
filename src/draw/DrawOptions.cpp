#include "draw/DrawOptions.h"

#include <QCommandLineParser>
#include <array>

#include "draw/Layout.h"

namespace {

// File names are bytes. The parser gets each byte as the character with the same number, so that a
// name that is not valid text is unchanged.
QString FromBytes(const char* bytes) { return QString::fromLatin1(bytes); }
std::string ToBytes(const QString& characters) { return characters.toLatin1().toStdString(); }

struct Range {
    double least;
    double most;
};

double NumberOf(const QCommandLineParser& parser, const QCommandLineOption& option, Range range) {
    bool isNumber = false;
    const double number = parser.value(option).toDouble(&isNumber);
    if (!isNumber || !(number >= range.least && number <= range.most)) {
        throw UsageError(QString("--%1 must be a number from %2 to %3")
                             .arg(option.names().back())
                             .arg(range.least)
                             .arg(range.most)
                             .toStdString());
    }
    return number;
}

PictureFormat FormatOf(const QString& output) {
    struct Ending {
        const char* text;
        PictureFormat format;
    };
    constexpr std::array endings{Ending{".svg", PictureFormat::Svg},
                                 Ending{".png", PictureFormat::Png},
                                 Ending{".pdf", PictureFormat::Pdf}};
    for (const Ending& ending : endings) {
        if (output.endsWith(ending.text, Qt::CaseInsensitive)) {
            return ending.format;
        }
    }
    throw UsageError("the name of the picture must end in .svg, .png or .pdf");
}

struct CommandLine {
    QCommandLineOption help{{"h", "help"}, "Show this help and exit."};
    QCommandLineOption version{{"V", "version"}, "Show the version and exit."};
    QCommandLineOption output{
        {"o", "output"},
        "Draw into FILE, which ends in .svg, .png or .pdf; by default, SVG on standard output.",
        "FILE"};
    QCommandLineOption width{"width", "Width in millimetres, 120 to 2000.", "MM", "180"};
    QCommandLineOption dpi{"dpi", "Dots per inch of a PNG, 10 to 2400.", "DPI", "200"};
    QCommandLineParser parser;

    CommandLine(int argc, char** argv) {
        parser.setApplicationDescription(
            "Draws a record of the Tephrex eruption simulator as one picture.");
        parser.addPositionalArgument("RECORD", "The record to draw.");
        parser.addOptions({help, version, output, width, dpi});
        QStringList arguments;
        for (int i = 0; i < argc; ++i) {
            arguments += FromBytes(argv[i]);
        }
        if (!parser.parse(arguments)) {
            throw UsageError(ToBytes(parser.errorText()));
        }
    }
};

DrawOptions DrawingOptions(const CommandLine& line) {
    if (line.parser.positionalArguments().size() != 1) {
        throw UsageError("name one record; --help shows how");
    }
    DrawOptions options;
    options.record = ToBytes(line.parser.positionalArguments().front());
    if (line.parser.isSet(line.output)) {
        options.output = ToBytes(line.parser.value(line.output));
        options.format = FormatOf(line.parser.value(line.output));
    }
    options.width = NumberOf(line.parser, line.width, {NarrowestSheet, 2000});
    options.dpi = NumberOf(line.parser, line.dpi, {10, 2400});
    return options;
}

}  // namespace

DrawOptions OptionsOf(int argc, char** argv) {
    const CommandLine line(argc, argv);
    DrawOptions options;
    if (line.parser.isSet(line.help)) {
        options.answer = line.parser.helpText().toStdString();
    } else if (line.parser.isSet(line.version)) {
        options.answer = "tephrexdraw " TEPHREX_VERSION "\n";
    } else {
        options = DrawingOptions(line);
    }
    return options;
}
