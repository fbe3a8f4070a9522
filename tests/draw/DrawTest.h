// Records to draw, and a look at what was drawn.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

#include "draw/Layout.h"
#include "draw/Lettering.h"

/// A record of phases, with flows from 20 upwards in those that have them.
struct TestRecord {
    std::unique_ptr<EditorState> state = std::make_unique<EditorState>();

    explicit TestRecord(Integer scale = ScaleCode::Normal) { state->RecordScale = scale; }

    /// A phase of a type in the middle of the map that Save would take.
    PhaseRecord& Add(Integer type);
};

constexpr double AnyHeight = 1e9;

/// The shapes of a phase that are the drawing of this.
std::vector<Shape> ShapesOf(const Drawing& drawing, int phase, Mark mark);

/// What a text covers if the font is a tenth wider.
QRectF WideRoom(const Text& text);
