// The parameter boxes of a phase as one table, in the order in which a display fills them: which
// field a box edits, and how its number is written. The box of a flow's duration is not here: it
// edits the flow that the list of flows names.
#pragma once

#include <array>

#include "form/RecordEdit.h"
#include "record/PhaseFields.h"

struct FieldBox {
    LabelMember label;
    BoxMember box;
    const PhaseField& field;
    Format onShow;
    Format rewritten;  // counts for a field that is held in a range only
};

/// All 20 fields that have a box of their own.
extern const std::array<FieldBox, 20> FieldBoxes;

/// The row of a box; the box must be in the table.
const FieldBox& BoxRow(BoxMember box);
