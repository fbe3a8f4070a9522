// The row of one phase: what is drawn of it, and where.
#pragma once

#include "draw/Columns.h"
#include "draw/Refusal.h"

/// The row of phase `number`, from 0 downwards.
Group RowOf(const EditorState& record, int number, const Refusal& refusal, const Columns& columns,
            Lettering& lettering);
