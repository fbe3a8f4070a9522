// Paints a drawing as PNG or PDF with the toolkit's painter. SVG is in Svg.
#pragma once

#include <QByteArray>
#include <stdexcept>

#include "draw/Drawing.h"

/// Why a drawing cannot be painted, for the user.
struct PaintError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The first page as PNG. Throws PaintError if it is too large or cannot be converted.
QByteArray PngOf(const Drawing& drawing, double dotsPerInch);

/// All pages as PDF, each the size of the first.
QByteArray PdfOf(const Drawing& drawing);
