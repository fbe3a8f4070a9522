#include "draw/Options.h"

#include <QCommandLineParser>
#include <array>

#include "draw/Layout.h"

namespace {

// Names are bytes and go through the parser as characters of the same numbers, so that one that is
// no text comes out as it went in.
QString Carried(const char* bytes) { return QString::fromLatin1(bytes); }
std::string Bytes(const QString& carried) { return carried.toLatin1().toStdString(); }

struct Range {
    double least;
    double most;
};

double NumberOf(const QCommandLineParser& parser, const QCommandLineOption& option, Range range) {
    bool isNumber = false;
    const double number = parser.value(option).toDouble(&isNumber);
    if (!isNumber || !(number >= range.least && number <= range.most)) {
        throw WrongUse(QString("--%1 is a number from %2 to %3")
                           .arg(option.names().back())
                           .arg(range.least)
                           .arg(range.most)
                           .toStdString());
    }
    return number;
}

Format FormatOf(const QString& output) {
    struct Ending {
        const char* text;
        Format format;
    };
    constexpr std::array endings{Ending{".svg", Format::Svg}, Ending{".png", Format::Png},
                                 Ending{".pdf", Format::Pdf}};
    for (const Ending& ending : endings) {
        if (output.endsWith(ending.text, Qt::CaseInsensitive)) {
            return ending.format;
        }
    }
    throw WrongUse("the name of the picture ends in .svg, .png or .pdf");
}

}  // namespace

Options OptionsOf(int argc, char** argv) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        "Draws a record of the Tephrex eruption simulator as one picture.");
    parser.addPositionalArgument("RECORD", "The record to draw.");
    const QCommandLineOption help({"h", "help"}, "Show this help and end.");
    const QCommandLineOption version({"V", "version"}, "Show the version and end.");
    const QCommandLineOption output(
        {"o", "output"},
        "Draw into FILE, by its ending .svg, .png or .pdf; without it, SVG on standard output.",
        "FILE");
    const QCommandLineOption width("width", "Width in millimetres, 120 to 2000.", "MM", "180");
    const QCommandLineOption dpi("dpi", "Dots per inch of a PNG, 10 to 2400.", "DPI", "200");
    parser.addOptions({help, version, output, width, dpi});
    QStringList arguments;
    for (int i = 0; i < argc; ++i) {
        arguments += Carried(argv[i]);
    }
    Options options;
    if (!parser.parse(arguments)) {
        throw WrongUse(Bytes(parser.errorText()));
    }
    if (parser.isSet(help)) {
        options.answer = parser.helpText().toStdString();
        return options;
    }
    if (parser.isSet(version)) {
        options.answer = "tephrexdraw " TEPHREX_VERSION "\n";
        return options;
    }
    if (parser.positionalArguments().size() != 1) {
        throw WrongUse("name one record; --help shows how");
    }
    options.record = Bytes(parser.positionalArguments().front());
    if (parser.isSet(output)) {
        options.output = Bytes(parser.value(output));
        options.format = FormatOf(parser.value(output));
    }
    options.width = NumberOf(parser, width, {NarrowestSheet, 2000});
    options.dpi = NumberOf(parser, dpi, {10, 2400});
    return options;
}
