// Measures and places texts. There is only one font, because loading another takes time. Texts are
// measured at one size and scaled, so that a picture is the same at every resolution.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <string_view>

#include "draw/Drawing.h"

/// How much wider a text may be where it is shown than where it was measured.
constexpr double RoomForOtherFonts = 1.1;

/// The families of the font, in order of preference, as in a style sheet.
constexpr const char* FontFamilies = "Helvetica, Arial, sans-serif";

/// The font in which texts are measured and, scaled by size / MeasuredSize, painted.
constexpr int MeasuredSize = 100;
QFont MeasuredFont();

/// The height of the font in millimetres, and the colour.
struct TextStyle {
    double size;
    QRgb colour = 0xFF000000;
};

/// Measures and places texts. Needs a QGuiApplication.
class Lettering {
public:
    /// The width in millimetres, with room for other fonts.
    double Width(const QString& text, const TextStyle& style);

    /// A text with its anchor at a point on the baseline.
    Text Put(const QString& text, QPointF at, Anchor anchor, const TextStyle& style);

    /// The text, cut with an ellipsis if it is wider than `width`.
    QString Elided(const QString& text, Qt::TextElideMode mode, double width,
                   const TextStyle& style);

    /// The text in lines of at most this width; longer words are broken.
    QStringList Wrapped(const QString& text, double width, const TextStyle& style);

private:
    struct TextExtent {  // at MeasuredSize
        double advance;
        QRectF bounds;
    };
    const TextExtent& Measure(const QString& text);

    QFont font = MeasuredFont();
    QFontMetricsF metrics{font};
    QRectF lineBounds = metrics.tightBoundingRect("Hgj()");  // of letters and brackets
    QHash<QString, TextExtent> known;
};

/// The bytes of a name as text for one line: UTF-8, or Windows-1252 if they are not UTF-8 as a
/// whole. Control characters, line separators, characters that override the direction and those
/// that XML does not allow become U+FFFD.
QString Readable(std::string_view bytes);

/// A number as a label of up to five digits, with a true minus sign; `showsPlus` also shows a plus.
QString Label(double number, bool showsPlus = false);
