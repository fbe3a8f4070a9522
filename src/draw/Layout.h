// Draws a record: head, axes, a row for each phase from the bottom up, and legend, divided into
// pages. Head, Axis, Rows and Legend draw these parts.
#pragma once

#include <string_view>

#include "draw/Drawing.h"
#include "record/EditorState.h"

/// The narrowest sheet on which the texts of every record fit, in millimetres.
constexpr double NarrowestSheet = 120;

struct SheetSize {
    double width;
    double tallest;  // the maximum height of a page; huge if there may be only one
};

/// Draws the phases as loaded. `name` is the file's, as bytes in any encoding. If there are several
/// pages, each is `sheet.tallest` high, or higher if that has no room for two rows.
Drawing DrawRecord(const EditorState& record, std::string_view name, SheetSize sheet);
