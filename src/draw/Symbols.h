// The symbols of the eruption types, their colours, and the other marks of a picture. Rows and
// Legend decide where and for which phase they are drawn.
#pragma once

#include <QPainterPath>
#include <QRgb>

#include "draw/Drawing.h"
#include "record/PhaseRecord.h"

/// The palette of Okabe and Ito, whose colours colour-blind readers can tell apart too.
namespace Palette {
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Orange = 0xFFE69F00;
constexpr QRgb SkyBlue = 0xFF56B4E9;
constexpr QRgb Green = 0xFF009E73;
constexpr QRgb Yellow = 0xFFF0E442;
constexpr QRgb Blue = 0xFF0072B2;
constexpr QRgb Vermilion = 0xFFD55E00;
constexpr QRgb Purple = 0xFFCC79A7;
// Greys for outlines, rules and backgrounds.
constexpr QRgb Ink = 0xFF222222;
constexpr QRgb Grey = 0xFF606060;
constexpr QRgb Rule = 0xFFD8D8D8;
constexpr QRgb Shade = 0xFFEDEDED;
}  // namespace Palette

constexpr double LargestSymbol = 5;  // height
constexpr double HalfSymbol = 3.8;   // half the width of the widest, at that height

/// The height of a symbol by strength (limited to 0 to 2), and for types without strength.
double SymbolHeight(Single strength);
constexpr double PlainSymbolHeight = 3.6;

/// The symbol of a type, with the middle of its lower edge at `foot`. Its path is empty for a type
/// without a symbol and for a code that is not a type.
Shape SymbolOf(Integer eruptionType, QPointF foot, double height);

/// The colour of a type; black for a code that is not a type.
QRgb ColourOf(Integer eruptionType);

/// Below a vent at `foot`. An unknown style is drawn with an open floor.
Shape CalderaMark(QPointF foot, Integer calderaStyle);
Shape DiatremeMark(QPointF foot);
/// To the right with `side` 1, to the left with -1; as wide as BlastWidth.
Shape BlastMark(QPointF foot, int side);
constexpr double BlastWidth = 4;
/// Above a symbol of that height.
Shape BurstMark(QPointF foot, double height);
/// A horizontal arrow; with a negative length it points to the left.
Shape Arrow(Mark mark, QPointF from, double length, QRgb colour);
/// A wave of `periods` periods, at least 1, to the right.
Shape Wave(QPointF from, double length, int periods);
/// The mark of a phase that Save would refuse.
Shape RefusedMark(QPointF centre);

/// The path filled without a line, or with a line only.
Shape Filled(Mark mark, const QPainterPath& path, QRgb colour);
Shape Lined(Mark mark, const QPainterPath& path, QRgb colour, double width);
