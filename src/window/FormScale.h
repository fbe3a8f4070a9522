// How large a twip is on the screen. One scale serves the whole form, so that its proportions
// stay whatever the font. Where the controls stand is told by the catalogue.
#pragma once

#include "window/View.h"

struct RecordEdit;

/// Logical pixels to the twip: 96 pixels to the inch, enlarged until the widgets cut off no
/// caption, list entry or value in range in the font that they have. The widgets are left with
/// other texts; their views have to be brought up to date.
double FittingScale(const Views& views, const RecordEdit& form);

/// A length on the form as logical pixels, at so many pixels to the twip.
int ToPixels(int twips, double scale);

/// How much of a control's right end lies beneath its neighbours, in twips.
int CoveredWidth(const CatalogueRow& row);
