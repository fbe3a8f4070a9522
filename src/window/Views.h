// The views by kind of control: one class for each kind, and none for a single control. Where
// a control departs from the look of its kind, its row of the catalogue says so.
#pragma once

#include <memory>

#include "window/View.h"

/// Makes the view of a control with its widget. Null for a kind that is not on the screen.
/// The control has to be of the kind that its row names.
std::unique_ptr<View> NewView(const ViewParts& parts);
