// The columns of a picture, left to right: phase, map, mass flux, bursts, flows and refusals. Their
// widths, and where a location is on the page. Axis and Rows draw in them.
#pragma once

#include "draw/Lettering.h"
#include "record/EditorState.h"

namespace Sheet {
constexpr double Margin = 4;
constexpr double RowHeight = 8;
constexpr double Ground = 2.5;  // above the bottom of a row
constexpr double MapGap = 4.4;  // on both sides of the map, for a symbol at its edge
constexpr TextStyle Plain{2.4};
constexpr TextStyle Small{2.1};
constexpr TextStyle Quiet{2.1, 0xFF606060};
constexpr double LineHeight = 2.8;
constexpr double WidestBar = 1.6;  // of a flow, with its gap
}  // namespace Sheet

/// Which optional columns a picture has. All rows have the same columns.
struct Contents {
    bool flux = false;
    bool bursts = false;
    int flows = 0;  // the largest number of flows in a phase
    bool refused = false;
};

struct Columns {
    double width;      // of the page
    double numberEnd;  // phase numbers end here
    double nameStart;  // types begin here
    double mapStart;   // where map position 50 is
    double mapEnd;     // where map position 1230 is
    double fluxEnd;    // mass fluxes end here
    double burstsEnd;  // numbers of bursts end here
    double flowsStart;
    double flowsWidth;
    double refusalsStart;
    double refusalsWidth;
    Integer scale;  // of the record, not 0

    double End() const { return width - Sheet::Margin; }
    /// Where a location is on the page, in millimetres from the left; possibly off the map.
    double PlaceOf(double location) const;
    /// The same, moved to the edge of the map if it is off the map.
    double OnMap(double location) const;
};

/// The name of a phase's type in short lines; "No type" or "Unknown type n" if it has no name.
QStringList TypeName(const PhaseRecord& phase);

/// The columns that the phases need; `refused`, which depends on the limits, is not set.
Contents ContentsOf(const EditorState& record);
/// Columns as wide as the record's texts need; the map takes the rest of the page's width.
Columns ColumnsOf(const EditorState& record, const Contents& contents, double width,
                  Lettering& lettering);
