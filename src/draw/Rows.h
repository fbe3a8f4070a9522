// Draws the row of one phase. The symbols are in Symbols, the columns in Columns.
#pragma once

#include "draw/Columns.h"
#include "draw/Refusal.h"

/// The row of phase `number`, from 1, with its top at 0.
Group RowOf(const EditorState& record, int number, const Refusal& refusal, const Columns& columns,
            Lettering& lettering);
