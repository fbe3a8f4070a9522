// The views: one class for each kind of control, none for a single control. The row of a control in
// the catalogue says how it differs from the usual look of its kind.
#pragma once

#include <memory>

#include "window/View.h"

/// Makes the view of a control and its widget. Null for a kind that is not on the screen. Throws
/// std::bad_cast if the control is not of the kind in its row.
std::unique_ptr<View> NewView(const ViewParts& parts);
