// The axes of a page: time upwards at the left, locations along the map, and the headings of the
// other columns.
#pragma once

#include "draw/Columns.h"

namespace Sheet {
constexpr double AxisHead = 10;  // above the rows: headings and ticks
constexpr double AxisFoot = 5;   // below them: ticks
}  // namespace Sheet

/// The axes around rows from `top` to `bottom`.
Group AxesOf(double top, double bottom, const Columns& columns, const Contents& contents,
             Lettering& lettering);
