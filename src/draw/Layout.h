// A record as a drawing: the head, the axis, a row for each phase from the bottom upwards, the
// legend, and how they are cut into pages.
#pragma once

#include <string_view>

#include "draw/Drawing.h"
#include "record/EditorState.h"

/// The narrowest sheet on which the texts of every record have room, in millimetres.
constexpr double NarrowestSheet = 120;

struct SheetSize {
    double width;
    double tallest;  // of a page; more than any picture where there can be one page only
};

/// The drawing of the loaded copy. `name` is the file's, as bytes.
Drawing DrawRecord(const EditorState& record, std::string_view name, SheetSize sheet);
