// The row of one phase: what is drawn of it, and where.
#pragma once

#include "draw/Columns.h"

/// What Save would report of a phase, and how many faults it has; none if it passes.
struct Refusal {
    QString message;
    int faults = 0;
};
Refusal RefusalOf(const PhaseRecord& phase, const FlowRow& flows, Integer scale);

/// The row of phase `number`, from 0 downwards.
Group RowOf(const EditorState& record, int number, const Refusal& refusal, const Columns& columns,
            Lettering& lettering);
