// tephrexdraw: reads a record, draws it and writes the picture.

#include <QBuffer>
#include <QGuiApplication>
#include <QHashFunctions>
#include <csignal>
#include <filesystem>
#include <iostream>
#include <memory>

#include "check/Wording.h"
#include "draw/DrawOptions.h"
#include "draw/Layout.h"
#include "draw/Output.h"
#include "draw/Paint.h"
#include "draw/Svg.h"
#include "record/RecordFile.h"

namespace {

constexpr int Failed = 2;

// Hides the toolkit's warnings, which are about a desktop that is not used here.
void PrintOnlyErrors(QtMsgType type, const QMessageLogContext& /*context*/,
                     const QString& message) {
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        std::cerr << "tephrexdraw: " << message.toStdString() << '\n';
    }
}

QByteArray PictureOf(const EditorState& record, const DrawOptions& options) {
    constexpr double anyHeight = 1e9;
    constexpr double paper = 1.4142135623730951;  // height by width of the A sizes
    const std::string name = std::filesystem::path(options.record).filename().string();
    const bool paged = options.format == PictureFormat::Pdf;
    const Drawing drawing =
        DrawRecord(record, name, {options.width, paged ? options.width * paper : anyHeight});
    switch (options.format) {
        case PictureFormat::Svg: return SvgOf(drawing);
        case PictureFormat::Png: return PngOf(drawing, options.dpi);
        case PictureFormat::Pdf: return PdfOf(drawing);
    }
    return {};
}

int Draw(const DrawOptions& options) {
    const auto record = std::make_unique<EditorState>();
    if (const ReadResult result = ReadRecordFile(options.record, *record); !result) {
        std::cerr << ErrorLine(options.record, *result.failure, record->LoadedPhaseCount) << '\n';
        return Failed;
    }
    WriteWhole(options.output, PictureOf(*record, options));
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    try {
        std::signal(SIGPIPE, SIG_IGN);  // a write to a closed pipe must not end the program
        // No display is used, whatever the environment says.
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qunsetenv("QT_QPA_PLATFORMTHEME");
        qInstallMessageHandler(PrintOnlyErrors);
        QHashSeed::setDeterministicGlobalSeed();  // decides the order of the fonts in a PDF
        int programOnly = 1;                      // the toolkit sees no options
        const QGuiApplication application(programOnly, argv);
        const DrawOptions options = OptionsOf(argc, argv);
        if (options.answer.empty()) {
            return Draw(options);
        }
        std::cout << options.answer << std::flush;
        return std::cout ? 0 : Failed;
    } catch (const std::exception& error) {
        std::cerr << "tephrexdraw: " << OneLine(error.what()) << '\n';
        return Failed;
    }
}
