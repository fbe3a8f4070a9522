// The legend of a picture: what occurs in it, and nothing else.
#pragma once

#include "draw/Columns.h"

/// The height that the legend of a record takes.
/// The legend with its upper edge at `top`; `height` is what it takes.
struct Legend {
    Group group;
    double height = 0;
};

/// The legend of what the rows hold, laid out from 0 downwards.
Legend LegendOf(const EditorState& record, const std::vector<Group>& rows, const Columns& columns,
                Lettering& lettering);
