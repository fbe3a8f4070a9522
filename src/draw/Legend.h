// The legend of a picture: what occurs in it, and nothing else.
#pragma once

#include "draw/Columns.h"

struct Legend {
    Group group;
    double height = 0;  // that it takes
};

/// The legend of what the rows hold, laid out from 0 downwards.
Legend LegendOf(const EditorState& record, const std::vector<Group>& rows, const Columns& columns,
                Lettering& lettering);
