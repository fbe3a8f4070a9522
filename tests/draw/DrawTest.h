// Makes records to draw, and finds shapes in what was drawn.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "draw/Layout.h"
#include "draw/Lettering.h"

/// A record without phases at first.
struct TestRecord {
    std::unique_ptr<EditorState> state = std::make_unique<EditorState>();

    explicit TestRecord(Integer scale = ScaleCode::Normal) { state->RecordScale = scale; }

    /// Adds a phase of this type in the middle of the map, with flow durations from 21 upwards.
    /// Save would accept it, except a collapse, whose scarp must be set first.
    PhaseRecord& Add(Integer type);
};

constexpr double AnyHeight = 1e9;

/// The shapes with this mark in the row of a phase; for phase 0, in all that is not a row.
std::vector<Shape> ShapesOf(const Drawing& drawing, int phase, Mark mark);

/// What a text covers if the font is a tenth wider.
QRectF WideRoom(const Text& text);
