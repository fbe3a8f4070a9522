// The columns of a picture, left to right: number and type, the map, numbers and flows, faults. How
// wide each is, and what a location is on the page.
#pragma once

#include "draw/Lettering.h"
#include "record/EditorState.h"

namespace Sheet {
constexpr double Margin = 4;
constexpr double RowHeight = 8;
constexpr double Ground = 2.5;  // above the bottom of a row
constexpr double MapGap = 4.4;  // on both sides of the map, for a sign at its edge
constexpr Letters Plain{2.4};
constexpr Letters Small{2.1};
constexpr Letters Quiet{2.1, 0xFF606060};
constexpr double LineHeight = 2.8;
constexpr double WidestBar = 1.6;  // of a flow, with its gap
}  // namespace Sheet

/// What a picture shows of a record in every phase or in none.
struct Contents {
    bool flux = false;
    bool bursts = false;
    int flows = 0;  // the most of a phase
    bool refused = false;
};

struct Columns {
    double width;      // of the page
    double numberEnd;  // numbers end here
    double nameStart;  // types begin here
    double mapStart;   // where map position 50 is
    double mapEnd;     // and 1230
    double fluxEnd;    // mass fluxes end here
    double burstsEnd;  // numbers of bursts end here
    double flowsStart;
    double flowsWidth;
    double faultsStart;
    double faultsWidth;
    Integer scale;  // of the record, not 0

    double End() const { return width - Sheet::Margin; }
    /// The place of a location, on the page or off the map.
    double PlaceOf(double location) const;
    /// The same, put on the edge of the map if it is off it.
    double OnMap(double location) const;
};

/// The scale by which a record is drawn: that of a new record if it has none.
constexpr Integer ScaleOf(const EditorState& record) {
    return record.RecordScale == ScaleCode::NotSet ? ScaleCode::Normal : record.RecordScale;
}

/// The name of the type of a phase in one or two lines.
QStringList TypeName(const PhaseRecord& phase);

Contents ContentsOf(const EditorState& record);
Columns ColumnsOf(const EditorState& record, const Contents& contents, double width,
                  Lettering& lettering);
