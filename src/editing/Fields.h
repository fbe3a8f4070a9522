// The parameter boxes of a phase as one table, in the order in which ShowData fills them: which
// field a box edits, and how its number is written. txtLava is not in the table: it edits the flow
// named in cmbFlow.
#pragma once

#include <array>

#include "form/RecordEdit.h"
#include "record/PhaseFields.h"

struct FieldBox {
    LabelMember label;
    BoxMember box;
    const PhaseField& field;
    Format shown;      // how ShowData writes the number
    Format rewritten;  // how a clamped number is written back; unused without a range
};

/// The 20 fields that have a box.
extern const std::array<FieldBox, 20> FieldBoxes;

/// The row of a box, which must be in the table.
const FieldBox& BoxRow(BoxMember box);
