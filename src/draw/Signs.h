// The signs of a picture by eruption type, their colours, and the marks that go with them. What a
// sign means and where it goes is decided by those who use them.
#pragma once

#include <QPainterPath>
#include <QRgb>

#include "draw/Drawing.h"
#include "record/PhaseRecord.h"

/// The palette of Okabe and Ito, whose colours differ for colour-blind eyes too.
namespace Palette {
constexpr QRgb Black = 0xFF000000;
constexpr QRgb Orange = 0xFFE69F00;
constexpr QRgb SkyBlue = 0xFF56B4E9;
constexpr QRgb Green = 0xFF009E73;
constexpr QRgb Yellow = 0xFFF0E442;
constexpr QRgb Blue = 0xFF0072B2;
constexpr QRgb Vermilion = 0xFFD55E00;
constexpr QRgb Purple = 0xFFCC79A7;
// Greys for what holds the picture together.
constexpr QRgb Ink = 0xFF222222;
constexpr QRgb Grey = 0xFF606060;
constexpr QRgb Rule = 0xFFD8D8D8;
constexpr QRgb Shade = 0xFFEDEDED;
constexpr QRgb Tint = 0xFFFBEFE6;  // of Vermilion
}  // namespace Palette

constexpr double LargestSign = 5;  // height
constexpr double HalfSign = 3.8;   // from the middle of the widest, at that height

/// The height of the sign of a strength; of types without strength.
double SignHeight(Single strength);
constexpr double PlainSignHeight = 3.6;

/// The sign of a type with a vent, standing on `foot`. A type without a vent, or a code that is no
/// type, has an empty one.
Shape SignOf(Integer eruptionType, QPointF foot, double height);

/// The colour of a type; black for a code that is no type.
QRgb ColourOf(Integer eruptionType);

Shape CalderaMark(QPointF foot, Integer calderaStyle);
Shape DiatremeMark(QPointF foot);
/// To the right with `side` 1, to the left with -1; as wide as BlastWidth.
Shape BlastMark(QPointF foot, int side);
constexpr double BlastWidth = 4;
/// Above a sign of that height.
Shape BurstMark(QPointF foot, double height);
/// An arrow from a point sideways; a negative length points to the left.
Shape Arrow(Mark mark, QPointF from, double length, QRgb colour);
/// A wave of so many periods.
Shape Wave(QPointF from, double length, int periods);
/// The sign of a phase that Save would refuse.
Shape RefusedMark(QPointF centre);

/// The path with one colour for line and fill, or with a line only.
Shape Filled(Mark mark, const QPainterPath& path, QRgb colour);
Shape Lined(Mark mark, const QPainterPath& path, QRgb colour, double width);
