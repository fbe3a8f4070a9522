// A drawing as SVG. Written directly: the toolkit's own generator takes several times as long for
// the bars of a large record, and cannot anchor a text at its end or middle.
#pragma once

#include <QByteArray>

#include "draw/Drawing.h"

/// The first page as an SVG document, in which texts remain text.
QByteArray SvgOf(const Drawing& drawing);
