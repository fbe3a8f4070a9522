#include "draw/Symbols.h"

#include <QTransform>
#include <algorithm>
#include <array>
#include <cmath>

#include "rules/FieldUse.h"

namespace {

// Symbols are about one unit high (the shield half of that), upwards from their foot at 0, 0.

QPainterPath Shield() {
    QPainterPath path(QPointF(-0.76, 0));
    path.cubicTo(-0.5, 0.28, -0.3, 0.46, -0.14, 0.5);
    path.lineTo(0, 0.44);
    path.lineTo(0.14, 0.5);
    path.cubicTo(0.3, 0.46, 0.5, 0.28, 0.76, 0);
    path.closeSubpath();
    return path;
}

QPainterPath DomeWithSpine() {
    QPainterPath path(QPointF(-0.5, 0));
    path.cubicTo(-0.5, 0.4, -0.3, 0.6, -0.1, 0.64);
    path.lineTo(-0.04, 1);
    path.lineTo(0.1, 0.64);
    path.cubicTo(0.3, 0.6, 0.5, 0.4, 0.5, 0);
    path.closeSubpath();
    return path;
}

QPainterPath CinderCone() {
    QPainterPath path(QPointF(-0.6, 0));
    path.lineTo(-0.2, 1);
    path.quadTo(0, 0.8, 0.2, 1);
    path.lineTo(0.6, 0);
    path.closeSubpath();
    return path;
}

QPainterPath Umbrella() {
    QPainterPath path(QPointF(-0.16, 0));
    path.cubicTo(-0.06, 0.2, -0.08, 0.4, -0.12, 0.55);
    path.cubicTo(-0.8, 0.55, -0.8, 1, 0, 1);
    path.cubicTo(0.8, 1, 0.8, 0.55, 0.12, 0.55);
    path.cubicTo(0.08, 0.4, 0.06, 0.2, 0.16, 0);
    path.closeSubpath();
    return path;
}

QPainterPath Fan() {
    QPainterPath path(QPointF(-0.06, 0));
    path.lineTo(-0.36, 0.5);
    path.cubicTo(-0.72, 0.5, -0.7, 0.9, -0.36, 0.82);
    path.cubicTo(-0.34, 1.06, 0.34, 1.06, 0.36, 0.82);
    path.cubicTo(0.7, 0.9, 0.72, 0.5, 0.36, 0.5);
    path.lineTo(0.06, 0);
    path.closeSubpath();
    return path;
}

QPainterPath Ring() {
    QPainterPath path;
    path.addEllipse(QPointF(0, 0.5), 0.46, 0.46);
    path.addEllipse(QPointF(0, 0.5), 0.2, 0.2);
    return path;
}

QPainterPath Nothing() { return {}; }

struct Symbol {
    QPainterPath (*path)();
    QRgb colour;
};

// By the code of the type.
constexpr std::array Symbols{
    Symbol{Nothing, Palette::Black},         // Tectonic
    Symbol{Fan, Palette::SkyBlue},           // Vulcanian
    Symbol{CinderCone, Palette::Orange},     // Strombolian
    Symbol{Shield, Palette::Vermilion},      // Hawaiian
    Symbol{DomeWithSpine, Palette::Purple},  // Pelean
    Symbol{Umbrella, Palette::Black},        // Plinian
    Symbol{Nothing, Palette::Yellow},        // Collapse
    Symbol{Ring, Palette::Green},            // Fumarolic
};
static_assert(Symbols.size() == LastEruptionType + 1, "each eruption type has a symbol");

constexpr double OutlineWidth = 0.2;

QPainterPath At(QPointF foot, double height, const QPainterPath& path) {
    return QTransform(height, 0, 0, -height, foot.x(), foot.y()).map(path);
}

void AddLine(QPainterPath& path, QPointF from, QPointF to) {
    path.moveTo(from);
    path.lineTo(to);
}

}  // namespace

double SymbolHeight(Single strength) {
    constexpr double smallest = 1.6;
    constexpr double strongest = 2;  // the most that any type allows
    const double share = std::clamp(static_cast<double>(strength), 0.0, strongest) / strongest;
    return smallest + (LargestSymbol - smallest) * std::sqrt(share);
}

