// Texts and their extents. There is one font, for each one more takes its time to be found; every
// size is measured at one size of it and scaled, so that a picture is the same at each resolution.
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <string_view>

#include "draw/Drawing.h"

/// What a text is allowed to be wider where it is shown than where it was measured.
constexpr double RoomForOtherFonts = 1.1;

/// The families of the font, in the order of preference, as in a style sheet.
constexpr const char* FontFamilies = "Helvetica, Arial, sans-serif";

/// The font as it is measured and, scaled by size / MeasuredSize, painted.
constexpr int MeasuredSize = 100;
QFont MeasuredFont();

struct Letters {
    double size;
    QRgb colour = 0xFF000000;
};

/// Needs a QGuiApplication.
class Lettering {
public:
    /// The width, with room for other fonts.
    double Width(const QString& text, const Letters& letters);

    /// A text at a place on its base line.
    Text Put(const QString& text, QPointF at, Anchor anchor, const Letters& letters);

    /// The text, cut with an ellipsis if it is wider.
    QString Elided(const QString& text, Qt::TextElideMode mode, double width,
                   const Letters& letters);

    /// The text in lines of at most this width; a word that is longer is cut.
    QStringList Wrapped(const QString& text, double width, const Letters& letters);

private:
    struct TextExtent {
        double advance;
        QRectF bounds;
    };
    const TextExtent& Measure(const QString& text);

    QFont font = MeasuredFont();
    QFontMetricsF metrics{font};
    QRectF lineRoom = metrics.tightBoundingRect("Hgj()");  // what its letters cover above and below
    QHash<QString, TextExtent> known;
};

/// The bytes of a name as a text that can be shown on one line: UTF-8, or Windows-1252 if they are
/// not UTF-8 as a whole, with a visible stand-in for each control character, line end and mark that
/// turns the direction of writing.
QString Readable(std::string_view bytes);

/// A number as a label, with a true minus sign; `sign` also shows a plus.
QString Label(double number, bool sign = false);
