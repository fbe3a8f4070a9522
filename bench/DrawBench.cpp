// The figures of tephrexdraw: drawing the largest record, and the whole program with a small one.

#include <QGuiApplication>
#include <fstream>

#include "Compare.h"
#include "Programs.h"
#include "Records.h"
#include "draw/Layout.h"
#include "draw/Output.h"
#include "draw/Svg.h"
#include "record/RecordFile.h"

namespace {

void DrawLargest(benchmark::State& state) {
    const RecordOnDisk file(MaxPhases);
    const RecordOnDisk picture(0);
    const auto record = std::make_unique<EditorState>();
    const auto read = [&] { ReadRecordFile(file.Path(), *record); };
    const auto draw = [&] {
        constexpr double anyHeight = 1e9;
        read();
        WriteWhole(picture.Path(), SvgOf(DrawRecord(*record, "largest.rec", {180, anyHeight})));
    };
    draw();
    const std::string bytes = picture.Bytes();
    Compare(
        state, {12},
        [&] {
            return Timed(1, [&] {
                read();
                std::ofstream(picture.Path(), std::ios::binary) << bytes;
            });
        },
        [&] { return Timed(1, draw); });
}
BENCHMARK(DrawLargest)->Name("Draw the largest record as SVG")->UseManualTime();

// Ten phases with 100 flows each, against one text in a file of that kind.
void DrawTen(benchmark::State& state, const char* kind) {
    const RecordOnDisk file(10);
    const std::string picture = file.Path() + kind;
    const Command reference{TEPHREX_PROGRAMS "/one_text", picture};
    const Command draw{TEPHREX_DRAW, file.Path(), "-o", picture};
    const auto writeOneText = [&] { return RunToEnd(reference).processorSeconds; };
    Compare(state, {1.3}, writeOneText, [&] { return RunToEnd(draw).processorSeconds; });
    std::filesystem::remove(picture);
}
BENCHMARK_CAPTURE(DrawTen, svg, ".svg")->Name("Draw ten phases, SVG")->UseManualTime();
BENCHMARK_CAPTURE(DrawTen, png, ".png")->Name("Draw ten phases, PNG")->UseManualTime();
BENCHMARK_CAPTURE(DrawTen, pdf, ".pdf")->Name("Draw ten phases, PDF")->UseManualTime();

}  // namespace

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    return RunFigures(argc, argv);
}