Shape SymbolOf(Integer eruptionType, QPointF foot, double height) {
    if (!IsEruptionType(eruptionType)) {
        return {Mark::Symbol, {}, {}};
    }
    const Symbol& symbol = Symbols[static_cast<std::size_t>(eruptionType)];
    return {
        Mark::Symbol, At(foot, height, symbol.path()), {Palette::Ink, OutlineWidth, symbol.colour}};
}

QRgb ColourOf(Integer eruptionType) {
    return IsEruptionType(eruptionType) ? Symbols[static_cast<std::size_t>(eruptionType)].colour
                                        : Palette::Black;
}

Shape CalderaMark(QPointF foot, Integer calderaStyle) {
    QPainterPath path(QPointF(-3, 0));
    path.lineTo(-2.3, -1.5);
    if (calderaStyle == CalderaStyle::Valles) {  // with a resurgent floor
        path.lineTo(-1.4, -1.5);
        path.quadTo(0, 0, 1.4, -1.5);
    } else if (calderaStyle != CalderaStyle::Mazama) {
        path.lineTo(-0.5, -1.5);
        path.moveTo(0.5, -1.5);
    }
    path.lineTo(2.3, -1.5);
    path.lineTo(3, 0);
    return Lined(Mark::Caldera, At(foot, 1, path), Palette::Ink, 0.4);
}

Shape DiatremeMark(QPointF foot) {
    QPainterPath path(QPointF(-1.3, 0));
    path.lineTo(-0.3, -1.9);
    path.lineTo(0.3, -1.9);
    path.lineTo(1.3, 0);
    path.closeSubpath();
    return {Mark::Diatreme, At(foot, 1, path), {Palette::Ink, OutlineWidth, 0xFFA0A0A0}};
}

Shape BlastMark(QPointF foot, int side) {
    QPainterPath path;
    for (const double rise : {0.35, 1.1, 1.85}) {
        AddLine(path, {0.5, 0.35 + rise / 4}, {BlastWidth, rise});
    }
    return Lined(Mark::Blast, QTransform(side, 0, 0, -1, foot.x(), foot.y()).map(path),
                 Palette::Ink, 0.35);
}

Shape BurstMark(QPointF foot, double height) {
    QPainterPath path;
    AddLine(path, {0, height + 0.3}, {0, height + 1.3});
    AddLine(path, {-0.6, height + 0.2}, {-1.1, height + 1});
    AddLine(path, {0.6, height + 0.2}, {1.1, height + 1});
    return Lined(Mark::Bursts, At(foot, 1, path), Palette::Ink, 0.35);
}

Shape Arrow(Mark mark, QPointF from, double length, QRgb colour) {
    const double head = std::copysign(std::min(1.4, std::abs(length)), length);
    const double tip = from.x() + length;
    QPainterPath path(from);
    path.lineTo(tip, from.y());
    path.moveTo(tip - head, from.y() - 0.6);
    path.lineTo(tip, from.y());
    path.lineTo(tip - head, from.y() + 0.6);
    return Lined(mark, path, colour, 0.3);
}

Shape Wave(QPointF from, double length, int periods) {
    constexpr double rise = 1.6;  // of the control points: twice that of the wave
    const double quarter = length / periods / 4;
    QPainterPath path(from);
    for (int half = 0; half < 2 * periods; ++half) {
        const double x = from.x() + 2 * quarter * half;
        path.quadTo(x + quarter, from.y() + (half % 2 == 0 ? -rise : rise), x + 2 * quarter,
                    from.y());
    }
    return Lined(Mark::Erosion, path, Palette::Blue, 0.5);
}

Shape RefusedMark(QPointF centre) {
    constexpr double radius = 1.2;
    constexpr double arm = 0.6;
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    AddLine(path, centre - QPointF(arm, arm), centre + QPointF(arm, arm));
    AddLine(path, centre - QPointF(arm, -arm), centre + QPointF(arm, -arm));
    return Lined(Mark::Refused, path, Palette::Vermilion, 0.35);
}

Shape Filled(Mark mark, const QPainterPath& path, QRgb colour) {
    return {mark, path, {0, 0, colour}};
}

Shape Lined(Mark mark, const QPainterPath& path, QRgb colour, double width) {
    return {mark, path, {colour, width, 0}};
}
