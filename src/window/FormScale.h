// How large a twip is on the screen. The whole form has one scale, so its proportions are the same
// in any font. The positions of the controls are in the catalogue.
#pragma once

#include "window/View.h"

struct RecordEdit;

/// Logical pixels per twip: 96 pixels to the inch, or more if the widgets would otherwise cut off a
/// caption, list entry or value in range in their font. Changes the texts and sizes of the widgets:
/// update and place the views afterwards.
double FittingScale(const Views& views, const RecordEdit& form);

/// A length on the form in logical pixels, rounded; `scale` is in logical pixels per twip.
int ToPixels(int twips, double scale);

/// How much of the control's right end others cover, in twips; 0 if none, and for labels.
int CoveredWidth(const CatalogueRow& row);
