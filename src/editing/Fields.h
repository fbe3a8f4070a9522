// The parameter boxes of a phase as one table, in the order in which ShowData fills them: which
// field a box edits, and how its number is written. txtLava is not in the table: it edits the flow
// that is named in the list of flows.
#pragma once

#include <array>

#include "form/RecordEdit.h"
#include "record/PhaseFields.h"

struct FieldBox {
    LabelMember label;
    BoxMember box;
    const PhaseField& field;
    Format onShow;
    Format rewritten;  // used only if the field is clamped to a range
};

/// All 20 fields that have a box of their own.
extern const std::array<FieldBox, 20> FieldBoxes;

/// The row of a box, which must be in the table.
const FieldBox& BoxRow(BoxMember box);
