// The legend of a picture: an entry for each type and mark that occurs in it.
#pragma once

#include "draw/Columns.h"

struct Legend {
    Group group;
    double height = 0;
};

/// The legend of a record and its rows, laid out from 0 downwards.
Legend LegendOf(const EditorState& record, const std::vector<Group>& rows, const Columns& columns,
                Lettering& lettering);
