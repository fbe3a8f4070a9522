// A drawing put onto paper or pixels by the toolkit's painter.
#pragma once

#include <QByteArray>
#include <stdexcept>

#include "draw/Drawing.h"

/// Why a drawing cannot be painted, in words for the user.
struct PaintError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// The first page as PNG. Throws PaintError if it has more pixels than the painter can hold.
QByteArray PngOf(const Drawing& drawing, double dotsPerInch);

/// All pages as PDF.
QByteArray PdfOf(const Drawing& drawing);
